// The lists of the cooling and the heating section and of the outdoor mode; limits of water in
// tests/data/ranges.tsv.

#include "walk/comborules.h"
#include "walk/scene.h"

namespace {

using comborules::always;
using comborules::byWords;
using comborules::clamped;
using comborules::keyed;
using comborules::temperature;

const char *const steps[] = {"STEP0", "STEP1", "STEP2", "STEP3"};

QString installation(const QString &key) { return QStringLiteral("SettingInfo.installation.") + key; }

QString limit(const char *key) { return installation(QStringLiteral("settempLimit.") + QLatin1String(key)); }

bool flag(const Scene &scene, const char *name) { return scene.has(QLatin1String(name)); }

QString basis(const Scene &scene, const char *key) { return scene.word(installation(QLatin1String(key))); }

/// The constant temperature of a circuit: with two circuits, it doesn't pass the other's.
comborules::LimitsOf constant(const char *season, bool isMainZone)
{
    const bool cooling = qstrcmp(season, "Cool") == 0;
    return [=](const Scene &scene) {
        const QString limits = cooling ? limit("coolWater.") : limit("heatWater.");
        const QString control = QStringLiteral("SettingInfo.func.waterCtrBasisAir") + QLatin1String(season);
        Limits range{scene.number(limits + QStringLiteral("low_limit")),
                     scene.number(limits + QStringLiteral("high_limit"))};
        if (scene.isSet(installation(QStringLiteral("circuitMainZone.enableMainZone")))) {
            const int other = scene.number(
                control + (isMainZone ? QStringLiteral(".ctrTemp") : QStringLiteral(".ctrTempMainZone")));
            (cooling == isMainZone ? range.low : range.high) = other;
        }
        return range;
    };
}

std::optional<QStringList> references(const Scene &scene)
{
    return comborules::texts({"Outlet", "Inlet"})(scene);
}

ComboRule::Shown reference(const char *key)
{
    return [key](const Scene &scene, const QComboBox &) -> std::optional<int> {
        const QString word = basis(scene, key);
        return word == QLatin1String("EXIT")    ? std::optional<int>(0)
            : word == QLatin1String("ENTRANCE") ? std::optional<int>(1)
                                                : std::nullopt;
    };
}

ComboRule minutes(const char *name, const char *key)
{
    return comborules::indexed(name, comborules::plain(1, 60, 1, "OperationMinute"),
                               installation(QLatin1String(key)), 1);
}

ComboRule criterion(const char *name, const char *key)
{
    return keyed(name, installation(QLatin1String(key)), {std::begin(steps), std::end(steps)});
}

Limits coolAirMin(const Scene &scene) { return {flag(scene, "isCoolAir16") ? 16 : 18, 22}; }

std::vector<ComboRule> ofCooling()
{
    const QString control = QStringLiteral("SettingInfo.func.waterCtrBasisAirCool.");
    return {
        {"InstallationCool/comboReferenceWater", references, reference("coolWaterControlBasis")},
        temperature("InstallationCool/comboForcerWater", installation(QStringLiteral("UFH_stop.watertemp")),
                    always(16, 25)),
        temperature("InstallationCool/comboTemperatureIndoorMin", limit("coolAir.low_limit"), coolAirMin),
        temperature("InstallationCool/comboTemperatureIndoorMax", limit("coolAir.high_limit"),
                    always(24, 30)),
        clamped("InstallationCool/comboTemperatureWaterMin", limit("coolWater.low_limit"),
                byWords("coolLow")),
        clamped("InstallationCool/comboTemperatureWaterMax", limit("coolWater.high_limit"),
                byWords("coolHigh")),
        temperature("InstallationCool/comboControlMainZoneTemp", control + QStringLiteral("ctrTempMainZone"),
                    constant("Cool", true)),
        temperature("InstallationCool/comboControlWaterTemp", control + QStringLiteral("ctrTemp"),
                    constant("Cool", false)),
        criterion("InstallationCool/comboTNIndoorAirTemp", "coolAirThermoOnOff"),
        criterion("InstallationCool/comboTNIndoorWaterTemp", "coolWaterThermoOnOff"),
        minutes("InstallationCool/comboWaterPumpOnTimer", "pumpOperOptionInCool.timeOn"),
        minutes("InstallationCool/comboWaterPumpOffTimer", "pumpOperOptionInCool.time"),
    };
}

std::vector<ComboRule> ofHeating()
{
    const QString control = QStringLiteral("SettingInfo.func.waterCtrBasisAirHeat.");
    return {
        {"InstallationHeat/comboReferenceWater", references, reference("heatWaterControlBasis")},
        temperature("InstallationHeat/comboTemperatureIndoorMin", limit("heatAir.low_limit"), always(16, 22)),
        temperature("InstallationHeat/comboTemperatureIndoorMax", limit("heatAir.high_limit"),
                    always(24, 30)),
        clamped("InstallationHeat/comboTemperatureWaterMin", limit("heatWater.low_limit"),
                byWords("heatLow")),
        clamped("InstallationHeat/comboTemperatureWaterMax", limit("heatWater.high_limit"),
                byWords("heatHigh")),
        temperature("InstallationHeat/comboControlMainZoneTemp", control + QStringLiteral("ctrTempMainZone"),
                    constant("Heat", true)),
        temperature("InstallationHeat/comboControlWaterTemp", control + QStringLiteral("ctrTemp"),
                    constant("Heat", false)),
        criterion("InstallationHeat/comboTNIndoorAirTemp", "typeOfHeat_Air_thermo"),
        criterion("InstallationHeat/comboTNIndoorWaterTemp", "typeOfHeat_Water_thermo"),
        minutes("InstallationHeat/comboWaterPumpOnTimer", "pumpOperOptionInHeat.timeOn"),
        minutes("InstallationHeat/comboWaterPumpOffTimer", "pumpOperOptionInHeat.time"),
    };
}

} // namespace

std::vector<ComboRule> comborules::ofWater()
{
    std::vector<ComboRule> rules = ofCooling();
    for (const ComboRule &rule : ofHeating()) {
        rules.push_back(rule);
    }
    return rules;
}

std::vector<ComboRule> comborules::ofOutdoorMode()
{
    const auto path = [](const char *key) { return installation(QLatin1String(key)); };
    return {
        clamped("InstallationaAuto/comboOutdoorOutdoorMax", path("autoOp_outtemp.max"),
                byWords("outdoorMax")),
        clamped("InstallationaAuto/comboOutdoorOutdoorMin", path("autoOp_outtemp.min"),
                byWords("outdoorMin")),
        temperature("InstallationaAuto/comboOutdoorIndoorMax", path("autoOp_tempair.max"), always(20, 30)),
        temperature("InstallationaAuto/comboOutdoorIndoorMin", path("autoOp_tempair.min"), always(16, 19)),
        clamped("InstallationaAuto/comboOutdoorWaterMax", path("autoOp_tempwater.high_limit"),
                byWords("heatHigh")),
        clamped("InstallationaAuto/comboOutdoorWaterMin", path("autoOp_tempwater.low_limit"),
                byWords("heatLow")),
    };
}
