#pragma once

#include "rules/range.h"

#include <QString>

/// Which values the lists of the hot water section offer, in °C, by the words that the document holds.
namespace hotwater {

/// What decides the ranges, upper-cased; empty where the document has no such text.
struct Words {
    QString product;
    QString isCoolTempMin5;
    QString isHotwaterTankHeaterUse;
    QString isHsModel;
    QString isR32;
    QString tankHeaterUse;
};

/// The lower and the upper limit of the target temperature. An unknown product gives 0 to 0.
Range lowLimit(const Words &words);
Range highLimit(const Words &words);

/// The temperature up to which the compressor heats, by the variant of the indoor unit.
Range compressorLimit(const QString &indoorModel, const QString &isR32);

/// The temperature of a disinfection.
Range disinfection(const QString &tankHeaterUse);

} // namespace hotwater
