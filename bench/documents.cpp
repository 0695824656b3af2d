// The document: Open and Save without the file dialog, and one write by path.

#include "bench/rows.h"
#include "document/util.h"
#include "support/window.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace bench {

namespace {

constexpr int repeated = 20;

/// Milliseconds of an action so short that it is repeated.
double timedOften(const std::function<void()> &action)
{
    return timed([&action] {
               for (int time = 0; time < repeated; ++time) {
                   action();
               }
           })
        / repeated;
}

void openAndSave(MainDialog &dialog, const QString &path)
{
    bool loaded = false;
    QMetaObject::invokeMethod(&dialog, "loadJsonData", Q_RETURN_ARG(bool, loaded), Q_ARG(QString, path));
    if (!loaded) {
        qFatal("Can't load %s", qPrintable(path));
    }
    QMetaObject::invokeMethod(&dialog, "saveJsonFile", Q_ARG(QString, path));
}

void openAndSaveWithQtAlone(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("Can't read %s", qPrintable(path));
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    file.close();
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("Can't write %s", qPrintable(path));
    }
    file.write(document.toJson(QJsonDocument::Compact));
}

int keysOf(const QJsonObject &object)
{
    int keys = object.size();
    for (auto member = object.begin(); member != object.end(); ++member) {
        keys += keysOf(member->toObject());
    }
    return keys;
}

/// The document with 100 times the keys: 99 more groups as large as it is, in a group of its own.
QJsonDocument hundredfold(const QJsonDocument &document)
{
    QJsonObject root = document.object();
    QJsonObject group;
    for (int key = keysOf(root); key > 0; --key) {
        group.insert(QStringLiteral("key%1").arg(key), key);
    }
    QJsonObject groups;
    for (int number = 1; number < 100; ++number) {
        groups.insert(QStringLiteral("group%1").arg(number), group);
    }
    root.insert(QStringLiteral("groups"), groups);
    return QJsonDocument(root);
}

/// A write as the pages do it.
void write(MainDialog &dialog, int value)
{
    QJsonDocument document = dialog.document();
    Util::modifyJsonValue(document,
                          QStringLiteral("SettingInfo.installation.settempLimit.hotWater.high_limit"), value);
    dialog.setDocument(document);
}

void insertAtTop(QJsonDocument &document, int value)
{
    QJsonObject object = document.object();
    object.insert(QStringLiteral("product"), value);
    document.setObject(object);
}

} // namespace

std::vector<Row> documentRows(Window &window)
{
    const QJsonDocument standard = documents::standard(QStringLiteral("R32"));
    const QJsonDocument large = hundredfold(standard);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plant.json"));
    window.use(standard);
    QMetaObject::invokeMethod(&window.dialog, "saveJsonFile", Q_ARG(QString, path));

    Numbers files;
    Numbers writes;
    Numbers largeWrites;
    for (int run = 0; run < runs; ++run) {
        const double qtAlone = timedOften([&] { openAndSaveWithQtAlone(path); });
        files.push_back(timedOften([&] { openAndSave(window.dialog, path); }) / qtAlone);
        int value = 0;
        QJsonDocument plain = standard;
        const double insert = timedOften([&] { insertAtTop(plain, ++value); });
        window.use(standard);
        const double small = timedOften([&] { write(window.dialog, ++value); });
        window.use(large);
        writes.push_back(small / insert);
        largeWrites.push_back(timedOften([&] { write(window.dialog, ++value); }) / small);
    }
    window.use(standard);
    return {
        {QStringLiteral("Open + Save of a default document"), QStringLiteral("the same with Qt alone"), files,
         1.5},
        {QStringLiteral("one write by path"), QStringLiteral("QJsonObject::insert at the top"), writes, 0},
        {QStringLiteral("the same with 100 times the keys"), QStringLiteral("with the default document"),
         largeWrites, 5}};
}

} // namespace bench
