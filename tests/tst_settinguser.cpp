#include "support/usertabtest.h"

#include <QJsonObject>

// The User tab: temperature unit, backlight, date, summer time, theme.
// What plain controls list, write and show: walk/tst_controls.cpp.
class TestSettingUser : public UserTabTest
{
    Q_OBJECT

private slots:
    void initTestCase() { renew(); }
    void init() { messages::clear(); }
    void cleanup() { window->speak(); }
    void cleanupTestCase() { window.reset(); }

    void writesNothingBeforeItIsShown();
    void firstShowingLoads();
    void listsAtConstruction_data();
    void listsAtConstruction();
    void languageChangeKeepsPositions();
    void languageChangeSelectsWhereNothingWas();
    void otherLanguageLoadsAndSaves();
    void defaultsShowAndStay_data();
    void defaultsShowAndStay();
    void showingLeavesTheStepMarks();
    void unknownWords_data();
    void unknownWords();
    void unitDrivesTheTool();
    void backlightShows_data();
    void backlightShows();
    void valuesThatAreNotListedPass();
    void chainGoesInOrder();
    void chainTakesRadiosFirst();
    void blocksAllLists();
    void stylesOfEnabledAndDimmed();
    void writesIntoAnEmptyDocument();

private:
    static inline const QString brightness = user + QStringLiteral("backlightControl.brightness");
    static inline const QString timer = user + QStringLiteral("backlightControl.dimmTimeSet");
    static inline const QString theme = user + QStringLiteral("themeSet");
    static inline const QString tempConversion = user + QStringLiteral("tempUnit.tempConversion");
};

// The first test: the page has not been shown yet.
void TestSettingUser::writesNothingBeforeItIsShown()
{
    window->use(documents::standard("R410"));
    combo("comboBrightness")->setCurrentIndex(2);
    combo("comboDateYear")->setCurrentIndex(2);
    Window::invoke(page, "on_radioBlack_clicked");
    QCOMPARE(window->dialog.document(), documents::standard("R410"));
}

// The second test: the load itself writes already, and the day is disabled though the month hasn't changed.
void TestSettingUser::firstShowingLoads()
{
    show({{brightness, "brightness30"}});
    QCOMPARE(stored(brightness).toString(), QStringLiteral("BRIGHTNESS30"));
    QCOMPARE(combo("comboDateMonth")->currentIndex(), 0);
    QVERIFY(!Window::enabled(page, "comboDateDay"));
}

void TestSettingUser::listsAtConstruction_data()
{
    QTest::addColumn<QStringList>("items");
    QTest::newRow("comboBrightness") << QStringList{"0%", "10%", "20%", "30%"};
    // The unit follows the language only with a language change.
    QTest::newRow("comboScreenSaverTimer") << QStringList{"15s", "30s", "60s"};
    QTest::newRow("comboDateYear") << headed("Year~", 2015, 2037);
    QTest::newRow("comboDateMonth") << headed("Month~", 1, 12);
    QTest::newRow("comboStartMonth") << headed("Month~", 1, 12);
    QTest::newRow("comboEndMonth") << headed("Month~", 1, 12);
    QTest::newRow("comboDateDay") << QStringList{"Day~"};
    QTest::newRow("comboStartDay") << QStringList{"Day~"};
    QTest::newRow("comboEndDay") << QStringList{"Day~"};
}

void TestSettingUser::listsAtConstruction()
{
    QFETCH(QStringList, items);
    window->speak("~");
    const SettingUser fresh;
    QCOMPARE(messages::all(), QStringList());
    QCOMPARE(Window::items(&fresh, QTest::currentDataTag()), items);
    QCOMPARE(Window::find<QComboBox>(&fresh, QTest::currentDataTag())->currentIndex(), 0);
}

void TestSettingUser::languageChangeKeepsPositions()
{
    show(documents::joined(dated,
                           {{summerTime, "SET"}, {brightness, "BRIGHTNESS20"}, {timer, "BACKLIGHT60S"}}));
    struct Expected {
        const char *name;
        QStringList items;
        int index;
    };
    const std::vector<Expected> lists{{"comboScreenSaverTimer", {"15s~", "30s~", "60s~"}, 2},
                                      {"comboBrightness", {"0%", "10%", "20%", "30%"}, 2},
                                      {"comboDateYear", headed("Year~", 2015, 2037), 10},
                                      {"comboDateMonth", headed("Month~", 1, 12), 5},
                                      {"comboDateDay", headed("Day~", 1, 31), 6},
                                      {"comboStartMonth", headed("Month~", 1, 12), 3},
                                      {"comboStartDay", headed("Day~", 1, 31), 25},
                                      {"comboEndMonth", headed("Month~", 1, 12), 10},
                                      {"comboEndDay", headed("Day~", 1, 31), 28}};
    messages::clear();
    QCOMPARE(window->changes([this] { window->speak("~"); }), QVariantMap());
    QVERIFY(!messages::contain("SettingUser::"));
    for (const Expected &list : lists) {
        QCOMPARE(Window::items(page, list.name), list.items);
        QCOMPARE(combo(list.name)->currentIndex(), list.index);
    }
}

void TestSettingUser::languageChangeSelectsWhereNothingWas()
{
    show({{year, 2014}, {brightness, "BRIGHTNESS50"}});
    QCOMPARE(combo("comboDateYear")->currentIndex(), -1);
    QCOMPARE(combo("comboBrightness")->currentIndex(), -1);
    QCOMPARE(window->changes([this] { window->speak("~"); }), QVariantMap());
    QCOMPARE(combo("comboDateYear")->currentIndex(), 0);
    // This list needs no words and isn't filled again.
    QCOMPARE(combo("comboBrightness")->currentIndex(), -1);
}

void TestSettingUser::otherLanguageLoadsAndSaves()
{
    window->speak("~");
    show(documents::joined(dated, {{summerTime, "SET"}, {timer, "BACKLIGHT15S"}}));
    QCOMPARE(Window::shown(page, "comboScreenSaverTimer"), QStringLiteral("15s~"));
    QCOMPARE(changesOf("comboScreenSaverTimer", "60s~"), (QVariantMap{{timer, "BACKLIGHT60S"}}));
    QCOMPARE(changesOf("comboDateDay", "Day~"), (QVariantMap{{mday, unset}}));
    QCOMPARE(changesOf("comboDateYear", "Year~"), (QVariantMap{{year, unset}}));
    QCOMPARE(changesOf("comboDateMonth", "7"), (QVariantMap{{month, 7}}));
    QCOMPARE(Window::items(page, "comboDateDay"), headed("Day~", 1, 31));
    QCOMPARE(changesOf("comboStartDay", "Day~"), (QVariantMap{{startDay, unset}}));
    QCOMPARE(changesOf("comboEndMonth", "Month~"), (QVariantMap{{endMonth, unset}, {endDay, unset}}));
    Window::choose(page, "comboDateDay", "8");
    QCOMPARE(changesOf("comboDateMonth", "Month~"), (QVariantMap{{mday, unset}}));
}

void TestSettingUser::defaultsShowAndStay_data()
{
    QTest::addColumn<QString>("refrigerant");
    QTest::newRow("R410") << "R410";
    QTest::newRow("R32") << "R32";
}

void TestSettingUser::defaultsShowAndStay()
{
    QFETCH(QString, refrigerant);
    window->use(documents::standard(refrigerant));
    const auto showPage = [this] { window->showPage(MainDialog::SettingPage, MainDialog::UserTab); };
    QCOMPARE(window->changes(showPage), QVariantMap());
    QVERIFY(Window::checked(page, "radioCelicious"));
    QVERIFY(Window::checked(page, "radioSummerTimeNotuse"));
    QVERIFY(Window::checked(page, "radioWhite"));
    const std::vector<std::pair<const char *, QString>> texts{
        {"comboScreenSaverTimer", "30s"}, {"comboBrightness", "10%"}, {"comboDateYear", "Year"},
        {"comboDateMonth", "Month"},      {"comboDateDay", "Day"},    {"comboStartMonth", "3"},
        {"comboStartDay", "25"},          {"comboEndMonth", "10"},    {"comboEndDay", "28"}};
    for (const auto &[name, text] : texts) {
        QCOMPARE(Window::shown(page, name), text);
    }
    QVERIFY(Window::enabled(page, "comboDateMonth"));
    QVERIFY(!Window::enabled(page, "comboDateDay"));
    QVERIFY(!valid());
    QVERIFY(Window::shownItself(&window->dialog, "userValidationIcon"));
    QVERIFY(messages::contain("SettingUser::validationCheck failed!!"));
}

void TestSettingUser::showingLeavesTheStepMarks()
{
    window->dialog.setCurrentStep(1);
    const auto style = [this](const char *name) { return Window::find(&window->dialog, name)->styleSheet(); };
    const QString product = style("productSelectionButton");
    QVERIFY(product.contains("btn_step_1_focus.png"));
    show();
    QCOMPARE(style("productSelectionButton"), product);
}

void TestSettingUser::unknownWords_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<QString>("unchecked");
    const QString celsius("radioCelicious");
    const QString fahrenheit("radioFahreheit");
    const QString white("radioWhite");
    const QString black("radioBlack");
    QTest::newRow("black") << theme << QVariant("BLACK") << black << white;
    QTest::newRow("unknown theme keeps black") << theme << QVariant("x") << black << white;
    QTest::newRow("theme missing keeps black") << theme << QVariant() << black << white;
    QTest::newRow("unknown unit") << tempConversion << QVariant("x") << QString() << celsius;
    QTest::newRow("unit missing") << tempConversion << QVariant() << QString() << fahrenheit;
}

void TestSettingUser::unknownWords()
{
    QFETCH(QString, path);
    QFETCH(QVariant, value);
    QFETCH(QString, checked);
    QFETCH(QString, unchecked);
    show({{path, value}});
    QVERIFY(!Window::checked(page, qPrintable(unchecked)));
    if (checked.isEmpty()) {
        QVERIFY(!Window::checked(page, "radioCelicious"));
        QVERIFY(!Window::checked(page, "radioFahreheit"));
    } else {
        QVERIFY(Window::checked(page, qPrintable(checked)));
    }
    QCOMPARE(window->dialog.document(), documents::with(documents::standard("R410"), {{path, value}}));
}

void TestSettingUser::unitDrivesTheTool()
{
    show();
    Window::click(page, "radioFahreheit");
    QCOMPARE(window->dialog.tempUnit(), QStringLiteral("FAHRENHEIT"));
    QVERIFY(window->dialog.isFahrenheit());
    Window::click(page, "radioCelicious");
    QCOMPARE(window->dialog.tempUnit(), QStringLiteral("CENTIGRADE"));
    // Loading the page leaves the tool's unit alone.
    show({{tempConversion, "FAHRENHEIT"}});
    QCOMPARE(window->dialog.tempUnit(), QStringLiteral("CENTIGRADE"));
}

void TestSettingUser::backlightShows_data()
{
    QTest::addColumn<QByteArray>("combo");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("after");
    const QByteArray light("comboBrightness");
    const QByteArray saver("comboScreenSaverTimer");
    QTest::newRow("0%") << light << brightness << QVariant("BRIGHTNESS0") << 0 << "BRIGHTNESS0";
    QTest::newRow("any case") << light << brightness << QVariant("brightness30") << 3 << "BRIGHTNESS30";
    QTest::newRow("empty") << light << brightness << QVariant("") << 3 << "";
    QTest::newRow("unknown") << light << brightness << QVariant("BRIGHTNESS50") << -1 << "BRIGHTNESS";
    QTest::newRow("15s") << saver << timer << QVariant("BACKLIGHT15S") << 0 << "BACKLIGHT15S";
    QTest::newRow("60s") << saver << timer << QVariant("backlight60s") << 2 << "BACKLIGHT60S";
    QTest::newRow("empty time") << saver << timer << QVariant("") << 2 << "";
    QTest::newRow("unknown time") << saver << timer << QVariant("BACKLIGHT45S") << -1 << "BACKLIGHTS";
}

// Each row stands on what the row before has left.
void TestSettingUser::backlightShows()
{
    QFETCH(QByteArray, combo);
    QFETCH(QString, path);
    QFETCH(QVariant, value);
    show(documents::joined(dated, {{path, value}}));
    QTEST(this->combo(combo.constData())->currentIndex(), "index");
    QTEST(stored(path).toString(), "after");
    QVERIFY(valid());
}

void TestSettingUser::valuesThatAreNotListedPass()
{
    show(documents::joined(dated, {{brightness, "BRIGHTNESS50"}, {year, 2014}}));
    QCOMPARE(combo("comboBrightness")->currentIndex(), -1);
    QCOMPARE(combo("comboDateYear")->currentIndex(), -1);
    QVERIFY(valid());
}

void TestSettingUser::chainGoesInOrder()
{
    show({{summerTime, "SET"}, {startMonth, unset}, {startDay, unset}, {endMonth, unset}, {endDay, unset}});
    const std::vector<const char *> order{"comboDateYear",   "comboDateMonth", "comboEndMonth",
                                          "comboStartMonth", "comboDateDay",   "comboEndDay",
                                          "comboStartDay"};
    for (const char *name : order) {
        QVERIFY(!valid());
        messages::clear();
        Window::invoke(page, "validationCheck");
        QVERIFY2(messages::contain(QStringLiteral("Object Name: \"%1\" validation check failed").arg(name)),
                 name);
        QVERIFY(messages::contain("SettingUser::validationCheck failed!!"));
        QCOMPARE(messages::all().filter("validation check failed").size(), 1);
        Window::choose(combo(name), 1);
    }
    QVERIFY(valid());
    QVERIFY(messages::contain("SettingUser::SettingUser validation succeed!"));
}

void TestSettingUser::chainTakesRadiosFirst()
{
    for (const auto &[first, second] :
         std::vector<std::pair<const char *, const char *>>{{"radioCelicious", "radioFahreheit"},
                                                            {"radioSummerTimeNotuse", "radioSummerTimeUse"},
                                                            {"radioWhite", "radioBlack"}}) {
        show(dated);
        QVERIFY(valid());
        for (const char *name : {first, second}) {
            auto *radio = Window::find<QRadioButton>(page, name);
            radio->setAutoExclusive(false);
            radio->setChecked(false);
            radio->setAutoExclusive(true);
        }
        Window::invoke(page, "validationCheck");
        QVERIFY2(!valid(), first);
        Window::find<QRadioButton>(page, first)->setChecked(true);
    }
}

void TestSettingUser::blocksAllLists()
{
    show(dated);
    for (const bool block : {true, false}) {
        QVERIFY(QMetaObject::invokeMethod(page, "blockComboBoxSignal", Q_ARG(bool, block)));
        const auto combos = page->findChildren<QComboBox *>();
        QCOMPARE(combos.size(), 9);
        for (const QComboBox *each : combos) {
            QCOMPARE(each->signalsBlocked(), block);
        }
    }
}

void TestSettingUser::stylesOfEnabledAndDimmed()
{
    QString style;
    QVERIFY(QMetaObject::invokeMethod(page, "setOpacity", Q_RETURN_ARG(QString, style), Q_ARG(bool, true)));
    QCOMPARE(style, QStringLiteral("color : #555555;"));
    QVERIFY(QMetaObject::invokeMethod(page, "setOpacity", Q_RETURN_ARG(QString, style), Q_ARG(bool, false)));
    QCOMPARE(style, QStringLiteral("color : rgba(55,55,55,30%)"));
}

// The guard alone counts: a page that has been shown writes into whatever there is.
void TestSettingUser::writesIntoAnEmptyDocument()
{
    show();
    window->dialog.setDocument({});
    Window::click(page, "radioBlack");
    QCOMPARE(window->dialog.document(), QJsonDocument(QJsonObject{{"SettingInfo", "black"}}));
}

CALORA_TEST_MAIN(TestSettingUser)
#include "tst_settinguser.moc"
