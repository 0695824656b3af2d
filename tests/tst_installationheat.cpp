#include "support/watersection.h"

#include "pages/installation/installationheat.h"

#include <memory>

using water::Driver;
using water::flag;
using water::mainZone;
using water::root;
using water::seasons;

namespace {

const QString constant = QStringLiteral("SettingInfo.func.waterCtrBasisAirHeat.");
const QString lowLimit = root + QStringLiteral("settempLimit.heatWater.low_limit");
const QString highLimit = root + QStringLiteral("settempLimit.heatWater.high_limit");
const QString basis = root + QStringLiteral("heatWaterControlBasis");
const QString heater = flag("is_installed_heater");

} // namespace

// The controls of the heating section where they differ from cooling and do more than their row.
// What plain controls list, write and show: walk/tst_controls.cpp.
class TestInstallationHeat : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { driver = std::make_unique<Driver<InstallationHeat>>(); }
    void cleanupTestCase() { driver.reset(); }

    void writes_data();
    void writes();
    void otherCircuitBeyondTheLimitsLeavesTheList_data();
    void otherCircuitBeyondTheLimitsLeavesTheList();
    void defaultDocuments();

private:
    std::unique_ptr<Driver<InstallationHeat>> driver;
};

void TestInstallationHeat::writes_data()
{
    QTest::addColumn<QVariantMap>("before");
    QTest::addColumn<QString>("item"); // none for a radio
    QTest::addColumn<QVariantMap>("written");

    const auto row = [](const char *control, const QVariantMap &before, const char *item,
                        const QVariantMap &written) {
        QTest::newRow(water::rowName(control, before, QString::fromUtf8(item)).constData())
            << before << QString::fromUtf8(item) << written;
    };
    row("comboTemperatureWaterMin", {{constant + "ctrTemp", 30}}, "31°C",
        {{lowLimit, 31}, {constant + "ctrTemp", 31}, {constant + "ctrTempMainZone", 31}});
    row("comboTemperatureWaterMax", {{constant + "ctrTemp", 60}}, "50°C",
        {{highLimit, 50}, {constant + "ctrTemp", 50}, {constant + "ctrTempMainZone", 50}});
    row("comboReferenceWater", seasons(1, 2, 3, 4), "Inlet",
        documents::joined(seasons(16, 20, 28, 35), {{basis, "ENTRANCE"}, {highLimit, 55}}));
    row("comboReferenceWater", documents::joined(seasons(1, 2, 3, 4), {{basis, "ENTRANCE"}, {highLimit, 55}}),
        "Outlet", documents::joined(seasons(16, 20, 28, 35), {{basis, "EXIT"}}));
}

void TestInstallationHeat::writes()
{
    QFETCH(QVariantMap, before);
    QFETCH(QString, item);
    driver->open(before);
    QTEST(driver->operate(water::rowControl().constData(), item), "written");
    QVERIFY(messages::contain("InstallationHeat::SettingUser validation succeed!"));
}

void TestInstallationHeat::otherCircuitBeyondTheLimitsLeavesTheList_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");

    const auto row = [](const char *combo, const QVariantMap &values, int low, int high) {
        QTest::newRow(water::rowName(combo, values).constData()) << values << low << high;
    };
    row("comboControlWaterTemp", {{mainZone, "SET"}, {constant + "ctrTempMainZone", 70}}, 20, 65);
    row("comboControlMainZoneTemp", {{mainZone, "SET"}, {constant + "ctrTemp", 10}}, 20, 65);
}

void TestInstallationHeat::otherCircuitBeyondTheLimitsLeavesTheList()
{
    QFETCH(QVariantMap, values);
    QFETCH(int, low);
    QFETCH(int, high);
    driver->load(values);
    QCOMPARE(driver->items(water::rowControl().constData()), range(low, high, "°C"));
}

// R410 stores a lower limit than it offers without a heater.
void TestInstallationHeat::defaultDocuments()
{
    for (const auto &[refrigerant, top] : {std::make_pair("R32", 65), std::make_pair("R410", 57)}) {
        Window::expand(driver->page, false);
        driver->window.use(documents::standard(refrigerant));
        driver->window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
        QCOMPARE(driver->window.dialog.document(), documents::standard(refrigerant));
        QCOMPARE(driver->items("comboTemperatureWaterMin"), range(20, 34, "°C"));
        QCOMPARE(driver->items("comboTemperatureWaterMax"), range(35, top, "°C"));
        QCOMPARE(driver->shown("comboTemperatureWaterMin"), QStringLiteral("20°C"));
        QCOMPARE(driver->shown("comboTemperatureWaterMax"), QStringLiteral("%1°C").arg(top));
    }
}

CALORA_TEST_MAIN(TestInstallationHeat)
#include "tst_installationheat.moc"
