#include "pages/seasonaldefaults.h"

namespace seasonal {

void saveWaterDefaults(const WaterDefaults &defaults, const Save &save)
{
    struct Range {
        const char *key;
        int low;
        int high;
    };
    const Range ranges[] = {{"coolWaterTemp", defaults.coolMin, defaults.coolMax},
                            {"coolWaterTempMainZone", defaults.coolMin, defaults.coolMax},
                            {"heatWaterTemp", defaults.heatMin, defaults.heatMax},
                            {"heatWaterTempMainZone", defaults.heatMin, defaults.heatMax}};
    for (const Range &range : ranges) {
        const QString path = QStringLiteral("SettingInfo.installation.seasonalAutoOption.%1.%2")
                                 .arg(QLatin1String(range.key));
        save(path.arg(QStringLiteral("min")), range.low);
        save(path.arg(QStringLiteral("max")), range.high);
    }
}

} // namespace seasonal
