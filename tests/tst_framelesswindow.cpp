#include "support/mouse.h"
#include "support/window.h"

#include <QGroupBox>
#include <QScrollBar>
#include <QVBoxLayout>

// Moving and resizing the real window with the real pointer, under a window manager.

namespace {

const QRect start(300, 200, 1200, 700);

QPoint middle(const QWidget *widget) { return widget->mapToGlobal(widget->rect().center()); }

} // namespace

Q_DECLARE_METATYPE(Qt::CursorShape)

class TestFrameLessWindow : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        mouse::moveTo(QPoint(20, 20));
        window = std::make_unique<Window>();
        place();
    }
    void cleanup() { window.reset(); }

    void hasNoFrame();
    void isDraggedByItsInside_data();
    void isDraggedByItsInside();
    void pressOnAControlBelongsToIt();
    void pressOnADisabledControlDrags();
    void isResizedAtEachEdge_data();
    void isResizedAtEachEdge();
    void cursorFollowsTheEdge_data();
    void cursorFollowsTheEdge();
    void staysWithinItsLimits();
    void maximizedStaysPut();
    void minimizedComesBack();

private:
    MainDialog &dialog() const { return window->dialog; }
    void place() const
    {
        dialog().setGeometry(start);
        QTRY_COMPARE(dialog().geometry(), start);
        QTest::qWait(50);
    }
    QWidget *named(const char *name) const { return Window::find(&dialog(), name); }

    std::unique_ptr<Window> window;
};

void TestFrameLessWindow::hasNoFrame()
{
    QVERIFY((dialog().windowFlags() & Qt::FramelessWindowHint) != 0);
    QCOMPARE(dialog().windowType(), Qt::Window);
    QCOMPARE(dialog().frameGeometry(), dialog().geometry());
    QVERIFY(dialog().hasMouseTracking());
    messages::clear();
    window.reset();
    QCOMPARE(messages::all(), (QStringList{"FrameLess::~FrameLess()...1", "FrameLess::~FrameLess()...2"}));
}

void TestFrameLessWindow::isDraggedByItsInside_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"titleFrame", "labelWindowTitle", "toolbarGroupBox", "labelVersion",
                             "pathGroupBox", "selectpage"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestFrameLessWindow::isDraggedByItsInside()
{
    QFETCH(QByteArray, name);
    mouse::drag(middle(named(name.constData())), QPoint(-120, 90));
    QTRY_COMPARE(dialog().geometry(), start.translated(-120, 90));
}

void TestFrameLessWindow::pressOnAControlBelongsToIt()
{
    Window::click(&dialog(), "newButton");
    auto *box = new QGroupBox(&dialog());
    auto *layout = new QVBoxLayout(box);
    auto *combo = new QComboBox;
    auto *bar = new QScrollBar(Qt::Horizontal);
    auto *edit = new QLineEdit;
    for (QWidget *control : std::initializer_list<QWidget *>{combo, bar, edit}) {
        layout->addWidget(control);
    }
    combo->addItems({"one", "two"});
    box->setGeometry(500, 450, 300, 150);
    box->show();
    QTest::qWait(50);
    for (QWidget *control : std::initializer_list<QWidget *>{bar, edit, combo, named("radioButtonMiddleTemp"),
                                                             named("openButton")}) {
        mouse::moveTo(middle(control));
        mouse::press();
        mouse::moveTo(middle(control) + QPoint(0, 200));
        QCOMPARE(dialog().geometry(), start);
        mouse::release();
        combo->hidePopup();
        QCOMPARE(dialog().geometry(), start);
    }
}

void TestFrameLessWindow::pressOnADisabledControlDrags()
{
    QComboBox combo(&dialog());
    combo.setGeometry(500, 450, 150, 30);
    combo.setEnabled(false);
    combo.show();
    QTest::qWait(50);
    mouse::drag(middle(&combo), QPoint(40, 30));
    QTRY_COMPARE(dialog().geometry(), start.translated(40, 30));
}

void TestFrameLessWindow::isResizedAtEachEdge_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("distance");
    QTest::addColumn<QRect>("result");
    // Left and top follow the pointer exactly; right and bottom go to the pixel that it stands on.
    QTest::newRow("left") << QPoint(300, 550) << QPoint(-50, 30) << start.adjusted(-50, 0, 0, 0);
    QTest::newRow("top") << QPoint(900, 200) << QPoint(30, 40) << start.adjusted(0, 40, 0, 0);
    QTest::newRow("right") << QPoint(1499, 550) << QPoint(60, 30) << start.adjusted(0, 0, 60, 0);
    QTest::newRow("right, 4 inside") << QPoint(1495, 550) << QPoint(60, 30) << start.adjusted(0, 0, 56, 0);
    QTest::newRow("bottom") << QPoint(900, 899) << QPoint(30, 70) << start.adjusted(0, 0, 0, 70);
    QTest::newRow("top left") << QPoint(300, 200) << QPoint(-20, -30) << start.adjusted(-20, -30, 0, 0);
    QTest::newRow("top right") << QPoint(1499, 200) << QPoint(20, -30) << start.adjusted(0, -30, 20, 0);
    QTest::newRow("bottom left") << QPoint(300, 899) << QPoint(-20, 30) << start.adjusted(-20, 0, 0, 30);
    QTest::newRow("bottom right") << QPoint(1499, 899) << QPoint(20, 30) << start.adjusted(0, 0, 20, 30);
}

void TestFrameLessWindow::isResizedAtEachEdge()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, distance);
    QFETCH(QRect, result);
    mouse::drag(from, distance);
    QTRY_COMPARE(dialog().geometry(), result);
    // The pointer without a button changes nothing any more.
    mouse::moveTo(QPoint(900, 500));
    QCOMPARE(dialog().geometry(), result);
}

void TestFrameLessWindow::cursorFollowsTheEdge_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::newRow("left") << QPoint(302, 550) << Qt::SizeHorCursor;
    QTest::newRow("top") << QPoint(900, 202) << Qt::SizeVerCursor;
    QTest::newRow("right") << QPoint(1498, 550) << Qt::SizeHorCursor;
    QTest::newRow("bottom") << QPoint(900, 898) << Qt::SizeVerCursor;
    QTest::newRow("top left") << QPoint(301, 201) << Qt::SizeFDiagCursor;
    QTest::newRow("top right") << QPoint(1498, 201) << Qt::SizeBDiagCursor;
    QTest::newRow("bottom left") << QPoint(301, 898) << Qt::SizeBDiagCursor;
    QTest::newRow("bottom right") << QPoint(1498, 898) << Qt::SizeFDiagCursor;
    QTest::newRow("inside") << QPoint(900, 550) << Qt::ArrowCursor;
}

void TestFrameLessWindow::cursorFollowsTheEdge()
{
    QFETCH(QPoint, at);
    QFETCH(Qt::CursorShape, shape);
    mouse::moveTo(QPoint(320, 220));
    mouse::moveTo(at);
    QTRY_COMPARE(dialog().cursor().shape(), shape);
    const QWidget *under = dialog().childAt(dialog().mapFromGlobal(at));
    QCOMPARE(under->cursor().shape(), shape);
    QCOMPARE(under->size() == QSize(5, 5), shape != Qt::ArrowCursor);
    mouse::moveTo(QPoint(700, 215));
    QTRY_COMPARE(dialog().cursor().shape(), Qt::ArrowCursor);
    mouse::moveTo(at);
    QTRY_COMPARE(dialog().cursor().shape(), shape);
    mouse::moveTo(QPoint(20, 20));
    QTRY_COMPARE(dialog().cursor().shape(), Qt::ArrowCursor);
}

void TestFrameLessWindow::staysWithinItsLimits()
{
    mouse::drag(QPoint(1499, 899), QPoint(-1000, -600));
    QTRY_COMPARE(dialog().size(), QSize(974, 612));
    QCOMPARE(dialog().pos(), start.topLeft());
    place();
    // Past the minimum the left side stays where it was.
    mouse::drag(QPoint(300, 550), QPoint(900, 0));
    QTRY_COMPARE(dialog().geometry(), start);
    dialog().move(0, 0);
    QTRY_COMPARE(dialog().pos(), QPoint(0, 0));
    mouse::drag(QPoint(1199, 699), QPoint(700, 370));
    QTRY_COMPARE(dialog().geometry(), QRect(0, 0, 1900, 1070));
    QCOMPARE(dialog().maximumSize(), QSize(1920, 1080));
}

void TestFrameLessWindow::maximizedStaysPut()
{
    Window::click(&dialog(), "maximumButton");
    QTRY_VERIFY(dialog().isMaximized() && dialog().width() == 1920);
    const QRect before = dialog().geometry();
    mouse::drag(middle(named("titleFrame")), QPoint(100, 100));
    mouse::drag(before.topLeft() + QPoint(1, 500), QPoint(100, 0));
    QCOMPARE(dialog().geometry(), before);
    QCOMPARE(dialog().cursor().shape(), Qt::ArrowCursor);
    Window::click(&dialog(), "maximumButton");
    QTRY_COMPARE(dialog().geometry(), start);
    mouse::drag(middle(named("titleFrame")), QPoint(10, 20));
    QTRY_COMPARE(dialog().geometry(), start.translated(10, 20));
}

void TestFrameLessWindow::minimizedComesBack()
{
    Window::click(&dialog(), "minimizeButton");
    QTRY_VERIFY(dialog().isMinimized());
    dialog().showNormal();
    QTRY_VERIFY(!dialog().isMinimized());
    QTRY_COMPARE(dialog().geometry(), start);
}

CALORA_TEST_MAIN(TestFrameLessWindow)
#include "tst_framelesswindow.moc"
