#include "injection/injection.h"
#include "support/filefaults.h"
#include "support/languagefolder.h"

#include "languages/languagemenu.h"
#include "languages/userlanguageeditpopup.h"

#include <QJsonObject>
#include <QListWidget>
#include <QSet>

#include <cerrno>
#include <cstdio>

// Each call on a file fails once, in each thing that the tool does with files: the first, the second, until
// one run is left alone. Whatever fails, the tool goes on as it is told to.

namespace {

using injection::Fault;
using testfiles::content;
using testfiles::put;
using testfiles::quoted;

/// What a file holds after a write of `whole` whose `failed` call failed.
QByteArray left(const QString &failed, const Fault &fault, const QByteArray &before, const QByteArray &whole)
{
    const QString call = failed.section(' ', 0, 0);
    if (call == "open") {
        return before;
    }
    if (call == "cut") {
        return before == "(none)" ? QByteArray() : before;
    }
    return call == "write" ? whole.left(fault.half ? whole.size() / 2 : 0) : whole;
}

QString loaded(const QString &name)
{
    return "MainDialog::loadLanguageData path: " + quoted(languagefolder::file(name + ".json"));
}

const QString unreadableName = QStringLiteral("MainDialog::loadLanguageData failed to open file:");
const QString unwritableName = QStringLiteral("LanguageMenu::on_listWidget_itemClicked failed to open file:");

QString unreadable(const QString &name)
{
    return unreadableName + ' ' + quoted(languagefolder::file(name + ".json"));
}

QStringList languageLog()
{
    return messages::all().filter(
        QRegularExpression("^(UserLanguageEditPopup|LanguageMenu|MainDialog::load)"));
}

/// What shows of a language: the remembered name, the name shown, a text of the window and one of a page.
using Texts = QStringList;

Texts all(const QString &name, const QString &mark)
{
    return {name, name, "New" + mark, "Product type" + mark};
}

/// The name of a language that can't be read is shown, the texts stay.
Texts onlyTheName(const QString &name) { return {name, name, "New", "Product type"}; }

struct Outcome {
    Texts shown;
    QStringList log;
};

const QString iniCall = QStringLiteral(" language/language.ini");

} // namespace

Q_DECLARE_METATYPE(Fault)

class TestInjection : public FileFaultTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void newAndSave_data() { faultRows(); }
    void newAndSave();
    void openAndSave_data() { faultRows(); }
    void openAndSave();
    void languageIsChosen_data() { faultRows(); }
    void languageIsChosen();
    void languageIsTakenIn_data() { faultRows(); }
    void languageIsTakenIn();
    void languageIsMade_data() { faultRows(); }
    void languageIsMade();

private:
    struct Steps {
        QString folder;
        /// Goes back to where the action starts.
        std::function<void()> reset;
        std::function<void()> act;
        /// What is to be after `failed` failed, or after all went well.
        std::function<void(const QString &failed)> verify;
    };

    static void faultRows();
    void eachCallFails(const Steps &steps);
    void verifyDocument() const;
    void verifySave(const QString &failed, const QByteArray &before);
    void useEnglish();
    Texts shown() const;
    LanguageMenu *menu() const { return window->members().languageMenuWidget; }
    QListWidget *languages() const { return Window::find<QListWidget>(menu(), "listWidget"); }
    QSet<QByteArray> mayBeCopied(const QString &failed, const QByteArray &former,
                                 const QByteArray &whole) const;
    Outcome afterMaking(const QString &failed) const;

    Fault fault;
    /// The calls of the run that was left alone.
    QStringList calls;
    QJsonDocument document;
    QString path;
    int injected = 0;
};

void TestInjection::initTestCase()
{
    DocumentWindow::useDesktopIn(home);
    QDir().mkpath(QCoreApplication::applicationDirPath() + "/elsewhere");
    QDir().mkpath(QCoreApplication::applicationDirPath() + "/temporary");
    qputenv("TMPDIR", QFile::encodeName(QCoreApplication::applicationDirPath() + "/temporary"));
}

void TestInjection::init()
{
    languagefolder::restore();
    put(languagefolder::file("Other.json"), languagefolder::marked("+"));
    start();
    window->dialog.openNewJsonFile("R32");
    window->completeSteps();
    document = window->dialog.document();
    path = window->members().settings.filePath;
    if (QTest::currentDataTag() != nullptr) {
        fault = *static_cast<Fault *>(QTest::qData("fault", qMetaTypeId<Fault>()));
    }
}

void TestInjection::cleanup()
{
    end();
    languagefolder::restore();
}

void TestInjection::cleanupTestCase()
{
    for (const char *name : {"elsewhere", "temporary"}) {
        QDir(QCoreApplication::applicationDirPath() + '/' + name).removeRecursively();
    }
    std::printf("%d faults injected\n", injected);
}

void TestInjection::faultRows()
{
    QTest::addColumn<Fault>("fault");
    QTest::newRow("no room") << Fault{ENOSPC, false};
    QTest::newRow("room for a half") << Fault{ENOSPC, true};
    QTest::newRow("fault of the disk") << Fault{EIO, false};
    QTest::newRow("not allowed") << Fault{EACCES, false};
}

void TestInjection::eachCallFails(const Steps &steps)
{
    QString failed;
    int number = 0;
    do {
        steps.reset();
        messages::clear();
        {
            const injection::Watch watch(steps.folder, ++number, fault);
            steps.act();
            failed = watch.failed();
            calls = watch.calls();
        }
        injected += failed.isEmpty() ? 0 : 1;
        steps.verify(failed);
        if (QTest::currentTestFailed()) {
            qWarning("after %s", qPrintable(failed));
            return;
        }
    } while (!failed.isEmpty() && number < 100);
    QVERIFY(failed.isEmpty());
    QVERIFY(number > 1);
}

void TestInjection::verifyDocument() const
{
    QCOMPARE(window->dialog.document(), document);
    QCOMPARE(window->members().settings.filePath, path);
    QVERIFY(window->dialog.isVisible());
}

// The name is taken, the log tells, and the next Save writes the file without asking.
void TestInjection::verifySave(const QString &failed, const QByteArray &before)
{
    const QString finished = "MainDialog::on_saveButton_clicked save file finished " + quoted(file());
    const QString warning = "MainDialog::saveJsonFile: " + quoted(file());
    const bool isWritten = failed.isEmpty() || failed.contains("read");
    QCOMPARE(DocumentWindow::told().mid(DocumentWindow::told().size() - (isWritten ? 1 : 2)),
             isWritten ? QStringList{finished} : (QStringList{warning, finished}));
    QCOMPARE(DocumentWindow::told().count(warning), isWritten ? 0 : 1);
    QCOMPARE(content(file()), left(failed, fault, before, compact(document)));
    QVERIFY(!window->members().settings.isNewFile);
    path = file();
    verifyDocument();
    QVERIFY(window->save(QString()).title.isEmpty());
    QCOMPARE(content(file()), compact(document));
}

void TestInjection::newAndSave()
{
    const auto reset = [this] {
        QFile::remove(file());
        window->dialog.openNewJsonFile("R32");
        window->completeSteps();
    };
    eachCallFails({folder(), reset, [this] { window->save(file()); },
                   [this](const QString &failed) { verifySave(failed, "(none)"); }});
    // Nothing comes between cutting and writing.
    QCOMPARE(calls, (QStringList{"open a.json", "cut a.json", "write a.json", "close a.json"}));
}

void TestInjection::openAndSave()
{
    const QByteArray before = QJsonDocument::fromJson(small()).toJson();
    const QJsonDocument former = document;
    const auto reset = [&] {
        put(file(), before);
        window->dialog.openNewJsonFile("R32");
        window->completeSteps();
        path = window->members().settings.filePath;
    };
    const auto openAndSave = [this] {
        window->open(file());
        if (window->members().settings.filePath == file()) {
            window->completeSteps();
            window->save(QString());
        }
    };
    const auto verify = [&](const QString &failed) {
        if (failed.startsWith("open to read")) {
            document = former;
            verifyDocument();
            QVERIFY(window->members().settings.isNewFile);
            QVERIFY(messages::contain("MainDialog::loadJsonData failed to open file: " + quoted(file())));
            QCOMPARE(content(file()), before);
            return;
        }
        document = QJsonDocument::fromJson(small());
        verifySave(failed, before);
    };
    eachCallFails({folder(), reset, openAndSave, verify});
    QCOMPARE(calls,
             (QStringList{"open to read a.json", "close after reading a.json", "open a.json", "cut a.json",
                          "write a.json", "close a.json"}));
}

void TestInjection::useEnglish()
{
    put(languagefolder::iniPath(), "English");
    window->dialog.loadLanguageData(languagefolder::iniPath());
}

Texts TestInjection::shown() const
{
    const auto text = [this](const char *name) {
        return Window::find(&window->dialog, name)->property("text").toString();
    };
    return {QString::fromUtf8(content(languagefolder::iniPath())), text("labelCurrentLanguage"),
            text("newButton"), text("labelProductType")};
}

// The name is read back from the file, so what is in it is what comes.
void TestInjection::languageIsChosen()
{
    const QString cut = fault.half ? "Ot" : "";
    const Outcome chosen{all("Other", "+"), {loaded("Other")}};
    const Outcome kept{all("English", ""), {unwritableName, loaded("English")}};
    const QMap<QString, Outcome> outcomes{
        {"", chosen},
        {"open" + iniCall, kept},
        {"cut" + iniCall, kept},
        {"write" + iniCall, {onlyTheName(cut), {unwritableName, loaded(cut), unreadable(cut)}}},
        {"close" + iniCall, {chosen.shown, {unwritableName, loaded("Other")}}},
        {"open to read" + iniCall, {onlyTheName("Other"), {unreadableName}}},
        {"close after reading" + iniCall, chosen},
        {"open to read language/Other.json", {onlyTheName("Other"), {loaded("Other"), unreadable("Other")}}},
        {"close after reading language/Other.json", chosen}};
    const auto choose = [this] {
        Window::click(&window->dialog, "languageCombobox");
        Window::click(languages()->itemWidget(languages()->item(1)), "labelLanguage");
    };
    const auto verify = [&](const QString &failed) {
        QVERIFY2(outcomes.contains(failed), qPrintable(failed));
        QCOMPARE(shown(), outcomes[failed].shown);
        QCOMPARE(languageLog(), outcomes[failed].log);
        QVERIFY(!menu()->isVisible());
        verifyDocument();
    };
    eachCallFails({QCoreApplication::applicationDirPath(), [this] { useEnglish(); }, choose, verify});
    QCOMPARE(calls,
             (QStringList{"open" + iniCall, "cut" + iniCall, "write" + iniCall, "close" + iniCall,
                          "open to read" + iniCall, "close after reading" + iniCall,
                          "open to read language/Other.json", "close after reading language/Other.json"}));
}

// What becomes of the copy isn't looked at: the former file may stay, or be gone and the new one not there.
QSet<QByteArray> TestInjection::mayBeCopied(const QString &failed, const QByteArray &former,
                                            const QByteArray &whole) const
{
    if (failed == "unlink language/Third.json" || failed == "open to read elsewhere/Third.json") {
        return {former};
    }
    if (failed == "open to read elsewhere/Third.json again" || failed == "link language/Third.json") {
        return {"(none)"};
    }
    const bool isOwn = failed.isEmpty() || failed.endsWith(iniCall) || failed.contains("elsewhere");
    return isOwn ? QSet<QByteArray>{whole} : QSet<QByteArray>{whole, "(none)"};
}

// What is taken in is in force, unless it can't be read.
void TestInjection::languageIsTakenIn()
{
    const QString source = QCoreApplication::applicationDirPath() + "/elsewhere/Third.json";
    const QString target = languagefolder::file("Third.json");
    const QByteArray former = languagefolder::marked("-");
    const QByteArray whole = languagefolder::marked("*");
    put(source, whole);
    const auto reset = [&] {
        put(target, former);
        useEnglish();
    };
    const Outcome unread{all("English", ""),
                         {"MainDialog::loadLanguageAnotherPath failed to open file: " + quoted(source)}};
    const auto remembered = [&](const QString &failed) {
        return left(failed.endsWith(iniCall) ? failed : QString(), fault, "English", "Third");
    };
    const auto verify = [&](const QString &failed) {
        const QString named = failed.endsWith(iniCall) ? "English" : "Third";
        const Outcome taken{{remembered(failed), named, "New*", "Product type*"},
                            named == "Third" ? QStringList() : QStringList{unwritableName}};
        const Outcome &outcome = failed == "open to read elsewhere/Third.json" ? unread : taken;
        QCOMPARE(shown(), outcome.shown);
        QCOMPARE(languageLog(), outcome.log);
        QVERIFY(mayBeCopied(failed, former, whole).contains(content(target)));
        verifyDocument();
    };
    // Without the file dialog, which is what would take most of the time.
    const auto takeIn = [&] { window->dialog.loadLanguageAnotherPath(source); };
    eachCallFails({QCoreApplication::applicationDirPath(), reset, takeIn, verify});
    // By which of them is up to the file system.
    QVERIFY(calls.contains("link language/Third.json") || calls.contains("rename language/Third.json"));
    QCOMPARE(QDir(languagefolder::path()).entryList(QDir::Files),
             (QStringList{"English.json", "language.ini", "Other.json", "Third.json"}));
}

Outcome TestInjection::afterMaking(const QString &failed) const
{
    const QString cut = fault.half ? "Ou" : "";
    const Outcome made{all("Ours", "!"), {loaded("Ours")}};
    const Outcome forgotten{all("English", ""), {unwritableName, loaded("English")}};
    // The window has its own texts from the editor before the language is loaded.
    const auto halfMade = [](const QString &name) { return Texts{name, name, "New!", "Product type"}; };
    const QMap<QString, Outcome> outcomes{
        {"", made},
        {"open" + iniCall, forgotten},
        {"cut" + iniCall, forgotten},
        {"write" + iniCall, {halfMade(cut), {unwritableName, loaded(cut), unreadable(cut)}}},
        {"close" + iniCall, {made.shown, {unwritableName, loaded("Ours")}}},
        {"open to read" + iniCall, {halfMade("Ours"), {unreadableName}}},
        {"close after reading" + iniCall, made},
        {"open to read language/Ours.json", {halfMade("Ours"), {loaded("Ours"), unreadable("Ours")}}},
        {"close after reading language/Ours.json", made}};
    const QString slot = "UserLanguageEditPopup::on_saveButton_clicked ";
    const QString file = quoted(languagefolder::file("Ours.json"));
    Outcome outcome = outcomes.value(failed, {all("English", ""), {slot + "file open failed: " + file}});
    outcome.log.prepend(slot + "saveFilePath: " + file);
    return outcome;
}

// While its file isn't written whole, the editor stays open, and what was typed is in force.
void TestInjection::languageIsMade()
{
    const QString file = languagefolder::file("Ours.json");
    // A language of few texts: an editor takes longest for its rows.
    put(languagefolder::file("English.json"), R"({"New": "New", "Producttype": "Product type"})");
    const QJsonObject texts{{"New", "New!"}, {"Producttype", "Product type!"}};
    const QByteArray whole = QJsonDocument(texts).toJson();
    UserLanguageEditPopup editor;
    editor.setNewLanguage(true);
    const auto verify = [&](const QString &failed) {
        const bool isWritten = !failed.endsWith("Ours.json") || failed.contains("read");
        const Outcome outcome = afterMaking(failed);
        QCOMPARE(shown(), outcome.shown);
        QCOMPARE(languageLog(), outcome.log);
        QCOMPARE(content(file), left(isWritten ? QString() : failed, fault, "(none)", whole));
        QCOMPARE(editor.isVisible(), !isWritten);
        QCOMPARE(languages()->count(), isWritten ? 3 : 2);
        QCOMPARE(QJsonObject::fromVariantMap(window->dialog.languageMap()) == texts,
                 !outcome.log.contains(loaded("English")));
        verifyDocument();
    };
    const auto reset = [&] {
        QFile::remove(file);
        useEnglish();
        window->dialog.rebuildLanguageMenu();
        window->dialog.setLanguageSnapshot(QJsonDocument(texts));
        editor.show();
    };
    const auto save = [&] { filedialogs::answer([&editor] { Window::click(&editor, "saveButton"); }, file); };
    eachCallFails({QCoreApplication::applicationDirPath(), reset, save, verify});
    QCOMPARE(calls,
             (QStringList{"open language/Ours.json", "cut language/Ours.json", "write language/Ours.json",
                          "close language/Ours.json", "open" + iniCall, "cut" + iniCall, "write" + iniCall,
                          "close" + iniCall, "open to read" + iniCall, "close after reading" + iniCall,
                          "open to read language/Ours.json", "close after reading language/Ours.json"}));
}

CALORA_TEST_MAIN(TestInjection)
#include "tst_injection.moc"
