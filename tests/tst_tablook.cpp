#include "support/look.h"
#include "support/measure.h"

// The Function and User tabs: rows, columns and what is off.
class TestTabLook : public QObject
{
    Q_OBJECT

private slots:
    void datesStandInOneGrid_data() { look::everyLanguage(); }
    void datesStandInOneGrid();
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

CALORA_TEST_MAIN(TestTabLook)
#include "tst_tablook.moc"
