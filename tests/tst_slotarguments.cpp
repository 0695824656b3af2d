#include "support/systemsection.h"

#include "pages/installation/installationcool.h"
#include "pages/installation/installationdwh.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemaquabox.h"
#include "pages/installation/installationsystemawhp.h"
#include "pages/operation/settingfunction.h"
#include "pages/operation/settinguser.h"

#include <QScopeGuard>

namespace {

constexpr auto celsius = "CENTIGRADE";
constexpr auto fahrenheit = "FAHRENHEIT";

void columns()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QVariant>("argument");
    QTest::addColumn<QVariantMap>("stored");
    QTest::addColumn<QVariantMap>("after");
}

QTestData &row(const char *list, const QVariant &argument, const char *unit)
{
    return QTest::addRow("%s %s %s", list, qPrintable(argument.toString()), unit)
        << QByteArray(list) << QString(unit) << argument;
}

/// A slot that stores a value of the installation settings.
void row(const char *list, const QVariant &argument, const char *key, const QVariant &value,
         const char *unit = celsius)
{
    row(list, argument, unit) << QVariantMap() << QVariantMap{{installation(key), value}};
}

/// A slot that follows the list, for a document in which the key's value isn't what the list shows.
void position(const char *list, const QVariant &argument, const char *key, const QVariant &stored,
              const QVariant &value)
{
    row(list, argument, celsius) << QVariantMap{{installation(key), stored}}
                                 << QVariantMap{{installation(key), value}};
}

} // namespace

// What the slots of lists store, called with a text or an index that their list doesn't show.
class TestSlotArguments : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        window = std::make_unique<Window>();
        window->speak();
    }
    void cleanupTestCase() { window.reset(); }

    void systemSection_data();
    void systemSection() { section(window->page<InstallationSystemSetting>()); }
    void heatPump_data();
    void heatPump() { part(window->page<InstallationSystemAWHP>(), "R32"); }
    void hydronicModule_data();
    void hydronicModule() { part(window->page<InstallationSystemAquabox>(), "R410"); }
    void hotWater_data();
    void hotWater() { section(window->page<InstallationDWH>()); }
    void cooling_data();
    void cooling() { section(window->page<InstallationCool>()); }
    void heating_data();
    void heating() { section(window->page<InstallationHeat>()); }
    void functionTab_data();
    void functionTab() { tab(window->page<SettingFunction>(), MainDialog::FunctionTab); }
    void userTab_data();
    void userTab() { tab(window->page<SettingUser>(), MainDialog::UserTab); }

private:
    void section(QWidget *page) { part(page, "R32", page); }
    /// For what stands in the system section.
    void part(QWidget *page, const char *refrigerant)
    {
        part(page, refrigerant, window->page<InstallationSystemSetting>());
    }
    void part(QWidget *page, const char *refrigerant, QWidget *opened);
    void tab(QWidget *page, int index);
    void stores(QWidget *page);

    std::unique_ptr<Window> window;
};

void TestSlotArguments::part(QWidget *page, const char *refrigerant, QWidget *opened)
{
    QFETCH(QString, unit);
    window->use(documents::everything(refrigerant), unit);
    window->showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    Window::expand(opened);
    const auto close = qScopeGuard([opened] { Window::expand(opened, false); });
    stores(page);
}

void TestSlotArguments::tab(QWidget *page, int index)
{
    window->use(documents::everything("R32"));
    window->showPage(MainDialog::SettingPage, index);
    stores(page);
}

void TestSlotArguments::stores(QWidget *page)
{
    QFETCH(QByteArray, list);
    QFETCH(QString, unit);
    QFETCH(QVariant, argument);
    QFETCH(QVariantMap, stored);
    QFETCH(QVariantMap, after);
    window->use(documents::with(window->dialog.document(), stored), unit);
    const auto *combo = Window::find<QComboBox>(page, list.constData());
    const bool byText = argument.userType() == QMetaType::QString;
    const QVariant shown = byText ? QVariant(combo->currentText()) : QVariant(combo->currentIndex());
    QVERIFY(argument != shown);
    bool found = false;
    const QVariantMap changes = window->changes([&] {
        found = byText ? QMetaObject::invokeMethod(page, "on_" + list + "_currentTextChanged",
                                                   Q_ARG(QString, argument.toString()))
                       : QMetaObject::invokeMethod(page, "on_" + list + "_currentIndexChanged",
                                                   Q_ARG(int, argument.toInt()));
    });
    QVERIFY(found);
    QCOMPARE(changes, after);
    QCOMPARE(byText ? QVariant(combo->currentText()) : QVariant(combo->currentIndex()), shown);
}

void TestSlotArguments::systemSection_data()
{
    columns();
    row("comboBoxAirTemp", "Remote room sensor", "sensorDefine.airTempLocation", "IDU");
    row("comboWaterRpmDuty", "35%", "pumpRPM.pumpRPMValue", 35);
    row("comboWaterpumpRPM", "1230", "pumpRPM.pumpRPMValue", 123);
    row("comboCnEXT", 2, "digitalInput", "STEP2");
    row("comboCentral", "ab", "cc_address", "AB");
    row("comboModbus", "10", "modbusAddress", 10);
    row("comboModbus", "0a", "modbusAddress", 0);
    row("comboBoxScreedStep", "4", "cement_cure.cmt_step", 4);
    row("comboBoxScreedMaxTemp", "41°C", "cement_cure.cmt_maxTemp", 41);
    row("comboBoxScreedMaxTemp", "104°F", "cement_cure.cmt_maxTemp", 40, fahrenheit);
    row("comboBoxScreedHolding", 11, "cement_cure.cmt_holding", 12);
    row("comboOperationTime", 3, "pumpOperationByForce.ByForceRuntime", 4);
    row("comboOperationPeriod", 5, "pumpOperationByForce.ByForcePeriod", 25);
    position("comboDryContactInstallation", "Installed", "dryContactInstallation", "INSTALL", "IDU");
}

void TestSlotArguments::heatPump_data()
{
    columns();
    row("comboHysterisis", 1, "circuitMainZone.hysterisisMainZone", 1);
    row("comboStep", 2, "smartGrid.smartGridMode", 2);
    row("comboHeaterOnTemperature", "-8°C", "eheater_onoff.heater1_value", -8);
    row("comboHeaterOnTemperature", "64°F", "eheater_onoff.heater1_value", 18, fahrenheit);
    row("comboAntiFreezingTemp", "-15K", "antiFreezeTemp", "STEP2");
    row("comboPreRun", 6, "pumpPreOverRun.preRun", 7);
    row("comboOverRun", 8, "pumpPreOverRun.overRun", 9);
    row("comboDelayTime", 5, "hotWaterTankHeater.tankHeaterDelay", 5);
    row("comboControlTemp", "12°C", "boilerOfThirdParty.thirdPartyTemp", 12);
    row("comboControlTemp", "76°F", "boilerOfThirdParty.thirdPartyTemp", 24, fahrenheit);
    row("combo3rdHysterisis", "9K", "boilerOfThirdParty.thirdPartyHysterisis", 9);
    row("combo3rdHysterisis", "10K", "boilerOfThirdParty.thirdPartyHysterisis", -12, fahrenheit);
    row("comboHeatingPriority", 1, "hotWaterTankHeater.tankHeaterPriority", "HP_BH_BOTH");
    position("comboValveClosingTime", "300s", "circuitMainZone.controlTimeMainZone", 300, 240);
    position("comboControlMode", "Auto", "boilerOfThirdParty.thirdPartyMode", "AUTO", "MANUAL");
}

void TestSlotArguments::hydronicModule_data()
{
    columns();
    row("comboKnightType", "STEP2", "kNightType", "STEP2");
    row("comboWater", "41", "waterFlowRate", 41);
}

void TestSlotArguments::hotWater_data()
{
    columns();
    row("comboHotWaterMin", "35°C", "settempLimit.hotWater.low_limit", 35);
    row("comboHotWaterMin", "90°F", "settempLimit.hotWater.low_limit", 32, fahrenheit);
    row("comboHotWaterMax", "60°C", "settempLimit.hotWater.high_limit", 60);
    row("comboTankWaterMin", "12K", "hotwater_logic.hysterisis", 12);
    row("comboInletWaterMax", "44°C", "hotwater_logic.compMaxTemp", 44);
    row("comboTankHeatingHysterisis", "4K", "hotwater_addData.hysterisis", 4);
    row("comboTankHeatingHysterisis", "10K", "hotwater_addData.hysterisis", -12, fahrenheit);
    row("comboHeatingDurationTime", 0, "hotwater_timer.maintain_time", 1);
    row("comboStopDurationTime", 7, "hotwater_timer.restrict_time", 7);
    row("comboHeatPump", "STEP2", "waterThermoOnOff", "STEP2");
    row("comboSchedule1", 2, "disinfect_time.day", 2);
    row("comboSchedule2", 8, "disinfect_time.start", 8);
    row("comboMaxTemp", "75°C", "disinfect_data.maxTemp", 75);
    row("comboMaxTempDuration", 0, "disinfect_data.howLong", 5);
    row("comboCutOffDuration", 4, "disinfect_data.cutOffTime", 5);
}

void TestSlotArguments::cooling_data()
{
    columns();
    row("comboForcerWater", "20°C", "UFH_stop.watertemp", 20);
    row("comboTemperatureIndoorMin", "19°C", "settempLimit.coolAir.low_limit", 19);
    row("comboTemperatureIndoorMax", "26°C", "settempLimit.coolAir.high_limit", 26);
    row("comboTNIndoorAirTemp", "STEP2", "coolAirThermoOnOff", "STEP2");
    row("comboTNIndoorWaterTemp", "STEP1", "coolWaterThermoOnOff", "STEP1");
    row("comboWaterPumpOnTimer", 11, "pumpOperOptionInCool.timeOn", 12);
    row("comboWaterPumpOffTimer", 6, "pumpOperOptionInCool.time", 7);
}

void TestSlotArguments::heating_data()
{
    columns();
    row("comboTemperatureIndoorMin", "19°C", "settempLimit.heatAir.low_limit", 19);
    row("comboTemperatureIndoorMax", "26°C", "settempLimit.heatAir.high_limit", 26);
    row("comboTNIndoorAirTemp", "STEP2", "typeOfHeat_Air_thermo", "STEP2");
    row("comboTNIndoorWaterTemp", "STEP1", "typeOfHeat_Water_thermo", "STEP1");
    row("comboWaterPumpOnTimer", 11, "pumpOperOptionInHeat.timeOn", 12);
    row("comboWaterPumpOffTimer", 6, "pumpOperOptionInHeat.time", 7);
}

void TestSlotArguments::functionTab_data()
{
    columns();
    const QString timer = QStringLiteral("SettingInfo.func.silentTimer.");
    const auto tabRow = [](const char *list, const char *text, const QVariantMap &after) {
        row(list, text, celsius) << QVariantMap() << after;
    };
    tabRow("comboSilentStartHour", "15", {{timer + "start.hour", 3}});
    tabRow("comboSilentStartMin", "17", {{timer + "start.min", 17}});
    tabRow("comboSilentEndHour", "20", {{timer + "end.hour", 8}, {timer + "end.ampm", "PM"}});
    tabRow("comboSilentEndMin", "05", {{timer + "end.min", 5}});
    tabRow("comboDefrostMode", "STEP2", {{"SettingInfo.func.installDefrostMode", "STEP2"}});
}

void TestSlotArguments::userTab_data()
{
    columns();
    const auto tabRow = [](const char *list, const char *text, const char *key, const QVariant &value) {
        row(list, text, celsius) << QVariantMap()
                                 << QVariantMap{{QStringLiteral("SettingInfo.user.") + key, value}};
    };
    tabRow("comboScreenSaverTimer", "60s", "backlightControl.dimmTimeSet", "BACKLIGHT60S");
    tabRow("comboBrightness", "70%", "backlightControl.brightness", "BRIGHTNESS70");
    tabRow("comboDateYear", "2024", "DateInfo.year", 2024);
    tabRow("comboDateDay", "6", "DateInfo.mday", 6);
    tabRow("comboStartDay", "7", "summerTime.start.day", 7);
    tabRow("comboEndDay", "9", "summerTime.end.day", 9);
}

CALORA_TEST_MAIN(TestSlotArguments)
#include "tst_slotarguments.moc"
