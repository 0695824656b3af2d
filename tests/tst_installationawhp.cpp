#include "support/systemsection.h"

#include "pages/installation/installationsystemawhp.h"

#include <QSignalSpy>

namespace {

const QString secondCircuit = installation("circuitMainZone.enableMainZone");
const QString hysteresis = installation("circuitMainZone.hysterisisMainZone");
const QString antiFreeze = installation("antiFreezeTemp");
const QString heaterOn = installation("eheater_onoff.heater1_value");
const QString boilerUse = installation("boilerOfThirdParty.thirdPartyUse");
const QString boilerMode = installation("boilerOfThirdParty.thirdPartyMode");
const QString tankHeater = installation("hotWaterTankHeater.tankHeaterUse");
const QString hotWaterLimit = installation("settempLimit.hotWater.high_limit");

} // namespace

// The heat pump's settings at the bottom of the system section: their rules and effects.
class TestInstallationAwhp : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { renew(); }
    void cleanupTestCase() { section.reset(); }

    void showsGroups_data();
    void showsGroups();
    void secondCircuitEnablesItsRows();
    void smartGridEnablesItsRow();
    void boostHeaterEnablesItsRows();
    void boilerEnablesItsRows();
    void boilerModeIsLoadedInUseOnly();
    void secondCircuitChangesTextsAndRefreshes();
    void boostHeaterSetsTheHotWaterLimit_data();
    void boostHeaterSetsTheHotWaterLimit();
    void onlyThoseTwoRefresh();
    void closedSectionWritesNothing();
    void openSectionWritesWhatItShows();
    void lowHeaterTemperatureIsKept();
    void otherLanguageLoadsTheFirstClosingTime();
    void requiresARadioOfEachPair_data();
    void requiresARadioOfEachPair();
    void checksItsPairsInOrder();
    void emitsWhatItsSlotsSay();

private:
    void renew()
    {
        section.reset();
        section = std::make_unique<SystemSection>();
        awhp = section->window.page<InstallationSystemAWHP>();
    }
    /// Loads the section in a closed system section, so that nothing is written back.
    void load(const QVariantMap &values = {}, const char *refrigerant = "R32",
              const QString &unit = QStringLiteral("CENTIGRADE"))
    {
        section->load(values, refrigerant, unit);
        Window::invoke(section->page, "refreshAwhpWidget");
        messages::clear();
    }
    void open() { Window::expand(section->page); }
    QString shown(const char *combo) const { return Window::shown(awhp, combo); }
    /// Whether lists are enabled and labels bright: "on" or "off" when they agree, else "mixed".
    QString state(std::initializer_list<const char *> lists, std::initializer_list<const char *> labels) const
    {
        QStringList states;
        for (const char *list : lists) {
            states.append(Window::enabled(awhp, list) ? on : off);
        }
        for (const char *label : labels) {
            const QString style = Window::find(awhp, label)->styleSheet();
            states.append(style == full ? on : style == dimmed ? off : style);
        }
        states.removeDuplicates();
        return states.size() == 1 ? states.first() : QStringLiteral("mixed");
    }

    std::unique_ptr<SystemSection> section;
    InstallationSystemAWHP *awhp = nullptr;
    /// What the section has emitted.
    QStringList order;
    const QString on = QStringLiteral("on");
    const QString off = QStringLiteral("off");
    const QString full = QStringLiteral("color : #555555;");
    const QString dimmed = QStringLiteral("color : rgba(55,55,55,30%)");
};

void TestInstallationAwhp::showsGroups_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<bool>("shownItself");
    const auto row = [](const char *group, const char *name, const QVariantMap &values, bool shownItself) {
        QTest::addRow("%s %s", group, name) << values << shownItself;
    };
    for (const auto &[group, name] : std::initializer_list<std::pair<const char *, const char *>>{
             {"groupBoxSmartGrid", "isSGReady"},
             {"groupBoxAntiFreeze", "isAntiFreeze"},
             {"groupBoxPumpControl", "isPumpPreOverRun"},
             {"groupBoxExternalPump", "isExtWaterPump"},
             {"groupBoxThirdParty", "isBoilerOf3rdParty"}}) {
        row(group, "set", {{flag(name), "set"}}, true);
        row(group, "clr", {{flag(name), "CLR"}}, false);
    }
    const QString hotWater = flag("is_hotwater");
    const QString first = flag("is_heater1");
    const QString second = flag("is_heater2");
    const QString model = installation("is_indoor_model");
    row("groupBoxHeaterPriority", "hot water", {{hotWater, "set"}}, true);
    row("groupBoxHeaterPriority", "no hot water", {{hotWater, "CLR"}}, false);
    row("groupBoxHeaterOnTemp", "first", {{first, "set"}, {second, "CLR"}}, true);
    row("groupBoxHeaterOnTemp", "second", {{first, "CLR"}, {second, "set"}}, true);
    row("groupBoxHeaterOnTemp", "none", {{first, "CLR"}, {second, "CLR"}}, false);
    for (const char *name : {"ghu", "WHU", "Cascade"}) {
        row("groupBoxHeaterPriority", name, {{model, name}, {hotWater, "SET"}}, false);
        row("groupBoxHeaterOnTemp", name, {{model, name}, {first, "SET"}}, false);
    }
    // The flag of that name doesn't count.
    row("groupBoxHeaterPriority", "flag", {{flag("is_indoor_model"), "GHU"}, {hotWater, "SET"}}, true);
    row("groupBoxHeaterPriority", "other model", {{model, "x"}, {hotWater, "SET"}}, true);
    const QString tank = flag("isHotwaterTankHeaterUse");
    row("groupBoxWaterTankHeater", "both", {{hotWater, "set"}, {tank, "SET"}}, true);
    row("groupBoxWaterTankHeater", "small letters", {{hotWater, "SET"}, {tank, "set"}}, false);
    row("groupBoxWaterTankHeater", "no hot water", {{hotWater, "CLR"}, {tank, "SET"}}, false);
}

void TestInstallationAwhp::showsGroups()
{
    QFETCH(QVariantMap, values);
    QFETCH(bool, shownItself);
    load(values);
    const QByteArray group = QByteArray(QTest::currentDataTag()).split(' ').first();
    QCOMPARE(Window::shownItself(awhp, group.constData()), shownItself);
}

void TestInstallationAwhp::secondCircuitEnablesItsRows()
{
    const auto rows = [this] {
        return state({"bulletAwhp2", "comboValveClosingTime", "bulletAwhp3", "comboHysterisis"},
                     {"label2ndValve", "label2ndHysterisis"});
    };
    load();
    QCOMPARE(rows(), off);
    open();
    Window::click(awhp, "radio2ndUse");
    QCOMPARE(rows(), on);
    Window::click(awhp, "radio2ndNotuse");
    QCOMPARE(rows(), off);
    load({{secondCircuit, "SET"}});
    QCOMPARE(rows(), on);
}

void TestInstallationAwhp::smartGridEnablesItsRow()
{
    const auto row = [this] { return state({"bulletAwhp5", "comboStep"}, {"labelSmartgridStep"}); };
    load();
    QCOMPARE(row(), off);
    open();
    Window::click(awhp, "radioSgUse");
    QCOMPARE(row(), on);
    Window::click(awhp, "radioSgNotuse");
    QCOMPARE(row(), off);
}

void TestInstallationAwhp::boostHeaterEnablesItsRows()
{
    const auto rows = [this] {
        return state({"bulletAwhp9", "comboHeatingPriority", "bulletAwhp10", "comboDelayTime"},
                     {"labelWaterTankPriority", "labelWaterTankTime"});
    };
    load(heatPumpGroups());
    QCOMPARE(rows(), on);
    open();
    Window::click(awhp, "radioWaterTankHeaterMode");
    QCOMPARE(rows(), off);
    Window::click(awhp, "radioWaterTankHeaterUse");
    QCOMPARE(rows(), on);
    Window::click(awhp, "radioWaterTankHeaterNotuse");
    QCOMPARE(rows(), off);
}

void TestInstallationAwhp::boilerEnablesItsRows()
{
    // All rows with their labels, and the two lists that only the mode Auto needs.
    const auto rows = [this] {
        return QStringList{state({"groupBox3rdPartySub1", "groupBox3rdPartySub2", "groupBox3rdPartySub3",
                                  "comboControlMode"},
                                 {"label3rdMode", "label3rdTemp", "label3rdHysterisis"}),
                           state({"comboControlTemp", "combo3rdHysterisis"}, {})};
    };
    load();
    QCOMPARE(rows(), (QStringList{off, off}));
    open();
    Window::click(awhp, "radio3rdUse");
    QCOMPARE(rows(), (QStringList{on, off}));
    Window::choose(awhp, "comboControlMode", "Auto");
    QCOMPARE(rows(), (QStringList{on, on}));
    Window::click(awhp, "radio3rdNotUse");
    QCOMPARE(rows(), (QStringList{off, off}));
    Window::click(awhp, "radio3rdUse");
    QCOMPARE(rows(), (QStringList{on, on}));
    Window::choose(awhp, "comboControlMode", "Manual");
    QCOMPARE(rows(), (QStringList{on, off}));
    load({{boilerUse, "SET"}, {boilerMode, "AUTO"}});
    QCOMPARE(rows(), (QStringList{on, on}));
}

void TestInstallationAwhp::boilerModeIsLoadedInUseOnly()
{
    load({{boilerUse, "SET"}, {boilerMode, "MANUAL"}});
    load({{boilerUse, "CLR"}, {boilerMode, "AUTO"}});
    QCOMPARE(shown("comboControlMode"), QStringLiteral("Manual"));
    load({{boilerUse, "SET"}, {boilerMode, "AUTO"}, {flag("isBoilerOf3rdParty"), "CLR"}});
    QCOMPARE(shown("comboControlMode"), QStringLiteral("Manual"));
}

void TestInstallationAwhp::secondCircuitChangesTextsAndRefreshes()
{
    load();
    open();
    order.clear();
    QObject context;
    connect(awhp, &InstallationSystemAWHP::saveJsonValue, &context, [this] { order.append("save"); });
    connect(&section->window.dialog, &MainDialog::changeInstallationLanguage, &context, [this] {
        order.append(section->document() == documents::standard("R32") ? "too early" : "texts");
    });
    connect(awhp, &InstallationSystemAWHP::validationCheckSignals, &context,
            [this] { order.append("check"); });
    connect(section->page, &InstallationSystemSetting::refreshInstallationPageSignal, &context,
            [this] { order.append("refresh"); });
    const QStringList expected{"save", "texts", "check", "refresh"};
    Window::click(awhp, "radio2ndUse");
    QCOMPARE(order, expected);
    section->window.use(documents::with(section->document(), {{"SettingInfo.user.themeSet", "x"}}));
    order.clear();
    Window::click(awhp, "radio2ndNotuse");
    QCOMPARE(order, expected);
}

void TestInstallationAwhp::boostHeaterSetsTheHotWaterLimit_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("word");
    QTest::newRow("radioWaterTankHeaterNotuse") << "BH_USE"
                                                << "NOTUSE";
    QTest::newRow("radioWaterTankHeaterUse") << "NOTUSE"
                                             << "BH_USE";
    QTest::newRow("radioWaterTankHeaterMode") << "BH_USE"
                                              << "ONLY_DISINFECT";
}

void TestInstallationAwhp::boostHeaterSetsTheHotWaterLimit()
{
    QFETCH(QString, before);
    QFETCH(QString, word);
    load(documents::joined(heatPumpGroups(), {{tankHeater, before}, {hotWaterLimit, 55}}));
    open();
    order.clear();
    QObject context;
    connect(awhp, &InstallationSystemAWHP::saveJsonValue, &context,
            [this](const QString &path) { order.append(path == tankHeater ? "heater" : "limit"); });
    connect(awhp, &InstallationSystemAWHP::validationCheckSignals, &context,
            [this] { order.append("check"); });
    connect(section->page, &InstallationSystemSetting::refreshInstallationPageSignal, &context,
            [this] { order.append("refresh"); });
    QCOMPARE(section->window.changes([this] { Window::click(awhp, QTest::currentDataTag()); }),
             (QVariantMap{{tankHeater, word}, {hotWaterLimit, 50}}));
    QCOMPARE(order, (QStringList{"heater", "limit", "refresh", "check"}));
}

void TestInstallationAwhp::onlyThoseTwoRefresh()
{
    load(heatPumpGroups());
    open();
    QSignalSpy refreshed(awhp, &InstallationSystemAWHP::refreshInstallationPage);
    for (const char *radio :
         {"radioSgUse", "radioHeaterPriorityUse", "radioExternalPumpUse", "radio3rdUse"}) {
        Window::click(awhp, radio);
    }
    Window::choose(awhp, "comboControlMode", "Auto");
    QCOMPARE(refreshed.size(), 0);
    Window::invoke(awhp, "refreshInstallation");
    QCOMPARE(refreshed.size(), 1);
}

void TestInstallationAwhp::closedSectionWritesNothing()
{
    load(documents::joined(heatPumpGroups(), {{boilerUse, "SET"}}));
    QSignalSpy saved(awhp, &InstallationSystemAWHP::saveJsonValue);
    const QVariantMap changes = section->window.changes([this] {
        for (const char *radio : {"radio2ndUse", "radioSgUse", "radioWaterTankHeaterMode", "radio3rdUse"}) {
            Window::find<QRadioButton>(awhp, radio)->click();
        }
        for (const char *name : {"comboStep", "comboDelayTime", "comboPreRun", "comboControlMode"}) {
            Window::find<QComboBox>(awhp, name)->setCurrentIndex(1);
        }
    });
    QCOMPARE(changes, QVariantMap());
    QCOMPARE(saved.size(), 9);
}

// Opening shows the section and so loads it, with the gate open: each list that moves writes what it shows.
void TestInstallationAwhp::openSectionWritesWhatItShows()
{
    load({{hysteresis, 5}, {antiFreeze, "STEP7"}});
    QCOMPARE(section->window.changes([this] { open(); }), (QVariantMap{{hysteresis, -1}, {antiFreeze, ""}}));
    load();
    QCOMPARE(section->window.changes([this] { open(); }), QVariantMap());
}

void TestInstallationAwhp::lowHeaterTemperatureIsKept()
{
    section->load({{heaterOn, -20}}, "R410");
    open();
    QVERIFY(messages::contain("# Error index setting"));
    QCOMPARE(shown("comboHeaterOnTemperature"), QStringLiteral("-15°C"));
    QCOMPARE(section->document(), documents::with(documents::standard("R410"), {{heaterOn, -20}}));
}

void TestInstallationAwhp::otherLanguageLoadsTheFirstClosingTime()
{
    section->window.speak("~");
    load();
    const QString closing = shown("comboValveClosingTime");
    const QString priority = shown("comboHeatingPriority");
    section->window.speak();
    QCOMPARE(closing, QStringLiteral("60s~"));
    QCOMPARE(priority, QStringLiteral("Heat pump~"));
}

void TestInstallationAwhp::requiresARadioOfEachPair_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QByteArray>("radio");
    const auto row = [](const char *name, const QVariantMap &values, const char *radio) {
        QTest::newRow(name) << values << QByteArray(radio);
    };
    row("second circuit", {{secondCircuit, "x"}}, "radio2ndNotuse");
    row("boiler", {{boilerUse, "x"}}, "radio3rdNotUse");
    row("external pump", {{installation("extWaterPump"), "x"}}, "radioExternalPumpUse");
    row("smart grid", {{installation("smartGrid.smartGridUse"), "x"}}, "radioSgUse");
    row("boost heater", {{tankHeater, "x"}}, "radioWaterTankHeaterUse");
    row("boost heater mode", {{tankHeater, "x"}}, "radioWaterTankHeaterMode");
}

void TestInstallationAwhp::requiresARadioOfEachPair()
{
    QFETCH(QVariantMap, values);
    QFETCH(QByteArray, radio);
    load(documents::joined(heatPumpGroups(), values));
    QVERIFY(section->members().results.systemSectionValid);
    open();
    QVERIFY(!section->members().results.systemSectionValid);
    QVERIFY(messages::contain("InstallationSystemSetting::validationCheck failed"));
    Window::click(awhp, radio.constData());
    QVERIFY(section->members().results.systemSectionValid);
    // A pair that is hidden isn't asked for.
    if (!values.contains(secondCircuit)) {
        QVariantMap hidden = values;
        for (const char *name : {"isSGReady", "is_hotwater", "isExtWaterPump", "isBoilerOf3rdParty"}) {
            hidden.insert(flag(name), "CLR");
        }
        load(hidden);
        open();
        QVERIFY(section->members().results.systemSectionValid);
    }
}

// One failure at a time, in this order: each is told until a click mends it.
void TestInstallationAwhp::checksItsPairsInOrder()
{
    // The heater priority is unchecked only until a first word is loaded.
    renew();
    load(documents::joined(heatPumpGroups(),
                           {{secondCircuit, "x"},
                            {boilerUse, "x"},
                            {installation("extWaterPump"), "x"},
                            {installation("EH_BH_priority"), "x"},
                            {installation("smartGrid.smartGridUse"), "x"},
                            {tankHeater, "x"}}));
    open();
    for (const auto &[first, second] : std::initializer_list<std::pair<const char *, const char *>>{
             {"radio2ndNotuse", "radio2ndUse"},
             {"radio3rdNotUse", "radio3rdUse"},
             {"radioExternalPumpNotuse", "radioExternalPumpUse"},
             {"radioHeaterPriorityNotuse", "radioHeaterPriorityUse"},
             {"radioSgNotuse", "radioSgUse"},
             {"radioWaterTankHeaterMode", "radioWaterTankHeaterNotuse"}}) {
        QVERIFY2(!section->members().results.systemSectionValid, first);
        messages::clear();
        Window::invoke(awhp, "validataionCheck");
        const QStringList failures = messages::all().filter("checkValidationRadio");
        QCOMPARE(failures.size(), 1);
        QVERIFY2(failures.first().contains(QStringLiteral("\"%1\" \"%2\"").arg(first, second)),
                 qPrintable(failures.first()));
        Window::click(awhp, second);
    }
    QVERIFY(section->members().results.systemSectionValid);
}

void TestInstallationAwhp::emitsWhatItsSlotsSay()
{
    load();
    QSignalSpy saved(awhp, &InstallationSystemAWHP::saveJsonValue);
    QMetaObject::invokeMethod(awhp, "saveJsonData", Q_ARG(QString, "a.b"), Q_ARG(QJsonValue, QJsonValue(3)));
    QCOMPARE(saved.size(), 1);
    QCOMPARE(saved.first().at(0).toString(), QStringLiteral("a.b"));
    QSignalSpy checked(awhp, &InstallationSystemAWHP::validationCheckSignals);
    Window::invoke(awhp, "validataionCheck");
    QCOMPARE(checked.first(), (QVariantList{true, "AWHP"}));
    QString text;
    QMetaObject::invokeMethod(awhp, "setOpacity", Q_RETURN_ARG(QString, text), Q_ARG(bool, true));
    QCOMPARE(text, full);
    QMetaObject::invokeMethod(awhp, "setOpacity", Q_RETURN_ARG(QString, text), Q_ARG(bool, false));
    QCOMPARE(text, dimmed);
    QJsonValue value;
    QMetaObject::invokeMethod(awhp, "parseJsonData", Q_RETURN_ARG(QJsonValue, value),
                              Q_ARG(QString, hysteresis));
    QCOMPARE(value.toInt(), 2);
}

CALORA_TEST_MAIN(TestInstallationAwhp)
#include "tst_installationawhp.moc"
