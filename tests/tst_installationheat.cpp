#include "support/watersection.h"

#include "pages/installation/installationheat.h"

#include <QSignalSpy>

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
const QString pump = root + QStringLiteral("pumpOperOptionInHeat.");
const QString heater = flag("is_installed_heater");

} // namespace

// What controls of the heating section do to each other, and where they differ from cooling and do more than
// their row. What plain controls list, write and show: walk/tst_controls.cpp.
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
    void limitsAreBroughtIn_data();
    void limitsAreBroughtIn();
    void closedSectionWritesNothing();
    void basisBringsItsRangeAndDefaults();
    void twoCircuitsStayInLine();
    void loadInOpenSectionRunsSlots();
    void pumpLeavesTheColours();
    void validationNeedsTwoPairs();

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

void TestInstallationHeat::limitsAreBroughtIn_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QVariantMap>("written");
    QTest::newRow("inside") << QVariantMap{} << QVariantMap{};
    QTest::newRow("below") << QVariantMap{{lowLimit, 19}, {highLimit, 34}}
                           << QVariantMap{{lowLimit, 20}, {highLimit, 35}};
    QTest::newRow("below with heater")
        << QVariantMap{{lowLimit, 14}, {heater, "SET"}} << QVariantMap{{lowLimit, 15}};
    QTest::newRow("above") << QVariantMap{{lowLimit, 35}, {highLimit, 66}}
                           << QVariantMap{{lowLimit, 34}, {highLimit, 65}};
    QTest::newRow("missing") << QVariantMap{{lowLimit, QVariant()}, {highLimit, QVariant()}}
                             << QVariantMap{{lowLimit, 20}, {highLimit, 35}};
}

void TestInstallationHeat::limitsAreBroughtIn()
{
    QFETCH(QVariantMap, values);
    driver->open(values);
    QTEST(driver->run("setHeatWaterTempRange"), "written");
    for (const auto &[combo, limit] : {std::make_pair("comboTemperatureWaterMin", lowLimit),
                                       std::make_pair("comboTemperatureWaterMax", highLimit)}) {
        const int stored =
            documents::changes(QJsonDocument(), driver->window.dialog.document()).value(limit).toInt();
        QCOMPARE(driver->shown(combo), QStringLiteral("%1°C").arg(stored));
    }
}

void TestInstallationHeat::closedSectionWritesNothing()
{
    driver->load();
    driver->put({{basis, "ENTRANCE"}, {lowLimit, 1}, {highLimit, 90}, {pump + "time", 5}});
    QVERIFY(driver->refresh().isEmpty());
    QCOMPARE(driver->shown("comboTemperatureWaterMin"), QStringLiteral("20°C"));
    QCOMPARE(driver->shown("comboTemperatureWaterMax"), QStringLiteral("55°C"));
    QCOMPARE(driver->shown("comboReferenceWater"), QStringLiteral("Inlet"));
    QCOMPARE(driver->shown("comboWaterPumpOffTimer"), QStringLiteral("5min"));
    Window::expand(driver->page);
    driver->window.use(QJsonDocument());
    Window::invoke(driver->page, "on_radioWaterPumpUse_clicked");
    QVERIFY(driver->window.dialog.document().isNull());
}

void TestInstallationHeat::basisBringsItsRangeAndDefaults()
{
    driver->open();
    Window::choose(driver->page, "comboReferenceWater", "Inlet");
    QCOMPARE(driver->items("comboTemperatureWaterMax"), range(35, 55, "°C"));
    QCOMPARE(driver->shown("comboTemperatureWaterMax"), QStringLiteral("55°C"));
    driver->open(documents::joined(seasons(1, 2, 3, 4), {{highLimit, 50}}));
    const QVariantMap changes = driver->window.changes([this] {
        QMetaObject::invokeMethod(driver->page, "on_comboReferenceWater_currentTextChanged",
                                  Q_ARG(QString, "x"));
    });
    QCOMPARE(changes, documents::joined(seasons(16, 20, 28, 35), {{basis, ""}}));
}

// In heating the main zone stays at or below the other circuit.
void TestInstallationHeat::twoCircuitsStayInLine()
{
    const QString other = constant + "ctrTemp";
    const QString main = constant + "ctrTempMainZone";
    driver->open({{mainZone, "SET"}, {other, 45}, {main, 30}});
    Window::choose(driver->page, "comboControlMainZoneTemp", "40°C");
    QCOMPARE(driver->items("comboControlWaterTemp"), range(40, 65, "°C"));
    QCOMPARE(driver->shown("comboControlWaterTemp"), QStringLiteral("45°C"));
    Window::choose(driver->page, "comboControlWaterTemp", "42°C");
    QCOMPARE(driver->items("comboControlMainZoneTemp"), range(20, 42, "°C"));
    QCOMPARE(driver->shown("comboControlMainZoneTemp"), QStringLiteral("40°C"));
    // Limits that shrink past one of them take both along.
    driver->open({{mainZone, "SET"}, {other, 60}, {main, 30}});
    QCOMPARE(driver->choose("comboTemperatureWaterMax", "50°C"),
             (QVariantMap{{highLimit, 50}, {other, 50}, {main, 50}}));
    driver->open({{mainZone, "SET"}, {other, 60}, {main, 25}});
    QCOMPARE(driver->choose("comboTemperatureWaterMin", "30°C"),
             (QVariantMap{{lowLimit, 30}, {other, 30}, {main, 30}}));
    QCOMPARE(driver->shown("comboControlWaterTemp"), QStringLiteral("30°C"));
    QCOMPARE(driver->shown("comboControlMainZoneTemp"), QStringLiteral("30°C"));
}

// Lists that move on a load run their slots, with all that these do.
void TestInstallationHeat::loadInOpenSectionRunsSlots()
{
    driver->open();
    QSignalSpy signal(driver->page, &InstallationHeat::refreshInstallationPageSignal);
    driver->put(documents::joined(seasons(1, 2, 3, 4), {{basis, "ENTRANCE"}, {highLimit, 60}}));
    QCOMPARE(driver->refresh(), documents::joined(seasons(16, 20, 28, 35), {{highLimit, 55}}));
    QCOMPARE(signal.size(), 1);
    driver->put(seasons(1, 2, 3, 4));
    QVERIFY(driver->refresh().isEmpty());
    QCOMPARE(signal.size(), 1);
    // 61 minutes have no item: the list shows none, saves what that makes, and ends on the first.
    driver->put({{pump + "timeOn", 61}});
    QCOMPARE(driver->refresh(), (QVariantMap{{pump + "timeOn", 0}}));
    QCOMPARE(driver->shown("comboWaterPumpOnTimer"), QStringLiteral("1min"));
}

void TestInstallationHeat::pumpLeavesTheColours()
{
    driver->open();
    for (const auto &[radio, enabled] :
         {std::make_pair("radioWaterPumpUse", true), std::make_pair("radioWaterPumpNotuse", false)}) {
        Window::click(driver->page, radio);
        for (const char *timer : {"comboWaterPumpOnTimer", "comboWaterPumpOffTimer"}) {
            QCOMPARE(driver->enabled(timer), enabled);
        }
        for (const char *label : {"labelOpeartionOn", "labelOpeartionOff"}) {
            QVERIFY(Window::find<QLabel>(driver->page, label)->styleSheet().isEmpty());
        }
    }
    // Reached by nothing but its name.
    Window::find<QRadioButton>(driver->page, "radioWaterPumpUse")->setChecked(true);
    QVERIFY(driver->run("enableWaterPumpOperationTimer").isEmpty());
    QVERIFY(driver->enabled("groupBoxOnTimer") && driver->enabled("groupBoxOffTimer"));
    QString look;
    QMetaObject::invokeMethod(driver->page, "setOpacity", Q_RETURN_ARG(QString, look), Q_ARG(bool, false));
    QCOMPARE(look, QStringLiteral("color : rgba(55,55,55,30%)"));
}

void TestInstallationHeat::validationNeedsTwoPairs()
{
    const auto valid = [this] {
        messages::clear();
        Window::invoke(driver->page, "validationCheck");
        return driver->window.dialog.members().results.heatSectionValid;
    };
    for (const auto &[first, second] : {std::make_pair("radioControlTypeAuto", "radioControlTypeManual"),
                                        std::make_pair("radioWaterPumpNotuse", "radioWaterPumpUse")}) {
        driver->open();
        QVERIFY(valid());
        driver->uncheck({first, second});
        QVERIFY2(!valid(), first);
        QVERIFY(messages::contain("InstallationHeat::validationCheck validation check failed!!"));
        QVERIFY(Window::shownItself(&driver->window.dialog, "installationValidationIcon"));
        Window::expand(driver->page, false);
        QVERIFY2(valid(), first);
        Window::find<QRadioButton>(driver->page, second)->setChecked(true);
    }
    // The second pair isn't tried once the first has failed.
    driver->open();
    driver->uncheck(
        {"radioControlTypeAuto", "radioControlTypeManual", "radioWaterPumpNotuse", "radioWaterPumpUse"});
    QVERIFY(!valid());
    QVERIFY(messages::contain("radioControlTypeAuto") && !messages::contain("radioWaterPumpNotuse"));
}

CALORA_TEST_MAIN(TestInstallationHeat)
#include "tst_installationheat.moc"
