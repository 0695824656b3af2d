// The lists of the system section and of the two product sections in it. tst_controls.cpp holds them.

#include "walk/comborules.h"
#include "walk/scene.h"

namespace {

using comborules::always;
using comborules::atIndex;
using comborules::find;
using comborules::fixed;
using comborules::indexed;
using comborules::kelvin;
using comborules::keyed;
using comborules::plain;
using comborules::temperature;
using comborules::texts;

QString installation(const char *key)
{
    return QStringLiteral("SettingInfo.installation.") + QLatin1String(key);
}

QStringList hexadecimal(int first, int last, bool upper)
{
    QStringList items;
    for (int value = first; value <= last; ++value) {
        const QString digits = QString::number(value, 16).rightJustified(2, QLatin1Char('0'));
        items.append(upper ? digits.toUpper() : digits);
    }
    return items;
}

bool hasThreeSensings(const Scene &scene) { return scene.has(QStringLiteral("isWaterCtrBasisAir")); }

std::optional<QStringList> sensingItems(const Scene &scene)
{
    const auto three = comborules::texts({"WATER", "AIR", "AIR_WATER"})(scene);
    return hasThreeSensings(scene) ? *three : QStringList(three->mid(0, 2));
}

std::optional<int> sensing(const Scene &scene, const QComboBox &)
{
    if (scene.word(installation("sensorDefine.settemp_select")) == QLatin1String("WATER")) {
        return 0;
    }
    const bool airAlone = scene.word(installation("sensorDefine.airAndWaterUse")) == QLatin1String("CLR");
    return !hasThreeSensings(scene) || airAlone ? 1 : 2;
}

std::optional<QStringList> airSensorItems(const Scene &scene)
{
    const auto both = comborules::texts({"IDU", "RemoteController"})(scene);
    return scene.has(QStringLiteral("isIduAirTempSW")) ? *both : QStringList(both->mid(1));
}

std::optional<int> airSensor(const Scene &scene, const QComboBox &combo)
{
    const bool indoor = scene.word(installation("sensorDefine.airTempLocation")) == QLatin1String("IDU");
    return combo.count() == 2 && !indoor ? 1 : 0;
}

/// A locked controller's address isn't loaded.
std::optional<int> centralAddress(const Scene &scene, const QComboBox &combo)
{
    const QString address = scene.text(installation("cc_address"));
    const bool unlocked = scene.word(QStringLiteral("ExtSysInfo.hard_lock")) == QLatin1String("CLR");
    return !unlocked || address.isEmpty() ? 0 : find(combo, address);
}

std::optional<int> modbus(const Scene &scene, const QComboBox &combo)
{
    const int address = scene.number(installation("modbusAddress"));
    return address == -9999 ? 0
                            : find(combo, QString::number(address, 16).rightJustified(2, QLatin1Char('0')));
}

/// The number, times `factor`, with a suffix.
ComboRule::Shown atText(const char *key, qint64 factor = 1, const QString &suffix = QString())
{
    return [=](const Scene &scene, const QComboBox &combo) {
        return find(combo, QString::number(scene.number(installation(key)) * factor) + suffix);
    };
}

QStringList percents()
{
    QStringList items;
    for (int value = 10; value <= 100; value += 5) {
        items.append(QString::number(value) + QLatin1Char('%'));
    }
    return items;
}

/// The first item while the circulation wasn't in use when the section was shown.
ComboRule::Shown circulation(const char *key, int offset)
{
    return [=](const Scene &scene, const QComboBox &combo) -> std::optional<int> {
        const bool used = scene.has(QStringLiteral("isWaterPumpOperationByForceAdv"))
            && scene.word(installation("pumpOperationByForce.ByForceUse")) == QLatin1String("USE");
        const int kept = *atIndex(installation(key), offset)(scene, combo);
        // A radio that the load has left as it was may still offer the time.
        return used || combo.currentIndex() == kept ? kept : 0;
    };
}

/// The place of the word; nothing for a word that isn't among them.
ComboRule::Shown atWord(const char *key, const QStringList &words, bool emptyIsFirst = false)
{
    return [=](const Scene &scene, const QComboBox &) -> std::optional<int> {
        const QString word = scene.word(installation(key));
        const int index = word.isEmpty() && emptyIsFirst ? 0 : words.indexOf(word);
        return index < 0 ? std::nullopt : std::optional<int>(index);
    };
}

std::optional<QStringList> digitalInputItems(const Scene &scene)
{
    const auto five = comborules::texts({"NotUse", "SimpleOperation", "SimpleDryContact",
                                         "SingleEmergencyStop", "MultiEmergencyStop"})(scene);
    const bool all = scene.text(QStringLiteral("IduFuncList.isEmergencyAllStop")) == Scene::set();
    return all ? *five : QStringList(five->mid(0, 4));
}

std::optional<int> digitalInput(const Scene &scene, const QComboBox &combo)
{
    const int step = scene.text(installation("digitalInput")).remove(QStringLiteral("STEP")).toInt();
    return step >= 0 && step < combo.count() ? step : -1;
}

std::optional<int> antiFreeze(const Scene &scene, const QComboBox &combo)
{
    const int index = 4 - scene.text(installation("antiFreezeTemp")).remove(QStringLiteral("STEP")).toInt();
    return index >= 0 && index < combo.count() ? index : -1;
}

/// The seconds are looked up with "s", whatever the language calls them.
std::optional<int> valveClosing(const Scene &scene, const QComboBox &combo)
{
    const int seconds = scene.number(installation("circuitMainZone.controlTimeMainZone"));
    return qMax(0, find(combo, QString::number(seconds) + QLatin1Char('s')));
}

std::optional<QStringList> hysteresisItems(const Scene &scene)
{
    return scene.fahrenheit() ? QStringList{QStringLiteral("2ºF"), QStringLiteral("4ºF"),
                                            QStringLiteral("6ºF"), QStringLiteral("8ºF")}
                              : QStringList{QStringLiteral("1K"), QStringLiteral("2K"), QStringLiteral("3K"),
                                            QStringLiteral("4K"), QStringLiteral("5K")};
}

std::optional<QStringList> delayItems(const Scene &scene)
{
    QStringList items;
    for (const int minutes : {10, 20, 30, 40, 50, 60, 90, 120, 1440}) {
        items.append(QString::number(minutes) + scene.speak(QStringLiteral("OperationMinute")));
    }
    return items;
}

/// The mode isn't loaded unless the boiler is in use.
std::optional<int> boilerMode(const Scene &scene, const QComboBox &)
{
    if (!scene.isSet(installation("boilerOfThirdParty.thirdPartyUse"))) {
        return std::nullopt;
    }
    return scene.word(installation("boilerOfThirdParty.thirdPartyMode")) == QLatin1String("MANUAL") ? 0 : 1;
}

std::optional<int> waterFlow(const Scene &scene, const QComboBox &combo)
{
    return qMax(0, find(combo, QString::number(scene.number(installation("waterFlowRate")))));
}

Limits heaterOn(const Scene &scene)
{
    const bool expanded = scene.text(QStringLiteral("IduFuncList.isR410CoolExpand")) == Scene::set();
    return {expanded ? -15 : -25, 18};
}

std::vector<ComboRule> ofProducts()
{
    return {
        {"InstallationSystemAWHP/comboValveClosingTime", plain(60, 999, 1, "OperationSecond"), valveClosing},
        indexed("InstallationSystemAWHP/comboHysterisis", hysteresisItems,
                installation("circuitMainZone.hysterisisMainZone"), 0),
        indexed("InstallationSystemAWHP/comboStep", texts({"STEP0", "STEP1", "STEP2"}),
                installation("smartGrid.smartGridMode"), 0),
        temperature("InstallationSystemAWHP/comboHeaterOnTemperature",
                    installation("eheater_onoff.heater1_value"), heaterOn),
        {"InstallationSystemAWHP/comboHeatingPriority", texts({"Cycle", "Cycle_Heater"}),
         atWord("hotWaterTankHeater.tankHeaterPriority",
                {QStringLiteral("HP_ONLY"), QStringLiteral("HP_BH_BOTH")})},
        indexed("InstallationSystemAWHP/comboDelayTime", delayItems,
                installation("hotWaterTankHeater.tankHeaterDelay"), 0),
        {"InstallationSystemAWHP/comboAntiFreezingTemp",
         fixed({QStringLiteral("-25K"), QStringLiteral("-20K"), QStringLiteral("-15K"),
                QStringLiteral("-10K"), QStringLiteral("-5K")}),
         antiFreeze},
        indexed("InstallationSystemAWHP/comboPreRun", plain(1, 10, 1, "OperationMinute"),
                installation("pumpPreOverRun.preRun"), 1),
        indexed("InstallationSystemAWHP/comboOverRun", plain(1, 10, 1, "OperationMinute"),
                installation("pumpPreOverRun.overRun"), 1),
        {"InstallationSystemAWHP/comboControlMode", texts({"Manual", "Auto"}), boilerMode},
        temperature("InstallationSystemAWHP/comboControlTemp",
                    installation("boilerOfThirdParty.thirdPartyTemp"), always(-25, 25)),
        kelvin("InstallationSystemAWHP/combo3rdHysterisis",
               installation("boilerOfThirdParty.thirdPartyHysterisis"), always(2, 10)),
        keyed("InstallationSystemAquabox/comboKnightType", installation("kNightType"),
              {"STEP0", "STEP1", "STEP2", "STEP3"}),
        {"InstallationSystemAquabox/comboWater", plain(15, 92), waterFlow},
    };
}

} // namespace

std::vector<ComboRule> comborules::ofSystem()
{
    std::vector<ComboRule> rules{
        {"InstallationSystemSetting/comboBoxSensingTemp", sensingItems, sensing},
        {"InstallationSystemSetting/comboBoxAirTemp", airSensorItems, airSensor},
        {"InstallationSystemSetting/comboCentral", fixed(hexadecimal(0, 255, true)), centralAddress},
        {"InstallationSystemSetting/comboBoxScreedStep", plain(1, 11), atText("cement_cure.cmt_step")},
        temperature("InstallationSystemSetting/comboBoxScreedMaxTemp",
                    installation("cement_cure.cmt_maxTemp"), always(35, 55)),
        indexed("InstallationSystemSetting/comboBoxScreedHolding", plain(1, 30, 1, "day"),
                installation("cement_cure.cmt_holding"), 1),
        {"InstallationSystemSetting/comboModbus", fixed(hexadecimal(1, 247, false)), modbus},
        {"InstallationSystemSetting/comboWaterRpmDuty", fixed(percents()),
         atText("pumpRPM.pumpRPMValue", 1, QStringLiteral("%"))},
        {"InstallationSystemSetting/comboWaterpumpRPM", plain(0, 3700, 10),
         atText("pumpRPM.pumpRPMValue", 10)},
        {"InstallationSystemSetting/comboOperationPeriod", plain(20, 180, 1, "Hour"),
         circulation("pumpOperationByForce.ByForcePeriod", 20)},
        {"InstallationSystemSetting/comboOperationTime", plain(1, 10, 1, "OperationMinute"),
         circulation("pumpOperationByForce.ByForceRuntime", 1)},
        {"InstallationSystemSetting/comboDryContactInstallation", texts({"Auto", "NOTINSTALL", "INSTALL"}),
         atWord("dryContactInstallation",
                {QStringLiteral("IDU"), QStringLiteral("NOT_INSTALL"), QStringLiteral("INSTALL")}, true)},
        {"InstallationSystemSetting/comboCnEXT", digitalInputItems, digitalInput},
    };
    for (const ComboRule &rule : ofProducts()) {
        rules.push_back(rule);
    }
    return rules;
}
