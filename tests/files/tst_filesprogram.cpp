#include "files/program.h"

#include <QtTest>

// `calora-files`: what it takes, and how it ends.
class TestFilesProgram : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhereAFileIsNoJson_data();
    void tellsWhereAFileIsNoJson();
    void readsTheStandardInput();
    void whatSteersATerminalIsSpelled();
    void programsGetNothingThatSteers();
    void anOutputThatCannotBeWrittenIsTold_data();
    void anOutputThatCannotBeWrittenIsTold();
    void standsHostileFiles_data();
    void standsHostileFiles();
    void tellsWhatIsWrongWithTheCommandLine_data();
    void tellsWhatIsWrongWithTheCommandLine();

private:
    program::Folder folder;
};

void TestFilesProgram::tellsWhereAFileIsNoJson_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("trouble");

    QTest::newRow("empty") << QByteArray() << QStringLiteral("at line 1, column 1");
    QTest::newRow("a word") << QByteArray("{\n  \"product\": awhp\n}")
                            << QStringLiteral("at line 2, column 14");
    QTest::newRow("after letters beyond ASCII")
        << QByteArray("{\n  \"\xc3\xa9\xe2\x82\xac\": awhp\n}") << QStringLiteral("at line 2, column 9");
    QTest::newRow("cut off") << QByteArray(R"({"product": "awhp")") << QStringLiteral("is not JSON");
    QTest::newRow("a list") << QByteArray("[1, 2]") << QStringLiteral("is no settings file");
    QTest::newRow("not UTF-8") << QByteArray("{\"product\": \"\xff\xfe\"}") << QStringLiteral("is not JSON");
}

void TestFilesProgram::tellsWhereAFileIsNoJson()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, trouble);

    const program::Outcome outcome = program::run(
        {QStringLiteral("check"), folder.put(QStringLiteral("bad.json"), content)});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.out.contains(trouble), qPrintable(outcome.out));
}

void TestFilesProgram::readsTheStandardInput()
{
    const program::Outcome outcome = program::run({QStringLiteral("check"), QStringLiteral("-")},
                                                  program::complete().toJson());
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out, QStringLiteral("-: sound; the wizard would call it complete\n"));
}

void TestFilesProgram::whatSteersATerminalIsSpelled()
{
    const QString file = folder.put(
        QStringLiteral("steers.json"),
        documents::with(program::complete(),
                        {{QStringLiteral("SettingInfo.user.themeSet"), QStringLiteral("\x1b[2J\u202e\n")},
                         {QStringLiteral("SettingInfo.user.\x1b]0;x\x07"), 1}}));
    const program::Outcome outcome = program::run({QStringLiteral("check"), file});
    QVERIFY(!outcome.out.contains(QChar(0x1b)) && !outcome.out.contains(QChar(0x202e)));
    QVERIFY2(outcome.out.contains(QLatin1String("SettingInfo.user.\\u001b]0;x\\u0007")),
             qPrintable(outcome.out));
}

// JSON has signs of its own for them, so that what is read is the same.
void TestFilesProgram::programsGetNothingThatSteers()
{
    const QString steers = QStringLiteral("\u009b2J\u007f\u202e\u2028");
    const QString file = folder.put(
        QStringLiteral("steers.json"),
        documents::with(program::complete(), {{QStringLiteral("SettingInfo.user.") + steers, 1}}));
    for (const QStringList &command : {QStringList{QStringLiteral("check"), QStringLiteral("--no-pages")},
                                       {QStringLiteral("diff"), QStringLiteral("--default")}}) {
        const program::Outcome outcome = program::run(command + QStringList{QStringLiteral("--json"), file});
        for (const QChar each : steers) {
            QVERIFY(each == QLatin1Char('2') || each == QLatin1Char('J') || !outcome.out.contains(each));
        }
        const QJsonObject told = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
        const QJsonValue list = command.first() == QLatin1String("diff")
            ? told.value(QLatin1String("differences"))
            : told.value(QLatin1String("files"))[0][QLatin1String("findings")];
        QStringList paths;
        for (const auto &each : list.toArray()) {
            paths.append(each.toObject().value(QLatin1String("path")).toString());
        }
        QVERIFY2(paths.contains(QStringLiteral("SettingInfo.user.") + steers), qPrintable(outcome.out));
    }
}

void TestFilesProgram::anOutputThatCannotBeWrittenIsTold_data()
{
    QTest::addColumn<QString>("arguments");

    for (const char *arguments :
         {"check --no-pages plant.json", "check --json --no-pages plant.json plant.json",
          "diff --default plant.json", "diff --json --default plant.json", "report plant.json", "--help",
          "--version"}) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments);
    }
}

void TestFilesProgram::anOutputThatCannotBeWrittenIsTold()
{
    QFETCH(QString, arguments);
    const QString full = QStringLiteral("/dev/full");
    if (!QFile::exists(full) || QStandardPaths::findExecutable(QStringLiteral("sh")).isEmpty()) {
        QSKIP("There is no device without room, or no shell");
    }
    folder.put(QStringLiteral("plant.json"), program::complete());
    const QString shell = QStringLiteral("cd '%1' && '%2' %3 %4")
                              .arg(folder.path(QString()), program::name(), arguments);
    for (const QString &output : {QStringLiteral(">/dev/full"), QStringLiteral(">&-")}) {
        QProcess process;
        process.start(QStringLiteral("sh"), {QStringLiteral("-c"), shell.arg(output)});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QCOMPARE(process.readAllStandardError(), QByteArray("calora-files: the output can't be written\n"));
    }
    // Who reads no more is none of its concern.
    QProcess process;
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), shell.arg(QStringLiteral("| :"))});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

void TestFilesProgram::standsHostileFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("code");

    const QByteArray whole = program::complete().toJson(QJsonDocument::Compact);
    const auto with = [&whole](const QByteArray &more) { return whole.chopped(1) + "," + more + "}"; };
    QTest::newRow("10,000 levels") << with("\"x\":" + QByteArray(10000, '[') + QByteArray(10000, ']')) << 2;
    QTest::newRow("500 levels") << with("\"x\":" + QByteArray(500, '[') + QByteArray(500, ']')) << 0;
    QTest::newRow("a key of 1 MB") << with("\"" + QByteArray(1000000, 'k') + "\":1") << 0;
    QByteArray keys;
    for (int key = 0; key < 100000; ++key) {
        keys += "\"k" + QByteArray::number(key) + "\":0,";
    }
    QTest::newRow("100,000 keys") << with(keys.chopped(1)) << 0;
    QByteArray phone = whole;
    phone.replace(R"("phoneNumber":"-")", R"("phoneNumber":")" + QByteArray(3000000, '1') + '"');
    QTest::newRow("a telephone number of 3 MB") << phone << 1;
    QTest::newRow("zeros") << QByteArray(100000, '\0') << 2;
}

void TestFilesProgram::standsHostileFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(int, code);

    const program::Outcome outcome = program::run(
        {QStringLiteral("check"), folder.put(QStringLiteral("hostile.json"), content)});
    QCOMPARE(outcome.code, code);
    QVERIFY2(outcome.out.size() < 100000, qPrintable(outcome.out.left(1000)));
}

void TestFilesProgram::tellsWhatIsWrongWithTheCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("said");

    const auto row = [](const char *arguments, int code, const char *said) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                                 << code << QString::fromLatin1(said);
    };
    row("", 2, "Say check, diff or report");
    row("chek a.json", 2, "Say check, diff or report");
    row("check", 2, "which file?");
    row("diff a.json", 2, "two files");
    row("diff --default a.json b.json", 2, "one file");
    row("report", 2, "one file");
    row("check --nonsense a.json", 2, "Unknown option 'nonsense'");
    row("report --no-pages plant.json -o a.html", 2, "report has no option --no-pages");
    row("report --json plant.json", 2, "report has no option --json");
    row("diff --no-pages plant.json plant.json", 2, "diff has no option --no-pages");
    row("check --paths plant.json", 2, "check has no option --paths");
    row("check --default plant.json", 2, "check has no option --default");
    row("check -o a.html plant.json", 2, "check has no option --output");
    row("report plant.json -o -h", 2, "has to end in .html or .pdf");
    row("check -platform xcb plant.json", 2, "Unknown options");
    row("check diff", 0, "diff: sound; the wizard would call it complete");
    row("check --no-pages report", 2, "report: can't be opened");
    row("diff check --default", 2, "check: can't be opened");
    row("report diff", 0, "<!DOCTYPE html>");
    row("--help", 0, "calora-files check plant.json");
    row("check --help", 0, "calora-files check plant.json");
    row("--version", 0, "calora-files 1.0");
}

void TestFilesProgram::tellsWhatIsWrongWithTheCommandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, said);

    // Of files beside it, whose names are words of the command line.
    folder.put(QStringLiteral("plant.json"), program::complete());
    folder.put(QStringLiteral("diff"), program::complete());
    const program::Outcome outcome = program::run(arguments, {}, folder.path(QString()));
    QCOMPARE(outcome.code, code);
    QVERIFY2((outcome.out + outcome.err).contains(said), qPrintable(outcome.out + outcome.err));
}

QTEST_GUILESS_MAIN(TestFilesProgram)
#include "tst_filesprogram.moc"
