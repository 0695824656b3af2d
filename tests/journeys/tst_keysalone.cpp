#include "journeys/installer.h"

#include "app/tabbutton.h"
#include "languages/languagemenu.h"
#include "languages/userlanguageeditpopup.h"

#include <QAbstractItemView>
#include <QFileDialog>
#include <QTimer>

namespace {

/// What has the focus, once the window has got it back from a list.
QWidget *focusWidget()
{
    [] { QTRY_VERIFY(QApplication::focusWidget() != nullptr); }();
    return QApplication::focusWidget();
}

QString focused() { return focusWidget()->objectName(); }

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(focusWidget(), key, modifiers);
}

/// Tab until the part of that name has the focus.
void tabTo(const QString &name)
{
    constexpr int farEnough = 200;
    for (int count = 0; focused() != name; ++count) {
        QVERIFY2(count < farEnough, qPrintable(name));
        press(Qt::Key_Tab);
    }
}

/// Goes there and presses it, as Space does.
void tabAndPress(const QString &name)
{
    tabTo(name);
    press(Qt::Key_Space);
}

/// Goes on within the group of radios, which chooses where something is chosen already.
void arrowTo(const char *radio)
{
    const QWidget *from = focusWidget();
    const bool inRow = Window::find(from->parentWidget(), radio)->y() == from->y();
    press(inRow ? Qt::Key_Right : Qt::Key_Down);
    QCOMPARE(focused(), QString(radio));
}

/// Opens the list, goes down to the item and takes it.
void tabAndTake(const QString &list, const QString &item)
{
    tabTo(list);
    auto *combo = qobject_cast<QComboBox *>(focusWidget());
    QTest::keyClick(combo, Qt::Key_Down, Qt::AltModifier);
    QTRY_VERIFY(combo->view()->isVisible());
    for (int row = combo->currentIndex(); row < combo->findText(item); ++row) {
        QTest::keyClick(combo->view(), Qt::Key_Down);
    }
    QTest::keyClick(combo->view(), Qt::Key_Return);
    QCOMPARE(combo->currentText(), item);
}

void pressSave() { press(Qt::Key_S, Qt::ControlModifier); }

} // namespace

// The window without a mouse.
class TestKeysAlone : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        installer = std::make_unique<Installer>();
        QVERIFY(QTest::qWaitForWindowActive(&dialog()));
    }
    void cleanup() { installer.reset(); }

    void wholeJob();
    void newIsPressed();
    void openIsPressed();
    void refusedSaveShowsNothing();
    void textsTakeNoKeysAway();
    void popupGivesWay();
    void dialogsKeepTheirKeys();
    void editorKeepsItsKeys();

private:
    MainDialog &dialog() const { return installer->window.dialog; }
    int page() const { return Window::find<QStackedWidget>(&dialog(), "stackedWidget")->currentIndex(); }

    std::unique_ptr<Installer> installer;
};

void TestKeysAlone::wholeJob()
{
    press(Qt::Key_N, Qt::ControlModifier);
    tabAndPress("radioButtonMiddleTemp");
    tabTo("radioButtonR410");
    arrowTo("radioButtonR32");
    press(Qt::Key_Space);
    tabAndPress("dipSwitchButton");
    tabTo("radioDhwNotUse");
    arrowTo("radioDhwUse");
    tabAndPress("settingButton");
    tabAndPress("userTabButton");
    tabAndTake("comboDateYear", "2026");
    tabAndTake("comboDateMonth", "11");
    tabAndTake("comboDateDay", "22");
    tabAndPress("installationTabButton");
    tabAndPress("hideButton");
    tabTo("radio2ndNotuse");
    arrowTo("radio2ndUse");
    tabAndPress("validationButton");
    QCOMPARE(installer->message(), QString("Complete!"));
    const QString path = installer->folder.filePath("keys.json");
    QCOMPARE(filedialogs::answer(pressSave, path).title, QString("Save"));
    QCOMPARE(Installer::content(path), Installer::expected(documents::standard("R32"), "keys-alone.tsv"));
}

void TestKeysAlone::newIsPressed()
{
    press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(page(), int(MainDialog::ProductPage));
    QVERIFY(Window::visible(&dialog(), "sideGroupBox"));
}

void TestKeysAlone::openIsPressed()
{
    const QString path = installer->folder.filePath("plant.json");
    QFile plant(path);
    QVERIFY(plant.open(QIODevice::WriteOnly));
    plant.write(documents::standard("R410").toJson());
    plant.close();
    const auto seen = filedialogs::answer([] { press(Qt::Key_O, Qt::ControlModifier); }, path);
    QCOMPARE(seen.title, QString("Json File"));
    QCOMPARE(page(), int(MainDialog::DipSwitchPage));
    QCOMPARE(dialog().members().settings.filePath, path);
}

void TestKeysAlone::refusedSaveShowsNothing()
{
    press(Qt::Key_N, Qt::ControlModifier);
    messages::clear();
    QCOMPARE(filedialogs::answer(pressSave, QString()).title, QString());
    QVERIFY(messages::contain("MainDialog::on_saveButton_clicked save is failed validation :"));
    QCOMPARE(page(), int(MainDialog::ProductPage));
}

// A text with a "&" would set a button's own shortcut anew, and take one away that was set on it.
void TestKeysAlone::textsTakeNoKeysAway()
{
    installer->window.speak([](const QString &text) { return QString("&" + text); });
    press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(page(), int(MainDialog::ProductPage));
}

void TestKeysAlone::popupGivesWay()
{
    tabTo("languageCombobox");
    press(Qt::Key_Space);
    const auto *popup = dialog().findChild<LanguageMenu *>();
    QVERIFY(popup->isVisible());
    press(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(!popup->isVisible());
    QVERIFY(!dialog().members().languageMenuOpen);
    QCOMPARE(page(), int(MainDialog::ProductPage));
}

void TestKeysAlone::dialogsKeepTheirKeys()
{
    bool asked = false;
    QTimer::singleShot(0, &dialog(), [&] {
        QTRY_VERIFY(qobject_cast<QFileDialog *>(QApplication::activeModalWidget()) != nullptr);
        QWidget *files = QApplication::activeModalWidget();
        QVERIFY(QTest::qWaitForWindowActive(files));
        asked = true;
        for (const Qt::Key key : {Qt::Key_N, Qt::Key_O, Qt::Key_S}) {
            QTest::keyClick(files->focusWidget(), key, Qt::ControlModifier);
            QCOMPARE(QApplication::activeModalWidget(), files);
        }
        QTest::keyClick(files, Qt::Key_Escape);
    });
    press(Qt::Key_O, Qt::ControlModifier);
    QVERIFY(asked);
    QCOMPARE(page(), int(MainDialog::SelectPage));
}

void TestKeysAlone::editorKeepsItsKeys()
{
    UserLanguageEditPopup editor;
    editor.setModal(true);
    editor.show();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    Window::find(&editor, "searchLineEdit")->setFocus();
    press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(page(), int(MainDialog::SelectPage));
}

CALORA_TEST_MAIN(TestKeysAlone)
#include "tst_keysalone.moc"
