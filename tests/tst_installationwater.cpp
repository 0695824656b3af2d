#include "support/watersection.h"

#include "pages/installation/installationcool.h"
#include "pages/installation/installationheat.h"

#include <QSignalSpy>

#include <memory>

using water::airAndWater;
using water::Driver;
using water::flag;
using water::mainZone;
using water::root;
using water::sensed;

namespace {

// Where a section differs from the other by names and bounds alone.
struct Side {
    const char *name;
    QString page;
    QString constant;
    QString air;
    QString limit;
    QString basis;
    QString airThermo;
    QString waterThermo;
    QString pump;
    QString basisFlag;
    QString thermoFlag;
    QString pumpFlag;
    int airLow;
    int inside; // a whole temperature within the limits of water
};

const QVector<Side> &sides()
{
    static const QVector<Side> both{
        {"cool", "InstallationCool", "SettingInfo.func.waterCtrBasisAirCool.", root + "settempLimit.coolAir.",
         root + "settempLimit.coolWater.", root + "coolWaterControlBasis", root + "coolAirThermoOnOff",
         root + "coolWaterThermoOnOff", root + "pumpOperOptionInCool.", flag("is_coolwatercontrolbasis"),
         flag("is_coolThermoOnOff"), flag("is_PumpOperationSettingInCool"), 18, 20},
        {"heat", "InstallationHeat", "SettingInfo.func.waterCtrBasisAirHeat.", root + "settempLimit.heatAir.",
         root + "settempLimit.heatWater.", root + "heatWaterControlBasis", root + "typeOfHeat_Air_thermo",
         root + "typeOfHeat_Water_thermo", root + "pumpOperOptionInHeat.", flag("is_heatwatercontrolbasis"),
         flag("isHeatThermoOnOff"), flag("is_PumpOperationSettingInHeat"), 16, 40}};
    return both;
}

QString degrees(int value) { return QStringLiteral("%1°C").arg(value); }

} // namespace

// The rules that hold for the cooling and the heating section alike, in rows named after section and control.
// What one has of its own is in its test. What plain controls list, write and show: walk/tst_controls.cpp.
class TestInstallationWater : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { driver.reset(); }

    void startsClosedWithoutDocument_data() { addSides(); }
    void startsClosedWithoutDocument();
    void headerOpensAndCloses_data() { addSides(); }
    void headerOpensAndCloses();
    void constantIsNamedByCircuits_data() { addSides(); }
    void constantIsNamedByCircuits();
    void languageKeepsPositions_data() { addSides(); }
    void languageKeepsPositions();
    void oneCircuitWritesBothConstants_data();
    void oneCircuitWritesBothConstants();
    void unknownWordsLeaveTheControls_data() { addSides(); }
    void unknownWordsLeaveTheControls();
    void shownWhen_data();
    void shownWhen();
    void enabledWhen_data();
    void enabledWhen();
    void controlTypeEnablesItsConstants_data() { addSides(); }
    void controlTypeEnablesItsConstants();
    void signalComesLast_data();
    void signalComesLast();

private:
    static void addSides();
    /// The control that the row is named after.
    static QByteArray control() { return QByteArray(QTest::currentDataTag()).split(' ').value(1); }

    std::unique_ptr<Driver<QWidget>> driver;
    Side side{};
};

void TestInstallationWater::addSides()
{
    QTest::addColumn<bool>("both");
    for (const Side &each : sides()) {
        QTest::newRow(each.name) << true;
    }
}

void TestInstallationWater::init()
{
    if (!driver || qstrcmp(QTest::currentTestFunction(), "startsClosedWithoutDocument") == 0) {
        driver.reset();
        driver = std::make_unique<Driver<QWidget>>();
    }
    const bool isCool = QByteArray(QTest::currentDataTag()).startsWith("cool");
    side = sides().at(isCool ? 0 : 1);
    driver->page = isCool ? static_cast<QWidget *>(driver->window.page<InstallationCool>())
                          : driver->window.page<InstallationHeat>();
}

void TestInstallationWater::startsClosedWithoutDocument()
{
    QVERIFY(!Window::shownItself(driver->page, "frame"));
    QCOMPARE(driver->items("comboReferenceWater"), (QStringList{"Outlet", "Inlet"}));
    for (const char *combo : {"comboTNIndoorAirTemp", "comboTNIndoorWaterTemp"}) {
        QCOMPARE(driver->items(combo), (QStringList{"STEP0", "STEP1", "STEP2", "STEP3"}));
    }
    for (const char *combo : {"comboWaterPumpOnTimer", "comboWaterPumpOffTimer"}) {
        QCOMPARE(driver->items(combo), range(1, 60, "min"));
    }
    QCOMPARE(driver->items("comboTemperatureIndoorMin"), range(side.airLow, 22, "°C"));
    QCOMPARE(driver->items("comboTemperatureIndoorMax"), range(24, 30, "°C"));
    for (const char *combo : {"comboTemperatureWaterMin", "comboTemperatureWaterMax", "comboControlWaterTemp",
                              "comboControlMainZoneTemp"}) {
        QVERIFY2(driver->items(combo).isEmpty(), combo);
    }
}

void TestInstallationWater::headerOpensAndCloses()
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

// Showing and refreshing the section set the captions too.
void TestInstallationWater::constantIsNamedByCircuits()
{
    const auto *label = Window::find<QLabel>(driver->page, "labelControlWaterTemp");
    driver->load({{mainZone, "set"}});
    QCOMPARE(label->text(), QStringLiteral("Constant water temp.\n(Circuit 2)"));
    driver->load({{mainZone, "x"}});
    QCOMPARE(label->text(), QStringLiteral("Constant water temp."));
    driver->put({{mainZone, "SET"}});
    Window::invoke(driver->page, "refresh");
    QCOMPARE(label->text(), QStringLiteral("Constant water temp.\n(Circuit 2)"));
}

void TestInstallationWater::languageKeepsPositions()
{
    // The limits are those that the inlet leaves.
    driver->open({{side.basis, "ENTRANCE"},
                  {sides().at(0).limit + "low_limit", 20},
                  {sides().at(1).limit + "high_limit", 50},
                  {side.airThermo, "STEP2"},
                  {side.waterThermo, "STEP3"},
                  {side.pump + "timeOn", 59},
                  {side.pump + "time", 7}});
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
    QCOMPARE(driver->choose("comboTNIndoorAirTemp", "STEP1~"), (QVariantMap{{side.airThermo, "STEP1"}}));
    QCOMPARE(driver->choose("comboReferenceWater", "Outlet~").value(side.basis).toString(),
             QStringLiteral("EXIT"));
    driver->window.speak();
}

void TestInstallationWater::oneCircuitWritesBothConstants_data()
{
    QTest::addColumn<QVariantMap>("before");
    QTest::addColumn<QString>("item"); // none for a radio
    QTest::addColumn<QVariantMap>("written");

    for (const Side &each : sides()) {
        const auto row = [&each](const char *control, const QVariantMap &before, const QString &item,
                                 const QVariantMap &written) {
            QTest::newRow(each.name + (' ' + water::rowName(control, before, item)))
                << before << item << written;
        };
        const QVariantMap one{{each.constant + "ctrTemp", each.inside}};
        const QVariantMap main{{each.constant + "ctrTempMainZone", each.inside}};
        const QVariantMap both = documents::joined(one, main);
        const QString item = degrees(each.inside);
        row("comboControlWaterTemp", {}, item, both);
        row("comboControlWaterTemp", {{mainZone, "clr"}}, item, both);
        row("comboControlWaterTemp", {{mainZone, "x"}}, item, one);
    }
}

void TestInstallationWater::oneCircuitWritesBothConstants()
{
    QFETCH(QVariantMap, before);
    QFETCH(QString, item);
    driver->open(before);
    QTEST(driver->operate(control().constData(), item), "written");
    QVERIFY(messages::contain(side.page + "::SettingUser validation succeed!"));
}

void TestInstallationWater::unknownWordsLeaveTheControls()
{
    const QString type = side.constant + "ctrType";
    const QString option = side.pump + "option";
    driver->load({{side.basis, "ENTRANCE"}, {type, "AUTO"}, {option, "SET"}});
    driver->load({{side.basis, "x"}, {type, "x"}, {option, "x"}});
    QCOMPARE(driver->shown("comboReferenceWater"), QStringLiteral("Inlet"));
    QVERIFY(driver->checked("radioControlTypeAuto"));
    QVERIFY(!driver->enabled("groupBoxCrtWaterTemp"));
    QVERIFY(driver->checked("radioWaterPumpNotuse"));
    QVERIFY(!driver->enabled("groupBoxOnTimer"));
    driver->load({{side.basis, "EXIT"}, {type, "MANUAL"}, {option, "CLR"}});
    driver->load({{side.basis, "x"}, {type, "x"}, {option, "x"}});
    QCOMPARE(driver->shown("comboReferenceWater"), QStringLiteral("Outlet"));
    QVERIFY(driver->checked("radioControlTypeManual"));
    QVERIFY(driver->checked("radioWaterPumpUse"));
    // A hidden group isn't loaded.
    driver->load({{type, "AUTO"}, {sensed, "WATER"}});
    QVERIFY(driver->checked("radioControlTypeManual"));
}

void TestInstallationWater::shownWhen_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<bool>("shown");

    for (const Side &each : sides()) {
        const auto row = [&each](const char *group, const QVariantMap &values, bool shown) {
            QTest::newRow(each.name + (' ' + water::rowName(group, values))) << values << shown;
        };
        const QString basis = each.basisFlag;
        row("groupBoxControlBasisTemp", {{sensed, "water"}, {basis, "set"}, {airAndWater, "CLR"}}, true);
        row("groupBoxControlBasisTemp", {{sensed, "WATER"}, {basis, "CLR"}}, false);
        row("groupBoxControlBasisTemp", {{sensed, "WATER"}, {flag("isR32"), "CLR"}}, false);
        row("groupBoxControlBasisTemp", {{sensed, "air"}, {airAndWater, "set"}, {basis, "CLR"}}, true);
        row("groupBoxControlBasisTemp", {{sensed, "AIR"}, {airAndWater, "CLR"}}, false);
        row("groupBoxControlBasisTemp", {{sensed, "AIR"}, {flag("isR32"), "CLR"}}, false);
        row("groupBoxControlBasisTemp", {{sensed, "x"}}, false);
        row("groupBoxTempRange", {}, true);
        row("groupBoxTHOnOff", {{each.thermoFlag, "set"}}, true);
        row("groupBoxTHOnOff", {{each.thermoFlag, "CLR"}}, false);
        row("groupBoxWaterPump", {}, true);
        row("groupBoxWaterPump", {{each.pumpFlag, "CLR"}}, false);
        row("groupBoxWaterPump", {{each.pumpFlag + "On", "CLR"}}, false);
        row("groupBoxTemperatureControl", {}, true);
        row("groupBoxTemperatureControl", {{flag("isWaterCtrBasisAir"), "CLR"}}, false);
        row("groupBoxTemperatureControl", {{sensed, "WATER"}}, false);
        row("groupBoxTemperatureControl", {{airAndWater, "CLR"}}, false);
        row("groupBoxCrtMainZone", {{mainZone, "set"}}, true);
        row("groupBoxCrtMainZone", {{mainZone, "CLR"}}, false);
        row("groupBoxCrtMainZone", {{mainZone, "x"}}, false);
    }
    const QString thermo = sides().at(1).thermoFlag;
    for (const char *group : {"groupBoxTHIndoor", "groupBoxTHWater"}) {
        QTest::addRow("heat %s set", group) << QVariantMap{{thermo, "set"}} << true;
        QTest::addRow("heat %s CLR", group) << QVariantMap{{thermo, "CLR"}} << false;
    }
    for (const char *group : {"groupBoxTempRange", "groupBoxTempIndoor", "groupBoxTempWater"}) {
        QTest::addRow("heat %s without cooling", group) << QVariantMap{{flag("is_cool"), "CLR"}} << true;
    }
}

void TestInstallationWater::shownWhen()
{
    QFETCH(QVariantMap, values);
    driver->load(values);
    QTEST(Window::shownItself(driver->page, control().constData()), "shown");
}

void TestInstallationWater::enabledWhen_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("enabled");

    for (const Side &each : sides()) {
        for (const char *group : {"groupBoxCrtWaterTemp", "groupBoxCrtMainZone"}) {
            const QString path = each.constant + "ctrType";
            QTest::addRow("%s %s AUTO", each.name, group) << path << "AUTO" << false;
            QTest::addRow("%s %s MANUAL", each.name, group) << path << "MANUAL" << true;
        }
        for (const char *group : {"groupBoxOnTimer", "groupBoxOffTimer"}) {
            const QString path = each.pump + "option";
            QTest::addRow("%s %s SET", each.name, group) << path << "SET" << false;
            QTest::addRow("%s %s CLR", each.name, group) << path << "CLR" << true;
        }
    }
}

void TestInstallationWater::enabledWhen()
{
    QFETCH(QString, path);
    QFETCH(QString, word);
    driver->load({{path, word}});
    QTEST(driver->enabled(control().constData()), "enabled");
}

void TestInstallationWater::controlTypeEnablesItsConstants()
{
    driver->open({{mainZone, "SET"}});
    for (const auto &[radio, enabled] :
         {std::make_pair("radioControlTypeAuto", false), std::make_pair("radioControlTypeManual", true)}) {
        Window::click(driver->page, radio);
        QCOMPARE(driver->enabled("comboControlWaterTemp"), enabled);
        QCOMPARE(driver->enabled("comboControlMainZoneTemp"), enabled);
    }
}

void TestInstallationWater::signalComesLast_data()
{
    QTest::addColumn<QString>("item"); // none for a radio
    QTest::addColumn<int>("times");
    const auto row = [](const QString &name, const QString &item, int times) {
        QTest::newRow(qPrintable(name)) << item << times;
    };
    row("cool radioFanCoilUse", "", 1);
    row("cool radioFanCoilNotuse", "", 1);
    row("cool comboForcerWater", "20°C", 0);
    row("cool comboTemperatureWaterMin", "17°C", 1);
    row("cool comboTemperatureWaterMax", "25°C", 1);
    row("cool comboControlMainZoneTemp", "20°C", 0);
    row("heat comboTemperatureWaterMin", "25°C", 1);
    row("heat comboTemperatureWaterMax", "50°C", 1);
    row("heat comboControlMainZoneTemp", "30°C", 0);
    for (const Side &each : sides()) {
        const QString name = QString::fromLatin1(each.name) + ' ';
        row(name + "comboReferenceWater", "Inlet", 1);
        row(name + "comboTemperatureIndoorMin", "20°C", 1);
        row(name + "comboTemperatureIndoorMax", "25°C", 1);
        row(name + "radioControlTypeAuto", "", 0);
        row(name + "radioControlTypeManual", "", 0);
        row(name + "comboControlWaterTemp", degrees(each.inside), 0);
        row(name + "comboTNIndoorAirTemp", "STEP1", 0);
        row(name + "comboTNIndoorWaterTemp", "STEP1", 0);
        row(name + "radioWaterPumpNotuse", "", 0);
        row(name + "radioWaterPumpUse", "", 0);
        row(name + "comboWaterPumpOnTimer", "5min", 0);
        row(name + "comboWaterPumpOffTimer", "5min", 0);
    }
}

void TestInstallationWater::signalComesLast()
{
    QFETCH(QString, item);
    driver->open(
        {{mainZone, "SET"}, {sides().at(0).constant + "ctrTempMainZone", 22}, {side.pump + "option", "CLR"}});
    QSignalSpy signal(driver->page, SIGNAL(refreshInstallationPageSignal()));
    QJsonDocument atSignal;
    bool checkedAtSignal = false;
    const auto listen = [&] {
        atSignal = driver->window.dialog.document();
        checkedAtSignal = messages::contain(side.page + "::SettingUser validation succeed!");
    };
    if (auto *cool = qobject_cast<InstallationCool *>(driver->page)) {
        connect(cool, &InstallationCool::refreshInstallationPageSignal, &signal, listen);
    } else {
        connect(qobject_cast<InstallationHeat *>(driver->page),
                &InstallationHeat::refreshInstallationPageSignal, &signal, listen);
    }
    driver->operate(control().constData(), item);
    QTEST(static_cast<int>(signal.size()), "times");
    if (!signal.isEmpty()) {
        QVERIFY(checkedAtSignal);
        QCOMPARE(atSignal, driver->window.dialog.document());
    }
}

CALORA_TEST_MAIN(TestInstallationWater)
#include "tst_installationwater.moc"
