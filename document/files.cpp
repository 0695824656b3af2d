#include "document/files.h"

#include <QFile>
#include <QFileInfo>

namespace files {

std::optional<QByteArray> read(const QString &path)
{
    QFile file(path);
    // Asked first: opening a FIFO would wait for its other end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

bool replaceContent(const QString &path, const QByteArray &content)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)) {
        return false;
    }
    file.resize(0);
    file.write(content);
    return true;
}

} // namespace files
