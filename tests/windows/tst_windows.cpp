#include "support/documentwindow.h"
#include "support/languagefolder.h"

#include <QSettings>
#include <QStandardPaths>

#include <windows.h>

// What Windows does in its own way: the place of the desktop, drives and separators, letters of either case,
// files that another program holds.

namespace {

using testfiles::content;
using testfiles::put;
using testfiles::quoted;

/// A file that another program has open, and what it lets others do meanwhile.
class HeldFile
{
public:
    HeldFile(const QString &path, DWORD shared)
        : handle(CreateFileW(reinterpret_cast<const wchar_t *>(path.utf16()), GENERIC_READ, shared, nullptr,
                             OPEN_EXISTING, 0, nullptr))
    {
    }
    ~HeldFile() { CloseHandle(handle); }
    Q_DISABLE_COPY_MOVE(HeldFile)

    bool isOpen() const { return handle != INVALID_HANDLE_VALUE; }

private:
    HANDLE handle;
};

/// The desktop as the user has moved it, such as into a folder that is kept in step with others.
class MovedDesktop
{
public:
    explicit MovedDesktop(const QString &path)
        : before(folders.value(name))
    {
        folders.setValue(name, QDir::toNativeSeparators(path));
        folders.sync();
    }
    ~MovedDesktop() { before.isValid() ? folders.setValue(name, before) : folders.remove(name); }
    Q_DISABLE_COPY_MOVE(MovedDesktop)

private:
    const QString name = QStringLiteral("Desktop");
    QSettings folders{
        "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders",
        QSettings::NativeFormat};
    QVariant before;
};

QByteArray compact(const QJsonDocument &document) { return document.toJson(QJsonDocument::Compact); }

} // namespace

class TestWindows : public QObject
{
    Q_OBJECT

private slots:
    void init() { window = std::make_unique<DocumentWindow>(); }
    void cleanup()
    {
        window.reset();
        languagefolder::restore();
    }

    void dialogsStartAtTheDesktop();
    void dialogsFollowAMovedDesktop();
    void pathsHaveSlashes_data();
    void pathsHaveSlashes();
    void filesLieBesideTheExecutable();
    void defaultLanguageLiesAtTheRootOfTheDrive();
    void savesIntoAHeldFile_data();
    void savesIntoAHeldFile();
    void savesIntoTheFileItself();
    void folderThatCantBeWritten();
    void languageInOtherLetters();

private:
    std::unique_ptr<DocumentWindow> window;
};

void TestWindows::dialogsStartAtTheDesktop()
{
    const QString desktop = QDir::fromNativeSeparators(qEnvironmentVariable("USERPROFILE")) + "/Desktop";
    QVERIFY(desktop.contains(QRegularExpression("^[A-Z]:/")));
    QCOMPARE(window->dialog.dialogDirectory(), desktop + '/');
    QCOMPARE(window->open(QString()).folder, desktop);
}

void TestWindows::dialogsFollowAMovedDesktop()
{
    const QString moved = window->path("Synchronised/Desktop");
    QVERIFY(QDir().mkpath(moved));
    const QString before = window->dialog.dialogDirectory();
    {
        const MovedDesktop desktop(moved);
        QCOMPARE(window->dialog.dialogDirectory(), moved + '/');
    }
    QCOMPARE(window->dialog.dialogDirectory(), before);
}

void TestWindows::pathsHaveSlashes_data()
{
    QTest::addColumn<bool>("native");
    QTest::newRow("slashes") << false;
    QTest::newRow("backslashes") << true;
}

// However a path is typed, it is shown and logged with slashes, as on other systems.
void TestWindows::pathsHaveSlashes()
{
    QFETCH(bool, native);
    const QString path = window->path("Wärmepumpe 1.json");
    QVERIFY(path.contains(QRegularExpression("^[A-Z]:/.*/")));
    put(path, R"({"product":"awhp"})");
    window->open(native ? QDir::toNativeSeparators(path) : path);
    QCOMPARE(window->shownPath(), path);
    QCOMPARE(window->members().settings.filePath, path);
    QCOMPARE(DocumentWindow::told().value(0), "MainDialog::openJsonFile  selectedFile: " + quoted(path));
    window->use(documents::standard("R32"));
    window->completeSteps();
    window->save(QString());
    QCOMPARE(DocumentWindow::told().last(),
             "MainDialog::on_saveButton_clicked save file finished " + quoted(path));
    QCOMPARE(content(path), compact(documents::standard("R32")));
}

void TestWindows::filesLieBesideTheExecutable()
{
    wchar_t own[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, own, MAX_PATH);
    const QString folder = QFileInfo(QString::fromWCharArray(own)).path();
    QVERIFY(folder.contains(QRegularExpression("^[A-Z]:/")));
    QCOMPARE(window->dialog.languageIniPath(), folder + "/language/language.ini");
    QCOMPARE(QDir(QCoreApplication::applicationDirPath()), QDir(folder));
    QVERIFY(QFile::exists(folder + "/NotoSans-Medium.ttf"));
}

// Of the drive that is current, wherever the tool lies.
void TestWindows::defaultLanguageLiesAtTheRootOfTheDrive()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(window->path()));
    const QString drive = QDir::currentPath().left(3);
    messages::clear();
    window->dialog.loadDefaultLanguageJsonFile();
    QCOMPARE(messages::all(),
             QStringList{
                 "MainDialog::loadDefaultLanguageJsonFile failed to open file: \"/language/English.json\""});
    QVERIFY(QDir().mkdir(drive + "language"));
    put(drive + "language/English.json", languagefolder::marked("~"));
    messages::clear();
    window->dialog.loadDefaultLanguageJsonFile();
    QVERIFY(messages::all().isEmpty());
    QCOMPARE(window->dialog.languageValue("New"), QString("New~"));
    QVERIFY(QDir(drive + "language").removeRecursively());
    QVERIFY(QDir::setCurrent(before));
}

void TestWindows::savesIntoAHeldFile_data()
{
    QTest::addColumn<int>("shared");
    QTest::addColumn<bool>("saved");
    QTest::newRow("shared with all") << int(FILE_SHARE_READ | FILE_SHARE_WRITE) << true;
    QTest::newRow("shared with readers") << int(FILE_SHARE_READ) << false;
    QTest::newRow("not shared") << 0 << false;
}

// As any file that can't be opened: only the log tells, and the next Save tries again.
void TestWindows::savesIntoAHeldFile()
{
    QFETCH(int, shared);
    QFETCH(bool, saved);
    const QString path = window->path("a.json");
    put(path, R"({"product":"awhp"})");
    window->open(path);
    window->use(documents::standard("R410"));
    window->completeSteps();
    messages::clear();
    {
        const HeldFile held(path, static_cast<DWORD>(shared));
        QVERIFY(held.isOpen());
        window->save(QString());
    }
    const QByteArray whole = compact(documents::standard("R410"));
    QCOMPARE(content(path), saved ? whole : QByteArray(R"({"product":"awhp"})"));
    QCOMPARE(DocumentWindow::told().contains("MainDialog::saveJsonFile: " + quoted(path)), !saved);
    QCOMPARE(window->members().settings.filePath, path);
    window->save(QString());
    QCOMPARE(content(path), whole);
}

// No other file takes its place: a second name leads to the new content.
void TestWindows::savesIntoTheFileItself()
{
    const QString path = window->path("a.json");
    const QString other = window->path("second name");
    put(path, R"({"product":"awhp"})");
    QVERIFY(CreateHardLinkW(reinterpret_cast<const wchar_t *>(other.utf16()),
                            reinterpret_cast<const wchar_t *>(path.utf16()), nullptr));
    window->open(path);
    window->use(documents::standard("R410"));
    window->completeSteps();
    window->save(QString());
    QCOMPARE(content(other), compact(documents::standard("R410")));
}

void TestWindows::folderThatCantBeWritten()
{
    // Under Wine root may write nearly everywhere, but not there.
    const QString path = QStringLiteral("Z:/proc/a.json");
    window->dialog.openNewJsonFile("R32");
    window->completeSteps();
    messages::clear();
    window->save(path);
    QCOMPARE(DocumentWindow::told(),
             (QStringList{"MainDialog::saveJsonFile: " + quoted(path),
                          "MainDialog::on_saveButton_clicked save file finished " + quoted(path)}));
    QCOMPARE(window->dialog.document(), documents::standard("R32"));
    QVERIFY(window->dialog.isVisible());
}

// The same file by another spelling isn't removed for its own copy.
void TestWindows::languageInOtherLetters()
{
    put(languagefolder::file("Other.json"), languagefolder::marked("+"));
    window->dialog.loadLanguageAnotherPath(languagefolder::path().toUpper() + "/OTHER.json");
    QCOMPARE(content(languagefolder::file("Other.json")), languagefolder::marked("+"));
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("OTHER"));
    QCOMPARE(window->dialog.languageValue("New"), QString("New+"));
}

CALORA_TEST_MAIN(TestWindows)
#include "tst_windows.moc"
