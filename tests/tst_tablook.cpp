#include "support/look.h"
#include "support/measure.h"

#include "widgets/palette.h"

#include <QScrollArea>
#include <QScrollBar>

namespace {

/// How many hairlines, as long as the rows, one sees from the middle of a row to that of the one below it.
int linesBetween(Window &window, const char *above, const char *below)
{
    const QColor hairline(palette::hairline.value);
    const QImage picture = window.dialog.grab().toImage();
    const QRect next = look::placeOf(Window::find(&window.dialog, below));
    int lines = 0;
    for (int y = look::placeOf(Window::find(&window.dialog, above)).center().y(); y < next.center().y();
         ++y) {
        const bool isLine = picture.pixelColor(next.left(), y) == hairline
            && picture.pixelColor(next.right(), y) == hairline;
        lines += isLine ? 1 : 0;
    }
    return lines;
}

} // namespace

// The Function and User tabs: rows, columns and what is off.
class TestTabLook : public QObject
{
    Q_OBJECT

private slots:
    void datesStandInOneGrid_data() { look::everyLanguage(); }
    void datesStandInOneGrid();
    void rowsAreDivided_data();
    void rowsAreDivided();
    void functionTabNeedsNoScrolling();
};

// Nothing but its column tells a day from a month.
void TestTabLook::datesStandInOneGrid()
{
    QFETCH(QString, language);
    Window window;
    window.use(documents::everything("R32"));
    window.dialog.setSideBarVisible(true);
    look::speak(window, language);
    for (const QSize &size : {QSize(974, 612), QSize(1440, 800)}) {
        look::resize(window, size);
        window.showPage(MainDialog::SettingPage, MainDialog::UserTab);
        Tour::settle();
        const auto left = [&window](const char *list) {
            return look::placeOf(Window::find(&window.dialog, list)).left();
        };
        for (const char *month : {"comboStartMonth", "comboEndMonth"}) {
            QCOMPARE(left(month), left("comboDateMonth"));
        }
        for (const char *day : {"comboStartDay", "comboEndDay"}) {
            QCOMPARE(left(day), left("comboDateDay"));
        }
        const QStringList faults = measure::cutTexts(&window.dialog) + measure::misplaced(&window.dialog)
            + measure::needlessScrolling(&window.dialog);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(", ")));
    }
}

void TestTabLook::rowsAreDivided_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("above");
    QTest::addColumn<QByteArray>("below");
    QTest::addColumn<int>("lines");
    const auto add = [](int tab, const char *above, const char *below, int lines) {
        QTest::addRow("%s, %s", above, below) << tab << QByteArray(above) << QByteArray(below) << lines;
    };
    add(MainDialog::FunctionTab, "groupBoxSilentModeSet", "groupBoxSilentStart", 1);
    add(MainDialog::FunctionTab, "groupBoxSilentStart", "groupBoxSilentEnd", 1);
    add(MainDialog::FunctionTab, "labelLock", "groupBoxAllLock", 0); // a heading is no row
    add(MainDialog::FunctionTab, "groupBoxAllLock", "groupBoxOnOffLock", 1);
    add(MainDialog::FunctionTab, "groupBoxOnOffLock", "groupBoxModeLock", 1);
    add(MainDialog::FunctionTab, "groupBoxModeLock", "groupBoxDHWOnOff", 1);
    add(MainDialog::UserTab, "labelRemoteController", "groupBoxScreenSaver", 0);
    add(MainDialog::UserTab, "groupBoxScreenSaver", "groupBoxBrightness", 1);
    add(MainDialog::UserTab, "groupBoxSummerTimeSet", "groupBoxSummerStart", 1);
    add(MainDialog::UserTab, "groupBoxSummerStart", "groupBoxSummerEnd", 1);
}

// They lead from a caption to its controls.
void TestTabLook::rowsAreDivided()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, above);
    QFETCH(QByteArray, below);
    QFETCH(int, lines);
    Window window;
    window.use(documents::everything("R32"));
    window.dialog.setSideBarVisible(true);
    look::resize(window, QSize(1440, 800));
    window.showPage(MainDialog::SettingPage, tab);
    Tour::settle();
    QVERIFY(Window::find(&window.dialog, below)->isVisible());
    QCOMPARE(linesBetween(window, above, below), lines);
}

// All that it can offer, in English, in the smallest window.
void TestTabLook::functionTabNeedsNoScrolling()
{
    Window window;
    window.use(documents::everything("R32"));
    window.dialog.setSideBarVisible(true);
    look::resize(window, QSize(974, 612));
    window.showPage(MainDialog::SettingPage, MainDialog::FunctionTab);
    Tour::settle();
    QVERIFY(Window::find(&window.dialog, "groupBoxOdeFunction")->isVisible());
    const auto *area = Window::find<QScrollArea>(&window.dialog, "functionScrollArea");
    QCOMPARE(area->verticalScrollBar()->maximum(), 0);
}

CALORA_TEST_MAIN(TestTabLook)
#include "tst_tablook.moc"
