#include "app/imagebutton.h"
#include "app/tabbutton.h"
#include "support/window.h"

#include "pages/product/select.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>

// The two painted buttons: their mouse handling, and their looks pixel by pixel.

namespace {

const QColor lineOfTheSelected(0xA5, 0x00, 0x34);
const QColor lineOfTheOthers(0xD6, 0xD6, 0xD7);
const QColor beneath(0, 255, 255);

void press(QWidget *button, Qt::MouseButton cause = Qt::LeftButton, Qt::MouseButtons held = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), cause, held, Qt::NoModifier);
    QApplication::sendEvent(button, &event);
}

void release(QWidget *button, QPointF place = QPointF(5, 5), Qt::MouseButton cause = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseButtonRelease, place, cause, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(button, &event);
}

void enter(QWidget *button)
{
    QEnterEvent event(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QApplication::sendEvent(button, &event);
}

void leave(QWidget *button)
{
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(button, &event);
}

/// What the button itself paints, on a colour that it doesn't use.
QImage looks(QWidget *button)
{
    QPixmap paper(button->size());
    paper.fill(beneath);
    button->render(&paper, QPoint(), QRegion(), QWidget::RenderFlags());
    return paper.toImage().convertToFormat(QImage::Format_RGB32);
}

/// The same size of paper, painted by the test.
template <class Paint>
QImage painted(QWidget *button, Paint paint)
{
    QPixmap paper(button->size());
    paper.fill(beneath);
    QPainter painter(&paper);
    painter.setPen(button->palette().color(button->foregroundRole()));
    paint(painter);
    painter.end();
    return paper.toImage().convertToFormat(QImage::Format_RGB32);
}

void writeText(QPainter &painter, const QWidget *button, const QRect &place, const QString &text)
{
    QFont font = button->font();
    font.setPointSize(15);
    painter.setFont(font);
    painter.drawText(place, Qt::AlignCenter, text);
}

QImage tab(QWidget *button, const QColor &line, const QString &text)
{
    return painted(button, [&](QPainter &painter) {
        painter.fillRect(0, 0, button->width(), button->height() - 2, Qt::white);
        painter.fillRect(0, button->height() - 2, button->width(), 2, line);
        writeText(painter, button, QRect(0, 0, button->width(), button->height() - 2), text);
    });
}

/// Counts the paint events of a widget.
class Paints : public QObject
{
public:
    explicit Paints(QWidget *widget) { widget->installEventFilter(this); }

    /// How many there were since the last call.
    int taken()
    {
        QTest::qWait(30);
        return std::exchange(count, 0);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int count = 0;
};

} // namespace

class TestPaintedButtons : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void areNoOrdinaryButtons();
    void click_data() { bothButtons(); }
    void click();
    void releaseAnywhereClicks_data() { bothButtons(); }
    void releaseAnywhereClicks();
    void onlyTheLeftButtonAloneArms_data();
    void onlyTheLeftButtonAloneArms();
    void anyReleaseClicksOnce_data() { bothButtons(); }
    void anyReleaseClicksOnce();
    void doubleClickArms_data() { bothButtons(); }
    void doubleClickArms();
    void paintsAnew_data() { bothButtons(); }
    void paintsAnew();
    void isReleasedWhenItClicks();
    void keysClick_data() { bothButtons(); }
    void keysClick();

    void tabShowsItsLine();
    void tabShowsItsText_data();
    void tabShowsItsText();
    void tabTextHasTheColourOfTheStyleSheet();
    void tabDoesNotSelectItself();

    void imageShowsTheStateInForce();
    void imageTakesTheRightWidthFromTheLeft();
    void imageWithoutPixmapsShowsItsText();
    void imageLeavesOutMissingSlices_data();
    void imageLeavesOutMissingSlices();
    void imageIgnoresOtherStates();
    void imageLoadsWithoutPainting();
    void standardPicturesAreShown();

private:
    void bothButtons() const;
    /// The button of the data row.
    QWidget *button() const
    {
        QFETCH(bool, isTab);
        return isTab ? static_cast<QWidget *>(tabButton) : imageButton;
    }
    QSignalSpy spy() const
    {
        QFETCH(bool, isTab);
        return isTab ? QSignalSpy(tabButton, &TabButton::clicked)
                     : QSignalSpy(imageButton, &ImageButton::clicked);
    }
    QString picture(const QString &name, const QSize &size, const QColor &top, const QColor &bottom);
    void setAllPixmaps();
    /// The image button with slices of these files, as it should look.
    QImage slices(const QStringList &files, int left, const QString &text = QString()) const;

    QTemporaryDir folder;
    std::unique_ptr<QWidget> host;
    TabButton *tabButton = nullptr;
    ImageButton *imageButton = nullptr;
};

void TestPaintedButtons::bothButtons() const
{
    QTest::addColumn<bool>("isTab");
    QTest::newRow("TabButton") << true;
    QTest::newRow("ImageButton") << false;
}

void TestPaintedButtons::initTestCase()
{
    for (const char *state : {"0", "1", "2", "3"}) {
        const int shade = 40 * QByteArray(state).toInt();
        picture(QStringLiteral("left%1").arg(state), QSize(6, 12), QColor(200, shade, 0), Qt::black);
        picture(QStringLiteral("middle%1").arg(state), QSize(1, 12), QColor(0, 200, shade), Qt::black);
        picture(QStringLiteral("right%1").arg(state), QSize(4, 12), QColor(shade, 0, 200), Qt::black);
    }
}

void TestPaintedButtons::init()
{
    host = std::make_unique<QWidget>();
    host->resize(400, 200);
    tabButton = new TabButton(host.get());
    tabButton->setGeometry(10, 10, 120, 44);
    imageButton = new ImageButton(host.get());
    imageButton->setGeometry(200, 10, 100, 30);
    host->show();
    QVERIFY(QTest::qWaitForWindowExposed(host.get()));
}

void TestPaintedButtons::cleanup() { host.reset(); }

QString TestPaintedButtons::picture(const QString &name, const QSize &size, const QColor &top,
                                    const QColor &bottom)
{
    const QString path = folder.filePath(name + ".png");
    QImage image(size, QImage::Format_RGB32);
    image.fill(top);
    QPainter(&image).fillRect(0, size.height() / 2, size.width(), size.height(), bottom);
    if (!image.save(path)) {
        qFatal("Can't write %s", qPrintable(path));
    }
    return path;
}

void TestPaintedButtons::setAllPixmaps()
{
    for (int state = 0; state < 4; ++state) {
        const auto file = [&](const QString &slice) {
            return folder.filePath(slice + QString::number(state) + ".png");
        };
        imageButton->setPixmaps(state, file("left"), file("middle"), file("right"));
    }
}

QImage TestPaintedButtons::slices(const QStringList &files, int left, const QString &text) const
{
    const int inner = imageButton->width() - 2 * left;
    return painted(imageButton, [&](QPainter &painter) {
        const auto file = [&](int slice) { return QPixmap(folder.filePath(files.at(slice) + ".png")); };
        if (!files.at(0).isEmpty()) {
            painter.drawPixmap(QPoint(0, 0), file(0));
        }
        if (!files.at(1).isEmpty()) {
            painter.drawPixmap(QRect(left, 0, inner, imageButton->height()), file(1));
        }
        if (!files.at(2).isEmpty()) {
            painter.drawPixmap(QPoint(imageButton->width() - left, 0), file(2));
        }
        writeText(painter, imageButton, QRect(left, 0, inner, imageButton->height()), text);
    });
}

void TestPaintedButtons::areNoOrdinaryButtons()
{
    for (const QWidget *each : {static_cast<QWidget *>(tabButton), static_cast<QWidget *>(imageButton)}) {
        QCOMPARE(QString(each->metaObject()->superClass()->className()), QString("QWidget"));
        QVERIFY(qobject_cast<const QAbstractButton *>(each) == nullptr);
        QCOMPARE(Window::ownSignals(each), QStringList{"clicked()"});
        QCOMPARE(Window::ownSlots(each), QStringList());
    }
}

void TestPaintedButtons::click()
{
    const QSignalSpy clicked = spy();
    QTest::mousePress(button(), Qt::LeftButton);
    QCOMPARE(clicked.size(), 0);
    QTest::mouseRelease(button(), Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
    release(button());
    QCOMPARE(clicked.size(), 1);
}

void TestPaintedButtons::releaseAnywhereClicks()
{
    const QSignalSpy clicked = spy();
    enter(button());
    press(button());
    leave(button());
    release(button(), QPointF(-300, 900));
    QCOMPARE(clicked.size(), 1);
}

void TestPaintedButtons::onlyTheLeftButtonAloneArms_data()
{
    QTest::addColumn<bool>("isTab");
    QTest::addColumn<int>("cause");
    QTest::addColumn<int>("held");
    QTest::addColumn<int>("clicks");
    for (const bool isTab : {true, false}) {
        const auto row = [&](const char *name, int cause, int held, int clicks) {
            QTest::addRow("%s on %s", name, isTab ? "TabButton" : "ImageButton")
                << isTab << cause << held << clicks;
        };
        row("left", Qt::LeftButton, Qt::LeftButton, 1);
        row("right", Qt::RightButton, Qt::RightButton, 0);
        row("middle", Qt::MiddleButton, Qt::MiddleButton, 0);
        row("left while right is down", Qt::LeftButton, int(Qt::LeftButton) | int(Qt::RightButton), 0);
        row("right while left is down", Qt::RightButton, int(Qt::LeftButton) | int(Qt::RightButton), 0);
        // What counts is what is down, not what went down.
        row("right though left alone is down", Qt::RightButton, Qt::LeftButton, 1);
    }
}

void TestPaintedButtons::onlyTheLeftButtonAloneArms()
{
    QFETCH(int, cause);
    QFETCH(int, held);
    QFETCH(int, clicks);
    const QSignalSpy clicked = spy();
    press(button(), static_cast<Qt::MouseButton>(cause), Qt::MouseButtons(held));
    release(button());
    QCOMPARE(clicked.size(), clicks);
}

void TestPaintedButtons::anyReleaseClicksOnce()
{
    const QSignalSpy clicked = spy();
    press(button());
    // The right button goes down and up meanwhile; its release clicks, and that of the left one no more.
    press(button(), Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    release(button(), QPointF(5, 5), Qt::RightButton);
    QCOMPARE(clicked.size(), 1);
    release(button());
    QCOMPARE(clicked.size(), 1);
}

void TestPaintedButtons::doubleClickArms()
{
    const QSignalSpy clicked = spy();
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(button(), &event);
    release(button());
    QCOMPARE(clicked.size(), 1);
}

void TestPaintedButtons::paintsAnew()
{
    QWidget *widget = button();
    Paints paints(widget);
    leave(widget);
    paints.taken();
    enter(widget);
    QCOMPARE(paints.taken(), 1);
    press(widget);
    QCOMPARE(paints.taken(), 1);
    release(widget);
    QCOMPARE(paints.taken(), 1);
    release(widget);
    QCOMPARE(paints.taken(), 0);
    press(widget, Qt::RightButton, Qt::RightButton);
    QCOMPARE(paints.taken(), 0);
    leave(widget);
    QCOMPARE(paints.taken(), 1);
    leave(widget);
    QCOMPARE(paints.taken(), 0);
    tabButton->setText("x");
    imageButton->setText("x");
    QCOMPARE(paints.taken(), 1);
    // Also for the text that stands there already.
    tabButton->setText("x");
    imageButton->setText("x");
    QCOMPARE(paints.taken(), 1);
    tabButton->setSelected(false);
    QCOMPARE(paints.taken(), widget == tabButton ? 1 : 0);
}

void TestPaintedButtons::isReleasedWhenItClicks()
{
    QImage seen;
    connect(tabButton, &TabButton::clicked, this, [&] { seen = looks(tabButton); });
    press(tabButton);
    release(tabButton);
    QCOMPARE(seen, tab(tabButton, lineOfTheOthers, QString()));
}

void TestPaintedButtons::keysClick()
{
    const QSignalSpy clicked = spy();
    const auto press = [this](int key, bool repeated = false) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), repeated);
        QApplication::sendEvent(button(), &event);
        return event.isAccepted();
    };
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        QVERIFY(press(key));
    }
    QCOMPARE(clicked.size(), 3);
    // The rest is left to the window, and so is a key that is held down.
    QVERIFY(!press(Qt::Key_Space, true) && !press(Qt::Key_A) && !press(Qt::Key_Escape));
    QCOMPARE(clicked.size(), 3);
}

void TestPaintedButtons::tabShowsItsLine()
{
    const QImage plain = tab(tabButton, lineOfTheOthers, QString());
    const QImage marked = tab(tabButton, lineOfTheSelected, QString());
    QCOMPARE(looks(tabButton), plain);
    QCOMPARE(plain.pixelColor(0, 41), QColor(Qt::white));
    QCOMPARE(plain.pixelColor(119, 42), lineOfTheOthers);
    QCOMPARE(plain.pixelColor(0, 43), lineOfTheOthers);
    enter(tabButton);
    QCOMPARE(looks(tabButton), plain);
    press(tabButton);
    QCOMPARE(looks(tabButton), marked);
    // A pointer that leaves doesn't release it.
    leave(tabButton);
    QCOMPARE(looks(tabButton), marked);
    release(tabButton);
    QCOMPARE(looks(tabButton), plain);
    tabButton->setSelected(true);
    QCOMPARE(looks(tabButton), marked);
    tabButton->setSelected(false);
    QCOMPARE(looks(tabButton), plain);
}

void TestPaintedButtons::tabShowsItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QFont>("font");
    QTest::newRow("plain") << "Function" << QFont("Noto Sans");
    QTest::newRow("another font") << "Function" << QFont("Noto Sans Light", 30, QFont::Bold, true);
    QTest::newRow("too wide") << "Installation and service" << QFont("Noto Sans");
    QTest::newRow("two lines") << "a\nb" << QFont("Noto Sans");
    QTest::newRow("none") << "" << QFont("Noto Sans");
}

void TestPaintedButtons::tabShowsItsText()
{
    QFETCH(QString, text);
    QFETCH(QFont, font);
    tabButton->setFont(font);
    tabButton->setText(text);
    QCOMPARE(looks(tabButton), tab(tabButton, lineOfTheOthers, text));
    QCOMPARE(looks(tabButton) == tab(tabButton, lineOfTheOthers, QString()), text.isEmpty());
    tabButton->setText(QString());
    QCOMPARE(looks(tabButton), tab(tabButton, lineOfTheOthers, QString()));
}

void TestPaintedButtons::tabTextHasTheColourOfTheStyleSheet()
{
    tabButton->setText("MMM");
    tabButton->setStyleSheet("TabButton {color: #0000ff;}");
    const QImage blue = looks(tabButton);
    bool found = false;
    for (int x = 0; x < blue.width() && !found; ++x) {
        found = blue.pixelColor(x, blue.height() / 2) == QColor(Qt::blue);
    }
    QVERIFY(found);
}

void TestPaintedButtons::tabDoesNotSelectItself()
{
    QTest::mouseClick(tabButton, Qt::LeftButton);
    QCOMPARE(looks(tabButton), tab(tabButton, lineOfTheOthers, QString()));
}

void TestPaintedButtons::imageShowsTheStateInForce()
{
    setAllPixmaps();
    const auto state = [this](const QString &number) {
        return slices({"left" + number, "middle" + number, "right" + number}, 6);
    };
    QCOMPARE(looks(imageButton), state("0"));
    enter(imageButton);
    QCOMPARE(looks(imageButton), state("2"));
    press(imageButton);
    QCOMPARE(looks(imageButton), state("3"));
    leave(imageButton);
    QCOMPARE(looks(imageButton), state("3"));
    release(imageButton);
    QCOMPARE(looks(imageButton), state("0"));
}

void TestPaintedButtons::imageTakesTheRightWidthFromTheLeft()
{
    setAllPixmaps();
    const QImage image = looks(imageButton);
    // 6 wide on the left, so the right slice, 4 wide, starts 6 from the end and leaves 2 bare.
    QCOMPARE(image.pixelColor(5, 0), QColor(200, 0, 0));
    QCOMPARE(image.pixelColor(6, 0), QColor(0, 200, 0));
    QCOMPARE(image.pixelColor(93, 0), QColor(0, 200, 0));
    QCOMPARE(image.pixelColor(94, 0), QColor(0, 0, 200));
    QCOMPARE(image.pixelColor(97, 0), QColor(0, 0, 200));
    QCOMPARE(image.pixelColor(98, 0), beneath);
    // The outer slices keep their height, the middle one is stretched.
    QCOMPARE(image.pixelColor(0, 11), QColor(Qt::black));
    QCOMPARE(image.pixelColor(0, 12), beneath);
    QCOMPARE(image.pixelColor(94, 12), beneath);
    QCOMPARE(image.pixelColor(50, 14), QColor(0, 200, 0));
    QCOMPARE(image.pixelColor(50, 15), QColor(Qt::black));
    QCOMPARE(image.pixelColor(50, 29), QColor(Qt::black));
}

void TestPaintedButtons::imageWithoutPixmapsShowsItsText()
{
    QCOMPARE(looks(imageButton), slices({"", "", ""}, 0));
    imageButton->setText("Open");
    imageButton->setFont(QFont("Noto Sans", 40));
    QCOMPARE(looks(imageButton), slices({"", "", ""}, 0, "Open"));
    QVERIFY(looks(imageButton) != slices({"", "", ""}, 0));
    setAllPixmaps();
    QCOMPARE(looks(imageButton), slices({"left0", "middle0", "right0"}, 6, "Open"));
}

void TestPaintedButtons::imageLeavesOutMissingSlices_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<int>("left");
    QTest::newRow("no left") << QStringList{"", "middle0", "right0"} << 0;
    QTest::newRow("no middle") << QStringList{"left0", "", "right0"} << 6;
    QTest::newRow("no right") << QStringList{"left0", "middle0", ""} << 6;
    QTest::newRow("middle alone") << QStringList{"", "middle0", ""} << 0;
}

void TestPaintedButtons::imageLeavesOutMissingSlices()
{
    QFETCH(QStringList, files);
    QFETCH(int, left);
    // A file that doesn't load takes the place of what was loaded before.
    setAllPixmaps();
    const auto file = [&](int slice) { return folder.filePath(files.at(slice) + ".png"); };
    imageButton->setPixmaps(ImageButton::Normal, file(0), file(1), file(2));
    imageButton->setText("x");
    QCOMPARE(looks(imageButton), slices(files, left, "x"));
}

void TestPaintedButtons::imageIgnoresOtherStates()
{
    setAllPixmaps();
    const QImage before = looks(imageButton);
    for (const int state : {ImageButton::NoState + 0, ImageButton::Unused + 0, 5, -1}) {
        imageButton->setPixmaps(state, "", "", "");
        QCOMPARE(looks(imageButton), before);
    }
    enter(imageButton);
    press(imageButton);
    QCOMPARE(looks(imageButton), slices({"left3", "middle3", "right3"}, 6));
}

void TestPaintedButtons::imageLoadsWithoutPainting()
{
    Paints paints(imageButton);
    paints.taken();
    setAllPixmaps();
    QCOMPARE(paints.taken(), 0);
}

void TestPaintedButtons::standardPicturesAreShown()
{
    Window window;
    auto *button = Window::find<ImageButton>(window.page<Select>(), "newButton");
    const auto expected = [&](const QString &state) {
        return painted(button, [&](QPainter &painter) {
            const QString file = ":/images/btn_button_" + state;
            const QRect inner(19, 0, button->width() - 38, button->height());
            painter.drawPixmap(0, 0, QPixmap(file + "_left.png"));
            painter.drawPixmap(inner, QPixmap(file + "_middle.png"));
            painter.drawPixmap(button->width() - 19, 0, QPixmap(file + "_right.png"));
            writeText(painter, button, inner, "New");
        });
    };
    leave(button);
    QCOMPARE(looks(button), expected("normal"));
    enter(button);
    QCOMPARE(looks(button), expected("over"));
    press(button);
    QCOMPARE(looks(button), expected("press"));
    QVERIFY(expected("press") != expected("over"));
    QVERIFY(expected("normal") != expected("over"));
}

CALORA_TEST_MAIN(TestPaintedButtons)
#include "tst_paintedbuttons.moc"
