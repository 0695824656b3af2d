#include "support/hotwatersection.h"

#include "rules/hotwaterranges.h"

Q_DECLARE_METATYPE(hotwater::Words)

namespace {

const QVariantMap everything = HotWaterSection::everything();

QString at(const char *key) { return HotWaterSection::at(key); }

} // namespace

// What the lists of the hot water section hold, and which of its groups are offered.
class TestHotWaterLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { section = std::make_unique<HotWaterSection>(); }
    void init() { section->reset(); }
    void cleanupTestCase() { section.reset(); }

    void startsWithUntranslatedLists();
    void fixedLists_data();
    void fixedLists();
    void targetRanges_data();
    void targetRanges();
    void limitOfTheCompressor_data();
    void limitOfTheCompressor();
    void rangesFollowTheDocument_data();
    void rangesFollowTheDocument();
    void fahrenheitLists();
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

void TestHotWaterLists::fixedLists_data()
{
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("comboHeatingDurationTime") << range(5, 95, "min", 5);
    QTest::newRow("comboStopDurationTime") << range(0, 600, "min", 30);
    QTest::newRow("comboHeatPump") << QStringList{"STEP0", "STEP1", "STEP2", "STEP3"};
    QTest::newRow("comboSchedule1") << QStringList{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    QTest::newRow("comboSchedule2") << QStringList{"00:00", "01:00", "02:00", "03:00", "04:00", "05:00",
                                                   "06:00", "07:00", "08:00", "09:00", "10:00", "11:00",
                                                   "12:00", "13:00", "14:00", "15:00", "16:00", "17:00",
                                                   "18:00", "19:00", "20:00", "21:00", "22:00", "23:00"};
    QTest::newRow("comboMaxTempDuration") << range(5, 60, "min", 5);
    QTest::newRow("comboCutOffDuration") << range(1, 12, "Hour");
    QTest::newRow("comboTankHeatingHysterisis") << QStringList{"2K", "3K", "4K"};
}

void TestHotWaterLists::fixedLists()
{
    QFETCH(QStringList, expected);
    QCOMPARE(section->items(QTest::currentDataTag()), expected);
}

void TestHotWaterLists::targetRanges_data()
{
    using hotwater::Words;
    QTest::addColumn<Words>("words");
    QTest::addColumn<int>("lowUpper");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    // product, isCoolTempMin5, isHotwaterTankHeaterUse, isHsModel, isR32, tankHeaterUse
    QTest::newRow("awhp, heater off, R32")
        << Words{"AWHP", "SET", "SET", "CLR", "SET", "NOTUSE"} << 40 << 50 << 55;
    QTest::newRow("awhp, heater off, R410")
        << Words{"AWHP", "SET", "SET", "CLR", "CLR", "NOTUSE"} << 40 << 50 << 50;
    QTest::newRow("awhp, disinfection only, R32")
        << Words{"AWHP", "CLR", "SET", "CLR", "SET", "ONLY_DISINFECT"} << 45 << 50 << 55;
    QTest::newRow("awhp, disinfection only, no word")
        << Words{"AWHP", "", "SET", "", "", "ONLY_DISINFECT"} << 40 << 50 << 50;
    QTest::newRow("awhp, heater on") << Words{"AWHP", "CLR", "SET", "CLR", "CLR", "BH_USE"} << 45 << 50 << 80;
    QTest::newRow("awhp, heater unknown") << Words{"AWHP", "SET", "SET", "CLR", "SET", ""} << 40 << 50 << 80;
    QTest::newRow("awhp, no heater") << Words{"AWHP", "SET", "CLR", "CLR", "SET", "NOTUSE"} << 40 << 50 << 80;
    QTest::newRow("awhp, flag missing") << Words{"AWHP", "SET", "", "CLR", "CLR", "NOTUSE"} << 40 << 50 << 80;
    QTest::newRow("aquabox, HS") << Words{"AQUABOX", "SET", "CLR", "SET", "CLR", "BH_USE"} << 40 << 55 << 55;
    QTest::newRow("aquabox, no HS") << Words{"AQUABOX", "SET", "CLR", "CLR", "SET", "NOTUSE"} << 40 << 50
                                    << 50;
    QTest::newRow("aquabox, HS, not 5")
        << Words{"AQUABOX", "CLR", "CLR", "SET", "CLR", "BH_USE"} << 45 << 50 << 80;
    QTest::newRow("aquabox, no HS, not 5")
        << Words{"AQUABOX", "CLR", "CLR", "CLR", "CLR", "BH_USE"} << 45 << 50 << 80;
    QTest::newRow("aquabox, HS unknown")
        << Words{"AQUABOX", "SET", "CLR", "", "CLR", "BH_USE"} << 40 << 50 << 80;
    QTest::newRow("aquabox, heater") << Words{"AQUABOX", "SET", "SET", "SET", "CLR", "BH_USE"} << 40 << 0
                                     << 0;
    QTest::newRow("aquabox, flag missing")
        << Words{"AQUABOX", "SET", "", "SET", "CLR", "BH_USE"} << 40 << 0 << 0;
    QTest::newRow("no product") << Words{"", "CLR", "SET", "SET", "SET", "BH_USE"} << 45 << 0 << 0;
}

void TestHotWaterLists::targetRanges()
{
    QFETCH(hotwater::Words, words);
    QFETCH(int, lowUpper);
    QFETCH(int, low);
    QFETCH(int, high);
    QCOMPARE(hotwater::lowLimit(words).low, 30);
    QCOMPARE(hotwater::lowLimit(words).high, lowUpper);
    QCOMPARE(hotwater::highLimit(words).low, low);
    QCOMPARE(hotwater::highLimit(words).high, high);
}

void TestHotWaterLists::limitOfTheCompressor_data()
{
    QTest::addColumn<int>("r32");
    QTest::addColumn<int>("r410");
    QTest::newRow("INTEGRAL") << 55 << 50;
    QTest::newRow("SERIES0") << 55 << 50;
    QTest::newRow("NORTHERN_EUROPE") << 55 << 50;
    QTest::newRow("GERMANY") << 55 << 50;
    QTest::newRow("CASCADE") << 80 << 80;
    QTest::newRow("GHU") << 50 << 50;
    QTest::newRow("WHU") << 50 << 50;
    QTest::newRow("") << 50 << 50;
}

void TestHotWaterLists::limitOfTheCompressor()
{
    QFETCH(int, r32);
    QFETCH(int, r410);
    const QString model = QLatin1String(QTest::currentDataTag());
    for (const char *flag : {"SET", "CLR"}) {
        const Range limit = hotwater::compressorLimit(model, QLatin1String(flag));
        QCOMPARE(limit.low, 40);
        QCOMPARE(limit.high, flag == QByteArray("SET") ? r32 : r410);
    }
}

void TestHotWaterLists::rangesFollowTheDocument_data()
{
    const QVariantMap hot{{"IduFuncList.is_hotwater", "SET"}};
    const QString heater = at("hotWaterTankHeater.tankHeaterUse");
    const QVariantMap timer = hot + QVariantMap{{"IduFuncList.is_timer_hotwater", "SET"}};
    QTest::addColumn<QString>("refrigerant");
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *tag, const char *refrigerant, const QVariantMap &values, const char *name,
                        const QStringList &expected) {
        QTest::newRow(tag) << QString(refrigerant) << values << QByteArray(name) << expected;
    };
    for (const char *refrigerant : {"R32", "R410"}) {
        row("min", refrigerant, hot, "comboHotWaterMin", range(30, 40, "°C"));
        row("max", refrigerant, hot, "comboHotWaterMax", range(50, 80, "°C"));
        row("max temp", refrigerant, hot, "comboMaxTemp", range(60, 80, "°C"));
        row("max temp, heater off", refrigerant, hot + QVariantMap{{heater, "notUse"}}, "comboMaxTemp",
            range(40, 80, "°C"));
        row("cascade", refrigerant, hot + QVariantMap{{"IduFuncList.is_indoor_model", "cascade"}},
            "comboInletWaterMax", range(40, 80, "°C"));
    }
    row("min from 45", "R32", hot + QVariantMap{{"IduFuncList.isCoolTempMin5", "clr"}}, "comboHotWaterMin",
        range(30, 45, "°C"));
    row("heater off, R32", "R32", {{heater, "NOTUSE"}}, "comboHotWaterMax", range(50, 55, "°C"));
    row("heater off, R410", "R410", {{heater, "notuse"}}, "comboHotWaterMax", {"50°C"});
    row("disinfection only, R410", "R410", {{heater, "ONLY_DISINFECT"}}, "comboHotWaterMax", {"50°C"});
    row("aquabox, heater", "R410", {{"product", "aquabox"}}, "comboHotWaterMax", {"0°C"});
    row("aquabox, no heater, HS", "R410",
        {{"product", "aquabox"},
         {"IduFuncList.isHotwaterTankHeaterUse", "clr"},
         {"IduFuncList.isHsModel", "set"}},
        "comboHotWaterMax", {"55°C"});
    row("integral, R32", "R32", hot, "comboInletWaterMax", range(40, 55, "°C"));
    row("germany, R410", "R410", hot, "comboInletWaterMax", range(40, 50, "°C"));
    row("other model", "R32", hot + QVariantMap{{"IduFuncList.is_indoor_model", "GHU"}}, "comboInletWaterMax",
        range(40, 50, "°C"));
    row("timer, long", "R32", timer + QVariantMap{{"IduFuncList.isHotwaterTimerExpand", "set"}},
        "comboInletWaterMax", range(0, 1440, "", 60));
    row("timer, short", "R32", timer + QVariantMap{{"IduFuncList.isHotwaterTimerExpand", "clr"}},
        "comboInletWaterMax", range(0, 600, "", 30));
    row("timer, no word", "R32", timer, "comboInletWaterMax", range(40, 55, "°C"));
    row("no timer, long", "R32", hot + QVariantMap{{"IduFuncList.isHotwaterTimerExpand", "SET"}},
        "comboInletWaterMax", range(40, 55, "°C"));
    row("thermo on with heater", "R32", hot, "comboTankWaterMin", range(1, 30, "K"));
    row("thermo on without", "R32", hot + QVariantMap{{"IduFuncList.isHotwaterTankHeaterUse", "CLR"}},
        "comboTankWaterMin", range(1, 20, "K"));
    row("thermo on, lower case", "R32", hot + QVariantMap{{"IduFuncList.isHotwaterTankHeaterUse", "set"}},
        "comboTankWaterMin", range(1, 20, "K"));
}

void TestHotWaterLists::rangesFollowTheDocument()
{
    QFETCH(QString, refrigerant);
    QFETCH(QVariantMap, values);
    QFETCH(QByteArray, name);
    QFETCH(QStringList, expected);
    section->load(values, QStringLiteral("CENTIGRADE"), refrigerant);
    QCOMPARE(section->items(name.constData()), expected);
}

void TestHotWaterLists::fahrenheitLists()
{
    section->load(everything, QStringLiteral("FAHRENHEIT"));
    QCOMPARE(section->items("comboHotWaterMin"), range(86, 104, "°F", 2));
    QCOMPARE(section->items("comboHotWaterMax"), range(122, 176, "°F", 2));
    QCOMPARE(section->items("comboTankWaterMin"), range(1, 30, "K"));
    QCOMPARE(section->shown("comboHotWaterMin"), QStringLiteral("104°F"));
    QCOMPARE(section->shown("comboMaxTemp"), QStringLiteral("158°F"));
    QCOMPARE(section->shown("comboTankWaterMin"), QStringLiteral("5K"));
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
