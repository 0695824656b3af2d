#pragma once

#include <QFile>

/// Whole files of the tests.
namespace testfiles {

inline void put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Can't write %s", qPrintable(path));
    }
}

/// The bytes of the file, or "(none)" when it can't be read.
inline QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(none)");
}

/// The path as the log prints it.
inline QString quoted(const QString &path) { return QLatin1Char('"') + path + QLatin1Char('"'); }

} // namespace testfiles
