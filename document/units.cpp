#include "document/units.h"

#include <algorithm>
#include <array>

namespace {

// Far more than any list needs, and as many as are filled without a noticeable delay. Limits of a damaged
// document could ask for thousands of millions.
constexpr int longestList = 30000;

} // namespace

QMap<int, int> Units::makeTable()
{
    constexpr int lowest = -50;
    constexpr int highest = 120;
    // Oddity 16: the next °C shows the same °F as these.
    constexpr std::array<int, 18> doubled{-47, -32, -27, -19, -16, -6, 4,  14,  24,
                                          34,  44,  54,  64,  74,  84, 94, 104, 114};
    QMap<int, int> table;
    int fahrenheit = -56;
    for (int degrees = lowest; degrees <= highest; ++degrees) {
        table.insert(degrees, fahrenheit);
        if (std::find(doubled.begin(), doubled.end(), degrees) == doubled.end()) {
            fahrenheit += 2;
        }
    }
    return table;
}

bool Units::isFahrenheit() const { return tempUnit == QLatin1String("FAHRENHEIT"); }

QString Units::suffix(int unit) const
{
    switch (unit) {
    case Temperature:
        return isFahrenheit() ? QStringLiteral("°F") : QStringLiteral("°C");
    case Kelvin:
        return QStringLiteral("K");
    default:
        return {};
    }
}

QString Units::item(int value, int unit) const
{
    const int shown = unit == Temperature && isFahrenheit() ? celsiusToFahrenheit(value) : value;
    return QString::number(shown) + suffix(unit);
}

QStringList Units::items(int lower, int upper, int unit, int step) const
{
    if (unit == Temperature && isFahrenheit()) {
        lower = celsiusToFahrenheit(lower);
        upper = celsiusToFahrenheit(upper);
        step = 2;
    }
    const QString ending = suffix(unit);
    QStringList items;
    for (qint64 value = lower; value <= upper && items.size() < longestList; value += step) {
        items.append(QString::number(value) + ending);
    }
    return items;
}

int Units::numberBefore(const QString &item, int suffixLength)
{
    return item.chopped(qMin(suffixLength, item.size())).toInt();
}
