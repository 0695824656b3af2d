#include "support/documents.h"
#include "support/languagefolder.h"
#include "support/window.h"

#include "document/files.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>
#include <cstdio>

// The tool is ended from outside, also amid a save, and two of them have one language folder.

namespace {

using testfiles::content;
using testfiles::put;

const QString executable = QStringLiteral(CALORA_EXECUTABLE);

/// What the saves of this test write by turns.
QList<QByteArray> documentsByTurns()
{
    return {documents::standard("R32").toJson(QJsonDocument::Compact),
            documents::standard("R410").toJson(QJsonDocument::Compact)};
}

QList<QByteArray> namesByTurns() { return {"English", "Nederlands"}; }

/// Whether each byte stands there in one of the names, or is one that the file system fills up with.
bool isMadeOfNames(const QByteArray &found)
{
    const QList<QByteArray> names = namesByTurns();
    for (int index = 0; index < found.size(); ++index) {
        const char byte = found[index];
        const auto has = [=](const QByteArray &name) { return index < name.size() && name[index] == byte; };
        if (byte != '\0' && !std::any_of(names.begin(), names.end(), has)) {
            return false;
        }
    }
    return true;
}

QString text(const Window &window, const char *name)
{
    return Window::find(&window.dialog, name)->property("text").toString();
}

/// A program that writes a file again and again.
class Writer : public QProcess
{
public:
    Writer(const QString &path, const char *what)
    {
        start(QCoreApplication::applicationFilePath(), {"write", path, what});
        // Its line tells that the file is there.
        if (!waitForReadyRead(20000)) {
            qFatal("It doesn't write");
        }
    }
    ~Writer() override
    {
        kill();
        waitForFinished();
    }
};

/// What the Writer runs.
int writeForEver(const QString &path, const QString &what)
{
    const QList<QByteArray> contents = what == "names" ? namesByTurns() : documentsByTurns();
    if (!files::replaceContent(path, contents.first())) {
        return 1;
    }
    std::puts("writing");
    static_cast<void>(std::fflush(stdout));
    for (int turn = 1; files::replaceContent(path, contents[turn % 2]); ++turn) {}
    return 1;
}

/// The tool as it is delivered, from its main function on.
class Tool : public QProcess
{
public:
    Tool()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_FORCE_STDERR_LOGGING", "1");
        setProcessEnvironment(environment);
        setReadChannel(StandardError);
        start(executable, {});
        while (!readAllStandardError().contains("main() release mode") && waitForReadyRead(20000)) {}
    }
    ~Tool() override
    {
        kill();
        waitForFinished();
    }

protected:
    // Whoever runs the tests may have them ignored.
    void setupChildProcess() override
    {
        for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
            static_cast<void>(std::signal(signal, SIG_DFL));
        }
    }
};

} // namespace

class TestInterruptions : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { languagefolder::restore(); }

    void killedAmidASave();
    void languageIsReadAmidAChoice();
    void startsAmidAChoice();
    void lastChoiceCounts();
    void signalsEndTheTool_data();
    void signalsEndTheTool();

private:
    QTemporaryDir folder;
};

// The old document isn't lost for another one: the file is empty, or one of the two documents, or its
// beginning. CALORA_KILLS tells how often.
void TestInterruptions::killedAmidASave()
{
    const int kills = qEnvironmentVariableIsSet("CALORA_KILLS") ? qEnvironmentVariableIntValue("CALORA_KILLS")
                                                                : 20;
    const QString path = folder.filePath("a.json");
    int empty = 0;
    int whole = 0;
    for (int number = 0; number < kills; ++number) {
        {
            Writer writer(path, "documents");
            const qint64 moment = QRandomGenerator::global()->bounded(3000000);
            QElapsedTimer waited;
            for (waited.start(); waited.nsecsElapsed() < moment;) {}
        }
        const QByteArray found = content(path);
        const QList<QByteArray> documents = documentsByTurns();
        QVERIFY(documents[0].startsWith(found) || documents[1].startsWith(found));
        empty += found.isEmpty() ? 1 : 0;
        whole += documents.contains(found) ? 1 : 0;
    }
    std::printf("killed %d times: %d times empty, %d times cut off, %d times whole\n", kills, empty,
                kills - empty - whole, whole);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"a.json"});
}

// Another start finds one of the names, or for an instant none. Once in a great while the file system shows
// it the one name written over the other.
void TestInterruptions::languageIsReadAmidAChoice()
{
    constexpr int reads = 20000;
    const QString path = folder.filePath("language.ini");
    const QList<QByteArray> names = namesByTurns();
    int empty = 0;
    int whole = 0;
    const Writer writer(path, "names");
    for (int number = 0; number < reads; ++number) {
        const QByteArray found = files::read(path).value();
        QVERIFY2(isMadeOfNames(found), found.constData());
        empty += found.isEmpty() ? 1 : 0;
        whole += names.contains(found) ? 1 : 0;
    }
    std::printf("read %d times: %d times empty, %d times mixed, %d times whole\n", reads, empty,
                reads - empty - whole, whole);
}

// It shows the texts of its forms until a language is chosen, and the next start is a usual one.
void TestInterruptions::startsAmidAChoice()
{
    put(languagefolder::iniPath(), "");
    {
        const Window window;
        QCOMPARE(text(window, "labelCurrentLanguage"), QString());
        QCOMPARE(text(window, "labelSlide1"), QString("Product Selection"));
        QVERIFY(window.dialog.languageMap().isEmpty());
        QVERIFY(messages::contain("MainDialog::loadLanguageData failed to open file: "
                                  + testfiles::quoted(languagefolder::file(".json"))));
    }
    QCOMPARE(content(languagefolder::iniPath()), QByteArray());
    put(languagefolder::iniPath(), "English");
    const Window window;
    QCOMPARE(text(window, "labelCurrentLanguage"), QString("English"));
    QCOMPARE(window.dialog.languageMap().size(), languagefolder::textCount());
}

// Another instance chooses while this one runs, which keeps its own language.
void TestInterruptions::lastChoiceCounts()
{
    put(languagefolder::file("Other.json"), languagefolder::marked("+"));
    {
        const Window window;
        QVERIFY(files::replaceContent(languagefolder::iniPath(), "Other"));
        QTest::qWait(0);
        QCOMPARE(text(window, "labelCurrentLanguage"), QString("English"));
        QCOMPARE(text(window, "newButton"), QString("New"));
    }
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("Other"));
    const Window window;
    QCOMPARE(text(window, "newButton"), QString("New+"));
}

void TestInterruptions::signalsEndTheTool_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
    QTest::newRow("SIGINT") << SIGINT;
}

// At once, by the signal itself: nothing is asked, and nothing is saved.
void TestInterruptions::signalsEndTheTool()
{
    QFETCH(int, signal);
    Tool tool;
    QCOMPARE(tool.state(), QProcess::Running);
    QCOMPARE(::kill(static_cast<pid_t>(tool.processId()), signal), 0);
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.exitStatus(), QProcess::CrashExit);
    QCOMPARE(tool.exitCode(), signal);
}

int main(int argc, char *argv[])
{
    if (argc == 4 && QByteArray(argv[1]) == "write") {
        return writeForEver(QString::fromLocal8Bit(argv[2]), QString::fromLatin1(argv[3]));
    }
    QApplication application(argc, argv);
    TestInterruptions tests;
    return runTests(&tests, argc, argv);
}
#include "tst_interruptions.moc"
