#include "support/systemsection.h"

#include "pages/installation/installationsystemawhp.h"

namespace {

const QString secondCircuit = installation("circuitMainZone.enableMainZone");
const QString hysteresis = installation("circuitMainZone.hysterisisMainZone");
const QString antiFreeze = installation("antiFreezeTemp");
const QString heaterOn = installation("eheater_onoff.heater1_value");
const QString boilerUse = installation("boilerOfThirdParty.thirdPartyUse");
const QString boilerMode = installation("boilerOfThirdParty.thirdPartyMode");
const QString tankHeater = installation("hotWaterTankHeater.tankHeaterUse");

QStringList delays(const QString &suffix)
{
    return QStringList{"10", "20", "30", "40", "50", "60", "90", "120", "1440"}.replaceInStrings(QRegExp("$"),
                                                                                                 suffix);
}

} // namespace

// Each control of the heat pump section: its text, its list, what it writes and what it shows.
class TestInstallationAwhpValues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        section = std::make_unique<SystemSection>();
        awhp = section->window.page<InstallationSystemAWHP>();
    }
    void cleanupTestCase() { section.reset(); }

    void languageKeepsPositions();
    void lists_data();
    void lists();
    void listsBeforeTheLanguage();
    void listsInFahrenheit();
    void heaterOnTemperatureFollowsItsFlag();
    void writes_data();
    void writes();
    void writesInFahrenheit_data();
    void writesInFahrenheit();
    void lastHysteresisInFahrenheitIsFive();
    void openingWritesTheAntiFreezeStep_data();
    void openingWritesTheAntiFreezeStep();
    void showsValues_data();
    void showsValues();
    void showsValuesInFahrenheit_data();
    void showsValuesInFahrenheit();
    void checksRadios_data();
    void checksRadios();
    void valuesOfHiddenGroupsAreNotLoaded();

private:
    /// Loads the section in a closed system section, so that nothing is written back.
    void load(const QVariantMap &values = {}, const char *refrigerant = "R32",
              const QString &unit = QStringLiteral("CENTIGRADE"))
    {
        section->load(values, refrigerant, unit);
        Window::invoke(section->page, "refreshAwhpWidget");
        messages::clear();
    }
    void open() { Window::expand(section->page); }
    QString shown(const char *combo) const { return Window::shown(awhp, combo); }

    std::unique_ptr<SystemSection> section;
    InstallationSystemAWHP *awhp = nullptr;
    const QString full = QStringLiteral("color : #555555;");
};

void TestInstallationAwhpValues::languageKeepsPositions()
{
    load(documents::joined(heatPumpGroups(),
                           {{secondCircuit, "SET"},
                            {boilerUse, "SET"},
                            {boilerMode, "AUTO"},
                            {installation("hotWaterTankHeater.tankHeaterPriority"), "HP_BH_BOTH"},
                            {installation("smartGrid.smartGridMode"), 2},
                            {installation("pumpPreOverRun.preRun"), 4},
                            {installation("pumpPreOverRun.overRun"), 5}}));
    open();
    QStringList texts;
    const QVariantMap changes = section->window.changes([this] { section->window.speak("~"); });
    for (const char *combo : {"comboHeatingPriority", "comboControlMode", "comboValveClosingTime",
                              "comboPreRun", "comboOverRun", "comboDelayTime", "comboStep"}) {
        texts.append(shown(combo));
    }
    section->window.speak();
    QCOMPARE(changes, QVariantMap());
    QCOMPARE(texts, (QStringList{"Boost heater~", "Auto~", "240s~", "4min~", "5min~", "30min~", "STEP2~"}));
}

void TestInstallationAwhpValues::lists_data()
{
    QTest::addColumn<QStringList>("items");
    QTest::newRow("comboValveClosingTime") << range(60, 999, "s");
    QTest::newRow("comboHysterisis") << range(1, 5, "K");
    QTest::newRow("comboStep") << QStringList{"STEP0", "STEP1", "STEP2"};
    QTest::newRow("comboHeaterOnTemperature") << range(-25, 18, "°C");
    QTest::newRow("comboHeatingPriority") << QStringList{"Heat pump", "Boost heater"};
    QTest::newRow("comboDelayTime") << delays("min");
    QTest::newRow("comboAntiFreezingTemp") << QStringList{"-25K", "-20K", "-15K", "-10K", "-5K"};
    QTest::newRow("comboPreRun") << range(1, 10, "min");
    QTest::newRow("comboOverRun") << range(1, 10, "min");
    QTest::newRow("comboControlMode") << QStringList{"Manual", "Auto"};
    QTest::newRow("comboControlTemp") << range(-25, 25, "°C");
    QTest::newRow("combo3rdHysterisis") << range(2, 10, "K");
}

void TestInstallationAwhpValues::lists()
{
    QFETCH(QStringList, items);
    load();
    QCOMPARE(Window::items(awhp, QTest::currentDataTag()), items);
}

void TestInstallationAwhpValues::listsBeforeTheLanguage()
{
    load();
    Window::invoke(awhp, "initUi");
    const std::vector<std::pair<const char *, QStringList>> expected{
        {"comboValveClosingTime", range(60, 999, "s")}, {"comboPreRun", range(1, 10, "min")},
        {"comboOverRun", range(1, 10, "min")},          {"comboDelayTime", delays("min")},
        {"comboStep", {"STEP0", "STEP1", "STEP2"}},     {"comboHeatingPriority", {"Cycle", "Cycle_Heater"}},
        {"comboControlMode", {"Manual", "Auto"}},       {"comboHysterisis", range(1, 5, "K")}};
    for (const auto &[combo, items] : expected) {
        QCOMPARE(Window::items(awhp, combo), items);
    }
    section->window.speak();
    QCOMPARE(Window::items(awhp, "comboHeatingPriority"), (QStringList{"Heat pump", "Boost heater"}));
}

void TestInstallationAwhpValues::listsInFahrenheit()
{
    load({}, "R32", "FAHRENHEIT");
    QCOMPARE(Window::items(awhp, "comboHysterisis"), (QStringList{"2ºF", "4ºF", "6ºF", "8ºF"}));
    QCOMPARE(Window::items(awhp, "comboHysterisis").constFirst().at(1), QChar(0x00BA));
    QCOMPARE(Window::items(awhp, "comboHeaterOnTemperature"), range(-12, 64, "°F", 2));
    QCOMPARE(Window::items(awhp, "comboControlTemp"), range(-12, 76, "°F", 2));
    QCOMPARE(Window::items(awhp, "combo3rdHysterisis"), range(2, 10, "K"));
    QCOMPARE(Window::items(awhp, "comboAntiFreezingTemp").constFirst(), QStringLiteral("-25K"));
}

void TestInstallationAwhpValues::heaterOnTemperatureFollowsItsFlag()
{
    load({}, "R410");
    QCOMPARE(Window::items(awhp, "comboHeaterOnTemperature"), range(-15, 18, "°C"));
    load({{flag("isR410CoolExpand"), "set"}}, "R410");
    QCOMPARE(Window::items(awhp, "comboHeaterOnTemperature"), range(-25, 18, "°C"));
}

void TestInstallationAwhpValues::writes_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("item");
    QTest::addColumn<QVariantMap>("before");
    QTest::addColumn<QVariantMap>("after");
    const auto row = [](const char *control, const char *item, const QVariantMap &before,
                        const QVariantMap &after) {
        QTest::addRow("%s %s", control, item) << QByteArray(control) << QString(item) << before << after;
    };
    const auto pair = [row](const char *first, const char *second, const QString &path) {
        row(first, "", {{path, "SET"}}, {{path, "CLR"}});
        row(second, "", {{path, "CLR"}}, {{path, "SET"}});
    };
    pair("radio2ndNotuse", "radio2ndUse", secondCircuit);
    pair("radioSgNotuse", "radioSgUse", installation("smartGrid.smartGridUse"));
    pair("radioHeaterPriorityNotuse", "radioHeaterPriorityUse", installation("EH_BH_priority"));
    pair("radioExternalPumpNotuse", "radioExternalPumpUse", installation("extWaterPump"));
    pair("radio3rdNotUse", "radio3rdUse", boilerUse);

    const QVariantMap circuit{{secondCircuit, "SET"}};
    row("comboValveClosingTime", "999s", circuit,
        {{installation("circuitMainZone.controlTimeMainZone"), 999}});
    row("comboValveClosingTime", "60s", circuit, {{installation("circuitMainZone.controlTimeMainZone"), 60}});
    row("comboHysterisis", "1K", circuit, {{hysteresis, 0}});
    row("comboHysterisis", "5K", circuit, {{hysteresis, 4}});
    row("comboStep", "STEP2", {{installation("smartGrid.smartGridUse"), "SET"}},
        {{installation("smartGrid.smartGridMode"), 2}});
    row("comboHeaterOnTemperature", "-25°C", {}, {{heaterOn, -25}});
    row("comboHeaterOnTemperature", "18°C", {}, {{heaterOn, 18}});
    const QString priority = installation("hotWaterTankHeater.tankHeaterPriority");
    row("comboHeatingPriority", "Boost heater", {}, {{priority, "HP_BH_BOTH"}});
    row("comboHeatingPriority", "Heat pump", {{priority, "HP_BH_BOTH"}}, {{priority, "HP_ONLY"}});
    row("comboDelayTime", "1440min", {}, {{installation("hotWaterTankHeater.tankHeaterDelay"), 8}});
    row("comboAntiFreezingTemp", "-25K", {}, {{antiFreeze, "STEP4"}});
    row("comboAntiFreezingTemp", "-20K", {}, {{antiFreeze, "STEP3"}});
    row("comboAntiFreezingTemp", "-15K", {}, {{antiFreeze, "STEP2"}});
    row("comboAntiFreezingTemp", "-10K", {}, {{antiFreeze, "STEP1"}});
    row("comboAntiFreezingTemp", "-5K", {{antiFreeze, "STEP3"}}, {{antiFreeze, "STEP0"}});
    row("comboPreRun", "10min", {}, {{installation("pumpPreOverRun.preRun"), 10}});
    row("comboOverRun", "2min", {}, {{installation("pumpPreOverRun.overRun"), 2}});
    const QVariantMap boiler{{boilerUse, "SET"}, {boilerMode, "AUTO"}};
    row("comboControlMode", "Auto", {{boilerUse, "SET"}}, {{boilerMode, "AUTO"}});
    row("comboControlMode", "Manual", boiler, {{boilerMode, "MANUAL"}});
    row("comboControlTemp", "-25°C", boiler, {{installation("boilerOfThirdParty.thirdPartyTemp"), -25}});
    row("combo3rdHysterisis", "10K", boiler, {{installation("boilerOfThirdParty.thirdPartyHysterisis"), 10}});
}

void TestInstallationAwhpValues::writes()
{
    QFETCH(QByteArray, control);
    QFETCH(QString, item);
    QFETCH(QVariantMap, before);
    QFETCH(QVariantMap, after);
    load(documents::joined(heatPumpGroups(), before));
    open();
    messages::clear();
    QCOMPARE(section->window.changes([&] {
        if (item.isEmpty()) {
            Window::click(awhp, control.constData());
        } else {
            Window::choose(awhp, control.constData(), item);
        }
    }),
             after);
    QVERIFY(messages::contain("InstallationSystemSetting::validationCheck succeed"));
    QVERIFY(section->members().results.systemSectionValid);
}

void TestInstallationAwhpValues::writesInFahrenheit_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("item");
    QTest::addColumn<QVariantMap>("after");
    const auto row = [](const char *control, const char *item, const QVariantMap &after) {
        QTest::addRow("%s %s", control, item) << QByteArray(control) << QString(item) << after;
    };
    row("comboHeaterOnTemperature", "64°F", {{heaterOn, 18}});
    row("comboHeaterOnTemperature", "-12°F", {{heaterOn, -25}});
    row("comboControlTemp", "76°F", {{installation("boilerOfThirdParty.thirdPartyTemp"), 24}});
    // The differences in K go through the table of temperatures as well.
    row("combo3rdHysterisis", "10K", {{installation("boilerOfThirdParty.thirdPartyHysterisis"), -12}});
    row("comboAntiFreezingTemp", "-10K", {{antiFreeze, ""}});
    row("comboHysterisis", "8ºF", {{hysteresis, 3}});
}

void TestInstallationAwhpValues::writesInFahrenheit()
{
    QFETCH(QByteArray, control);
    QFETCH(QString, item);
    QFETCH(QVariantMap, after);
    load(documents::joined(
             heatPumpGroups(),
             {{secondCircuit, "SET"}, {boilerUse, "SET"}, {boilerMode, "AUTO"}, {antiFreeze, "STEP4"}}),
         "R32", "FAHRENHEIT");
    open();
    QCOMPARE(section->window.changes([&] { Window::choose(awhp, control.constData(), item); }), after);
}

// The list in °F has no such item, but its step stands for 5 all the same.
void TestInstallationAwhpValues::lastHysteresisInFahrenheitIsFive()
{
    load({}, "R32", "FAHRENHEIT");
    open();
    QCOMPARE(section->window.changes([this] {
        QMetaObject::invokeMethod(awhp, "on_comboHysterisis_currentIndexChanged", Q_ARG(int, 4));
    }),
             (QVariantMap{{hysteresis, 5}}));
}

void TestInstallationAwhpValues::openingWritesTheAntiFreezeStep_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QVariantMap>("written");
    const QVariantMap lost{{antiFreeze, ""}};
    for (const char *step : {"STEP0", "STEP1", "STEP2", "STEP3"}) {
        QTest::addRow("%s in °F", step) << "FAHRENHEIT" << step << lost;
        QTest::addRow("%s in °C", step) << "CENTIGRADE" << step << QVariantMap();
    }
    QTest::newRow("first item in °F") << "FAHRENHEIT"
                                      << "STEP4" << QVariantMap();
    QTest::newRow("no item in °C") << "CENTIGRADE"
                                   << "STEP5" << lost;
}

// The show of the opened section fills the list, which leaves its first item chosen, and selects with the
// signals live. In °F no item reads as a listed number.
void TestInstallationAwhpValues::openingWritesTheAntiFreezeStep()
{
    QFETCH(QString, unit);
    QFETCH(QString, stored);
    QFETCH(QVariantMap, written);
    for (const char *refrigerant : {"R32", "R410"}) {
        section->load({{antiFreeze, stored}}, refrigerant, unit);
        QCOMPARE(section->window.changes([this] { open(); }), written);
    }
}

void TestInstallationAwhpValues::showsValues_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *control, const QVariantMap &values, const char *text) {
        QTest::addRow("%s %s", control, name) << QByteArray(control) << values << QString(text);
    };
    const QString closing = installation("circuitMainZone.controlTimeMainZone");
    row("default", "comboValveClosingTime", {}, "240s");
    row("last", "comboValveClosingTime", {{closing, 999}}, "999s");
    row("unlisted", "comboValveClosingTime", {{closing, 59}}, "60s");
    row("default", "comboHysterisis", {}, "3K");
    row("no item", "comboHysterisis", {{hysteresis, 5}}, "");
    row("value", "comboStep", {{installation("smartGrid.smartGridMode"), 1}}, "STEP1");
    row("default", "comboHeaterOnTemperature", {}, "-5°C");
    row("too high", "comboHeaterOnTemperature", {{heaterOn, 30}}, "18°C");
    row("too low", "comboHeaterOnTemperature", {{heaterOn, -30}}, "-25°C");
    const QString priority = installation("hotWaterTankHeater.tankHeaterPriority");
    row("default", "comboHeatingPriority", {}, "Heat pump");
    row("both", "comboHeatingPriority", {{priority, "hp_bh_both"}}, "Boost heater");
    row("default", "comboDelayTime", {}, "30min");
    row("last", "comboDelayTime", {{installation("hotWaterTankHeater.tankHeaterDelay"), 8}}, "1440min");
    row("default", "comboAntiFreezingTemp", {}, "-5K");
    row("last", "comboAntiFreezingTemp", {{antiFreeze, "STEP4"}}, "-25K");
    row("empty", "comboAntiFreezingTemp", {{antiFreeze, ""}}, "-5K");
    row("unlisted", "comboAntiFreezingTemp", {{antiFreeze, "STEP5"}}, "");
    row("value", "comboPreRun", {{installation("pumpPreOverRun.preRun"), 7}}, "7min");
    row("value", "comboOverRun", {{installation("pumpPreOverRun.overRun"), 10}}, "10min");
    row("unlisted", "comboOverRun", {{installation("pumpPreOverRun.overRun"), 11}}, "");
    row("auto", "comboControlMode", {{boilerUse, "SET"}, {boilerMode, "x"}}, "Auto");
    row("manual", "comboControlMode", {{boilerUse, "set"}, {boilerMode, "manual"}}, "Manual");
    row("default", "comboControlTemp", {}, "-7°C");
    row("value", "comboControlTemp", {{installation("boilerOfThirdParty.thirdPartyTemp"), 25}}, "25°C");
    row("default", "combo3rdHysterisis", {}, "4K");
    row("too high", "combo3rdHysterisis", {{installation("boilerOfThirdParty.thirdPartyHysterisis"), 11}},
        "10K");
}

void TestInstallationAwhpValues::showsValues()
{
    QFETCH(QByteArray, control);
    QFETCH(QVariantMap, values);
    QFETCH(QString, text);
    load(values);
    QCOMPARE(shown(control.constData()), text);
    QCOMPARE(section->document(), documents::with(documents::standard("R32"), values));
    // Another word leaves the priority as it is.
    load({{installation("hotWaterTankHeater.tankHeaterPriority"), "HP_BH_BOTH"}});
    load({{installation("hotWaterTankHeater.tankHeaterPriority"), "x"}});
    QCOMPARE(shown("comboHeatingPriority"), QStringLiteral("Boost heater"));
}

void TestInstallationAwhpValues::showsValuesInFahrenheit_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("text");
    QTest::newRow("hysteresis") << QByteArray("comboHysterisis") << QVariantMap() << "6ºF";
    // The index beyond the list that stands for 5.
    QTest::newRow("hysteresis 5") << QByteArray("comboHysterisis") << QVariantMap{{hysteresis, 5}} << "";
    QTest::newRow("heater") << QByteArray("comboHeaterOnTemperature") << QVariantMap() << "22°F";
    QTest::newRow("boiler") << QByteArray("comboControlTemp") << QVariantMap() << "20°F";
    QTest::newRow("boiler hysteresis") << QByteArray("combo3rdHysterisis") << QVariantMap() << "4K";
}

void TestInstallationAwhpValues::showsValuesInFahrenheit()
{
    QFETCH(QByteArray, control);
    QFETCH(QVariantMap, values);
    QFETCH(QString, text);
    load(values, "R32", "FAHRENHEIT");
    QCOMPARE(shown(control.constData()), text);
}

void TestInstallationAwhpValues::checksRadios_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QStringList>("radios");
    QTest::addColumn<QString>("checked");
    const auto row = [](const QString &path, const char *word, const QStringList &radios,
                        const char *checked) {
        QTest::addRow("%s %s", qPrintable(radios.first()), word) << path << word << radios << checked;
    };
    const auto pair = [row](const QString &path, const char *first, const char *second) {
        row(path, "clr", {first, second}, first);
        row(path, "SET", {first, second}, second);
        row(path, "x", {first, second}, "");
    };
    pair(secondCircuit, "radio2ndNotuse", "radio2ndUse");
    pair(installation("smartGrid.smartGridUse"), "radioSgNotuse", "radioSgUse");
    pair(installation("extWaterPump"), "radioExternalPumpNotuse", "radioExternalPumpUse");
    pair(boilerUse, "radio3rdNotUse", "radio3rdUse");
    const QStringList priority{"radioHeaterPriorityNotuse", "radioHeaterPriorityUse"};
    row(installation("EH_BH_priority"), "CLR", priority, "radioHeaterPriorityNotuse");
    row(installation("EH_BH_priority"), "set", priority, "radioHeaterPriorityUse");
    // This pair stays as it was.
    row(installation("EH_BH_priority"), "x", priority, "radioHeaterPriorityNotuse");
    const QStringList tank{"radioWaterTankHeaterNotuse", "radioWaterTankHeaterUse",
                           "radioWaterTankHeaterMode"};
    row(tankHeater, "NOTUSE", tank, "radioWaterTankHeaterNotuse");
    row(tankHeater, "bh_use", tank, "radioWaterTankHeaterUse");
    row(tankHeater, "ONLY_DISINFECT", tank, "radioWaterTankHeaterMode");
    row(tankHeater, "x", tank, "");
}

void TestInstallationAwhpValues::checksRadios()
{
    QFETCH(QString, path);
    QFETCH(QString, word);
    QFETCH(QStringList, radios);
    QFETCH(QString, checked);
    load(heatPumpGroups());
    load(documents::joined(heatPumpGroups(), {{path, word}}));
    for (const QString &radio : qAsConst(radios)) {
        QCOMPARE(Window::checked(awhp, qPrintable(radio)), radio == checked);
    }
}

void TestInstallationAwhpValues::valuesOfHiddenGroupsAreNotLoaded()
{
    load(heatPumpGroups());
    QVariantMap values{{installation("smartGrid.smartGridUse"), "SET"},
                       {installation("EH_BH_priority"), "SET"},
                       {tankHeater, "NOTUSE"},
                       {installation("extWaterPump"), "SET"},
                       {boilerUse, "SET"}};
    for (const QString &group : heatPumpGroups().keys()) {
        values.insert(group, "CLR");
    }
    load(values);
    for (const char *radio : {"radioSgNotuse", "radioHeaterPriorityNotuse", "radioWaterTankHeaterUse",
                              "radioExternalPumpNotuse", "radio3rdNotUse"}) {
        QVERIFY2(Window::checked(awhp, radio), radio);
    }
}

CALORA_TEST_MAIN(TestInstallationAwhpValues)
#include "tst_installationawhpvalues.moc"
