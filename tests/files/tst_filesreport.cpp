#include "files/program.h"

#include <QtTest>

namespace {

QJsonDocument plant()
{
    return documents::with(
        documents::standard(QStringLiteral("R32")),
        {{QStringLiteral("SettingInfo.user.DateInfo.year"), 2026},
         {QStringLiteral("SettingInfo.user.DateInfo.month"), 4},
         {QStringLiteral("SettingInfo.user.DateInfo.mday"), 9},
         {QStringLiteral("SettingInfo.svc.svcContact.company"), QStringLiteral("Warm & Co")},
         {QStringLiteral("SettingInfo.svc.svcContact.installerName"), QStringLiteral("A. Berger")},
         {QStringLiteral("SettingInfo.svc.svcContact.phoneNumber"), QStringLiteral("030-12345")},
         {QStringLiteral("IduFuncList.is_cool"), QStringLiteral("SET")},
         {QStringLiteral("IduFuncList.isSeasonalAuto"), QStringLiteral("SET")}});
}

program::Outcome report(const QStringList &arguments)
{
    return program::run(QStringList{QStringLiteral("report")} + arguments);
}

/// The page's texts, each on a line.
QStringList lines(const QString &html)
{
    QString text = html.section(QStringLiteral("<body>"), 1);
    text.replace(QRegularExpression(QStringLiteral("</(td|p|h1|h2)>")), QStringLiteral("\n"));
    text.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    text.replace(QLatin1String("&nbsp;"), QLatin1String(" "))
        .replace(QLatin1String("&amp;"), QLatin1String("&"));
    QStringList all;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        if (!line.trimmed().isEmpty()) {
            all.append(line.trimmed());
        }
    }
    return all;
}

QByteArray utf16(const QString &text)
{
    QByteArray bytes;
    for (const QChar each : text) {
        bytes += static_cast<char>(each.row());
        bytes += static_cast<char>(each.cell());
    }
    return bytes;
}

/// The line after the one that is `caption`.
QString after(const QStringList &all, const QString &caption) { return all.value(all.indexOf(caption) + 1); }

} // namespace

// `calora-files report`: what stands on the sheet.
class TestFilesReport : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatWasSet();
    void drawsTheSwitches();
    void marksWhatDiffersFromTheDefaults();
    void marksTheHalfOfTheDay_data();
    void marksTheHalfOfTheDay();
    void whatIsMissingIsADash();
    void longTextsAreCut();
    void markupOfAFileIsText();
    void speaksEachLanguage();
    void asksForNothingFromElsewhere();
    void aPdfIsOneSheet();
    void aPdfOfTheStandardInputIsCalledAReport();
    void tellsWhatCannotBeRead();
    void tellsWhatCannotBeWritten();
    void spoilsNoFile_data();
    void spoilsNoFile();

private:
    program::Folder folder;
};

void TestFilesReport::tellsWhatWasSet()
{
    const QStringList all = lines(report({folder.put(QStringLiteral("plant.json"), plant())}).out);
    QCOMPARE(all.first(), QStringLiteral("Commissioning report"));
    QCOMPARE(after(all, QStringLiteral("Product type")), QStringLiteral("Calora"));
    QCOMPARE(after(all, QStringLiteral("Refrigerant type")), QStringLiteral("R32"));
    QCOMPARE(after(all, QStringLiteral("Date")), QStringLiteral("2026-04-09"));
    QCOMPARE(after(all, QStringLiteral("Service contact")),
             QStringLiteral("Warm & Co, A. Berger, 030-12345"));
    QCOMPARE(after(all, QStringLiteral("Temp. limitation (Constant mode), Water temp., Max")),
             QStringLiteral("24°C"));
    // With heating and cooling the automatic mode is the seasonal one.
    QVERIFY(all.contains(QStringLiteral("Seasonal auto mode")));
    QVERIFY(all.filter(QRegularExpression(QStringLiteral("^Outdoor temp dependent mode"))).isEmpty());
    for (const char *place : {"Place, date", "Installer's signature", "Customer's signature"}) {
        QVERIFY2(all.contains(QString::fromLatin1(place))
                     || all.contains(
                         QString::fromLatin1(place).replace(QLatin1Char('\''), QLatin1String("&#39;"))),
                 place);
    }
    const QString fahrenheit =
        report({QStringLiteral("--fahrenheit"), folder.path(QStringLiteral("plant.json"))}).out;
    QVERIFY(fahrenheit.contains(QStringLiteral("°F</td>"))
            && !fahrenheit.contains(QStringLiteral("°C</td>")));
}

// Heating and cooling turns switch 4 of bank 2 on, a tank without a solar kit switch 3; the flow switch while
// the pump runs is switch 5.
void TestFilesReport::drawsTheSwitches()
{
    const QJsonDocument document = documents::with(
        plant(),
        {{QStringLiteral("IduFuncList.is_hotwater"), QStringLiteral("SET")},
         {QStringLiteral("IduFuncList.is_sun"), QStringLiteral("CLR")},
         {QStringLiteral("IduFuncList.is_boosterht_onlyMode"), QStringLiteral("CLR")},
         {QStringLiteral("IduFuncList.is_flow_switch"), QStringLiteral("SET")},
         {QStringLiteral("IduFuncList.is_heater1"), QStringLiteral("CLR")},
         {QStringLiteral("IduFuncList.is_heater2"), QStringLiteral("CLR")}});
    const QString html = report({folder.put(QStringLiteral("plant.json"), document)}).out;
    const QString bank = html.section(QStringLiteral("class=\"bank\""), 2, 2);
    QVERIFY(bank.contains(QStringLiteral("SW2")));
    const QStringList knobs =
        bank.section(QStringLiteral("</tr>"), 0, 0).split(QStringLiteral("bgcolor=\"")).mid(1);
    QStringList on;
    for (int index = 0; index < knobs.size(); ++index) {
        if (knobs.at(index).startsWith(QLatin1String("#a50034"))) {
            on.append(QString::number(index + 1));
        }
    }
    QCOMPARE(knobs.size(), 8);
    QCOMPARE(on, (QStringList{QStringLiteral("3"), QStringLiteral("4"), QStringLiteral("5")}));
}

void TestFilesReport::marksWhatDiffersFromTheDefaults()
{
    const QJsonDocument document = documents::with(
        plant(), {{QStringLiteral("SettingInfo.user.themeSet"), QStringLiteral("black")}});
    const QStringList all = lines(report({folder.put(QStringLiteral("plant.json"), document)}).out);
    QCOMPARE(after(all, QStringLiteral("Display theme")), QStringLiteral("• Black (White)"));
    QCOMPARE(after(all, QStringLiteral("Operation mode")),
             QStringLiteral("• Heating and Cooling (Heating only)"));
    QCOMPARE(after(all, QStringLiteral("Temperature unit")), QStringLiteral("Celsius"));
}

void TestFilesReport::marksTheHalfOfTheDay_data()
{
    QTest::addColumn<QString>("half");
    QTest::addColumn<QString>("told");

    // Silent mode ends at six in the morning by default.
    QTest::newRow("as by default") << "AM"
                                   << "06";
    QTest::newRow("the other half") << "PM"
                                    << "• 18 (06)";
}

void TestFilesReport::marksTheHalfOfTheDay()
{
    QFETCH(QString, half);
    QFETCH(QString, told);

    const QString timer = QStringLiteral("SettingInfo.func.silentTimer.");
    const QString file = folder.put(QStringLiteral("plant.json"),
                                    documents::with(plant(),
                                                    {{timer + QStringLiteral("set"), QStringLiteral("SET")},
                                                     {timer + QStringLiteral("end.ampm"), half}}));
    QCOMPARE(after(lines(report({file}).out), QStringLiteral("Silent mode, End time, Hour")), told);
}

void TestFilesReport::whatIsMissingIsADash()
{
    const QString contact = QStringLiteral("SettingInfo.svc.svcContact.");
    const QString file = folder.put(
        QStringLiteral("plant.json"),
        documents::with(plant(),
                        {{QStringLiteral("SettingInfo.user.themeSet"), QVariant()},
                         {contact + QStringLiteral("company"), QVariant()},
                         {contact + QStringLiteral("phoneNumber"), QString()}}));
    const QStringList all = lines(report({file}).out);
    QCOMPARE(after(all, QStringLiteral("Display theme")), QStringLiteral("• – (White)"));
    QCOMPARE(after(all, QStringLiteral("Service contact")), QStringLiteral("–, A. Berger, –"));
    const QString unset = folder.put(
        QStringLiteral("unset.json"),
        documents::with(plant(),
                        {{QStringLiteral("SettingInfo.user.summerTime.enable"), QStringLiteral("SET")},
                         {QStringLiteral("SettingInfo.user.summerTime.start.mon"), -9999}}));
    QCOMPARE(after(lines(report({unset}).out), QStringLiteral("Summer time, Start date, Month")),
             QStringLiteral("• – (3)"));
    const QString empty = folder.put(QStringLiteral("empty.json"), QByteArray("{}"));
    QVERIFY(lines(report({empty}).out).filter(QStringLiteral("•  (")).isEmpty());
}

// A sheet made smaller until such a text fits would take long, and be small.
void TestFilesReport::longTextsAreCut()
{
    const QString company(400000, QLatin1Char('x'));
    const QString file = folder.put(
        QStringLiteral("plant.json"),
        documents::with(plant(), {{QStringLiteral("SettingInfo.svc.svcContact.company"), company}}));
    QCOMPARE(after(lines(report({file}).out), QStringLiteral("Service contact")),
             company.left(60) + QStringLiteral("…, A. Berger, 030-12345"));
}

void TestFilesReport::markupOfAFileIsText()
{
    const QString evil = QStringLiteral("<script>alert(1)</script><img src=\"http://x/\">&amp;\"'");
    QVariantMap values;
    const QVariantMap all = documents::changes(QJsonDocument(), plant());
    for (auto each = all.begin(); each != all.end(); ++each) {
        // What decides which pages are shown stays.
        if (each.value().type() == QVariant::String && each.key().startsWith(QLatin1String("SettingInfo"))
            && !each.key().contains(QLatin1String("sensorDefine"))) {
            values.insert(each.key(), evil);
        }
    }
    QVERIFY(values.size() > 60);
    const program::Outcome outcome = report(
        {folder.put(QStringLiteral("evil.json"), documents::with(plant(), values))});
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.out.contains(QLatin1String("&lt;script&gt;alert(1)")));
    QVERIFY(!outcome.out.contains(QLatin1String("<script")) && !outcome.out.contains(QLatin1String("<img")));
}

void TestFilesReport::speaksEachLanguage()
{
    const QString file = folder.put(QStringLiteral("plant.json"), plant());
    QStringList titles;
    const QDir languages(QStringLiteral(LANGUAGES_DIR));
    const QStringList names = languages.entryList({QStringLiteral("*.json")});
    for (const QString &name : names) {
        const QJsonObject texts = QJsonDocument::fromJson(testfiles::content(languages.filePath(name)))
                                      .object();
        const QStringList all = lines(report({QStringLiteral("--language"), name.chopped(5), file}).out);
        titles.append(all.value(0));
        QVERIFY2(all.contains(texts.value(QLatin1String("DisplayTheme")).toString().simplified()),
                 qPrintable(name));
    }
    titles.removeDuplicates();
    QCOMPARE(titles.size(), names.size());
}

void TestFilesReport::asksForNothingFromElsewhere()
{
    const QString html = report({folder.put(QStringLiteral("plant.json"), plant())}).out;
    for (const char *reference :
         {"http:", "https:", "src=", "href=", "url(", "@import", "<script", "<link"}) {
        QVERIFY2(!html.contains(QLatin1String(reference)), reference);
    }
    QVERIFY(html.startsWith(QLatin1String("<!DOCTYPE html>")));
}

void TestFilesReport::aPdfIsOneSheet()
{
    for (const QJsonDocument &document : {plant(), documents::everything(QStringLiteral("R32")),
                                          documents::everything(QStringLiteral("R410"))}) {
        const QString pdf = folder.path(QStringLiteral("plant.PDF"));
        const program::Outcome outcome = report(
            {folder.put(QStringLiteral("plant.json"), document), QStringLiteral("-o"), pdf});
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.out, QString());
        const QByteArray content = testfiles::content(pdf);
        QVERIFY(content.startsWith("%PDF-"));
        QCOMPARE(content.count("/Type /Page\n"), 1);
        QVERIFY(content.size() > 10000);
        // Titles are in UTF-16.
        QVERIFY(content.contains(utf16(QStringLiteral("plant.json"))));
        QVERIFY(!content.contains(utf16(QFileInfo(pdf).dir().dirName())));
    }
}

void TestFilesReport::aPdfOfTheStandardInputIsCalledAReport()
{
    const QString pdf = folder.path(QStringLiteral("input.pdf"));
    QCOMPARE(program::run({QStringLiteral("report"), QStringLiteral("-"), QStringLiteral("-o"), pdf},
                          plant().toJson())
                 .code,
             0);
    QVERIFY(testfiles::content(pdf).contains(utf16(QStringLiteral("Commissioning report"))));
}

void TestFilesReport::tellsWhatCannotBeRead()
{
    const QString html = folder.path(QStringLiteral("none.html"));
    const program::Outcome outcome = report(
        {folder.put(QStringLiteral("bad.json"), QByteArray("[]")), QStringLiteral("-o"), html});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.err.contains(QLatin1String("is no settings file")), qPrintable(outcome.err));
    QVERIFY(!QFile::exists(html));
}

void TestFilesReport::tellsWhatCannotBeWritten()
{
    const QString file = folder.put(QStringLiteral("plant.json"), plant());
    const program::Outcome outcome = report(
        {file, QStringLiteral("-o"), folder.path(QStringLiteral("no/such/r.html"))});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.err.contains(QLatin1String("r.html: can't be written")), qPrintable(outcome.err));
}

void TestFilesReport::spoilsNoFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("told");

    const QString ending = QStringLiteral("has to end in .html or .pdf");
    const QString same = QStringLiteral("the output is the file itself");
    QTest::newRow("itself") << "plant.json"
                            << "plant.json" << ending;
    QTest::newRow("another settings file") << "plant.json"
                                           << "other.json" << ending;
    QTest::newRow("no ending") << "plant.json"
                               << "html" << ending;
    QTest::newRow("no name") << "plant.json"
                             << "" << ending;
    QTest::newRow("itself by an ending") << "plant.html"
                                         << "plant.html" << same;
    QTest::newRow("itself on another way") << "plant.pdf"
                                           << "../%1/plant.pdf" << same;
}

void TestFilesReport::spoilsNoFile()
{
    QFETCH(QString, file);
    QFETCH(QString, output);
    QFETCH(QString, told);

    const QString here = QFileInfo(folder.path(QStringLiteral("."))).dir().dirName();
    for (const QString &name : {file, QStringLiteral("other.json")}) {
        folder.put(name, plant());
    }
    const QString to = output.contains(QLatin1Char('%')) ? output.arg(here) : output;
    const program::Outcome outcome = report(
        {folder.path(file), QStringLiteral("-o"), to.isEmpty() ? to : folder.path(to)});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.err.contains(told), qPrintable(outcome.err));
    QCOMPARE(outcome.out, QString());
    for (const QString &name : {file, QStringLiteral("other.json")}) {
        QCOMPARE(testfiles::content(folder.path(name)), plant().toJson(QJsonDocument::Compact));
    }
    QVERIFY(!QFile::exists(folder.path(QStringLiteral("html"))));
}

QTEST_GUILESS_MAIN(TestFilesReport)
#include "tst_filesreport.moc"
