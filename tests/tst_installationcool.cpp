#include "support/watersection.h"

#include "pages/installation/installationcool.h"

#include <memory>

using water::Driver;
using water::flag;
using water::mainZone;
using water::root;
using water::seasons;

namespace {

const QString constant = QStringLiteral("SettingInfo.func.waterCtrBasisAirCool.");
const QString lowLimit = root + QStringLiteral("settempLimit.coolWater.low_limit");
const QString highLimit = root + QStringLiteral("settempLimit.coolWater.high_limit");
const QString basis = root + QStringLiteral("coolWaterControlBasis");
const QString fanCoil = root + QStringLiteral("UFH_stop.FCU_disable");

} // namespace

// The controls of the cooling section where they differ from heating and do more than their row.
// What plain controls list, write and show: walk/tst_controls.cpp.
class TestInstallationCool : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { driver = std::make_unique<Driver<InstallationCool>>(); }
    void cleanupTestCase() { driver.reset(); }

    void startsClosedWithoutDocument();
    void writes_data();
    void writes();
    void otherCircuitBeyondTheLimitsLeavesTheList_data();
    void otherCircuitBeyondTheLimitsLeavesTheList();
    void shownWhen_data();
    void shownWhen();
    void enabledWhen_data();
    void enabledWhen();

private:
    std::unique_ptr<Driver<InstallationCool>> driver;
};

void TestInstallationCool::startsClosedWithoutDocument()
{
    QVERIFY(!Window::shownItself(driver->page, "frame"));
    QCOMPARE(driver->items("comboForcerWater"), range(16, 25, "°C"));
}

void TestInstallationCool::writes_data()
{
    QTest::addColumn<QVariantMap>("before");
    QTest::addColumn<QString>("item"); // none for a radio
    QTest::addColumn<QVariantMap>("written");

    const auto row = [](const char *control, const QVariantMap &before, const char *item,
                        const QVariantMap &written) {
        QTest::newRow(water::rowName(control, before, QString::fromUtf8(item)).constData())
            << before << QString::fromUtf8(item) << written;
    };
    row("comboTemperatureWaterMin", {}, "20°C",
        {{lowLimit, 20}, {constant + "ctrTemp", 20}, {constant + "ctrTempMainZone", 20}});
    row("comboTemperatureWaterMax", {{constant + "ctrTemp", 24}}, "23°C",
        {{highLimit, 23}, {constant + "ctrTemp", 23}, {constant + "ctrTempMainZone", 23}});
    row("comboControlWaterTemp", {{mainZone, "SET"}, {constant + "ctrTempMainZone", 22}}, "20°C",
        {{constant + "ctrTemp", 20}});
    const QVariantMap before = seasons(1, 2, 3, 4);
    row("radioFanCoilNotuse", documents::joined(before, {{fanCoil, "CLR"}}), "",
        documents::joined(seasons(16, 20, 28, 35), {{fanCoil, "SET"}}));
    row("radioFanCoilUse", before, "", {{fanCoil, "CLR"}});
    row("comboReferenceWater", before, "Inlet",
        documents::joined(seasons(20, 20, 28, 35), {{basis, "ENTRANCE"}, {lowLimit, 20}}));
    row("comboReferenceWater", documents::joined(before, {{basis, "ENTRANCE"}, {lowLimit, 20}}), "Outlet",
        documents::joined(seasons(16, 20, 28, 35), {{basis, "EXIT"}}));
}

void TestInstallationCool::writes()
{
    QFETCH(QVariantMap, before);
    QFETCH(QString, item);
    QFETCH(QVariantMap, written);
    const QByteArray control = water::rowControl();
    driver->open(before);
    QCOMPARE(driver->operate(control.constData(), item), written);
    QVERIFY(messages::contain("InstallationCool::SettingUser validation succeed!"));
}

void TestInstallationCool::otherCircuitBeyondTheLimitsLeavesTheList_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");

    const auto row = [](const char *combo, const QVariantMap &values, int low, int high) {
        QTest::newRow(water::rowName(combo, values).constData()) << values << low << high;
    };
    row("comboControlWaterTemp", {{mainZone, "SET"}, {constant + "ctrTempMainZone", 17}}, 18, 24);
    row("comboControlMainZoneTemp", {{mainZone, "SET"}, {constant + "ctrTemp", 25}}, 18, 24);
    row("comboControlMainZoneTemp", {{mainZone, "SET"}, {flag("isWaterCtrBasisAir"), "CLR"}}, 18, 24);
}

void TestInstallationCool::otherCircuitBeyondTheLimitsLeavesTheList()
{
    QFETCH(QVariantMap, values);
    QFETCH(int, low);
    QFETCH(int, high);
    driver->load(values);
    QCOMPARE(driver->items(water::rowControl().constData()), range(low, high, "°C"));
}

void TestInstallationCool::shownWhen_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<bool>("shown");

    const auto row = [](const char *group, const QVariantMap &values, bool shown) {
        QTest::newRow(water::rowName(group, values).constData()) << values << shown;
    };
    for (const char *group : {"groupBoxTempRange", "groupBoxForcedStop"}) {
        row(group, {}, true);
        row(group, {{flag("is_cool"), "x"}}, true);
        row(group, {{flag("is_cool"), "clr"}}, false);
    }
    row("groupBoxTempIndoorAirTemp", {}, true);
    row("groupBoxTempWaterTemp", {}, true);
    for (const char *group : {"groupBoxTHIndoorAirTemp", "groupBoxTHWaterTemp"}) {
        row(group, {{flag("is_coolThermoOnOff"), "set"}}, true);
        row(group, {{flag("is_coolThermoOnOff"), "CLR"}}, false);
    }
}

void TestInstallationCool::shownWhen()
{
    QFETCH(QVariantMap, values);
    driver->load(values);
    QTEST(Window::shownItself(driver->page, water::rowControl().constData()), "shown");
}

void TestInstallationCool::enabledWhen_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("groupBoxForcedWaterTemp SET") << "SET" << true;
    QTest::newRow("groupBoxForcedWaterTemp CLR") << "CLR" << false;
    QTest::newRow("groupBoxForcedWaterTemp x") << "x" << true;
}

void TestInstallationCool::enabledWhen()
{
    QFETCH(QString, stored);
    driver->load({{fanCoil, stored}});
    QTEST(driver->enabled(water::rowControl().constData()), "enabled");
}

CALORA_TEST_MAIN(TestInstallationCool)
#include "tst_installationcool.moc"
