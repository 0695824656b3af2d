#include "support/dipswitches.h"

#include "support/ranges.h"
#include "support/tables.h"

#include <QVector>

#include <algorithm>

namespace {

enum Column { Choice, Radio, CheckedBy, Clicked, Loaded };

const QVector<QStringList> &table()
{
    static const QVector<QStringList> rows = tables::rows("dipswitches.tsv");
    return rows;
}

const QStringList &rowOf(const QString &name)
{
    const auto *row = std::find_if(table().begin(), table().end(), [&name](const QStringList &cells) {
        return cells.at(Radio) == name || cells.at(Choice) == name;
    });
    if (row == table().end()) {
        qFatal("No dip switch row of %s", qPrintable(name));
    }
    return *row;
}

/// The values of "key=word" by path; a word with "@" stands for a row.
QVariantMap values(const QString &cell)
{
    QVariantMap result;
    for (const QString &pair : cell.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (pair.startsWith(QLatin1Char('@'))) {
            result.insert(values(rowOf(pair).at(Clicked)));
            continue;
        }
        const QString word = pair.section(QLatin1Char('='), 1);
        bool isNumber = false;
        const int number = word.toInt(&isNumber);
        result.insert(ranges::path(pair.section(QLatin1Char('='), 0, 0)),
                      isNumber ? QVariant(number) : QVariant(word));
    }
    return result;
}

bool fits(const QString &words, const dipswitches::ValueOf &value)
{
    const QVariantMap wanted = values(words);
    return std::all_of(wanted.keyValueBegin(), wanted.keyValueEnd(), [&value](const auto &pair) {
        const QJsonValue held = value(pair.first);
        return pair.second.type() == QVariant::Int ? held.toInt() == pair.second.toInt()
                                                   : held.toString().toUpper() == pair.second.toString();
    });
}

} // namespace

QStringList dipswitches::choices()
{
    QStringList names;
    for (const QStringList &row : table()) {
        if (!row.at(Radio).isEmpty() && row.at(CheckedBy) != QLatin1String("?")) {
            names.append(row.at(Choice));
        }
    }
    names.removeDuplicates();
    return names;
}

QStringList dipswitches::radios(const QString &choice)
{
    QStringList names;
    for (const QStringList &row : table()) {
        if (!row.at(Radio).isEmpty() && (choice.isEmpty() || row.at(Choice) == choice)) {
            names.append(row.at(Radio));
        }
    }
    return names;
}

QString dipswitches::checked(const QString &choice, const ValueOf &value)
{
    QString radio;
    for (const QStringList &row : table()) {
        if (row.at(Choice) == choice && fits(row.at(CheckedBy), value)) {
            radio = row.at(Radio);
        }
    }
    return radio;
}

QVariantMap dipswitches::clicked(const QString &radio)
{
    QVariantMap all = values(rowOf(radio).at(Clicked));
    all.insert(loaded(radio));
    return all;
}

QVariantMap dipswitches::loaded(const QString &radio) { return values(rowOf(radio).at(Loaded)); }
