#include "files/program.h"

#include <QtTest>

namespace {

QString schemaFile(const char *name)
{
    return QStringLiteral(TEST_DATA_DIR "/schema/") + QLatin1String(name);
}

QJsonDocument r32() { return documents::standard(QStringLiteral("R32")); }

QString installation(const char *key)
{
    return QStringLiteral("SettingInfo.installation.") + QLatin1String(key);
}

} // namespace

// `calora-files check`: what it says of one value each, and how it ends.
class TestFilesCheck : public QObject
{
    Q_OBJECT

private slots:
    void soundFilesHaveNoErrors();
    void aCompleteFileIsCalledSo();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void aBlankListLeavesANumberBelow();
    void circuitsKeepTheirOrder_data();
    void circuitsKeepTheirOrder();
    void takesWhatTheSchemaTakes();
    void refusesWhatTheSchemaRefuses();
    void goesOnAfterADamagedFile();
    void speaksEachLanguage();
    void tellsWhatIsOfferedAsThePageDoes_data();
    void tellsWhatIsOfferedAsThePageDoes();
    void oneFileDoesNotColourTheNext();
    void aKeyIsNoPath();

private:
    program::Folder folder;
};

void TestFilesCheck::soundFilesHaveNoErrors()
{
    for (const char *name : {"R32", "R410"}) {
        const QString refrigerant = QLatin1String(name);
        const QString plain = folder.put(refrigerant, documents::standard(refrigerant));
        const QString everything = folder.put(refrigerant + QStringLiteral("-everything"),
                                              documents::everything(refrigerant));
        const program::Outcome outcome = program::run({QStringLiteral("check"), plain, everything});
        QCOMPARE(outcome.code, 0);
        QVERIFY2(outcome.out.contains(QLatin1String("2 files: 2 sound, 0 with errors, 0 not usable")),
                 qPrintable(outcome.out));
        QCOMPARE(outcome.err, QString());
    }
}

void TestFilesCheck::aCompleteFileIsCalledSo()
{
    const QString file = folder.put(QStringLiteral("plant.json"), program::complete());
    program::Outcome outcome = program::run({QStringLiteral("check"), file});
    QCOMPARE(outcome.out, file + QStringLiteral(": sound; the wizard would call it complete\n"));
    // The day is the last of three lists that the wizard asks for.
    const QString open = folder.put(
        QStringLiteral("open.json"),
        documents::with(program::complete(), {{QStringLiteral("SettingInfo.user.DateInfo.mday"), -9999}}));
    outcome = program::run({QStringLiteral("check"), open});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out,
             open
                 + QStringLiteral(
                     ": warning: SettingInfo.user.DateInfo.mday (User: Date, Day): -9999 isn't chosen "
                     "yet, which the page asks for\n")
                 + open + QStringLiteral(": sound, 1 warning; the wizard would not call it complete\n"));
}

void TestFilesCheck::tellsWhatIsWrong_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("finding");
    QTest::addColumn<QString>("words");

    const auto row = [](const char *name, const QVariantMap &values, const QString &finding,
                        const char *words) {
        QTest::newRow(name) << values << finding << QString::fromUtf8(words);
    };
    const QString theme = QStringLiteral("SettingInfo.user.themeSet");
    row("a word that no control writes", {{theme, QStringLiteral("pink")}}, QStringLiteral("error ") + theme,
        R"(Display theme): "pink" can be "white", "black" only)");
    row("a text for a number", {{installation("waterFlowRate"), QStringLiteral("30")}},
        QStringLiteral("error ") + installation("waterFlowRate"), "can be 15 to 92 only");
    const QString mode = QStringLiteral("ExtSysInfo.xmodeOpMode");
    row("another type in what passes through", {{mode, 3}}, QStringLiteral("error ") + mode,
        "3 has to be a text");
    const QString pump = QStringLiteral("ExtSysInfo.water_pump");
    row("no flag in what passes through", {{pump, QStringLiteral("SER")}}, QStringLiteral("warning ") + pump,
        R"(is a flag, which is "SET" or "CLR")");
    const QString room = QStringLiteral("ExtSysInfo.viewTempAir");
    row("a fraction", {{room, 21.5}}, QStringLiteral("error ") + room, "21.5 has to be a whole number");
    row("a setting is missing", {{theme, QVariant()}}, QStringLiteral("error ") + theme, "is missing");
    row("what passes through is missing", {{room, QVariant()}}, QStringLiteral("warning ") + room,
        "is missing");
    const QString unknown = QStringLiteral("SettingInfo.user.maker");
    row("an unknown key", {{unknown, 1}}, QStringLiteral("note ") + unknown, "is an unknown key");
    // R32 without a heater: the list goes from 20 °C, and 15 stands where one was.
    const QString water = installation("autoOp_tempwater.low_limit");
    row("a list that has shrunk",
        {{water, 15}, {QStringLiteral("IduFuncList.isSeasonalAuto"), QStringLiteral("CLR")}},
        QStringLiteral("warning ") + water,
        "15 isn't offered with the other values of the file: 20°C to 34°C");
    // Twelve steps from 1; nothing chosen is a step before.
    const QString step = installation("disinfect_data.cutOffTime");
    row("the number of a blank list", {{step, 0}}, QStringLiteral("warning ") + step,
        "stands for a list in which nothing was chosen");
    const QString input = installation("digitalInput");
    row("the step of a blank list", {{input, QStringLiteral("STEP-1")}}, QStringLiteral("warning ") + input,
        "stands for a list in which nothing was chosen");
    row("a step that is the key of its text", {{installation("kNightType"), QStringLiteral("STEP-1")}},
        QStringLiteral("error ") + installation("kNightType"), "can be ");
    row("the fifth choice of four", {{input, QStringLiteral("STEP4")}}, QStringLiteral("warning ") + input,
        "isn't offered");
    row("a step that this list hasn't", {{installation("typeOfHeat_Water_thermo"), QStringLiteral("STEP4")}},
        QStringLiteral("warning ") + installation("typeOfHeat_Water_thermo"),
        "isn't offered with the other values of the file: ");
    row("a day that the month hasn't",
        {{QStringLiteral("SettingInfo.user.summerTime.enable"), QStringLiteral("SET")},
         {QStringLiteral("SettingInfo.user.summerTime.start.mon"), 2},
         {QStringLiteral("SettingInfo.user.summerTime.start.day"), 30}},
        QStringLiteral("warning SettingInfo.user.summerTime.start.day"),
        "30 isn't offered with the other values of the file: 1 to 28");
}

void TestFilesCheck::tellsWhatIsWrong()
{
    QFETCH(QVariantMap, values);
    QFETCH(QString, finding);
    QFETCH(QString, words);

    const QString file = folder.put(QStringLiteral("wrong.json"),
                                    documents::with(program::complete(), values));
    QCOMPARE(program::findings(program::check({file}).value(QStringLiteral("wrong.json"))),
             QStringList{finding});
    const program::Outcome outcome = program::run({QStringLiteral("check"), file});
    QCOMPARE(outcome.code, finding.startsWith(QLatin1String("error")) ? 1 : 0);
    // What the wizard calls complete misses nothing.
    QVERIFY2(!outcome.out.contains(QLatin1String("would call it complete"))
                 || !outcome.out.contains(QLatin1String("asks for")),
             qPrintable(outcome.out));
    QVERIFY2(outcome.out.contains(words), qPrintable(outcome.out));
}

// Where a list stores a position, a blank one leaves the number below the first; one that stores the number
// it shows counts as 0 then. What is neither is nothing that the wizard leaves.
void TestFilesCheck::aBlankListLeavesANumberBelow()
{
    const QVector<QPair<const char *, int>> left{{"circuitMainZone.controlTimeMainZone", 59},
                                                 {"circuitMainZone.hysterisisMainZone", -1},
                                                 {"cement_cure.cmt_holding", 0},
                                                 {"cement_cure.cmt_step", 0},
                                                 {"disinfect_data.cutOffTime", 0},
                                                 {"disinfect_data.howLong", 4},
                                                 {"disinfect_time.day", -1},
                                                 {"disinfect_time.start", -1},
                                                 {"hotWaterTankHeater.tankHeaterDelay", -1},
                                                 {"hotwater_timer.maintain_time", 0},
                                                 {"hotwater_timer.restrict_time", -1},
                                                 {"pumpOperOptionInCool.time", 0},
                                                 {"pumpOperOptionInHeat.timeOn", 0},
                                                 {"pumpOperationByForce.ByForcePeriod", 19},
                                                 {"pumpOperationByForce.ByForceRuntime", 0},
                                                 {"pumpPreOverRun.overRun", 0},
                                                 {"pumpPreOverRun.preRun", 0},
                                                 {"smartGrid.smartGridMode", -1}};
    const QVector<QPair<const char *, int>> wrong{{"UFH_stop.watertemp", 15},
                                                  {"autoOp_outtemp.max", 9},
                                                  {"autoOp_tempwater.high_limit", 33},
                                                  {"boilerOfThirdParty.thirdPartyTemp", -26},
                                                  {"cement_cure.cmt_maxTemp", 33},
                                                  {"disinfect_data.maxTemp", 39},
                                                  {"eheater_onoff.heater1_value", -26},
                                                  {"hotwater_logic.compMaxTemp", 39},
                                                  {"meterInterface.interface1", -1},
                                                  {"modbusAddress", -1},
                                                  {"pumpRPM.pumpRPMValue", -1},
                                                  {"seasonalAutoOption.coolOutTemp.min", 9},
                                                  {"seasonalAutoOption.heatWaterTemp.min", 13},
                                                  {"settempLimit.heatWater.high_limit", 33},
                                                  {"settempLimit.hotWater.low_limit", 29},
                                                  {"waterFlowRate", 14}};
    QStringList files;
    QStringList expected;
    for (const auto &each : left + wrong) {
        const QString path = installation(each.first);
        expected.append((files.size() < left.size() ? QStringLiteral("warning ") : QStringLiteral("error "))
                        + path);
        files.append(folder.put(QStringLiteral("blank-%1.json").arg(files.size()),
                                documents::with(program::complete(), {{path, each.second}})));
    }
    const auto verdicts = program::check(files, {QStringLiteral("--no-pages")});
    for (int number = 0; number < files.size(); ++number) {
        QCOMPARE(program::findings(verdicts.value(QStringLiteral("blank-%1.json").arg(number))),
                 QStringList{expected.at(number)});
    }
}

void TestFilesCheck::circuitsKeepTheirOrder_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("main");
    QTest::addColumn<int>("other");
    QTest::addColumn<bool>("good");

    // Circuit 1, the main zone, is the cooler one in heating and the warmer one in cooling.
    QTest::newRow("heating, circuit 1 below") << "waterCtrBasisAirHeat" << 35 << 45 << true;
    QTest::newRow("heating, both alike") << "waterCtrBasisAirHeat" << 40 << 40 << true;
    QTest::newRow("heating, circuit 1 above") << "waterCtrBasisAirHeat" << 45 << 35 << false;
    QTest::newRow("cooling, circuit 1 above") << "waterCtrBasisAirCool" << 22 << 18 << true;
    QTest::newRow("cooling, circuit 1 below") << "waterCtrBasisAirCool" << 18 << 22 << false;
    QTest::newRow("heating, beyond the upper limit") << "waterCtrBasisAirHeat" << 60 << 62 << false;
}

void TestFilesCheck::circuitsKeepTheirOrder()
{
    QFETCH(QString, group);
    QFETCH(int, main);
    QFETCH(int, other);
    QFETCH(bool, good);

    const QString path = QStringLiteral("SettingInfo.func.") + group;
    const QString file = folder.put(
        QStringLiteral("circuits.json"),
        documents::with(program::complete(),
                        {{installation("circuitMainZone.enableMainZone"), QStringLiteral("SET")},
                         {installation("sensorDefine.settemp_select"), QStringLiteral("AIR")},
                         {installation("sensorDefine.airAndWaterUse"), QStringLiteral("SET")},
                         {installation("settempLimit.heatWater.low_limit"), 20},
                         {installation("settempLimit.heatWater.high_limit"), 55},
                         {path + QStringLiteral(".ctrType"), QStringLiteral("MANUAL")},
                         {path + QStringLiteral(".ctrTemp"), other},
                         {path + QStringLiteral(".ctrTempMainZone"), main}}));
    const QStringList found = program::findings(
        program::check({file}).value(QStringLiteral("circuits.json")));
    QCOMPARE(found.isEmpty(), good);
    QVERIFY2(good || found.filter(path).size() == found.size(), qPrintable(found.join(QLatin1String(", "))));
}

// The library reads the schema as its tests in another language do.
void TestFilesCheck::takesWhatTheSchemaTakes()
{
    const QJsonObject right = QJsonDocument::fromJson(testfiles::content(schemaFile("right.json"))).object();
    QVERIFY(!right.isEmpty());
    QStringList files;
    for (auto path = right.begin(); path != right.end(); ++path) {
        for (const auto &value : path->toArray()) {
            files.append(folder.put(QStringLiteral("right-%1.json").arg(files.size()),
                                    documents::with(r32(), {{path.key(), value.toVariant()}})));
        }
    }
    const auto verdicts = program::check(files, {QStringLiteral("--no-pages")});
    QCOMPARE(verdicts.size(), files.size());
    for (const QJsonObject &verdict : verdicts) {
        QVERIFY2(program::findings(verdict).isEmpty(),
                 qPrintable(program::findings(verdict).join(QLatin1Char('\n'))));
    }
}

void TestFilesCheck::refusesWhatTheSchemaRefuses()
{
    const QJsonArray wrong = QJsonDocument::fromJson(testfiles::content(schemaFile("wrong.json"))).array();
    QVERIFY(!wrong.isEmpty());
    QStringList files;
    for (const QJsonValue &edit : wrong) {
        files.append(folder.put(QStringLiteral("refused-%1.json").arg(files.size()),
                                documents::with(r32(),
                                                {{edit[QStringLiteral("path")].toString(),
                                                  edit[QStringLiteral("remove")].toBool()
                                                      ? QVariant()
                                                      : edit[QStringLiteral("value")].toVariant()}})));
    }
    const auto verdicts = program::check(files, {QStringLiteral("--no-pages")});
    for (int index = 0; index < files.size(); ++index) {
        const QJsonValue edit = wrong.at(index);
        const QStringList found = program::findings(
            verdicts.value(QStringLiteral("refused-%1.json").arg(index)));
        const QString path = edit[QStringLiteral("path")].toString();
        QVERIFY2(found.contains(QStringLiteral("error ") + path)
                     || found.contains(QStringLiteral("warning ") + path),
                 qPrintable(path + QStringLiteral(": ") + found.join(QLatin1String(", "))));
    }
}

void TestFilesCheck::goesOnAfterADamagedFile()
{
    const QString bad = folder.put(QStringLiteral("bad.json"), QByteArray("{"));
    const QString wrong = folder.put(
        QStringLiteral("wrong.json"),
        documents::with(program::complete(),
                        {{QStringLiteral("product"), QStringLiteral("x")},
                         {QStringLiteral("SettingInfo.user.DateInfo.mday"), -9999},
                         {QStringLiteral("mine"), 1},
                         {QStringLiteral("yours"), 1}}));
    const QString good = folder.put(QStringLiteral("good.json"), program::complete());
    const program::Outcome outcome = program::run(
        {QStringLiteral("check"), folder.path(QStringLiteral("none.json")), bad, wrong, good});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.out.contains(QLatin1String("none.json: can't be opened\n")), qPrintable(outcome.out));
    QVERIFY2(outcome.out.contains(good + QStringLiteral(": sound; the wizard would call it complete\n")),
             qPrintable(outcome.out));
    QVERIFY2(outcome.out.endsWith(QLatin1String(
                 "4 files: 1 sound, 1 with errors, 2 not usable; 1 error, 1 warning, 2 notes\n")),
             qPrintable(outcome.out));
    QCOMPARE(program::run({QStringLiteral("check"), wrong, good}).code, 1);
}

void TestFilesCheck::speaksEachLanguage()
{
    const QString file = folder.put(
        QStringLiteral("wrong.json"),
        documents::with(program::complete(),
                        {{QStringLiteral("SettingInfo.user.themeSet"), QStringLiteral("pink")}}));
    const QDir languages(QStringLiteral(LANGUAGES_DIR));
    for (const QString &name : languages.entryList({QStringLiteral("*.json")})) {
        const QJsonObject texts = QJsonDocument::fromJson(testfiles::content(languages.filePath(name)))
                                      .object();
        const program::Outcome outcome = program::run({QStringLiteral("check"), QStringLiteral("--language"),
                                                       name.chopped(5), QStringLiteral("--no-pages"), file});
        const QString caption = texts.value(QLatin1String("DisplayTheme")).toString().simplified();
        QVERIFY2(outcome.out.contains(caption), qPrintable(name + outcome.out + outcome.err));
    }
    const program::Outcome outcome = program::run(
        {QStringLiteral("check"), QStringLiteral("--language"), QStringLiteral("Elvish"), file});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.err.contains(QLatin1String("there is no language Elvish; there are:")),
             qPrintable(outcome.err));
}

void TestFilesCheck::tellsWhatIsOfferedAsThePageDoes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("told");

    const auto row = [](const char *name, const QString &path, const QVariant &value, const char *options,
                        const char *told) {
        QTest::newRow(name) << path << value
                            << QString::fromLatin1(options).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                            << QStringLiteral("%1 isn't offered with the other values of the file: %2\n")
                                   .arg(QString::fromUtf8(told).section(QLatin1Char('|'), 0, 0),
                                        QString::fromUtf8(told).section(QLatin1Char('|'), 1));
    };
    const QString input = installation("digitalInput");
    row("words", input, QStringLiteral("STEP4"), "",
        "\"STEP4\"|Not use, Simple operation, Simple dry contact, Single emergency stop");
    row("words of another language", input, QStringLiteral("STEP4"), "--language Deutsch",
        "\"STEP4\"|Nicht verwenden, Einfacher Betrieb, Einfacher Kontakt, Not-Aus Einzelgerät");
    row("days", QStringLiteral("SettingInfo.user.DateInfo.mday"), 31, "", "31|1 to 30");
    row("°C", installation("autoOp_tempwater.low_limit"), 15, "", "15|20°C to 34°C");
    // By the tool's table, which has even °F alone: 15 is 58, 20 is 68 and 34 is 94.
    row("°F", installation("autoOp_tempwater.low_limit"), 15, "--fahrenheit", "15 (58°F)|68°F to 94°F");
    row("a number and a word", installation("pumpRPM.pumpRPMValue"), 7, "", "7|10% to 100%");
}

void TestFilesCheck::tellsWhatIsOfferedAsThePageDoes()
{
    QFETCH(QString, path);
    QFETCH(QVariant, value);
    QFETCH(QStringList, options);
    QFETCH(QString, told);

    const QString file = folder.put(
        QStringLiteral("offered.json"),
        documents::with(
            program::complete(),
            {{QStringLiteral("IduFuncList.isSeasonalAuto"), QStringLiteral("CLR")}, {path, value}}));
    const program::Outcome outcome = program::run(QStringList{QStringLiteral("check"), file} + options);
    QVERIFY2(outcome.out.contains(told), qPrintable(outcome.out));
    // For programs it is the same, less the value in °F.
    const program::Outcome json = program::run(
        QStringList{QStringLiteral("check"), QStringLiteral("--json"), file} + options);
    QVERIFY2(json.out.contains(told.section(QLatin1Char(' '), 1).section(QLatin1String(") "), -1).trimmed()),
             qPrintable(json.out));
}

// The pages keep radios and lists that a load leaves alone.
void TestFilesCheck::oneFileDoesNotColourTheNext()
{
    const QString whole = folder.put(QStringLiteral("a.json"), program::complete());
    const QString without = folder.put(
        QStringLiteral("b.json"),
        documents::with(program::complete(),
                        {{QStringLiteral("SettingInfo.user.themeSet"), QVariant()},
                         {installation("seasonalAutoOption.seasonalAutoOpMode"), QStringLiteral("?")},
                         {installation("settempLimit.heatWater.low_limit"), 65},
                         {installation("settempLimit.heatWater.high_limit"), 14}}));
    const QString july = folder.put(
        QStringLiteral("c.json"),
        documents::with(program::complete(), {{QStringLiteral("SettingInfo.user.DateInfo.month"), 7}}));
    const QString wrongDay = folder.put(
        QStringLiteral("d.json"),
        documents::with(program::complete(), {{QStringLiteral("SettingInfo.user.DateInfo.mday"), 31}}));
    for (const QStringList &order :
         {QStringList{wrongDay}, {whole, wrongDay}, {july, wrongDay}, {wrongDay, wrongDay}}) {
        QCOMPARE(program::findings(program::check(order).value(QStringLiteral("d.json"))),
                 QStringList{QStringLiteral("warning SettingInfo.user.DateInfo.mday")});
    }
    const auto alone = program::check({without});
    const auto after = program::check({whole, without});
    const auto before = program::check({without, whole});
    QCOMPARE(program::findings(after.value(QStringLiteral("b.json"))),
             program::findings(alone.value(QStringLiteral("b.json"))));
    QCOMPARE(program::findings(before.value(QStringLiteral("a.json"))), QStringList());
    // No product that there is: a load leaves its section shown or hidden as it was.
    const QString module = folder.put(
        QStringLiteral("module.json"),
        documents::with(documents::everything(QStringLiteral("R410")),
                        {{installation("modePriority.modeStandby"), QStringLiteral("?")}}));
    const QString none = folder.put(
        QStringLiteral("none.json"),
        documents::with(program::complete(), {{QStringLiteral("product"), QStringLiteral("x")}}));
    QCOMPARE(program::check({module, none}).value(QStringLiteral("none.json")),
             program::check({none}).value(QStringLiteral("none.json")));
}

// A dot in a key makes it no setting.
void TestFilesCheck::aKeyIsNoPath()
{
    const QByteArray whole = program::complete().toJson(QJsonDocument::Compact);
    folder.put(QStringLiteral("dotted.json"), whole.chopped(1) + R"(,"SettingInfo.user.themeSet":"pink"})");
    const QString wrong = folder.put(QStringLiteral("both.json"),
                                     QByteArray(whole.chopped(1) + R"(,"SettingInfo.user.themeSet":"pink"})")
                                         .replace("\"white\"", "\"x\""));
    const auto verdicts = program::check({folder.path(QStringLiteral("dotted.json")), wrong});
    const QString note = QStringLiteral("note SettingInfo\\.user\\.themeSet");
    QCOMPARE(program::findings(verdicts.value(QStringLiteral("dotted.json"))), QStringList{note});
    QCOMPARE(program::findings(verdicts.value(QStringLiteral("both.json"))),
             (QStringList{QStringLiteral("error SettingInfo.user.themeSet"), note}));
}

QTEST_GUILESS_MAIN(TestFilesCheck)
#include "tst_filescheck.moc"
