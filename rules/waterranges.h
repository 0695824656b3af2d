#pragma once

#include "rules/range.h"

#include <QString>

/// Which water temperatures the cooling and heating sections offer, and how their constant temperatures are
/// kept in line. All in °C; words are upper-cased document values.
namespace waterranges {

/// The value itself, or the end of the range that it lies beyond.
int clamp(int value, Range range);

/// What the water limits in cooling depend on.
struct CoolWords {
    QString fcuDisable;
    QString controlBasisFlag;
    QString isR32;
    QString isR410CoolExpand;
    QString controlBasis;
    QString isCoolTempMin5;

    /// The water basis can be chosen, by a product that has the wider range.
    bool expanded() const;
};

Range coolLow(const CoolWords &words);
Range coolHigh(const CoolWords &words);

Range heatLow(bool heaterInstalled);
/// `outlet`: the control follows the outlet temperature.
Range heatHigh(bool r32, bool outlet);

/// How the constant temperatures of two circuits stand to each other. The main zone is circuit 1.
enum class Circuits { One, MainZoneAbove, MainZoneBelow };

/// What the constant temperatures of the circuits are.
struct Constants {
    /// Circuit 2, or the only one.
    int other;
    int mainZone;
};

/// What the lists of the constant temperatures offer.
struct ConstantLists {
    Range other;
    Range mainZone;
};

/// The constant temperatures brought into the limits: where one lies outside, both go to the limit.
Constants kept(Constants constants, Range limits, Circuits circuits);

/// What the two lists offer: within the limits, and none past the other circuit's value.
ConstantLists lists(Constants constants, Range limits, Circuits circuits);

} // namespace waterranges
