#include "document/units.h"
#include "pages/page.h"
#include "support/window.h"

#include <QSignalSpy>
#include <QVBoxLayout>

#include <limits>

namespace {

struct Rows : Page {
    using Page::indexOf;
};

} // namespace

// Value lists and the shared checks.

class TestValueLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { window = std::make_unique<Window>(); }
    void init();
    void cleanup() { host.reset(); }
    void cleanupTestCase() { window.reset(); }

    void tableIsFilledAnew();
    void unitIsAnyText();
    void fillsARange_data();
    void fillsARange();
    void fillsLongRanges_data();
    void fillsLongRanges();
    void fillsInSilence();
    void crossedRangeLeavesTheList();
    void selectsAValue_data();
    void selectsAValue();
    void countsIndexesFromTheFirst_data();
    void countsIndexesFromTheFirst();
    void selectsInSilence();
    void selectsByKey_data();
    void selectsByKey();
    void selectingByKeyRunsTheSlots();
    void fillsTexts_data();
    void fillsTexts();
    void checksALine_data();
    void checksALine();
    void checksAList_data();
    void checksAList();
    void checksRadios();
    void checksRadiosOfAHiddenPage();
    void tellsAFailedCheck();
    void emptySlotDoesNothing();

private:
    MainDialog &dialog() const { return window->dialog; }

    std::unique_ptr<Window> window;
    std::unique_ptr<QWidget> host;
    QComboBox *combo = nullptr;
    QLineEdit *line = nullptr;
    std::array<QRadioButton *, 3> radios{};
};

void TestValueLists::init()
{
    dialog().setTempUnit("CENTIGRADE");
    host = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(host.get());
    combo = new QComboBox;
    combo->setObjectName("list");
    line = new QLineEdit;
    layout->addWidget(combo);
    layout->addWidget(line);
    int number = 0;
    for (QRadioButton *&radio : radios) {
        radio = new QRadioButton;
        radio->setObjectName(QStringLiteral("radio%1").arg(++number));
        radio->setAutoExclusive(false);
        layout->addWidget(radio);
    }
    host->show();
    messages::clear();
}

void TestValueLists::tableIsFilledAnew()
{
    const QMap<int, int> before = dialog().members().units.cfTable;
    QVERIFY(Window::invoke(&dialog(), "initCFTable"));
    QCOMPARE(dialog().members().units.cfTable, before);
    QCOMPARE(before, Units::makeTable());
    QCOMPARE(dialog().celsiusToFahrenheit(5), 40);
    QCOMPARE(dialog().fahrenheitToCelsius(40), 4);
    QCOMPARE(MainDialog::textWithoutTwoChars("35°C"), 35);
    QCOMPARE(MainDialog::textWithoutOneChar("12K"), 12);
}

void TestValueLists::unitIsAnyText()
{
    for (const char *unit : {"CENTIGRADE", "", "fahrenheit", "FAHRENHEIT ", "F"}) {
        dialog().setTempUnit(unit);
        QCOMPARE(dialog().tempUnit(), QString(unit));
        QVERIFY2(!dialog().isFahrenheit(), unit);
        dialog().setRangeValueInComboBox(combo, 4, 4, MainDialog::Temperature, 1);
        QCOMPARE(Window::items(combo), QStringList{"4°C"});
    }
    dialog().setTempUnit("FAHRENHEIT");
    QVERIFY(dialog().isFahrenheit());
}

void TestValueLists::fillsARange_data()
{
    QTest::addColumn<bool>("fahrenheit");
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("step");
    QTest::addColumn<QStringList>("items");
    QTest::newRow("°C") << false << 35 << 55 << 1 << 1 << range(35, 55, "°C");
    QTest::newRow("°F") << true << 35 << 55 << 1 << 1 << range(94, 130, "°F", 2);
    QTest::newRow("°F whatever the step") << true << 35 << 55 << 1 << 5 << range(94, 130, "°F", 2);
    QTest::newRow("°C in steps") << false << 10 << 31 << 1 << 10 << QStringList{"10°C", "20°C", "30°C"};
    QTest::newRow("°C below zero") << false << -2 << 1 << 1 << 1 << QStringList{"-2°C", "-1°C", "0°C", "1°C"};
    QTest::newRow("°F below zero") << true << -20 << -17 << 1 << 1 << QStringList{"-2°F", "0°F", "2°F"};
    QTest::newRow("one °C") << false << 5 << 5 << 1 << 1 << QStringList{"5°C"};
    QTest::newRow("two °C that share a °F") << true << 4 << 5 << 1 << 1 << QStringList{"40°F"};
    QTest::newRow("K") << false << 1 << 3 << 2 << 1 << QStringList{"1K", "2K", "3K"};
    QTest::newRow("K under °F") << true << 1 << 5 << 2 << 2 << QStringList{"1K", "3K", "5K"};
    QTest::newRow("plain") << false << -1 << 1 << 0 << 1 << QStringList{"-1", "0", "1"};
    QTest::newRow("plain under °F") << true << 0 << 20 << 0 << 10 << QStringList{"0", "10", "20"};
    QTest::newRow("unknown unit") << true << 0 << 2 << 3 << 1 << QStringList{"0", "1", "2"};
    // What the table doesn't hold counts as 0 °F.
    QTest::newRow("past the table") << true << 119 << 121 << 1 << 1 << QStringList();
    QTest::newRow("before the table") << true << -60 << -18 << 1 << 1 << QStringList{"0°F"};
}

void TestValueLists::fillsARange()
{
    QFETCH(bool, fahrenheit);
    QFETCH(int, lower);
    QFETCH(int, upper);
    QFETCH(int, unit);
    QFETCH(int, step);
    QFETCH(QStringList, items);
    dialog().setTempUnit(fahrenheit ? "FAHRENHEIT" : "CENTIGRADE");
    combo->addItems({"old", "older"});
    combo->setCurrentIndex(1);
    dialog().setRangeValueInComboBox(combo, lower, upper, unit, step);
    QCOMPARE(Window::items(combo), items);
    QCOMPARE(combo->currentIndex(), items.isEmpty() ? -1 : 0);
    for (int index = 0; index < combo->count(); ++index) {
        QVERIFY(combo->itemData(index).isNull());
        QVERIFY(combo->itemIcon(index).isNull());
    }
}

void TestValueLists::fillsLongRanges_data()
{
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("last");
    QTest::newRow("damaged limit") << -9999 << 24 << 10024 << "24°C";
    QTest::newRow("longest") << -29975 << 24 << 30000 << "24°C";
    QTest::newRow("cut") << -29976 << 24 << 30000 << "23°C";
}

// A document's value is in a list that a damaged limit has made long.
void TestValueLists::fillsLongRanges()
{
    QFETCH(int, lower);
    QFETCH(int, upper);
    dialog().setRangeValueInComboBox(combo, lower, upper, MainDialog::Temperature, 1);
    QTEST(combo->count(), "count");
    QTEST(combo->itemText(combo->count() - 1), "last");
    dialog().setComboByValue(combo, 18, MainDialog::Temperature);
    QCOMPARE(combo->currentText(), QStringLiteral("18°C"));
}

void TestValueLists::fillsInSilence()
{
    QSignalSpy texts(combo, &QComboBox::currentTextChanged);
    QSignalSpy indices(combo, QOverload<int>::of(&QComboBox::currentIndexChanged));
    dialog().setRangeValueInComboBox(combo, 1, 3, MainDialog::Kelvin, 1);
    MainDialog::setComboItems(combo, {"a", "b"}, 1);
    MainDialog::refillComboItems(combo, {"c", "d"}, -1);
    QCOMPARE(texts.size() + indices.size(), 0);
    QVERIFY(!combo->signalsBlocked());
    combo->setCurrentIndex(1);
    QCOMPARE(texts.size(), 1);
    // Blocked before, the list speaks again after.
    combo->blockSignals(true);
    dialog().setRangeValueInComboBox(combo, 1, 3, MainDialog::Kelvin, 1);
    QVERIFY(!combo->signalsBlocked());
}

void TestValueLists::crossedRangeLeavesTheList()
{
    combo->addItems({"old", "older"});
    combo->setCurrentIndex(1);
    combo->blockSignals(true);
    dialog().setRangeValueInComboBox(combo, 30, 20, MainDialog::Temperature, 1);
    QCOMPARE(Window::items(combo), (QStringList{"old", "older"}));
    QCOMPARE(combo->currentIndex(), 1);
    QVERIFY(combo->signalsBlocked());
    QCOMPARE(messages::all(),
             QStringList{"MainDialog::setRangeValueInComboBox ComboBox: \"list\" lower: 30  > "
                         "upper: 20"});
}

void TestValueLists::selectsAValue_data()
{
    QTest::addColumn<bool>("fahrenheit");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("missing");
    const auto row = [](const char *name, bool fahrenheit, const QStringList &items, int value, int unit,
                        int index, const char *missing = "") {
        QTest::newRow(name) << fahrenheit << items << value << unit << index << QString(missing);
    };
    const QStringList warm = range(35, 65, "°C");
    const QStringList cold = range(-4, 4, "°C");
    row("°C", false, warm, 40, 1, 5);
    row("°C first", false, warm, 35, 1, 0);
    row("°C last", false, warm, 65, 1, 30);
    row("°C below zero", false, cold, -3, 1, 1);
    row("°C above", false, warm, 70, 1, 30, "70°C");
    row("°C below, though positive", false, warm, 20, 1, 30, "20°C");
    row("°C zero", false, warm, 0, 1, 0, "0°C");
    row("°C negative", false, warm, -5, 1, 0, "-5°C");
    row("°F", true, range(94, 148, "°F", 2), 65, 1, 27);
    row("°F that two °C share", true, range(32, 60, "°F", 2), 5, 1, 4);
    row("°F above", true, range(94, 130, "°F", 2), 65, 1, 18, "148°F");
    row("°F by the °C, not by the °F", true, range(94, 130, "°F", 2), -1, 1, 0, "30°F");
    row("°F beyond the table", true, range(94, 130, "°F", 2), 130, 1, 18, "0°F");
    row("°F in a list of °C", true, warm, 40, 1, 30, "104°F");
    row("K", false, {"1K", "2K", "3K"}, 3, 2, 2);
    row("K under °F", true, {"1K", "2K", "3K"}, 2, 2, 1);
    row("K above", false, {"1K", "2K", "3K"}, 9, 2, 2, "9K");
    row("K zero", false, {"1K", "2K", "3K"}, 0, 2, 0, "0K");
    row("plain", false, {"10", "20", "30"}, 20, 0, 1);
    row("plain under °F", true, {"10", "20", "30"}, 30, 0, 2);
    row("plain above", false, {"10", "20", "30"}, 90, 0, 0, "90");
    row("plain below", false, {"10", "20", "30"}, 5, 0, 0, "5");
    // A first item that is a number is compared by that number.
    row("K in plain numbers, above the first", false, {"10", "20", "30"}, 11, 2, 2, "11K");
    row("K in plain numbers, at the first", false, {"10", "20", "30"}, 10, 2, 0, "10K");
    row("the whole text", false, {"Select", "15°C", "5°C"}, 5, 1, 2);
    row("no items", false, {}, 5, 1, -1, "5°C");
    row("no items, plain", false, {}, 5, 0, -1, "5");
}

void TestValueLists::selectsAValue()
{
    QFETCH(bool, fahrenheit);
    QFETCH(QStringList, items);
    QFETCH(int, value);
    QFETCH(int, unit);
    QFETCH(int, index);
    QFETCH(QString, missing);
    dialog().setTempUnit(fahrenheit ? "FAHRENHEIT" : "CENTIGRADE");
    combo->addItems(items);
    combo->setCurrentIndex(items.size() / 2);
    dialog().setComboByValue(combo, value, unit);
    QCOMPARE(combo->currentIndex(), index);
    QCOMPARE(Window::items(combo), items);
    const QStringList told{"# Error index setting \"list\"  #",
                           QStringLiteral("%1 \"%2\"").arg(value).arg(missing)};
    QCOMPARE(messages::all(), missing.isEmpty() ? QStringList() : told);
}

void TestValueLists::countsIndexesFromTheFirst_data()
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int greatest = std::numeric_limits<int>::max();
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("index");
    QTest::newRow("first") << 20 << 20 << 0;
    QTest::newRow("later") << 23 << 20 << 3;
    QTest::newRow("before") << 18 << 20 << -1;
    QTest::newRow("least value") << least << 20 << -1;
    QTest::newRow("greatest value") << greatest << 1 << greatest - 1;
    QTest::newRow("beyond every index") << greatest << -1 << -1;
    QTest::newRow("least first") << 4 << least << -1;
}

void TestValueLists::countsIndexesFromTheFirst()
{
    QFETCH(int, value);
    QFETCH(int, first);
    QTEST(Rows::indexOf(value, first), "index");
}

void TestValueLists::selectsInSilence()
{
    combo->addItems({"1K", "2K"});
    QSignalSpy texts(combo, &QComboBox::currentTextChanged);
    dialog().setComboByValue(combo, 2, MainDialog::Kelvin);
    dialog().setComboByValue(combo, -2, MainDialog::Kelvin);
    QVERIFY(texts.isEmpty());
    QVERIFY(!combo->signalsBlocked());
}

void TestValueLists::selectsByKey_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("index");
    QTest::newRow("text of the key") << "Select" << 1;
    QTest::newRow("key without a text") << "no key" << 3;
    QTest::newRow("text isn't listed") << "Save" << 0;
    QTest::newRow("other case") << "No Key" << 0;
    QTest::newRow("part of an item") << "no" << 0;
    QTest::newRow("empty") << "" << 0;
}

void TestValueLists::selectsByKey()
{
    QFETCH(QString, key);
    QFETCH(int, index);
    combo->addItems({"SELECT", "Select", "", "no key", "x"});
    combo->setCurrentIndex(4);
    dialog().setComboByKey(combo, key);
    QCOMPARE(combo->currentIndex(), index);
    QVERIFY(messages::all().isEmpty());
}

void TestValueLists::selectingByKeyRunsTheSlots()
{
    combo->addItems({"a", "b"});
    QSignalSpy texts(combo, &QComboBox::currentTextChanged);
    dialog().setComboByKey(combo, "b");
    QCOMPARE(texts.size(), 1);
    dialog().setComboByKey(combo, "b");
    QCOMPARE(texts.size(), 1);
    dialog().setComboByKey(combo, "c");
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts.last().first().toString(), QString("a"));
}

void TestValueLists::fillsTexts_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("refilled");
    QTest::newRow("first") << 0 << 0 << 0;
    QTest::newRow("last") << 2 << 2 << 2;
    QTest::newRow("none") << -1 << 0 << 0;
    QTest::newRow("past the end") << 7 << -1 << -1;
}

void TestValueLists::fillsTexts()
{
    QFETCH(int, index);
    QFETCH(int, set);
    QFETCH(int, refilled);
    const QStringList items{"x", "y", "z"};
    combo->addItems({"old", "older"});
    combo->setCurrentIndex(1);
    MainDialog::setComboItems(combo, items, index);
    QCOMPARE(Window::items(combo), items);
    QCOMPARE(combo->currentIndex(), set);
    MainDialog::refillComboItems(combo, items, index);
    QCOMPARE(Window::items(combo), items);
    QCOMPARE(combo->currentIndex(), refilled);
    for (const char *round : {"emptied", "empty already"}) {
        MainDialog::refillComboItems(combo, {}, index);
        QVERIFY2(combo->currentIndex() == -1, round);
        QVERIFY2(combo->count() == 0, round);
    }
}

void TestValueLists::checksALine_data()
{
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("passes");
    QTest::newRow("empty") << true << true << "" << false;
    QTest::newRow("blank") << true << true << " " << true;
    QTest::newRow("text") << true << true << "7" << true;
    QTest::newRow("empty, disabled") << true << false << "" << true;
    QTest::newRow("empty, hidden") << false << true << "" << true;
    QTest::newRow("text, hidden") << false << true << "7" << true;
}

void TestValueLists::checksALine()
{
    QFETCH(bool, shown);
    QFETCH(bool, enabled);
    QFETCH(QString, text);
    line->setVisible(shown);
    line->setEnabled(enabled);
    line->setText(text);
    QTEST(MainDialog::checkValidationLineEdit(line), "passes");
}

void TestValueLists::checksAList_data()
{
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("passes");
    QTest::newRow("no choice") << true << true << 0 << false;
    QTest::newRow("choice") << true << true << 1 << true;
    QTest::newRow("no item") << true << true << -1 << true;
    QTest::newRow("no choice, disabled") << true << false << 0 << true;
    QTest::newRow("no choice, hidden") << false << true << 0 << true;
    QTest::newRow("choice, hidden") << false << true << 1 << true;
}

void TestValueLists::checksAList()
{
    QFETCH(bool, shown);
    QFETCH(bool, enabled);
    QFETCH(int, index);
    combo->addItems({"Select", "a"});
    combo->setCurrentIndex(index);
    combo->setVisible(shown);
    combo->setEnabled(enabled);
    QTEST(MainDialog::checkValidationComboBox(combo), "passes");
}

void TestValueLists::checksRadios()
{
    const auto &[first, second, third] = radios;
    // Each bit is a state of a radio; what is hidden, disabled or checked in the pair passes, and so does a
    // checked third.
    for (int bits = 0; bits < 512; ++bits) {
        const auto bit = [bits](int number) { return (bits & (1 << number)) != 0; };
        int number = 0;
        for (QRadioButton *radio : radios) {
            radio->setVisible(!bit(number++));
            radio->setEnabled(!bit(number++));
            radio->setChecked(bit(number++));
        }
        const bool pairPasses = bit(0) || bit(1) || bit(2) || bit(3) || bit(4) || bit(5);
        QCOMPARE(MainDialog::checkValidationRadio(first, second, nullptr), pairPasses);
        QCOMPARE(MainDialog::checkValidationRadio(first, second, third), pairPasses || bit(8));
    }
}

void TestValueLists::checksRadiosOfAHiddenPage()
{
    QVERIFY(!MainDialog::checkValidationRadio(radios[0], radios[1], nullptr));
    host->hide();
    QVERIFY(MainDialog::checkValidationRadio(radios[0], radios[1], nullptr));
    QVERIFY(MainDialog::checkValidationLineEdit(line));
    combo->addItem("Select");
    QVERIFY(MainDialog::checkValidationComboBox(combo));
}

void TestValueLists::tellsAFailedCheck()
{
    combo->addItem("Select");
    QVERIFY(!MainDialog::checkValidationComboBox(combo));
    QVERIFY(!MainDialog::checkValidationRadio(radios[0], radios[1], radios[2]));
    QVERIFY(!MainDialog::checkValidationLineEdit(line));
    QCOMPARE(messages::all(),
             (QStringList{
                 "MainDialog::checkValidationComboBox Object Name: \"list\" validation check failed",
                 " MainDialog::checkValidationRadio Object Name: \"radio1\" \"radio2\" validataion check: "
                 "false"}));
    messages::clear();
    combo->hide();
    line->hide();
    radios[0]->hide();
    QVERIFY(MainDialog::checkValidationComboBox(combo));
    QVERIFY(MainDialog::checkValidationRadio(radios[0], radios[1], radios[2]));
    QVERIFY(MainDialog::checkValidationLineEdit(line));
    QVERIFY(messages::all().isEmpty());
}

void TestValueLists::emptySlotDoesNothing()
{
    const QString before = dialog().members().selectText;
    QVERIFY(Window::invoke(&dialog(), "changeSelectTextInCombobox"));
    QCOMPARE(dialog().members().selectText, before);
    QVERIFY(messages::all().isEmpty());
}

CALORA_TEST_MAIN(TestValueLists)
#include "tst_valuelists.moc"
