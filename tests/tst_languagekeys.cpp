#include "support/languagefolder.h"
#include "support/modal.h"
#include "support/window.h"

#include "languages/languageitem.h"
#include "languages/languagemenu.h"
#include "languages/userlanguageeditpopup.h"

#include <QListWidget>

// The language box and its popup by keys, and where the focus stays.

namespace {

using testfiles::put;

} // namespace

class TestLanguageKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup()
    {
        window.reset();
        languagefolder::restore();
    }

    void keysOpen_data();
    void keysOpen();
    void keysChooseALanguage();
    void arrowsGoOnFromTheMouse();
    void escapeClosesThePopupAlone_data();
    void escapeClosesThePopupAlone();
    void focusStaysWithTheBox_data();
    void focusStaysWithTheBox();

private:
    MainDialog &dialog() const { return window->dialog; }
    LanguageMenu *menu() const { return dialog().members().languageMenuWidget; }
    bool isOpen() const { return dialog().members().languageMenuOpen; }
    QListWidget *list() const { return Window::find<QListWidget>(menu(), "listWidget"); }
    QString text(const char *name) const
    {
        return Window::find(&dialog(), name)->property("text").toString();
    }
    void open() const { Window::click(&dialog(), "languageCombobox"); }
    void act(const QString &action) const;
    void verifyClosed() const
    {
        QVERIFY(!isOpen());
        QVERIFY(!menu()->isVisible());
    }

    std::unique_ptr<Window> window;
    QWidget *box = nullptr;
};

// Three languages, with the one in force in the middle.
void TestLanguageKeys::init()
{
    window = std::make_unique<Window>();
    for (const char *name : {"Deutsch.json", "Other.json"}) {
        put(languagefolder::file(name), languagefolder::marked("~"));
    }
    dialog().rebuildLanguageMenu();
    box = Window::find(&dialog(), "languageCombobox");
    QVERIFY(QTest::qWaitForWindowActive(&dialog()));
}

void TestLanguageKeys::keysOpen_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Down") << Qt::Key_Down;
    QTest::newRow("F4") << Qt::Key_F4;
}

void TestLanguageKeys::keysOpen()
{
    QFETCH(Qt::Key, key);
    box->setFocus(Qt::TabFocusReason);
    // One that is held down opens nothing.
    QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(box, &held);
    verifyClosed();
    QTest::keyClick(box, key);
    QVERIFY(isOpen() && menu()->isVisible());
    QCOMPARE(QApplication::focusWidget(), list());
    QCOMPARE(list()->currentRow(), 1);
    // Back at the box, the key closes it.
    box->setFocus(Qt::BacktabFocusReason);
    QTest::keyClick(box, key);
    verifyClosed();
    QCOMPARE(QApplication::focusWidget(), box);
}

void TestLanguageKeys::keysChooseALanguage()
{
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClick(box, Qt::Key_Space);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    verifyClosed();
    QCOMPARE(text("labelCurrentLanguage"), QStringLiteral("Deutsch"));
    QCOMPARE(text("saveButton"), QStringLiteral("Save~"));
    QCOMPARE(testfiles::content(languagefolder::file("language.ini")), QByteArray("Deutsch"));
    QCOMPARE(QApplication::focusWidget(), box);
}

// The first one comes to the language in force.
void TestLanguageKeys::arrowsGoOnFromTheMouse()
{
    open();
    QCOMPARE(list()->currentRow(), -1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(list()->currentRow(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    verifyClosed();
    QCOMPARE(text("labelCurrentLanguage"), QStringLiteral("Other"));
}

void TestLanguageKeys::escapeClosesThePopupAlone_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("opened by mouse") << true;
    QTest::newRow("opened by keys") << false;
}

void TestLanguageKeys::escapeClosesThePopupAlone()
{
    QFETCH(bool, byMouse);
    if (byMouse) {
        open();
    } else {
        box->setFocus(Qt::TabFocusReason);
        QTest::keyClick(box, Qt::Key_Space);
    }
    QVERIFY(isOpen() && menu()->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    verifyClosed();
    QVERIFY(dialog().isVisible());
    QCOMPARE(text("labelCurrentLanguage"), QStringLiteral("English"));
    QCOMPARE(QApplication::focusWidget(), box);
    QTest::keyClick(box, Qt::Key_Escape);
    QVERIFY(dialog().isVisible());
}

void TestLanguageKeys::act(const QString &action) const
{
    if (action == "a row clicked") {
        Window::click(list()->viewport(), "labelLanguage");
    } else if (action == "a row's button") {
        Window::click(list()->viewport(), "buttonModify");
    } else if (action == "the editor") {
        QVERIFY(modal::drive<UserLanguageEditPopup>([this] { Window::click(menu(), "newButton"); },
                                                    [](UserLanguageEditPopup *editor) {
                                                        // A window that is closed before it has got the focus
                                                        // may leave it with none.
                                                        QVERIFY(QTest::qWaitForWindowActive(editor));
                                                        Window::click(editor, "closeButton");
                                                    }));
    } else if (action == "a file loaded") {
        filedialogs::answer([this] { Window::click(menu(), "loadButton"); },
                            languagefolder::file("Other.json"));
    } else {
        list()->setFocus();
        open();
    }
}

void TestLanguageKeys::focusStaysWithTheBox_data()
{
    QTest::addColumn<bool>("named");
    for (const char *action :
         {"a row clicked", "a row's button", "the editor", "a file loaded", "the box pressed"}) {
        QTest::newRow(action) << true;
    }
}

// Not with the next widget that takes it, which is New: a Space there starts a new document.
void TestLanguageKeys::focusStaysWithTheBox()
{
    open();
    act(QTest::currentDataTag());
    verifyClosed();
    QTRY_COMPARE(QApplication::focusWidget(), box);
}

CALORA_TEST_MAIN(TestLanguageKeys)
#include "tst_languagekeys.moc"
