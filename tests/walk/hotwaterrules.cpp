// The lists of the hot water section.

#include "walk/comborules.h"
#include "walk/scene.h"

namespace {

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

Limits minimum(const Scene &scene) { return {30, isClear(scene, "isCoolTempMin5") ? 45 : 40}; }

Limits maximumOfHeatPump(const Scene &scene)
{
    const QString use = scene.word(installation("hotWaterTankHeater.tankHeaterUse"));
    const bool heaterless = use == QLatin1String("NOTUSE") || use == QLatin1String("ONLY_DISINFECT");
    if (isSet(scene, "isHotwaterTankHeaterUse") && heaterless) {
        return {50, isSet(scene, "isR32") ? 55 : 50};
    }
    return {50, 80};
}

Limits maximumOfModule(const Scene &scene)
{
    if (!isClear(scene, "isHotwaterTankHeaterUse")) {
        return {0, 0};
    }
    if (isSet(scene, "isCoolTempMin5") && isSet(scene, "isHsModel")) {
        return {55, 55};
    }
    return {50, isSet(scene, "isCoolTempMin5") && isClear(scene, "isHsModel") ? 50 : 80};
}

Limits maximum(const Scene &scene)
{
    const QString product = scene.word(QStringLiteral("product"));
    return product == QLatin1String("AWHP")   ? maximumOfHeatPump(scene)
        : product == QLatin1String("AQUABOX") ? maximumOfModule(scene)
                                              : Limits{0, 0};
}

Limits tankWater(const Scene &scene)
{
    return {1, scene.text(QStringLiteral("IduFuncList.isHotwaterTankHeaterUse")) == Scene::set() ? 30 : 20};
}

Limits inlet(const Scene &scene)
{
    const QString model = flag(scene, "is_indoor_model");
    const QStringList known{QStringLiteral("INTEGRAL"), QStringLiteral("SERIES0"),
                            QStringLiteral("NORTHERN_EUROPE"), QStringLiteral("GERMANY")};
    if (known.contains(model)) {
        return {40, isSet(scene, "isR32") ? 55 : 50};
    }
    return {40, model == QLatin1String("CASCADE") ? 80 : 50};
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
    return temperature("", QString(), inlet).items(scene);
}

Limits disinfection(const Scene &scene)
{
    const bool unused = scene.word(installation("hotWaterTankHeater.tankHeaterUse"))
        == QLatin1String("NOTUSE");
    return {unused ? 40 : 60, 80};
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
                    minimum),
        temperature("InstallationDWH/comboHotWaterMax", installation("settempLimit.hotWater.high_limit"),
                    maximum),
        kelvin("InstallationDWH/comboTankWaterMin", installation("hotwater_logic.hysterisis"), tankWater),
        {"InstallationDWH/comboInletWaterMax", inletItems,
         atTemperature(installation("hotwater_logic.compMaxTemp"))},
        kelvin("InstallationDWH/comboTankHeatingHysterisis", installation("hotwater_addData.hysterisis"),
               always(2, 4)),
        {"InstallationDWH/comboHeatingDurationTime", plain(5, 95, 5, "OperationMinute"),
         atIndex(installation("hotwater_timer.maintain_time"), 1)},
        {"InstallationDWH/comboStopDurationTime", plain(0, 600, 30, "OperationMinute"),
         atIndex(installation("hotwater_timer.restrict_time"), 0)},
        keyed("InstallationDWH/comboHeatPump", installation("waterThermoOnOff"),
              {"STEP0", "STEP1", "STEP2", "STEP3"}),
        {"InstallationDWH/comboSchedule1", texts({"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"}),
         atIndex(installation("disinfect_time.day"), 0)},
        {"InstallationDWH/comboSchedule2", fixed(wholeHours()),
         atIndex(installation("disinfect_time.start"), 0)},
        temperature("InstallationDWH/comboMaxTemp", installation("disinfect_data.maxTemp"), disinfection),
        {"InstallationDWH/comboMaxTempDuration", plain(5, 60, 5, "OperationMinute"),
         atIndex(installation("disinfect_data.howLong"), 5)},
        {"InstallationDWH/comboCutOffDuration", plain(1, 12, 1, "Hour"),
         atIndex(installation("disinfect_data.cutOffTime"), 1)},
    };
}
