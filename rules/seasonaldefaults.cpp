#include "rules/seasonaldefaults.h"

#include "rules/autoengine.h"

#include <utility>

void seasonal::saveWaterDefaults(const WaterDefaults &defaults, const Save &save)
{
    const std::pair<autoengine::ModelName, int> values[] = {
        {autoengine::CoolWaterMin, defaults.cool.low},
        {autoengine::CoolWaterMax, defaults.cool.high},
        {autoengine::ZoneCoolWaterMin, defaults.cool.low},
        {autoengine::ZoneCoolWaterMax, defaults.cool.high},
        {autoengine::HeatWaterMin, defaults.heat.low},
        {autoengine::HeatWaterMax, defaults.heat.high},
        {autoengine::ZoneHeatWaterMin, defaults.heat.low},
        {autoengine::ZoneHeatWaterMax, defaults.heat.high}};
    for (const auto &[box, value] : values) {
        save(autoengine::path(*autoengine::row(box)), value);
    }
}
