#pragma once

#include "rules/autoranges.h"

#include <QString>

#include <array>
#include <cstddef>
#include <functional>

/// The range engine of the seasonal auto mode: which boxes narrow the list of which.
namespace autoengine {

/// The numbers by which the seasonal boxes are addressed, 1 to 20.
enum ModelName {
    HeatOutdoorMin = 1,
    HeatOutdoorMax,
    CoolOutdoorMin,
    CoolOutdoorMax,
    HeatWaterMax,
    HeatWaterMin,
    CoolWaterMax,
    CoolWaterMin,
    ZoneHeatWaterMax,
    ZoneHeatWaterMin,
    ZoneCoolWaterMax,
    ZoneCoolWaterMin,
    HeatIndoorMax,
    HeatIndoorMin,
    CoolIndoorMax,
    CoolIndoorMin,
    ZoneHeatIndoorMax,
    ZoneHeatIndoorMin,
    ZoneCoolIndoorMax,
    ZoneCoolIndoorMin
};

constexpr int boxCount = 20;
constexpr int none = 0;

/// A box whose value plus the margin, in °C, bounds another's list.
struct Neighbour {
    int modelName = none;
    int margin = 0;
};

/// What bounds one end of a list, besides the limits.
struct Bounds {
    Neighbour one{};
    Neighbour other{};
};

/// A box of the seasonal form and what narrows its list.
struct Row {
    int modelName = none;
    /// The place of the box in the table of limits.
    std::size_t slot = 0;
    Bounds low{};
    Bounds high{};
    /// The box of the main zone that follows this one while the main zone is off, and may bound it otherwise.
    int mainZone = none;
    /// Under SettingInfo.installation.seasonalAutoOption.
    const char *path = nullptr;
};

/// The row of a box; null for a number outside 1 to 20.
const Row *row(int modelName);

/// The path of the box's value.
QString path(const Row &row);

/// The boxes in the order in which their lists are set, and in which their values are shown.
extern const std::array<ModelName, boxCount> fillOrder;
extern const std::array<ModelName, boxCount> showOrder;

/// The boxes of a refresh type: 1 outdoor, 2 water, 3 indoor. Nothing for any other.
struct Group {
    int first;
    int last;
};
Group group(int type);
/// The type of the group that the box is in.
int groupOf(int modelName);

/// What the box of `row` may offer within `limits`, in °C. `current` tells the value of a box. Where the
/// neighbours stand crossed the low end is above the high one.
Range offered(const Row &row, Range limits, bool mainZoneOff, const std::function<int(int)> &current);

} // namespace autoengine
