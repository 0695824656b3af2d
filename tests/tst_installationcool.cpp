#include "support/watersection.h"

#include "pages/installation/installationcool.h"

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

const QString constant = QStringLiteral("SettingInfo.func.waterCtrBasisAirCool.");
const QString lowLimit = root + QStringLiteral("settempLimit.coolWater.low_limit");
const QString highLimit = root + QStringLiteral("settempLimit.coolWater.high_limit");
const QString basis = root + QStringLiteral("coolWaterControlBasis");
const QString fanCoil = root + QStringLiteral("UFH_stop.FCU_disable");
const QString pump = root + QStringLiteral("pumpOperOptionInCool.");

} // namespace

// The controls of the cooling section: texts, lists, what each shows and writes.
class TestInstallationCool : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { driver = std::make_unique<Driver<InstallationCool>>(); }
    void cleanupTestCase() { driver.reset(); }

    void startsClosedWithoutDocument();
    void slotsAreDeclaredInOrder();
    void headerOpensAndCloses();
    void textsFollowTheLanguage_data();
    void textsFollowTheLanguage();
    void constantIsNamedByCircuits();
    void languageKeepsPositions();
    void writes_data();
    void writes();
    void fahrenheit();
    void loads_data();
    void loads();
    void unknownBasisLeavesTheList();
    void listsOffer_data();
    void listsOffer();
    void shownWhen_data();
    void shownWhen();
    void enabledWhen_data();
    void enabledWhen();
    void unknownWordsLeaveTheControls();
    void signalComesLast_data();
    void signalComesLast();

private:
    std::unique_ptr<Driver<InstallationCool>> driver;
};

void TestInstallationCool::startsClosedWithoutDocument()
{
    QVERIFY(!Window::shownItself(driver->page, "frame"));
    QCOMPARE(driver->items("comboReferenceWater"), (QStringList{"Outlet", "Inlet"}));
    for (const char *combo : {"comboTNIndoorAirTemp", "comboTNIndoorWaterTemp"}) {
        QCOMPARE(driver->items(combo), (QStringList{"STEP0", "STEP1", "STEP2", "STEP3"}));
    }
    for (const char *combo : {"comboWaterPumpOnTimer", "comboWaterPumpOffTimer"}) {
        QCOMPARE(driver->items(combo), range(1, 60, "min"));
    }
    QCOMPARE(driver->items("comboTemperatureIndoorMin"), range(18, 22, "°C"));
    QCOMPARE(driver->items("comboTemperatureIndoorMax"), range(24, 30, "°C"));
    QCOMPARE(driver->items("comboForcerWater"), range(16, 25, "°C"));
    for (const char *combo : {"comboTemperatureWaterMin", "comboTemperatureWaterMax", "comboControlWaterTemp",
                              "comboControlMainZoneTemp"}) {
        QVERIFY2(driver->items(combo).isEmpty(), combo);
    }
}

void TestInstallationCool::slotsAreDeclaredInOrder()
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
                          "enableTemperatureControl()",
                          "enablePumpOperOptionInCool()",
                          "enableFcuWaterTemp()",
                          "setControlWaterTempRange()",
                          "setCoolWaterTempRange()",
                          "setOpacity(bool)",
                          "changeWaterTempByFCU()",
                          "on_hideButton_clicked()",
                          "on_comboReferenceWater_currentTextChanged(QString)",
                          "on_comboForcerWater_currentTextChanged(QString)",
                          "on_radioFanCoilNotuse_clicked()",
                          "on_radioFanCoilUse_clicked()",
                          "on_comboTemperatureIndoorMin_currentTextChanged(QString)",
                          "on_comboTemperatureIndoorMax_currentTextChanged(QString)",
                          "on_comboTemperatureWaterMin_currentTextChanged(QString)",
                          "on_comboTemperatureWaterMax_currentTextChanged(QString)",
                          "on_comboTNIndoorAirTemp_currentTextChanged(QString)",
                          "on_comboTNIndoorWaterTemp_currentTextChanged(QString)",
                          "on_radioWaterPumpNotuse_clicked()",
                          "on_comboWaterPumpOnTimer_currentIndexChanged(int)",
                          "on_comboWaterPumpOffTimer_currentIndexChanged(int)",
                          "on_radioWaterPumpUse_clicked()",
                          "on_radioControlTypeAuto_clicked()",
                          "on_radioControlTypeManual_clicked()",
                          "on_comboControlWaterTemp_currentTextChanged(QString)",
                          "on_comboControlMainZoneTemp_currentTextChanged(QString)",
                          "validationCheck()",
                          "changeLanguage()",
                          "changeLanguageInCombobox()",
                          "initSeasonalAutoRange()"}));
}

void TestInstallationCool::headerOpensAndCloses()
{
    driver->load();
    auto *button = Window::find<QPushButton>(driver->page, "hideButton");
    const auto picture = [button] { return button->icon().pixmap(24, 24).toImage(); };
    const auto named = [](const char *name) {
        return QIcon(QStringLiteral(":/images/") + QLatin1String(name)).pixmap(24, 24).toImage();
    };
    QCOMPARE(picture(), named("btn_header_arrow_open.png"));
    Window::click(button);
    QVERIFY(Window::shownItself(driver->page, "frame"));
    QCOMPARE(picture(), named("btn_header_arrow_close.png"));
    Window::click(button);
    QVERIFY(!Window::shownItself(driver->page, "frame"));
    QCOMPARE(picture(), named("btn_header_arrow_open.png"));
}

void TestInstallationCool::textsFollowTheLanguage_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("labelTitle") << "Cooling mode";
    QTest::newRow("labelControlBasisTemp") << "Temp. control method";
    QTest::newRow("labelForcedStop") << "Cooling water\ncut-off temp.";
    QTest::newRow("labelFanCoil") << "Fan coil unit";
    QTest::newRow("radioFanCoilNotuse") << "Not use";
    QTest::newRow("radioFanCoilUse") << "Use";
    QTest::newRow("labelForcedWater") << "Water temp.";
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

void TestInstallationCool::textsFollowTheLanguage() { driver->window.followsTheLanguage(driver->page); }

// Showing and refreshing the section set the captions too.
void TestInstallationCool::constantIsNamedByCircuits()
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

void TestInstallationCool::languageKeepsPositions()
{
    driver->open({{basis, "ENTRANCE"},
                  {root + "coolAirThermoOnOff", "STEP2"},
                  {root + "coolWaterThermoOnOff", "STEP3"},
                  {pump + "timeOn", 59},
                  {pump + "time", 7},
                  {lowLimit, 20}});
    QVERIFY(driver->window.changes([this] { driver->window.speak(QStringLiteral("~")); }).isEmpty());
    QCOMPARE(driver->shown("comboReferenceWater"), QStringLiteral("Inlet~"));
    QCOMPARE(driver->items("comboReferenceWater"), (QStringList{"Outlet~", "Inlet~"}));
    QCOMPARE(driver->shown("comboTNIndoorAirTemp"), QStringLiteral("STEP2~"));
    QCOMPARE(driver->shown("comboTNIndoorWaterTemp"), QStringLiteral("STEP3~"));
    QCOMPARE(driver->items("comboTNIndoorWaterTemp"), (QStringList{"STEP0~", "STEP1~", "STEP2~", "STEP3~"}));
    QCOMPARE(driver->shown("comboWaterPumpOnTimer"), QStringLiteral("59min~"));
    QCOMPARE(driver->shown("comboWaterPumpOffTimer"), QStringLiteral("7min~"));
    QCOMPARE(driver->items("comboWaterPumpOffTimer"), range(1, 60, "min~"));
    // What is stored stays free of the language.
    QCOMPARE(driver->choose("comboTNIndoorAirTemp", "STEP1~"),
             (QVariantMap{{root + "coolAirThermoOnOff", "STEP1"}}));
    QCOMPARE(driver->choose("comboReferenceWater", "Outlet~").value(basis).toString(),
             QStringLiteral("EXIT"));
    driver->window.speak();
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
    const QString air = root + "settempLimit.coolAir.";
    row("comboForcerWater", {}, "20°C", {{root + "UFH_stop.watertemp", 20}});
    row("comboTemperatureIndoorMin", {}, "20°C", {{air + "low_limit", 20}});
    row("comboTemperatureIndoorMax", {}, "25°C", {{air + "high_limit", 25}});
    row("comboTemperatureWaterMin", {}, "17°C", {{lowLimit, 17}});
    row("comboTemperatureWaterMin", {}, "20°C",
        {{lowLimit, 20}, {constant + "ctrTemp", 20}, {constant + "ctrTempMainZone", 20}});
    row("comboTemperatureWaterMax", {}, "22°C", {{highLimit, 22}});
    row("comboTemperatureWaterMax", {{constant + "ctrTemp", 24}}, "23°C",
        {{highLimit, 23}, {constant + "ctrTemp", 23}, {constant + "ctrTempMainZone", 23}});
    row("radioControlTypeAuto", {}, "", {{constant + "ctrType", "AUTO"}});
    row("radioControlTypeManual", {{constant + "ctrType", "AUTO"}}, "", {{constant + "ctrType", "MANUAL"}});
    row("comboControlWaterTemp", {}, "20°C",
        {{constant + "ctrTemp", 20}, {constant + "ctrTempMainZone", 20}});
    row("comboControlWaterTemp", {{mainZone, "clr"}}, "20°C",
        {{constant + "ctrTemp", 20}, {constant + "ctrTempMainZone", 20}});
    row("comboControlWaterTemp", {{mainZone, "x"}}, "20°C", {{constant + "ctrTemp", 20}});
    row("comboControlWaterTemp", {{mainZone, "SET"}, {constant + "ctrTempMainZone", 22}}, "20°C",
        {{constant + "ctrTemp", 20}});
    row("comboControlMainZoneTemp", {{mainZone, "SET"}}, "20°C", {{constant + "ctrTempMainZone", 20}});
    row("comboTNIndoorAirTemp", {}, "STEP2", {{root + "coolAirThermoOnOff", "STEP2"}});
    row("comboTNIndoorAirTemp", {{root + "coolAirThermoOnOff", "STEP1"}}, "STEP0",
        {{root + "coolAirThermoOnOff", "STEP0"}});
    row("comboTNIndoorWaterTemp", {}, "STEP3", {{root + "coolWaterThermoOnOff", "STEP3"}});
    row("radioWaterPumpNotuse", {}, "", {{pump + "option", "SET"}});
    row("radioWaterPumpUse", {{pump + "option", "SET"}}, "", {{pump + "option", "CLR"}});
    row("comboWaterPumpOnTimer", {}, "10min", {{pump + "timeOn", 10}});
    row("comboWaterPumpOffTimer", {}, "60min", {{pump + "time", 60}});
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

void TestInstallationCool::fahrenheit()
{
    driver->open({}, QStringLiteral("FAHRENHEIT"));
    QCOMPARE(driver->items("comboTemperatureIndoorMin"), range(60, 72, "°F", 2));
    QCOMPARE(driver->items("comboTemperatureWaterMax"), range(72, 80, "°F", 2));
    QCOMPARE(driver->shown("comboTemperatureWaterMin"), QStringLiteral("64°F"));
    QCOMPARE(driver->choose("comboTemperatureIndoorMin", "68°F"),
             (QVariantMap{{root + "settempLimit.coolAir.low_limit", 20}}));
    // 24 and 25 °C both show 76 °F: the lower one is stored.
    QCOMPARE(driver->choose("comboTemperatureIndoorMax", "76°F"),
             (QVariantMap{{root + "settempLimit.coolAir.high_limit", 24}}));
}

void TestInstallationCool::loads_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *control, const QString &path, const QVariant &value,
                        const char *expected) {
        QTest::addRow("%s %s", control, qPrintable(value.toString()))
            << QVariantMap{{path, value}} << QString::fromUtf8(expected);
    };
    row("comboReferenceWater", basis, "EXIT", "Outlet");
    row("comboReferenceWater", basis, "exit", "Outlet");
    row("comboReferenceWater", basis, "ENTRANCE", "Inlet");
    row("comboReferenceWater", basis, "entrance", "Inlet");
    row("comboForcerWater", root + "UFH_stop.watertemp", 21, "21°C");
    row("comboForcerWater", root + "UFH_stop.watertemp", 40, "25°C");
    row("comboForcerWater", root + "UFH_stop.watertemp", 0, "16°C");
    row("comboTemperatureIndoorMin", root + "settempLimit.coolAir.low_limit", 19, "19°C");
    row("comboTemperatureIndoorMax", root + "settempLimit.coolAir.high_limit", 26, "26°C");
    row("comboTemperatureWaterMin", lowLimit, 17, "17°C");
    row("comboTemperatureWaterMax", highLimit, 26, "26°C");
    row("comboControlWaterTemp", constant + "ctrTemp", 23, "23°C");
    row("comboControlMainZoneTemp", constant + "ctrTempMainZone", 22, "22°C");
    row("comboTNIndoorAirTemp", root + "coolAirThermoOnOff", "STEP3", "STEP3");
    row("comboTNIndoorAirTemp", root + "coolAirThermoOnOff", "STEP4", "STEP0");
    row("comboTNIndoorAirTemp", root + "coolAirThermoOnOff", "", "STEP0");
    row("comboTNIndoorWaterTemp", root + "coolWaterThermoOnOff", "STEP1", "STEP1");
    row("comboWaterPumpOnTimer", pump + "timeOn", 60, "60min");
    row("comboWaterPumpOffTimer", pump + "time", 30, "30min");
    row("comboWaterPumpOffTimer", pump + "time", 0, "1min");
    row("radioFanCoilNotuse", fanCoil, "set", "true");
    row("radioFanCoilUse", fanCoil, "clr", "true");
    row("radioFanCoilNotuse", fanCoil, "x", "false");
    row("radioFanCoilUse", fanCoil, "x", "false");
    row("radioControlTypeAuto", constant + "ctrType", "auto", "true");
    row("radioControlTypeManual", constant + "ctrType", "manual", "true");
    row("radioWaterPumpNotuse", pump + "option", "set", "true");
    row("radioWaterPumpUse", pump + "option", "clr", "true");
}

void TestInstallationCool::loads()
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

void TestInstallationCool::unknownBasisLeavesTheList()
{
    driver->load({{basis, "ENTRANCE"}});
    driver->load({{basis, "x"}});
    QCOMPARE(driver->shown("comboReferenceWater"), QStringLiteral("Inlet"));
    driver->load({{basis, "EXIT"}});
    driver->load({{basis, "x"}});
    QCOMPARE(driver->shown("comboReferenceWater"), QStringLiteral("Outlet"));
}

void TestInstallationCool::listsOffer_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");

    const auto row = [](const char *combo, const QVariantMap &values, int low, int high) {
        QTest::newRow(water::rowName(combo, values).constData()) << values << low << high;
    };
    row("comboTemperatureIndoorMin", {}, 16, 22);
    row("comboTemperatureIndoorMin", {{flag("isCoolAir16"), "set"}}, 16, 22);
    row("comboTemperatureIndoorMin", {{flag("isCoolAir16"), "CLR"}}, 18, 22);
    row("comboTemperatureIndoorMax", {}, 24, 30);
    row("comboForcerWater", {}, 16, 25);
    row("comboTemperatureWaterMin", {}, 16, 20);
    row("comboTemperatureWaterMax", {}, 22, 27);
    row("comboTemperatureWaterMax", {{flag("is_coolwatercontrolbasis"), "CLR"}}, 20, 25);
    row("comboTemperatureWaterMin", {{flag("is_coolwatercontrolbasis"), "clr"}}, 16, 18);
    row("comboTemperatureWaterMin", {{flag("isR32"), "CLR"}, {flag("isR410CoolExpand"), "set"}}, 16, 20);
    row("comboTemperatureWaterMin", {{flag("isR32"), "CLR"}}, -1, -1);
    row("comboTemperatureWaterMin", {{basis, "entrance"}}, 20, 20);
    row("comboTemperatureWaterMin", {{fanCoil, "clr"}}, 5, 20);
    row("comboTemperatureWaterMin", {{fanCoil, "CLR"}, {basis, "ENTRANCE"}}, 10, 20);
    row("comboTemperatureWaterMin", {{fanCoil, "CLR"}, {flag("isCoolTempMin5"), "clr"}}, 6, 20);
    row("comboTemperatureWaterMin", {{fanCoil, "CLR"}, {flag("isCoolTempMin5"), "x"}}, -1, -1);
    row("comboTemperatureWaterMin", {{fanCoil, "x"}}, 16, 18);
    row("comboControlWaterTemp", {}, 18, 24);
    row("comboControlMainZoneTemp", {}, 18, 24);
    const QVariantMap constants{{constant + "ctrTemp", 20}, {constant + "ctrTempMainZone", 22}};
    row("comboControlWaterTemp", constants, 18, 24);
    row("comboControlWaterTemp", documents::joined(constants, {{mainZone, "SET"}}), 18, 22);
    row("comboControlMainZoneTemp", documents::joined(constants, {{mainZone, "set"}}), 20, 24);
    // A circuit's value beyond the limits leaves the whole list.
    row("comboControlWaterTemp", {{mainZone, "SET"}, {constant + "ctrTempMainZone", 17}}, 18, 24);
    row("comboControlMainZoneTemp", {{mainZone, "SET"}, {constant + "ctrTemp", 25}}, 18, 24);
    row("comboControlMainZoneTemp",
        documents::joined(constants, {{mainZone, "SET"}, {flag("isWaterCtrBasisAir"), "CLR"}}), 18, 24);
}

void TestInstallationCool::listsOffer()
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
    const QString basisFlag = flag("is_coolwatercontrolbasis");
    row("groupBoxControlBasisTemp", {{sensed, "water"}, {basisFlag, "set"}, {airAndWater, "CLR"}}, true);
    row("groupBoxControlBasisTemp", {{sensed, "WATER"}, {basisFlag, "CLR"}}, false);
    row("groupBoxControlBasisTemp", {{sensed, "WATER"}, {flag("isR32"), "CLR"}}, false);
    row("groupBoxControlBasisTemp", {{sensed, "air"}, {airAndWater, "set"}, {basisFlag, "CLR"}}, true);
    row("groupBoxControlBasisTemp", {{sensed, "AIR"}, {airAndWater, "CLR"}}, false);
    row("groupBoxControlBasisTemp", {{sensed, "AIR"}, {flag("isR32"), "CLR"}}, false);
    row("groupBoxControlBasisTemp", {{sensed, "x"}}, false);
    for (const char *group : {"groupBoxTempRange", "groupBoxForcedStop"}) {
        row(group, {}, true);
        row(group, {{flag("is_cool"), "x"}}, true);
        row(group, {{flag("is_cool"), "clr"}}, false);
    }
    row("groupBoxTempIndoorAirTemp", {}, true);
    row("groupBoxTempWaterTemp", {}, true);
    for (const char *group : {"groupBoxTHOnOff", "groupBoxTHIndoorAirTemp", "groupBoxTHWaterTemp"}) {
        row(group, {{flag("is_coolThermoOnOff"), "set"}}, true);
        row(group, {{flag("is_coolThermoOnOff"), "CLR"}}, false);
    }
    row("groupBoxWaterPump", {}, true);
    row("groupBoxWaterPump", {{flag("is_PumpOperationSettingInCool"), "CLR"}}, false);
    row("groupBoxWaterPump", {{flag("is_PumpOperationSettingInCoolOn"), "CLR"}}, false);
    row("groupBoxTemperatureControl", {}, true);
    row("groupBoxTemperatureControl", {{flag("isWaterCtrBasisAir"), "CLR"}}, false);
    row("groupBoxTemperatureControl", {{sensed, "WATER"}}, false);
    row("groupBoxTemperatureControl", {{airAndWater, "CLR"}}, false);
    row("groupBoxCrtMainZone", {{mainZone, "set"}}, true);
    row("groupBoxCrtMainZone", {{mainZone, "CLR"}}, false);
    row("groupBoxCrtMainZone", {{mainZone, "x"}}, false);
}

void TestInstallationCool::shownWhen()
{
    QFETCH(QVariantMap, values);
    driver->load(values);
    QTEST(Window::shownItself(driver->page, water::rowControl().constData()), "shown");
}

void TestInstallationCool::enabledWhen_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<bool>("enabled");

    const auto row = [](const char *group, const QVariantMap &values, bool enabled) {
        QTest::newRow(water::rowName(group, values).constData()) << values << enabled;
    };
    row("groupBoxForcedWaterTemp", {{fanCoil, "SET"}}, true);
    row("groupBoxForcedWaterTemp", {{fanCoil, "CLR"}}, false);
    row("groupBoxForcedWaterTemp", {{fanCoil, "x"}}, true);
    for (const char *group : {"groupBoxCrtWaterTemp", "groupBoxCrtMainZone"}) {
        row(group, {{constant + "ctrType", "AUTO"}}, false);
        row(group, {{constant + "ctrType", "MANUAL"}}, true);
    }
    for (const char *group : {"groupBoxOnTimer", "groupBoxOffTimer"}) {
        row(group, {{pump + "option", "SET"}}, false);
        row(group, {{pump + "option", "CLR"}}, true);
    }
}

void TestInstallationCool::enabledWhen()
{
    QFETCH(QVariantMap, values);
    driver->load(values);
    QTEST(driver->enabled(water::rowControl().constData()), "enabled");
}

void TestInstallationCool::unknownWordsLeaveTheControls()
{
    driver->load({{constant + "ctrType", "AUTO"}, {pump + "option", "SET"}});
    driver->load({{constant + "ctrType", "x"}, {pump + "option", "x"}});
    QVERIFY(driver->checked("radioControlTypeAuto"));
    QVERIFY(!driver->enabled("groupBoxCrtWaterTemp"));
    QVERIFY(driver->checked("radioWaterPumpNotuse"));
    QVERIFY(!driver->enabled("groupBoxOnTimer"));
    // A hidden group isn't loaded.
    driver->load({{constant + "ctrType", "MANUAL"}, {sensed, "WATER"}});
    QVERIFY(driver->checked("radioControlTypeAuto"));
}

void TestInstallationCool::signalComesLast_data()
{
    QTest::addColumn<QString>("item"); // none for a radio
    QTest::addColumn<int>("times");
    QTest::newRow("comboReferenceWater") << "Inlet" << 1;
    QTest::newRow("radioFanCoilUse") << "" << 1;
    QTest::newRow("radioFanCoilNotuse") << "" << 1;
    QTest::newRow("comboForcerWater") << "20°C" << 0;
    QTest::newRow("comboTemperatureIndoorMin") << "20°C" << 1;
    QTest::newRow("comboTemperatureIndoorMax") << "25°C" << 1;
    QTest::newRow("comboTemperatureWaterMin") << "17°C" << 1;
    QTest::newRow("comboTemperatureWaterMax") << "25°C" << 1;
    QTest::newRow("radioControlTypeAuto") << "" << 0;
    QTest::newRow("radioControlTypeManual") << "" << 0;
    QTest::newRow("comboControlWaterTemp") << "20°C" << 0;
    QTest::newRow("comboControlMainZoneTemp") << "20°C" << 0;
    QTest::newRow("comboTNIndoorAirTemp") << "STEP1" << 0;
    QTest::newRow("comboTNIndoorWaterTemp") << "STEP1" << 0;
    QTest::newRow("radioWaterPumpNotuse") << "" << 0;
    QTest::newRow("radioWaterPumpUse") << "" << 0;
    QTest::newRow("comboWaterPumpOnTimer") << "5min" << 0;
    QTest::newRow("comboWaterPumpOffTimer") << "5min" << 0;
}

void TestInstallationCool::signalComesLast()
{
    QFETCH(QString, item);
    driver->open({{mainZone, "SET"}, {constant + "ctrTempMainZone", 22}});
    QSignalSpy signal(driver->page, &InstallationCool::refreshInstallationPageSignal);
    QJsonDocument atSignal;
    bool checkedAtSignal = false;
    connect(driver->page, &InstallationCool::refreshInstallationPageSignal, &signal, [&] {
        atSignal = driver->window.dialog.document();
        checkedAtSignal = messages::contain("InstallationCool::SettingUser validation succeed!");
    });
    driver->operate(QTest::currentDataTag(), item);
    QTEST(static_cast<int>(signal.size()), "times");
    if (!signal.isEmpty()) {
        QVERIFY(checkedAtSignal);
        QCOMPARE(atSignal, driver->window.dialog.document());
    }
}

CALORA_TEST_MAIN(TestInstallationCool)
#include "tst_installationcool.moc"
