#include "pages/operation/settingfunction.h"
#include "support/times.h"
#include "support/window.h"

#include <QWheelEvent>

namespace {

const QString func = QStringLiteral("SettingInfo.func.");
const QString startClock = func + QStringLiteral("silentTimer.start");
const QString endClock = func + QStringLiteral("silentTimer.end");
const QString enabledLabel = QStringLiteral("color : #555555;");
const QString dimmedLabel = QStringLiteral("color : rgba(55,55,55,30%)");

} // namespace

// The Function tab's silent mode and its time window; which hour is kept as which: tests/data/times.tsv.
class TestSettingSilentTimes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { messages::clear(); }
    void cleanupTestCase() { window.reset(); }

    void silentModeGroupShows_data();
    void silentModeGroupShows();
    void silentRadiosFollowTheDocument_data();
    void silentRadiosFollowTheDocument();
    void silentModeEnablesItsTimes();
    void hoursAreSavedByHalfDays_data();
    void hoursAreSavedByHalfDays();
    void timesShow_data();
    void timesShow();
    void timesAreSelectedInOrder();
    void timesThatAreNotListedAreReplaced_data();
    void timesThatAreNotListedAreReplaced();
    void missingGroupsTakeTheLastValue_data();
    void missingGroupsTakeTheLastValue();
    void timesBecomeText_data();
    void timesBecomeText();
    void halfDaysBecomeText_data();
    void halfDaysBecomeText();
    void wheelChangesNothing();

private:
    void show(const QVariantMap &values = {});
    QVariantMap changesOf(const char *combo, const QString &item) const
    {
        return window->changes([&] { Window::choose(page, combo, item); });
    }
    QString style(const char *name) const { return Window::find(page, name)->styleSheet(); }
    bool valid() const { return window->dialog.members().results.functionValid; }

    std::unique_ptr<Window> window;
    SettingFunction *page = nullptr;
};

void TestSettingSilentTimes::initTestCase()
{
    window = std::make_unique<Window>();
    page = window->page<SettingFunction>();
}

void TestSettingSilentTimes::show(const QVariantMap &values)
{
    window->use(documents::with(documents::standard("R410"), values));
    window->showPage(MainDialog::SettingPage, MainDialog::FunctionTab);
}

void TestSettingSilentTimes::silentModeGroupShows_data()
{
    QTest::addColumn<QString>("disable");
    QTest::addColumn<QString>("hasPriority");
    QTest::addColumn<QString>("master");
    QTest::addColumn<QString>("priority");
    QTest::addColumn<bool>("shown");
    QTest::newRow("not disabled") << "CLR"
                                  << "CLR"
                                  << "SLAVE"
                                  << "oduSwitch" << true;
    QTest::newRow("not disabled, any case") << "clr"
                                            << "CLR"
                                            << "SLAVE"
                                            << "oduSwitch" << true;
    QTest::newRow("disabled") << "SET"
                              << "CLR"
                              << "SLAVE"
                              << "oduSwitch" << false;
    QTest::newRow("remote has priority") << "SET"
                                         << "SET"
                                         << "MASTER"
                                         << "rmcSetting" << true;
    QTest::newRow("any case") << "SET"
                              << "set"
                              << "master"
                              << "RMCSETTING" << true;
    QTest::newRow("no priority flag") << "SET"
                                      << "CLR"
                                      << "MASTER"
                                      << "rmcSetting" << false;
    QTest::newRow("slave") << "SET"
                           << "SET"
                           << "SLAVE"
                           << "rmcSetting" << false;
    QTest::newRow("switch has priority") << "SET"
                                         << "SET"
                                         << "MASTER"
                                         << "oduSwitch" << false;
    QTest::newRow("nothing known") << ""
                                   << ""
                                   << ""
                                   << "" << false;
}

void TestSettingSilentTimes::silentModeGroupShows()
{
    QFETCH(QString, disable);
    QFETCH(QString, hasPriority);
    QFETCH(QString, master);
    QFETCH(QString, priority);
    QFETCH(bool, shown);
    show({{"IduFuncList.isSilentDisable", disable},
          {"IduFuncList.isSilentPriority", hasPriority},
          {"SettingInfo.installation.OduFunctionMS", master},
          {"SettingInfo.installation.silentModePriority", priority}});
    QCOMPARE(Window::shownItself(page, "groupBoxSilentMode"), shown);
    QCOMPARE(Window::enabled(page, "groupBoxSilentMode"), shown);
}

void TestSettingSilentTimes::silentRadiosFollowTheDocument_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("off");
    QTest::addColumn<bool>("on");
    QTest::newRow("CLR") << QVariant("CLR") << true << false;
    QTest::newRow("set") << QVariant("set") << false << true;
    QTest::newRow("unknown") << QVariant("x") << false << false;
    QTest::newRow("missing") << QVariant() << false << false;
    QTest::newRow("SET") << QVariant("SET") << false << true;
}

void TestSettingSilentTimes::silentRadiosFollowTheDocument()
{
    QFETCH(QVariant, value);
    QFETCH(bool, off);
    QFETCH(bool, on);
    show({{func + "silentTimer.set", value}});
    QCOMPARE(Window::checked(page, "radioSlientModeNotuse"), off);
    QCOMPARE(Window::checked(page, "radioSlientModeUse"), on);
    QCOMPARE(Window::enabled(page, "groupBoxSilentModeSub"), on);
    QCOMPARE(valid(), off || on);
}

void TestSettingSilentTimes::silentModeEnablesItsTimes()
{
    const auto verify = [this](bool on) {
        for (const char *name : {"groupBoxSilentModeSub", "comboSilentStartHour", "comboSilentStartMin",
                                 "comboSilentEndHour", "comboSilentEndMin"}) {
            QVERIFY2(Window::enabled(page, name) == on, name);
        }
        QCOMPARE(style("labelStratTime"), on ? enabledLabel : dimmedLabel);
        QCOMPARE(style("labelEndTime"), on ? enabledLabel : dimmedLabel);
    };
    show();
    verify(false);
    Window::click(page, "radioSlientModeUse");
    verify(true);
    Window::click(page, "radioSlientModeNotuse");
    verify(false);
    QCOMPARE(window->dialog.document(), documents::standard("R410"));
    // Each list is disabled by itself as well.
    Window::find(page, "groupBoxSilentModeSub")->setEnabled(true);
    for (const char *name :
         {"comboSilentStartHour", "comboSilentStartMin", "comboSilentEndHour", "comboSilentEndMin"}) {
        QVERIFY2(!Window::enabled(page, name), name);
    }
}

void TestSettingSilentTimes::hoursAreSavedByHalfDays_data()
{
    QTest::addColumn<QString>("shown");
    for (const QString &hour : times::hours()) {
        QTest::newRow(qPrintable(hour)) << hour;
    }
}

// Coming from another hour of each half.
void TestSettingSilentTimes::hoursAreSavedByHalfDays()
{
    QFETCH(QString, shown);
    const auto [hour, half] = times::saved(shown);
    const std::vector<std::pair<const char *, QString>> clocks{{"comboSilentStartHour", startClock},
                                                               {"comboSilentEndHour", endClock}};
    for (const auto &[combo, clock] : clocks) {
        for (const QString &other : {QStringLiteral("AM"), QStringLiteral("PM")}) {
            const QVariantMap before{{clock + ".hour", hour == 5 ? 6 : 5}, {clock + ".ampm", other}};
            show(documents::joined(before, {{func + "silentTimer.set", "SET"}}));
            QVariantMap expected{{clock + ".hour", hour}};
            if (half != other) {
                expected.insert(clock + ".ampm", half);
            }
            QCOMPARE(changesOf(combo, shown), expected);
            QVERIFY(messages::contain("SettingFunction::validationCheck succeed!"));
            window->showPage(MainDialog::SettingPage, MainDialog::FunctionTab);
            QCOMPARE(Window::shown(page, combo), shown);
        }
    }
}

void TestSettingSilentTimes::timesShow_data()
{
    QTest::addColumn<QString>("ampm");
    QTest::addColumn<int>("hour");
    QTest::addColumn<QString>("shown");
    for (const QString &hour : times::hours()) {
        QTest::addRow("AM %s", qPrintable(hour)) << "AM" << hour.toInt() << hour;
        QTest::addRow("pm %s", qPrintable(hour)) << "pm" << times::afternoon(hour) << hour;
        QTest::addRow("other half %s", qPrintable(hour)) << "x" << hour.toInt() << hour;
    }
}

void TestSettingSilentTimes::timesShow()
{
    QFETCH(QString, ampm);
    QFETCH(int, hour);
    const int minute = qAbs(hour) * 9 % 60;
    for (const QString &clock : {startClock, endClock}) {
        show({{clock + ".ampm", ampm}, {clock + ".hour", hour}, {clock + ".min", minute}});
        const bool start = clock == startClock;
        QTEST(Window::shown(page, start ? "comboSilentStartHour" : "comboSilentEndHour"), "shown");
        QCOMPARE(Window::shown(page, start ? "comboSilentStartMin" : "comboSilentEndMin"),
                 QStringLiteral("%1").arg(minute, 2, 10, QLatin1Char('0')));
    }
}

void TestSettingSilentTimes::timesAreSelectedInOrder()
{
    show();
    const QObject scope;
    QStringList selected;
    for (const char *name :
         {"comboSilentEndHour", "comboSilentEndMin", "comboSilentStartHour", "comboSilentStartMin"}) {
        QObject::connect(Window::find<QComboBox>(page, name), &QComboBox::currentTextChanged, &scope,
                         [&selected, name] { selected.append(name); });
    }
    show({{startClock + ".hour", 1},
          {startClock + ".min", 2},
          {endClock + ".hour", 3},
          {endClock + ".min", 4}});
    QCOMPARE(selected,
             (QStringList{"comboSilentStartHour", "comboSilentStartMin", "comboSilentEndMin",
                          "comboSilentEndHour"}));
}

// The lists stand on other items before; the slots write what is shown instead.
void TestSettingSilentTimes::timesThatAreNotListedAreReplaced_data()
{
    QTest::addColumn<QVariant>("ampm");
    QTest::addColumn<QVariant>("hour");
    QTest::addColumn<QVariant>("minute");
    QTest::newRow("noon as PM 12") << QVariant("PM") << QVariant(12) << QVariant(60);
    QTest::newRow("beyond the day") << QVariant("AM") << QVariant(24) << QVariant(100);
    QTest::newRow("beyond the afternoon") << QVariant("PM") << QVariant(13) << QVariant(77);
    QTest::newRow("far beyond") << QVariant("PM") << QVariant(2147483647) << QVariant(2147483647);
    QTest::newRow("negative") << QVariant("AM") << QVariant(-1) << QVariant(-5);
    QTest::newRow("no number") << QVariant("AM") << QVariant("7") << QVariant("7");
    QTest::newRow("missing") << QVariant() << QVariant() << QVariant();
}

void TestSettingSilentTimes::timesThatAreNotListedAreReplaced()
{
    QFETCH(QVariant, ampm);
    QFETCH(QVariant, hour);
    QFETCH(QVariant, minute);
    for (const QString &clock : {startClock, endClock}) {
        show({{clock + ".hour", 3}, {clock + ".min", 3}});
        show({{clock + ".ampm", ampm}, {clock + ".hour", hour}, {clock + ".min", minute}});
        const bool start = clock == startClock;
        QCOMPARE(Window::shown(page, start ? "comboSilentStartHour" : "comboSilentEndHour"),
                 QStringLiteral("00"));
        QCOMPARE(Window::shown(page, start ? "comboSilentStartMin" : "comboSilentEndMin"),
                 QStringLiteral("00"));
        QCOMPARE(window->dialog.document(),
                 documents::with(documents::standard("R410"),
                                 {{clock + ".ampm", "AM"}, {clock + ".hour", 0}, {clock + ".min", 0}}));
    }
}

// The lists are selected in the order of start hour, start minute, end minute, end hour; those that leave
// their item write, and the half of the day follows the hour.
void TestSettingSilentTimes::missingGroupsTakeTheLastValue_data()
{
    QTest::addColumn<QVariantMap>("shown");
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QVariant>("written");
    const QVariantMap midnight{{endClock + ".hour", 0}};
    QTest::newRow("hours last") << QVariantMap() << func + "silentTimer" << QVariant("AM");
    QTest::newRow("minute last") << documents::joined(midnight, {{startClock + ".min", 30}})
                                 << func + "silentTimer" << QVariant(0);
    QTest::newRow("nothing left") << documents::joined(
        midnight, {{startClock + ".hour", 0}, {startClock + ".ampm", "AM"}})
                                  << func + "silentTimer" << QVariant();
    QTest::newRow("one clock") << QVariantMap() << startClock << QVariant("AM");
}

// A missing group isn't made anew: its name takes each value in turn.
void TestSettingSilentTimes::missingGroupsTakeTheLastValue()
{
    QFETCH(QVariantMap, shown);
    QFETCH(QString, missing);
    QFETCH(QVariant, written);
    show(shown);
    show({{missing, QVariant()}});
    QCOMPARE(Window::shown(page, "comboSilentStartHour"), QStringLiteral("00"));
    QCOMPARE(Window::shown(page, "comboSilentStartMin"), QStringLiteral("00"));
    QCOMPARE(window->dialog.document(), documents::with(documents::standard("R410"), {{missing, written}}));
}

void TestSettingSilentTimes::timesBecomeText_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0 << "00";
    QTest::newRow("1") << 1 << "01";
    QTest::newRow("9") << 9 << "09";
    QTest::newRow("10") << 10 << "10";
    QTest::newRow("59") << 59 << "59";
    QTest::newRow("-1") << -1 << "-1";
}

void TestSettingSilentTimes::timesBecomeText()
{
    QFETCH(int, value);
    QString result;
    QVERIFY(QMetaObject::invokeMethod(page, "convertTimeValueByJson", Q_RETURN_ARG(QString, result),
                                      Q_ARG(int, value)));
    QTEST(result, "text");
}

void TestSettingSilentTimes::halfDaysBecomeText_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("ampm");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0 << ""
                       << "00";
    QTest::newRow("9 AM") << 9 << "AM"
                          << "09";
    QTest::newRow("10 AM") << 10 << "AM"
                           << "";
    QTest::newRow("1 pm") << 1 << "pm"
                          << "13";
    QTest::newRow("12 PM") << 12 << "PM"
                           << "24";
}

void TestSettingSilentTimes::halfDaysBecomeText()
{
    QFETCH(int, value);
    QFETCH(QString, ampm);
    QString result;
    QVERIFY(QMetaObject::invokeMethod(page, "calcurateTime", Q_RETURN_ARG(QString, result), Q_ARG(int, value),
                                      Q_ARG(QString, ampm)));
    QTEST(result, "text");
    if (ampm.isEmpty()) {
        QString withoutHalf;
        QVERIFY(QMetaObject::invokeMethod(page, "calcurateTime", Q_RETURN_ARG(QString, withoutHalf),
                                          Q_ARG(int, value)));
        QTEST(withoutHalf, "text");
    }
}

void TestSettingSilentTimes::wheelChangesNothing()
{
    show({{func + "silentTimer.set", "SET"}});
    auto *combo = Window::find<QComboBox>(page, "comboSilentStartHour");
    QWheelEvent turn(QPointF(5, 5), combo->mapToGlobal(QPointF(5, 5).toPoint()), QPoint(), QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCOMPARE(window->changes([&] { QCoreApplication::sendEvent(combo, &turn); }), QVariantMap());
    QCOMPARE(combo->currentText(), QStringLiteral("22"));
}

CALORA_TEST_MAIN(TestSettingSilentTimes)
#include "tst_settingsilenttimes.moc"
