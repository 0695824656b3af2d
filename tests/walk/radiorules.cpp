// Which radio a word checks. tst_controls.cpp holds it of all; what goes before a word is in the tests of the
// pages.

#include "walk/radiorules.h"

#include "walk/scene.h"

#include <QPair>

namespace {

using Checked = std::function<std::optional<QString>(const Scene &)>;

/// What happens for a word that stands for no radio.
enum class Else { None, Stays, First, Second };

QString installation(const char *key)
{
    return QStringLiteral("SettingInfo.installation.") + QLatin1String(key);
}

QString function(const char *key) { return QStringLiteral("SettingInfo.func.") + QLatin1String(key); }

QString indoor(const char *flag) { return QStringLiteral("IduFuncList.") + QLatin1String(flag); }

/// The words in the order of the radios.
RadioRule words(const char *page, const char *radios, const QString &path, const QStringList &words,
                Else otherwise)
{
    const QStringList names = QString::fromLatin1(radios).split(QLatin1Char(' '));
    return {page, radios,
            [=](const Scene &scene) -> std::optional<QString> {
                const int index = words.indexOf(scene.word(path));
                if (index >= 0) {
                    return names.at(index);
                }
                switch (otherwise) {
                case Else::None:
                    return QString();
                case Else::Stays:
                    return std::nullopt;
                case Else::First:
                    return names.at(0);
                case Else::Second:
                    return names.at(1);
                }
                return std::nullopt;
            },
            path};
}

/// "CLR" for the first radio, "SET" for the second.
RadioRule flags(const char *page, const char *radios, const QString &path, Else otherwise)
{
    return words(page, radios, path, {QStringLiteral("CLR"), Scene::set()}, otherwise);
}

/// The rule while the condition holds; else nothing is loaded.
RadioRule when(const std::function<bool(const Scene &)> &condition, const RadioRule &rule)
{
    return {rule.page, rule.radios,
            [=](const Scene &scene) { return condition(scene) ? rule.checked(scene) : std::nullopt; },
            rule.path};
}

QString pick(bool first, const char *one, const char *other) { return QLatin1String(first ? one : other); }

std::optional<QString> tank(const Scene &scene)
{
    const bool only = scene.word(QStringLiteral("product")) == QLatin1String("AQUABOX")
        && scene.isSet(indoor("is_boosterht_onlyMode"));
    return only ? QStringLiteral("radioDhwOnly")
                : pick(scene.isSet(indoor("is_hotwater")), "radioDhwUse", "radioDhwNotUse");
}

std::optional<QString> solar(const Scene &scene)
{
    if (!scene.control("DipSwitchSettingStatus/radioSolarThermalKitUse")->isEnabled()) {
        return QString();
    }
    return pick(scene.isSet(indoor("is_sun")), "radioSolarThermalKitUse", "radioSolarThermalKitNotuse");
}

std::optional<QString> operation(const Scene &scene)
{
    const bool heating = scene.isSet(indoor("is_autoOp")) && scene.isSet(indoor("is_heat"))
        && scene.word(indoor("is_cool")) == QLatin1String("CLR");
    return pick(heating, "radioOperationHeating", "radioOperationBoth");
}

std::optional<QString> heater(const Scene &scene)
{
    return scene.isSet(indoor("is_heater2"))
        ? QStringLiteral("radioElectricHeaterBoth")
        : pick(scene.isSet(indoor("is_heater1")), "radioElectricHeater1", "radioElectricHeaterNotuse");
}

std::optional<QString> meter(const Scene &scene)
{
    switch (scene.number(installation("meterInterface.interfaceAdd"))) {
    case 0:
        return QStringLiteral("radioOrvometerInterfaceNotuse");
    case 176:
        return QStringLiteral("radioOrvoAddressB0");
    case 177:
        return QStringLiteral("radioOrvoAddressB1");
    default:
        return std::nullopt;
    }
}

/// A stored choice of the second leaves the radios as they are.
std::optional<QString> oilRecovery(const Scene &scene)
{
    if (!scene.isSet(installation("combination200.combiValue"))) {
        return QString();
    }
    return scene.word(installation("combination200.combiOilRecover")) == QLatin1String("CLR")
        ? std::optional<QString>(QStringLiteral("radioOpt1"))
        : std::nullopt;
}

bool locksAreLoaded(const Scene &scene)
{
    return scene.word(function("lock.buttonLock")) == QLatin1String("CLR");
}

std::vector<RadioRule> ofDipSwitches()
{
    const char *page = "DipSwitchSettingStatus";
    return {
        {page, "radioDhwNotUse radioDhwUse radioDhwOnly", tank},
        {page, "radioSolarThermalKitNotuse radioSolarThermalKitUse", solar},
        {page, "radioOperationHeating radioOperationBoth", operation},
        flags(page, "radioFlowAlways radioFlowOnlyPump", indoor("is_flow_switch"), Else::First),
        {page, "radioElectricHeaterNotuse radioElectricHeater1 radioElectricHeaterBoth", heater},
        flags(page, "radioThermostatNone radioThermostatUse", indoor("is_ThermostatModeChange"), Else::First),
        flags(page, "radioAdditionalAirNotUse radioAdditionalAirUse", indoor("isIduAirTempSW"), Else::First),
        flags(page, "radioAntifreezeNotuse radioAntifreezeUse", indoor("isAntiFreeze"), Else::First),
        {page, "radioOrvometerInterfaceNotuse radioOrvoAddressB0 radioOrvoAddressB1", meter},
    };
}

std::vector<RadioRule> ofOperation()
{
    return {
        flags("SettingFunction", "radioSlientModeNotuse radioSlientModeUse", function("silentTimer.set"),
              Else::None),
        flags("SettingFunction", "radioAllButtonNone radioAllButtonUse", function("lock.buttonLock"),
              Else::Second),
        when(locksAreLoaded,
             flags("SettingFunction", "radioOnOffButtonNone radioOnOffButtonUse", function("lock.onoffLock"),
                   Else::Second)),
        when(locksAreLoaded,
             flags("SettingFunction", "radioOperationModeButtonNone radioOperationModeButtonUse",
                   function("lock.modelock"), Else::Second)),
        when(locksAreLoaded,
             flags("SettingFunction", "radioDhwOnOffNone radioDhwOnOffUse",
                   function("lock.hotwaterOnOfflock"), Else::Second)),
        words("SettingUser", "radioCelicious radioFahreheit",
              QStringLiteral("SettingInfo.user.tempUnit.tempConversion"),
              {QStringLiteral("CENTIGRADE"), QStringLiteral("FAHRENHEIT")}, Else::None),
        flags("SettingUser", "radioSummerTimeNotuse radioSummerTimeUse",
              QStringLiteral("SettingInfo.user.summerTime.enable"), Else::First),
        words("SettingUser", "radioWhite radioBlack", QStringLiteral("SettingInfo.user.themeSet"),
              {QStringLiteral("WHITE"), QStringLiteral("BLACK")}, Else::Stays),
    };
}

std::vector<RadioRule> ofSystem()
{
    const char *heatPump = "InstallationSystemAWHP";
    return {
        words("InstallationSystemSetting", "radioDryManual radioDryAuto", installation("drycontactAuto"),
              {QStringLiteral("AUTO_OFF"), QStringLiteral("AUTO_ON")}, Else::None),
        when([](const Scene &scene) { return scene.has(QStringLiteral("isWaterPumpOperationByForceAdv")); },
             words("InstallationSystemSetting", "radioEnforcedNotuse radioEnforcedUse",
                   installation("pumpOperationByForce.ByForceUse"),
                   {QStringLiteral("NOTUSE"), QStringLiteral("USE")}, Else::Stays)),
        flags(heatPump, "radio2ndNotuse radio2ndUse", installation("circuitMainZone.enableMainZone"),
              Else::None),
        flags(heatPump, "radioSgNotuse radioSgUse", installation("smartGrid.smartGridUse"), Else::None),
        flags(heatPump, "radioHeaterPriorityNotuse radioHeaterPriorityUse", installation("EH_BH_priority"),
              Else::Stays),
        words(heatPump, "radioWaterTankHeaterNotuse radioWaterTankHeaterUse radioWaterTankHeaterMode",
              installation("hotWaterTankHeater.tankHeaterUse"),
              {QStringLiteral("NOTUSE"), QStringLiteral("BH_USE"), QStringLiteral("ONLY_DISINFECT")},
              Else::None),
        flags(heatPump, "radioExternalPumpNotuse radioExternalPumpUse", installation("extWaterPump"),
              Else::None),
        flags(heatPump, "radio3rdNotUse radio3rdUse", installation("boilerOfThirdParty.thirdPartyUse"),
              Else::None),
    };
}

std::vector<RadioRule> ofModule()
{
    const char *page = "InstallationSystemAquabox";
    return {
        flags(page, "radioStandbyNotuse radioStandbyUse", installation("modePriority.modeStandby"),
              Else::None),
        when([](const Scene &scene) { return scene.has(QStringLiteral("isHsModel")); },
             flags(page, "radioHsmodeNotuse radioHsmodeUse", installation("hsSetting"), Else::None)),
        flags(page, "radioCombinationNotuse radioCombinationUse", installation("combination200.combiValue"),
              Else::First),
        {page, "radioOpt1 radioOpt2", oilRecovery},
        flags(page, "radioRefrigerantNotuse radioRefrigerantUse", installation("leakRefrigerant"),
              Else::None),
    };
}

std::vector<RadioRule> ofSections()
{
    const QStringList control{QStringLiteral("AUTO"), QStringLiteral("MANUAL")};
    const QStringList turned{Scene::set(), QStringLiteral("CLR")};
    return {
        words("InstallationCool", "radioFanCoilNotuse radioFanCoilUse", installation("UFH_stop.FCU_disable"),
              turned, Else::None),
        words("InstallationCool", "radioControlTypeAuto radioControlTypeManual",
              function("waterCtrBasisAirCool.ctrType"), control, Else::Stays),
        words("InstallationCool", "radioWaterPumpNotuse radioWaterPumpUse",
              installation("pumpOperOptionInCool.option"), turned, Else::Stays),
        words("InstallationHeat", "radioControlTypeAuto radioControlTypeManual",
              function("waterCtrBasisAirHeat.ctrType"), control, Else::Stays),
        words("InstallationHeat", "radioWaterPumpNotuse radioWaterPumpUse",
              installation("pumpOperOptionInHeat.option"), turned, Else::Stays),
        words("InstallationaAuto", "radioHeatingOnly radioCoolingOnly radioBoth",
              installation("seasonalAutoOption.seasonalAutoOpMode"),
              {QStringLiteral("HEAT_ONLY"), QStringLiteral("COOL_ONLY"), QStringLiteral("HEAT_N_COOL")},
              Else::Stays),
        flags("InstallationDWH", "radioUnderFloorNotUse radioUnderFloorUse",
              installation("hotwater_addData.UFH_priority"), Else::First),
        flags("InstallationDWH", "radioDisinfectionNotUse radioDisinfectionUse",
              installation("disinfect_time.enable"), Else::First),
    };
}

std::vector<RadioRule> joined()
{
    std::vector<RadioRule> rules;
    for (const auto &part : {ofDipSwitches(), ofOperation(), ofSystem(), ofModule(), ofSections()}) {
        rules.insert(rules.end(), part.begin(), part.end());
    }
    return rules;
}

} // namespace

const std::vector<RadioRule> &radioRules()
{
    static const std::vector<RadioRule> rules = joined();
    return rules;
}
