#include "files/program.h"

#include <QtTest>

namespace {

QJsonDocument r32() { return documents::standard(QStringLiteral("R32")); }

QString installation(const char *key)
{
    return QStringLiteral("SettingInfo.installation.") + QLatin1String(key);
}

program::Outcome diff(const QStringList &arguments)
{
    return program::run(QStringList{QStringLiteral("diff")} + arguments);
}

} // namespace

// `calora-files diff`: what it calls a value, and how.
class TestFilesDiff : public QObject
{
    Q_OBJECT

private slots:
    void nothingToTellIsQuiet();
    void tellsAValueAsThePageDoes_data();
    void tellsAValueAsThePageDoes();
    void tellsTheHalfOfTheDay_data();
    void tellsTheHalfOfTheDay();
    void keysAreNoPaths_data();
    void keysAreNoPaths();
    void longTextsBeginWhereTheyDiffer_data();
    void longTextsBeginWhereTheyDiffer();
    void groupsAsTheWizardDoes();
    void comparesWithTheDefaultsOfTheRefrigerant();
    void tellsJson();
    void endsWithTwoWhenAFileIsNotUsable();

private:
    program::Folder folder;
};

void TestFilesDiff::nothingToTellIsQuiet()
{
    const QString one = folder.put(QStringLiteral("one.json"), r32().toJson(QJsonDocument::Indented));
    const QString other = folder.put(QStringLiteral("other.json"), r32().toJson(QJsonDocument::Compact));
    const program::Outcome outcome = diff({one, other});
    QCOMPARE(outcome.out + outcome.err, QString());
    QCOMPARE(outcome.code, 0);
}

void TestFilesDiff::tellsAValueAsThePageDoes_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("told");

    const auto row = [](const char *name, const QVariantMap &values, const QByteArray &told,
                        const QStringList &options = {}) {
        QTest::newRow(name) << values << options << QString::fromUtf8(told);
    };
    const QString heat = installation("settempLimit.heatWater.high_limit");
    const QStringList fahrenheit{QStringLiteral("--fahrenheit")};
    row("a flag", {{QStringLiteral("IduFuncList.is_cool"), QStringLiteral("SET")}},
        "Environment setting\n  Operation mode: Heating only → Heating and Cooling\n");
    row("°C", {{heat, 50}},
        "Heating mode\n  Temp. limitation (Constant mode), Water temp., Max: 65°C → 50°C\n");
    // By the tool's table, which has even °F alone: 65 is 148 and 50 is 122.
    row("°F", {{heat, 50}},
        "Heating mode\n  Temp. limitation (Constant mode), Water temp., Max: 148°F → 122°F\n", fahrenheit);
    row("K are never converted", {{installation("boilerOfThirdParty.thirdPartyHysterisis"), 9}},
        "System setting\n  3rd party boiler, Hysteresis: 4K → 9K\n", fahrenheit);
    row("a position", {{installation("circuitMainZone.hysterisisMainZone"), 4}},
        "System setting\n  Mixed circuit, Hysteresis: 3K → 5K\n");
    row("steps of minutes", {{installation("hotwater_timer.maintain_time"), 19}},
        "Domestic hot water tank heating\n  DHW time setting, Active time: 30min → 95min\n");
    row("the first holding time", {{installation("disinfect_data.howLong"), 5}},
        "Domestic hot water tank heating\n  Disinfection, Holding time: 30min → 5min\n");
    row("noon is AM 12", {{QStringLiteral("SettingInfo.func.silentTimer.end.hour"), 12}},
        "Function\n  Silent mode, End time, Hour: 06 → 12\n");
    row("the half of the day alone",
        {{QStringLiteral("SettingInfo.func.silentTimer.end.ampm"), QStringLiteral("PM")}},
        "Function\n  Silent mode, End time, Hour: 06 → 18\n");
    row("a time of day", {{installation("disinfect_time.start"), 5}},
        "Domestic hot water tank heating\n  Disinfection, Schedule: 23:00 → 05:00\n");
    row("a word of no list", {{QStringLiteral("SettingInfo.user.themeSet"), QStringLiteral("pink")}},
        "User\n  Display theme: White → \"pink\"\n");
    row("a value that is gone", {{QStringLiteral("SettingInfo.user.themeSet"), QVariant()}},
        "User\n  Display theme: White → –\n");
    row("two words of one text",
        {{installation("sensorDefine.airTempLocation"), QStringLiteral("RemoteController")}},
        "System setting\n  Select temperature sensor, Air temp. sensor location: \"RMC\" → "
        "\"RemoteController\"\n");
    row("what no page shows", {{QStringLiteral("ExtSysInfo.error"), 7}},
        "On no page\n  ExtSysInfo.error: 0 → 7\n");
    row("a flag that no page shows", {{QStringLiteral("IduFuncList.isSGReady"), QStringLiteral("CLR")}},
        "On no page\n  IduFuncList.isSGReady: \"SET\" → \"CLR\"  (Smart grid is offered)\n");
    row("an unknown key", {{QStringLiteral("maker\nX"), 7}}, "On no page\n  maker\\u000aX: – → 7\n");
    const QByteArray many(70, 'x');
    row("a long text", {{QStringLiteral("SettingInfo.svc.svcContact.company"), QString::fromLatin1(many)}},
        "Service\n  Service contact, Company name: - → " + many.left(60) + "…\n");
    row("a long key", {{QString(1000, QLatin1Char('k')), 1}},
        "On no page\n  " + QByteArray(200, 'k') + "…: – → 1\n");
    row("with its path", {{heat, 50}},
        "Heating mode\n  Temp. limitation (Constant mode), Water temp., Max: 65°C → 50°C  "
        "[SettingInfo.installation.settempLimit.heatWater.high_limit]\n",
        {QStringLiteral("--paths")});
    row("in German", {{QStringLiteral("IduFuncList.is_cool"), QStringLiteral("SET")}},
        "Anlagenausstattung\n  Betriebsart: Nur Heizen → Heizen und Kühlen\n",
        {QStringLiteral("--language"), QStringLiteral("Deutsch")});
}

void TestFilesDiff::tellsAValueAsThePageDoes()
{
    QFETCH(QVariantMap, values);
    QFETCH(QStringList, options);
    QFETCH(QString, told);

    const QString before = folder.put(QStringLiteral("before.json"), r32());
    const QString after = folder.put(QStringLiteral("after.json"), documents::with(r32(), values));
    const program::Outcome outcome = diff(options + QStringList{before, after});
    QCOMPARE(outcome.out, told);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 1);
}

void TestFilesDiff::tellsTheHalfOfTheDay_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("told");

    const auto row = [](const char *name, const QVariantMap &values, const QByteArray &told) {
        QTest::newRow(name) << values << QStringList() << QString::fromUtf8(told);
    };
    const QString end = QStringLiteral("SettingInfo.func.silentTimer.end.");
    const QString half = end + QStringLiteral("ampm");
    const char *const meaning = "(End of silent mode, half of the day)\n";
    const auto unread = [meaning](const char *values) {
        return "On no page\n  SettingInfo.func.silentTimer.end.ampm: " + QByteArray(values) + "  " + meaning;
    };
    row("no half of the day", {{half, QStringLiteral("XX")}}, unread(R"("AM" → "XX")"));
    row("the half in other letters", {{half, QStringLiteral("am")}}, unread(R"("AM" → "am")"));
    row("a number for the half", {{half, 3}}, unread(R"("AM" → 3)"));
    row("both halves and hours, of one time",
        {{half, QStringLiteral("PM")}, {end + QStringLiteral("hour"), 6}},
        "Function\n  Silent mode, End time, Hour: 06 → 18\n");
    row("another hour and no half", {{half, QStringLiteral("XX")}, {end + QStringLiteral("hour"), 7}},
        "Function\n  Silent mode, End time, Hour: 06 → 07\n\n" + unread(R"("AM" → "XX")"));
}

void TestFilesDiff::tellsTheHalfOfTheDay() { tellsAValueAsThePageDoes(); }

void TestFilesDiff::keysAreNoPaths_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("told");

    const auto row = [](const char *name, const char *before, const char *after, const char *told) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after)
                            << QStringLiteral("On no page\n") + QString::fromUtf8(told);
    };
    row("a key spelled as a path of a page", R"({"SettingInfo.user.themeSet": 1})",
        R"({"SettingInfo.user.themeSet": 2})", "  SettingInfo\\.user\\.themeSet: 1 → 2\n");
    row("two that would be one path", R"({"a.b": 1, "a": {"b": 1}})", R"({"a.b": 2, "a": {"b": 1}})",
        "  a\\.b: 1 → 2\n");
    row("with a backslash", R"({"a\\.b": 1, "a\\\\": {"b": 1}})", R"({"a\\.b": 2, "a\\\\": {"b": 1}})",
        "  a\\\\\\.b: 1 → 2\n");
    row("an empty one", R"({"": {"a": 1}, "a": 1})", R"({"": {"a": 2}, "a": 1})", "  \\.a: 1 → 2\n");
}

void TestFilesDiff::keysAreNoPaths()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, told);

    const program::Outcome outcome = diff(
        {folder.put(QStringLiteral("before.json"), before), folder.put(QStringLiteral("after.json"), after)});
    QCOMPARE(outcome.out, told);
    QCOMPARE(outcome.code, 1);
}

void TestFilesDiff::longTextsBeginWhereTheyDiffer_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::addColumn<QString>("told");

    const QString text(70, QLatin1Char('x'));
    QTest::newRow("the end of a text")
        << QVariant(text + QStringLiteral("1")) << QVariant(text + QStringLiteral("2"))
        << QStringLiteral("…1\" → …2\"");
    QTest::newRow("a text that ends")
        << QVariant(text) << QVariant(text + QLatin1Char('y')) << QStringLiteral("…\" → …y\"");
    QTest::newRow("lists") << QVariant(QVariantList{1, QStringLiteral("a")})
                           << QVariant(QVariantList{1, QStringLiteral("b")})
                           << QStringLiteral("…a\"] → …b\"]");
    QTest::newRow("long from the start")
        << QVariant(QLatin1Char('1') + text + text) << QVariant(QLatin1Char('2') + text + text)
        << QStringLiteral("\"1%1… → \"2%1…").arg(text.left(58));
}

void TestFilesDiff::longTextsBeginWhereTheyDiffer()
{
    QFETCH(QVariant, before);
    QFETCH(QVariant, after);
    QFETCH(QString, told);

    const auto put = [this](const char *name, const QVariant &value) {
        return folder.put(QLatin1String(name),
                          documents::with(r32(), {{QStringLiteral("ExtSysInfo.error"), value}}));
    };
    QCOMPARE(diff({put("before.json", before), put("after.json", after)}).out,
             QStringLiteral("On no page\n  ExtSysInfo.error: %1\n").arg(told));
}

void TestFilesDiff::groupsAsTheWizardDoes()
{
    const QString after = folder.put(
        QStringLiteral("after.json"),
        documents::with(r32(),
                        {{QStringLiteral("SettingInfo.user.themeSet"), QStringLiteral("black")},
                         {installation("disinfect_time.start"), 5},
                         {QStringLiteral("IduFuncList.is_flow_switch"), QStringLiteral("SET")},
                         {QStringLiteral("ExtSysInfo.error"), 1}}));
    const QString out = diff({folder.put(QStringLiteral("before.json"), r32()), after}).out;
    QCOMPARE(out.split(QLatin1Char('\n')).filter(QRegularExpression(QStringLiteral("^\\S"))),
             (QStringList{QStringLiteral("Environment setting"), QStringLiteral("User"),
                          QStringLiteral("Domestic hot water tank heating"), QStringLiteral("On no page")}));
}

void TestFilesDiff::comparesWithTheDefaultsOfTheRefrigerant()
{
    for (const char *name : {"R32", "R410"}) {
        const QJsonDocument own = documents::standard(QLatin1String(name));
        QCOMPARE(diff({QStringLiteral("--default"), folder.put(QStringLiteral("same.json"), own)}).code, 0);
        const QString other = folder.put(
            QStringLiteral("other.json"),
            documents::with(own, {{QStringLiteral("SettingInfo.user.themeSet"), QStringLiteral("black")}}));
        QCOMPARE(diff({other, QStringLiteral("--default")}).out,
                 QStringLiteral("User\n  Display theme: White → Black\n"));
    }
}

void TestFilesDiff::tellsJson()
{
    const QString after = folder.put(
        QStringLiteral("after.json"),
        documents::with(r32(),
                        {{installation("disinfect_time.start"), 5}, {QStringLiteral("cmdId"), QVariant()}}));
    const program::Outcome outcome = diff(
        {QStringLiteral("--json"), folder.put(QStringLiteral("before.json"), r32()), after});
    const QJsonArray told = QJsonDocument::fromJson(outcome.out.toUtf8())[QStringLiteral("differences")]
                                .toArray();
    QCOMPARE(told.size(), 2);
    const QJsonObject start = told.at(0).toObject();
    QCOMPARE(start.value(QLatin1String("path")).toString(), installation("disinfect_time.start"));
    QCOMPARE(start.value(QLatin1String("before")), QJsonValue(23));
    QCOMPARE(start.value(QLatin1String("after")), QJsonValue(5));
    QCOMPARE(start.value(QLatin1String("afterText")).toString(), QStringLiteral("05:00"));
    QVERIFY(!told.at(1).toObject().contains(QLatin1String("after")));
}

void TestFilesDiff::endsWithTwoWhenAFileIsNotUsable()
{
    const QString good = folder.put(QStringLiteral("good.json"), r32());
    const QString bad = folder.put(QStringLiteral("bad.json"), QByteArray("{"));
    const program::Outcome outcome = diff({good, bad});
    QCOMPARE(outcome.code, 2);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.contains(bad + QStringLiteral(": is not JSON")), qPrintable(outcome.err));
}

QTEST_GUILESS_MAIN(TestFilesDiff)
#include "tst_filesdiff.moc"
