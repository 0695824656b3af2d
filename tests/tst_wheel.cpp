#include "support/mouse.h"
#include "support/window.h"

#include "pages/installation/installationsystemsetting.h"

#include <QAbstractItemView>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

void turnDown(QWidget *widget)
{
    const QPointF place(5, 5);
    QWheelEvent turn(place, widget->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &turn);
}

} // namespace

// A turn of the wheel over a closed combo box, or a key that turns the page, scrolls the page and changes no
// value.
class TestWheel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { window.reset(); }

    void everyComboBoxIsGuarded();
    void scrollsThePage_data();
    void scrollsThePage();
    void keysThatTurnPagesScroll();
    void keysThatTurnPagesScrollFromAnywhere();
    void aListOutOfSightIsShownFirst();
    void openListShowsBothNeighbours();

private:
    std::unique_ptr<Window> window;
};

void TestWheel::initTestCase()
{
    window = std::make_unique<Window>();
    window->use(documents::standard("R32"));
    window->speak();
    mouse::place(window->dialog, QPoint(200, 100));
}

void TestWheel::everyComboBoxIsGuarded()
{
    for (const int tab : {MainDialog::FunctionTab, MainDialog::UserTab, MainDialog::InstallationTab}) {
        window->showPage(MainDialog::SettingPage, tab);
    }
    const auto combos = window->dialog.findChildren<QComboBox *>();
    QVERIFY(combos.size() > 80);
    for (QComboBox *combo : combos) {
        const int before = combo->count() > 1 ? 1 : combo->currentIndex();
        combo->blockSignals(true);
        combo->setCurrentIndex(before);
        combo->blockSignals(false);
        turnDown(combo);
        QVERIFY2(combo->currentIndex() == before, qPrintable(combo->objectName()));
        QVERIFY2((combo->focusPolicy() & Qt::WheelFocus) != Qt::WheelFocus, qPrintable(combo->objectName()));
    }
}

void TestWheel::scrollsThePage_data()
{
    QTest::addColumn<bool>("focused");
    QTest::newRow("without focus") << false;
    QTest::newRow("with focus") << true;
}

void TestWheel::scrollsThePage()
{
    QFETCH(bool, focused);
    auto *system = window->page<InstallationSystemSetting>();
    window->showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    Window::expand(system);
    auto *bar = Window::find<QScrollArea>(&window->dialog, "installationScrollArea")->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    bar->setValue(0);
    auto *combo = Window::find<QComboBox>(system, "comboCentral");
    if (focused) {
        combo->setFocus();
    }
    const QJsonDocument document = window->dialog.document();
    const int index = combo->currentIndex();
    constexpr int wheelDown = 5;
    mouse::moveTo(combo->mapToGlobal(combo->rect().center()));
    mouse::press(wheelDown);
    mouse::release(wheelDown);
    QTRY_VERIFY(bar->value() > 0);
    QCOMPARE(combo->currentIndex(), index);
    QCOMPARE(window->dialog.document(), document);
}

void TestWheel::keysThatTurnPagesScroll()
{
    auto *system = window->page<InstallationSystemSetting>();
    window->showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    Window::expand(system);
    auto *bar = Window::find<QScrollArea>(&window->dialog, "installationScrollArea")->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    bar->setValue(0);
    auto *combo = Window::find<QComboBox>(system, "comboBoxScreedHolding");
    combo->setFocus();
    const QJsonDocument document = window->dialog.document();
    const int index = combo->currentIndex();
    QTest::keyClick(combo, Qt::Key_PageDown);
    QVERIFY(bar->value() > 0);
    QTest::keyClick(combo, Qt::Key_PageUp);
    QCOMPARE(bar->value(), 0);
    QCOMPARE(combo->currentIndex(), index);
    QCOMPARE(window->dialog.document(), document);
}

// The tab that was clicked has the focus, or a radio, which keeps none of these keys.
void TestWheel::keysThatTurnPagesScrollFromAnywhere()
{
    auto *system = window->page<InstallationSystemSetting>();
    window->showPage(MainDialog::SettingPage, MainDialog::FunctionTab);
    Window::click(&window->dialog, "installationTabButton");
    Window::expand(system);
    auto *bar = Window::find<QScrollArea>(&window->dialog, "installationScrollArea")->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    const QJsonDocument document = window->dialog.document();
    auto *radio = Window::find<QWidget>(system, "radioDryManual");
    for (QWidget *focused : {Window::find<QWidget>(&window->dialog, "installationTabButton"), radio}) {
        focused->setFocus();
        bar->setValue(0);
        QTest::keyClick(focused, Qt::Key_PageDown);
        const int page = bar->value();
        QVERIFY(page > 0);
        QTest::keyClick(focused, Qt::Key_End);
        QCOMPARE(bar->value(), bar->maximum());
        QTest::keyClick(focused, Qt::Key_PageUp);
        QCOMPARE(bar->value(), bar->maximum() - page);
        QTest::keyClick(focused, Qt::Key_Home);
        QCOMPARE(bar->value(), 0);
    }
    QCOMPARE(window->dialog.document(), document);
}

void TestWheel::aListOutOfSightIsShownFirst()
{
    auto *system = window->page<InstallationSystemSetting>();
    window->showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    Window::expand(system);
    auto *bar = Window::find<QScrollArea>(&window->dialog, "installationScrollArea")->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    auto *list = Window::find<QComboBox>(system, "comboBoxScreedHolding");
    list->setFocus();
    const int index = list->currentIndex();
    const QJsonDocument document = window->dialog.document();
    for (const int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_1}) {
        bar->setValue(bar->maximum());
        QVERIFY(list->visibleRegion().isEmpty());
        QTest::keyClick(list, static_cast<Qt::Key>(key));
        QCOMPARE(list->visibleRegion().boundingRect(), list->rect());
        QCOMPARE(list->currentIndex(), index);
        QCOMPARE(window->dialog.document(), document);
    }
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(list->currentIndex(), index + 1);
}

// Years are more than an open list shows.
void TestWheel::openListShowsBothNeighbours()
{
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    auto *years = Window::find<QComboBox>(&window->dialog, "comboDateYear");
    const int middle = years->count() / 2;
    const QSignalBlocker blocked(years);
    years->setCurrentIndex(middle);
    Window::click(years);
    const QAbstractItemView *rows = years->view();
    QTRY_VERIFY(rows->isVisible());
    for (const int neighbour : {middle - 4, middle + 4}) {
        const QRect row = rows->visualRect(years->model()->index(neighbour, 0));
        QVERIFY(rows->viewport()->rect().contains(row));
    }
    years->hidePopup();
    years->setCurrentIndex(0);
}

CALORA_TEST_MAIN(TestWheel)
#include "tst_wheel.moc"
