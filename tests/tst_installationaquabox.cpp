#include "support/systemsection.h"

#include "pages/installation/installationsystemaquabox.h"

#include <QSignalSpy>

namespace {

const QString standby = installation("modePriority.modeStandby");
const QString hsMode = installation("hsSetting");
const QString combination = installation("combination200.combiValue");
const QString oilRecovery = installation("combination200.combiOilRecover");
const QString nightType = installation("kNightType");
const QString flowRate = installation("waterFlowRate");
const QString leakSensor = installation("leakRefrigerant");

/// A hydronic module with every group shown, and more.
QVariantMap aquabox(const QVariantMap &more = {})
{
    QVariantMap values{{"product", "aquabox"}};
    for (const char *name : {"isModeStandby", "isHsModel", "is_200Combination", "is200CombinationOp2",
                             "isKnightModel", "isWaterFlowRate", "isLeakRefrigerant"}) {
        values.insert(flag(name), "SET");
    }
    return documents::joined(values, more);
}

QString radioStyle(const char *colour)
{
    return QStringLiteral("QRadioButton{color : %1} QRadioButton::indicator { width: 18px; height: 18px; "
                          "margin-right:8px;}QRadioButton::indicator::unchecked {image: "
                          "url(:/images/btn_radiobtn_off.png);}QRadioButton::indicator::checked {image: "
                          "url(:/images/btn_radiobtn_on.png);}")
        .arg(QLatin1String(colour));
}

} // namespace

// The hydronic module's settings at the bottom of the system section: conditions, orders, looks.
// What plain controls list, write and show: walk/tst_controls.cpp.
class TestInstallationAquabox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { renew(); }
    void cleanupTestCase() { section.reset(); }

    void languageKeepsPositions();
    void listsAndTheirDefaults();
    void showsGroups_data();
    void showsGroups();
    void valuesOfHiddenGroupsAreNotLoaded();
    void hsModeWithoutItsFlagNeedsAClick();
    void oilRecoveryFollowsTheCombination();
    void leavingTheCombinationClearsItsOptions();
    void storedOilRecoveryHasToBeChosenAgain();
    void oilRecoveryKeepsItsFirstOption();
    void withoutCombinationBothOptionsAreEmpty();
    void flowRateOutsideTheListIsKept();
    void checksBeforeItSaves();
    void closedSectionWritesNothing();
    void openSectionWritesItsNightType();
    void requiresARadioOfEachPair_data();
    void requiresARadioOfEachPair();
    void checksItsPairsInOrder();
    void comesUpThroughItsOwnShowEvent();

private:
    void renew()
    {
        section.reset();
        section = std::make_unique<SystemSection>();
        module = section->window.page<InstallationSystemAquabox>();
    }
    /// Loads the section in a closed system section, so that nothing is written back.
    void load(const QVariantMap &values)
    {
        section->load(values);
        Window::invoke(module, "refresh");
        messages::clear();
    }
    void open() { Window::expand(section->page); }
    bool checked(const char *radio) const { return Window::checked(module, radio); }
    bool enabled(const char *name) const { return Window::enabled(module, name); }
    QStringList checkedOptions() const
    {
        QStringList options{"radioOpt1", "radioOpt2"};
        options.erase(std::remove_if(options.begin(), options.end(),
                                     [this](const QString &radio) { return !checked(qPrintable(radio)); }),
                      options.end());
        return options;
    }
    /// What is enabled and how it looks.
    QVariantList oilRecoveryState() const
    {
        QVariantList state;
        for (const char *name : {"groupBoxCombinationSub", "radioOpt1", "radioOpt2"}) {
            state.append(enabled(name));
        }
        for (const char *name : {"labelOilrecovery", "radioOpt1", "radioOpt2"}) {
            state.append(Window::find(module, name)->styleSheet());
        }
        return state;
    }

    std::unique_ptr<SystemSection> section;
    InstallationSystemAquabox *module = nullptr;
    /// What the section has emitted.
    QStringList order;
};

void TestInstallationAquabox::languageKeepsPositions()
{
    load(aquabox({{nightType, "STEP2"}}));
    open();
    const QVariantMap changes = section->window.changes([this] { section->window.speak("~"); });
    const QString shown = Window::shown(module, "comboKnightType");
    section->window.speak();
    QCOMPARE(changes, QVariantMap());
    QCOMPARE(shown, QStringLiteral("STEP2~"));
}

void TestInstallationAquabox::listsAndTheirDefaults()
{
    load(aquabox());
    QCOMPARE(Window::items(module, "comboWater"), range(15, 92, ""));
    QCOMPARE(Window::shown(module, "comboWater"), QStringLiteral("92"));
    QCOMPARE(Window::items(module, "comboKnightType"), (QStringList{"STEP0", "STEP1", "STEP2", "STEP3"}));
    section->window.speak("~");
    Window::invoke(module, "initUi");
    const QStringList untranslated = Window::items(module, "comboKnightType");
    section->window.speak();
    QCOMPARE(untranslated, (QStringList{"STEP0", "STEP1", "STEP2", "STEP3"}));
}

void TestInstallationAquabox::showsGroups_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("groupBoxModeStandby") << flag("isModeStandby");
    QTest::newRow("groupBoxCombination") << flag("is_200Combination");
    QTest::newRow("groupBoxCombinationSub") << flag("is200CombinationOp2");
    QTest::newRow("groupBoxTimerOfNight") << flag("isKnightModel");
    QTest::newRow("groupBoxWaterFlow") << flag("isWaterFlowRate");
    QTest::newRow("groupBoxRefrigerant") << flag("isLeakRefrigerant");
}

void TestInstallationAquabox::showsGroups()
{
    QFETCH(QString, name);
    load(aquabox({{name, "CLR"}, {flag("isHsModel"), "CLR"}}));
    QVERIFY(!Window::shownItself(module, QTest::currentDataTag()));
    QVERIFY(Window::shownItself(module, "groupBoxHsMode"));
    load(aquabox({{name, "set"}}));
    QVERIFY(Window::shownItself(module, QTest::currentDataTag()));
}

void TestInstallationAquabox::valuesOfHiddenGroupsAreNotLoaded()
{
    load(aquabox());
    load(aquabox({{flag("isModeStandby"), "CLR"},
                  {flag("isHsModel"), "CLR"},
                  {flag("isLeakRefrigerant"), "CLR"},
                  {flag("is_200Combination"), "CLR"},
                  {standby, "SET"},
                  {hsMode, "SET"},
                  {leakSensor, "SET"},
                  {combination, "SET"}}));
    for (const char *radio :
         {"radioStandbyNotuse", "radioHsmodeNotuse", "radioRefrigerantNotuse", "radioCombinationNotuse"}) {
        QVERIFY2(checked(radio), radio);
    }
}

void TestInstallationAquabox::hsModeWithoutItsFlagNeedsAClick()
{
    renew();
    load(aquabox({{flag("isHsModel"), "CLR"}, {hsMode, "SET"}}));
    open();
    QVERIFY(!checked("radioHsmodeNotuse") && !checked("radioHsmodeUse"));
    QVERIFY(!section->members().results.systemSectionValid);
    Window::click(module, "radioHsmodeNotuse");
    QVERIFY(section->members().results.systemSectionValid);
}

void TestInstallationAquabox::oilRecoveryFollowsTheCombination()
{
    const QVariantList on{
        true, true, true, "color : #555555;", radioStyle("rgba(33,33,33)"), radioStyle("rgba(33,33,33)")};
    const QVariantList off{false,
                           false,
                           false,
                           "color : rgba(55,55,55,30%)",
                           radioStyle("rgba(33,33,33,30%)"),
                           radioStyle("rgba(33,33,33,30%)")};
    load(aquabox({{combination, "SET"}}));
    QCOMPARE(oilRecoveryState(), on);
    open();
    Window::click(module, "radioCombinationNotuse");
    QCOMPARE(oilRecoveryState(), off);
    Window::click(module, "radioCombinationUse");
    QCOMPARE(oilRecoveryState(), on);
    load(aquabox());
    QCOMPARE(oilRecoveryState(), off);
}

void TestInstallationAquabox::leavingTheCombinationClearsItsOptions()
{
    load(aquabox({{combination, "SET"}}));
    QCOMPARE(checkedOptions(), QStringList{"radioOpt1"});
    open();
    Window::click(module, "radioCombinationNotuse");
    QCOMPARE(checkedOptions(), QStringList());
    QVERIFY(section->members().results.systemSectionValid);
    Window::click(module, "radioCombinationUse");
    QCOMPARE(checkedOptions(), QStringList());
    QVERIFY(!section->members().results.systemSectionValid);
    Window::click(module, "radioOpt1");
    QVERIFY(section->members().results.systemSectionValid);
}

void TestInstallationAquabox::storedOilRecoveryHasToBeChosenAgain()
{
    load(aquabox());
    const QVariantMap stored = aquabox({{combination, "SET"}, {oilRecovery, "SET"}});
    load(stored);
    QCOMPARE(checkedOptions(), QStringList());
    open();
    QVERIFY(!section->members().results.systemSectionValid);
    QCOMPARE(section->window.changes([this] { Window::click(module, "radioOpt2"); }), QVariantMap());
    QVERIFY(section->members().results.systemSectionValid);
    // The next load asks again.
    load(stored);
    QVERIFY(!checked("radioOpt2"));
}

// The load names the second option alone.
void TestInstallationAquabox::oilRecoveryKeepsItsFirstOption()
{
    load(aquabox({{combination, "SET"}, {oilRecovery, "CLR"}}));
    load(aquabox({{combination, "SET"}, {oilRecovery, "SET"}}));
    QCOMPARE(checkedOptions(), QStringList{"radioOpt1"});
}

void TestInstallationAquabox::withoutCombinationBothOptionsAreEmpty()
{
    load(aquabox({{combination, "SET"}, {oilRecovery, "CLR"}}));
    load(aquabox());
    QCOMPARE(checkedOptions(), QStringList());
    QVERIFY(!enabled("radioOpt1") && !enabled("radioOpt2"));
    open();
    QVERIFY(section->members().results.systemSectionValid);
}

void TestInstallationAquabox::flowRateOutsideTheListIsKept()
{
    section->load(aquabox({{flowRate, 100}}));
    open();
    QVERIFY(messages::contain("# Error index setting"));
    QCOMPARE(Window::shown(module, "comboWater"), QStringLiteral("15"));
    QCOMPARE(section->document(), documents::with(documents::standard("R32"), aquabox({{flowRate, 100}})));
}

void TestInstallationAquabox::checksBeforeItSaves()
{
    load(aquabox({{combination, "SET"}}));
    open();
    QSignalSpy refreshed(module, &InstallationSystemAquabox::refreshInstallationPage);
    QObject context;
    connect(module, &InstallationSystemAquabox::validationCheckSignals, &context,
            [this](bool, const QString &type) { order.append(type); });
    connect(module, &InstallationSystemAquabox::saveJsonValue, &context, [this] { order.append("save"); });
    for (const char *radio : {"radioStandbyNotuse", "radioStandbyUse", "radioHsmodeNotuse", "radioHsmodeUse",
                              "radioRefrigerantNotuse", "radioRefrigerantUse", "radioOpt1", "radioOpt2",
                              "radioCombinationNotuse", "radioCombinationUse"}) {
        order.clear();
        Window::click(module, radio);
        QCOMPARE(order, (QStringList{"AQUABOX", "save"}));
    }
    for (const char *combo : {"comboKnightType", "comboWater"}) {
        order.clear();
        Window::choose(Window::find<QComboBox>(module, combo), 2);
        QCOMPARE(order, (QStringList{"AQUABOX", "save"}));
    }
    QCOMPARE(refreshed.size(), 0);
}

void TestInstallationAquabox::closedSectionWritesNothing()
{
    load(aquabox());
    QSignalSpy saved(module, &InstallationSystemAquabox::saveJsonValue);
    const QVariantMap changes = section->window.changes([this] {
        for (const char *radio : {"radioStandbyUse", "radioHsmodeUse", "radioCombinationUse", "radioOpt2",
                                  "radioRefrigerantUse"}) {
            Window::find<QRadioButton>(module, radio)->click();
        }
        Window::find<QComboBox>(module, "comboKnightType")->setCurrentIndex(1);
        Window::find<QComboBox>(module, "comboWater")->setCurrentIndex(1);
    });
    QCOMPARE(changes, QVariantMap());
    QCOMPARE(saved.size(), 7);
}

void TestInstallationAquabox::openSectionWritesItsNightType()
{
    load(aquabox({{nightType, "STEP1"}}));
    open();
    section->window.use(documents::with(section->document(), {{nightType, "STEP9"}, {flowRate, 100}}));
    QCOMPARE(section->window.changes([this] { section->showAgain(); }), (QVariantMap{{nightType, "STEP0"}}));
}

void TestInstallationAquabox::requiresARadioOfEachPair_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("radioStandbyUse") << standby;
    QTest::newRow("radioHsmodeUse") << hsMode;
    QTest::newRow("radioRefrigerantNotuse") << leakSensor;
}

void TestInstallationAquabox::requiresARadioOfEachPair()
{
    QFETCH(QString, path);
    load(aquabox());
    load(aquabox({{path, "x"}}));
    open();
    QVERIFY(!section->members().results.systemSectionValid);
    QVERIFY(messages::contain("InstallationSystemAquabox::validationCheck failed!!"));
    messages::clear();
    Window::click(module, QTest::currentDataTag());
    QVERIFY(section->members().results.systemSectionValid);
    QVERIFY(messages::contain("InstallationSystemAquabox::validationCheck succeed!!"));
}

// One failure at a time, in this order: each is told until a click mends it.
void TestInstallationAquabox::checksItsPairsInOrder()
{
    // A combination is always chosen once loaded, and one that isn't loaded is hidden.
    load(aquabox());
    load(aquabox(
        {{standby, "x"}, {hsMode, "x"}, {leakSensor, "x"}, {combination, "SET"}, {oilRecovery, "SET"}}));
    open();
    for (const auto &[first, second] : std::initializer_list<std::pair<const char *, const char *>>{
             {"radioStandbyNotuse", "radioStandbyUse"},
             {"radioHsmodeNotuse", "radioHsmodeUse"},
             {"radioOpt1", "radioOpt2"},
             {"radioRefrigerantNotuse", "radioRefrigerantUse"}}) {
        QVERIFY2(!section->members().results.systemSectionValid, first);
        messages::clear();
        Window::invoke(module, "validationCheck");
        const QStringList failures = messages::all().filter("checkValidationRadio");
        QCOMPARE(failures.size(), 1);
        QVERIFY2(failures.first().contains(QStringLiteral("\"%1\" \"%2\"").arg(first, second)),
                 qPrintable(failures.first()));
        Window::click(module, second);
    }
    QVERIFY(section->members().results.systemSectionValid);
}

void TestInstallationAquabox::comesUpThroughItsOwnShowEvent()
{
    renew();
    section->load(aquabox({{standby, "SET"}}));
    QVERIFY(!checked("radioStandbyUse"));
    QVERIFY(!section->members().results.systemSectionValid);
    open();
    QVERIFY(checked("radioStandbyUse"));
    QVERIFY(section->members().results.systemSectionValid);
}

CALORA_TEST_MAIN(TestInstallationAquabox)
#include "tst_installationaquabox.moc"
