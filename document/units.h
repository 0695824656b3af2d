#pragma once

#include <QMap>
#include <QStringList>

/// How values are shown: °C or °F by a table, which stands instead of the formula and differs from it, and
/// the items of value lists.
struct Units {
    enum Unit { PlainNumber, Temperature, Kelvin };

    /// "CENTIGRADE" or "FAHRENHEIT"; any other text counts as °C.
    QString tempUnit;
    /// °C -> °F for every whole °C from -50 to 120. It holds even °F only, and some neighbours share one.
    QMap<int, int> cfTable;

    static QMap<int, int> makeTable();

    bool isFahrenheit() const;
    /// By the table; 0 for what it doesn't hold. °F gives the lowest °C that shows it.
    int celsiusToFahrenheit(int celsius) const { return cfTable.value(celsius, 0); }
    int fahrenheitToCelsius(int fahrenheit) const { return cfTable.key(fahrenheit, 0); }
    /// The °C of a number that is shown in the unit in force.
    int celsius(int shown) const { return isFahrenheit() ? fahrenheitToCelsius(shown) : shown; }

    /// The item of a value. K is never converted.
    QString item(int value, int unit) const;
    /// The items from lower to upper, in steps; under °F the temperatures go in steps of 2.
    QStringList items(int lower, int upper, int unit, int step) const;
    /// The number in an item without its last characters; 0 when there is none.
    static int numberBefore(const QString &item, int suffixLength);

private:
    QString suffix(int unit) const;
};
