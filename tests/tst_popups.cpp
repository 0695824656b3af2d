#include "pages/valuelist.h"
#include "support/mouse.h"
#include "support/window.h"

#include <QAbstractItemView>
#include <QListView>

// A value list builds its popup when it is first opened: a hundred popups that are never seen would make the
// start slow.
class TestPopups : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { window.reset(); }

    void noneIsBuiltBeforeItIsOpened();
    void looksAsItsList();
    void opensBelowItsList();
    void marksItsItemCalmly_data();
    void marksItsItemCalmly();
    void longListOpensAtOnce();
    void itemsDoNotSetTheWidth();

private:
    static bool hasPopup(const QComboBox *list)
    {
        return list->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
    }

    std::unique_ptr<Window> window;
};

void TestPopups::initTestCase()
{
    window = std::make_unique<Window>();
    window->use(documents::standard("R32"));
    window->speak();
}

void TestPopups::noneIsBuiltBeforeItIsOpened()
{
    for (const int tab : {MainDialog::FunctionTab, MainDialog::UserTab, MainDialog::InstallationTab}) {
        window->showPage(MainDialog::SettingPage, tab);
    }
    window->speak("~");
    window->speak();
    const auto lists = window->dialog.findChildren<ValueList *>();
    QVERIFY(lists.size() > 80);
    QCOMPARE(window->dialog.findChildren<QComboBox *>().size(), lists.size());
    for (const ValueList *list : lists) {
        QVERIFY2(!hasPopup(list), qPrintable(list->objectName()));
    }
}

void TestPopups::looksAsItsList()
{
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    auto *year = Window::find<QComboBox>(&window->dialog, "comboDateYear");
    QVERIFY(year->font() != QApplication::font());
    year->showPopup();
    QVERIFY(hasPopup(year));
    QCOMPARE(year->view()->font(), year->font());
    QCOMPARE(year->view()->model()->rowCount(), year->count());
    year->hidePopup();
    // Once it is there, it goes with its list.
    year->setStyleSheet("font-size: 14pt");
    QCOMPARE(year->font().pointSize(), 14);
    QCOMPARE(year->view()->font(), year->font());
    year->setStyleSheet(QString());
}

void TestPopups::opensBelowItsList()
{
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    auto *timer = Window::find<QComboBox>(&window->dialog, "comboScreenSaverTimer");
    timer->showPopup();
    const QWidget *popup = timer->view()->window();
    QCOMPARE(popup->width(), timer->width());
    QVERIFY(popup->y() >= timer->mapToGlobal(QPoint(0, timer->height() - 1)).y());
    timer->hidePopup();
}

void TestPopups::marksItsItemCalmly_data()
{
    // Lists that nothing else here opens: what the first opening makes stays.
    QTest::addColumn<QString>("list");
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("opened by keys") << "comboBrightness" << false;
    QTest::newRow("opened by mouse") << "comboDateMonth" << true;
}

void TestPopups::marksItsItemCalmly()
{
    QFETCH(QString, list);
    QFETCH(bool, byMouse);
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    auto *opened = Window::find<QComboBox>(&window->dialog, qPrintable(list));
    if (byMouse) {
        mouse::place(window->dialog, QPoint(0, 0));
        mouse::moveTo(opened->mapToGlobal(opened->rect().center()));
        mouse::press();
        mouse::release();
    } else {
        QTest::keyClick(opened, Qt::Key_Space);
    }
    const QAbstractItemView *view = opened->view();
    QVERIFY(view->isVisible());
    QVERIFY(view->currentIndex().isValid());
    const QRect row = view->visualRect(view->currentIndex());
    QVERIFY(row.height() >= 28);
    const QImage marked = view->viewport()->grab(row).toImage();
    const QColor accent(0xA5, 0x00, 0x34);
    QCOMPARE(marked.pixelColor(1, row.height() / 2), accent);
    QCOMPARE(marked.pixelColor(3, row.height() / 2), QColor(0xf2, 0xf2, 0xf2));
    QCOMPARE(marked.pixelColor(row.width() - 2, 2), QColor(0xf2, 0xf2, 0xf2));
    int darkest = 255;
    for (int x = 3; x < row.width(); ++x) {
        for (int y = 0; y < row.height(); ++y) {
            const QColor ink = marked.pixelColor(x, y);
            QVERIFY(qAbs(ink.red() - ink.blue()) < 3);
            darkest = qMin(darkest, ink.red());
        }
    }
    QVERIFY(darkest >= 0x33 && darkest < 0x50);
    const auto other = view->model()->index(view->currentIndex().row() == 0 ? 1 : 0, 0);
    const QRect place = view->visualRect(other);
    QCOMPARE(view->viewport()->grab(place).toImage().pixelColor(1, place.height() / 2), QColor(Qt::white));
    opened->hidePopup();
}

// Its rows aren't measured one by one; those of a usual list are, since a language may break a line.
void TestPopups::longListOpensAtOnce()
{
    for (const int length : {940, 10024}) {
        ValueList list;
        list.addItems(range(1, length, "°C"));
        list.show();
        list.showPopup();
        QCOMPARE(qobject_cast<QListView *>(list.view())->uniformItemSizes(), length > 1000);
        list.hidePopup();
    }
}

void TestPopups::itemsDoNotSetTheWidth()
{
    ValueList list;
    const QSize empty = list.sizeHint();
    list.addItem(QString(200, 'x'));
    QCOMPARE(list.sizeHint(), empty);
    QCOMPARE(list.minimumSizeHint(), empty);
}

CALORA_TEST_MAIN(TestPopups)
#include "tst_popups.moc"
