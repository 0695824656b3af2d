#pragma once

#include <QStringList>

#include <utility>

/// tests/data/times.tsv: hours of the day as they are kept in two halves of it, and the days of months.
namespace times {

/// As the lists show them.
QStringList hours();
/// The hour and the half of the day that an hour is saved as.
std::pair<int, QString> saved(const QString &shown);
/// How an hour of a half of the day ("PM" or anything else) shows.
QString shown(int hour, const QString &half);
/// The hour of "PM" that shows as this.
int afternoon(const QString &shown);

int daysOf(int month);

} // namespace times
