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

const QVariantMap withHotWater{{"IduFuncList.is_hotwater", "SET"}};

} // namespace

// The Function tab's button locks. What plain controls list, write and show: walk/tst_controls.cpp.
class TestSettingLocks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { messages::clear(); }
    void cleanupTestCase() { window.reset(); }

    void lockedFirstLoadChoosesNothing();
    void onOffLockAloneIsLogged();
    void allLockOverridesOnTheScreenOnly();
    void unknownAllLockCountsAsLocked_data();
    void unknownAllLockCountsAsLocked();
    void lockedLoadLeavesTheOtherRadios();
    void hotWaterLockNeedsTheTank();
    void unusedLockSlotsWork_data();
    void unusedLockSlotsWork();
    void stylesOfEnabledAndDimmed();

private:
    void show(const QVariantMap &values = {});
    QString style(const char *name) const { return Window::find(page, name)->styleSheet(); }
    bool valid() const { return window->dialog.members().results.functionValid; }

    std::unique_ptr<Window> window;
    SettingFunction *page = nullptr;
};

void TestSettingLocks::initTestCase()
{
    window = std::make_unique<Window>();
    page = window->page<SettingFunction>();
}

void TestSettingLocks::show(const QVariantMap &values)
{
    window->use(documents::with(documents::standard("R410"), values));
    window->showPage(MainDialog::SettingPage, MainDialog::FunctionTab);
}

// The first test: no document has been shown yet. The three locks stay as the form has them, and pass while
// they are disabled.
void TestSettingLocks::lockedFirstLoadChoosesNothing()
{
    show({{"IduFuncList.is_hotwater", "SET"}, {func + "lock.buttonLock", "SET"}});
    for (const char *radio : {"radioOnOffButtonNone", "radioOnOffButtonUse", "radioOperationModeButtonNone",
                              "radioOperationModeButtonUse", "radioDhwOnOffNone", "radioDhwOnOffUse"}) {
        QVERIFY2(!Window::checked(page, radio), radio);
    }
    QVERIFY(valid());
    Window::click(page, "radioAllButtonNone");
    QVERIFY(!valid());
}

void TestSettingLocks::onOffLockAloneIsLogged()
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

void TestSettingLocks::allLockOverridesOnTheScreenOnly()
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

void TestSettingLocks::unknownAllLockCountsAsLocked_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("locked");
    QTest::newRow("SET") << QVariant("SET") << true;
    QTest::newRow("clr") << QVariant("clr") << false;
    QTest::newRow("unknown") << QVariant("x") << true;
    QTest::newRow("missing") << QVariant() << true;
}

void TestSettingLocks::unknownAllLockCountsAsLocked()
{
    QFETCH(QVariant, value);
    QFETCH(bool, locked);
    show({{func + "lock.buttonLock", value}});
    QCOMPARE(Window::checked(page, "radioAllButtonUse"), locked);
    QCOMPARE(Window::checked(page, "radioAllButtonNone"), !locked);
    QCOMPARE(Window::enabled(page, "groupBoxOnOffLock"), !locked);
}

void TestSettingLocks::lockedLoadLeavesTheOtherRadios()
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

void TestSettingLocks::hotWaterLockNeedsTheTank()
{
    show(withHotWater);
    QVERIFY(Window::visible(page, "groupBoxDHWOnOff"));
    show();
    QVERIFY(!Window::shownItself(page, "groupBoxDHWOnOff"));
    QVERIFY(valid());
}

void TestSettingLocks::unusedLockSlotsWork_data()
{
    QTest::addColumn<QByteArray>("radio");
    QTest::newRow("onoffButtonLock") << QByteArray("radioOnOffButton");
    QTest::newRow("modeButtonLock") << QByteArray("radioOperationModeButton");
    QTest::newRow("hotWaterButtonLock") << QByteArray("radioDhwOnOff");
}

void TestSettingLocks::unusedLockSlotsWork()
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

void TestSettingLocks::stylesOfEnabledAndDimmed()
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

CALORA_TEST_MAIN(TestSettingLocks)
#include "tst_settinglocks.moc"
