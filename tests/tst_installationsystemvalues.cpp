#include "support/systemsection.h"

namespace {

QString use() { return installation("pumpOperationByForce.ByForceUse"); }

QStringList digitalInput()
{
    return {"Not use", "Simple operation", "Simple dry contact", "Single emergency stop"};
}

QStringList hexadecimal(int first, int last)
{
    QStringList texts;
    for (int value = first; value <= last; ++value) {
        texts.append(QString::number(value, 16).rightJustified(2, QLatin1Char('0')));
    }
    return texts;
}

} // namespace

// Each control of the system section: its text, its list, what it writes and what it shows.
class TestInstallationSystemValues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { renew(); }
    void cleanupTestCase() { section.reset(); }

    void listsOfTheDefaultDocument_data();
    void listsOfTheDefaultDocument();
    void listsFollowFlags();
    void listsBeforeTheLanguage();
    void screedTemperatureInFahrenheit();
    void languageKeepsPositions();
    void writes_data();
    void writes();
    void showsWords_data();
    void showsWords();
    void showsNumbers_data();
    void showsNumbers();
    void checksRadios_data();
    void checksRadios();
    void showsGroups_data();
    void showsGroups();

private:
    void showsValue();
    void renew()
    {
        section.reset();
        section = std::make_unique<SystemSection>();
    }
    int index(const char *combo) const
    {
        return Window::find<QComboBox>(section->page, combo)->currentIndex();
    }

    std::unique_ptr<SystemSection> section;
};

void TestInstallationSystemValues::listsOfTheDefaultDocument_data()
{
    QTest::addColumn<QStringList>("items");
    QTest::newRow("comboBoxSensingTemp") << QStringList{"Water", "Air", "Air+Water"};
    QTest::newRow("comboBoxAirTemp") << QStringList{"Remote controller"};
    QTest::newRow("comboCentral") << hexadecimal(0, 255).join(' ').toUpper().split(' ');
    QTest::newRow("comboBoxScreedStep") << range(1, 11, "");
    QTest::newRow("comboBoxScreedMaxTemp") << range(35, 55, "°C");
    QTest::newRow("comboBoxScreedHolding") << range(1, 30, "days");
    QTest::newRow("comboModbus") << hexadecimal(1, 247);
    QTest::newRow("comboWaterRpmDuty") << range(10, 100, "%", 5);
    QTest::newRow("comboWaterpumpRPM") << range(0, 3700, "", 10);
    QTest::newRow("comboOperationPeriod") << range(20, 180, "Hour");
    QTest::newRow("comboOperationTime") << range(1, 10, "min");
    QTest::newRow("comboDryContactInstallation") << QStringList{"Auto", "Not installed", "Installed"};
    QTest::newRow("comboCnEXT") << digitalInput();
}

void TestInstallationSystemValues::listsOfTheDefaultDocument()
{
    QFETCH(QStringList, items);
    section->load();
    QCOMPARE(Window::items(section->page, QTest::currentDataTag()), items);
    section->load({}, "R410");
    QCOMPARE(Window::items(section->page, QTest::currentDataTag()), items);
}

void TestInstallationSystemValues::listsFollowFlags()
{
    section->load({{flag("isWaterCtrBasisAir"), "CLR"},
                   {flag("isIduAirTempSW"), "set"},
                   {flag("isEmergencyAllStop"), "SET"}});
    QCOMPARE(Window::items(section->page, "comboBoxSensingTemp"), (QStringList{"Water", "Air"}));
    QCOMPARE(Window::items(section->page, "comboBoxAirTemp"),
             (QStringList{"Remote room sensor", "Remote controller"}));
    QCOMPARE(Window::items(section->page, "comboCnEXT"), digitalInput() + QStringList{"All emergency stop"});
    section->load({{flag("isEmergencyAllStop"), "set"}});
    QCOMPARE(Window::items(section->page, "comboCnEXT"), digitalInput());
}

void TestInstallationSystemValues::listsBeforeTheLanguage()
{
    section->load();
    Window::invoke(section->page, "initDefaultRange");
    QCOMPARE(Window::items(section->page, "comboOperationPeriod"), range(20, 180, "hour"));
    QCOMPARE(Window::items(section->page, "comboOperationTime"), range(1, 10, "min"));
    QCOMPARE(Window::items(section->page, "comboBoxScreedHolding"), range(1, 30, "stepDay"));
    QCOMPARE(Window::items(section->page, "comboDryContactInstallation"),
             (QStringList{"Auto", "NOTINSTALL", "INSTALL"}));
    QVERIFY(Window::invoke(section->page, "changeLanguageInCombobox"));
    QCOMPARE(Window::items(section->page, "comboOperationPeriod"), range(20, 180, "Hour"));
}

void TestInstallationSystemValues::screedTemperatureInFahrenheit()
{
    section->load({{installation("cement_cure.cmt_maxTemp"), 40}}, "R32", "FAHRENHEIT");
    const QStringList items = Window::items(section->page, "comboBoxScreedMaxTemp");
    QCOMPARE(items, range(94, 130, "°F", 2));
    QCOMPARE(items.size(), 19);
    QCOMPARE(Window::shown(section->page, "comboBoxScreedMaxTemp"), QStringLiteral("104°F"));
    Window::expand(section->page);
    // 94 °F stands for 34 and 35 °C: the lower one counts.
    QCOMPARE(
        section->window.changes([this] { Window::choose(section->page, "comboBoxScreedMaxTemp", "94°F"); }),
        (QVariantMap{{installation("cement_cure.cmt_maxTemp"), 34}}));
}

void TestInstallationSystemValues::languageKeepsPositions()
{
    section->load({{flag("isIduAirTempSW"), "SET"},
                   {flag("isEmergencyAllStop"), "SET"},
                   {installation("sensorDefine.settemp_select"), "AIR"},
                   {installation("sensorDefine.airAndWaterUse"), "SET"},
                   {installation("cement_cure.cmt_holding"), 30},
                   {installation("pumpOperationByForce.ByForcePeriod"), 22},
                   {installation("pumpOperationByForce.ByForceRuntime"), 3},
                   {installation("dryContactInstallation"), "INSTALL"},
                   {installation("digitalInput"), "STEP4"}});
    Window::expand(section->page);
    const QVariantMap changes = section->window.changes([this] { section->window.speak("~"); });
    const QStringList shown{Window::shown(section->page, "comboCnEXT"),
                            Window::shown(section->page, "comboBoxScreedHolding"),
                            Window::shown(section->page, "comboOperationPeriod"),
                            Window::shown(section->page, "comboOperationTime"),
                            Window::shown(section->page, "comboDryContactInstallation"),
                            Window::shown(section->page, "comboBoxSensingTemp"),
                            Window::shown(section->page, "comboBoxAirTemp")};
    const QStringList holding = Window::items(section->page, "comboBoxScreedHolding");
    section->window.speak();
    QCOMPARE(changes, QVariantMap());
    QCOMPARE(shown,
             (QStringList{"All emergency stop~", "30days~", "22Hour~", "3min~", "Installed~", "Air+Water~",
                          "Remote controller~"}));
    QCOMPARE(holding, range(1, 30, "days~"));
}

void TestInstallationSystemValues::writes_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("item");
    QTest::addColumn<QVariantMap>("before");
    QTest::addColumn<QVariantMap>("after");
    const auto row = [](const char *control, const char *item, const QVariantMap &before,
                        const QVariantMap &after) {
        QTest::addRow("%s %s", control, item) << QByteArray(control) << QString(item) << before << after;
    };
    const QString dry = installation("drycontactAuto");
    row("radioDryManual", "", {{dry, "AUTO_ON"}}, {{dry, "AUTO_OFF"}});
    row("radioDryAuto", "", {{dry, "AUTO_OFF"}}, {{dry, "AUTO_ON"}});
    row("radioEnforcedNotuse", "", {{use(), "USE"}}, {{use(), "NOTUSE"}});
    row("radioEnforcedUse", "", {{use(), "NOTUSE"}}, {{use(), "USE"}});

    const QString basis = installation("sensorDefine.settemp_select");
    const QString both = installation("sensorDefine.airAndWaterUse");
    const QString remote = installation("sensorDefine.remote_sensor");
    row("comboBoxSensingTemp", "Air", {{basis, "WATER"}, {both, "SET"}, {remote, "CLR"}},
        {{basis, "AIR"}, {both, "CLR"}, {remote, "SET"}});
    row("comboBoxSensingTemp", "Water", {{basis, "AIR"}, {both, "SET"}, {remote, "SET"}},
        {{basis, "WATER"}, {both, "CLR"}, {remote, "CLR"}});
    row("comboBoxSensingTemp", "Air+Water", {{basis, "WATER"}, {both, "CLR"}, {remote, "CLR"}},
        {{basis, "AIR"}, {both, "SET"}, {remote, "SET"}});

    const QString location = installation("sensorDefine.airTempLocation");
    row("comboBoxAirTemp", "Remote room sensor",
        {{flag("isIduAirTempSW"), "SET"}, {basis, "AIR"}, {location, "RMC"}}, {{location, "IDU"}});
    row("comboBoxAirTemp", "Remote controller",
        {{flag("isIduAirTempSW"), "SET"}, {basis, "AIR"}, {location, "IDU"}},
        {{location, "RemoteController"}});
    row("comboCentral", "FF", {}, {{installation("cc_address"), "FF"}});
    row("comboCentral", "00", {{installation("cc_address"), "1A"}}, {{installation("cc_address"), "00"}});
    row("comboBoxScreedStep", "11", {}, {{installation("cement_cure.cmt_step"), 11}});
    row("comboBoxScreedMaxTemp", "35°C", {}, {{installation("cement_cure.cmt_maxTemp"), 35}});
    row("comboBoxScreedHolding", "30days", {}, {{installation("cement_cure.cmt_holding"), 30}});
    row("comboBoxScreedHolding", "1days", {}, {{installation("cement_cure.cmt_holding"), 1}});
    const QVariantMap modbus{{flag("isModbusAddress"), "SET"}};
    row("comboModbus", "10", modbus, {{installation("modbusAddress"), 10}});
    row("comboModbus", "0a", modbus, {{installation("modbusAddress"), 0}});
    const QString pump = installation("pumpRPM.pumpRPMValue");
    row("comboWaterRpmDuty", "15%", {}, {{pump, 15}});
    row("comboWaterpumpRPM", "3690", {{flag("isMotorDuty"), "SET"}}, {{pump, 369}});
    row("comboWaterpumpRPM", "0", {{flag("is_PumpRpmOption"), "SET"}}, {{pump, 0}});
    row("comboOperationPeriod", "180Hour", {}, {{installation("pumpOperationByForce.ByForcePeriod"), 180}});
    row("comboOperationTime", "1min", {}, {{installation("pumpOperationByForce.ByForceRuntime"), 1}});
    const QString contact = installation("dryContactInstallation");
    row("comboDryContactInstallation", "Auto", {{contact, "INSTALL"}}, {{contact, "IDU"}});
    row("comboDryContactInstallation", "Not installed", {}, {{contact, "NOT_INSTALL"}});
    row("comboDryContactInstallation", "Installed", {}, {{contact, "INSTALL"}});
    const QString input = installation("digitalInput");
    row("comboCnEXT", "Not use", {{input, "STEP2"}}, {{input, "STEP0"}});
    row("comboCnEXT", "Single emergency stop", {}, {{input, "STEP3"}});
    row("comboCnEXT", "All emergency stop", {{flag("isEmergencyAllStop"), "SET"}}, {{input, "STEP4"}});
}

void TestInstallationSystemValues::writes()
{
    QFETCH(QByteArray, control);
    QFETCH(QString, item);
    QFETCH(QVariantMap, before);
    QFETCH(QVariantMap, after);
    section->load(before);
    Window::expand(section->page);
    messages::clear();
    QCOMPARE(section->window.changes([&] {
        if (item.isEmpty()) {
            Window::click(section->page, control.constData());
        } else {
            Window::choose(section->page, control.constData(), item);
        }
    }),
             after);
    QVERIFY(messages::contain("InstallationSystemSetting::validationCheck succeed!!"));
}

void TestInstallationSystemValues::showsWords_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const char *control, const QVariantMap &values, const char *shown) {
        QTest::addRow("%s %s", control, name) << QByteArray(control) << values << QString(shown);
    };
    const QString basis = installation("sensorDefine.settemp_select");
    const QString both = installation("sensorDefine.airAndWaterUse");
    const QString remote = installation("sensorDefine.remote_sensor");
    const QString three = flag("isWaterCtrBasisAir");
    row("water of three", "comboBoxSensingTemp", {{basis, "water"}, {both, "SET"}, {remote, "SET"}}, "Water");
    row("air of three", "comboBoxSensingTemp", {{basis, "AIR"}, {both, "clr"}}, "Air");
    row("both of three", "comboBoxSensingTemp", {{basis, "AIR"}, {both, "SET"}, {remote, "CLR"}},
        "Air+Water");
    row("anything of three", "comboBoxSensingTemp", {{basis, ""}, {both, ""}}, "Air+Water");
    row("water of two", "comboBoxSensingTemp", {{three, "CLR"}, {basis, "WATER"}, {both, "SET"}}, "Water");
    row("both of two", "comboBoxSensingTemp", {{three, "CLR"}, {basis, "AIR"}, {both, "SET"}}, "Air");
    row("anything of two", "comboBoxSensingTemp", {{three, "CLR"}, {basis, "?"}}, "Air");

    const QString location = installation("sensorDefine.airTempLocation");
    const QString indoor = flag("isIduAirTempSW");
    row("default", "comboBoxAirTemp", {{location, "IDU"}}, "Remote controller");
    row("indoor", "comboBoxAirTemp", {{indoor, "SET"}, {location, "IDU"}}, "Remote room sensor");
    row("small letters", "comboBoxAirTemp", {{indoor, "SET"}, {location, "idu"}}, "Remote room sensor");
    row("remote", "comboBoxAirTemp", {{indoor, "SET"}, {location, "RMC"}}, "Remote controller");

    const QString contact = installation("dryContactInstallation");
    row("first", "comboDryContactInstallation", {{contact, "idu"}}, "Auto");
    row("second", "comboDryContactInstallation", {{contact, "NOT_INSTALL"}}, "Not installed");
    row("third", "comboDryContactInstallation", {{contact, "install"}}, "Installed");
    row("empty", "comboDryContactInstallation", {{contact, ""}}, "Auto");
    const QString input = installation("digitalInput");
    row("value", "comboCnEXT", {{input, "STEP3"}}, "Single emergency stop");
    row("empty", "comboCnEXT", {{input, ""}}, "Not use");
    row("without the fifth", "comboCnEXT", {{input, "STEP4"}}, "Not use");
    row("fifth", "comboCnEXT", {{input, "STEP4"}, {flag("isEmergencyAllStop"), "SET"}}, "All emergency stop");
}

void TestInstallationSystemValues::showsWords() { showsValue(); }

void TestInstallationSystemValues::showsNumbers_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const char *control, const QVariantMap &values, const char *shown) {
        QTest::addRow("%s %s", control, name) << QByteArray(control) << values << QString(shown);
    };
    const QString central = installation("cc_address");
    row("value", "comboCentral", {{central, "AB"}}, "AB");
    row("empty", "comboCentral", {{central, ""}}, "00");
    row("lower case", "comboCentral", {{central, "ab"}}, "");
    row("value", "comboBoxScreedStep", {{installation("cement_cure.cmt_step"), 11}}, "11");
    row("unlisted", "comboBoxScreedStep", {{installation("cement_cure.cmt_step"), 12}}, "");
    row("hidden", "comboBoxScreedStep",
        {{installation("cement_cure.cmt_step"), 4}, {flag("is_cement_Curing"), "CLR"}}, "4");
    row("value", "comboBoxScreedMaxTemp", {{installation("cement_cure.cmt_maxTemp"), 41}}, "41°C");
    row("too high", "comboBoxScreedMaxTemp", {{installation("cement_cure.cmt_maxTemp"), 60}}, "55°C");
    row("value", "comboBoxScreedHolding", {{installation("cement_cure.cmt_holding"), 30}}, "30days");

    const QString modbus = installation("modbusAddress");
    const QString hasModbus = flag("isModbusAddress");
    row("default", "comboModbus", {{hasModbus, "SET"}}, "01");
    row("one digit", "comboModbus", {{hasModbus, "SET"}, {modbus, 10}}, "0a");
    row("two digits", "comboModbus", {{hasModbus, "SET"}, {modbus, 16}}, "10");
    row("last", "comboModbus", {{hasModbus, "SET"}, {modbus, 247}}, "f7");
    row("none", "comboModbus", {{hasModbus, "SET"}, {modbus, -9999}}, "01");
    row("unlisted", "comboModbus", {{hasModbus, "SET"}, {modbus, 248}}, "");

    const QString pump = installation("pumpRPM.pumpRPMValue");
    row("default", "comboWaterRpmDuty", {}, "100%");
    row("value", "comboWaterRpmDuty", {{pump, 35}}, "35%");
    row("unlisted", "comboWaterRpmDuty", {{pump, 33}}, "");
    row("value", "comboWaterpumpRPM", {{flag("is_PumpRpmOption"), "SET"}, {pump, 123}}, "1230");
    row("by duty", "comboWaterpumpRPM", {{flag("isMotorDuty"), "SET"}, {pump, 370}}, "3700");
    row("unlisted", "comboWaterpumpRPM", {{flag("isMotorDuty"), "SET"}, {pump, 371}}, "");

    const QString period = installation("pumpOperationByForce.ByForcePeriod");
    const QString runtime = installation("pumpOperationByForce.ByForceRuntime");
    row("value", "comboOperationPeriod", {{period, 180}}, "180Hour");
    row("not used", "comboOperationPeriod", {{period, 100}, {use(), "NOTUSE"}}, "20Hour");
    row("not advanced", "comboOperationPeriod",
        {{period, 100}, {flag("isWaterPumpOperationByForceAdv"), "CLR"}}, "20Hour");
    row("value", "comboOperationTime", {{runtime, 4}}, "4min");
    row("not used", "comboOperationTime", {{runtime, 4}, {use(), "NOTUSE"}}, "1min");
}

void TestInstallationSystemValues::showsNumbers() { showsValue(); }

// The language change that ends a show turns a blank translated list to its first item, but leaves numbers
// blank.
void TestInstallationSystemValues::showsValue()
{
    QFETCH(QByteArray, control);
    QFETCH(QVariantMap, values);
    QFETCH(QString, shown);
    section->load(values);
    QCOMPARE(Window::shown(section->page, control.constData()), shown);
    QCOMPARE(index(control.constData()) < 0, shown.isEmpty());
    QCOMPARE(section->document(), documents::with(documents::standard("R32"), values));
}

void TestInstallationSystemValues::checksRadios_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QStringList>("checked");
    const QString dry = installation("drycontactAuto");
    QTest::newRow("default") << QVariantMap() << QStringList{"radioDryAuto", "radioEnforcedUse"};
    QTest::newRow("lower case") << QVariantMap{{dry, "auto_off"}, {use(), "notuse"}}
                                << QStringList{"radioDryManual", "radioEnforcedNotuse"};
    QTest::newRow("other words") << QVariantMap{{dry, "x"}, {use(), "x"}} << QStringList();
}

void TestInstallationSystemValues::checksRadios()
{
    QFETCH(QVariantMap, values);
    QFETCH(QStringList, checked);
    section->load();
    section->load(values);
    QStringList found;
    for (const char *radio : {"radioDryManual", "radioDryAuto", "radioEnforcedNotuse", "radioEnforcedUse"}) {
        if (Window::checked(section->page, radio)) {
            found.append(radio);
        }
    }
    QCOMPARE(found, checked);
    // Without the second flag the pair stays as it is.
    section->load({{use(), "USE"}});
    section->load({{use(), "NOTUSE"}, {flag("isWaterPumpOperationByForceAdv"), "CLR"}});
    QVERIFY(Window::checked(section->page, "radioEnforcedUse"));
}

void TestInstallationSystemValues::showsGroups_data()
{
    QTest::addColumn<QStringList>("flags");
    QTest::addColumn<bool>("whenSet");
    QTest::newRow("groupBoxCementCuring") << QStringList{flag("is_cement_Curing")} << true;
    QTest::newRow("groupBoxModbusAddress") << QStringList{flag("isModbusAddress")} << true;
    QTest::newRow("groupBoxPumpRPM") << QStringList{flag("is_PumpRpmOption"), flag("isMotorDuty")} << true;
    QTest::newRow("groupBoxPumpCapacity")
        << QStringList{flag("is_PumpRpmOption"), flag("isMotorDuty")} << false;
    QTest::newRow("groupBoxEnforced") << QStringList{flag("isWaterPumpOperationByForce")} << true;
    QTest::newRow("groupBoxDryContact") << QStringList{flag("is_DryContactInstallationSetting")} << true;
    QTest::newRow("groupBoxCnExt") << QStringList{flag("isDiExpand")} << true;
}

void TestInstallationSystemValues::showsGroups()
{
    QFETCH(QStringList, flags);
    QFETCH(bool, whenSet);
    QVariantMap cleared;
    for (const QString &name : qAsConst(flags)) {
        cleared.insert(name, "CLR");
    }
    for (const QString &name : qAsConst(flags)) {
        QVariantMap values = cleared;
        section->load(values);
        QCOMPARE(Window::shownItself(section->page, QTest::currentDataTag()), !whenSet);
        values.insert(name, "set");
        section->load(values);
        QCOMPARE(Window::shownItself(section->page, QTest::currentDataTag()), whenSet);
    }
    section->load({{flag("isWaterPumpOperationByForceAdv"), "CLR"}});
    QVERIFY(Window::shownItself(section->page, "groupBoxEnforcedSub"));
}

CALORA_TEST_MAIN(TestInstallationSystemValues)
#include "tst_installationsystemvalues.moc"
