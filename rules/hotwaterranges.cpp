#include "rules/hotwaterranges.h"

#include <algorithm>

namespace hotwater {

namespace {

bool isSet(const QString &word) { return word == QLatin1String("SET"); }

bool isClear(const QString &word) { return word == QLatin1String("CLR"); }

bool isOneOf(const QString &word, std::initializer_list<const char *> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&word](const char *each) { return word == QLatin1String(each); });
}

Range highLimitOfAwhp(const Words &words)
{
    const bool heaterOff = isSet(words.isHotwaterTankHeaterUse)
        && isOneOf(words.tankHeaterUse, {"NOTUSE", "ONLY_DISINFECT"});
    if (!heaterOff) {
        return {50, 80};
    }
    return {50, isSet(words.isR32) ? 55 : 50};
}

// Oddity 19: the list of the one item 0 is meant.
Range highLimitOfAquabox(const Words &words)
{
    if (!isClear(words.isHotwaterTankHeaterUse)) {
        return {0, 0};
    }
    if (isSet(words.isCoolTempMin5) && isSet(words.isHsModel)) {
        return {55, 55};
    }
    if (isSet(words.isCoolTempMin5) && isClear(words.isHsModel)) {
        return {50, 50};
    }
    return {50, 80};
}

} // namespace

Range lowLimit(const Words &words) { return {30, isClear(words.isCoolTempMin5) ? 45 : 40}; }

Range highLimit(const Words &words)
{
    if (words.product == QLatin1String("AWHP")) {
        return highLimitOfAwhp(words);
    }
    if (words.product == QLatin1String("AQUABOX")) {
        return highLimitOfAquabox(words);
    }
    return {0, 0};
}

Range compressorLimit(const QString &indoorModel, const QString &isR32)
{
    if (isOneOf(indoorModel, {"INTEGRAL", "SERIES0", "NORTHERN_EUROPE", "GERMANY"})) {
        return {40, isSet(isR32) ? 55 : 50};
    }
    return {40, indoorModel == QLatin1String("CASCADE") ? 80 : 50};
}

Range disinfection(const QString &tankHeaterUse)
{
    return {tankHeaterUse == QLatin1String("NOTUSE") ? 40 : 60, 80};
}

} // namespace hotwater
