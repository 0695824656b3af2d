#include "support/languagefolder.h"
#include "support/modal.h"
#include "support/mouse.h"
#include "support/window.h"

#include "languages/languageitem.h"
#include "languages/languagemenu.h"
#include "languages/userlanguageeditpopup.h"

#include <QFileDialog>
#include <QListWidget>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>

// The popup that lists the languages.

namespace {

using testfiles::content;
using testfiles::put;
using testfiles::quoted;

void addLanguage(const QString &name, const QByteArray &text = languagefolder::english())
{
    put(languagefolder::file(name + QStringLiteral(".json")), text);
}

} // namespace

class TestLanguageMenu : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { mouse::moveTo(QPoint(2, 2)); }
    void init() { restart(); }
    void cleanup()
    {
        window.reset();
        QDir(unreachableFolder()).removeRecursively();
        languagefolder::restore();
    }

    void listHasNoOperationsOfItsOwn();
    void listsLanguageFiles();
    void listsNothingInAnEmptyFolder();
    void opensAndCloses();
    void boxLeavesRoomForThePopup();
    void anyButtonOpens();
    void openPressIsEaten();
    void pressOnTheDialogCloses();
    void minimizingCloses();
    void languageMenuToggles();
    void bothTogglesGoTogether_data();
    void bothTogglesGoTogether();
    void rowSwitchesTheLanguage();
    void languageInForceIsReloaded();
    void switchLeavesTheDocumentAlone();
    void rowOfAnUnusableFile_data();
    void rowOfAnUnusableFile();
    void upperCaseExtensionIsNotFound();
    void nameThatCantBeSaved();
    void tenLanguagesScroll();
    void newOpensTheEditor();
    void loadClosesBeforeItAsks();
    void loadTakesAFileIn();
    void loadNamesFilesLetterForLetter();
    void loadIsCancelled();
    void loadOfAFileOfTheFolder();
    void modifyReachesNoFile();
    void modifyReachesAFilePutThere();
    void replacedPopupStaysAsItIs_data();
    void replacedPopupStaysAsItIs();

private:
    static QString unreachableFolder()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/languages");
    }
    void restart()
    {
        window.reset();
        window = std::make_unique<Window>();
        messages::clear();
    }
    MainDialog &dialog() const { return window->dialog; }
    LanguageMenu *menu() const { return dialog().members().languageMenuWidget; }
    bool isOpen() const { return dialog().members().languageMenuOpen; }
    QListWidget *list() const { return Window::find<QListWidget>(menu(), "listWidget"); }
    LanguageItem *row(int index) const
    {
        return qobject_cast<LanguageItem *>(list()->itemWidget(list()->item(index)));
    }
    QStringList names() const
    {
        QStringList result;
        for (int index = 0; index < list()->count(); ++index) {
            result.append(row(index)->language());
        }
        return result;
    }
    void open() const { Window::click(&dialog(), "languageCombobox"); }
    void choose(const QString &name) const
    {
        open();
        Window::click(row(names().indexOf(name)), "labelLanguage");
    }
    QString text(const char *name) const
    {
        return Window::find(&dialog(), name)->property("text").toString();
    }
    void verifyClosed() const
    {
        QVERIFY(!isOpen());
        QVERIFY(!menu()->isVisible());
    }

    std::unique_ptr<Window> window;
};

void TestLanguageMenu::listHasNoOperationsOfItsOwn()
{
    QCOMPARE(list()->metaObject()->superClass()->className(), "QListWidget");
    QVERIFY(Window::ownSlots(list()).isEmpty());
}

void TestLanguageMenu::listsLanguageFiles()
{
    for (const char *file : {"Upper.JSON", "two.json.json", "Deutsch.json", "notes.txt",
                             "my.jsonlanguage.json", "日本 語.json"}) {
        put(languagefolder::file(QString::fromUtf8(file)), "{}");
    }
    QDir(languagefolder::path()).mkdir("folder.json");
    dialog().rebuildLanguageMenu();
    QCOMPARE(names(), (QStringList{"Deutsch", "English", "mylanguage", "two", "Upper.JSON", "日本 語"}));
    for (int index = 0; index < list()->count(); ++index) {
        QCOMPARE(list()->item(index)->sizeHint(), QSize(176, 51));
    }
    menu()->setLanguageList({});
    QCOMPARE(list()->count(), 6);
    menu()->setLanguageList({"second", "first"});
    QCOMPARE(names().mid(6), (QStringList{"second", "first"}));
}

void TestLanguageMenu::listsNothingInAnEmptyFolder()
{
    QDir(languagefolder::path()).removeRecursively();
    restart();
    QCOMPARE(list()->count(), 0);
    open();
    QVERIFY(menu()->isVisible());
    QVERIFY(modal::drive<UserLanguageEditPopup>(
        [this] { Window::click(menu(), "newButton"); },
        [](UserLanguageEditPopup *editor) { Window::click(editor, "closeButton"); }));
    verifyClosed();
}

void TestLanguageMenu::opensAndCloses()
{
    verifyClosed();
    QCOMPARE(menu()->parentWidget(), &dialog());
    open();
    QVERIFY(isOpen());
    QVERIFY(menu()->isVisible());
    QCOMPARE(menu()->pos(),
             QPoint(Window::find(&dialog(), "labelLanguage")->x() - 10,
                    Window::find(&dialog(), "toolbarGroupBox")->height()
                        + Window::find(&dialog(), "titleFrame")->height()));
    const QPoint inside = menu()->geometry().center();
    QVERIFY(menu()->isAncestorOf(dialog().childAt(inside)));
    open();
    verifyClosed();
    open();
    QVERIFY(isOpen() && menu()->isVisible());
}

// However short the caption above it.
void TestLanguageMenu::boxLeavesRoomForThePopup()
{
    const auto *box = Window::find(&dialog(), "languageCombobox");
    QCOMPARE(box->minimumWidth(), 100);
    Window::find<QLabel>(&dialog(), "labelLanguage")->setText("L");
    dialog().resize(dialog().minimumSize());
    QTRY_COMPARE(dialog().width(), 974);
    QTest::qWait(50);
    QCOMPARE(box->width(), 176);
    open();
    QVERIFY(dialog().rect().contains(menu()->geometry()));
}

void TestLanguageMenu::anyButtonOpens()
{
    auto *box = Window::find(&dialog(), "languageCombobox");
    QTest::mouseClick(box, Qt::RightButton);
    QVERIFY(isOpen() && menu()->isVisible());
    QTest::mouseClick(box, Qt::MiddleButton);
    verifyClosed();
    // The texts in the box are no other place.
    Window::click(&dialog(), "labelCurrentLanguage");
    QVERIFY(isOpen() && menu()->isVisible());
}

void TestLanguageMenu::openPressIsEaten()
{
    auto *box = Window::find(&dialog(), "languageCombobox");
    QTest::mousePress(box, Qt::LeftButton);
    QVERIFY(isOpen());
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QTest::mouseRelease(box, Qt::LeftButton);
    QTest::mousePress(box, Qt::LeftButton);
    verifyClosed();
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QTest::mouseRelease(box, Qt::LeftButton);
}

// Whether a press closes the popup depends on whether it reaches the dialog: a control keeps it.
void TestLanguageMenu::pressOnTheDialogCloses()
{
    mouse::place(dialog(), QPoint(200, 100));
    open();
    const auto middle = [this](const char *name) {
        const QWidget *widget = Window::find(&dialog(), name);
        return widget->mapToGlobal(widget->rect().center());
    };
    mouse::moveTo(middle("saveButton"));
    mouse::press();
    mouse::release();
    QVERIFY(isOpen() && menu()->isVisible());
    mouse::moveTo(middle("pathLabel"));
    mouse::press();
    mouse::release();
    verifyClosed();
    mouse::moveTo(QPoint(2, 2));
}

void TestLanguageMenu::minimizingCloses()
{
    open();
    Window::click(&dialog(), "minimizeButton");
    verifyClosed();
}

void TestLanguageMenu::languageMenuToggles()
{
    const auto *label = Window::find(&dialog(), "labelLanguage");
    QVERIFY(Window::invoke(&dialog(), "languageMenu"));
    QVERIFY(isOpen() && menu()->isVisible());
    QCOMPARE(menu()->pos(), QPoint(label->x() - 10, 100));
    QCOMPARE(messages::all(),
             QStringList{QStringLiteral("MainDialog::languageMenu open :  100 %1 %2 %3")
                             .arg(Window::find(&dialog(), "pathLabel")->y())
                             .arg(label->y())
                             .arg(Window::find(&dialog(), "toolbarGroupBox")->height())});
    messages::clear();
    QVERIFY(Window::invoke(&dialog(), "languageMenu"));
    verifyClosed();
    QVERIFY(messages::all().isEmpty());
}

void TestLanguageMenu::bothTogglesGoTogether_data()
{
    QTest::addColumn<bool>("boxFirst");
    QTest::newRow("opened by the box") << true;
    QTest::newRow("opened by the slot") << false;
}

// What one of them opens, the other closes; each opens at its own place.
void TestLanguageMenu::bothTogglesGoTogether()
{
    QFETCH(bool, boxFirst);
    const auto toggle = [this](bool box) {
        if (box) {
            open();
        } else {
            Window::invoke(&dialog(), "languageMenu");
        }
    };
    const int bars = Window::find(&dialog(), "toolbarGroupBox")->height()
        + Window::find(&dialog(), "titleFrame")->height();
    QVERIFY(bars != 100);
    for (const bool box : {boxFirst, !boxFirst}) {
        toggle(box);
        QVERIFY(isOpen() && menu()->isVisible());
        QCOMPARE(menu()->y(), box ? bars : 100);
        toggle(!box);
        verifyClosed();
    }
}

void TestLanguageMenu::rowSwitchesTheLanguage()
{
    addLanguage("Other", languagefolder::marked("+"));
    restart();
    choose("Other");
    verifyClosed();
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("Other"));
    QCOMPARE(text("labelCurrentLanguage"), QString("Other"));
    QCOMPARE(text("newButton"), QString("New+"));
    QCOMPARE(text("labelSlide4"), QString("Validation+"));
    QCOMPARE(text("labelProductType"), QString("Product type+"));
    QCOMPARE(Window::find<QLabel>(&dialog(), "labelCurrentLanguage")->textFormat(), Qt::PlainText);
    restart();
    QCOMPARE(text("labelCurrentLanguage"), QString("Other"));
    QCOMPARE(text("newButton"), QString("New+"));
}

void TestLanguageMenu::languageInForceIsReloaded()
{
    QSignalSpy changed(&dialog(), &MainDialog::changeInstallationLanguage);
    addLanguage("English", languagefolder::marked("!"));
    choose("English");
    QCOMPARE(changed.size(), 1);
    QCOMPARE(text("newButton"), QString("New!"));
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("English"));
    verifyClosed();
}

void TestLanguageMenu::switchLeavesTheDocumentAlone()
{
    addLanguage("Other", languagefolder::marked("+"));
    restart();
    for (const char *refrigerant : {"R32", "R410"}) {
        window->use(documents::standard(refrigerant));
        for (int tab = 0; tab < 4; ++tab) {
            window->showPage(MainDialog::SettingPage, tab);
            const QByteArray before = dialog().document().toJson(QJsonDocument::Compact);
            choose("Other");
            QCOMPARE(dialog().document().toJson(QJsonDocument::Compact), before);
            choose("English");
            QCOMPARE(dialog().document().toJson(QJsonDocument::Compact), before);
        }
    }
}

void TestLanguageMenu::rowOfAnUnusableFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("New = Neu\n");
    QTest::newRow("array") << QByteArray("[\"New\"]");
    QTest::newRow("cut off") << languagefolder::english().left(500);
    QTest::newRow("no texts") << QByteArray(R"({"New": 5, "Open": [], "Save": null, "Language": {}})");
    QTest::newRow("unknown keys") << QByteArray(R"({"a.b c": "x", "ä": "y"})");
}

void TestLanguageMenu::rowOfAnUnusableFile()
{
    QFETCH(QByteArray, bytes);
    addLanguage("Broken", bytes);
    restart();
    choose("Broken");
    verifyClosed();
    QCOMPARE(text("labelCurrentLanguage"), QString("Broken"));
    QCOMPARE(text("openButton"), QString());
    QVERIFY(messages::contain("MainDialog::languageValue language value is empty"));
    choose("English");
    QCOMPARE(text("openButton"), QString("Open"));
}

void TestLanguageMenu::upperCaseExtensionIsNotFound()
{
    put(languagefolder::file("Upper.JSON"), languagefolder::marked("+"));
    restart();
    choose("Upper.JSON");
    QVERIFY(messages::contain("MainDialog::loadLanguageData failed to open file: "
                              + quoted(languagefolder::file("Upper.JSON.json"))));
    QCOMPARE(text("labelCurrentLanguage"), QString("Upper.JSON"));
    QCOMPARE(text("newButton"), QString("New"));
    verifyClosed();
}

void TestLanguageMenu::nameThatCantBeSaved()
{
    addLanguage("Other", languagefolder::marked("+"));
    restart();
    QVERIFY(QFile::remove(languagefolder::iniPath()));
    QVERIFY(QDir().mkpath(languagefolder::iniPath()));
    choose("Other");
    QCOMPARE(messages::all(),
             (QStringList{"LanguageMenu::on_listWidget_itemClicked failed to open file:",
                          "MainDialog::loadLanguageData failed to open file:"}));
    verifyClosed();
    QCOMPARE(text("labelCurrentLanguage"), QString("English"));
    QCOMPARE(text("newButton"), QString("New"));
}

void TestLanguageMenu::tenLanguagesScroll()
{
    for (int number = 1; number < 10; ++number) {
        addLanguage(QStringLiteral("Tongue %1").arg(number));
    }
    restart();
    open();
    QTest::qWait(50);
    QCOMPARE(list()->count(), 10);
    QCOMPARE(menu()->size(), QSize(176, 255));
    QScrollBar *bar = list()->verticalScrollBar();
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->width(), 6);
    QVERIFY(bar->maximum() > 0);
    QVERIFY(!list()->horizontalScrollBar()->isVisible());
    const QWidget *last = row(9);
    const auto inView = [this, last] {
        return list()->viewport()->rect().contains(last->geometry().center());
    };
    QVERIFY(!inView());
    bar->setValue(bar->maximum());
    QTRY_VERIFY(inView());
    // Nothing of a row lies behind the scroll bar.
    const auto *button = Window::find(last, "buttonModify");
    QVERIFY(last->x() + button->geometry().right() < list()->viewport()->width());
    Window::click(last, "labelLanguage");
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("Tongue 9"));
    // In force, it is in view.
    open();
    QTRY_VERIFY(inView());
}

void TestLanguageMenu::newOpensTheEditor()
{
    const QJsonDocument english = dialog().languageDocument();
    open();
    const auto look = [&](UserLanguageEditPopup *editor) {
        verifyClosed();
        QVERIFY(editor->isModal());
        QCOMPARE(editor->parentWidget(), nullptr);
        QCOMPARE(dialog().members().languages.snapshot.document, english);
        QCOMPARE(dialog().languageSnapshotMap(), dialog().languageMap());
        QCOMPARE(dialog().languageDocument(), english);
        // A new language: Save asks for a name.
        QCOMPARE(filedialogs::answer([editor] { Window::click(editor, "saveButton"); }, QString()).title,
                 QString("Save"));
        QVERIFY(editor->isVisible());
        Window::click(editor, "closeButton");
    };
    QVERIFY(modal::drive<UserLanguageEditPopup>([this] { Window::click(menu(), "newButton"); }, look));
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        QVERIFY(qobject_cast<const UserLanguageEditPopup *>(widget) == nullptr);
    }
    QCOMPARE(dialog().languageDocument(), english);
    QVERIFY(messages::contain("FrameLess::~FrameLess()...2"));
}

void TestLanguageMenu::loadClosesBeforeItAsks()
{
    open();
    QVERIFY(modal::drive<QFileDialog>([this] { Window::click(menu(), "loadButton"); },
                                      [this](const QFileDialog *) { verifyClosed(); }));
}

void TestLanguageMenu::loadTakesAFileIn()
{
    QTemporaryDir elsewhere;
    const QString path = elsewhere.filePath("Italiano.json");
    put(path, languagefolder::marked("?"));
    open();
    filedialogs::answer([this] { Window::click(menu(), "loadButton"); }, path);
    verifyClosed();
    QCOMPARE(content(languagefolder::file("Italiano.json")), languagefolder::marked("?"));
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("Italiano"));
    QCOMPARE(names(), (QStringList{"English", "Italiano"}));
    QCOMPARE(text("labelCurrentLanguage"), QString("Italiano"));
    QCOMPARE(text("newButton"), QString("New?"));
    restart();
    QCOMPARE(text("newButton"), QString("New?"));
}

void TestLanguageMenu::loadNamesFilesLetterForLetter()
{
    open();
    const auto seen = filedialogs::answer([this] { Window::click(menu(), "loadButton"); },
                                          languagefolder::file("<b>x.json"));
    QVERIFY(seen.question.contains("<b>x.json"));
    QVERIFY(seen.questionIsPlain);
}

void TestLanguageMenu::loadIsCancelled()
{
    open();
    const LanguageMenu *popup = menu();
    const auto seen = filedialogs::answer([this] { Window::click(menu(), "loadButton"); }, QString());
    QVERIFY(!seen.title.isEmpty());
    QCOMPARE(seen.filter, QFileDialog().nameFilters().join('|'));
    QCOMPARE(messages::all(), QStringList{"MainDialog::loadLanguageAnotherPath failed to open file: \"\""});
    verifyClosed();
    QCOMPARE(menu(), popup);
    QCOMPARE(text("newButton"), QString("New"));
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("English"));
}

void TestLanguageMenu::loadOfAFileOfTheFolder()
{
    addLanguage("Other", languagefolder::marked("+"));
    restart();
    open();
    filedialogs::answer([this] { Window::click(menu(), "loadButton"); }, languagefolder::file("Other.json"));
    QCOMPARE(content(languagefolder::file("Other.json")), languagefolder::marked("+"));
    QCOMPARE(text("newButton"), QString("New+"));
    QCOMPARE(names(), (QStringList{"English", "Other"}));
}

void TestLanguageMenu::modifyReachesNoFile()
{
    open();
    const QJsonDocument before = dialog().languageDocument();
    Window::click(row(0), "buttonModify");
    const QString path = quoted(unreachableFolder() + "/languageEnglish.json");
    QCOMPARE(messages::all(),
             (QStringList{"LanguageMenu::clickedModifyButton " + path,
                          "LanguageMenu::loadLanguageJson failed to open file: " + path}));
    verifyClosed();
    QCOMPARE(dialog().languageDocument(), before);
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("English"));
}

void TestLanguageMenu::modifyReachesAFilePutThere()
{
    QDir().mkpath(unreachableFolder());
    put(unreachableFolder() + "/languageEnglish.json", languagefolder::marked("+"));
    QSignalSpy changed(&dialog(), &MainDialog::changeInstallationLanguage);
    open();
    Window::click(row(0), "buttonModify");
    QCOMPARE(dialog().languageDocument(), QJsonDocument::fromJson(languagefolder::marked("+")));
    QCOMPARE(text("newButton"), QString("New"));
    QCOMPARE(changed.size(), 0);
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("English"));
    QCOMPARE(dialog().languageValue("New"), QString("New+"));
}

void TestLanguageMenu::replacedPopupStaysAsItIs_data()
{
    QTest::addColumn<bool>("wasOpen");
    QTest::newRow("hidden") << false;
    QTest::newRow("open") << true;
}

// It is neither closed nor deleted; the box and the flag go by the new one alone.
void TestLanguageMenu::replacedPopupStaysAsItIs()
{
    QFETCH(bool, wasOpen);
    const QPointer<LanguageMenu> former = menu();
    if (wasOpen) {
        open();
    }
    dialog().rebuildLanguageMenu();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(menu() != former);
    verifyClosed();
    QVERIFY(!former.isNull());
    QCOMPARE(former->parentWidget(), &dialog());
    QCOMPARE(former->isVisible(), wasOpen);
    QCOMPARE(dialog().findChildren<LanguageMenu *>().size(), 2);
    open();
    QVERIFY(isOpen() && menu()->isVisible());
    open();
    verifyClosed();
    QCOMPARE(former->isVisible(), wasOpen);
}

CALORA_TEST_MAIN(TestLanguageMenu)
#include "tst_languagemenu.moc"
