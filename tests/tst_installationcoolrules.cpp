#include "support/watersection.h"

#include "pages/installation/installationcool.h"

#include <QSignalSpy>

#include <memory>

using water::Driver;
using water::flag;
using water::mainZone;
using water::root;
using water::seasons;
using water::sensed;

namespace {

const QString constant = QStringLiteral("SettingInfo.func.waterCtrBasisAirCool.");
const QString lowLimit = root + QStringLiteral("settempLimit.coolWater.low_limit");
const QString highLimit = root + QStringLiteral("settempLimit.coolWater.high_limit");
const QString basis = root + QStringLiteral("coolWaterControlBasis");
const QString fanCoil = root + QStringLiteral("UFH_stop.FCU_disable");
const QString pump = root + QStringLiteral("pumpOperOptionInCool.");

} // namespace

// What controls of the cooling section do to each other.
class TestInstallationCoolRules : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { driver = std::make_unique<Driver<InstallationCool>>(); }
    void cleanupTestCase() { driver.reset(); }

    void defaultDocuments();
    void limitsAreBroughtIn_data();
    void limitsAreBroughtIn();
    void absurdLimitsEndTheLists();
    void distantLimitKeepsTheValue();
    void closedSectionWritesNothing();
    void basisBringsItsRangeAndDefaults();
    void fanCoilSlotsDiffer();
    void twoCircuitsStayInLine();
    void loadInOpenSectionRunsSlots();
    void pumpColoursItsTimers();
    void operationsNothingCalls();
    void validationNeedsThreePairs();
    void validationStopsAtTheFirstPair();

private:
    std::unique_ptr<Driver<InstallationCool>> driver;
};

void TestInstallationCoolRules::defaultDocuments()
{
    for (const char *refrigerant : {"R32", "R410"}) {
        driver->window.use(documents::standard(QLatin1String(refrigerant)));
        driver->window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
        Window::expand(driver->page);
        QVERIFY(driver->refresh().isEmpty());
        QCOMPARE(driver->items("comboTemperatureWaterMin"), range(16, 20, "°C"));
        QCOMPARE(driver->items("comboTemperatureWaterMax"), range(22, 27, "°C"));
        QCOMPARE(driver->shown("comboTemperatureWaterMin"), QStringLiteral("18°C"));
        QCOMPARE(driver->shown("comboTemperatureWaterMax"), QStringLiteral("24°C"));
        QVERIFY(driver->window.dialog.members().results.coolSectionValid);
    }
}

void TestInstallationCoolRules::limitsAreBroughtIn_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QVariantMap>("written");
    QTest::addColumn<QString>("low");
    QTest::addColumn<QString>("high");
    QTest::newRow("inside") << QVariantMap{} << QVariantMap{} << "18°C"
                            << "24°C";
    QTest::newRow("below") << QVariantMap{{lowLimit, 15}, {highLimit, 20}}
                           << QVariantMap{{lowLimit, 16}, {highLimit, 22}} << "16°C"
                           << "22°C";
    QTest::newRow("above") << QVariantMap{{lowLimit, 21}, {highLimit, 28}}
                           << QVariantMap{{lowLimit, 20}, {highLimit, 27}} << "20°C"
                           << "27°C";
    QTest::newRow("missing") << QVariantMap{{lowLimit, QVariant()}, {highLimit, QVariant()}}
                             << QVariantMap{{lowLimit, 16}, {highLimit, 22}} << "16°C"
                             << "22°C";
    QTest::newRow("no numbers") << QVariantMap{{lowLimit, "18"}, {highLimit, 24.5}}
                                << QVariantMap{{lowLimit, 16}, {highLimit, 22}} << "16°C"
                                << "22°C";
    QTest::newRow("no range") << QVariantMap{{flag("isR32"), "CLR"}} << QVariantMap{{lowLimit, -1}} << "-1°C"
                              << "24°C";
}

void TestInstallationCoolRules::limitsAreBroughtIn()
{
    QFETCH(QVariantMap, values);
    driver->open(values);
    QTEST(driver->run("setCoolWaterTempRange"), "written");
    QTEST(driver->shown("comboTemperatureWaterMin"), "low");
    QTEST(driver->shown("comboTemperatureWaterMax"), "high");
}

// A closed section shows limits of a damaged document, and can't bring them in.
void TestInstallationCoolRules::absurdLimitsEndTheLists()
{
    driver->load({{lowLimit, 0}, {highLimit, 2147483647}, {pump + "time", 2147483647}});
    QCOMPARE(driver->items("comboControlWaterTemp"), range(0, 29999, "°C"));
    QCOMPARE(driver->items("comboControlMainZoneTemp"), range(0, 29999, "°C"));
    QCOMPARE(driver->items("comboTemperatureWaterMax"), range(22, 27, "°C"));
    driver->load({{lowLimit, -2147483647}, {highLimit, 2147483647}}, QStringLiteral("FAHRENHEIT"));
    QCOMPARE(driver->items("comboControlWaterTemp"), QStringList{"0°F"});
}

// A limit that is only far off makes a long list, which the value is in.
void TestInstallationCoolRules::distantLimitKeepsTheValue()
{
    driver->load({{lowLimit, -9999}, {highLimit, 27}, {constant + "ctrTemp", 18}});
    QCOMPARE(driver->items("comboControlWaterTemp").first(), QStringLiteral("-9999°C"));
    QCOMPARE(driver->shown("comboControlWaterTemp"), QStringLiteral("18°C"));
}

void TestInstallationCoolRules::closedSectionWritesNothing()
{
    driver->load({{basis, "EXIT"}});
    const QJsonDocument before = documents::with(
        driver->window.dialog.document(),
        {{basis, "ENTRANCE"}, {lowLimit, 1}, {highLimit, 90}, {pump + "time", 5}, {fanCoil, "CLR"}});
    driver->window.use(before);
    driver->page->refresh();
    QCOMPARE(driver->window.dialog.document(), before);
    QCOMPARE(driver->shown("comboTemperatureWaterMin"), QStringLiteral("10°C"));
    QCOMPARE(driver->shown("comboTemperatureWaterMax"), QStringLiteral("27°C"));
    QCOMPARE(driver->shown("comboReferenceWater"), QStringLiteral("Inlet"));
    QCOMPARE(driver->shown("comboWaterPumpOffTimer"), QStringLiteral("5min"));
    // Nor does an open one write into an empty document.
    Window::expand(driver->page);
    driver->window.use(QJsonDocument());
    Window::invoke(driver->page, "on_radioFanCoilNotuse_clicked");
    QVERIFY(driver->window.dialog.document().isNull());
}

void TestInstallationCoolRules::basisBringsItsRangeAndDefaults()
{
    driver->open();
    Window::choose(driver->page, "comboReferenceWater", "Inlet");
    QCOMPARE(driver->items("comboTemperatureWaterMin"), QStringList{"20°C"});
    QCOMPARE(driver->shown("comboTemperatureWaterMin"), QStringLiteral("20°C"));
    // An unknown text is saved as an empty word.
    driver->open(seasons(1, 2, 3, 4));
    const QVariantMap changes = driver->window.changes([this] {
        QMetaObject::invokeMethod(driver->page, "on_comboReferenceWater_currentTextChanged",
                                  Q_ARG(QString, "x"));
    });
    QCOMPARE(changes, documents::joined(seasons(20, 20, 28, 35), {{basis, ""}}));
    QCOMPARE(driver->items("comboTemperatureWaterMin"), range(16, 18, "°C"));
    // The defaults go by the exact word.
    driver->open(documents::joined(seasons(1, 2, 3, 4), {{basis, "exit"}}));
    QCOMPARE(driver->run("initSeasonalAutoRange"), seasons(20, 20, 28, 35));
}

void TestInstallationCoolRules::fanCoilSlotsDiffer()
{
    driver->open(documents::joined(seasons(1, 2, 3, 4), {{lowLimit, 18}}));
    QVERIFY(driver->enabled("comboForcerWater"));
    Window::click(driver->page, "radioFanCoilUse");
    QVERIFY(!driver->enabled("comboForcerWater"));
    QCOMPARE(driver->items("comboTemperatureWaterMin"), range(5, 20, "°C"));
    Window::choose(driver->page, "comboTemperatureWaterMin", "7°C");
    // Back without the unit: the range is narrower, and the stored limit comes into it.
    QCOMPARE(driver->click("radioFanCoilNotuse"),
             documents::joined(seasons(16, 20, 28, 35), {{fanCoil, "SET"}, {lowLimit, 16}}));
    QVERIFY(driver->enabled("comboForcerWater"));
    QCOMPARE(driver->shown("comboTemperatureWaterMin"), QStringLiteral("16°C"));
}

void TestInstallationCoolRules::twoCircuitsStayInLine()
{
    const QString other = constant + "ctrTemp";
    const QString main = constant + "ctrTempMainZone";
    driver->open({{mainZone, "SET"}, {other, 19}, {main, 22}});
    QCOMPARE(driver->items("comboControlWaterTemp"), range(18, 22, "°C"));
    Window::choose(driver->page, "comboControlMainZoneTemp", "20°C");
    QCOMPARE(driver->items("comboControlWaterTemp"), range(18, 20, "°C"));
    QCOMPARE(driver->shown("comboControlWaterTemp"), QStringLiteral("19°C"));
    Window::choose(driver->page, "comboControlWaterTemp", "20°C");
    QCOMPARE(driver->items("comboControlMainZoneTemp"), range(20, 24, "°C"));
    QCOMPARE(driver->shown("comboControlMainZoneTemp"), QStringLiteral("20°C"));
    // Limits that shrink past one of them take both along.
    driver->open({{mainZone, "SET"}, {other, 18}, {main, 22}});
    QCOMPARE(driver->choose("comboTemperatureWaterMin", "20°C"),
             (QVariantMap{{lowLimit, 20}, {other, 20}, {main, 20}}));
    driver->open({{mainZone, "SET"}, {other, 18}, {main, 24}});
    QCOMPARE(driver->choose("comboTemperatureWaterMax", "22°C"),
             (QVariantMap{{highLimit, 22}, {other, 22}, {main, 22}}));
    QCOMPARE(driver->shown("comboControlWaterTemp"), QStringLiteral("22°C"));
    QCOMPARE(driver->shown("comboControlMainZoneTemp"), QStringLiteral("22°C"));
}

// Lists that move on a load run their slots, with all that these do.
void TestInstallationCoolRules::loadInOpenSectionRunsSlots()
{
    driver->open();
    QSignalSpy signal(driver->page, &InstallationCool::refreshInstallationPageSignal);
    const QVariantMap values = documents::joined(seasons(1, 2, 3, 4),
                                                 {{basis, "ENTRANCE"}, {lowLimit, 20}, {pump + "time", 0}});
    driver->put(values);
    QCOMPARE(driver->refresh(), seasons(20, 20, 28, 35));
    QCOMPARE(signal.size(), 1);
    // Now they stand where they should, and a load is quiet.
    driver->put(seasons(1, 2, 3, 4));
    QVERIFY(driver->refresh().isEmpty());
    QCOMPARE(signal.size(), 1);
    // A word that has no item lands on the first, which is saved if the list moves.
    driver->open({{root + "coolAirThermoOnOff", "STEP2"}});
    driver->put({{root + "coolAirThermoOnOff", "x"}});
    QCOMPARE(driver->refresh(), (QVariantMap{{root + "coolAirThermoOnOff", "STEP0"}}));
}

void TestInstallationCoolRules::pumpColoursItsTimers()
{
    driver->open();
    const auto *on = Window::find<QLabel>(driver->page, "labelOpeartionOn");
    const auto *off = Window::find<QLabel>(driver->page, "labelOpeartionOff");
    Window::click(driver->page, "radioWaterPumpNotuse");
    QCOMPARE(on->styleSheet(), QStringLiteral("color : rgba(55,55,55,30%)"));
    QCOMPARE(off->styleSheet(), QStringLiteral("color : rgba(55,55,55,30%)"));
    QVERIFY(!driver->enabled("comboWaterPumpOnTimer"));
    QVERIFY(!driver->enabled("comboWaterPumpOffTimer"));
    Window::click(driver->page, "radioWaterPumpUse");
    QCOMPARE(on->styleSheet(), QStringLiteral("color : #555555;"));
    QCOMPARE(off->styleSheet(), QStringLiteral("color : #555555;"));
    QVERIFY(driver->enabled("comboWaterPumpOnTimer"));
    QVERIFY(driver->enabled("comboWaterPumpOffTimer"));
}

void TestInstallationCoolRules::operationsNothingCalls()
{
    driver->open({{fanCoil, "CLR"}, {lowLimit, 10}, {highLimit, 27}});
    QVERIFY(driver->run("changeWaterTempByFCU").isEmpty());
    QCOMPARE(driver->shown("comboTemperatureWaterMin"), QStringLiteral("5°C"));
    QCOMPARE(driver->shown("comboTemperatureWaterMax"), QStringLiteral("24°C"));
    driver->open({{lowLimit, 16}});
    Window::invoke(driver->page, "changeWaterTempByFCU");
    QCOMPARE(driver->shown("comboTemperatureWaterMin"), QStringLiteral("18°C"));
    Window::find<QRadioButton>(driver->page, "radioFanCoilUse")->setChecked(true);
    Window::invoke(driver->page, "enableFcuWaterTemp");
    QVERIFY(!driver->enabled("groupBoxForcedWaterTemp"));
    QString look;
    QMetaObject::invokeMethod(driver->page, "setOpacity", Q_RETURN_ARG(QString, look), Q_ARG(bool, true));
    QCOMPARE(look, QStringLiteral("color : #555555;"));
    QJsonValue value;
    QMetaObject::invokeMethod(driver->page, "parseJsonData", Q_RETURN_ARG(QJsonValue, value),
                              Q_ARG(QString, lowLimit));
    QCOMPARE(value.toInt(), 16);
}

void TestInstallationCoolRules::validationNeedsThreePairs()
{
    const QString failed = QStringLiteral("InstallationCool::validationCheck validation check failed!!");
    const auto valid = [this] {
        messages::clear();
        Window::invoke(driver->page, "validationCheck");
        return driver->window.dialog.members().results.coolSectionValid;
    };
    for (const auto &pair : {std::make_pair("radioControlTypeAuto", "radioControlTypeManual"),
                             std::make_pair("radioFanCoilNotuse", "radioFanCoilUse"),
                             std::make_pair("radioWaterPumpNotuse", "radioWaterPumpUse")}) {
        driver->open();
        QVERIFY(valid());
        QVERIFY(messages::contain("InstallationCool::SettingUser validation succeed!"));
        driver->uncheck({pair.first, pair.second});
        QVERIFY2(!valid(), pair.first);
        QVERIFY(messages::contain(failed));
        QVERIFY(Window::shownItself(&driver->window.dialog, "installationValidationIcon"));
        // What isn't seen isn't asked for.
        Window::expand(driver->page, false);
        QVERIFY2(valid(), pair.first);
        Window::find<QRadioButton>(driver->page, pair.second)->setChecked(true);
    }
    driver->open({{fanCoil, "x"}});
    QVERIFY(!valid());
    driver->open({{fanCoil, "x"}, {flag("is_cool"), "CLR"}});
    QVERIFY(valid());
    driver->open({{sensed, "WATER"}});
    driver->uncheck({"radioControlTypeAuto", "radioControlTypeManual"});
    QVERIFY(valid());
}

void TestInstallationCoolRules::validationStopsAtTheFirstPair()
{
    driver->open();
    driver->uncheck({"radioFanCoilNotuse", "radioFanCoilUse", "radioWaterPumpNotuse", "radioWaterPumpUse"});
    const auto complaints = [this] {
        messages::clear();
        Window::invoke(driver->page, "validationCheck");
        QStringList radios;
        for (const char *radio : {"radioControlTypeAuto", "radioFanCoilNotuse", "radioWaterPumpNotuse"}) {
            if (messages::contain(QLatin1String(radio))) {
                radios.append(QLatin1String(radio));
            }
        }
        return radios;
    };
    QCOMPARE(complaints(), QStringList{"radioFanCoilNotuse"});
    driver->uncheck({"radioControlTypeAuto", "radioControlTypeManual"});
    QCOMPARE(complaints(), QStringList{"radioControlTypeAuto"});
}

CALORA_TEST_MAIN(TestInstallationCoolRules)
#include "tst_installationcoolrules.moc"
