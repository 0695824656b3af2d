#include "support/window.h"

#include "app/imagebutton.h"
#include "pages/product/select.h"

// The first page: its form and its texts. What its buttons do is tested with New and Open.

class TestSelect : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<Window>();
        page = window->page<Select>();
    }
    void cleanup() { window.reset(); }

    void hasItsPictures_data();
    void hasItsPictures();
    void standsFromLeftToRight();
    void hasItsOwnTexts();
    void textsFollowTheLanguage();
    void isShownFirst();

private:
    ImageButton *button(const char *name) const { return Window::find<ImageButton>(page, name); }
    /// Whether the button looks as one with this text.
    static bool reads(ImageButton *button, const QString &text)
    {
        const QImage before = button->grab().toImage();
        button->setText("something else");
        const bool differs = button->grab().toImage() != before;
        button->setText(text);
        return differs && button->grab().toImage() == before;
    }

    std::unique_ptr<Window> window;
    Select *page = nullptr;
};

void TestSelect::hasItsPictures_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("label_img_new") << ":/images/img_new.png";
    QTest::newRow("label_img_open") << ":/images/img_open.png";
}

void TestSelect::hasItsPictures()
{
    QFETCH(QString, file);
    const QPixmap picture(file);
    QVERIFY(!picture.isNull());
    QCOMPARE(Window::find<QLabel>(page, QTest::currentDataTag())->pixmap(Qt::ReturnByValue).toImage(),
             picture.toImage());
}

void TestSelect::standsFromLeftToRight()
{
    const auto place = [this](const char *name) {
        const QWidget *widget = Window::find(page, name);
        return QRect(widget->mapTo(page, QPoint()), widget->size());
    };
    for (const auto &[left, right] :
         {std::pair<const char *, const char *>{"label_img_new", "label_img_open"},
          {"newButton", "openButton"}}) {
        QVERIFY(place(left).right() < place(right).left());
        QCOMPARE(place(left).top(), place(right).top());
    }
    QVERIFY(place("label_img_new").bottom() < place("newButton").top());
    QCOMPARE(place("label_img_new").center().x(), place("newButton").center().x());
    QCOMPARE(place("newButton").height(), 38);
}

void TestSelect::hasItsOwnTexts()
{
    Select fresh;
    QCOMPARE(Window::find<QLabel>(&fresh, "label_newopen")->text(), QString("Please Select New or Open"));
    QVERIFY(reads(Window::find<ImageButton>(&fresh, "newButton"), "New"));
    QVERIFY(reads(Window::find<ImageButton>(&fresh, "openButton"), "Open"));
}

void TestSelect::textsFollowTheLanguage()
{
    QCOMPARE(Window::find<QLabel>(page, "label_newopen")->text(), QString("Please select new or open"));
    window->speak("~");
    QCOMPARE(Window::find<QLabel>(page, "label_newopen")->text(), QString("Please select new or open~"));
    QVERIFY(reads(button("newButton"), "New~"));
    QVERIFY(reads(button("openButton"), "Open~"));
}

void TestSelect::isShownFirst()
{
    QVERIFY(page->isVisible());
    QVERIFY(button("newButton")->isVisible() && button("openButton")->isVisible());
}

CALORA_TEST_MAIN(TestSelect)
#include "tst_select.moc"
