#include "support/faults.h"
#include "support/languagefolder.h"
#include "support/window.h"

#include "languages/languagemenu.h"

#include <QSignalSpy>
#include <QTemporaryDir>

// Remembering the name of a language, and taking in a language file from elsewhere.

namespace {

using testfiles::content;
using testfiles::put;
using testfiles::quoted;

const QString unreadable = QStringLiteral("MainDialog::loadLanguageData failed to open file:");
const QString unwritable = QStringLiteral("LanguageMenu::on_listWidget_itemClicked failed to open file:");
const QString notLoaded = QStringLiteral("MainDialog::loadLanguageAnotherPath failed to open file:");

} // namespace

class TestLanguageFiles : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        elsewhere = std::make_unique<QTemporaryDir>();
        restart();
        messages::clear();
    }
    void cleanup()
    {
        window.reset();
        languagefolder::restore();
    }

    void savesTheName_data();
    void savesTheName();
    void nameCantBeSaved();
    void unwritableNameReloadsTheOldLanguage();
    void loadsFromAnotherPath_data();
    void loadsFromAnotherPath();
    void loadedFileReplacesItsNamesake();
    void loadedFileMayLieAtItsTarget();
    void linkToItsTargetLosesNothing();
    void loadsABrokenFile();
    void cantLoadFromAnotherPath_data();
    void cantLoadFromAnotherPath();
    void loadedLanguageIsntRemembered();
    void defaultLanguageLiesAtTheRoot();

private:
    MainDialog &dialog() const { return window->dialog; }
    QString currentLanguage() const
    {
        return Window::find<QLabel>(&dialog(), "labelCurrentLanguage")->text();
    }
    QString newText() const { return Window::find<QPushButton>(&dialog(), "newButton")->text(); }
    void restart()
    {
        window.reset();
        window = std::make_unique<Window>();
    }

    std::unique_ptr<Window> window;
    std::unique_ptr<QTemporaryDir> elsewhere;
};

void TestLanguageFiles::savesTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("longer") << "Brazilian Portuguese";
    QTest::newRow("shorter") << "X";
    QTest::newRow("not Latin") << "日本語";
    QTest::newRow("empty") << "";
    QTest::newRow("line break") << "a\n";
}

void TestLanguageFiles::savesTheName()
{
    QFETCH(QString, name);
    dialog().saveLanguageName(name);
    QCOMPARE(content(languagefolder::iniPath()), name.toUtf8());
    QCOMPARE(currentLanguage(), name);
    QVERIFY(QFile::remove(languagefolder::iniPath()));
    dialog().saveLanguageName(name);
    QCOMPARE(content(languagefolder::iniPath()), name.toUtf8());
    QVERIFY(messages::all().isEmpty());
}

void TestLanguageFiles::nameCantBeSaved()
{
    QVERIFY(QFile::remove(languagefolder::iniPath()));
    QVERIFY(QDir().mkpath(languagefolder::iniPath()));
    dialog().saveLanguageName("Other");
    QCOMPARE(messages::all(), QStringList{unwritable});
    QCOMPARE(currentLanguage(), QString("English"));
    messages::clear();
    // It can't be read either.
    dialog().loadLanguageData(languagefolder::iniPath());
    QCOMPARE(messages::all(), QStringList{unreadable});
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(dialog().languageMap().size(), languagefolder::textCount());
}

void TestLanguageFiles::unwritableNameReloadsTheOldLanguage()
{
    put(languagefolder::file("Other.json"), languagefolder::marked("+"));
    const faults::Fault fault = faults::permissions(languagefolder::iniPath(), QFile::ReadOwner);
    if (!fault.holds) {
        QSKIP("This machine doesn't let the fault be made");
    }
    dialog().saveLanguageName("Other");
    QCOMPARE(messages::all(), QStringList{unwritable});
    dialog().loadLanguageData(languagefolder::iniPath());
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(newText(), QString("New"));
}

void TestLanguageFiles::loadsFromAnotherPath_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "Other.json"
                           << "Other";
    QTest::newRow("extension twice") << "Other.json.json"
                                     << "Other";
    QTest::newRow("extension in the middle") << "my.jsonlanguage.json"
                                             << "mylanguage";
    QTest::newRow("upper case extension") << "Other.JSON"
                                          << "Other.JSON";
    QTest::newRow("other extension") << "Other.txt"
                                     << "Other.txt";
    QTest::newRow("nothing but the extension") << ".json"
                                               << "";
    QTest::newRow("not Latin") << "日本 語.json"
                               << "日本 語";
}

void TestLanguageFiles::loadsFromAnotherPath()
{
    QFETCH(QString, file);
    QFETCH(QString, name);
    put(elsewhere->filePath(file), languagefolder::marked("+"));
    const auto *popup = dialog().members().languageMenuWidget;
    dialog().setLanguageMenuOpen(true);
    QSignalSpy told(&dialog(), &MainDialog::changeInstallationLanguage);
    dialog().loadLanguageAnotherPath(elsewhere->filePath(file));
    QCOMPARE(content(languagefolder::file(name + ".json")), languagefolder::marked("+"));
    QCOMPARE(content(elsewhere->filePath(file)), languagefolder::marked("+"));
    QCOMPARE(content(languagefolder::iniPath()), name.toUtf8());
    QCOMPARE(currentLanguage(), name);
    QCOMPARE(newText(), QString("New+"));
    QCOMPARE(told.size(), 1);
    // The popup is built anew and stands closed; the old one stays behind.
    QVERIFY(dialog().members().languageMenuWidget != popup);
    QCOMPARE(dialog().findChildren<LanguageMenu *>().size(), 2);
    QVERIFY(!dialog().members().languageMenuOpen);
    QVERIFY(dialog().members().languageMenuWidget->isHidden());
    // The next run speaks it.
    restart();
    QCOMPARE(newText(), QString("New+"));
}

void TestLanguageFiles::loadedFileReplacesItsNamesake()
{
    put(languagefolder::file("Other.json"), "{}");
    put(elsewhere->filePath("Other.json"), languagefolder::marked("+"));
    dialog().loadLanguageAnotherPath(elsewhere->filePath("Other.json"));
    QCOMPARE(content(languagefolder::file("Other.json")), languagefolder::marked("+"));
}

void TestLanguageFiles::loadedFileMayLieAtItsTarget()
{
    put(languagefolder::file("Other.json"), languagefolder::marked("+"));
    for (const QString &path :
         {languagefolder::file("Other.json"), languagefolder::path() + "/../language/./Other.json",
          QDir::current().relativeFilePath(languagefolder::file("Other.json"))}) {
        dialog().loadLanguageAnotherPath(path);
        QCOMPARE(content(languagefolder::file("Other.json")), languagefolder::marked("+"));
        QCOMPARE(newText(), QString("New+"));
        QCOMPARE(content(languagefolder::iniPath()), QByteArray("Other"));
    }
}

void TestLanguageFiles::linkToItsTargetLosesNothing()
{
    put(languagefolder::file("Other.json"), languagefolder::marked("+"));
    if (!faults::link(languagefolder::file("Other.json"), elsewhere->filePath("Other.json")).holds) {
        QSKIP("This machine doesn't let links be made");
    }
    dialog().loadLanguageAnotherPath(elsewhere->filePath("Other.json"));
    QCOMPARE(content(languagefolder::file("Other.json")), languagefolder::marked("+"));
    // The other way round: the folder holds the link.
    put(elsewhere->filePath("Far.json"), languagefolder::marked("-"));
    QVERIFY(faults::link(elsewhere->filePath("Far.json"), languagefolder::file("Far.json")).holds);
    dialog().loadLanguageAnotherPath(elsewhere->filePath("Far.json"));
    QCOMPARE(content(languagefolder::file("Far.json")), languagefolder::marked("-"));
    QCOMPARE(content(elsewhere->filePath("Far.json")), languagefolder::marked("-"));
}

void TestLanguageFiles::loadsABrokenFile()
{
    put(elsewhere->filePath("Broken.json"), "{\"New\":");
    dialog().loadLanguageAnotherPath(elsewhere->filePath("Broken.json"));
    QVERIFY(dialog().languageMap().isEmpty());
    QCOMPARE(newText(), QString());
    QCOMPARE(currentLanguage(), QString("Broken"));
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("Broken"));
    QCOMPARE(content(languagefolder::file("Broken.json")), QByteArray("{\"New\":"));
}

void TestLanguageFiles::cantLoadFromAnotherPath_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("cancelled") << "";
    QTest::newRow("missing") << "Missing.json";
    QTest::newRow("folder") << "Folder.json";
    QTest::newRow("FIFO") << "Pipe.json";
}

void TestLanguageFiles::cantLoadFromAnotherPath()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkpath(elsewhere->filePath("Folder.json")));
    if (name == "Pipe.json" && !faults::pipe(elsewhere->filePath(name)).holds) {
        QSKIP("This machine has no FIFOs");
    }
    const QString path = name.isEmpty() ? QString() : elsewhere->filePath(name);
    const auto *popup = dialog().members().languageMenuWidget;
    dialog().loadLanguageAnotherPath(path);
    QCOMPARE(messages::all(), QStringList{notLoaded + ' ' + quoted(path)});
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("English"));
    QCOMPARE(dialog().languageMap().size(), languagefolder::textCount());
    QCOMPARE(dialog().members().languageMenuWidget, popup);
    QCOMPARE(QDir(languagefolder::path()).entryList(QDir::Files),
             (QStringList{"English.json", "language.ini"}));
}

void TestLanguageFiles::loadedLanguageIsntRemembered()
{
    QVERIFY(QFile::remove(languagefolder::iniPath()));
    QVERIFY(QDir().mkpath(languagefolder::iniPath()));
    put(elsewhere->filePath("Other.json"), languagefolder::marked("+"));
    dialog().loadLanguageAnotherPath(elsewhere->filePath("Other.json"));
    QCOMPARE(messages::all(), QStringList{unwritable});
    QCOMPARE(newText(), QString("New+"));
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(content(languagefolder::file("Other.json")), languagefolder::marked("+"));
}

void TestLanguageFiles::defaultLanguageLiesAtTheRoot()
{
    if (QFile::exists("/language/English.json")) {
        QSKIP("This machine has a file there");
    }
    QSignalSpy told(&dialog(), &MainDialog::changeInstallationLanguage);
    dialog().loadDefaultLanguageJsonFile();
    QCOMPARE(messages::all(),
             QStringList{"MainDialog::loadDefaultLanguageJsonFile failed to open file: "
                         "\"/language/English.json\""});
    QCOMPARE(dialog().languageMap().size(), languagefolder::textCount());
    QCOMPARE(told.size(), 0);
}

CALORA_TEST_MAIN(TestLanguageFiles)
#include "tst_languagefiles.moc"
