#include "rules/autoengine.h"
#include "rules/autoranges.h"

#include <QStringList>
#include <QTest>

static bool operator==(const Range &left, const Range &right)
{
    return left.low == right.low && left.high == right.high;
}

// Which limits each box of the auto mode has, and which box bounds which list, without a window. The limits
// themselves are held in tst_ranges.cpp.
class TestAutoRanges : public QObject
{
    Q_OBJECT

private slots:
    void limitsStandInTheOrderOfTheTable();
    void eachBoxHasItsLimits_data();
    void eachBoxHasItsLimits();
    void neighboursBoundTheList_data();
    void neighboursBoundTheList();
    void groups();
    void unknownBoxesHaveNoRow();
};

void TestAutoRanges::limitsStandInTheOrderOfTheTable()
{
    autoranges::Flags flags{};
    flags.r32 = flags.fanCoilDisabled = flags.installedHeater = true;
    const std::array<Range, 20> limits = autoranges::seasonalMode(flags);
    const Range heatOut{-25, 35};
    const Range coolOut{10, 46};
    const Range heatWater{15, 65};
    const Range coolWater{16, 27};
    const Range heatAir{16, 30};
    const Range coolAir{18, 30};
    const std::array<Range, 20> expected{
        heatOut, heatOut, coolOut,   coolOut,   heatWater, heatWater, coolWater, coolWater, heatAir, heatAir,
        coolAir, coolAir, heatWater, heatWater, coolWater, coolWater, heatAir,   heatAir,   coolAir, coolAir};
    for (std::size_t slot = 0; slot < limits.size(); ++slot) {
        QVERIFY2(limits.at(slot) == expected.at(slot), qPrintable(QString::number(slot)));
    }
}

void TestAutoRanges::eachBoxHasItsLimits_data()
{
    QTest::addColumn<int>("modelName");
    QTest::addColumn<int>("slot");
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("mainZone");
    const auto row = [](int modelName, int slot, const char *path, int mainZone = 0) {
        QTest::newRow(qPrintable(QString::number(modelName)))
            << modelName << slot << QString(path) << mainZone;
    };
    row(1, 0, "heatOutTemp.min");
    row(2, 1, "heatOutTemp.max");
    row(3, 2, "coolOutTemp.min");
    row(4, 3, "coolOutTemp.max");
    row(5, 12, "heatWaterTemp.max", 9);
    row(6, 13, "heatWaterTemp.min", 10);
    row(7, 14, "coolWaterTemp.max", 11);
    row(8, 15, "coolWaterTemp.min", 12);
    row(9, 4, "heatWaterTempMainZone.max");
    row(10, 5, "heatWaterTempMainZone.min");
    row(11, 6, "coolWaterTempMainZone.max");
    row(12, 7, "coolWaterTempMainZone.min");
    row(13, 16, "heatAirTemp.max", 17);
    row(14, 17, "heatAirTemp.min", 18);
    row(15, 18, "coolAirTemp.max", 19);
    row(16, 19, "coolAirTemp.min", 20);
    row(17, 8, "heatAirTempMainZone.max");
    row(18, 9, "heatAirTempMainZone.min");
    row(19, 10, "coolAirTempMainZone.max");
    row(20, 11, "coolAirTempMainZone.min");
}

void TestAutoRanges::eachBoxHasItsLimits()
{
    QFETCH(int, modelName);
    QFETCH(int, slot);
    QFETCH(QString, path);
    QFETCH(int, mainZone);
    const autoengine::Row *row = autoengine::row(modelName);
    QVERIFY(row != nullptr);
    QCOMPARE(row->modelName, modelName);
    QCOMPARE(static_cast<int>(row->slot), slot);
    QCOMPARE(QString(row->path), path);
    QCOMPARE(row->mainZone, mainZone);
}

// Which boxes bound the low and the high end of each list, with the margin, "!" where only while the main
// zone is in use.
void TestAutoRanges::neighboursBoundTheList_data()
{
    QTest::addColumn<int>("modelName");
    QTest::addColumn<QString>("low");
    QTest::addColumn<QString>("high");
    const auto row = [](int modelName, const char *low, const char *high) {
        QTest::newRow(qPrintable(QString::number(modelName))) << modelName << QString(low) << QString(high);
    };
    row(1, "", "2-1");
    row(2, "1+1", "3-5");
    row(3, "2+5", "4-1");
    row(4, "3+1", "");
    row(5, "6+0 9+0!", "");
    row(6, "10+0!", "5+0");
    row(7, "8+0", "11+0!");
    row(8, "", "12+0! 7+0");
    row(9, "10+0", "5+0");
    row(10, "", "9+0 6+0");
    row(11, "12+0 7+0", "");
    row(12, "8+0", "11+0");
    row(13, "14+0 17+0!", "");
    row(14, "18+0!", "13+0");
    row(15, "16+0", "19+0!");
    row(16, "", "20+0! 15+0");
    row(17, "18+0", "13+0");
    row(18, "", "17+0 14+0");
    row(19, "20+0 15+0", "");
    row(20, "16+0", "19+0");
}

void TestAutoRanges::neighboursBoundTheList()
{
    QFETCH(int, modelName);
    QFETCH(QString, low);
    QFETCH(QString, high);
    constexpr int far = 1000;
    constexpr int value = 7;
    for (const bool mainZoneOff : {false, true}) {
        QStringList lows;
        QStringList highs;
        const auto offered = [modelName, mainZoneOff](int neighbour, int others) {
            return autoengine::offered(*autoengine::row(modelName), Range{-100, 100}, mainZoneOff,
                                       [=](int each) { return each == neighbour ? value : others; });
        };
        for (int neighbour = 1; neighbour <= 20; ++neighbour) {
            const int lowest = offered(neighbour, -far).low;
            const int highest = offered(neighbour, far).high;
            const auto told = [neighbour](int end) {
                const int margin = end - value;
                return QString("%1%2%3").arg(neighbour).arg(margin < 0 ? "" : "+").arg(margin);
            };
            if (lowest != -100) {
                lows.append(told(lowest));
            }
            if (highest != 100) {
                highs.append(told(highest));
            }
        }
        const auto expected = [mainZoneOff](const QString &words) {
            QStringList list;
            for (const QString &word : words.split(' ', Qt::SkipEmptyParts)) {
                if (!word.endsWith('!') || !mainZoneOff) {
                    list.append(QString(word).remove('!'));
                }
            }
            std::sort(list.begin(), list.end());
            return list;
        };
        std::sort(lows.begin(), lows.end());
        std::sort(highs.begin(), highs.end());
        QCOMPARE(lows, expected(low));
        QCOMPARE(highs, expected(high));
        // The limits bound it as well.
        QCOMPARE(offered(0, -far).low, -100);
        QCOMPARE(offered(0, far).high, 100);
    }
}

void TestAutoRanges::groups()
{
    const auto members = [](int type) {
        const autoengine::Group group = autoengine::group(type);
        QList<int> list;
        for (int modelName = group.first; modelName <= group.last; ++modelName) {
            list.append(modelName);
        }
        return list;
    };
    QCOMPARE(members(0), QList<int>());
    QCOMPARE(members(1), (QList<int>{1, 2, 3, 4}));
    QCOMPARE(members(2), (QList<int>{5, 6, 7, 8, 9, 10, 11, 12}));
    QCOMPARE(members(3), (QList<int>{13, 14, 15, 16, 17, 18, 19, 20}));
    QCOMPARE(members(4), QList<int>());
    for (const int type : {1, 2, 3}) {
        for (const int modelName : members(type)) {
            QCOMPARE(autoengine::groupOf(modelName), type);
        }
    }
}

void TestAutoRanges::unknownBoxesHaveNoRow()
{
    for (const int modelName : {-1, 0, 21}) {
        QVERIFY(autoengine::row(modelName) == nullptr);
    }
}

QTEST_GUILESS_MAIN(TestAutoRanges)

#include "tst_autoranges.moc"
