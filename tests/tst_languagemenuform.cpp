#include "support/mouse.h"
#include "support/window.h"

#include "languages/languageitem.h"
#include "languages/languagemenu.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>

// What the popup that lists the languages is made of.
class TestLanguageMenuForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { mouse::moveTo(QPoint(2, 2)); }
    void init() { window = std::make_unique<Window>(); }
    void cleanup() { window.reset(); }

    void formIsAsSettled();
    void rowIsAsSettled();
    void scrollBarKeepsOffTheEnds();
    void buttonsHaveThreePictures();
    void buttonsAreTheirPictureAlone();
    void rowsAreWhiteButTheCurrentOne_data();
    void rowsAreWhiteButTheCurrentOne();
    void hoverIsPalerAndFollowsTheWheel();
    void rowTellsItsLanguage();

private:
    LanguageMenu *menu() const { return window->dialog.members().languageMenuWidget; }
    QListWidget *list() const { return Window::find<QListWidget>(menu(), "listWidget"); }

    std::unique_ptr<Window> window;
};

void TestLanguageMenuForm::formIsAsSettled()
{
    QCOMPARE(menu()->size(), QSize(176, 255));
    QCOMPARE(menu()->minimumSize(), QSize(176, 255));
    QCOMPARE(menu()->maximumSize(), QSize(176, 16777215));
    QCOMPARE(menu()->styleSheet(),
             QString("QWidget#LanguageMenu{\n\tborder : 1px solid #000000;\nbackground-color: white;\n}"));
    const auto *outer = menu()->findChild<QVBoxLayout *>("verticalLayout_2");
    QCOMPARE(menu()->layout(), outer);
    QCOMPARE(outer->spacing(), 0);
    QCOMPARE(outer->contentsMargins(), QMargins());
    const auto *frame = Window::find<QFrame>(menu(), "frame");
    QCOMPARE(frame->minimumWidth(), 176);
    QCOMPARE(frame->maximumWidth(), 176);
    QCOMPARE(frame->frameShape(), QFrame::StyledPanel);
    QCOMPARE(frame->styleSheet(),
             QString("QFrame#frame {\n\tborder: 2px solid #ECECEC;\n\tbackground-color: white;\n}"));
    QCOMPARE(frame->layout()->objectName(), QString("verticalLayout"));
    QCOMPARE(frame->layout()->contentsMargins(), QMargins());
    QCOMPARE(list()->maximumWidth(), 176);
    QCOMPARE(list()->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(list()->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(list()->sizeAdjustPolicy(), QAbstractScrollArea::AdjustToContents);
    QVERIFY(list()->hasAutoScroll());
    QVERIFY(list()->styleSheet().contains("rgb(158, 158, 158)"));
    QCOMPARE(Window::find<QFrame>(menu(), "line")->frameShape(), QFrame::HLine);
    const auto *box = Window::find<QGroupBox>(menu(), "groupBox");
    QVERIFY(box->title().isEmpty());
    QCOMPARE(box->font().family(), QString("Noto Sans"));
    QCOMPARE(box->font().pointSize(), 11);
    QCOMPARE(box->styleSheet(),
             QString("border-top : 1px solid #ffffff;\nbackground-color: rgb(255, 255, 255);"));
    QCOMPARE(box->layout()->objectName(), QString("horizontalLayout"));
    QCOMPARE(box->layout()->contentsMargins(), QMargins());
}

void TestLanguageMenuForm::rowIsAsSettled()
{
    LanguageItem item(nullptr);
    QCOMPARE(item.size(), QSize(176, 51));
    QCOMPARE(item.maximumSize(), QSize(176, 51));
    QCOMPARE(item.styleSheet(),
             QString("QWidget {\n\toutline: none;\n\tborder: none;\n\tborder-bottom: "
                     "1px solid #D2D2D2;\n}\n\n"));
    const auto *layout = qobject_cast<QHBoxLayout *>(item.layout());
    QCOMPARE(layout->objectName(), QString("horizontalLayout"));
    const auto *label = Window::find<QLabel>(&item, "labelLanguage");
    const auto *button = Window::find<QPushButton>(&item, "buttonModify");
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->widget(), label);
    QCOMPARE(layout->itemAt(1)->spacerItem()->sizeHint(), QSize(140, 20));
    QCOMPARE(layout->itemAt(2)->widget(), button);
    QCOMPARE(label->font().family(), QString("Noto Sans"));
    QCOMPARE(label->font().pointSize(), 10);
    QCOMPARE(label->styleSheet(), QString("border:none;"));
    QCOMPARE(button->minimumSize(), QSize(16, 16));
    QCOMPARE(button->maximumSize(), QSize(16, 16));
    QCOMPARE(button->styleSheet(),
             QString("QPushButton {\nborder : none;\noutline : none;\nimage: "
                     "url(:/images/ic_language_edit.png);\n}\n"));
}

// A grey handle on white, with two pixels of white above and below.
void TestLanguageMenuForm::scrollBarKeepsOffTheEnds()
{
    menu()->setLanguageList({"a", "b", "c", "d", "e", "f", "g", "h", "i"});
    Window::click(&window->dialog, "languageCombobox");
    QScrollBar *bar = list()->verticalScrollBar();
    QTRY_VERIFY(bar->isVisible());
    for (const bool top : {true, false}) {
        bar->setValue(top ? bar->minimum() : bar->maximum());
        const QImage seen = bar->grab().toImage();
        QCOMPARE(seen.width(), 6);
        QVector<int> grey;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                QCOMPARE(seen.pixelColor(x, y), seen.pixelColor(0, y));
            }
            if (seen.pixelColor(0, y) == QColor(158, 158, 158)) {
                grey.append(y);
            } else {
                QCOMPARE(seen.pixelColor(0, y), QColor(Qt::white));
            }
        }
        QVERIFY(grey.size() >= 24 && grey.last() - grey.first() == grey.size() - 1);
        QCOMPARE(top ? grey.first() : seen.height() - 1 - grey.last(), 2);
    }
}

void TestLanguageMenuForm::buttonsHaveThreePictures()
{
    for (const char *name : {"newButton", "loadButton"}) {
        const auto *button = Window::find<QPushButton>(menu(), name);
        QCOMPARE(button->minimumSize(), QSize(77, 26));
        QCOMPARE(button->maximumSize(), QSize(77, 26));
        QVERIFY(!button->autoDefault());
        for (const char *picture : {"normal", "over", "press"}) {
            const QString path = QStringLiteral(":/images/btn_language_%1.png").arg(QLatin1String(picture));
            QVERIFY2(button->styleSheet().contains(path), picture);
            QVERIFY2(QFile::exists(path), picture);
        }
    }
    QCOMPARE(Window::find<QPushButton>(menu(), "newButton")->styleSheet(),
             Window::find<QPushButton>(menu(), "loadButton")->styleSheet());
    window->speak("~");
    QCOMPARE(Window::find<QPushButton>(menu(), "newButton")->text(), QString("New"));
    QCOMPARE(Window::find<QPushButton>(menu(), "loadButton")->text(), QString("Load"));
}

// There is neither a border nor, with the focus, an outline.
void TestLanguageMenuForm::buttonsAreTheirPictureAlone()
{
    QImage picture(77, 26, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter(&picture).drawImage(0, 0, QImage(":/images/btn_language_normal.png"));
    Window::click(&window->dialog, "languageCombobox");
    for (const char *name : {"newButton", "loadButton"}) {
        auto *button = Window::find<QPushButton>(menu(), name);
        button->setText(QString());
        QCOMPARE(button->grab().toImage().convertToFormat(picture.format()), picture);
        button->setFocus(Qt::TabFocusReason);
        QVERIFY(button->hasFocus());
        QCOMPARE(button->grab().toImage().convertToFormat(picture.format()), picture);
    }
}

void TestLanguageMenuForm::rowsAreWhiteButTheCurrentOne_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::addColumn<int>("pickedBefore");
    QTest::newRow("opened by mouse") << true << -1;
    QTest::newRow("opened by mouse after a choice") << true << 1;
    QTest::newRow("opened by keys") << false << -1;
    QTest::newRow("opened by keys after a choice") << false << 1;
}

void TestLanguageMenuForm::rowsAreWhiteButTheCurrentOne()
{
    QFETCH(bool, byMouse);
    QFETCH(int, pickedBefore);
    QVERIFY(QTest::qWaitForWindowActive(&window->dialog));
    menu()->setLanguageList({"a", "b", "c"});
    list()->setCurrentRow(pickedBefore);
    if (byMouse) {
        Window::click(&window->dialog, "languageCombobox");
    } else {
        Window::find(&window->dialog, "languageCombobox")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QVERIFY(list()->hasFocus());
    }
    QCOMPARE(list()->currentRow(), byMouse ? -1 : 0);
    const QImage seen = menu()->grab().toImage();
    for (int index = 0; index < list()->count(); ++index) {
        const QPoint corner = list()->visualItemRect(list()->item(index)).topLeft() + QPoint(8, 8);
        const QColor expected = index == list()->currentRow() ? QColor(0xe6, 0xe6, 0xe7) : QColor(Qt::white);
        QCOMPARE(seen.pixelColor(list()->viewport()->mapTo(menu(), corner)), expected);
    }
}

void TestLanguageMenuForm::hoverIsPalerAndFollowsTheWheel()
{
    mouse::place(window->dialog, QPoint(200, 100));
    menu()->setLanguageList({"a", "b", "c", "d", "e", "f", "g", "h", "i"});
    Window::click(&window->dialog, "languageCombobox");
    QScrollBar *bar = list()->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    const auto *viewport = list()->viewport();
    const QPoint pointed(60, list()->visualItemRect(list()->item(1)).center().y());
    mouse::moveTo(viewport->mapToGlobal(pointed));
    const auto hovered = [this] {
        QStringList names;
        for (const auto *row : list()->findChildren<LanguageItem *>()) {
            if (row->underMouse()) {
                names.append(row->language());
            }
        }
        return names;
    };
    const QStringList first{static_cast<LanguageItem *>(list()->itemWidget(list()->item(1)))->language()};
    QTRY_COMPARE(hovered(), first);
    const QPoint corner = list()->visualItemRect(list()->item(1)).topLeft() + QPoint(8, 8);
    const auto shade = [&] {
        return menu()->grab().toImage().pixelColor(viewport->mapTo(menu(), corner)).red();
    };
    QCOMPARE(shade(), 0xf2);
    list()->setCurrentRow(1);
    QVERIFY(shade() < 0xe6);
    mouse::press(5);
    mouse::release(5);
    QTRY_VERIFY(bar->value() > 0);
    const auto *now = static_cast<LanguageItem *>(list()->itemWidget(list()->itemAt(pointed)));
    QVERIFY(now->language() != first.first());
    QTRY_COMPARE(hovered(), QStringList{now->language()});
    mouse::moveTo(QPoint(2, 2));
    QTRY_VERIFY(hovered().isEmpty());
}

void TestLanguageMenuForm::rowTellsItsLanguage()
{
    LanguageItem item(nullptr);
    QSignalSpy clicked(&item, &LanguageItem::clickedModifyButton);
    item.setLanguage("Česky <b>1</b>");
    QCOMPARE(item.language(), QString("Česky <b>1</b>"));
    QCOMPARE(Window::find<QLabel>(&item, "labelLanguage")->text(), QString("Česky <b>1</b>"));
    item.show();
    Window::click(&item, "buttonModify");
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(clicked.at(0).at(0).toString(), QString("Česky <b>1</b>"));
}

CALORA_TEST_MAIN(TestLanguageMenuForm)
#include "tst_languagemenuform.moc"
