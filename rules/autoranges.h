#pragma once

#include "rules/range.h"

#include <array>

/// The limits of the auto mode lists by the flags of the document, in whole °C.
namespace autoranges {

/// What the limits depend on. An entrance counts only where the unit can choose its water control basis.
struct Flags {
    bool r32;
    bool r410CoolExpand;
    bool installedHeater;
    bool coolTempMin5;
    bool coolAir16;
    bool fanCoilDisabled;
    bool heatingEntrance;
    bool coolingEntrance;
};

// The seasonal form; all boxes of a kind share the limits of their kind. With neither refrigerant flag the
// outdoor lists shrink to 0 °C, and the cooling water's low limit lies above its high one: such a list stays
// as it was.
Range heatingOutdoor(const Flags &flags);
Range coolingOutdoor(const Flags &flags);
Range heatingWater(const Flags &flags);
Range coolingWater(const Flags &flags);
Range heatingIndoor();
Range coolingIndoor(const Flags &flags);

/// The limits of all twenty boxes: of heating, then cooling, outdoors; of heating and cooling water and
/// indoor air, two boxes each, first in the main zone and then in the other circuit.
std::array<Range, 20> seasonalMode(const Flags &flags);

/// The lists of the outdoor temperature dependent mode.
struct OutdoorMode {
    Range outdoorMax;
    Range outdoorMin;
    Range indoorMax;
    Range indoorMin;
    Range waterMax;
    Range waterMin;
};

/// `waterExit`: heating is controlled by the water that leaves the unit.
OutdoorMode outdoorMode(bool r32, bool waterExit, bool installedHeater);

} // namespace autoranges
