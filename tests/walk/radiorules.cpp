// Which radio a word checks. tst_controls.cpp holds it of all; what goes before a word is in the tests of the
// pages.

#include "walk/radiorules.h"

#include "support/dipswitches.h"
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

/// The words in the order of the radios.
RadioRule words(const char *page, const char *radios, const QString &path, const QStringList &words,
                Else otherwise)
{
    const QStringList names = QString::fromLatin1(radios).split(QLatin1Char(' '));
    return {page, QLatin1String(radios),
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

/// By tests/data/dipswitches.tsv. A kit that isn't offered has no choice; words that fit none leave the
/// radios.
std::vector<RadioRule> ofDipSwitches()
{
    std::vector<RadioRule> rules;
    for (const QString &choice : dipswitches::choices()) {
        const QStringList radios = dipswitches::radios(choice);
        rules.push_back(
            {"DipSwitchSettingStatus", radios.join(QLatin1Char(' ')),
             [choice](const Scene &scene) -> std::optional<QString> {
                 if (choice == QLatin1String("solar")
                     && !scene.control("DipSwitchSettingStatus/radioSolarThermalKitUse")->isEnabled()) {
                     return QString();
                 }
                 const QString radio = dipswitches::checked(
                     choice, [&scene](const QString &path) { return scene.value(path); });
                 return radio.isEmpty() ? std::nullopt : std::optional<QString>(radio);
             }});
    }
    return rules;
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
        {page, QStringLiteral("radioOpt1 radioOpt2"), oilRecovery},
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
