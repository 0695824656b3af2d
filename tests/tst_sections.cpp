#include "support/mouse.h"
#include "support/tour.h"

#include "pages/installation/installationaauto.h"
#include "pages/installation/installationcool.h"
#include "pages/installation/installationdwh.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemsetting.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

// The headers of the Installation tab's sections: a click on the title line is one on the arrow, and a
// section that the user opens is scrolled into view.
class TestSections : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void titleLineIsTheArrow_data() { sections(); }
    void titleLineIsTheArrow();
    void otherPressesAreNot();
    void openedSectionIsSeen_data() { sections(); }
    void openedSectionIsSeen();
    void openedFirstSectionStays();
    void closingStaysInPlace();
    void closingKeepsTheFocus();
    void loadStaysInPlace();
    void pressBelowTheLanguagePopupClosesIt();

private:
    static void sections();
    QWidget *section(const char *name) const { return Window::find(&window->dialog, name); }
    static QWidget *header(const QWidget *section)
    {
        return Window::find(section, "hideButton")->parentWidget();
    }
    static bool isOpen(const QWidget *section) { return Window::find(section, "frame")->isVisible(); }
    QScrollArea *area() const { return Window::find<QScrollArea>(&window->dialog, "installationScrollArea"); }
    int scrolled() const { return area()->verticalScrollBar()->value(); }
    /// Where the widget lies in what is seen of the page.
    QRect seen(const QWidget *widget) const
    {
        return {widget->mapTo(area()->viewport(), QPoint()), widget->size()};
    }

    std::unique_ptr<Window> window;
};

void TestSections::init()
{
    window = std::make_unique<Window>();
    window->dialog.resize(974, 612);
    mouse::place(window->dialog, QPoint(0, 0));
    window->use(documents::standard("R410"));
    window->showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    QTRY_COMPARE(window->dialog.size(), QSize(974, 612));
    Tour::settle();
}

void TestSections::sections()
{
    QTest::addColumn<bool>("named");
    for (const char *name : {"InstallationSystemSetting", "InstallationCool", "InstallationHeat",
                             "InstallationaAuto", "InstallationDWH"}) {
        QTest::newRow(name) << true;
    }
}

void TestSections::titleLineIsTheArrow()
{
    const QWidget *page = section(QTest::currentDataTag());
    area()->ensureWidgetVisible(header(page));
    const QSignalSpy clicks(Window::find<QPushButton>(page, "hideButton"), &QPushButton::clicked);
    mouse::moveTo(header(page)->findChild<QLabel *>()->mapToGlobal(QPoint(10, 5)));
    mouse::press();
    mouse::release();
    QCOMPARE(clicks.size(), 1);
    QVERIFY(isOpen(page));
    // Beside the title, and twice in quick succession.
    Window::click(header(page));
    QVERIFY(!isOpen(page));
    for (int count = 0; count < 2; ++count) {
        Tour::settle(); // what closes takes the page along
        mouse::moveTo(header(page)->mapToGlobal(QPoint(100, 20)));
        mouse::press();
        mouse::release();
    }
    QCOMPARE(clicks.size(), 4);
    QVERIFY(!isOpen(page));
    // The arrow itself as ever.
    Window::click(page, "hideButton");
    QCOMPARE(clicks.size(), 5);
    QVERIFY(isOpen(page));
}

void TestSections::otherPressesAreNot()
{
    const QWidget *page = section("InstallationCool");
    QWidget *line = header(page);
    QTest::mouseClick(line, Qt::RightButton);
    QTest::mousePress(line, Qt::LeftButton);
    QTest::mouseRelease(line, Qt::LeftButton, {}, QPoint(20, -5));
    QTest::mouseRelease(line, Qt::LeftButton);
    QVERIFY(!isOpen(page));
}

void TestSections::pressBelowTheLanguagePopupClosesIt()
{
    const QWidget *page = section("InstallationSystemSetting");
    Window::click(&window->dialog, "languageCombobox");
    QVERIFY(window->dialog.members().languageMenuOpen);
    Window::click(header(page));
    QVERIFY(!window->dialog.members().languageMenuOpen);
    QVERIFY(!isOpen(page));
    Window::click(header(page));
    QVERIFY(isOpen(page));
}

void TestSections::openedSectionIsSeen()
{
    const QWidget *page = section(QTest::currentDataTag());
    for (const char *other : {"InstallationSystemSetting", "InstallationCool"}) {
        Window::click(header(section(other)));
    }
    if (isOpen(page)) {
        Window::click(header(page));
    }
    area()->ensureWidgetVisible(header(page), 0, 0);
    const int before = seen(page).top();
    QTest::keyClick(Window::find(page, "hideButton"), Qt::Key_Space);
    QVERIFY(isOpen(page));
    const QRect place = seen(page);
    const int height = area()->viewport()->height();
    QVERIFY2(place.top() >= 0, qPrintable(QString::number(place.top())));
    // The whole of it, or its title and three rows; what shows these already stays under the mouse.
    const int seenRows = header(page)->height() + 3 * 38;
    QVERIFY(place.top() + qMin(place.height(), seenRows) <= height);
    const int moved = before - place.top();
    QVERIFY2(moved <= 8 || place.top() + qMin(place.height(), seenRows + 80) >= height,
             qPrintable(QString::number(moved)));
    // It has its height already.
    const QSize size = page->size();
    Tour::settle();
    QCOMPARE(page->size(), size);
    QCOMPARE(seen(page), place);
}

void TestSections::openedFirstSectionStays()
{
    Window::click(header(section("InstallationCool")));
    for (const int scrolledBy : {0, 9, 12}) {
        area()->verticalScrollBar()->setValue(scrolledBy);
        Window::click(header(section("InstallationSystemSetting")));
        QVERIFY(isOpen(section("InstallationSystemSetting")));
        QCOMPARE(scrolled(), scrolledBy);
        Window::click(header(section("InstallationSystemSetting")));
    }
}

void TestSections::closingStaysInPlace()
{
    for (const char *name : {"InstallationSystemSetting", "InstallationCool"}) {
        Window::click(header(section(name)));
    }
    area()->verticalScrollBar()->setValue(40);
    Window::click(header(section("InstallationCool")));
    QVERIFY(!isOpen(section("InstallationCool")));
    QCOMPARE(scrolled(), 40);
}

// At the section that the hand is at, not at the next one.
void TestSections::closingKeepsTheFocus()
{
    QVERIFY(QTest::qWaitForWindowActive(&window->dialog));
    QWidget *cool = section("InstallationCool");
    QWidget *arrow = Window::find(cool, "hideButton");
    Window::click(arrow);
    QWidget *list = Window::find(cool, "comboTemperatureIndoorMin");
    list->setFocus();
    QVERIFY(list->hasFocus());
    QTest::mouseClick(header(cool), Qt::LeftButton);
    QVERIFY(!isOpen(cool));
    QCOMPARE(QApplication::focusWidget(), arrow);
    Window::click(arrow);
    QWidget *elsewhere = Window::find(section("InstallationHeat"), "hideButton");
    elsewhere->setFocus();
    QTest::mouseClick(header(cool), Qt::LeftButton);
    QVERIFY(!isOpen(cool));
    QCOMPARE(QApplication::focusWidget(), elsewhere);
}

void TestSections::loadStaysInPlace()
{
    Window::click(header(section("InstallationCool")));
    Window::click(header(section("InstallationDWH")));
    QVERIFY(scrolled() > 0);
    area()->verticalScrollBar()->setValue(3);
    window->showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    window->speak("~");
    Tour::settle();
    QVERIFY(isOpen(section("InstallationDWH")));
    QCOMPARE(scrolled(), 3);
}

CALORA_TEST_MAIN(TestSections)
#include "tst_sections.moc"
