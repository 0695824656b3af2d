#include "document/units.h"

#include <QTest>

// The °C/°F table, and numbers in items of lists.
class TestUnits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { units.cfTable = Units::makeTable(); }
    void tableHoldsEvenFahrenheit();
    void tableDoublesEighteenValues();
    void tableValues_data();
    void tableValues();
    void tableStaysNearTheFormula();
    void backToTheLowestCelsius();
    void readsNumbersFromTexts_data();
    void readsNumbersFromTexts();

private:
    Units units;
};

void TestUnits::tableHoldsEvenFahrenheit()
{
    const QMap<int, int> table = Units::makeTable();
    QCOMPARE(table.size(), 171);
    QCOMPARE(table.firstKey(), -50);
    QCOMPARE(table.lastKey(), 120);
    for (const int fahrenheit : table) {
        QCOMPARE(fahrenheit % 2, 0);
    }
}

void TestUnits::tableDoublesEighteenValues()
{
    const QVector<int> doubled{-47, -32, -27, -19, -16, -6, 4, 14, 24, 34, 44, 54, 64, 74, 84, 94, 104, 114};
    const QMap<int, int> table = Units::makeTable();
    int before = 0;
    for (int celsius = -50; celsius <= 120; ++celsius) {
        // Two degrees for each °C from -50, less two for each value that came twice on the way.
        QCOMPARE(table.value(celsius), -56 + 2 * (celsius + 50) - 2 * before);
        before += doubled.contains(celsius) ? 1 : 0;
    }
    QCOMPARE(before, 18);
}

void TestUnits::tableValues_data()
{
    QTest::addColumn<int>("celsius");
    QTest::addColumn<int>("fahrenheit");
    const QVector<std::pair<int, int>> values{
        {-51, 0},   {-50, -56}, {-49, -54}, {-48, -52}, {-47, -50}, {-46, -50}, {-45, -48}, {-40, -38},
        {-32, -22}, {-31, -22}, {-30, -20}, {-27, -14}, {-26, -14}, {-20, -2},  {-19, 0},   {-18, 0},
        {-17, 2},   {-16, 4},   {-15, 4},   {-10, 14},  {-6, 22},   {-5, 22},   {-1, 30},   {0, 32},
        {4, 40},    {5, 40},    {10, 50},   {14, 58},   {15, 58},   {16, 60},   {20, 68},   {24, 76},
        {25, 76},   {30, 86},   {35, 94},   {50, 122},  {55, 130},  {65, 148},  {75, 166},  {80, 176},
        {100, 212}, {114, 238}, {115, 238}, {120, 248}, {121, 0}};
    for (const auto &[celsius, fahrenheit] : values) {
        QTest::addRow("%d", celsius) << celsius << fahrenheit;
    }
}

void TestUnits::tableValues()
{
    QFETCH(int, celsius);
    QFETCH(int, fahrenheit);
    QCOMPARE(units.celsiusToFahrenheit(celsius), fahrenheit);
}

void TestUnits::tableStaysNearTheFormula()
{
    for (int celsius = -50; celsius <= 120; ++celsius) {
        const double off = units.celsiusToFahrenheit(celsius) - (celsius * 1.8 + 32);
        QVERIFY2(qAbs(off) < (celsius < -18 ? 3.61 : 1.01), qPrintable(QString::number(celsius)));
    }
}

void TestUnits::backToTheLowestCelsius()
{
    for (int celsius = -50; celsius <= 120; ++celsius) {
        const int fahrenheit = units.celsiusToFahrenheit(celsius);
        int lowest = -50;
        while (units.celsiusToFahrenheit(lowest) != fahrenheit) {
            ++lowest;
        }
        QCOMPARE(units.fahrenheitToCelsius(fahrenheit), lowest);
        QCOMPARE(units.fahrenheitToCelsius(fahrenheit + 1), 0);
    }
    QCOMPARE(units.fahrenheitToCelsius(40), 4);
    QCOMPARE(units.fahrenheitToCelsius(41), 0);
    QCOMPARE(units.fahrenheitToCelsius(0), -19);
    QCOMPARE(units.fahrenheitToCelsius(-58), 0);
    QCOMPARE(units.fahrenheitToCelsius(250), 0);
}

void TestUnits::readsNumbersFromTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("withoutTwo");
    QTest::addColumn<int>("withoutOne");
    const auto row = [](const char *text, int withoutTwo, int withoutOne) {
        QTest::newRow(*text == '\0' ? "(empty)" : text) << QString(text) << withoutTwo << withoutOne;
    };
    row("35°C", 35, 0);
    row("-5°C", -5, 0);
    row("148°F", 148, 0);
    row("12K", 1, 12);
    row("-3K", 0, -3);
    row("1234", 12, 123);
    row("010K", 1, 10);
    row("Select", 0, 0);
    row("°C", 0, 0);
    row("C", 0, 0);
    row("5", 0, 0);
    row("", 0, 0);
}

void TestUnits::readsNumbersFromTexts()
{
    QFETCH(QString, text);
    QFETCH(int, withoutTwo);
    QFETCH(int, withoutOne);
    QCOMPARE(Units::numberBefore(text, 2), withoutTwo);
    QCOMPARE(Units::numberBefore(text, 1), withoutOne);
}

QTEST_APPLESS_MAIN(TestUnits)
#include "tst_units.moc"
