#include "fuzz/target.h"

#include <QDir>
#include <QFile>

#include <cstdio>

// Runs a target on each file of the folders that are given, in the order of their names.
int main(int argc, char *argv[])
{
    const std::unique_ptr<Target> target = makeTarget();
    int count = 0;
    for (int argument = 1; argument < argc; ++argument) {
        const QDir folder(QFile::decodeName(argv[argument]));
        for (const QString &name : folder.entryList(QDir::Files, QDir::Name)) {
            QFile file(folder.filePath(name));
            if (!file.open(QIODevice::ReadOnly)) {
                fail("can't be read", file.fileName().toUtf8());
            }
            static_cast<void>(std::fprintf(stderr, "%s\n", qPrintable(name)));
            target->run(file.readAll());
            target->runAfter();
            ++count;
        }
    }
    // A wrong path would else pass as good.
    return count > 0 ? 0 : 1;
}
