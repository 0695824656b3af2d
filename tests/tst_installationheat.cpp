#include "support/watersection.h"

#include "pages/installation/installationheat.h"

#include <QSignalSpy>

#include <memory>

using water::airAndWater;
using water::Driver;
using water::flag;
using water::mainZone;
using water::root;
using water::seasons;
using water::sensed;

namespace {

const QString constant = QStringLiteral("SettingInfo.func.waterCtrBasisAirHeat.");
const QString air = root + QStringLiteral("settempLimit.heatAir.");
const QString lowLimit = root + QStringLiteral("settempLimit.heatWater.low_limit");
const QString highLimit = root + QStringLiteral("settempLimit.heatWater.high_limit");
const QString basis = root + QStringLiteral("heatWaterControlBasis");
const QString airThermo = root + QStringLiteral("typeOfHeat_Air_thermo");
const QString waterThermo = root + QStringLiteral("typeOfHeat_Water_thermo");
const QString pump = root + QStringLiteral("pumpOperOptionInHeat.");
const QString heater = flag("is_installed_heater");

} // namespace

// The controls of the heating section: texts, lists, what each shows and writes.
class TestInstallationHeat : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { driver = std::make_unique<Driver<InstallationHeat>>(); }
    void cleanupTestCase() { driver.reset(); }

    void startsClosedWithoutDocument();
    void slotsAreDeclaredInOrder();
    void textsFollowTheLanguage_data();
    void textsFollowTheLanguage();
    void constantIsNamedByCircuits();
    void languageKeepsPositions();
    void writes_data();
    void writes();
    void fahrenheit();
    void loads_data();
    void loads();
    void listsOffer_data();
    void listsOffer();
    void defaultDocuments();
    void shownWhen_data();
    void shownWhen();
    void enabledWhen_data();
    void enabledWhen();
    void signalComesLast_data();
    void signalComesLast();

private:
    std::unique_ptr<Driver<InstallationHeat>> driver;
};

void TestInstallationHeat::startsClosedWithoutDocument()
{
    QVERIFY(!Window::shownItself(driver->page, "frame"));
    QCOMPARE(driver->items("comboReferenceWater"), (QStringList{"Outlet", "Inlet"}));
    for (const char *combo : {"comboTNIndoorAirTemp", "comboTNIndoorWaterTemp"}) {
        QCOMPARE(driver->items(combo), (QStringList{"STEP0", "STEP1", "STEP2", "STEP3"}));
    }
    for (const char *combo : {"comboWaterPumpOnTimer", "comboWaterPumpOffTimer"}) {
        QCOMPARE(driver->items(combo), range(1, 60, "min"));
    }
    QCOMPARE(driver->items("comboTemperatureIndoorMin"), range(16, 22, "°C"));
    QCOMPARE(driver->items("comboTemperatureIndoorMax"), range(24, 30, "°C"));
    for (const char *combo : {"comboTemperatureWaterMin", "comboTemperatureWaterMax", "comboControlWaterTemp",
                              "comboControlMainZoneTemp"}) {
        QVERIFY2(driver->items(combo).isEmpty(), combo);
    }
}

void TestInstallationHeat::slotsAreDeclaredInOrder()
{
    QCOMPARE(Window::ownSignals(driver->page), QStringList{"refreshInstallationPageSignal()"});
    QCOMPARE(Window::ownSlots(driver->page),
             (QStringList{"initUi()",
                          "initDefaultTempRange()",
                          "refresh()",
                          "saveJsonData(QString,QJsonValue)",
                          "parseJsonData(QString)",
                          "loadJsonData()",
                          "setloadJsonValue()",
                          "enableWaterPumpOperationTimer()",
                          "enableTemperatureControl()",
                          "setControlWaterTempRange()",
                          "setOpacity(bool)",
                          "setHeatWaterTempRange()",
                          "on_hideButton_clicked()",
                          "on_comboReferenceWater_currentTextChanged(QString)",
                          "on_comboTemperatureIndoorMin_currentTextChanged(QString)",
                          "on_comboTemperatureIndoorMax_currentTextChanged(QString)",
                          "on_comboTemperatureWaterMin_currentTextChanged(QString)",
                          "on_comboTemperatureWaterMax_currentTextChanged(QString)",
                          "on_comboTNIndoorAirTemp_currentTextChanged(QString)",
                          "on_comboTNIndoorWaterTemp_currentTextChanged(QString)",
                          "on_comboWaterPumpOnTimer_currentIndexChanged(int)",
                          "on_comboWaterPumpOffTimer_currentIndexChanged(int)",
                          "on_radioWaterPumpUse_clicked()",
                          "on_radioWaterPumpNotuse_clicked()",
                          "on_radioControlTypeAuto_clicked()",
                          "on_radioControlTypeManual_clicked()",
                          "on_comboControlWaterTemp_currentTextChanged(QString)",
                          "on_comboControlMainZoneTemp_currentTextChanged(QString)",
                          "validationCheck()",
                          "changeLanguage()",
                          "changeLanguageInCombobox()",
                          "initSeasonalAutoRange()"}));
}

void TestInstallationHeat::textsFollowTheLanguage_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("labelTitle") << "Heating mode";
    QTest::newRow("labelControlBasisTemp") << "Temp. control method";
    QTest::newRow("labelTempRange") << "Temp. limitation\n(Constant mode)";
    QTest::newRow("labelTempIndoor") << "Indoor air temp.";
    QTest::newRow("labelTemperatureIndoorMin") << "Min";
    QTest::newRow("labelTemperatureIndoorMax") << "Max";
    QTest::newRow("labelTempWater") << "Water temp.";
    QTest::newRow("labelTemperatureWaterMin") << "Min";
    QTest::newRow("labelTemperatureWaterMax") << "Max";
    QTest::newRow("labelTemperatureControl") << "Auto/Constant control";
    QTest::newRow("labelControlType") << "Mode";
    QTest::newRow("radioControlTypeAuto") << "Auto";
    QTest::newRow("radioControlTypeManual") << "Constant";
    QTest::newRow("labelControlMainZoneTemp") << "Constant water temp.\n(Circuit 1)";
    QTest::newRow("labelTHOnOff") << "Hysteresis (TH on/off)";
    QTest::newRow("labelTHIndoor") << "Indoor air temp.";
    QTest::newRow("labelTHWater") << "Water temp.";
    QTest::newRow("labelWaterPump") << "Water pump cycling";
    QTest::newRow("radioWaterPumpNotuse") << "Continuous operation";
    QTest::newRow("radioWaterPumpUse") << "Time setting";
    QTest::newRow("labelOpeartionOn") << "ON time";
    QTest::newRow("labelOpeartionOff") << "OFF time";
}

void TestInstallationHeat::textsFollowTheLanguage() { driver->window.followsTheLanguage(driver->page); }

void TestInstallationHeat::constantIsNamedByCircuits()
{
    const auto *label = Window::find<QLabel>(driver->page, "labelControlWaterTemp");
    driver->load({{mainZone, "set"}});
    QCOMPARE(label->text(), QStringLiteral("Constant water temp.\n(Circuit 2)"));
    driver->load({{mainZone, "x"}});
    QCOMPARE(label->text(), QStringLiteral("Constant water temp."));
    driver->put({{mainZone, "SET"}});
    driver->page->refresh();
    QCOMPARE(label->text(), QStringLiteral("Constant water temp.\n(Circuit 2)"));
}

void TestInstallationHeat::languageKeepsPositions()
{
    driver->open({{basis, "ENTRANCE"},
                  {highLimit, 50},
                  {airThermo, "STEP2"},
                  {waterThermo, "STEP3"},
                  {pump + "timeOn", 59},
                  {pump + "time", 7}});
    const auto speak = [this] { driver->window.speak(QStringLiteral("~")); };
    QVERIFY(driver->window.changes(speak).isEmpty());
    QCOMPARE(driver->items("comboReferenceWater"), (QStringList{"Outlet~", "Inlet~"}));
    QCOMPARE(driver->shown("comboReferenceWater"), QStringLiteral("Inlet~"));
    QCOMPARE(driver->shown("comboTNIndoorAirTemp"), QStringLiteral("STEP2~"));
    QCOMPARE(driver->shown("comboTNIndoorWaterTemp"), QStringLiteral("STEP3~"));
    QCOMPARE(driver->shown("comboWaterPumpOnTimer"), QStringLiteral("59min~"));
    QCOMPARE(driver->shown("comboWaterPumpOffTimer"), QStringLiteral("7min~"));
    QCOMPARE(driver->choose("comboTNIndoorAirTemp", "STEP1~"), (QVariantMap{{airThermo, "STEP1"}}));
    QCOMPARE(driver->choose("comboReferenceWater", "Outlet~").value(basis).toString(),
             QStringLiteral("EXIT"));
    driver->window.speak();
}

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
    row("comboTemperatureIndoorMin", {}, "20°C", {{air + "low_limit", 20}});
    row("comboTemperatureIndoorMax", {}, "25°C", {{air + "high_limit", 25}});
    row("comboTemperatureWaterMin", {}, "34°C", {{lowLimit, 34}});
    row("comboTemperatureWaterMin", {{constant + "ctrTemp", 30}}, "31°C",
        {{lowLimit, 31}, {constant + "ctrTemp", 31}, {constant + "ctrTempMainZone", 31}});
    row("comboTemperatureWaterMax", {}, "35°C", {{highLimit, 35}});
    row("comboTemperatureWaterMax", {{constant + "ctrTemp", 60}}, "50°C",
        {{highLimit, 50}, {constant + "ctrTemp", 50}, {constant + "ctrTempMainZone", 50}});
    row("radioControlTypeAuto", {}, "", {{constant + "ctrType", "AUTO"}});
    row("radioControlTypeManual", {{constant + "ctrType", "AUTO"}}, "", {{constant + "ctrType", "MANUAL"}});
    const QVariantMap both{{constant + "ctrTemp", 40}, {constant + "ctrTempMainZone", 40}};
    row("comboControlWaterTemp", {}, "40°C", both);
    row("comboControlWaterTemp", {{mainZone, "clr"}}, "40°C", both);
    row("comboControlWaterTemp", {{mainZone, "x"}}, "40°C", {{constant + "ctrTemp", 40}});
    row("comboControlWaterTemp", {{mainZone, "SET"}}, "40°C", {{constant + "ctrTemp", 40}});
    row("comboControlMainZoneTemp", {{mainZone, "SET"}}, "30°C", {{constant + "ctrTempMainZone", 30}});
    row("comboTNIndoorAirTemp", {}, "STEP2", {{airThermo, "STEP2"}});
    row("comboTNIndoorAirTemp", {{airThermo, "STEP1"}}, "STEP0", {{airThermo, "STEP0"}});
    row("comboTNIndoorWaterTemp", {}, "STEP3", {{waterThermo, "STEP3"}});
    row("radioWaterPumpNotuse", {{pump + "option", "CLR"}}, "", {{pump + "option", "SET"}});
    row("radioWaterPumpUse", {}, "", {{pump + "option", "CLR"}});
    row("comboWaterPumpOnTimer", {{pump + "option", "CLR"}}, "10min", {{pump + "timeOn", 10}});
    row("comboWaterPumpOffTimer", {{pump + "option", "CLR"}}, "60min", {{pump + "time", 60}});
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

void TestInstallationHeat::fahrenheit()
{
    driver->open({}, QStringLiteral("FAHRENHEIT"));
    QCOMPARE(driver->items("comboTemperatureIndoorMin"), range(60, 72, "°F", 2));
    QCOMPARE(driver->items("comboTemperatureWaterMax"), range(94, 148, "°F", 2));
    QCOMPARE(driver->shown("comboTemperatureWaterMin"), QStringLiteral("68°F"));
    QCOMPARE(driver->choose("comboTemperatureIndoorMax", "76°F"), (QVariantMap{{air + "high_limit", 24}}));
    QCOMPARE(driver->choose("comboTemperatureWaterMax", "122°F"), (QVariantMap{{highLimit, 50}}));
}

void TestInstallationHeat::loads_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *control, const QString &path, const QVariant &value,
                        const char *expected) {
        const QVariantMap values{{path, value}};
        QTest::newRow(water::rowName(control, values).constData()) << values << QString::fromUtf8(expected);
    };
    row("comboReferenceWater", basis, "entrance", "Inlet");
    row("comboReferenceWater", basis, "x", "Inlet"); // as it stood
    row("comboReferenceWater", basis, "exit", "Outlet");
    row("comboTemperatureIndoorMin", air + "low_limit", 19, "19°C");
    row("comboTemperatureIndoorMax", air + "high_limit", 26, "26°C");
    row("comboTemperatureWaterMin", lowLimit, 25, "25°C");
    row("comboTemperatureWaterMax", highLimit, 50, "50°C");
    row("comboControlWaterTemp", constant + "ctrTemp", 45, "45°C");
    row("comboControlWaterTemp", constant + "ctrTemp", 80, "65°C");
    row("comboControlMainZoneTemp", constant + "ctrTempMainZone", 44, "44°C");
    row("comboTNIndoorAirTemp", airThermo, "STEP3", "STEP3");
    row("comboTNIndoorAirTemp", airThermo, "STEP4", "STEP0");
    row("comboTNIndoorWaterTemp", waterThermo, "STEP1", "STEP1");
    row("comboTNIndoorWaterTemp", waterThermo, "", "STEP0");
    row("comboWaterPumpOnTimer", pump + "timeOn", 60, "60min");
    row("comboWaterPumpOffTimer", pump + "time", 30, "30min");
    row("radioControlTypeAuto", constant + "ctrType", "auto", "true");
    row("radioControlTypeAuto", constant + "ctrType", "x", "true"); // as it stood
    row("radioControlTypeManual", constant + "ctrType", "manual", "true");
    row("radioWaterPumpUse", pump + "option", "clr", "true");
    row("radioWaterPumpUse", pump + "option", "x", "true"); // as it stood
    row("radioWaterPumpNotuse", pump + "option", "set", "true");
}

void TestInstallationHeat::loads()
{
    QFETCH(QVariantMap, values);
    QFETCH(QString, expected);
    const QByteArray control = water::rowControl();
    driver->load(values);
    if (control.startsWith("radio")) {
        QCOMPARE(QVariant(driver->checked(control.constData())).toString(), expected);
    } else {
        QCOMPARE(driver->shown(control.constData()), expected);
    }
}

void TestInstallationHeat::listsOffer_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");

    const auto row = [](const char *combo, const QVariantMap &values, int low, int high) {
        QTest::newRow(water::rowName(combo, values).constData()) << values << low << high;
    };
    row("comboTemperatureIndoorMin", {{flag("isCoolAir16"), "CLR"}}, 16, 22);
    row("comboTemperatureIndoorMax", {}, 24, 30);
    row("comboTemperatureWaterMin", {}, 20, 34);
    row("comboTemperatureWaterMin", {{heater, "set"}}, 15, 34);
    row("comboTemperatureWaterMax", {}, 35, 65);
    row("comboTemperatureWaterMax", {{basis, "exit"}}, 35, 65);
    row("comboTemperatureWaterMax", {{basis, "x"}}, 35, 55);
    row("comboTemperatureWaterMax", {{flag("isR32"), "CLR"}}, 35, 57);
    row("comboTemperatureWaterMax", {{flag("isR32"), "CLR"}, {basis, "ENTRANCE"}}, 35, 50);
    row("comboControlWaterTemp", {}, 20, 65);
    row("comboControlMainZoneTemp", {}, 20, 65);
    const QVariantMap constants{{constant + "ctrTemp", 45}, {constant + "ctrTempMainZone", 30}};
    row("comboControlWaterTemp", constants, 20, 65);
    row("comboControlWaterTemp", documents::joined(constants, {{mainZone, "SET"}}), 30, 65);
    row("comboControlMainZoneTemp", documents::joined(constants, {{mainZone, "set"}}), 20, 45);
    // A circuit's value beyond the limits leaves the whole list.
    row("comboControlWaterTemp", {{mainZone, "SET"}, {constant + "ctrTempMainZone", 70}}, 20, 65);
    row("comboControlMainZoneTemp", {{mainZone, "SET"}, {constant + "ctrTemp", 10}}, 20, 65);
}

void TestInstallationHeat::listsOffer()
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

void TestInstallationHeat::shownWhen_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<bool>("shown");

    const auto row = [](const char *group, const QVariantMap &values, bool shown) {
        QTest::newRow(water::rowName(group, values).constData()) << values << shown;
    };
    const QString basisFlag = flag("is_heatwatercontrolbasis");
    row("groupBoxControlBasisTemp", {{sensed, "water"}, {basisFlag, "set"}, {airAndWater, "CLR"}}, true);
    row("groupBoxControlBasisTemp", {{sensed, "WATER"}, {basisFlag, "CLR"}}, false);
    row("groupBoxControlBasisTemp", {{sensed, "WATER"}, {flag("isR32"), "CLR"}}, false);
    row("groupBoxControlBasisTemp", {{sensed, "air"}, {airAndWater, "set"}, {basisFlag, "CLR"}}, true);
    row("groupBoxControlBasisTemp", {{sensed, "AIR"}, {airAndWater, "CLR"}}, false);
    row("groupBoxControlBasisTemp", {{sensed, "AIR"}, {flag("isR32"), "CLR"}}, false);
    for (const char *group : {"groupBoxTempRange", "groupBoxTempIndoor", "groupBoxTempWater"}) {
        row(group, {{flag("is_cool"), "CLR"}}, true);
    }
    for (const char *group : {"groupBoxTHOnOff", "groupBoxTHIndoor", "groupBoxTHWater"}) {
        row(group, {{flag("isHeatThermoOnOff"), "set"}}, true);
        row(group, {{flag("isHeatThermoOnOff"), "CLR"}}, false);
    }
    row("groupBoxWaterPump", {}, true);
    row("groupBoxWaterPump", {{flag("is_PumpOperationSettingInHeat"), "CLR"}}, false);
    row("groupBoxWaterPump", {{flag("is_PumpOperationSettingInHeatOn"), "CLR"}}, false);
    row("groupBoxTemperatureControl", {}, true);
    row("groupBoxTemperatureControl", {{flag("isWaterCtrBasisAir"), "CLR"}}, false);
    row("groupBoxTemperatureControl", {{sensed, "WATER"}}, false);
    row("groupBoxTemperatureControl", {{airAndWater, "CLR"}}, false);
    row("groupBoxCrtMainZone", {{mainZone, "set"}}, true);
    row("groupBoxCrtMainZone", {{mainZone, "CLR"}}, false);
}

void TestInstallationHeat::shownWhen()
{
    QFETCH(QVariantMap, values);
    driver->load(values);
    QTEST(Window::shownItself(driver->page, water::rowControl().constData()), "shown");
}

void TestInstallationHeat::enabledWhen_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<bool>("enabled");

    const auto row = [](const char *group, const QVariantMap &values, bool enabled) {
        QTest::newRow(water::rowName(group, values).constData()) << values << enabled;
    };
    for (const char *group : {"groupBoxCrtWaterTemp", "groupBoxCrtMainZone"}) {
        row(group, {{constant + "ctrType", "AUTO"}}, false);
        row(group, {{constant + "ctrType", "MANUAL"}}, true);
    }
    for (const char *group : {"groupBoxOnTimer", "groupBoxOffTimer"}) {
        row(group, {{pump + "option", "CLR"}}, true);
        row(group, {{pump + "option", "SET"}}, false);
    }
}

void TestInstallationHeat::enabledWhen()
{
    QFETCH(QVariantMap, values);
    driver->load(values);
    QTEST(driver->enabled(water::rowControl().constData()), "enabled");
}

void TestInstallationHeat::signalComesLast_data()
{
    QTest::addColumn<QString>("item"); // none for a radio
    QTest::addColumn<int>("times");
    QTest::newRow("comboReferenceWater") << "Inlet" << 1;
    QTest::newRow("comboTemperatureIndoorMin") << "20°C" << 1;
    QTest::newRow("comboTemperatureIndoorMax") << "25°C" << 1;
    QTest::newRow("comboTemperatureWaterMin") << "25°C" << 1;
    QTest::newRow("comboTemperatureWaterMax") << "50°C" << 1;
    QTest::newRow("radioControlTypeAuto") << "" << 0;
    QTest::newRow("radioControlTypeManual") << "" << 0;
    QTest::newRow("comboControlWaterTemp") << "40°C" << 0;
    QTest::newRow("comboControlMainZoneTemp") << "30°C" << 0;
    QTest::newRow("comboTNIndoorAirTemp") << "STEP1" << 0;
    QTest::newRow("comboTNIndoorWaterTemp") << "STEP1" << 0;
    QTest::newRow("radioWaterPumpNotuse") << "" << 0;
    QTest::newRow("radioWaterPumpUse") << "" << 0;
    QTest::newRow("comboWaterPumpOnTimer") << "5min" << 0;
    QTest::newRow("comboWaterPumpOffTimer") << "5min" << 0;
}

void TestInstallationHeat::signalComesLast()
{
    QFETCH(QString, item);
    driver->open({{mainZone, "SET"}, {pump + "option", "CLR"}});
    QSignalSpy signal(driver->page, &InstallationHeat::refreshInstallationPageSignal);
    QJsonDocument atSignal;
    bool checkedAtSignal = false;
    connect(driver->page, &InstallationHeat::refreshInstallationPageSignal, &signal, [&] {
        atSignal = driver->window.dialog.document();
        checkedAtSignal = messages::contain("InstallationHeat::SettingUser validation succeed!");
    });
    driver->operate(QTest::currentDataTag(), item);
    QTEST(static_cast<int>(signal.size()), "times");
    if (!signal.isEmpty()) {
        QVERIFY(checkedAtSignal);
        QCOMPARE(atSignal, driver->window.dialog.document());
    }
}

CALORA_TEST_MAIN(TestInstallationHeat)
#include "tst_installationheat.moc"
