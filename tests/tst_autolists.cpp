#include "support/automode.h"

using automode::join;
using automode::limits;
using automode::root;
using automode::seasonalPlant;
using automode::seasonalRoot;

// How the lists of the Auto mode section narrow one another, and limits that move what is stored. Their
// limits by words are held in core/tst_ranges.cpp and walk/tst_controls.cpp.
class TestAutoLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { section = std::make_unique<automode::Section>(); }
    void init() { messages::clear(); }
    void cleanupTestCase() { section.reset(); }

    void outdoorLimitsAreClampedAndWrittenBack_data();
    void outdoorLimitsAreClampedAndWrittenBack();
    void outdoorIndoorValuesAreNotClamped();
    void entranceCountsWhereItCanBeChosen();
    void unknownRefrigerantLeavesOneOutdoorItem();
    void outdoorChainNarrows();
    void mainZoneFollowsWhileOff();
    void mainZoneBoundsWhileInUse();
    void valueChangedRefreshesOnlyWhenAsked();
    void unknownBoxesAndTypesChangeNothing();
    void blankBoxCountsAsZeroUntilTheRefresh();
    void tempValueNeedsTheExactText();

private:
    std::unique_ptr<automode::Section> section;
};

void TestAutoLists::outdoorLimitsAreClampedAndWrittenBack_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("stored");
    QTest::addColumn<QVariantMap>("flags");
    QTest::addColumn<int>("clamped");
    const QVariantMap heater{{"IduFuncList.is_installed_heater", "SET"}};
    const QVariantMap r410{{"IduFuncList.isR32", "CLR"}};
    const auto row = [](const char *box, const char *path, int stored, const QVariantMap &flags,
                        int clamped) {
        QTest::newRow(qPrintable(QString("%1 %2 to %3").arg(box).arg(stored).arg(clamped)))
            << QString("comboOutdoor") + box << root + path << stored << flags << clamped;
    };
    row("OutdoorMax", "autoOp_outtemp.max", 9, {}, 10);
    row("OutdoorMax", "autoOp_outtemp.max", 36, {}, 35);
    row("OutdoorMax", "autoOp_outtemp.max", 21, r410, 20);
    row("OutdoorMin", "autoOp_outtemp.min", -26, {}, -25);
    row("OutdoorMin", "autoOp_outtemp.min", 6, {}, 5);
    row("OutdoorMin", "autoOp_outtemp.min", -21, r410, -20);
    row("WaterMax", "autoOp_tempwater.high_limit", 34, {}, 35);
    row("WaterMax", "autoOp_tempwater.high_limit", 66, {}, 65);
    row("WaterMax", "autoOp_tempwater.high_limit", 58, r410, 57);
    row("WaterMin", "autoOp_tempwater.low_limit", 19, {}, 20);
    row("WaterMin", "autoOp_tempwater.low_limit", 14, heater, 15);
    row("WaterMin", "autoOp_tempwater.low_limit", 35, {}, 34);
    row("WaterMin", "autoOp_tempwater.low_limit", 34, {}, 34);
}

void TestAutoLists::outdoorLimitsAreClampedAndWrittenBack()
{
    QFETCH(QString, box);
    QFETCH(QString, path);
    QFETCH(int, stored);
    QFETCH(QVariantMap, flags);
    QFETCH(int, clamped);
    section->load({});
    const QVariantMap inside{{root + "autoOp_tempwater.low_limit", 30},
                             {root + "autoOp_tempwater.high_limit", 40}};
    section->window.use(documents::with(documents::standard("R32"), join({inside, flags, {{path, stored}}})));
    const QVariantMap written = stored == clamped ? QVariantMap() : QVariantMap{{path, clamped}};
    QCOMPARE(section->window.changes([this] { section->page->refresh(); }), written);
    QCOMPARE(section->shown(qPrintable(box)), QString("%1°C").arg(clamped));
}

void TestAutoLists::outdoorIndoorValuesAreNotClamped()
{
    section->load({});
    section->window.use(
        documents::with(section->window.dialog.document(),
                        {{root + "autoOp_tempair.max", 40}, {root + "autoOp_tempair.min", -1}}));
    QCOMPARE(section->window.changes([this] { section->page->refresh(); }), QVariantMap());
    QCOMPARE(section->shown("comboOutdoorIndoorMax"), QString("30°C"));
    QCOMPARE(section->shown("comboOutdoorIndoorMin"), QString("16°C"));
    QVERIFY(messages::contain("# Error index setting"));
}

void TestAutoLists::entranceCountsWhereItCanBeChosen()
{
    const QVariantMap entrances{{root + "heatWaterControlBasis", "entrance"},
                                {root + "coolWaterControlBasis", "entrance"}};
    const auto ends = [this] {
        return section->items("comboHeatingWaterMax").last() + ' '
            + section->items("comboCoolingWaterMin").first();
    };
    section->load(join({seasonalPlant("CLR"), entrances, {{"IduFuncList.is_heatwatercontrolbasis", "CLR"}}}));
    QCOMPARE(ends(), QStringLiteral("65°C 20°C"));
    section->load(join({seasonalPlant("CLR"), entrances, {{"IduFuncList.is_coolwatercontrolbasis", "CLR"}}}));
    QCOMPARE(ends(), QStringLiteral("55°C 16°C"));
}

void TestAutoLists::unknownRefrigerantLeavesOneOutdoorItem()
{
    section->load(seasonalPlant("SET"));
    const QStringList water = section->items("comboCoolingWaterMax");
    messages::clear();
    section->window.use(documents::with(section->window.dialog.document(), {{"IduFuncList.isR32", "CLR"}}));
    section->page->refresh();
    for (const char *box : {"comboHeatingOutdoorMin", "comboHeatingOutdoorMax", "comboCoolingOutdoorMin",
                            "comboCoolingOutdoorMax"}) {
        QVERIFY2(section->items(box) == QStringList{"0°C"}, box);
    }
    // Cooling water starts above its end: refused, and the list stays.
    QVERIFY(messages::contain(
        "MainDialog::setRangeValueInComboBox ComboBox: \"comboCoolingWaterMax\" lower: 16"));
    QCOMPARE(section->items("comboCoolingWaterMax"), water);
    QCOMPARE(section->ends("comboMainZoneHeatingWaterMin") + ", " + section->ends("comboHeatingWaterMax"),
             QString("20°C 30°C, 40°C 57°C"));
}

void TestAutoLists::outdoorChainNarrows()
{
    section->load(seasonalPlant("CLR"));
    QCOMPARE(section->items("comboHeatingOutdoorMin"), range(-25, 15, "°C"));
    QCOMPARE(section->items("comboHeatingOutdoorMax"), range(-9, 25, "°C"));
    QCOMPARE(section->items("comboCoolingOutdoorMin"), range(21, 39, "°C"));
    QCOMPARE(section->items("comboCoolingOutdoorMax"), range(31, 46, "°C"));
    Window::choose(section->page, "comboCoolingOutdoorMin", "29°C");
    QCOMPARE(section->items("comboHeatingOutdoorMax"), range(-9, 24, "°C"));
    QCOMPARE(section->items("comboCoolingOutdoorMax"), range(30, 46, "°C"));
    Window::choose(section->page, "comboCoolingOutdoorMax", "31°C");
    QCOMPARE(section->items("comboCoolingOutdoorMin"), range(21, 30, "°C"));
    Window::choose(section->page, "comboHeatingOutdoorMax", "24°C");
    QCOMPARE(section->items("comboCoolingOutdoorMin"), range(29, 30, "°C"));
    QCOMPARE(section->items("comboHeatingOutdoorMin"), range(-25, 23, "°C"));
    Window::choose(section->page, "comboHeatingOutdoorMin", "0°C");
    QCOMPARE(section->items("comboHeatingOutdoorMax"), range(1, 24, "°C"));
}

void TestAutoLists::mainZoneFollowsWhileOff()
{
    section->load({{"IduFuncList.isSeasonalAuto", "SET"}});
    QCOMPARE(
        section->window.changes([this] { Window::choose(section->page, "comboHeatingWaterMax", "40°C"); }),
        (QVariantMap{{seasonalRoot + "heatWaterTemp.max", 40},
                     {seasonalRoot + "heatWaterTempMainZone.max", 40}}));
    QCOMPARE(section->shown("comboMainZoneHeatingWaterMax"), QString("40°C"));
    QCOMPARE(section->items("comboHeatingWaterMax"), range(28, 65, "°C"));
    // Its own step bounds the follower by its partner.
    QCOMPARE(section->items("comboMainZoneHeatingWaterMax"), range(28, 40, "°C"));

    // A load shows the leader's value in both, and leaves the document alone.
    section->window.use(
        documents::with(section->window.dialog.document(), limits("heatWaterTempMainZone", 22, 30)));
    QCOMPARE(section->window.changes([this] { section->page->refresh(); }), QVariantMap());
    QCOMPARE(section->shown("comboMainZoneHeatingWaterMax"), QString("40°C"));
    QCOMPARE(section->shown("comboMainZoneHeatingWaterMin"), QString("28°C"));
}

void TestAutoLists::mainZoneBoundsWhileInUse()
{
    section->load(seasonalPlant("SET"));
    for (const char *kind : {"Water", "Indoor"}) {
        const auto list = [this, kind](const char *pattern) {
            QString texts = section->ends(qPrintable(QString(pattern).arg(kind)));
            return texts.remove("°C");
        };
        const bool water = qstrcmp(kind, "Water") == 0;
        QCOMPARE(list("comboHeating%1Max"), QString(water ? "40 65" : "26 30"));
        QCOMPARE(list("comboHeating%1Min"), QString(water ? "25 45" : "20 29"));
        QCOMPARE(list("comboMainZoneHeating%1Max"), QString(water ? "25 45" : "20 29"));
        QCOMPARE(list("comboMainZoneHeating%1Min"), QString(water ? "20 30" : "16 24"));
        QCOMPARE(list("comboCooling%1Max"), QString(water ? "16 24" : "18 26"));
        QCOMPARE(list("comboCooling%1Min"), QString(water ? "16 18" : "16 20"));
        QCOMPARE(list("comboMainZone%1Max"), QString(water ? "20 27" : "22 30"));
        QCOMPARE(list("comboMainZone%1Min"), QString(water ? "16 24" : "18 26"));
    }
    Window::choose(section->page, "comboMainZoneHeatingWaterMax", "44°C");
    QCOMPARE(section->ends("comboHeatingWaterMax"), QString("44°C 65°C"));
    Window::choose(section->page, "comboHeatingWaterMax", "44°C");
    QCOMPARE(section->ends("comboMainZoneHeatingWaterMax"), QString("25°C 44°C"));
    QCOMPARE(section->shown("comboMainZoneHeatingWaterMax"), QString("44°C"));
}

void TestAutoLists::valueChangedRefreshesOnlyWhenAsked()
{
    section->load(seasonalPlant("SET"));
    const QStringList before = section->items("comboHeatingWaterMin");
    section->valueChanged(5, 42, false);
    QCOMPARE(section->shown("comboHeatingWaterMax"), QString("42°C"));
    QCOMPARE(section->items("comboHeatingWaterMin"), before);
    section->valueChanged(5, 43, true);
    QCOMPARE(section->items("comboHeatingWaterMin"), range(25, 43, "°C"));
    // Left out, the last argument is false.
    QMetaObject::invokeMethod(section->page, "valueChanged", Q_ARG(int, 5), Q_ARG(int, 44));
    QCOMPARE(section->items("comboHeatingWaterMin"), range(25, 43, "°C"));
    // No group but its own.
    section->valueChanged(13, 27, false);
    section->valueChanged(5, 42, true);
    QCOMPARE(section->ends("comboHeatingIndoorMin"), QString("20°C 29°C"));
    QCOMPARE(section->window.changes([this] { section->valueChanged(13, 28, true); }), QVariantMap());
    QCOMPARE(section->ends("comboHeatingIndoorMin"), QString("20°C 28°C"));
}

void TestAutoLists::unknownBoxesAndTypesChangeNothing()
{
    section->load(seasonalPlant("SET"));
    Window::find<QComboBox>(section->page, "comboHeatingWaterMax")->blockSignals(true);
    Window::find<QComboBox>(section->page, "comboHeatingWaterMax")->setCurrentText("42°C");
    Window::find<QComboBox>(section->page, "comboHeatingWaterMax")->blockSignals(false);
    const QStringList lists = section->allLists();
    for (const int modelName : {-1, 0, 21}) {
        section->valueChanged(modelName, 42, true);
    }
    for (const int type : {0, 1, 3, 4}) {
        section->refreshTempRange(type);
    }
    QCOMPARE(section->allLists(), lists);
    section->refreshTempRange(2);
    QCOMPARE(section->items("comboHeatingWaterMin"), range(25, 42, "°C"));
}

void TestAutoLists::blankBoxCountsAsZeroUntilTheRefresh()
{
    section->load(seasonalPlant("SET"));
    const QJsonDocument before = section->window.dialog.document();
    section->valueChanged(2, 99, false);
    QCOMPARE(section->shown("comboHeatingOutdoorMax"), QString());
    section->refreshTempRange(1);
    QCOMPARE(section->items("comboHeatingOutdoorMin"), range(-25, -1, "°C"));
    QCOMPARE(section->items("comboCoolingOutdoorMin"), range(10, 39, "°C"));
    // -10 to 25 holds 0, so the next step fills the box.
    QCOMPARE(section->shown("comboHeatingOutdoorMax"), QString("0°C"));
    section->page->refresh();
    QCOMPARE(section->shown("comboHeatingOutdoorMax"), QString("16°C"));
    QCOMPARE(section->window.dialog.document(), before);
}

void TestAutoLists::tempValueNeedsTheExactText()
{
    section->load(seasonalPlant("SET"), "R32", "FAHRENHEIT");
    auto *combo = Window::find<QComboBox>(section->page, "comboHeatingWaterMax");
    const auto set = [this, combo](int value) {
        QMetaObject::invokeMethod(section->page, "setTempValue", Q_ARG(QComboBox *, combo),
                                  Q_ARG(int, value));
        return combo->currentText();
    };
    QCOMPARE(section->window.changes([&] { QCOMPARE(set(122), QString("122°F")); }), QVariantMap());
    QCOMPARE(set(50), QString());
    QCOMPARE(combo->currentIndex(), -1);
    section->window.dialog.setTempUnit("x");
    section->page->refresh();
    QCOMPARE(set(50), QString("50°C"));
}

CALORA_TEST_MAIN(TestAutoLists)
#include "tst_autolists.moc"
