#include "support/messages.h"
#include "support/window.h"

#include "app/frameless.h"

#include <QHoverEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QRubberBand>

// The frameless window behaviour on a window of its own, driven by events sent to it: 400 x 300 at (100,
// 100), at least 200 x 150 and at most 800 x 600.

namespace {

constexpr auto arrow = Qt::ArrowCursor;
constexpr auto horizontal = Qt::SizeHorCursor;
constexpr auto vertical = Qt::SizeVerCursor;
constexpr auto fallingDiagonal = Qt::SizeFDiagCursor;
constexpr auto risingDiagonal = Qt::SizeBDiagCursor;

const QRect start(100, 100, 400, 300);

class Pane : public QWidget
{
public:
    explicit Pane(bool resizable)
    {
        setMinimumSize(200, 150);
        setMaximumSize(800, 600);
        setGeometry(start);
        frameLess = std::make_unique<FrameLess>(this, resizable);
        show();
        if (!QTest::qWaitForWindowExposed(this) || !QTest::qWaitFor([this] { return geometry() == start; })) {
            qFatal("The window doesn't come up");
        }
        seen.clear();
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        seen.append(event->type());
        return eats;
    }

    void mouse(QEvent::Type type, const QPoint &pos, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, pos, mapToGlobal(pos), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(this, &event);
    }
    void press(const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonPress, pos, button, button);
    }
    void release(Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonRelease, QPoint(), button, Qt::NoButton);
    }
    /// Moves to a point of the screen.
    void moveTo(const QPoint &globalPos, Qt::MouseButtons buttons = Qt::LeftButton)
    {
        mouse(QEvent::MouseMove, mapFromGlobal(globalPos), Qt::NoButton, buttons);
    }
    void hover(const QPoint &pos)
    {
        QHoverEvent event(QEvent::HoverMove, pos, pos);
        QApplication::sendEvent(this, &event);
    }
    void leave()
    {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(this, &event);
    }
    Qt::CursorShape shape() const { return cursor().shape(); }
    QWidget *probe() const { return findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly); }

    std::unique_ptr<FrameLess> frameLess;
    QList<QEvent::Type> seen;
    bool eats = false;
};

QList<QRubberBand *> rubberBands()
{
    QList<QRubberBand *> bands;
    const auto widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (auto *band = qobject_cast<QRubberBand *>(widget)) {
            bands.append(band);
        }
    }
    return bands;
}

} // namespace

Q_DECLARE_METATYPE(Qt::CursorShape)

class TestFrameLess : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        messages::install();
        // The pointer of the server stays out of the way.
        QCursor::setPos(1900, 1000);
    }
    void init() { pane = std::make_unique<Pane>(true); }
    void cleanup() { pane.reset(); }

    void preparesItsTarget();
    void leavesTargetAndProbe();
    void findsEdges_data();
    void findsEdges();
    void probeLiesUnderThePointer();
    void probeStandsAboveChildren();
    void resizes_data();
    void resizes();
    void leftAndTopStopAtTheMinimum();
    void rightAndBottomAreHeldByQt();
    void dragsFromInside_data();
    void dragsFromInside();
    void dragsOnAndOn();
    void onlyTheLeftButtonCounts();
    void hoverIsIgnoredDuringAPress();
    void leaveResetsTheCursor();
    void dragMeetsARestoredWindow_data();
    void dragMeetsARestoredWindow();
    void dragRestoresAMaximizedWindow();
    void maximizedHasNoEdges();
    void fullScreenHasNoEdges();
    void maximizedKeepsWhatStood();
    void withoutEdges();
    void targetFiltersToo();
    void edgesKeepEventsFromTheTarget();

private:
    std::unique_ptr<Pane> pane;
};

void TestFrameLess::preparesItsTarget()
{
    QVERIFY((pane->windowFlags() & Qt::FramelessWindowHint) != 0);
    QVERIFY((pane->windowFlags() & Qt::Window) != 0);
    QVERIFY(pane->testAttribute(Qt::WA_MouseTracking));
    QVERIFY(pane->testAttribute(Qt::WA_Hover));
    QCOMPARE(pane->frameLess->parent(), nullptr);
    QVERIFY(pane->probe() != nullptr);
    QCOMPARE(pane->probe()->size(), QSize(5, 5));
    QVERIFY(!pane->probe()->autoFillBackground());
    const auto bands = rubberBands();
    QCOMPARE(bands.size(), 1);
    QCOMPARE(bands.constFirst()->shape(), QRubberBand::Rectangle);
    QCOMPARE(bands.constFirst()->parent(), nullptr);
    pane->press(QPoint(0, 150));
    QVERIFY(!bands.constFirst()->isVisible());
    QCOMPARE(bands.constFirst()->geometry(), start);
    pane->release();
}

void TestFrameLess::leavesTargetAndProbe()
{
    const QPointer<QWidget> probe = pane->probe();
    messages::clear();
    pane->frameLess.reset();
    QCOMPARE(messages::all(), (QStringList{"FrameLess::~FrameLess()...1", "FrameLess::~FrameLess()...2"}));
    QVERIFY(rubberBands().isEmpty());
    QVERIFY(probe);
    pane->hover(QPoint(0, 150));
    QCOMPARE(pane->shape(), arrow);
}

// Width and height are 400 and 300: the last pixels are 399 and 299, and the bounds lie one beyond.
void TestFrameLess::findsEdges_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<Qt::CursorShape>("shape");
    const struct {
        const char *name;
        int x, y;
        Qt::CursorShape shape;
    } rows[] = {
        {"inside", 200, 150, arrow},
        {"left, 6 outside", -6, 150, arrow},
        {"left, 5 outside", -5, 150, horizontal},
        {"left, 5 inside", 5, 150, horizontal},
        {"left, 6 inside", 6, 150, arrow},
        {"left wins in the top corner", 5, 5, horizontal},
        {"left wins in the bottom corner", 0, 295, horizontal},
        {"outside beside the top corner", -1, 4, arrow},
        {"outside beside the bottom corner", -1, 296, arrow},
        {"right, inmost", 395, 150, horizontal},
        {"right, too far inside", 394, 150, arrow},
        {"right, outmost", 400, 150, horizontal},
        {"right, outside", 401, 150, arrow},
        {"right wins in the top corner", 395, 5, horizontal},
        {"bottom, inmost", 200, 295, vertical},
        {"bottom, too far inside", 200, 294, arrow},
        {"bottom, outmost", 200, 300, vertical},
        {"bottom, outside", 200, 301, arrow},
        {"bottom wins in the left corner", 5, 300, vertical},
        {"bottom wins in the right corner", 395, 296, vertical},
        {"top, outmost", 200, 0, vertical},
        {"top, outside", 200, -1, arrow},
        {"top, inmost", 200, 5, vertical},
        {"top, too far inside", 200, 6, arrow},
        {"top wins in the left corner", 5, 4, vertical},
        {"top wins in the right corner", 395, 4, vertical},
        {"bottom left", 4, 296, risingDiagonal},
        {"bottom left, outmost", 0, 300, risingDiagonal},
        {"bottom right", 396, 296, fallingDiagonal},
        {"bottom right, outmost", 400, 300, fallingDiagonal},
        {"bottom right, outside", 401, 301, arrow},
        {"top right", 396, 4, risingDiagonal},
        {"top right, outmost", 400, 0, risingDiagonal},
        {"top left", 4, 4, fallingDiagonal},
        {"top left, outmost", 0, 0, fallingDiagonal},
    };
    for (const auto &row : rows) {
        QTest::newRow(row.name) << row.x << row.y << row.shape;
    }
}

void TestFrameLess::findsEdges()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(Qt::CursorShape, shape);
    pane->hover(QPoint(x, y));
    QCOMPARE(pane->shape(), shape);
    QCOMPARE(pane->testAttribute(Qt::WA_SetCursor), shape != arrow);
    QCOMPARE(pane->probe()->isVisible(), shape != arrow);
    // A move without a button does the same.
    pane->unsetCursor();
    pane->moveTo(pane->mapToGlobal(QPoint(x, y)), Qt::NoButton);
    QCOMPARE(pane->shape(), shape);
}

void TestFrameLess::probeLiesUnderThePointer()
{
    pane->hover(QPoint(2, 40));
    QCOMPARE(pane->probe()->geometry(), QRect(0, 38, 5, 5));
    QVERIFY(pane->probe()->isVisible());
    pane->hover(QPoint(398, 60));
    QCOMPARE(pane->probe()->geometry(), QRect(396, 58, 5, 5));
    pane->hover(QPoint(200, 60));
    QVERIFY(!pane->probe()->isVisible());
}

void TestFrameLess::probeStandsAboveChildren()
{
    QWidget *probe = pane->probe();
    QWidget child(pane.get());
    child.setGeometry(pane->rect());
    child.show();
    pane->hover(QPoint(2, 40));
    QCOMPARE(pane->childAt(2, 40), probe);
    QCOMPARE(probe->cursor().shape(), horizontal);
}

void TestFrameLess::resizes_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QRect>("result");
    // The window covers 100..499 and 100..399; each time the pointer goes to (90, 80) or (550, 450) of the
    // screen.
    QTest::newRow("left") << QPoint(0, 150) << QRect(QPoint(90, 100), QPoint(499, 399));
    QTest::newRow("top") << QPoint(200, 0) << QRect(QPoint(100, 80), QPoint(499, 399));
    QTest::newRow("top left") << QPoint(0, 0) << QRect(QPoint(90, 80), QPoint(499, 399));
    QTest::newRow("right") << QPoint(399, 150) << QRect(QPoint(100, 100), QPoint(550, 399));
    QTest::newRow("bottom") << QPoint(200, 299) << QRect(QPoint(100, 100), QPoint(499, 450));
    QTest::newRow("bottom right") << QPoint(399, 299) << QRect(QPoint(100, 100), QPoint(550, 450));
    QTest::newRow("top right") << QPoint(399, 0) << QRect(QPoint(100, 80), QPoint(550, 399));
    QTest::newRow("bottom left") << QPoint(0, 299) << QRect(QPoint(90, 100), QPoint(499, 450));
}

void TestFrameLess::resizes()
{
    QFETCH(QPoint, from);
    QFETCH(QRect, result);
    const int x = result.left() < 100 ? 90 : 550;
    const int y = result.top() < 100 ? 80 : 450;
    pane->press(from);
    QCOMPARE(pane->geometry(), start);
    pane->moveTo(QPoint(x, y));
    QCOMPARE(pane->geometry(), result);
    QCOMPARE(rubberBands().constFirst()->geometry(), result);
    pane->release();
    pane->moveTo(QPoint(300, 300), Qt::NoButton);
    QCOMPARE(pane->geometry(), result);
}

void TestFrameLess::leftAndTopStopAtTheMinimum()
{
    pane->press(QPoint(0, 0));
    pane->moveTo(QPoint(450, 350));
    QCOMPARE(pane->geometry(), start);
    pane->moveTo(QPoint(250, 200));
    QCOMPARE(pane->geometry(), QRect(QPoint(250, 200), QPoint(499, 399)));
    pane->moveTo(QPoint(300, 250));
    QCOMPARE(pane->geometry(), QRect(QPoint(300, 250), QSize(200, 150)));
    pane->moveTo(QPoint(250, 200));
    // Past the minimum the sides stay where they were; the others are those that the rubber band had.
    pane->moveTo(QPoint(320, 210));
    QCOMPARE(pane->geometry(), QRect(QPoint(250, 210), QPoint(499, 399)));
    pane->moveTo(QPoint(450, 350));
    QCOMPARE(pane->geometry(), QRect(QPoint(250, 210), QPoint(499, 399)));
    // A window that was moved meanwhile keeps its own left side, not that of the rubber band.
    pane->move(260, 220);
    pane->moveTo(QPoint(450, 350));
    QCOMPARE(pane->geometry(), QRect(QPoint(260, 220), QPoint(499, 399)));
    pane->release();
}

void TestFrameLess::rightAndBottomAreHeldByQt()
{
    pane->press(QPoint(399, 299));
    pane->moveTo(QPoint(150, 120));
    QCOMPARE(pane->geometry(), QRect(100, 100, 200, 150));
    pane->moveTo(QPoint(1000, 900));
    QCOMPARE(pane->geometry(), QRect(100, 100, 800, 600));
    pane->release();
}

void TestFrameLess::dragsFromInside_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QRect>("result");
    QTest::newRow("middle") << QPoint(200, 150) << QRect(110, 120, 400, 300);
    // The fifth pixel belongs to the edge and to the inside; then the drag wins.
    QTest::newRow("left edge, 5 inside") << QPoint(5, 150) << QRect(110, 120, 400, 300);
    QTest::newRow("left edge, 4 inside") << QPoint(4, 150) << QRect(QPoint(114, 100), QPoint(499, 399));
    QTest::newRow("top edge, 5 inside") << QPoint(200, 5) << QRect(110, 120, 400, 300);
    QTest::newRow("right, last inside") << QPoint(394, 150) << QRect(110, 120, 400, 300);
    QTest::newRow("right edge") << QPoint(395, 150) << QRect(QPoint(100, 100), QPoint(505, 399));
    QTest::newRow("bottom, last inside") << QPoint(200, 294) << QRect(110, 120, 400, 300);
    QTest::newRow("bottom edge") << QPoint(200, 295) << QRect(QPoint(100, 100), QPoint(499, 415));
}

void TestFrameLess::dragsFromInside()
{
    QFETCH(QPoint, from);
    QFETCH(QRect, result);
    pane->press(from);
    pane->moveTo(start.topLeft() + from + QPoint(10, 20));
    pane->release();
    QCOMPARE(pane->geometry(), result);
}

void TestFrameLess::dragsOnAndOn()
{
    pane->press(QPoint(30, 40));
    pane->moveTo(QPoint(150, 160));
    QCOMPARE(pane->pos(), QPoint(120, 120));
    pane->moveTo(QPoint(100, 300));
    QCOMPARE(pane->pos(), QPoint(70, 260));
    pane->moveTo(QPoint(330, 240));
    QCOMPARE(pane->pos(), QPoint(300, 200));
    QCOMPARE(pane->size(), start.size());
    pane->release();
    pane->moveTo(QPoint(500, 500));
    QCOMPARE(pane->pos(), QPoint(300, 200));
    // The drag is over: the next press may resize.
    pane->press(QPoint(0, 150));
    pane->moveTo(QPoint(290, 400));
    QCOMPARE(pane->geometry(), QRect(QPoint(290, 200), QPoint(699, 499)));
    pane->release();
}

void TestFrameLess::onlyTheLeftButtonCounts()
{
    pane->press(QPoint(200, 150), Qt::RightButton);
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    pane->moveTo(QPoint(320, 290), Qt::RightButton);
    QCOMPARE(pane->geometry(), start);
    pane->release(Qt::RightButton);

    pane->press(QPoint(200, 150));
    QCOMPARE(QWidget::mouseGrabber(), pane.get());
    pane->release(Qt::RightButton);
    QCOMPARE(QWidget::mouseGrabber(), pane.get());
    pane->moveTo(QPoint(310, 260));
    QCOMPARE(pane->pos(), QPoint(110, 110));
    pane->release();
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
}

void TestFrameLess::hoverIsIgnoredDuringAPress()
{
    pane->hover(QPoint(0, 150));
    pane->press(QPoint(0, 150));
    pane->hover(QPoint(200, 0));
    QCOMPARE(pane->shape(), horizontal);
    pane->hover(QPoint(200, 150));
    QCOMPARE(pane->shape(), horizontal);
    pane->release();
    pane->hover(QPoint(200, 150));
    QCOMPARE(pane->shape(), arrow);
}

void TestFrameLess::leaveResetsTheCursor()
{
    pane->hover(QPoint(0, 150));
    pane->press(QPoint(0, 150));
    pane->leave();
    QCOMPARE(pane->shape(), horizontal);
    pane->release();
    pane->leave();
    QCOMPARE(pane->shape(), arrow);
}

// The window is 400 x 300 at the press and 200 x 150 at the move: halves 100 and 75, shrunk by 200 and 150.
void TestFrameLess::dragMeetsARestoredWindow_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("held");
    QTest::newRow("first half stays") << QPoint(100, 75) << QPoint(100, 75);
    QTest::newRow("past the half goes back") << QPoint(250, 180) << QPoint(50, 30);
    QTest::newRow("just past the half") << QPoint(101, 76) << QPoint(-99, -74);
    QTest::newRow("last before the middle") << QPoint(299, 224) << QPoint(99, 74);
    QTest::newRow("middle from there on") << QPoint(300, 225) << QPoint(100, 75);
    QTest::newRow("far end") << QPoint(390, 290) << QPoint(100, 75);
    QTest::newRow("each side for itself") << QPoint(390, 20) << QPoint(100, 20);
}

void TestFrameLess::dragMeetsARestoredWindow()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, held);
    pane->press(from);
    pane->resize(200, 150);
    pane->moveTo(QPoint(600, 500));
    QCOMPARE(pane->geometry(), QRect(QPoint(600, 500) - held, QSize(200, 150)));
    QCOMPARE(rubberBands().constFirst()->geometry(), pane->geometry());
    // From here on it is a plain move.
    pane->moveTo(QPoint(610, 520));
    QCOMPARE(pane->pos(), QPoint(610, 520) - held);
    pane->release();
}

void TestFrameLess::dragRestoresAMaximizedWindow()
{
    pane->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    pane->press(QPoint(300, 20));
    pane->showMaximized();
    QTRY_VERIFY(pane->isMaximized() && pane->width() > 1000);
    const QRect before = pane->geometry();
    pane->moveTo(QPoint(700, 400));
    QVERIFY(!pane->isMaximized());
    QTRY_VERIFY(pane->geometry() != before);
    pane->release();
}

void TestFrameLess::maximizedHasNoEdges()
{
    pane->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    pane->hover(QPoint(0, 150));
    QCOMPARE(pane->shape(), horizontal);
    pane->showMaximized();
    QTRY_VERIFY(pane->isMaximized() && pane->width() > 1000);
    pane->hover(QPoint(0, 150));
    QCOMPARE(pane->shape(), arrow);
    QVERIFY(!pane->probe()->isVisible());
    const QRect before = pane->geometry();
    pane->press(QPoint(300, 150));
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    pane->moveTo(QPoint(500, 400));
    pane->release();
    QVERIFY(pane->isMaximized());
    QCOMPARE(pane->geometry(), before);
}

void TestFrameLess::fullScreenHasNoEdges()
{
    pane->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    pane->showFullScreen();
    QTRY_VERIFY(pane->isFullScreen() && pane->width() > 1000);
    pane->hover(QPoint(0, 150));
    QCOMPARE(pane->shape(), arrow);
    // A press counts here, unlike in a maximized window, and the drag brings the window back.
    pane->press(QPoint(300, 150));
    pane->moveTo(QPoint(500, 400));
    QVERIFY(!pane->isFullScreen());
    pane->release();
}

// The cursor is taken off only where an edge had set it; the edge that was under the pointer stays in mind.
void TestFrameLess::maximizedKeepsWhatStood()
{
    pane->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    pane->showMaximized();
    QTRY_VERIFY(pane->isMaximized() && pane->width() > 1000);
    pane->setCursor(Qt::CrossCursor);
    pane->hover(QPoint(0, 150));
    QCOMPARE(pane->shape(), Qt::CrossCursor);
    pane->showNormal();
    QTRY_COMPARE(pane->geometry(), start);
    pane->press(QPoint(0, 150));
    pane->release();
    pane->hover(QPoint(0, 150));
    QCOMPARE(pane->shape(), horizontal);
    pane->showMaximized();
    QTRY_VERIFY(pane->isMaximized() && pane->width() > 1000);
    for (int count = 0; count < 2; ++count) {
        pane->setCursor(Qt::CrossCursor);
        pane->seen.clear();
        pane->hover(QPoint(500, 150));
        QCOMPARE(pane->shape(), arrow);
        QVERIFY(!pane->seen.contains(QEvent::HoverMove));
    }
}

void TestFrameLess::withoutEdges()
{
    QEvent any(QEvent::User);
    QApplication::sendEvent(pane->probe(), &any);
    QVERIFY(!pane->seen.contains(QEvent::User));
    pane = std::make_unique<Pane>(false);
    QApplication::sendEvent(pane->probe(), &any);
    QVERIFY(pane->seen.contains(QEvent::User));
    pane->hover(QPoint(0, 150));
    QCOMPARE(pane->shape(), arrow);
    QVERIFY(!pane->probe()->isVisible());
    pane->press(QPoint(0, 150));
    pane->moveTo(QPoint(50, 250));
    pane->release();
    QCOMPARE(pane->geometry(), start);
    // The probe's events count as well; the press at its origin lies outside of the inside.
    QMouseEvent onProbe(QEvent::MouseButtonPress, QPoint(8, 8), QPoint(108, 108), Qt::LeftButton,
                        Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(pane->probe(), &onProbe);
    pane->moveTo(QPoint(138, 148));
    QCOMPARE(pane->geometry(), QRect(130, 140, 400, 300));
    pane->release();
}

void TestFrameLess::targetFiltersToo()
{
    pane->press(QPoint(200, 150));
    pane->release();
    pane->hover(QPoint(200, 150));
    pane->leave();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QApplication::sendEvent(pane.get(), &key);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::HoverMove,
                            QEvent::Leave, QEvent::KeyPress}) {
        QVERIFY2(pane->seen.contains(type), qPrintable(QString::number(type)));
    }
    QEvent any(QEvent::User);
    QVERIFY(!pane->frameLess->eventFilter(pane.get(), &any));
    pane->eats = true;
    QVERIFY(pane->frameLess->eventFilter(pane.get(), &any));
    pane->eats = false;
}

void TestFrameLess::edgesKeepEventsFromTheTarget()
{
    pane->hover(QPoint(0, 150));
    QVERIFY(pane->seen.contains(QEvent::HoverMove));
    pane->seen.clear();
    // The press itself sets the second of the two codes.
    pane->press(QPoint(0, 150));
    pane->moveTo(QPoint(110, 260));
    pane->release();
    QVERIFY(!pane->seen.contains(QEvent::MouseButtonPress));
    QVERIFY(!pane->seen.contains(QEvent::MouseMove));
    QVERIFY(!pane->seen.contains(QEvent::MouseButtonRelease));
    QEvent any(QEvent::User);
    pane->frameLess->eventFilter(pane.get(), &any);
    QVERIFY(pane->seen.contains(QEvent::User));
    // The same holds for the other buttons, which change no code.
    pane->press(QPoint(200, 150), Qt::RightButton);
    pane->release(Qt::RightButton);
    QVERIFY(!pane->seen.contains(QEvent::MouseButtonPress));
    // The code of the press outlives the release: on an edge the target still sees nothing, off it it does.
    pane->seen.clear();
    pane->hover(QPoint(200, 0));
    QVERIFY(!pane->seen.contains(QEvent::HoverMove));
    pane->hover(QPoint(200, 150));
    QVERIFY(pane->seen.contains(QEvent::HoverMove));
    // A press inside clears it.
    pane->press(QPoint(200, 150));
    pane->release();
    pane->seen.clear();
    pane->hover(QPoint(0, 150));
    QVERIFY(pane->seen.contains(QEvent::HoverMove));
}

CALORA_TEST_MAIN(TestFrameLess)
#include "tst_frameless.moc"
