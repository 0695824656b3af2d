#include "support/window.h"

#include "pages/operation/settingfunction.h"

namespace {

const QString func = QStringLiteral("SettingInfo.func.");
const QString enabledLabel = QStringLiteral("color : #555555;");
const QString dimmedLabel = QStringLiteral("color : rgba(55,55,55,30%)");

QString radioStyle(const QString &colour)
{
    return "QRadioButton{color : " + colour
        + "} QRadioButton::indicator { width: 18px; height: 18px; margin-right:8px;}"
          "QRadioButton::indicator::unchecked {image: url(:/images/btn_radiobtn_off.png);}"
          "QRadioButton::indicator::checked {image: url(:/images/btn_radiobtn_on.png);}";
}

// What opens the ODU function group.
const QVariantMap withDefrostMode{{"IduFuncList.isDefrostMode", "SET"},
                                  {"SettingInfo.installation.OduFunctionMS", "MASTER"}};

const QVariantMap withHotWater{{"IduFuncList.is_hotwater", "SET"}};

} // namespace

// The Function tab: silent mode, button locks, defrost mode.
class TestSettingFunction : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { messages::clear(); }
    void cleanup() { window->speak(); }
    void cleanupTestCase() { window.reset(); }

    void passesAtStartUntilNew();
    void startsWithTheTextsOfTheForm_data();
    void startsWithTheTextsOfTheForm();
    void slotsAreDeclaredInOrder();
    void textsFollowTheLanguage_data();
    void textsFollowTheLanguage();
    void listsHoldFixedItems_data();
    void listsHoldFixedItems();
    void languageChangeKeepsTheSelection();
    void defaultsShowAndStay_data();
    void defaultsShowAndStay();
    void showingMarksTheStep();
    void radiosWrite_data();
    void radiosWrite();
    void onOffLockAloneIsLogged();
    void allLockOverridesOnTheScreenOnly();
    void unknownAllLockCountsAsLocked_data();
    void unknownAllLockCountsAsLocked();
    void lockedLoadLeavesTheOtherRadios();
    void locksShow_data();
    void locksShow();
    void hotWaterLockNeedsTheTank();
    void defrostModeNeedsFlagAndMaster_data();
    void defrostModeNeedsFlagAndMaster();
    void defrostModeSavesItsKey();
    void defrostModeShowsAndFallsBack();
    void chainFailsWhereNothingIsChosen_data();
    void chainFailsWhereNothingIsChosen();
    void everyChangeIsChecked();
    void unusedLockSlotsWork_data();
    void unusedLockSlotsWork();
    void stylesOfEnabledAndDimmed();
    void writesNothingWithoutDocument();

private:
    void show(const QVariantMap &values = {});
    QVariantMap changesOf(const char *combo, const QString &item) const
    {
        return window->changes([&] { Window::choose(page, combo, item); });
    }
    QString style(const char *name) const { return Window::find(page, name)->styleSheet(); }
    bool valid() const { return window->dialog.members().functionValid; }

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

void TestSettingFunction::startsWithTheTextsOfTheForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("labelSilentMode") << "Silent Mode";
    QTest::newRow("radioSlientModeNotuse") << "Not use";
    QTest::newRow("radioSlientModeUse") << "Use";
    QTest::newRow("labelStratTime") << "Silent Mode Start Time";
    QTest::newRow("labelEndTime") << "Silent Mode End Time";
    QTest::newRow("labelLock") << "Lock";
    QTest::newRow("labelAll") << "All Button Lock";
    QTest::newRow("labelOnOff") << "On/Off Button Lock";
    QTest::newRow("labelOperationMode") << "Operation Mode Button\nLock";
    QTest::newRow("labelDHW") << "DHW On/Off Button\nLock";
    QTest::newRow("labelODEFunction") << "ODU Function";
    QTest::newRow("labelDSR") << "Defrost/Snow Removal";
}

void TestSettingFunction::startsWithTheTextsOfTheForm()
{
    QFETCH(QString, text);
    const SettingFunction fresh;
    QCOMPARE(Window::find(&fresh, QTest::currentDataTag())->property("text").toString(), text);
}

void TestSettingFunction::slotsAreDeclaredInOrder()
{
    QCOMPARE(Window::ownSignals(page), QStringList());
    QCOMPARE(Window::ownSlots(page),
             (QStringList{"initUi()",
                          "saveJsonData(QString,QJsonValue)",
                          "parseJsonData(QString)",
                          "loadJsonData()",
                          "setloadJsonValue()",
                          "convertTimeValueByJson(int)",
                          "calcurateTime(int,QString)",
                          "setOpacity(bool)",
                          "setRadioTextOpacity(bool)",
                          "enableSilentMode()",
                          "allButtonLock(bool)",
                          "onoffButtonLock(bool)",
                          "modeButtonLock(bool)",
                          "hotWaterButtonLock(bool)",
                          "validationCheck()",
                          "changeLanguage()",
                          "changeLanguageInCombobox()",
                          "on_radioSlientModeNotuse_clicked()",
                          "on_radioSlientModeUse_clicked()",
                          "on_comboSilentStartHour_currentTextChanged(QString)",
                          "on_comboSilentStartMin_currentTextChanged(QString)",
                          "on_comboSilentEndHour_currentTextChanged(QString)",
                          "on_comboSilentEndMin_currentTextChanged(QString)",
                          "on_radioAllButtonNone_clicked()",
                          "on_radioAllButtonUse_clicked()",
                          "on_radioOnOffButtonNone_clicked()",
                          "on_radioOnOffButtonUse_clicked()",
                          "on_radioOperationModeButtonNone_clicked()",
                          "on_radioOperationModeButtonUse_clicked()",
                          "on_radioDhwOnOffNone_clicked()",
                          "on_radioDhwOnOffUse_clicked()",
                          "on_comboDefrostMode_currentTextChanged(QString)"}));
}

void TestSettingFunction::textsFollowTheLanguage_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("labelSilentMode") << "Silent mode";
    QTest::newRow("radioSlientModeNotuse") << "Off";
    QTest::newRow("radioSlientModeUse") << "On";
    QTest::newRow("labelStratTime") << "Start time";
    QTest::newRow("labelEndTime") << "End time";
    QTest::newRow("labelLock") << "RMC button lock";
    QTest::newRow("labelAll") << "All lock";
    QTest::newRow("radioAllButtonNone") << "Release";
    QTest::newRow("radioAllButtonUse") << "Lock";
    QTest::newRow("labelOnOff") << "On/Off lock";
    QTest::newRow("radioOnOffButtonNone") << "Release";
    QTest::newRow("radioOnOffButtonUse") << "Lock";
    QTest::newRow("labelOperationMode") << "Operation mode lock";
    QTest::newRow("radioOperationModeButtonNone") << "Release";
    QTest::newRow("radioOperationModeButtonUse") << "Lock";
    QTest::newRow("labelDHW") << "DHW lock";
    QTest::newRow("radioDhwOnOffNone") << "Release";
    QTest::newRow("radioDhwOnOffUse") << "Lock";
    QTest::newRow("labelODEFunction") << "ODU function";
    QTest::newRow("labelDSR") << "Defrost mode";
}

void TestSettingFunction::textsFollowTheLanguage()
{
    QFETCH(QString, text);
    const QWidget *widget = Window::find(page, QTest::currentDataTag());
    QCOMPARE(widget->property("text").toString(), text);
    window->speak("~");
    QCOMPARE(widget->property("text").toString(), text + "~");
}

void TestSettingFunction::listsHoldFixedItems_data()
{
    QTest::addColumn<QStringList>("items");
    QStringList numbers;
    for (int value = 0; value < 60; ++value) {
        numbers.append((value < 10 ? "0" : "") + QString::number(value));
    }
    QTest::newRow("comboSilentStartHour") << QStringList(numbers.mid(0, 24));
    QTest::newRow("comboSilentStartMin") << numbers;
    QTest::newRow("comboSilentEndHour") << QStringList(numbers.mid(0, 24));
    QTest::newRow("comboSilentEndMin") << numbers;
    QTest::newRow("comboDefrostMode") << QStringList{"STEP0", "STEP1", "STEP2", "STEP3"};
}

void TestSettingFunction::listsHoldFixedItems()
{
    QFETCH(QStringList, items);
    QCOMPARE(Window::items(page, QTest::currentDataTag()), items);
    const SettingFunction fresh;
    QCOMPARE(Window::items(&fresh, QTest::currentDataTag()), items);
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
    auto *button = Window::find<QPushButton>(&window->dialog, "settingButton");
    window->dialog.setCurrentStep(1);
    QVERIFY(!button->styleSheet().startsWith("QPushButton {border : none;outline : none;background-image: "
                                             "url(:/images/btn_step_3_focus.png);}"));
    show();
    QVERIFY(button->styleSheet().startsWith("QPushButton {border : none;outline : none;background-image: "
                                            "url(:/images/btn_step_3_focus.png);}"));
}

void TestSettingFunction::radiosWrite_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("word");
    QTest::newRow("radioSlientModeNotuse") << func + "silentTimer.set"
                                           << "SET"
                                           << "CLR";
    QTest::newRow("radioSlientModeUse") << func + "silentTimer.set"
                                        << "CLR"
                                        << "SET";
    QTest::newRow("radioAllButtonNone") << func + "lock.buttonLock"
                                        << "SET"
                                        << "CLR";
    QTest::newRow("radioAllButtonUse") << func + "lock.buttonLock"
                                       << "CLR"
                                       << "SET";
    QTest::newRow("radioOnOffButtonNone") << func + "lock.onoffLock"
                                          << "SET"
                                          << "CLR";
    QTest::newRow("radioOnOffButtonUse") << func + "lock.onoffLock"
                                         << "CLR"
                                         << "SET";
    QTest::newRow("radioOperationModeButtonNone") << func + "lock.modelock"
                                                  << "SET"
                                                  << "CLR";
    QTest::newRow("radioOperationModeButtonUse") << func + "lock.modelock"
                                                 << "CLR"
                                                 << "SET";
    QTest::newRow("radioDhwOnOffNone") << func + "lock.hotwaterOnOfflock"
                                       << "SET"
                                       << "CLR";
    QTest::newRow("radioDhwOnOffUse") << func + "lock.hotwaterOnOfflock"
                                      << "CLR"
                                      << "SET";
}

void TestSettingFunction::radiosWrite()
{
    QFETCH(QString, path);
    QFETCH(QString, before);
    QFETCH(QString, word);
    show({{"IduFuncList.is_hotwater", "SET"}, {path, before}});
    messages::clear();
    const QVariantMap changes = window->changes([this] { Window::click(page, QTest::currentDataTag()); });
    QCOMPARE(changes, (QVariantMap{{path, word}}));
    QVERIFY(messages::contain("SettingFunction::validationCheck succeed!"));
}

void TestSettingFunction::onOffLockAloneIsLogged()
{
    show(withHotWater);
    for (const char *radio :
         {"radioOnOffButtonUse", "radioOnOffButtonNone", "radioOperationModeButtonUse", "radioDhwOnOffUse"}) {
        messages::clear();
        Window::click(page, radio);
        QCOMPARE(messages::contain("SettingFunction::on_radioOnOffButtonUse_clicked"),
                 qstrcmp(radio, "radioOnOffButtonUse") == 0);
    }
}

void TestSettingFunction::allLockOverridesOnTheScreenOnly()
{
    show({{"IduFuncList.is_hotwater", "SET"}, {func + "lock.modelock", "SET"}});
    const auto verify = [this](bool released) {
        for (const char *group : {"groupBoxOnOffLock", "groupBoxModeLock", "groupBoxDHWOnOff"}) {
            QVERIFY2(Window::enabled(page, group) == released, group);
        }
        for (const char *radio :
             {"radioOnOffButtonNone", "radioOnOffButtonUse", "radioOperationModeButtonNone",
              "radioOperationModeButtonUse", "radioDhwOnOffNone", "radioDhwOnOffUse"}) {
            QCOMPARE(style(radio), radioStyle(released ? "rgba(33,33,33)" : "rgba(33,33,33,30%)"));
        }
        for (const char *label : {"labelOnOff", "labelOperationMode", "labelDHW"}) {
            QCOMPARE(style(label), released ? enabledLabel : dimmedLabel);
        }
        QVERIFY(Window::checked(page, "radioOnOffButtonNone"));
        QVERIFY(Window::checked(page, "radioOperationModeButtonUse"));
        QVERIFY(Window::checked(page, "radioDhwOnOffNone"));
    };
    verify(true);
    QCOMPARE(window->changes([this] { Window::click(page, "radioAllButtonUse"); }),
             (QVariantMap{{func + "lock.buttonLock", "SET"}}));
    verify(false);
    QVERIFY(valid());
    QCOMPARE(window->changes([this] { Window::click(page, "radioAllButtonNone"); }),
             (QVariantMap{{func + "lock.buttonLock", "CLR"}}));
    verify(true);
}

void TestSettingFunction::unknownAllLockCountsAsLocked_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("locked");
    QTest::newRow("SET") << QVariant("SET") << true;
    QTest::newRow("clr") << QVariant("clr") << false;
    QTest::newRow("unknown") << QVariant("x") << true;
    QTest::newRow("missing") << QVariant() << true;
}

void TestSettingFunction::unknownAllLockCountsAsLocked()
{
    QFETCH(QVariant, value);
    QFETCH(bool, locked);
    show({{func + "lock.buttonLock", value}});
    QCOMPARE(Window::checked(page, "radioAllButtonUse"), locked);
    QCOMPARE(Window::checked(page, "radioAllButtonNone"), !locked);
    QCOMPARE(Window::enabled(page, "groupBoxOnOffLock"), !locked);
}

void TestSettingFunction::lockedLoadLeavesTheOtherRadios()
{
    show();
    show({{func + "lock.buttonLock", "SET"},
          {func + "lock.onoffLock", "SET"},
          {func + "lock.modelock", "SET"},
          {func + "lock.hotwaterOnOfflock", "SET"}});
    for (const char *radio : {"radioOnOffButtonNone", "radioOperationModeButtonNone", "radioDhwOnOffNone"}) {
        QVERIFY2(Window::checked(page, radio), radio);
    }
}

void TestSettingFunction::locksShow_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("checked");
    const std::vector<std::tuple<const char *, QByteArray>> locks{{"onoffLock", "radioOnOffButton"},
                                                                  {"modelock", "radioOperationModeButton"},
                                                                  {"hotwaterOnOfflock", "radioDhwOnOff"}};
    for (const auto &[key, radio] : locks) {
        const QString path = func + "lock." + key;
        QTest::addRow("%s SET", key) << path << QVariant("SET") << radio + "Use";
        QTest::addRow("%s clr", key) << path << QVariant("clr") << radio + "None";
        QTest::addRow("%s unknown", key) << path << QVariant("x") << radio + "Use";
        QTest::addRow("%s missing", key) << path << QVariant() << radio + "Use";
    }
}

void TestSettingFunction::locksShow()
{
    QFETCH(QString, path);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, checked);
    show({{path, value.toString() == "clr" ? "SET" : "CLR"}});
    QVERIFY(!Window::checked(page, checked.constData()));
    show({{path, value}});
    QVERIFY(Window::checked(page, checked.constData()));
}

void TestSettingFunction::hotWaterLockNeedsTheTank()
{
    show(withHotWater);
    QVERIFY(Window::visible(page, "groupBoxDHWOnOff"));
    show();
    QVERIFY(!Window::shownItself(page, "groupBoxDHWOnOff"));
    QVERIFY(valid());
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

void TestSettingFunction::defrostModeSavesItsKey()
{
    show(withDefrostMode);
    for (const char *step : {"STEP1", "STEP2", "STEP3", "STEP0"}) {
        messages::clear();
        QCOMPARE(changesOf("comboDefrostMode", step), (QVariantMap{{func + "installDefrostMode", step}}));
        QVERIFY(messages::contain("SettingFunction::validationCheck succeed!"));
    }
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

void TestSettingFunction::everyChangeIsChecked()
{
    QVariantMap values = withDefrostMode;
    values.insert(func + "silentTimer.set", "SET");
    show(values);
    for (const char *combo : {"comboSilentStartHour", "comboSilentStartMin", "comboSilentEndHour",
                              "comboSilentEndMin", "comboDefrostMode"}) {
        messages::clear();
        Window::choose(Window::find<QComboBox>(page, combo), 3);
        QVERIFY2(messages::contain("SettingFunction::validationCheck succeed!"), combo);
    }
}

void TestSettingFunction::unusedLockSlotsWork_data()
{
    QTest::addColumn<QByteArray>("radio");
    QTest::newRow("onoffButtonLock") << QByteArray("radioOnOffButton");
    QTest::newRow("modeButtonLock") << QByteArray("radioOperationModeButton");
    QTest::newRow("hotWaterButtonLock") << QByteArray("radioDhwOnOff");
}

void TestSettingFunction::unusedLockSlotsWork()
{
    QFETCH(QByteArray, radio);
    show();
    for (const bool lock : {true, false}) {
        const QVariantMap changes = window->changes([this, lock] {
            QVERIFY(QMetaObject::invokeMethod(page, QTest::currentDataTag(), Q_ARG(bool, lock)));
        });
        QCOMPARE(changes, QVariantMap());
        QCOMPARE(Window::checked(page, radio + "Use"), lock);
        QCOMPARE(Window::checked(page, radio + "None"), !lock);
    }
}

void TestSettingFunction::stylesOfEnabledAndDimmed()
{
    const auto call = [this](const char *slot, bool enabled) {
        QString result;
        QMetaObject::invokeMethod(page, slot, Q_RETURN_ARG(QString, result), Q_ARG(bool, enabled));
        return result;
    };
    QCOMPARE(call("setOpacity", true), enabledLabel);
    QCOMPARE(call("setOpacity", false), dimmedLabel);
    QCOMPARE(call("setRadioTextOpacity", true), radioStyle("rgba(33,33,33)"));
    QCOMPARE(call("setRadioTextOpacity", false), radioStyle("rgba(33,33,33,30%)"));
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
