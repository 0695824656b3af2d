#pragma once

#include <QMap>
#include <QStringList>
#include <QVector>

#include <functional>
#include <utility>

/// tests/data/ranges.tsv: what lists of temperatures offer by the words of the document.
namespace ranges {

/// The word of a flag of the indoor unit, of "product", or of a key of the installation settings.
using Word = std::function<QString(const QString &key)>;

/// Where the document holds such a word.
QString path(const QString &key);

QStringList lists();

/// The lowest and the highest °C of a list, by the first of its rows that the words fit.
std::pair<int, int> of(const QString &list, const Word &word);

/// Words by key for each row of a list, and the same with each of its conditions broken in turn.
QVector<QMap<QString, QString>> borders(const QString &list);

/// Runs `check` with all words that the table tells of the keys, and with another word for each.
void forAllWords(const QString &list, const std::function<void(const Word &word)> &check);

} // namespace ranges
