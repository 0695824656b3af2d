#include "support/editortest.h"

#include <QScrollBar>

namespace {

const QColor blue(0x1D, 0x5F, 0xA6);

QRect placeOf(const QWidget *widget) { return {widget->mapTo(widget->window(), QPoint()), widget->size()}; }

} // namespace

// How the language editor shows where the keyboard is, and what can be scrolled.
class TestEditorLook : public EditorTest
{
    Q_OBJECT

private slots:
    void init() { open(); }
    void cleanup() { close(); }
    void searchIsRingedAsAPill();
    void buttonsAreRingedAsPills();
    void handleIsThereToScroll();
};

// By the mouse, too: letters go there.
void TestEditorLook::searchIsRingedAsAPill()
{
    QVERIFY(QTest::qWaitForWindowActive(editor.get()));
    const QRect pill = placeOf(Window::find(editor.get(), "frameSearch"));
    const auto colourAt = [this](const QPoint &point) { return editor->grab().toImage().pixelColor(point); };
    const QPoint left(pill.left(), pill.center().y());
    const QPoint top(pill.center().x(), pill.top());
    const QPoint bottom(pill.center().x(), pill.bottom());
    const QColor resting(0xD0, 0xD1, 0xD2);
    Window::find(editor.get(), "closeButton")->setFocus();
    for (const QPoint &point : {left, top, bottom}) {
        QCOMPARE(colourAt(point), resting);
    }
    Window::click(editor.get(), "searchLineEdit");
    QVERIFY(search()->hasFocus());
    for (const QPoint &point : {left, top, bottom, top + QPoint(0, 1), bottom - QPoint(0, 1)}) {
        QCOMPARE(colourAt(point), blue);
    }
    QCOMPARE(colourAt(pill.topLeft()), QColor(Qt::white));
    QCOMPARE(colourAt(top + QPoint(0, 2)), QColor(Qt::white));
    search()->clearFocus();
    QCOMPARE(colourAt(left), resting);
}

void TestEditorLook::buttonsAreRingedAsPills()
{
    QVERIFY(QTest::qWaitForWindowActive(editor.get()));
    for (const char *name : {"openButton", "closeButton", "saveButton"}) {
        QWidget *button = Window::find(editor.get(), name);
        editor->setAttribute(Qt::WA_KeyboardFocusChange); // as the Tab key does
        button->setFocus(Qt::TabFocusReason);
        const QRect ring = placeOf(button).adjusted(-5, -5, 5, 5);
        const QImage picture = editor->grab().toImage();
        QCOMPARE(picture.pixelColor(ring.center().x(), ring.top()), blue);
        // What a rectangle with small corners would cover.
        for (int step = 0; step < 7; ++step) {
            QVERIFY2(picture.pixelColor(ring.topLeft() + QPoint(step, step)) == QColor(Qt::white), name);
        }
    }
}

// The bar's room is always taken, so that no row moves.
void TestEditorLook::handleIsThereToScroll()
{
    const QScrollBar *bar = list()->verticalScrollBar();
    const auto hasHandle = [this, bar] {
        const QRect place = placeOf(bar);
        const QImage picture = editor->grab(place).toImage();
        for (int y = 0; y < picture.height(); ++y) {
            if (picture.pixelColor(picture.width() / 2, y) == QColor(158, 158, 158)) {
                return true;
            }
        }
        return false;
    };
    QVERIFY(bar->isVisible() && hasHandle());
    Window::type(search(), QStringLiteral("xyz"));
    QTRY_COMPARE(bar->maximum(), 0);
    QVERIFY(bar->isVisible() && !hasHandle());
    Window::type(search(), QString());
    QTRY_VERIFY(bar->maximum() > 0);
    QVERIFY(hasHandle());
}

CALORA_TEST_MAIN(TestEditorLook)
#include "tst_editorlook.moc"
