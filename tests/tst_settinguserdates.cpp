#include "support/times.h"
#include "support/usertabtest.h"

#include <QScopeGuard>
#include <QSignalSpy>

// The User tab's date and summer time. The days of months: tests/data/times.tsv. What a listed date shows:
// walk/tst_controls.cpp; here what odd ones show and what a load makes of them.
class TestSettingUserDates : public UserTabTest
{
    Q_OBJECT

private slots:
    void initTestCase() { renew(); }
    void init() { messages::clear(); }
    void cleanupTestCase() { window.reset(); }

    void summerTimeOnIsNotChecked();
    void summerTimeEnablesItsDates();
    void summerTimeOffPasses();
    void daysFollowTheMonth_data();
    void daysFollowTheMonth();
    void changingTheMonthLosesTheDay();
    void withoutMonthTheDayIsLost();
    void withoutYearOrDay();
    void summerMonthsWriteWhatIsUnset_data();
    void summerMonthsWriteWhatIsUnset();
    void dateShows_data();
    void dateShows();
    void summerDatesShow_data();
    void summerDatesShow();
    void datesAreSelectedInOrder();
    void daysInLanguageKeepTheIndex();
    void withoutLanguageNothingChosenIsUnset_data();
    void withoutLanguageNothingChosenIsUnset();
    void withoutLanguageCaptionsAreEmpty();

private:
    /// No text has a language until what is returned goes; then English is in force again.
    auto withoutLanguage() const
    {
        window->dialog.setLanguageDocument({});
        window->dialog.changeLanguage();
        return qScopeGuard([this] { window->speak(); });
    }
};

void TestSettingUserDates::summerTimeOnIsNotChecked()
{
    show(documents::joined(dated, {{startMonth, unset}, {startDay, unset}}));
    QVERIFY(valid());
    Window::click(page, "radioSummerTimeUse");
    QVERIFY(valid());
    Window::click(page, "radioBlack");
    QVERIFY(!valid());
    Window::click(page, "radioSummerTimeNotuse");
    QVERIFY(valid());
}

void TestSettingUserDates::summerTimeEnablesItsDates()
{
    const auto verify = [this](bool on) {
        for (const char *name : {"comboStartMonth", "comboStartDay", "comboEndMonth", "comboEndDay"}) {
            QVERIFY2(Window::enabled(page, name) == on, name);
        }
        const QString style = on ? "color : #555555;" : "color : rgba(55,55,55,30%)";
        QCOMPARE(Window::find(page, "labelStartDay")->styleSheet(), style);
        QCOMPARE(Window::find(page, "labelEndDay")->styleSheet(), style);
    };
    show();
    verify(false);
    Window::click(page, "radioSummerTimeUse");
    verify(true);
    Window::click(page, "radioSummerTimeNotuse");
    verify(false);
    show({{summerTime, "SET"}});
    verify(true);
}

void TestSettingUserDates::summerTimeOffPasses()
{
    const QVariantMap undated{{startMonth, unset}, {startDay, unset}, {endMonth, unset}, {endDay, unset}};
    show(documents::joined(dated, documents::joined(undated, {{summerTime, "SET"}})));
    QVERIFY(!valid());
    show(documents::joined(dated, undated));
    QVERIFY(valid());
    QVERIFY(!Window::shownItself(&window->dialog, "userValidationIcon"));
}

void TestSettingUserDates::daysFollowTheMonth_data()
{
    QTest::addColumn<int>("days");
    for (int number = 1; number <= 12; ++number) {
        QTest::addRow("%d", number) << times::daysOf(number);
    }
}

void TestSettingUserDates::daysFollowTheMonth()
{
    QFETCH(int, days);
    // 2024 is a leap year.
    show(documents::joined(dated, {{summerTime, "SET"}}));
    const std::vector<std::pair<const char *, const char *>> pairs{{"comboDateMonth", "comboDateDay"},
                                                                   {"comboStartMonth", "comboStartDay"},
                                                                   {"comboEndMonth", "comboEndDay"}};
    for (const auto &[months, list] : pairs) {
        Window::choose(page, months, QTest::currentDataTag());
        QCOMPARE(Window::items(page, list), headed("Day", 1, days));
    }
}

void TestSettingUserDates::changingTheMonthLosesTheDay()
{
    show(dated);
    QVERIFY(valid());
    QCOMPARE(changesOf("comboDateMonth", "4"), (QVariantMap{{month, 4}}));
    QCOMPARE(combo("comboDateDay")->currentIndex(), 0);
    QCOMPARE(stored(mday).toInt(), 6);
    QVERIFY(!valid());
    QCOMPARE(changesOf("comboDateDay", "30"), (QVariantMap{{mday, 30}}));
    QVERIFY(valid());
}

void TestSettingUserDates::withoutMonthTheDayIsLost()
{
    show(dated);
    QCOMPARE(changesOf("comboDateMonth", "Month"), (QVariantMap{{mday, unset}}));
    QCOMPARE(stored(month).toInt(), 5);
    QVERIFY(!Window::enabled(page, "comboDateDay"));
    // The list stays as it was.
    QCOMPARE(Window::shown(page, "comboDateDay"), QStringLiteral("6"));
    QVERIFY(!valid());
    Window::choose(page, "comboDateMonth", "2");
    QVERIFY(Window::enabled(page, "comboDateDay"));
}

void TestSettingUserDates::withoutYearOrDay()
{
    show(dated);
    QCOMPARE(changesOf("comboDateYear", "Year"), (QVariantMap{{year, unset}}));
    QVERIFY(!valid());
    Window::choose(page, "comboDateYear", "2020");
    QVERIFY(valid());
    QCOMPARE(changesOf("comboDateDay", "Day"), (QVariantMap{{mday, unset}}));
    QVERIFY(!valid());
}

void TestSettingUserDates::summerMonthsWriteWhatIsUnset_data()
{
    QTest::addColumn<QByteArray>("dayCombo");
    QTest::addColumn<QString>("monthPath");
    QTest::addColumn<QString>("dayPath");
    QTest::newRow("comboStartMonth") << QByteArray("comboStartDay") << startMonth << startDay;
    QTest::newRow("comboEndMonth") << QByteArray("comboEndDay") << endMonth << endDay;
}

void TestSettingUserDates::summerMonthsWriteWhatIsUnset()
{
    QFETCH(QByteArray, dayCombo);
    QFETCH(QString, monthPath);
    QFETCH(QString, dayPath);
    show(documents::joined(dated, {{summerTime, "SET"}}));
    QVERIFY(valid());
    QCOMPARE(changesOf(QTest::currentDataTag(), "Month"),
             (QVariantMap{{monthPath, unset}, {dayPath, unset}}));
    QVERIFY(Window::enabled(page, dayCombo.constData()));
    QCOMPARE(Window::items(page, dayCombo.constData()), headed("Day", 1, 31));
    QCOMPARE(combo(dayCombo.constData())->currentIndex(), 0);
    QVERIFY(!valid());
    // A month keeps the day of the document until a day is chosen.
    QCOMPARE(changesOf(QTest::currentDataTag(), "6"), (QVariantMap{{monthPath, 6}}));
    QCOMPARE(changesOf(dayCombo.constData(), "30"), (QVariantMap{{dayPath, 30}}));
    QVERIFY(valid());
}

void TestSettingUserDates::dateShows_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<bool>("dayEnabled");
    QTest::addColumn<QVariantMap>("rewritten");
    const auto values = [](const QVariant &y, const QVariant &m, const QVariant &d) {
        return QVariantMap{{year, y}, {month, m}, {mday, d}};
    };
    QTest::newRow("all set") << values(2015, 12, 31) << QStringList{"2015", "12", "31"} << true
                             << QVariantMap();
    QTest::newRow("no day") << values(2037, 1, unset) << QStringList{"2037", "1", "Day"} << true
                            << QVariantMap();
    QTest::newRow("no year") << values(unset, 4, 30) << QStringList{"Year", "4", "30"} << true
                             << QVariantMap();
    QTest::newRow("day not in the month")
        << values(2020, 4, 31) << QStringList{"2020", "4", ""} << true << QVariantMap{{mday, 0}};
    QTest::newRow("nothing set") << values(unset, unset, unset) << QStringList{"Year", "Month", "Day"}
                                 << false << QVariantMap();
    QTest::newRow("month and year not listed")
        << values(2038, 13, 31) << QStringList{"", "", "31"} << true << QVariantMap{{year, 0}, {month, 0}};
    // Falling back to "Month" unsets the day; the list stands on the day that was read already and writes
    // nothing.
    QTest::newRow("month lost") << values(2020, unset, 31) << QStringList{"2020", "Month", "31"} << false
                                << QVariantMap{{mday, unset}};
    // Without a month the number shows in the list that the month before has left.
    QTest::newRow("day without month")
        << values(2020, unset, 30) << QStringList{"2020", "Month", "30"} << false << QVariantMap();
    QTest::newRow("missing") << values(QVariant(), QVariant(), QVariant()) << QStringList{"", "", ""} << true
                             << QVariantMap{{year, 0}, {month, 0}, {mday, 0}};
    QTest::newRow("listed again") << values(2020, 5, 6) << QStringList{"2020", "5", "6"} << true
                                  << QVariantMap();
    QTest::newRow("as texts") << values("2020", "5", "6") << QStringList{"", "", ""} << true
                              << QVariantMap{{year, 0}, {month, 0}, {mday, 0}};
}

// Each row stands on the lists that the row before has left.
void TestSettingUserDates::dateShows()
{
    QFETCH(QVariantMap, values);
    QFETCH(QStringList, shown);
    QFETCH(QVariantMap, rewritten);
    show(values);
    QCOMPARE((QStringList{Window::shown(page, "comboDateYear"), Window::shown(page, "comboDateMonth"),
                          Window::shown(page, "comboDateDay")}),
             shown);
    QTEST(Window::enabled(page, "comboDateDay"), "dayEnabled");
    QCOMPARE(window->dialog.document(),
             documents::with(documents::standard("R410"), documents::joined(values, rewritten)));
    QCOMPARE(valid(), !shown.contains("Year") && !shown.contains("Month") && !shown.contains("Day"));
}

void TestSettingUserDates::summerDatesShow_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QVariantMap>("rewritten");
    const auto values = [](const QVariant &sm, const QVariant &sd, const QVariant &em, const QVariant &ed) {
        return QVariantMap{{startMonth, sm}, {startDay, sd}, {endMonth, em}, {endDay, ed}};
    };
    QTest::newRow("all set") << values(4, 30, 2, 28) << QStringList{"4", "30", "2", "28"} << QVariantMap();
    QTest::newRow("same months, other days")
        << values(4, 1, 2, 2) << QStringList{"4", "1", "2", "2"} << QVariantMap();
    // The day's list stands on "Day" already, so that nothing is written.
    QTest::newRow("days not in the months")
        << values(4, 31, 2, 29) << QStringList{"4", "Day", "2", "Day"} << QVariantMap();
    // Months that fall to "Month" unset their day; the day that was read comes back.
    QTest::newRow("months not listed") << values(13, 31, 0, 5) << QStringList{"Month", "31", "Month", "5"}
                                       << QVariantMap{{startMonth, unset}, {endMonth, unset}};
    QTest::newRow("on the first item already")
        << values(14, 32, QVariant(), QVariant()) << QStringList{"Month", "Day", "Month", "Day"}
        << QVariantMap();
    QTest::newRow("listed again") << values(3, 25, 10, 28) << QStringList{"3", "25", "10", "28"}
                                  << QVariantMap();
    QTest::newRow("unset") << values(unset, 40, unset, unset) << QStringList{"Month", "Day", "Month", "Day"}
                           << QVariantMap{{startDay, unset}};
}

// Each row stands on the lists that the row before has left.
void TestSettingUserDates::summerDatesShow()
{
    QFETCH(QVariantMap, values);
    QFETCH(QStringList, shown);
    QFETCH(QVariantMap, rewritten);
    const QVariantMap set = documents::joined(values, documents::joined(dated, {{summerTime, "SET"}}));
    show(set);
    QCOMPARE((QStringList{Window::shown(page, "comboStartMonth"), Window::shown(page, "comboStartDay"),
                          Window::shown(page, "comboEndMonth"), Window::shown(page, "comboEndDay")}),
             shown);
    QCOMPARE(window->dialog.document(),
             documents::with(documents::standard("R410"), documents::joined(set, rewritten)));
    QCOMPARE(valid(), !shown.contains("Month") && !shown.contains("Day"));
}

void TestSettingUserDates::datesAreSelectedInOrder()
{
    show();
    const QObject scope;
    const QStringList order{"comboBrightness", "comboScreenSaverTimer", "comboDateYear",
                            "comboDateMonth",  "comboDateDay",          "comboStartMonth",
                            "comboStartDay",   "comboEndMonth",         "comboEndDay"};
    QStringList selected;
    for (const QString &name : order) {
        QObject::connect(combo(qPrintable(name)), &QComboBox::currentTextChanged, &scope,
                         [&selected, name] { selected.append(name); });
    }
    show(documents::joined(dated,
                           {{user + "backlightControl.brightness", "BRIGHTNESS30"},
                            {user + "backlightControl.dimmTimeSet", "BACKLIGHT60S"},
                            {startMonth, 1},
                            {startDay, 2},
                            {endMonth, 3},
                            {endDay, 4}}));
    QCOMPARE(selected, order);
}

void TestSettingUserDates::daysInLanguageKeepTheIndex()
{
    show(dated);
    QComboBox *list = combo("comboDateDay");
    const QSignalSpy changed(list, &QComboBox::currentTextChanged);
    QVERIFY(QMetaObject::invokeMethod(page, "calcDayInlanguage", Q_ARG(QComboBox *, combo("comboDateMonth")),
                                      Q_ARG(QComboBox *, list)));
    QCOMPARE(list->currentIndex(), 6);
    QVERIFY(QMetaObject::invokeMethod(page, "calcDay", Q_ARG(QComboBox *, combo("comboDateMonth")),
                                      Q_ARG(QComboBox *, list)));
    QCOMPARE(list->currentIndex(), 0);
    QCOMPARE(Window::items(list), headed("Day", 1, 31));
    QCOMPARE(changed.size(), 0);
}

void TestSettingUserDates::withoutLanguageNothingChosenIsUnset_data()
{
    QTest::addColumn<QVariantMap>("written");
    QTest::newRow("comboDateYear") << QVariantMap{{year, unset}};
    QTest::newRow("comboDateMonth") << QVariantMap{{mday, unset}};
    QTest::newRow("comboDateDay") << QVariantMap{{mday, unset}};
    QTest::newRow("comboStartMonth") << QVariantMap{{startMonth, unset}, {startDay, unset}};
    QTest::newRow("comboStartDay") << QVariantMap{{startDay, unset}};
    QTest::newRow("comboEndMonth") << QVariantMap{{endMonth, unset}, {endDay, unset}};
    QTest::newRow("comboEndDay") << QVariantMap{{endDay, unset}};
    QTest::newRow("comboScreenSaverTimer")
        << QVariantMap{{user + "backlightControl.dimmTimeSet", "BACKLIGHTS"}};
}

// A list on no item shows the text of its caption then: none.
void TestSettingUserDates::withoutLanguageNothingChosenIsUnset()
{
    QFETCH(QVariantMap, written);
    const auto language = withoutLanguage();
    show(documents::joined(dated, {{summerTime, "SET"}}));
    const auto leave = [this] { combo(QTest::currentDataTag())->setCurrentIndex(-1); };
    QCOMPARE(window->changes(leave), written);
    QCOMPARE(Window::enabled(page, "comboDateDay"), QByteArray("comboDateMonth") != QTest::currentDataTag());
}

void TestSettingUserDates::withoutLanguageCaptionsAreEmpty()
{
    const auto language = withoutLanguage();
    show(documents::joined(dated, {{summerTime, "SET"}}));
    QCOMPARE(Window::items(page, "comboDateYear"), headed(QString(), 2015, 2037));
    for (const char *months : {"comboDateMonth", "comboStartMonth", "comboEndMonth"}) {
        QCOMPARE(Window::items(page, months), headed(QString(), 1, 12));
    }
    for (const char *days : {"comboDateDay", "comboStartDay", "comboEndDay"}) {
        QCOMPARE(Window::items(page, days), headed(QString(), 1, 31));
    }
    QCOMPARE(Window::items(page, "comboScreenSaverTimer"), (QStringList{"15", "30", "60"}));
    QCOMPARE(Window::shown(page, "comboScreenSaverTimer"), QStringLiteral("30"));
    QCOMPARE(changesOf("comboScreenSaverTimer", "60"),
             (QVariantMap{{user + "backlightControl.dimmTimeSet", "BACKLIGHT60S"}}));
    // A year that isn't listed is lost: with a language it would be 0.
    show({{year, 2014}});
    QCOMPARE(stored(year).toInt(), unset);
}

CALORA_TEST_MAIN(TestSettingUserDates)
#include "tst_settinguserdates.moc"
