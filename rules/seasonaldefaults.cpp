#include "rules/seasonaldefaults.h"

namespace seasonal {

void saveWaterDefaults(const WaterDefaults &defaults, const Save &save)
{
    const std::pair<const char *, Range> ranges[] = {{"coolWaterTemp", defaults.cool},
                                                     {"coolWaterTempMainZone", defaults.cool},
                                                     {"heatWaterTemp", defaults.heat},
                                                     {"heatWaterTempMainZone", defaults.heat}};
    for (const auto &[key, range] : ranges) {
        const QString path = QStringLiteral("SettingInfo.installation.seasonalAutoOption.%1.%2")
                                 .arg(QLatin1String(key));
        save(path.arg(QStringLiteral("min")), range.low);
        save(path.arg(QStringLiteral("max")), range.high);
    }
}

} // namespace seasonal
