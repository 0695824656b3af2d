#include "rules/waterranges.h"

#include <algorithm>

namespace waterranges {

namespace {

const QLatin1String set("SET");
const QLatin1String clr("CLR");

// Oddity 18: a single item for -1: there is no range for these settings.
constexpr Range none{-1, -1};

Range coolLowWithFanCoil(const CoolWords &words)
{
    if (words.isCoolTempMin5 != set && words.isCoolTempMin5 != clr) {
        return none;
    }
    const bool fromFive = words.isCoolTempMin5 == set;
    const int low = fromFive ? 5 : 6;
    if (words.expanded() && words.controlBasis == QLatin1String("ENTRANCE")) {
        return {fromFive ? 10 : 11, 20};
    }
    if (words.expanded() && words.controlBasis == QLatin1String("EXIT")) {
        return {low, 20};
    }
    return {low, 18};
}

Range coolLowWithoutFanCoil(const CoolWords &words)
{
    if (words.controlBasisFlag == clr) {
        return {16, 18};
    }
    if (!words.expanded()) {
        return none;
    }
    if (words.controlBasis == QLatin1String("ENTRANCE")) {
        return {20, 20};
    }
    if (words.controlBasis == QLatin1String("EXIT")) {
        return {16, 20};
    }
    return {16, 18};
}

} // namespace

int clamp(int value, Range range) { return std::clamp(value, range.low, range.high); }

bool CoolWords::expanded() const
{
    return controlBasisFlag == set && (isR32 == set || isR410CoolExpand == set);
}

Range coolLow(const CoolWords &words)
{
    if (words.fcuDisable == set) {
        return coolLowWithoutFanCoil(words);
    }
    if (words.fcuDisable == clr) {
        return coolLowWithFanCoil(words);
    }
    return {16, 18};
}

Range coolHigh(const CoolWords &words) { return words.expanded() ? Range{22, 27} : Range{20, 25}; }

Range heatLow(bool heaterInstalled) { return {heaterInstalled ? 15 : 20, 34}; }

Range heatHigh(bool r32, bool outlet)
{
    if (r32) {
        return {35, outlet ? 65 : 55};
    }
    return {35, outlet ? 57 : 50};
}

Constants kept(Constants constants, Range limits, Circuits circuits)
{
    const auto both = [](int value) { return Constants{value, value}; };
    switch (circuits) {
    case Circuits::MainZoneAbove:
        if (constants.other < limits.low) {
            constants = both(limits.low);
        }
        return constants.mainZone > limits.high ? both(limits.high) : constants;
    case Circuits::MainZoneBelow:
        if (constants.other > limits.high) {
            constants = both(limits.high);
        }
        return constants.mainZone < limits.low ? both(limits.low) : constants;
    case Circuits::One:
        break;
    }
    if (constants.other < limits.low) {
        return both(limits.low);
    }
    return constants.other > limits.high ? both(limits.high) : constants;
}

ConstantLists lists(Constants constants, Range limits, Circuits circuits)
{
    switch (circuits) {
    case Circuits::MainZoneAbove:
        return {{limits.low, constants.mainZone}, {constants.other, limits.high}};
    case Circuits::MainZoneBelow:
        return {{constants.mainZone, limits.high}, {limits.low, constants.other}};
    case Circuits::One:
        break;
    }
    return {limits, limits};
}

} // namespace waterranges
