#include "support/faults.h"
#include "support/filedialogs.h"
#include "support/languagefolder.h"
#include "support/modal.h"
#include "support/window.h"

#include "languages/languageitem.h"
#include "languages/languagemenu.h"
#include "languages/userlanguageeditpopup.h"

#include <QListWidget>
#include <QRegularExpression>
#include <QTemporaryDir>

// A language folder that vanishes, can't be written or has no room while the tool runs: the language in force
// stays, and only the log tells.

namespace {

using faults::Fault;
using testfiles::content;
using testfiles::put;
using testfiles::quoted;

const QString unwritable = QStringLiteral("LanguageMenu::on_listWidget_itemClicked failed to open file:");
const QString unreadable = QStringLiteral("MainDialog::loadLanguageData failed to open file:");
const QString loaded = QStringLiteral("MainDialog::loadLanguageData path:");

using MakeFault = Fault (*)();

Fault vanishes()
{
    QDir(languagefolder::path()).removeRecursively();
    return {};
}

Fault becomesAFile()
{
    QDir(languagefolder::path()).removeRecursively();
    put(languagefolder::path(), "x");
    return {};
}

Fault becomesReadOnly()
{
    for (const QString &name : QDir(languagefolder::path()).entryList(QDir::Files)) {
        QFile::setPermissions(languagefolder::file(name), QFile::ReadOwner);
    }
    return faults::permissions(languagefolder::path(), QFile::ReadOwner | QFile::ExeOwner);
}

Fault isMountedReadOnly() { return faults::readOnlyFileSystem(languagefolder::path()); }

QMap<QString, QByteArray> filesOfTheFolder()
{
    QMap<QString, QByteArray> files;
    const QStringList names = QDir(languagefolder::path()).entryList(QDir::Files);
    for (const QString &name : names) {
        files.insert(name, content(languagefolder::file(name)));
    }
    return files;
}

} // namespace

Q_DECLARE_METATYPE(MakeFault)

class TestLanguageFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { restoreFolder(); } // a run that was broken off may have left it read-only
    void init()
    {
        put(languagefolder::file("Other.json"), languagefolder::marked("+"));
        window = std::make_unique<Window>();
        messages::clear();
    }
    void cleanup()
    {
        window.reset();
        restoreFolder();
    }

    void languageIsChosen_data() { folderFaults(); }
    void languageIsChosen();
    void languageIsTakenIn_data() { folderFaults(); }
    void languageIsTakenIn();
    void languageIsMade_data() { folderFaults(); }
    void languageIsMade();
    void madeLanguageIsForgotten_data();
    void madeLanguageIsForgotten();
    void toolIsStarted_data() { folderFaults(); }
    void toolIsStarted();
    void languageFileFails_data();
    void languageFileFails();
    void deepNesting();
    void diskIsFull();
    void noRoomForWhatIsTakenIn_data();
    void noRoomForWhatIsTakenIn();

private:
    static void folderFaults();
    static void restoreFolder()
    {
        QFile::setPermissions(languagefolder::path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        if (QFileInfo(languagefolder::path()).isFile()) {
            QFile::remove(languagefolder::path());
        }
        languagefolder::restore();
    }
    MainDialog &dialog() const { return window->dialog; }
    LanguageMenu *menu() const { return dialog().members().languageMenuWidget; }
    QListWidget *list() const { return Window::find<QListWidget>(menu(), "listWidget"); }
    void choose(int index) const
    {
        Window::click(&dialog(), "languageCombobox");
        Window::click(list()->itemWidget(list()->item(index)), "labelLanguage");
    }
    void verifyEnglish() const
    {
        QCOMPARE(dialog().languageDocument(), QJsonDocument::fromJson(languagefolder::english()));
        QCOMPARE(text("newButton"), QString("New"));
        QCOMPARE(text("labelCurrentLanguage"), QString("English"));
    }
    QString text(const char *name) const
    {
        return Window::find(&dialog(), name)->property("text").toString();
    }

    std::unique_ptr<Window> window;
};

void TestLanguageFaults::folderFaults()
{
    QTest::addColumn<MakeFault>("make");
    QTest::addColumn<bool>("readable");
    QTest::newRow("vanished") << &vanishes << false;
    QTest::newRow("a file in its place") << &becomesAFile << false;
    QTest::newRow("read-only") << &becomesReadOnly << true;
    QTest::newRow("on a read-only file system") << &isMountedReadOnly << true;
}

// The name can't be remembered, and the language that is remembered is loaded again.
void TestLanguageFaults::languageIsChosen()
{
    QFETCH(MakeFault, make);
    QFETCH(bool, readable);
    {
        const Fault fault = make();
        if (!fault.holds) {
            QSKIP("This machine doesn't let the fault be made");
        }
        const auto before = filesOfTheFolder();
        choose(1);
        QCOMPARE(messages::all(),
                 (QStringList{unwritable,
                              readable ? loaded + ' ' + quoted(languagefolder::file("English.json"))
                                       : unreadable}));
        QVERIFY(!dialog().members().languageMenuOpen);
        QVERIFY(!menu()->isVisible());
        verifyEnglish();
        QCOMPARE(filesOfTheFolder(), before);
    }
    // The folder is back: the row of the list serves as before.
    restoreFolder();
    put(languagefolder::file("Other.json"), languagefolder::marked("+"));
    choose(1);
    QCOMPARE(text("newButton"), QString("New+"));
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("Other"));
}

// It is in force for this run alone.
void TestLanguageFaults::languageIsTakenIn()
{
    QFETCH(MakeFault, make);
    QFETCH(bool, readable);
    QTemporaryDir elsewhere;
    put(elsewhere.filePath("Italiano.json"), languagefolder::marked("?"));
    const Fault fault = make();
    if (!fault.holds) {
        QSKIP("This machine doesn't let the fault be made");
    }
    const auto before = filesOfTheFolder();
    Window::click(&dialog(), "languageCombobox");
    filedialogs::answer([this] { Window::click(menu(), "loadButton"); }, elsewhere.filePath("Italiano.json"));
    QVERIFY(messages::all().contains(unwritable));
    QCOMPARE(dialog().languageDocument(), QJsonDocument::fromJson(languagefolder::marked("?")));
    QCOMPARE(text("newButton"), QString("New?"));
    QCOMPARE(text("labelCurrentLanguage"), QString("English"));
    QCOMPARE(list()->count(), readable ? 2 : 0);
    QCOMPARE(filesOfTheFolder(), before);
    QCOMPARE(content(elsewhere.filePath("Italiano.json")), languagefolder::marked("?"));
}

// The editor stays open with what was typed.
void TestLanguageFaults::languageIsMade()
{
    QFETCH(MakeFault, make);
    const Fault fault = make();
    if (!fault.holds) {
        QSKIP("This machine doesn't let the fault be made");
    }
    const auto before = filesOfTheFolder();
    const QString path = languagefolder::file("Ours.json");
    Window::click(&dialog(), "languageCombobox");
    const auto save = [&](UserLanguageEditPopup *editor) {
        const auto *rows = Window::find<QListWidget>(editor, "listWidget");
        Window::type(Window::find<QLineEdit>(rows->itemWidget(rows->item(0)), "lineEdit"), "Luft");
        messages::clear();
        filedialogs::answer([editor] { Window::click(editor, "saveButton"); }, path);
        QVERIFY(messages::all().contains("UserLanguageEditPopup::on_saveButton_clicked file open failed: "
                                         + quoted(path)));
        QVERIFY(editor->isVisible());
        QCOMPARE(dialog().languageSnapshotMap().first().toString(), QString("Luft"));
        QCOMPARE(dialog().languageMap(), dialog().languageSnapshotMap());
        Window::click(editor, "closeButton");
    };
    QVERIFY(modal::drive<UserLanguageEditPopup>([this] { Window::click(menu(), "newButton"); }, save));
    QCOMPARE(text("newButton"), QString("New"));
    QCOMPARE(text("labelCurrentLanguage"), QString("English"));
    QCOMPARE(filesOfTheFolder(), before);
}

void TestLanguageFaults::madeLanguageIsForgotten_data()
{
    QTest::addColumn<bool>("readable");
    QTest::newRow("language.ini can't be written") << true;
    QTest::newRow("language.ini is a folder") << false;
}

// The file is written, but the name can't be: the language that is remembered comes back where it can be
// read; else the window's own texts are the new ones and the pages keep theirs.
void TestLanguageFaults::madeLanguageIsForgotten()
{
    QFETCH(bool, readable);
    Fault fault;
    if (readable) {
        fault = faults::permissions(languagefolder::iniPath(), QFile::ReadOwner);
        if (!fault.holds) {
            QSKIP("This machine doesn't let the fault be made");
        }
    } else {
        QVERIFY(QFile::remove(languagefolder::iniPath()) && QDir().mkpath(languagefolder::iniPath()));
    }
    const QString path = languagefolder::file("Ours.json");
    Window::click(&dialog(), "languageCombobox");
    const auto save = [&](UserLanguageEditPopup *editor) {
        for (const char *key : {"New", "Producttype"}) {
            dialog().setLanguageSnapshotText(key, "x");
        }
        messages::clear();
        filedialogs::answer([editor] { Window::click(editor, "saveButton"); }, path);
        QVERIFY(!editor->isVisible());
    };
    QVERIFY(modal::drive<UserLanguageEditPopup>([this] { Window::click(menu(), "newButton"); }, save));
    QCOMPARE(
        messages::all().filter(QRegularExpression("^(UserLanguageEditPopup|LanguageMenu|MainDialog)::")),
        (QStringList{"UserLanguageEditPopup::on_saveButton_clicked saveFilePath: " + quoted(path), unwritable,
                     readable ? loaded + ' ' + quoted(languagefolder::file("English.json")) : unreadable}));
    const QJsonObject made = QJsonDocument::fromJson(content(path)).object();
    QCOMPARE(made.size(), languagefolder::textCount());
    QCOMPARE(made.value("New").toString(), QString("x"));
    QCOMPARE(text("newButton"), QString(readable ? "New" : "x"));
    QCOMPARE(text("labelProductType"), QString("Product type"));
    QCOMPARE(text("labelCurrentLanguage"), QString("English"));
    QCOMPARE(list()->count(), 3);
    QVERIFY(!dialog().members().languageMenuOpen);
}

void TestLanguageFaults::toolIsStarted()
{
    QFETCH(MakeFault, make);
    QFETCH(bool, readable);
    window.reset();
    const Fault fault = make();
    if (!fault.holds) {
        QSKIP("This machine doesn't let the fault be made");
    }
    const auto before = filesOfTheFolder();
    messages::clear();
    window = std::make_unique<Window>();
    QCOMPARE(list()->count(), readable ? 2 : 0);
    QCOMPARE(messages::all().contains(unreadable), !readable);
    QCOMPARE(dialog().languageMap().size(), readable ? languagefolder::textCount() : 0);
    // Without a language the form's own text stands.
    QCOMPARE(text("newButton"), QString("New"));
    QCOMPARE(text("labelCurrentLanguage"), QString("English"));
    QCOMPARE(filesOfTheFolder(), before);
}

void TestLanguageFaults::languageFileFails_data()
{
    QTest::addColumn<int>("fault");
    QTest::newRow("unreadable") << 0;
    QTest::newRow("removed") << 1;
    QTest::newRow("folder") << 2;
    QTest::newRow("FIFO") << 3;
    QTest::newRow("link to itself") << 4;
}

// The name is remembered and shown; the texts stay.
void TestLanguageFaults::languageFileFails()
{
    QFETCH(int, fault);
    const QString path = languagefolder::file("Other.json");
    if (fault > 0) {
        QVERIFY(QFile::remove(path));
    }
    Fault held;
    if (fault == 0) {
        held = faults::permissions(path, {});
    } else if (fault == 2) {
        QVERIFY(QDir().mkpath(path));
    } else if (fault == 3) {
        held = faults::pipe(path);
    } else if (fault == 4) {
        held = faults::link(path, path);
    }
    if (!held.holds) {
        QSKIP("This machine doesn't let the fault be made");
    }
    choose(1);
    QCOMPARE(messages::all(), (QStringList{loaded + ' ' + quoted(path), unreadable + ' ' + quoted(path)}));
    QCOMPARE(text("labelCurrentLanguage"), QString("Other"));
    QCOMPARE(text("newButton"), QString("New"));
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("Other"));
    QCOMPARE(dialog().languageMap().size(), languagefolder::textCount());
}

// What the parser refuses holds no texts.
void TestLanguageFaults::deepNesting()
{
    put(languagefolder::file("Other.json"),
        "{\"New\":" + QByteArray("[").repeated(10000) + QByteArray("]").repeated(10000) + '}');
    choose(1);
    QVERIFY(dialog().languageMap().isEmpty());
    QCOMPARE(text("newButton"), QString());
    QCOMPARE(text("labelCurrentLanguage"), QString("Other"));
    choose(0);
    verifyEnglish();
}

// The file of the name is emptied before it is written, and no language has an empty name.
void TestLanguageFaults::diskIsFull()
{
    if (!faults::SizeLimit::possible()) {
        QSKIP("This machine doesn't let the disk be limited");
    }
    {
        const faults::SizeLimit limit(0);
        choose(1);
        QCOMPARE(content(languagefolder::iniPath()), QByteArray());
    }
    QCOMPARE(messages::all(),
             (QStringList{unwritable, loaded + ' ' + quoted(languagefolder::file(".json")),
                          unreadable + ' ' + quoted(languagefolder::file(".json"))}));
    QCOMPARE(text("labelCurrentLanguage"), QString());
    QCOMPARE(text("newButton"), QString("New"));
    choose(0);
    verifyEnglish();
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("English"));
}

void TestLanguageFaults::noRoomForWhatIsTakenIn_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<QString>("remembered");
    QTest::addColumn<QString>("shown");
    QTest::newRow("not even for the name") << 0 << QString() << "English";
    QTest::newRow("for half of it") << 4500 << "Italiano"
                                    << "Italiano";
}

// A part of it would be a language without texts; what the former file of that name held is gone.
void TestLanguageFaults::noRoomForWhatIsTakenIn()
{
    QFETCH(int, room);
    QFETCH(QString, remembered);
    QFETCH(QString, shown);
    if (!faults::SizeLimit::possible()) {
        QSKIP("This machine doesn't let the disk be limited");
    }
    QTemporaryDir elsewhere;
    put(elsewhere.filePath("Italiano.json"), languagefolder::marked("?"));
    put(languagefolder::file("Italiano.json"), "{}");
    Window::click(&dialog(), "languageCombobox");
    const auto load = [this, room] {
        const faults::SizeLimit limit(static_cast<quint64>(room));
        Window::click(menu(), "loadButton");
    };
    filedialogs::answer(load, elsewhere.filePath("Italiano.json"));
    QCOMPARE(messages::all().contains(unwritable), remembered.isEmpty());
    QCOMPARE(dialog().languageDocument(), QJsonDocument::fromJson(languagefolder::marked("?")));
    QCOMPARE(text("newButton"), QString("New?"));
    QCOMPARE(text("labelCurrentLanguage"), shown);
    QCOMPARE(content(languagefolder::iniPath()), remembered.toUtf8());
    QCOMPARE(QDir(languagefolder::path()).entryList(QDir::Files),
             (QStringList{"English.json", "language.ini", "Other.json"}));
}

int main(int argc, char *argv[])
{
    faults::isolate();
    QApplication application(argc, argv);
    TestLanguageFaults tests;
    return runTests(&tests, argc, argv);
}
#include "tst_languagefaults.moc"
