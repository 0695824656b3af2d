#include "support/times.h"

#include "support/tables.h"

namespace {

enum Column { Kind, Shown, Saved, Half, OfAfternoon, Days = Saved };

QVector<QStringList> rowsOf(const char *kind)
{
    static const QVector<QStringList> all = tables::rows("times.tsv");
    QVector<QStringList> rows;
    std::copy_if(all.begin(), all.end(), std::back_inserter(rows),
                 [kind](const QStringList &row) { return row.at(Kind) == QLatin1String(kind); });
    return rows;
}

QStringList rowOf(const char *kind, const QString &shown)
{
    for (const QStringList &row : rowsOf(kind)) {
        if (row.at(Shown) == shown) {
            return row;
        }
    }
    qFatal("No %s %s", kind, qPrintable(shown));
}

} // namespace

QStringList times::hours()
{
    QStringList hours;
    for (const QStringList &row : rowsOf("hour")) {
        hours.append(row.at(Shown));
    }
    return hours;
}

std::pair<int, QString> times::saved(const QString &shown)
{
    const QStringList row = rowOf("hour", shown);
    return {row.at(Saved).toInt(), row.at(Half)};
}

QString times::shown(int hour, const QString &half)
{
    const Column column = half == QLatin1String("PM") ? OfAfternoon : Shown;
    for (const QStringList &row : rowsOf("hour")) {
        if (row.at(column).toInt() == hour) {
            return row.at(Shown);
        }
    }
    return QStringLiteral("00");
}

int times::afternoon(const QString &shown) { return rowOf("hour", shown).at(OfAfternoon).toInt(); }

int times::daysOf(int month) { return rowOf("month", QString::number(month)).at(Days).toInt(); }
