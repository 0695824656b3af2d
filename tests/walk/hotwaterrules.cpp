// The lists of the hot water section; the limits of most stand in tests/data/ranges.tsv.

#include "walk/comborules.h"
#include "walk/scene.h"

namespace {

using comborules::byWords;
using comborules::indexed;
using comborules::plain;
using comborules::temperature;

QString installation(const char *key)
{
    return QStringLiteral("SettingInfo.installation.") + QLatin1String(key);
}

QString flag(const Scene &scene, const char *name)
{
    return scene.word(QStringLiteral("IduFuncList.") + QLatin1String(name));
}

bool isSet(const Scene &scene, const char *name) { return flag(scene, name) == Scene::set(); }

bool isClear(const Scene &scene, const char *name) { return flag(scene, name) == QLatin1String("CLR"); }

Limits tankWater(const Scene &scene)
{
    return {1, scene.text(QStringLiteral("IduFuncList.isHotwaterTankHeaterUse")) == Scene::set() ? 30 : 20};
}

/// With the timer, the list that was meant for it lands in the inlet's box.
std::optional<QStringList> inletItems(const Scene &scene)
{
    const bool timer = isSet(scene, "is_hotwater") && isClear(scene, "is_boosterht_onlyMode")
        && isSet(scene, "is_timer_hotwater");
    if (timer && isSet(scene, "isHotwaterTimerExpand")) {
        return plain(0, 1440, 60)(scene);
    }
    if (timer && isClear(scene, "isHotwaterTimerExpand")) {
        return plain(0, 600, 30)(scene);
    }
    return temperature("", QString(), byWords("compressor")).items(scene);
}

QStringList wholeHours()
{
    QStringList items;
    for (int hour = 0; hour < 24; ++hour) {
        items.append(QString::number(hour).rightJustified(2, QLatin1Char('0')) + QStringLiteral(":00"));
    }
    return items;
}

} // namespace

std::vector<ComboRule> comborules::ofHotWater()
{
    return {
        temperature("InstallationDWH/comboHotWaterMin", installation("settempLimit.hotWater.low_limit"),
                    byWords("hotWaterLow")),
        temperature("InstallationDWH/comboHotWaterMax", installation("settempLimit.hotWater.high_limit"),
                    byWords("hotWaterHigh")),
        kelvin("InstallationDWH/comboTankWaterMin", installation("hotwater_logic.hysterisis"), tankWater),
        {"InstallationDWH/comboInletWaterMax", inletItems,
         atTemperature(installation("hotwater_logic.compMaxTemp"))},
        kelvin("InstallationDWH/comboTankHeatingHysterisis", installation("hotwater_addData.hysterisis"),
               always(2, 4)),
        indexed("InstallationDWH/comboHeatingDurationTime", plain(5, 95, 5, "OperationMinute"),
                installation("hotwater_timer.maintain_time"), 1),
        indexed("InstallationDWH/comboStopDurationTime", plain(0, 600, 30, "OperationMinute"),
                installation("hotwater_timer.restrict_time"), 0),
        keyed("InstallationDWH/comboHeatPump", installation("waterThermoOnOff"),
              {"STEP0", "STEP1", "STEP2", "STEP3"}),
        indexed("InstallationDWH/comboSchedule1", texts({"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"}),
                installation("disinfect_time.day"), 0),
        indexed("InstallationDWH/comboSchedule2", fixed(wholeHours()), installation("disinfect_time.start"),
                0),
        temperature("InstallationDWH/comboMaxTemp", installation("disinfect_data.maxTemp"),
                    byWords("disinfection")),
        indexed("InstallationDWH/comboMaxTempDuration", plain(5, 60, 5, "OperationMinute"),
                installation("disinfect_data.howLong"), 5),
        indexed("InstallationDWH/comboCutOffDuration", plain(1, 12, 1, "Hour"),
                installation("disinfect_data.cutOffTime"), 1),
    };
}
