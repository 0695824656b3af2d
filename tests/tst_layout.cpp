#include "support/measure.h"
#include "support/tour.h"

// Nothing that the window shows is cut off or overlaps, at each size, in English and in a language whose words are
// longer, in °C and °F, on each page with as little and with as much as it can offer.
class TestLayout : public QObject
{
    Q_OBJECT

private slots:
    void lengthensTexts();
    void hasRoom_data();
    void hasRoom();
};

void TestLayout::lengthensTexts()
{
    QCOMPARE(measure::lengthened("Dry contact installation\n(CN_CC)"),
             QString("Drydr contactcon installationinsta\n(CNc_CCc)"));
    QCOMPARE(measure::lengthened("Use"), QString("Useus"));
    QCOMPARE(measure::lengthened("12"), QString("12"));
}

void TestLayout::hasRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("longer");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("refrigerant");
    for (const QSize &size : {QSize(974, 612), QSize(1440, 800), QSize(1920, 1080)}) {
        for (const bool longer : {false, true}) {
            for (const char *unit : {"CENTIGRADE", "FAHRENHEIT"}) {
                for (const char *refrigerant : {"R32", "R410"}) {
                    QTest::addRow("%d x %d, %s, %s, %s", size.width(), size.height(),
                                  longer ? "longer" : "English", unit, refrigerant)
                        << size << longer << unit << refrigerant;
                }
            }
        }
    }
}

void TestLayout::hasRoom()
{
    QFETCH(QSize, size);
    QFETCH(bool, longer);
    QFETCH(QString, unit);
    QFETCH(QString, refrigerant);
    Window window;
    window.dialog.resize(size);
    QTRY_COMPARE(window.dialog.size(), size);
    if (longer) {
        window.speak(measure::lengthened);
    }
    int faults = 0;
    for (const Tour::Stop &stop : Tour(window, refrigerant, unit).stops()) {
        stop.show();
        Tour::settle();
        const QStringList found = measure::cutTexts(&window.dialog) + measure::misplaced(&window.dialog)
            + measure::needlessScrolling(&window.dialog);
        faults += found.size();
        for (const QString &fault : found) {
            QWARN(qPrintable(stop.name + ": " + fault));
        }
    }
    QCOMPARE(faults, 0);
}

CALORA_TEST_MAIN(TestLayout)
#include "tst_layout.moc"
