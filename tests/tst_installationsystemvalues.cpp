#include "support/systemsection.h"

namespace {

QString use() { return installation("pumpOperationByForce.ByForceUse"); }

QStringList digitalInput()
{
    return {"Not use", "Simple operation", "Simple dry contact", "Single emergency stop"};
}

} // namespace

// The system section's lists before and after a language change, and choices of more than one path. What each
// control lists, writes and shows is held in walk/tst_controls.cpp.
class TestInstallationSystemValues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { section = std::make_unique<SystemSection>(); }
    void cleanupTestCase() { section.reset(); }

    void listsFollowFlags();
    void listsBeforeTheLanguage();
    void languageKeepsPositions();
    void writes_data();
    void writes();
    void enforcedPairNeedsBothFlags();
    void showsGroups_data();
    void showsGroups();

private:
    std::unique_ptr<SystemSection> section;
};

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

void TestInstallationSystemValues::enforcedPairNeedsBothFlags()
{
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
