#pragma once

#include <QMap>

/// The °C/°F table. It stands instead of the formula, from which it differs.
namespace temperature {

/// °C -> °F for every whole °C from -50 to 120. It holds even °F only, and some neighbours share one.
QMap<int, int> makeTable();

/// The lowest °C whose value is `fahrenheit`; 0 when there is none.
int lowestCelsius(const QMap<int, int> &table, int fahrenheit);

} // namespace temperature
