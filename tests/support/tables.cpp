#include "support/tables.h"

#include <QFile>

QVector<QStringList> tables::rows(const char *file)
{
    QFile data(QStringLiteral(TEST_DATA_DIR "/") + QLatin1String(file));
    if (!data.open(QIODevice::ReadOnly)) {
        qFatal("No table %s", file);
    }
    QVector<QStringList> rows;
    const auto lines = QString::fromUtf8(data.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (!line.startsWith(QLatin1Char('#'))) {
            rows.append(line.split(QLatin1Char('\t')));
        }
    }
    return rows;
}
