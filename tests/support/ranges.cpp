#include "support/ranges.h"

#include "support/tables.h"

#include <QHash>
#include <QMap>
#include <QStringList>
#include <QVector>

namespace {

/// The first key or the other holds one of the words.
struct Condition {
    QStringList keys;
    QStringList words;
};

struct Row {
    std::pair<int, int> limits;
    QVector<Condition> conditions;
};

QHash<QString, QVector<Row>> read()
{
    QHash<QString, QVector<Row>> rows;
    for (const QStringList &cells : tables::rows("ranges.tsv")) {
        Row row{{cells.at(1).toInt(), cells.at(2).toInt()}, {}};
        for (const QString &condition : cells.at(3).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            row.conditions.append({condition.section(QLatin1Char('='), 0, 0).split(QLatin1Char('|')),
                                   condition.section(QLatin1Char('='), 1).split(QLatin1Char('|'))});
        }
        rows[cells.at(0)].append(row);
    }
    return rows;
}

const QHash<QString, QVector<Row>> &table()
{
    static const QHash<QString, QVector<Row>> rows = read();
    return rows;
}

const QVector<Row> &rowsOf(const QString &list)
{
    const auto found = table().find(list);
    if (found == table().end()) {
        qFatal("No range %s", qPrintable(list));
    }
    return *found;
}

} // namespace

QString ranges::path(const QString &key)
{
    const bool isFlag = key.startsWith(QLatin1String("is"));
    return key == QLatin1String("product") ? key
        : isFlag                           ? QStringLiteral("IduFuncList.") + key
                                           : QStringLiteral("SettingInfo.installation.") + key;
}

QStringList ranges::lists() { return table().keys(); }

QVector<QMap<QString, QString>> ranges::borders(const QString &list)
{
    QVector<QMap<QString, QString>> all;
    for (const Row &row : rowsOf(list)) {
        QMap<QString, QString> words;
        for (const Condition &condition : row.conditions) {
            words.insert(condition.keys.constFirst(), condition.words.constFirst());
        }
        all.append(words);
        for (const Condition &condition : row.conditions) {
            QMap<QString, QString> broken = words;
            for (const QString &key : condition.keys) {
                broken.insert(key, QStringLiteral("CLR"));
            }
            all.append(broken);
        }
    }
    return all;
}

std::pair<int, int> ranges::of(const QString &list, const Word &word)
{
    for (const Row &row : rowsOf(list)) {
        const bool fits = std::all_of(
            row.conditions.begin(), row.conditions.end(), [&word](const Condition &condition) {
                return std::any_of(condition.keys.begin(), condition.keys.end(),
                                   [&](const QString &key) { return condition.words.contains(word(key)); });
            });
        if (fits) {
            return row.limits;
        }
    }
    qFatal("No range for these words: %s", qPrintable(list));
}

void ranges::forAllWords(const QString &list, const std::function<void(const Word &word)> &check)
{
    QMap<QString, QStringList> told;
    for (const Row &row : rowsOf(list)) {
        for (const Condition &condition : row.conditions) {
            for (const QString &key : condition.keys) {
                told[key] += condition.words;
            }
        }
    }
    QVector<QMap<QString, QString>> all{{}};
    for (auto words = told.begin(); words != told.end(); ++words) {
        words.value() += QStringLiteral("x");
        words->removeDuplicates();
        QVector<QMap<QString, QString>> longer;
        for (const auto &some : qAsConst(all)) {
            for (const QString &word : qAsConst(*words)) {
                longer.append(some);
                longer.last().insert(words.key(), word);
            }
        }
        all = longer;
    }
    for (const auto &words : qAsConst(all)) {
        check([&words](const QString &key) { return words.value(key); });
    }
}
