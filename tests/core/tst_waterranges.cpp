#include "rules/waterranges.h"

#include <QTest>

using waterranges::Circuits;

// Which water temperatures cooling and heating offer, without a window.
class TestWaterRanges : public QObject
{
    Q_OBJECT

private slots:
    void coolLowByWords_data();
    void coolLowByWords();
    void coolHighByExpansion_data();
    void coolHighByExpansion();
    void heatLimits();
    void clampsIntoTheRange();
    void keepsConstantsInLine_data();
    void keepsConstantsInLine();
    void listsStopAtTheOtherCircuit();
};

void TestWaterRanges::coolLowByWords_data()
{
    QTest::addColumn<QStringList>(
        "words"); // FCU_disable, flag, isR32, isR410CoolExpand, basis, isCoolTempMin5
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");

    const auto row = [](const char *words, int low, int high) {
        QTest::newRow(words) << QString::fromLatin1(words).split(QLatin1Char(' ')) << low << high;
    };
    // Without a fan coil unit
    row("SET CLR SET SET EXIT SET", 16, 18);
    row("SET CLR CLR CLR ENTRANCE CLR", 16, 18);
    row("SET SET SET CLR ENTRANCE SET", 20, 20);
    row("SET SET CLR SET ENTRANCE CLR", 20, 20);
    row("SET SET SET CLR EXIT x", 16, 20);
    row("SET SET CLR SET EXIT SET", 16, 20);
    row("SET SET SET CLR x SET", 16, 18);
    row("SET SET CLR CLR EXIT SET", -1, -1);
    row("SET x SET SET EXIT SET", -1, -1);
    // With one, by a bottom of 6
    row("CLR SET SET CLR ENTRANCE CLR", 11, 20);
    row("CLR SET CLR SET EXIT CLR", 6, 20);
    row("CLR SET SET CLR x CLR", 6, 18);
    row("CLR SET CLR CLR EXIT CLR", 6, 18);
    row("CLR CLR SET SET ENTRANCE CLR", 6, 18);
    row("CLR x SET SET EXIT CLR", 6, 18);
    // and of 5
    row("CLR SET SET CLR ENTRANCE SET", 10, 20);
    row("CLR SET CLR SET EXIT SET", 5, 20);
    row("CLR SET SET CLR x SET", 5, 18);
    row("CLR SET CLR CLR ENTRANCE SET", 5, 18);
    row("CLR CLR SET SET EXIT SET", 5, 18);
    row("CLR SET SET CLR EXIT x", -1, -1);
    row("CLR CLR CLR CLR x x", -1, -1);
    // With neither
    row("x SET SET SET ENTRANCE SET", 16, 18);
    row("x CLR CLR CLR EXIT x", 16, 18);
}

void TestWaterRanges::coolLowByWords()
{
    QFETCH(QStringList, words);
    const Range range = waterranges::coolLow({words[0], words[1], words[2], words[3], words[4], words[5]});
    QTEST(range.low, "low");
    QTEST(range.high, "high");
}

void TestWaterRanges::coolHighByExpansion_data()
{
    QTest::addColumn<QStringList>("words"); // flag, isR32, isR410CoolExpand
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    QTest::newRow("R32") << QStringList{"SET", "SET", "CLR"} << 22 << 27;
    QTest::newRow("R410 expanded") << QStringList{"SET", "CLR", "SET"} << 22 << 27;
    QTest::newRow("both") << QStringList{"SET", "SET", "SET"} << 22 << 27;
    QTest::newRow("neither") << QStringList{"SET", "CLR", "CLR"} << 20 << 25;
    QTest::newRow("no basis") << QStringList{"CLR", "SET", "SET"} << 20 << 25;
    QTest::newRow("unknown basis") << QStringList{"x", "SET", "SET"} << 20 << 25;
}

void TestWaterRanges::coolHighByExpansion()
{
    QFETCH(QStringList, words);
    const Range range = waterranges::coolHigh({"SET", words[0], words[1], words[2], "EXIT", "SET"});
    QTEST(range.low, "low");
    QTEST(range.high, "high");
}

void TestWaterRanges::heatLimits()
{
    QCOMPARE(waterranges::heatLow(true).low, 15);
    QCOMPARE(waterranges::heatLow(false).low, 20);
    for (const bool heater : {true, false}) {
        QCOMPARE(waterranges::heatLow(heater).high, 34);
    }
    QCOMPARE(waterranges::heatHigh(true, true).high, 65);
    QCOMPARE(waterranges::heatHigh(true, false).high, 55);
    QCOMPARE(waterranges::heatHigh(false, true).high, 57);
    QCOMPARE(waterranges::heatHigh(false, false).high, 50);
    for (const bool r32 : {true, false}) {
        QCOMPARE(waterranges::heatHigh(r32, true).low, 35);
        QCOMPARE(waterranges::heatHigh(r32, false).low, 35);
    }
}

void TestWaterRanges::clampsIntoTheRange()
{
    QCOMPARE(waterranges::clamp(15, {16, 20}), 16);
    QCOMPARE(waterranges::clamp(16, {16, 20}), 16);
    QCOMPARE(waterranges::clamp(18, {16, 20}), 18);
    QCOMPARE(waterranges::clamp(21, {16, 20}), 20);
    QCOMPARE(waterranges::clamp(18, {-1, -1}), -1);
    QCOMPARE(waterranges::clamp(-5, {-1, -1}), -1);
}

void TestWaterRanges::keepsConstantsInLine_data()
{
    QTest::addColumn<int>("circuits");
    QTest::addColumn<int>("other");
    QTest::addColumn<int>("mainZone");
    QTest::addColumn<int>("keptOther");
    QTest::addColumn<int>("keptMainZone");

    // Limits 18 to 24
    const auto row = [](const char *name, Circuits circuits, int other, int mainZone, int keptOther,
                        int keptMainZone) {
        QTest::newRow(name) << static_cast<int>(circuits) << other << mainZone << keptOther << keptMainZone;
    };
    row("one inside", Circuits::One, 20, 22, 20, 22);
    row("one below", Circuits::One, 17, 22, 18, 18);
    row("one above", Circuits::One, 25, 22, 24, 24);
    row("one, main zone isn't looked at", Circuits::One, 20, 40, 20, 40);
    row("above inside", Circuits::MainZoneAbove, 18, 24, 18, 24);
    row("above, other below", Circuits::MainZoneAbove, 17, 22, 18, 18);
    row("above, main zone above", Circuits::MainZoneAbove, 20, 25, 24, 24);
    row("above, both outside", Circuits::MainZoneAbove, 17, 25, 18, 18);
    row("above, other above", Circuits::MainZoneAbove, 25, 24, 25, 24);
    row("above, main zone below", Circuits::MainZoneAbove, 18, 17, 18, 17);
    row("below inside", Circuits::MainZoneBelow, 24, 18, 24, 18);
    row("below, other above", Circuits::MainZoneBelow, 25, 20, 24, 24);
    row("below, main zone below", Circuits::MainZoneBelow, 20, 17, 18, 18);
    row("below, both outside", Circuits::MainZoneBelow, 25, 17, 24, 24);
    row("below, other below", Circuits::MainZoneBelow, 17, 18, 17, 18);
    row("below, main zone above", Circuits::MainZoneBelow, 20, 25, 20, 25);
}

void TestWaterRanges::keepsConstantsInLine()
{
    QFETCH(int, circuits);
    QFETCH(int, other);
    QFETCH(int, mainZone);
    const auto kept = waterranges::kept({other, mainZone}, {18, 24}, static_cast<Circuits>(circuits));
    QTEST(kept.other, "keptOther");
    QTEST(kept.mainZone, "keptMainZone");
}

void TestWaterRanges::listsStopAtTheOtherCircuit()
{
    const auto check = [](Circuits circuits, Range other, Range mainZone) {
        const auto lists = waterranges::lists({20, 22}, {18, 24}, circuits);
        QCOMPARE(lists.other.low, other.low);
        QCOMPARE(lists.other.high, other.high);
        QCOMPARE(lists.mainZone.low, mainZone.low);
        QCOMPARE(lists.mainZone.high, mainZone.high);
    };
    check(Circuits::One, {18, 24}, {18, 24});
    check(Circuits::MainZoneAbove, {18, 22}, {20, 24});
    check(Circuits::MainZoneBelow, {22, 24}, {18, 20});
}

QTEST_APPLESS_MAIN(TestWaterRanges)
#include "tst_waterranges.moc"
