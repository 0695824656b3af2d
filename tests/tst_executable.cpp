#include "support/faults.h"
#include "support/languagefolder.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

// The executable as it is delivered, started from a copy of its folder and seen and driven from outside.

namespace {

/// All that the tool ever tells: from then on every message is discarded.
const QByteArray firstMessage = "main() release mode\n";

const QString own = QFileInfo(QStringLiteral(CALORA_EXECUTABLE)).fileName();

/// What a helper program prints.
QString ask(const QString &program, const QStringList &arguments, int timeout = 10000)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(timeout);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/// One run of the tool.
class Run
{
public:
    struct With {
        QStringList arguments;
        QMap<QString, QString> environment;
        QString workingDirectory;
    };

    Run(const QString &folder, const With &with)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // A Qt that knows of a journal tells that what it has to say, unless it writes to a terminal.
        environment.insert("QT_FORCE_STDERR_LOGGING", "1");
        environment.insert("QT_LOGGING_RULES", "*=false;default=true");
        environment.remove("QT_MESSAGE_PATTERN");
        for (auto variable = with.environment.begin(); variable != with.environment.end(); ++variable) {
            environment.insert(variable.key(), variable.value());
        }
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(with.workingDirectory.isEmpty() ? folder : with.workingDirectory);
        process.start(folder + '/' + own, with.arguments);
        process.waitForStarted();
        window = find("Calora configurator");
    }
    ~Run()
    {
        process.kill();
        process.waitForFinished();
    }

    bool isShown() const { return !window.isEmpty() && !window.contains('\n'); }

    QSize size() const
    {
        const QString told = ask("xdotool", {"getwindowgeometry", window});
        const auto match = QRegularExpression("Geometry: (\\d+)x(\\d+)").match(told);
        return {match.captured(1).toInt(), match.captured(2).toInt()};
    }

    QPoint place() const
    {
        const QString told = ask("xdotool", {"getwindowgeometry", window});
        const auto match = QRegularExpression("Position: (\\d+),(\\d+)").match(told);
        return {match.captured(1).toInt(), match.captured(2).toInt()};
    }

    QString property(const QString &name) const { return ask("xprop", {"-id", window, name}); }

    /// The window as it is seen, once it stands still.
    QImage picture() const
    {
        QImage before;
        for (int tries = 0; tries < 100; ++tries) {
            const QImage now = QGuiApplication::primaryScreen()->grabWindow(window.toULongLong()).toImage();
            if (now == before && now.pixelColor(300, 20) == QColor(Qt::white)) {
                return now;
            }
            before = now;
            QTest::qWait(150);
        }
        return before;
    }

    /// The picture of another window of the tool once it shows what is expected, or the last one: its cursor
    /// blinks.
    QImage pictureOf(const QString &title, const QImage &expected = {}) const
    {
        const QString other = find(title);
        QImage before;
        for (int tries = 0; tries < 60; ++tries) {
            QTest::qWait(100);
            const QImage now = other.isEmpty()
                ? QImage()
                : QGuiApplication::primaryScreen()->grabWindow(other.toULongLong()).toImage();
            if (!now.isNull() && now == (expected.isNull() ? before : expected)) {
                return now;
            }
            before = now;
        }
        return before;
    }

    void clickAt(int x, int y) const
    {
        ask("xdotool",
            {"mousemove", "--window", window, QString::number(x), QString::number(y), "click", "1"});
    }

    /// Asks the window to close, as a window manager does.
    void closeByTheWindowSystem() const
    {
        ask("xdotool", {"windowactivate", "--sync", window, "key", "--clearmodifiers", "alt+F4"});
    }

    /// The exit code, or -1 when the tool goes on or crashes.
    int exitCode()
    {
        const bool ended = process.state() == QProcess::NotRunning || process.waitForFinished(10000);
        return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    /// The files that the process has in its memory.
    QByteArray loaded() const
    {
        return testfiles::content(QStringLiteral("/proc/%1/maps").arg(process.processId()));
    }

    QByteArray standardOutput() { return process.readAllStandardOutput(); }
    QByteArray standardError() { return process.readAllStandardError(); }

private:
    /// The windows of that title, once there is one.
    QString find(const QString &title) const
    {
        return ask("xdotool",
                   {"search", "--sync", "--onlyvisible", "--all", "--pid",
                    QString::number(process.processId()), "--name", '^' + title + '$'},
                   20000);
    }

    QProcess process;
    QString window;
};

QMap<QString, QByteArray> contents(const QString &folder)
{
    QMap<QString, QByteArray> files;
    for (const QString &sub : {QString(), QStringLiteral("/language")}) {
        const QDir dir(folder + sub);
        for (const QString &name : dir.entryList(QDir::Files | QDir::Hidden)) {
            files.insert(sub + '/' + name, testfiles::content(dir.filePath(name)));
        }
    }
    return files;
}

// The middle of the close button: 32 wide, 8 from the right end of a title bar 40 high.
constexpr int closeX = 1440 - 8 - 16;
constexpr int closeY = 20;
// Within the button Open, the second one below.
constexpr int openX = 155;
constexpr int openY = 66;

} // namespace

class TestExecutable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void showsItsWindow();
    void isAWindowOfItsOwn();
    void opensListsAtTheirBoxes();
    void ignoresArguments_data();
    void ignoresArguments();
    void isNotScaled_data();
    void isNotScaled();
    void isNotScaledByTheDesktop();
    void hasNoDesktopsTheme_data();
    void hasNoDesktopsTheme();
    void findsItsFilesFromAnywhere();
    void runsWithoutItsFiles_data();
    void runsWithoutItsFiles();
    void endsByTheWindowSystem();
    void leavesItsFolderAsItIs();
    void runsInAReadOnlyFolder();
    void picksItsPlatform();
    void loadsNoOpenGl();

private:
    QMap<QString, QString> userWith(const QStringList &files) const;
    QString folder() const { return home->filePath("calora"); }

    std::unique_ptr<QTemporaryDir> home;
    QTemporaryDir userFolder;
    /// The file dialog without a desktop, over one settings file.
    QImage plainFiles;
    /// The window of a run with nothing special about it.
    QImage plain;
};

void TestExecutable::initTestCase()
{
    for (const char *program : {"xdotool", "xprop"}) {
        QVERIFY2(!QStandardPaths::findExecutable(program).isEmpty(), program);
    }
    init();
    Run run(folder(), {});
    QVERIFY(run.isShown());
    plain = run.picture();
    QVERIFY(plain.width() > 0);
}

// A copy of what is delivered: the executable, the fonts and the language folder.
void TestExecutable::init()
{
    home = std::make_unique<QTemporaryDir>();
    const QDir built = QFileInfo(QStringLiteral(CALORA_EXECUTABLE)).dir();
    QVERIFY(QDir().mkpath(folder() + "/language"));
    for (const QString &sub : {QStringLiteral("/"), QStringLiteral("/language/")}) {
        for (const QString &name : QDir(built.path() + sub).entryList(QDir::Files)) {
            QVERIFY(QFile::copy(built.path() + sub + name, folder() + sub + name));
        }
    }
    testfiles::put(folder() + "/language/language.ini", "English");
}

void TestExecutable::showsItsWindow()
{
    Run run(folder(), {});
    QVERIFY(run.isShown());
    QCOMPARE(run.size(), QSize(1440, 800));
    QCOMPARE(run.picture(), plain);
    // The name that is seen outside is the fixed one, not that of the file.
    QCOMPARE(run.property("WM_CLASS"),
             QString("WM_CLASS(STRING) = \"calorainstaller\", \"Calora configurator\""));
    run.clickAt(closeX, closeY);
    QCOMPARE(run.exitCode(), 0);
    QCOMPARE(run.standardOutput(), QByteArray());
    QCOMPARE(run.standardError(), firstMessage);
}

// A task bar and Alt+Tab leave out what is a dialog, or belongs to another window.
void TestExecutable::isAWindowOfItsOwn()
{
    Run run(folder(), {});
    QVERIFY(run.isShown());
    const QString type = run.property("_NET_WM_WINDOW_TYPE");
    QVERIFY2(type.endsWith("_NET_WM_WINDOW_TYPE_NORMAL"), qPrintable(type));
    QVERIFY2(!type.contains("DIALOG"), qPrintable(type));
    QCOMPARE(run.property("WM_TRANSIENT_FOR"), QString("WM_TRANSIENT_FOR:  not found."));
}

// Before the window was ever moved: window managers place a window without a frame where they like.
void TestExecutable::opensListsAtTheirBoxes()
{
    Run run(folder(), {});
    QVERIFY(run.isShown());
    run.picture();
    // New, two answers of step 1, steps 2 and 3, the tab User, the list of years.
    for (const QPoint &place : {QPoint(60, 67), QPoint(717, 226), QPoint(877, 288), QPoint(73, 300),
                                QPoint(73, 428), QPoint(658, 162), QPoint(770, 436)}) {
        run.clickAt(place.x(), place.y());
        QTest::qWait(300);
    }
    // The bar beside the item that is chosen, the first one.
    const QPoint bar = run.place() + QPoint(712, 465);
    const auto isThere = [&] {
        const QPixmap seen = QGuiApplication::primaryScreen()->grabWindow(0, bar.x(), bar.y(), 1, 1);
        return seen.toImage().pixelColor(0, 0) == QColor("#A50034");
    };
    QTRY_VERIFY(isThere());
}

void TestExecutable::ignoresArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("platform") << QStringList{"-platform", "offscreen"};
    QTest::newRow("no such platform") << QStringList{"-platform", "nothing"};
    QTest::newRow("help") << QStringList{"--help"};
    QTest::newRow("version") << QStringList{"-v", "--version"};
    QTest::newRow("a file") << QStringList{"a.json"};
    QTest::newRow("place and style") << QStringList{"-geometry", "500x400+0+0", "-style", "windows",
                                                    "-reverse"};
    QTest::newRow("style sheet and title") << QStringList{"-stylesheet", "a.json", "-qwindowtitle", "x"};
    QTest::newRow("another display") << QStringList{"-display", ":9999"};
}

void TestExecutable::ignoresArguments()
{
    QFETCH(QStringList, arguments);
    testfiles::put(folder() + "/a.json", "* { color: red; }");
    Run run(folder(), {arguments, {}, {}});
    QVERIFY(run.isShown());
    QCOMPARE(run.size(), QSize(1440, 800));
    QCOMPARE(run.picture(), plain);
    run.clickAt(closeX, closeY);
    QCOMPARE(run.exitCode(), 0);
    QCOMPARE(run.standardOutput(), QByteArray());
    QCOMPARE(run.standardError(), firstMessage);
}

void TestExecutable::isNotScaled_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("value");
    QTest::newRow("factor") << "QT_SCALE_FACTOR"
                            << "2";
    QTest::newRow("factor below one") << "QT_SCALE_FACTOR"
                                      << "0.5";
    QTest::newRow("factor of the screen") << "QT_SCREEN_SCALE_FACTORS"
                                          << "2";
    QTest::newRow("by the screen") << "QT_AUTO_SCREEN_SCALE_FACTOR"
                                   << "1";
    QTest::newRow("by the screen, newer") << "QT_ENABLE_HIGHDPI_SCALING"
                                          << "1";
    QTest::newRow("pixel ratio") << "QT_DEVICE_PIXEL_RATIO"
                                 << "2";
    QTest::newRow("size of the fonts") << "QT_FONT_DPI"
                                       << "192";
}

void TestExecutable::isNotScaled()
{
    QFETCH(QString, variable);
    QFETCH(QString, value);
    Run run(folder(), {{}, {{variable, value}}, {}});
    QVERIFY(run.isShown());
    QCOMPARE(run.size(), QSize(1440, 800));
    QCOMPARE(run.picture(), plain);
    QCOMPARE(run.standardError(), firstMessage);
}

void TestExecutable::isNotScaledByTheDesktop()
{
    ask("xprop", {"-root", "-f", "RESOURCE_MANAGER", "8s", "-set", "RESOURCE_MANAGER", "Xft.dpi:\t192\n"});
    QVERIFY(ask("xprop", {"-root", "RESOURCE_MANAGER"}).contains("192"));
    Run run(folder(), {});
    const QSize size = run.size();
    const QImage picture = run.picture();
    ask("xprop", {"-root", "-remove", "RESOURCE_MANAGER"});
    QCOMPARE(size, QSize(1440, 800));
    QCOMPARE(picture, plain);
}

/// A user who has these files, which are what a file dialog starts with.
QMap<QString, QString> TestExecutable::userWith(const QStringList &files) const
{
    const QString user = userFolder.path();
    QDir(user + "/Desktop").removeRecursively();
    QDir().mkpath(user + "/Desktop");
    for (const QString &name : files) {
        testfiles::put(user + "/Desktop/" + name, "{}");
        QFile file(user + "/Desktop/" + name);
        file.open(QIODevice::ReadWrite);
        file.setFileTime(QDateTime(QDate(2020, 1, 1), QTime(12, 0)), QFileDevice::FileModificationTime);
    }
    return {{"HOME", user}, {"XDG_CONFIG_HOME", user + "/.config"}};
}

void TestExecutable::hasNoDesktopsTheme_data()
{
    using Variables = QMap<QString, QString>;
    QTest::addColumn<Variables>("variables");
    QTest::newRow("GNOME") << Variables{{"XDG_CURRENT_DESKTOP", "GNOME"},
                                        {"DESKTOP_SESSION", "gnome"},
                                        {"GNOME_DESKTOP_SESSION_ID", "this-is-deprecated"}};
    QTest::newRow("GNOME, by its session") << Variables{{"DESKTOP_SESSION", "gnome"}};
    QTest::newRow("GNOME, by its number") << Variables{{"GNOME_DESKTOP_SESSION_ID", "1"}};
    QTest::newRow("KDE") << Variables{
        {"XDG_CURRENT_DESKTOP", "KDE"}, {"KDE_FULL_SESSION", "true"}, {"KDE_SESSION_VERSION", "5"}};
    QTest::newRow("theme of Qt") << Variables{{"QT_QPA_PLATFORMTHEME", "gtk3"}};
    QTest::newRow("style of Qt") << Variables{{"QT_STYLE_OVERRIDE", "windows"}};
}

// Its window and its file dialogs, with the files that they list, are what they are without a desktop.
void TestExecutable::hasNoDesktopsTheme()
{
    using Variables = QMap<QString, QString>;
    QFETCH(Variables, variables);
    const auto filesSeen = [this](const QStringList &files, Variables with, const QImage &expected = {}) {
        const Variables user = userWith(files);
        for (auto each = user.begin(); each != user.end(); ++each) {
            with.insert(each.key(), each.value());
        }
        Run run(folder(), {{}, with, {}});
        [&] { QCOMPARE(run.picture(), plain); }();
        run.clickAt(openX, openY);
        return run.pictureOf("Json File", expected);
    };
    if (plainFiles.isNull()) {
        plainFiles = filesSeen({"a.txt", "b.json"}, {});
        QVERIFY(!plainFiles.isNull());
        const QImage none = filesSeen({"a.txt"}, {});
        QVERIFY(none.size() == plainFiles.size() && none != plainFiles);
    }
    QCOMPARE(filesSeen({"a.txt", "b.json"}, variables, plainFiles), plainFiles);
}

void TestExecutable::findsItsFilesFromAnywhere()
{
    testfiles::put(folder() + "/language/language.ini", "Other");
    testfiles::put(folder() + "/language/Other.json", languagefolder::marked("~"));
    Run here(folder(), {});
    const QImage other = here.picture();
    QVERIFY(other != plain);
    Run there(folder(), {{}, {}, "/"});
    QVERIFY(there.isShown());
    QCOMPARE(there.picture(), other);
    // By a link too: the files lie beside the executable itself.
    QVERIFY(QDir().mkpath(home->filePath("links")));
    QVERIFY(QFile::link(folder() + '/' + own, home->filePath("links/" + own)));
    Run linked(home->filePath("links"), {});
    QVERIFY(linked.isShown());
    QCOMPARE(linked.picture(), other);
}

void TestExecutable::runsWithoutItsFiles_data()
{
    QTest::addColumn<QStringList>("missing");
    QTest::newRow("fonts") << QStringList{"NotoSans-Medium.ttf", "NotoSans-Bold.ttf", "NotoSans-Light.ttf",
                                          "NotoSans-Regular.ttf"};
    QTest::newRow("one font") << QStringList{"NotoSans-Medium.ttf"};
    QTest::newRow("language.ini") << QStringList{"language/language.ini"};
    QTest::newRow("English") << QStringList{"language/English.json"};
    QTest::newRow("language folder") << QStringList{"language/language.ini", "language/English.json",
                                                    "language"};
    QTest::newRow("everything") << QStringList{"NotoSans-Medium.ttf",
                                               "NotoSans-Bold.ttf",
                                               "NotoSans-Light.ttf",
                                               "NotoSans-Regular.ttf",
                                               "language/language.ini",
                                               "language/English.json",
                                               "language"};
}

void TestExecutable::runsWithoutItsFiles()
{
    QFETCH(QStringList, missing);
    for (const QString &name : missing) {
        QVERIFY(QFile::remove(folder() + '/' + name) || QDir(folder() + '/' + name).removeRecursively());
    }
    Run run(folder(), {});
    QVERIFY(run.isShown());
    QCOMPARE(run.size(), QSize(1440, 800));
    run.clickAt(closeX, closeY);
    QCOMPARE(run.exitCode(), 0);
    QCOMPARE(run.standardError(), firstMessage);
}

void TestExecutable::endsByTheWindowSystem()
{
    Run run(folder(), {});
    QVERIFY(run.isShown());
    run.picture();
    run.closeByTheWindowSystem();
    QCOMPARE(run.exitCode(), 0);
}

void TestExecutable::leavesItsFolderAsItIs()
{
    const auto before = contents(folder());
    QVERIFY(before.contains("/language/language.ini"));
    Run run(folder(), {});
    QVERIFY(run.isShown());
    run.clickAt(closeX, closeY);
    QCOMPARE(run.exitCode(), 0);
    QCOMPARE(contents(folder()), before);
}

void TestExecutable::runsInAReadOnlyFolder()
{
    const auto before = contents(folder());
    const faults::Fault fault = faults::readOnlyFileSystem(folder());
    if (!fault.holds) {
        QSKIP("This machine doesn't let the folder be mounted");
    }
    Run run(folder(), {});
    QVERIFY(run.isShown());
    QCOMPARE(run.picture(), plain);
    run.clickAt(closeX, closeY);
    QCOMPARE(run.exitCode(), 0);
    QCOMPARE(contents(folder()), before);
}

void TestExecutable::picksItsPlatform()
{
    Run run(folder(), {{}, {{"QT_QPA_PLATFORM", ""}}, {}});
    QVERIFY(run.isShown());
    QCOMPARE(run.picture(), plain);
    run.clickAt(closeX, closeY);
    QCOMPARE(run.exitCode(), 0);
}

void TestExecutable::loadsNoOpenGl()
{
    const Run run(folder(), {{}, {{"QT_XCB_GL_INTEGRATION", ""}}, {}});
    QVERIFY(run.isShown());
    const QByteArray loaded = run.loaded();
    QVERIFY(loaded.contains("libQt5Widgets"));
    QVERIFY(!loaded.contains("-glx-integration"));
}

int main(int argc, char *argv[])
{
    faults::isolate();
    QApplication application(argc, argv);
    TestExecutable tests;
    return QTest::qExec(&tests, argc, argv);
}
#include "tst_executable.moc"
