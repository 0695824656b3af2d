#include "support/systemsection.h"

#include "pages/installation/installationsystemawhp.h"

namespace {

const QString secondCircuit = installation("circuitMainZone.enableMainZone");
const QString hysteresis = installation("circuitMainZone.hysterisisMainZone");
const QString antiFreeze = installation("antiFreezeTemp");
const QString boilerUse = installation("boilerOfThirdParty.thirdPartyUse");
const QString boilerMode = installation("boilerOfThirdParty.thirdPartyMode");
const QString tankHeater = installation("hotWaterTankHeater.tankHeaterUse");

QStringList delays(const QString &suffix)
{
    return QStringList{"10", "20", "30", "40", "50", "60", "90", "120", "1440"}.replaceInStrings(QRegExp("$"),
                                                                                                 suffix);
}

} // namespace

// The heat pump section's lists before and after a language change, and values that it takes otherwise. What
// each control lists, writes and shows is held in walk/tst_controls.cpp.
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
    void listsBeforeTheLanguage();
    void heaterOnTemperatureFollowsItsFlag();
    void lastHysteresisInFahrenheitIsFive();
    void openingWritesTheAntiFreezeStep_data();
    void openingWritesTheAntiFreezeStep();
    void otherWordLeavesThePriority();
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

void TestInstallationAwhpValues::heaterOnTemperatureFollowsItsFlag()
{
    load({}, "R410");
    QCOMPARE(Window::items(awhp, "comboHeaterOnTemperature"), range(-15, 18, "°C"));
    load({{flag("isR410CoolExpand"), "set"}}, "R410");
    QCOMPARE(Window::items(awhp, "comboHeaterOnTemperature"), range(-25, 18, "°C"));
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

void TestInstallationAwhpValues::otherWordLeavesThePriority()
{
    load({{installation("hotWaterTankHeater.tankHeaterPriority"), "HP_BH_BOTH"}});
    load({{installation("hotWaterTankHeater.tankHeaterPriority"), "x"}});
    QCOMPARE(shown("comboHeatingPriority"), QStringLiteral("Boost heater"));
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
