#pragma once

#include "rules/range.h"

#include <QJsonValue>
#include <QString>

#include <functional>

/// The water temperatures that seasonal auto mode starts from. Several pages put them back.
namespace seasonal {

using Save = std::function<void(const QString &path, const QJsonValue &value)>;

/// °C whatever is displayed; the same for both circuits.
struct WaterDefaults {
    Range cool;
    Range heat;
};

/// Saves the eight values below SettingInfo.installation.seasonalAutoOption: cooling, then heating.
void saveWaterDefaults(const WaterDefaults &defaults, const Save &save);

} // namespace seasonal
