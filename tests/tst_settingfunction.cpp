#include "support/window.h"

#include "pages/operation/settingfunction.h"

namespace {

const QString func = QStringLiteral("SettingInfo.func.");

// What opens the ODU function group.
const QVariantMap withDefrostMode{{"IduFuncList.isDefrostMode", "SET"},
                                  {"SettingInfo.installation.OduFunctionMS", "MASTER"}};

const QVariantMap withHotWater{{"IduFuncList.is_hotwater", "SET"}};

} // namespace

// The Function tab: silent mode, button locks, defrost mode.
// What plain controls list, write and show: walk/tst_controls.cpp.
class TestSettingFunction : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { messages::clear(); }
    void cleanup() { window->speak(); }
    void cleanupTestCase() { window.reset(); }

    void passesAtStartUntilNew();
    void languageChangeKeepsTheSelection();
    void otherLanguageShowsTheDefrostMode();
    void groupsHoldTheirControls_data();
    void groupsHoldTheirControls();
    void defaultsShowAndStay_data();
    void defaultsShowAndStay();
    void showingMarksTheStep();
    void defrostModeNeedsFlagAndMaster_data();
    void defrostModeNeedsFlagAndMaster();
    void defrostModeShowsAndFallsBack();
    void chainFailsWhereNothingIsChosen_data();
    void chainFailsWhereNothingIsChosen();
    void writesNothingWithoutDocument();

private:
    void show(const QVariantMap &values = {});
    QVariantMap changesOf(const char *combo, const QString &item) const
    {
        return window->changes([&] { Window::choose(page, combo, item); });
    }
    bool valid() const { return window->dialog.members().results.functionValid; }

    std::unique_ptr<Window> window;
    SettingFunction *page = nullptr;
};

void TestSettingFunction::initTestCase()
{
    window = std::make_unique<Window>();
    page = window->page<SettingFunction>();
}

void TestSettingFunction::show(const QVariantMap &values)
{
    window->use(documents::with(documents::standard("R410"), values));
    window->showPage(MainDialog::SettingPage, MainDialog::FunctionTab);
}

// The first test: the fills at construction have run the check with the page still hidden.
void TestSettingFunction::passesAtStartUntilNew()
{
    QVERIFY(valid());
    QVERIFY(!Window::shownItself(&window->dialog, "functionValidationIcon"));
    QVERIFY(window->dialog.document().isNull());
    Window::click(&window->dialog, "newButton");
    QVERIFY(!valid());
    QVERIFY(Window::shownItself(&window->dialog, "functionValidationIcon"));
}

void TestSettingFunction::languageChangeKeepsTheSelection()
{
    show({{"IduFuncList.isDefrostMode", "SET"},
          {"SettingInfo.installation.OduFunctionMS", "MASTER"},
          {"SettingInfo.func.installDefrostMode", "STEP2"}});
    const auto *combo = Window::find<QComboBox>(page, "comboDefrostMode");
    QCOMPARE(combo->currentIndex(), 2);
    QCOMPARE(window->changes([this] { window->speak("~"); }), QVariantMap());
    QCOMPARE(Window::items(combo), (QStringList{"STEP0~", "STEP1~", "STEP2~", "STEP3~"}));
    QCOMPARE(combo->currentIndex(), 2);
    QCOMPARE(changesOf("comboDefrostMode", "STEP3~"),
             (QVariantMap{{"SettingInfo.func.installDefrostMode", "STEP3"}}));
}

void TestSettingFunction::otherLanguageShowsTheDefrostMode()
{
    window->speak("~");
    QVariantMap values = withDefrostMode;
    values.insert(func + "installDefrostMode", "STEP1");
    show(values);
    QCOMPARE(Window::shown(page, "comboDefrostMode"), QStringLiteral("STEP1~"));
    QCOMPARE(window->dialog.document(), documents::with(documents::standard("R410"), values));
}

void TestSettingFunction::groupsHoldTheirControls_data()
{
    QTest::addColumn<QList<QByteArray>>("controls");
    QTest::newRow("groupBoxSilentMode") << QList<QByteArray>{"labelSilentMode", "radioSlientModeNotuse",
                                                             "radioSlientModeUse", "groupBoxSilentModeSub"};
    QTest::newRow("groupBoxSilentModeSub")
        << QList<QByteArray>{"labelStratTime", "comboSilentStartHour", "comboSilentStartMin",
                             "labelEndTime",   "comboSilentEndHour",   "comboSilentEndMin"};
    QTest::newRow("groupBoxOnOffLock")
        << QList<QByteArray>{"labelOnOff", "radioOnOffButtonNone", "radioOnOffButtonUse"};
    QTest::newRow("groupBoxModeLock") << QList<QByteArray>{
        "labelOperationMode", "radioOperationModeButtonNone", "radioOperationModeButtonUse"};
    QTest::newRow("groupBoxDHWOnOff")
        << QList<QByteArray>{"labelDHW", "radioDhwOnOffNone", "radioDhwOnOffUse"};
    QTest::newRow("groupBoxOdeFunction")
        << QList<QByteArray>{"labelODEFunction", "labelDSR", "comboDefrostMode"};
}

void TestSettingFunction::groupsHoldTheirControls()
{
    QFETCH(QList<QByteArray>, controls);
    const QWidget *group = Window::find(page, QTest::currentDataTag());
    for (const QByteArray &name : controls) {
        QVERIFY2(group->isAncestorOf(Window::find(page, name)), name);
    }
}

void TestSettingFunction::defaultsShowAndStay_data()
{
    QTest::addColumn<QString>("refrigerant");
    QTest::newRow("R410") << "R410";
    QTest::newRow("R32") << "R32";
}

void TestSettingFunction::defaultsShowAndStay()
{
    QFETCH(QString, refrigerant);
    window->use(documents::standard(refrigerant));
    const auto showPage = [this] { window->showPage(MainDialog::SettingPage, MainDialog::FunctionTab); };
    QCOMPARE(window->changes(showPage), QVariantMap());
    QCOMPARE(Window::shown(page, "comboSilentStartHour"), QStringLiteral("22"));
    QCOMPARE(Window::shown(page, "comboSilentStartMin"), QStringLiteral("00"));
    QCOMPARE(Window::shown(page, "comboSilentEndHour"), QStringLiteral("06"));
    QCOMPARE(Window::shown(page, "comboSilentEndMin"), QStringLiteral("00"));
    for (const char *radio : {"radioSlientModeNotuse", "radioAllButtonNone", "radioOnOffButtonNone",
                              "radioOperationModeButtonNone", "radioDhwOnOffNone"}) {
        QVERIFY2(Window::checked(page, radio), radio);
    }
    QVERIFY(Window::visible(page, "groupBoxSilentMode"));
    QVERIFY(!Window::shownItself(page, "groupBoxOdeFunction"));
    QVERIFY(!Window::shownItself(page, "groupBoxDHWOnOff"));
    QVERIFY(valid());
    QVERIFY(messages::contain("SettingFunction::validationCheck succeed!"));
}

void TestSettingFunction::showingMarksTheStep()
{
    const auto focused = [this](int step, const char *button) {
        return Window::find(&window->dialog, button)
            ->styleSheet()
            .startsWith(QStringLiteral("QPushButton {border : none;outline : none;background-image: "
                                       "url(:/images/btn_step_%1_focus.png);}")
                            .arg(step));
    };
    window->dialog.setCurrentStep(1);
    QVERIFY(focused(1, "productSelectionButton"));
    QVERIFY(!focused(3, "settingButton"));
    show();
    QVERIFY(!focused(1, "productSelectionButton"));
    QVERIFY(focused(3, "settingButton"));
}

void TestSettingFunction::defrostModeNeedsFlagAndMaster_data()
{
    QTest::addColumn<QString>("flag");
    QTest::addColumn<QString>("master");
    QTest::addColumn<bool>("shown");
    QTest::newRow("both") << "SET"
                          << "MASTER" << true;
    QTest::newRow("any case") << "set"
                              << "master" << true;
    QTest::newRow("slave") << "SET"
                           << "SLAVE" << false;
    QTest::newRow("no flag") << "CLR"
                             << "MASTER" << false;
}

void TestSettingFunction::defrostModeNeedsFlagAndMaster()
{
    QFETCH(QString, flag);
    QFETCH(QString, master);
    QFETCH(bool, shown);
    show(shown ? QVariantMap() : withDefrostMode);
    show({{"IduFuncList.isDefrostMode", flag}, {"SettingInfo.installation.OduFunctionMS", master}});
    QCOMPARE(Window::shownItself(page, "groupBoxOdeFunction"), shown);
    QCOMPARE(Window::enabled(page, "groupBoxOdeFunction"), shown);
}

void TestSettingFunction::defrostModeShowsAndFallsBack()
{
    QVariantMap values = withDefrostMode;
    values.insert(func + "installDefrostMode", "STEP3");
    show(values);
    QCOMPARE(Window::shown(page, "comboDefrostMode"), QStringLiteral("STEP3"));
    // A group that stays hidden keeps its list as it is.
    show();
    QCOMPARE(Window::shown(page, "comboDefrostMode"), QStringLiteral("STEP3"));
    values.insert("SettingInfo.installation.OduFunctionMS", "SLAVE");
    values.insert(func + "installDefrostMode", "STEP2");
    show(values);
    QCOMPARE(Window::shown(page, "comboDefrostMode"), QStringLiteral("STEP3"));
    values.insert("SettingInfo.installation.OduFunctionMS", "MASTER");
    values.insert(func + "installDefrostMode", "STEP9");
    show(values);
    QCOMPARE(Window::shown(page, "comboDefrostMode"), QStringLiteral("STEP0"));
    values.insert(func + "installDefrostMode", "STEP0");
    QCOMPARE(window->dialog.document(), documents::with(documents::standard("R410"), values));
}

void TestSettingFunction::chainFailsWhereNothingIsChosen_data()
{
    QTest::addColumn<QByteArray>("second");
    QTest::newRow("radioSlientModeNotuse") << QByteArray("radioSlientModeUse");
    QTest::newRow("radioAllButtonNone") << QByteArray("radioAllButtonUse");
    QTest::newRow("radioOnOffButtonNone") << QByteArray("radioOnOffButtonUse");
    QTest::newRow("radioOperationModeButtonNone") << QByteArray("radioOperationModeButtonUse");
    QTest::newRow("radioDhwOnOffNone") << QByteArray("radioDhwOnOffUse");
}

void TestSettingFunction::chainFailsWhereNothingIsChosen()
{
    QFETCH(QByteArray, second);
    show(withHotWater);
    QVERIFY(valid());
    for (const char *name : {QTest::currentDataTag(), second.constData()}) {
        auto *radio = Window::find<QRadioButton>(page, name);
        radio->setAutoExclusive(false);
        radio->setChecked(false);
        radio->setAutoExclusive(true);
    }
    messages::clear();
    Window::invoke(page, "validationCheck");
    QVERIFY(!valid());
    QVERIFY(messages::contain("SettingFunction::validationCheck failed!!"));
    QVERIFY(!messages::contain("SettingFunction::validationCheck succeed!"));
    QVERIFY(Window::shownItself(&window->dialog, "functionValidationIcon"));
    Window::click(page, second.constData());
    QVERIFY(valid());
}

void TestSettingFunction::writesNothingWithoutDocument()
{
    show({{func + "silentTimer.set", "SET"}});
    window->dialog.setDocument({});
    Window::choose(page, "comboSilentStartHour", "03");
    Window::click(page, "radioAllButtonUse");
    QVERIFY(window->dialog.document().isNull());
    QJsonValue value;
    QVERIFY(QMetaObject::invokeMethod(page, "parseJsonData", Q_RETURN_ARG(QJsonValue, value),
                                      Q_ARG(QString, func + "silentTimer.set")));
    QVERIFY(value.isNull());
}

CALORA_TEST_MAIN(TestSettingFunction)
#include "tst_settingfunction.moc"
