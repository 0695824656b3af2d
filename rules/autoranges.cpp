#include "rules/autoranges.h"

namespace autoranges {

Range heatingOutdoor(const Flags &flags)
{
    if (flags.r32) {
        return {-25, 35};
    }
    return flags.r410CoolExpand ? Range{-15, 24} : Range{0, 0};
}

Range coolingOutdoor(const Flags &flags)
{
    if (flags.r32) {
        return {10, 46};
    }
    return flags.r410CoolExpand ? Range{10, 43} : Range{0, 0};
}

Range heatingWater(const Flags &flags)
{
    const int low = flags.installedHeater ? 15 : 20;
    if (flags.r32) {
        return {low, flags.heatingEntrance ? 55 : 65};
    }
    return {low, flags.heatingEntrance ? 50 : 57};
}

Range coolingWater(const Flags &flags)
{
    const bool known = flags.r32 || flags.r410CoolExpand;
    const bool raised = known && flags.coolingEntrance;
    const int high = known ? 27 : 0;
    if (flags.fanCoilDisabled) {
        return {raised ? 20 : 16, high};
    }
    const int low = flags.coolTempMin5 ? 5 : 6;
    return {raised ? low + 5 : low, high};
}

Range heatingIndoor() { return {16, 30}; }

Range coolingIndoor(const Flags &flags) { return {flags.coolAir16 ? 16 : 18, 30}; }

std::array<Range, 20> seasonalMode(const Flags &flags)
{
    const Range heatOut = heatingOutdoor(flags);
    const Range coolOut = coolingOutdoor(flags);
    const Range heatWater = heatingWater(flags);
    const Range coolWater = coolingWater(flags);
    const Range heatAir = heatingIndoor();
    const Range coolAir = coolingIndoor(flags);
    return {heatOut,   heatOut,   coolOut,   coolOut,   //
            heatWater, heatWater, coolWater, coolWater, //
            heatAir,   heatAir,   coolAir,   coolAir,   //
            heatWater, heatWater, coolWater, coolWater, //
            heatAir,   heatAir,   coolAir,   coolAir};
}

OutdoorMode outdoorMode(bool r32, bool waterExit, bool installedHeater)
{
    const int exitTop = r32 ? 65 : 57;
    const int entranceTop = r32 ? 55 : 50;
    return {{10, r32 ? 35 : 20},
            {r32 ? -25 : -20, 5},
            {20, 30},
            {16, 19},
            {35, waterExit ? exitTop : entranceTop},
            {installedHeater ? 15 : 20, 34}};
}

} // namespace autoranges
