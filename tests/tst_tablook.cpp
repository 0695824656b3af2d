#include "support/look.h"
#include "support/measure.h"

#include "widgets/palette.h"

#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

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

/// The darkest of what a label draws on white.
int darkness(QLabel *label)
{
    const QImage picture = label->grab().toImage();
    int darkest = 255;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            darkest = std::min(darkest, picture.pixelColor(x, y).lightness());
        }
    }
    return darkest;
}

/// Texts that are pale beside something open, or dark beside what is off; counts the pale ones.
QStringList wronglyTinted(const QWidget *page, int &pale)
{
    QStringList wrong;
    const auto rows = page->findChildren<QGroupBox *>();
    for (const QGroupBox *row : rows) {
        const auto parts = row->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        const auto isOpen = [](const QWidget *part) {
            return part->isEnabled() && qobject_cast<const QLabel *>(part) == nullptr;
        };
        const bool isOff = std::none_of(parts.begin(), parts.end(), isOpen);
        const auto labels = row->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        for (QLabel *label : labels) {
            if (!label->isVisible() || label->text().isEmpty()) {
                continue;
            }
            const bool isPale = darkness(label) > 150;
            pale += isPale ? 1 : 0;
            if (isPale != isOff) {
                wrong.append(label->objectName());
            }
        }
    }
    return wrong;
}

} // namespace

// The Function, User and Service tabs: rows, columns and what is off.
class TestTabLook : public QObject
{
    Q_OBJECT

private slots:
    void datesStandInOneGrid_data() { look::everyLanguage(); }
    void datesStandInOneGrid();
    void rowsAreDivided_data();
    void rowsAreDivided();
    void functionTabNeedsNoScrolling();
    void textsDimWithTheirFields();
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
    add(MainDialog::ServiceTab, "labelServiceContract", "groupBoxOfficeName", 0);
    add(MainDialog::ServiceTab, "groupBoxOfficeName", "groupBoxInstallerName", 1);
    add(MainDialog::ServiceTab, "groupBoxInstallerName", "groupBoxTelephone", 1);
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

void TestTabLook::textsDimWithTheirFields()
{
    Window window;
    window.use(documents::everything("R32"));
    window.dialog.setSideBarVisible(true);
    const auto *pages = Window::find(&window.dialog, "stackedWidget");
    const auto count = [&](int tab, const char *choice) {
        int pale = 0;
        window.showPage(MainDialog::SettingPage, tab);
        Window::click(&window.dialog, choice);
        Tour::settle();
        const QStringList wrong = wronglyTinted(pages, pale);
        return wrong.isEmpty() ? QString::number(pale) : wrong.join(' ');
    };
    QCOMPARE(count(MainDialog::FunctionTab, "radioSlientModeUse"), QString("0"));
    QCOMPARE(count(MainDialog::FunctionTab, "radioSlientModeNotuse"), QString("4")); // captions and colons
    QCOMPARE(count(MainDialog::FunctionTab, "radioAllButtonUse"), QString("7"));
    QCOMPARE(count(MainDialog::UserTab, "radioSummerTimeUse"), QString("0"));
    QCOMPARE(count(MainDialog::UserTab, "radioSummerTimeNotuse"), QString("2"));
}

CALORA_TEST_MAIN(TestTabLook)
#include "tst_tablook.moc"
