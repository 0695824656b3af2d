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
    // Unbuffered: the one write comes right after the file is cut and tells itself whether there was room,
    // and nothing is left to be flushed.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        return false;
    }
    const bool written = file.resize(0) && file.write(content) == content.size();
    file.close(); // which tells by error() alone
    return written && file.error() == QFileDevice::NoError;
}

} // namespace files
