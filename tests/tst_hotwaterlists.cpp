#include "support/hotwatersection.h"

namespace {

const QVariantMap everything = HotWaterSection::everything();

QString at(const char *key) { return HotWaterSection::at(key); }

} // namespace

// The hot water section's lists before a language change, and which of its groups are offered. What its lists
// hold is held in walk/tst_controls.cpp and, for all words, in core/tst_ranges.cpp.
class TestHotWaterLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { section = std::make_unique<HotWaterSection>(); }
    void init() { section->reset(); }
    void cleanupTestCase() { section.reset(); }

    void startsWithUntranslatedLists();
    void defaultDocumentsShowNothing_data();
    void defaultDocumentsShowNothing();
    void groupsFollowTheFlags_data();
    void groupsFollowTheFlags();
    void disinfectionIsOffered_data();
    void disinfectionIsOffered();

private:
    std::unique_ptr<HotWaterSection> section;
};

void TestHotWaterLists::startsWithUntranslatedLists()
{
    QVERIFY(Window::invoke(section->page, "initUi"));
    QCOMPARE(section->items("comboHeatingDurationTime"), range(5, 95, "", 5));
    QCOMPARE(section->items("comboStopDurationTime"), range(0, 600, "", 30));
    QCOMPARE(section->items("comboHeatPump"), (QStringList{"STEP0", "STEP1", "STEP2", "STEP3"}));
    QCOMPARE(section->items("comboSchedule1"),
             (QStringList{"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"}));
    QCOMPARE(section->items("comboMaxTempDuration"), range(5, 60, "min", 5));
    QCOMPARE(section->items("comboCutOffDuration"), range(1, 12, "hour"));
}

void TestHotWaterLists::defaultDocumentsShowNothing_data()
{
    QTest::addColumn<QString>("refrigerant");
    QTest::newRow("R32") << "R32";
    QTest::newRow("R410") << "R410";
}

void TestHotWaterLists::defaultDocumentsShowNothing()
{
    QFETCH(QString, refrigerant);
    section->load({}, QStringLiteral("CENTIGRADE"), refrigerant);
    for (const char *group : {"groupBoxHotWater", "groupBoxTankWaterTemp", "groupBoxTankHeating",
                              "groupBoxHeatingOperationTimer", "groupBoxHeatPump", "groupBoxDisinfection"}) {
        QVERIFY2(!section->offered(group), group);
    }
    QVERIFY(section->window.dialog.members().results.dwhSectionValid);
}

void TestHotWaterLists::groupsFollowTheFlags_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *tag, const QVariantMap &values, const char *shown) {
        QTest::newRow(tag) << values << QString(shown);
    };
    row("everything", everything,
        "groupBoxHotWater groupBoxTankWaterTemp groupBoxTankHeating groupBoxHeatingOperationTimer "
        "groupBoxHeatPump groupBoxCutOff");
    row("hot water, lower case", {{"IduFuncList.is_hotwater", "set"}},
        "groupBoxHotWater groupBoxTankWaterTemp groupBoxTankHeating groupBoxCutOff");
    row("no tank heater", {{"IduFuncList.isHotwaterTankHeaterUse", "CLR"}}, "");
    row("thermo alone", {{"IduFuncList.is_waterthermoonoff", "set"}}, "groupBoxHeatPump groupBoxCutOff");
    row("timer without hot water", {{"IduFuncList.is_timer_hotwater", "SET"}}, "groupBoxCutOff");
    row("timer, booster only",
        {{"IduFuncList.is_hotwater", "SET"},
         {"IduFuncList.is_timer_hotwater", "SET"},
         {"IduFuncList.is_boosterht_onlyMode", "SET"}},
        "groupBoxHotWater groupBoxTankWaterTemp groupBoxTankHeating groupBoxCutOff");
    row("timer, booster unknown",
        {{"IduFuncList.is_hotwater", "SET"},
         {"IduFuncList.is_timer_hotwater", "SET"},
         {"IduFuncList.is_boosterht_onlyMode", QVariant()}},
        "groupBoxHotWater groupBoxTankWaterTemp groupBoxTankHeating groupBoxCutOff");
}

void TestHotWaterLists::groupsFollowTheFlags()
{
    QFETCH(QVariantMap, values);
    QFETCH(QString, shown);
    section->load(values);
    QStringList found;
    for (const char *group : {"groupBoxHotWater", "groupBoxTankWaterTemp", "groupBoxTankHeating",
                              "groupBoxHeatingOperationTimer", "groupBoxHeatPump", "groupBoxCutOff"}) {
        if (section->offered(group)) {
            found.append(QLatin1String(group));
        }
    }
    QCOMPARE(found.join(QLatin1Char(' ')), shown);
}

void TestHotWaterLists::disinfectionIsOffered_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<bool>("expected");
    // is_hotwater, isDisableDisinfect, isHotwaterTankHeaterUse, tankHeaterUse, hsSetting
    QTest::newRow("heater on") << QStringList{"SET", "CLR", "SET", "BH_USE", "CLR"} << true;
    QTest::newRow("heater for disinfection")
        << QStringList{"SET", "CLR", "SET", "only_disinfect", "CLR"} << true;
    QTest::newRow("heater off") << QStringList{"SET", "CLR", "SET", "NOTUSE", "CLR"} << false;
    QTest::newRow("heater off, HS") << QStringList{"SET", "CLR", "SET", "NOTUSE", "SET"} << false;
    QTest::newRow("no heater") << QStringList{"SET", "CLR", "CLR", "NOTUSE", "CLR"} << true;
    QTest::newRow("disabled") << QStringList{"SET", "SET", "SET", "BH_USE", "CLR"} << false;
    QTest::newRow("disabled, HS") << QStringList{"SET", "SET", "SET", "NOTUSE", "SET"} << true;
    QTest::newRow("unknown, HS") << QStringList{"set", "", "SET", "NOTUSE", "set"} << true;
    QTest::newRow("no hot water") << QStringList{"CLR", "CLR", "SET", "BH_USE", "SET"} << false;
    QTest::newRow("no hot water, disabled, HS") << QStringList{"CLR", "SET", "SET", "BH_USE", "SET"} << false;
}

void TestHotWaterLists::disinfectionIsOffered()
{
    QFETCH(QStringList, words);
    QFETCH(bool, expected);
    section->load({{"IduFuncList.is_hotwater", words.at(0)},
                   {"IduFuncList.isDisableDisinfect", words.at(1)},
                   {"IduFuncList.isHotwaterTankHeaterUse", words.at(2)},
                   {at("hotWaterTankHeater.tankHeaterUse"), words.at(3)},
                   {at("hsSetting"), words.at(4)}});
    QCOMPARE(section->offered("groupBoxDisinfection"), expected);
}

CALORA_TEST_MAIN(TestHotWaterLists)
#include "tst_hotwaterlists.moc"
