#include "document/temperature.h"

#include <algorithm>
#include <array>

namespace temperature {

QMap<int, int> makeTable()
{
    constexpr int lowest = -50;
    constexpr int highest = 120;
    // Oddity 16: the next °C shows the same °F as these.
    constexpr std::array<int, 18> doubled{-47, -32, -27, -19, -16, -6, 4,  14,  24,
                                          34,  44,  54,  64,  74,  84, 94, 104, 114};
    QMap<int, int> table;
    int fahrenheit = -56;
    for (int celsius = lowest; celsius <= highest; ++celsius) {
        table.insert(celsius, fahrenheit);
        if (std::find(doubled.begin(), doubled.end(), celsius) == doubled.end()) {
            fahrenheit += 2;
        }
    }
    return table;
}

int lowestCelsius(const QMap<int, int> &table, int fahrenheit) { return table.key(fahrenheit, 0); }

} // namespace temperature
