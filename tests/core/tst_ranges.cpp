#include "rules/autoranges.h"
#include "rules/hotwaterranges.h"
#include "rules/waterranges.h"
#include "support/ranges.h"

#include <QTest>

using waterranges::Circuits;
using waterranges::CoolWords;

using RangeOf = std::function<Range(const ranges::Word &word)>;
Q_DECLARE_METATYPE(RangeOf)

// Which temperatures of water are offered, without a window: the ranges by tests/data/ranges.tsv for all
// words, what brings values into them by hand.
class TestRanges : public QObject
{
    Q_OBJECT

private slots:
    void rangesOfAllWords_data();
    void rangesOfAllWords();
    void clampsIntoTheRange();
    void keepsConstantsInLine_data();
    void keepsConstantsInLine();
    void listsStopAtTheOtherCircuit();
};

void TestRanges::rangesOfAllWords_data()
{
    using ranges::Word;
    QTest::addColumn<RangeOf>("range");
    const auto cool = [](const Word &word) -> CoolWords {
        return {word("UFH_stop.FCU_disable"), word("is_coolwatercontrolbasis"), word("isR32"),
                word("isR410CoolExpand"),     word("coolWaterControlBasis"),    word("isCoolTempMin5")};
    };
    const auto isSet = [](const QString &word) { return word == QLatin1String("SET"); };
    QTest::newRow("coolLow") << RangeOf([=](const Word &word) { return waterranges::coolLow(cool(word)); });
    QTest::newRow("coolHigh") << RangeOf([=](const Word &word) { return waterranges::coolHigh(cool(word)); });
    QTest::newRow("heatLow") << RangeOf(
        [=](const Word &word) { return waterranges::heatLow(isSet(word("is_installed_heater"))); });
    QTest::newRow("heatHigh") << RangeOf([=](const Word &word) {
        return waterranges::heatHigh(isSet(word("isR32")), word("heatWaterControlBasis") == "EXIT");
    });
    const auto hot = [](const Word &word) -> hotwater::Words {
        return {word("product"),   word("isCoolTempMin5"), word("isHotwaterTankHeaterUse"),
                word("isHsModel"), word("isR32"),          word("hotWaterTankHeater.tankHeaterUse")};
    };
    QTest::newRow("hotWaterLow") << RangeOf([=](const Word &word) { return hotwater::lowLimit(hot(word)); });
    QTest::newRow("hotWaterHigh") << RangeOf(
        [=](const Word &word) { return hotwater::highLimit(hot(word)); });
    QTest::newRow("compressor") << RangeOf(
        [](const Word &word) { return hotwater::compressorLimit(word("is_indoor_model"), word("isR32")); });
    QTest::newRow("disinfection") << RangeOf(
        [](const Word &word) { return hotwater::disinfection(word("hotWaterTankHeater.tankHeaterUse")); });
    const auto seasonal = [=](const Word &word) -> autoranges::Flags {
        return {isSet(word("isR32")),
                isSet(word("isR410CoolExpand")),
                isSet(word("is_installed_heater")),
                isSet(word("isCoolTempMin5")),
                isSet(word("isCoolAir16")),
                isSet(word("UFH_stop.FCU_disable")),
                isSet(word("is_heatwatercontrolbasis")) && word("heatWaterControlBasis") == "ENTRANCE",
                isSet(word("is_coolwatercontrolbasis")) && word("coolWaterControlBasis") == "ENTRANCE"};
    };
    for (const auto &[list, slot] :
         {std::make_pair("heatingOutdoor", 0), std::make_pair("coolingOutdoor", 2),
          std::make_pair("heatingWater", 4), std::make_pair("coolingWater", 6),
          std::make_pair("heatingIndoor", 8), std::make_pair("coolingIndoor", 10)}) {
        QTest::newRow(list) << RangeOf([=, slot = static_cast<std::size_t>(slot)](const Word &word) {
            return autoranges::seasonalMode(seasonal(word)).at(slot);
        });
    }
    const auto outdoor = [=](const Word &word) {
        return autoranges::outdoorMode(isSet(word("isR32")), word("heatWaterControlBasis") == "EXIT",
                                       isSet(word("is_installed_heater")));
    };
    QTest::newRow("outdoorMax") << RangeOf([=](const Word &word) { return outdoor(word).outdoorMax; });
    QTest::newRow("outdoorMin") << RangeOf([=](const Word &word) { return outdoor(word).outdoorMin; });
    QTest::newRow("heatHigh in outdoor mode")
        << RangeOf([=](const Word &word) { return outdoor(word).waterMax; });
    QTest::newRow("heatLow in outdoor mode")
        << RangeOf([=](const Word &word) { return outdoor(word).waterMin; });
}

void TestRanges::rangesOfAllWords()
{
    QFETCH(RangeOf, range);
    const QString list = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0);
    ranges::forAllWords(list, [&](const ranges::Word &word) {
        const Range found = range(word);
        QCOMPARE(std::make_pair(found.low, found.high), ranges::of(list, word));
    });
}

void TestRanges::clampsIntoTheRange()
{
    QCOMPARE(waterranges::clamp(15, {16, 20}), 16);
    QCOMPARE(waterranges::clamp(16, {16, 20}), 16);
    QCOMPARE(waterranges::clamp(18, {16, 20}), 18);
    QCOMPARE(waterranges::clamp(21, {16, 20}), 20);
    QCOMPARE(waterranges::clamp(18, {-1, -1}), -1);
    QCOMPARE(waterranges::clamp(-5, {-1, -1}), -1);
}

void TestRanges::keepsConstantsInLine_data()
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

void TestRanges::keepsConstantsInLine()
{
    QFETCH(int, circuits);
    QFETCH(int, other);
    QFETCH(int, mainZone);
    const auto kept = waterranges::kept({other, mainZone}, {18, 24}, static_cast<Circuits>(circuits));
    QTEST(kept.other, "keptOther");
    QTEST(kept.mainZone, "keptMainZone");
}

void TestRanges::listsStopAtTheOtherCircuit()
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

QTEST_APPLESS_MAIN(TestRanges)
#include "tst_ranges.moc"
