#include "rules/autoengine.h"

#include <algorithm>
#include <array>

namespace autoengine {

namespace {

// In the order of the boxes: box, place in the table of limits, what bounds its low and its high end, partner
// in the main zone, path.
//
// Outdoors each end stays 1 °C off its other, and heating 5 °C below cooling. Elsewhere equal values are
// allowed: in heating the main zone lies at or below the other circuit, in cooling at or above it.
constexpr std::array<Row, boxCount> rows{{
    {HeatOutdoorMin, 0, {}, {{HeatOutdoorMax, -1}}, none, "heatOutTemp.min"},
    {HeatOutdoorMax, 1, {{HeatOutdoorMin, 1}}, {{CoolOutdoorMin, -5}}, none, "heatOutTemp.max"},
    {CoolOutdoorMin, 2, {{HeatOutdoorMax, 5}}, {{CoolOutdoorMax, -1}}, none, "coolOutTemp.min"},
    {CoolOutdoorMax, 3, {{CoolOutdoorMin, 1}}, {}, none, "coolOutTemp.max"},
    {HeatWaterMax, 12, {{HeatWaterMin}, {ZoneHeatWaterMax}}, {}, ZoneHeatWaterMax, "heatWaterTemp.max"},
    {HeatWaterMin, 13, {{ZoneHeatWaterMin}}, {{HeatWaterMax}}, ZoneHeatWaterMin, "heatWaterTemp.min"},
    {CoolWaterMax, 14, {{CoolWaterMin}}, {{ZoneCoolWaterMax}}, ZoneCoolWaterMax, "coolWaterTemp.max"},
    {CoolWaterMin, 15, {}, {{ZoneCoolWaterMin}, {CoolWaterMax}}, ZoneCoolWaterMin, "coolWaterTemp.min"},
    {ZoneHeatWaterMax, 4, {{ZoneHeatWaterMin}}, {{HeatWaterMax}}, none, "heatWaterTempMainZone.max"},
    {ZoneHeatWaterMin, 5, {}, {{ZoneHeatWaterMax}, {HeatWaterMin}}, none, "heatWaterTempMainZone.min"},
    {ZoneCoolWaterMax, 6, {{ZoneCoolWaterMin}, {CoolWaterMax}}, {}, none, "coolWaterTempMainZone.max"},
    {ZoneCoolWaterMin, 7, {{CoolWaterMin}}, {{ZoneCoolWaterMax}}, none, "coolWaterTempMainZone.min"},
    {HeatIndoorMax, 16, {{HeatIndoorMin}, {ZoneHeatIndoorMax}}, {}, ZoneHeatIndoorMax, "heatAirTemp.max"},
    {HeatIndoorMin, 17, {{ZoneHeatIndoorMin}}, {{HeatIndoorMax}}, ZoneHeatIndoorMin, "heatAirTemp.min"},
    {CoolIndoorMax, 18, {{CoolIndoorMin}}, {{ZoneCoolIndoorMax}}, ZoneCoolIndoorMax, "coolAirTemp.max"},
    {CoolIndoorMin, 19, {}, {{ZoneCoolIndoorMin}, {CoolIndoorMax}}, ZoneCoolIndoorMin, "coolAirTemp.min"},
    {ZoneHeatIndoorMax, 8, {{ZoneHeatIndoorMin}}, {{HeatIndoorMax}}, none, "heatAirTempMainZone.max"},
    {ZoneHeatIndoorMin, 9, {}, {{ZoneHeatIndoorMax}, {HeatIndoorMin}}, none, "heatAirTempMainZone.min"},
    {ZoneCoolIndoorMax, 10, {{ZoneCoolIndoorMin}, {CoolIndoorMax}}, {}, none, "coolAirTempMainZone.max"},
    {ZoneCoolIndoorMin, 11, {{CoolIndoorMin}}, {{ZoneCoolIndoorMax}}, none, "coolAirTempMainZone.min"},
}};

} // namespace

const std::array<ModelName, boxCount> fillOrder{
    HeatOutdoorMin,    HeatOutdoorMax,   CoolOutdoorMin,   CoolOutdoorMax,    HeatWaterMax,
    HeatWaterMin,      ZoneHeatWaterMax, ZoneHeatWaterMin, CoolWaterMin,      CoolWaterMax,
    ZoneCoolWaterMax,  ZoneCoolWaterMin, HeatIndoorMax,    HeatIndoorMin,     ZoneHeatIndoorMax,
    ZoneHeatIndoorMin, CoolIndoorMax,    CoolIndoorMin,    ZoneCoolIndoorMax, ZoneCoolIndoorMin};

const std::array<ModelName, boxCount> showOrder{
    CoolOutdoorMin,   CoolOutdoorMax,    CoolIndoorMin,     CoolIndoorMax,     CoolWaterMin,
    CoolWaterMax,     HeatOutdoorMin,    HeatOutdoorMax,    HeatIndoorMin,     HeatIndoorMax,
    HeatWaterMin,     HeatWaterMax,      ZoneCoolIndoorMin, ZoneCoolIndoorMax, ZoneCoolWaterMin,
    ZoneCoolWaterMax, ZoneHeatIndoorMin, ZoneHeatIndoorMax, ZoneHeatWaterMin,  ZoneHeatWaterMax};

const Row *row(int modelName)
{
    return modelName < 1 || modelName > boxCount ? nullptr
                                                 : &rows.at(static_cast<std::size_t>(modelName - 1));
}

QString path(const Row &row)
{
    return QStringLiteral("SettingInfo.installation.seasonalAutoOption.") + QLatin1String(row.path);
}

Group group(int type)
{
    switch (type) {
    case 1:
        return {HeatOutdoorMin, CoolOutdoorMax};
    case 2:
        return {HeatWaterMax, ZoneCoolWaterMin};
    case 3:
        return {HeatIndoorMax, ZoneCoolIndoorMin};
    default:
        return {HeatOutdoorMin, none};
    }
}

int groupOf(int modelName)
{
    if (modelName <= CoolOutdoorMax) {
        return 1;
    }
    return modelName <= ZoneCoolWaterMin ? 2 : 3;
}

Range offered(const Row &row, Range limits, bool mainZoneOff, const std::function<int(int)> &current)
{
    const auto bounds = [&row, mainZoneOff](const Neighbour &neighbour) {
        const bool follower = mainZoneOff && neighbour.modelName == row.mainZone;
        return neighbour.modelName != none && !follower;
    };
    for (const Neighbour &neighbour : {row.low.one, row.low.other}) {
        if (bounds(neighbour)) {
            limits.low = std::max(limits.low, current(neighbour.modelName) + neighbour.margin);
        }
    }
    for (const Neighbour &neighbour : {row.high.one, row.high.other}) {
        if (bounds(neighbour)) {
            limits.high = std::min(limits.high, current(neighbour.modelName) + neighbour.margin);
        }
    }
    return limits;
}

} // namespace autoengine
