#include "support/mouse.h"
#include "support/window.h"

#include "pages/installation/installationsystemsetting.h"

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

CALORA_TEST_MAIN(TestWheel)
#include "tst_wheel.moc"
