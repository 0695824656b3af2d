#include "files/program.h"

#include "support/schema.h"
#include <QRandomGenerator>
#include <QtTest>

#include <functional>

namespace {

constexpr quint32 seed = 17;
constexpr int wanted = 290;

using Dice = QRandomGenerator;

/// A damaged file and the path that it was damaged at; no path where the file as a whole is.
struct Damaged {
    QByteArray content;
    QString path;
};

/// A way in which a file goes wrong, and how many of them are planted.
struct Kind {
    const char *name;
    int count;
    std::function<Damaged(const QJsonDocument &, Dice &)> plant;
};

QString installation(const QString &key) { return QStringLiteral("SettingInfo.installation.") + key; }

QJsonValue valueAt(const QJsonDocument &document, const QString &path)
{
    QJsonValue value = document.object();
    for (const QString &name : path.split(QLatin1Char('.'))) {
        value = value.toObject().value(name);
    }
    return value;
}

template <class T>
T pick(const QVector<T> &choices, Dice &dice)
{
    return choices.at(dice.bounded(choices.size()));
}

/// The paths of all values that are of the type.
QVector<QString> leaves(const QJsonDocument &document, QJsonValue::Type type)
{
    QVector<QString> paths;
    const QVariantMap all = documents::changes(QJsonDocument(), document);
    for (auto each = all.begin(); each != all.end(); ++each) {
        if (valueAt(document, each.key()).type() == type) {
            paths.append(each.key());
        }
    }
    return paths;
}

Damaged with(const QJsonDocument &document, const QString &path, const QVariant &value)
{
    return {documents::with(document, {{path, value}}).toJson(QJsonDocument::Compact), path};
}

Damaged anotherType(const QJsonDocument &document, Dice &dice)
{
    if (dice.bounded(2) == 0) {
        const QString path = pick(leaves(document, QJsonValue::Double), dice);
        const QVector<QVariant> values{QString::number(valueAt(document, path).toInt()), true,
                                       QVariantList{1}, QVariantMap{{QStringLiteral("value"), 1}}};
        return with(document, path, pick(values, dice));
    }
    const QString path = pick(leaves(document, QJsonValue::String), dice);
    return with(document, path, pick(QVector<QVariant>{1, 0, false, QVariantList{}, QVariantMap{}}, dice));
}

/// One letter another, gone, or twice; of the words whose meaning is known: those that pages write, and
/// flags.
Damaged damagedWord(const QJsonDocument &document, Dice &dice)
{
    const QStringList written = schema::written();
    QVector<QString> words;
    for (const QString &path : leaves(document, QJsonValue::String)) {
        const QString word = valueAt(document, path).toString();
        const bool isFlag = word == QLatin1String("SET") || word == QLatin1String("CLR");
        if (isFlag || (written.contains(path) && !path.contains(QLatin1String("svcContact")))) {
            words.append(path);
        }
    }
    const QString path = pick(words, dice);
    QString word = valueAt(document, path).toString();
    const int at = dice.bounded(word.size());
    switch (dice.bounded(3)) {
    case 0:
        word[at] = word.at(at) == QLatin1Char('x') ? QLatin1Char('y') : QLatin1Char('x');
        break;
    case 1:
        word.remove(at, 1);
        break;
    default:
        word.insert(at, word.at(at));
    }
    return with(document, path, word);
}

Damaged beyondEveryList(const QJsonDocument &document, Dice &dice)
{
    QVector<QString> numbers;
    for (const QString &path : schema::written()) {
        if (valueAt(document, path).isDouble()) {
            numbers.append(path);
        }
    }
    return with(document, pick(numbers, dice),
                pick(QVector<QVariant>{-500, 100000, 1000000, 2147483647}, dice));
}

/// Numbers and words that some product offers, and none that is as these two are.
Damaged notOfThisProduct(const QJsonDocument &document, Dice &dice)
{
    const bool r32 = valueAt(document, QStringLiteral("IduFuncList.isR32")) == QLatin1String("SET");
    QVector<QPair<QString, QVariant>> values{
        {installation(QStringLiteral("digitalInput")), QStringLiteral("STEP4")},
        {installation(QStringLiteral("autoOp_tempwater.low_limit")), 17},
        {installation(QStringLiteral("cement_cure.cmt_maxTemp")), 34},
        {installation(QStringLiteral("coolAirThermoOnOff")), QStringLiteral("STEP4")},
        {installation(QStringLiteral("typeOfHeat_Water_thermo")), QStringLiteral("STEP4")},
        {QStringLiteral("SettingInfo.user.DateInfo.mday"), 31}};
    if (r32) {
        values.append({installation(QStringLiteral("pumpRPM.pumpRPMValue")), 7});
    } else {
        values.append({installation(QStringLiteral("settempLimit.heatWater.low_limit")), 17});
        values.append({installation(QStringLiteral("settempLimit.heatWater.high_limit")), 63});
    }
    const auto [path, value] = pick(values, dice);
    return with(document, path, value);
}

/// The lower end of a range above its upper end.
Damaged crossed(const QJsonDocument &document, Dice &dice)
{
    const QVector<QString> ranges{QStringLiteral("heatOutTemp"),   QStringLiteral("coolOutTemp"),
                                  QStringLiteral("heatWaterTemp"), QStringLiteral("coolWaterTemp"),
                                  QStringLiteral("heatAirTemp"),   QStringLiteral("coolAirTemp")};
    const QString range = installation(QStringLiteral("seasonalAutoOption.") + pick(ranges, dice));
    const QString low = range + QStringLiteral(".min");
    const QString high = range + QStringLiteral(".max");
    // Air and water are sensed, and it heats and cools, so that every range is there.
    QJsonDocument both = documents::with(
        document,
        {{QStringLiteral("IduFuncList.isSeasonalAuto"), QStringLiteral("SET")},
         {installation(QStringLiteral("sensorDefine.settemp_select")), QStringLiteral("AIR")},
         {installation(QStringLiteral("sensorDefine.airAndWaterUse")), QStringLiteral("SET")}});
    both = documents::with(both,
                           {{low, valueAt(document, high).toInt()}, {high, valueAt(document, low).toInt()}});
    return {both.toJson(), range};
}

Damaged missing(const QJsonDocument &document, Dice &dice)
{
    const auto paths = leaves(document, dice.bounded(2) == 0 ? QJsonValue::Double : QJsonValue::String);
    return with(document, pick(paths, dice), QVariant());
}

Damaged misspelt(const QJsonDocument &document, Dice &dice)
{
    const auto paths = leaves(document, dice.bounded(2) == 0 ? QJsonValue::Double : QJsonValue::String);
    const QString path = pick(paths, dice);
    QString other = path;
    other.chop(1);
    return {
        documents::with(document,
                        {{path, QVariant()}, {other + QLatin1Char('#'), valueAt(document, path).toVariant()}})
            .toJson(),
        path};
}

Damaged fraction(const QJsonDocument &document, Dice &dice)
{
    const QString path = pick(leaves(document, QJsonValue::Double), dice);
    return with(document, path, valueAt(document, path).toDouble() + 0.5);
}

Damaged contact(const QJsonDocument &document, Dice &dice)
{
    const QString group = QStringLiteral("SettingInfo.svc.svcContact.");
    switch (dice.bounded(3)) {
    case 0:
        return with(document, group + QStringLiteral("phoneNumber"), QStringLiteral("+49 30"));
    case 1:
        return with(document, group + QStringLiteral("installerName"), QString(40, QLatin1Char('n')));
    default:
        return with(document, group + QStringLiteral("company"), QStringLiteral("Sixteen letters."));
    }
}

Damaged cutShort(const QJsonDocument &document, Dice &dice)
{
    const QByteArray whole = document.toJson(QJsonDocument::Compact);
    return {whole.left(dice.bounded(whole.size() - 1)), {}};
}

Damaged brokenMark(const QJsonDocument &document, Dice &dice)
{
    QByteArray whole = document.toJson(QJsonDocument::Compact);
    int at = dice.bounded(whole.size());
    while (!(QByteArray("{}:,") + '"').contains(whole.at(at))) {
        at = (at + 1) % whole.size();
    }
    whole.remove(at, 1);
    return {whole, {}};
}

const std::vector<Kind> &kinds()
{
    static const std::vector<Kind> all{{"another type", 60, anotherType},
                                       {"a damaged word", 55, damagedWord},
                                       {"a number beyond every list", 50, beyondEveryList},
                                       {"what this product doesn't offer", 25, notOfThisProduct},
                                       {"limits crossed", 15, crossed},
                                       {"a key that is missing", 35, missing},
                                       {"a misspelt key", 30, misspelt},
                                       {"a fraction", 15, fraction},
                                       {"a contact that doesn't fit", 5, contact},
                                       {"a file cut short", 5, cutShort},
                                       {"a broken mark", 5, brokenMark}};
    return all;
}

QJsonDocument base(int number)
{
    return documents::with(
        documents::standard(number % 2 == 0 ? QStringLiteral("R32") : QStringLiteral("R410")),
        {{QStringLiteral("SettingInfo.user.DateInfo.year"), 2026},
         {QStringLiteral("SettingInfo.user.DateInfo.month"), 11},
         {QStringLiteral("SettingInfo.user.DateInfo.mday"), 22},
         {QStringLiteral("IduFuncList.isSeasonalAuto"), QStringLiteral("CLR")},
         {installation(QStringLiteral("autoOp_tempwater.low_limit")), 20},
         {installation(QStringLiteral("settempLimit.heatWater.low_limit")), 20}});
}

/// How the verdict tells the fault at the path: "error", "warning", or nothing.
QString recognised(const QJsonObject &verdict, const QString &path)
{
    const QString error = QStringLiteral("error");
    if (!verdict.value(QLatin1String("usable")).toBool()) {
        return error;
    }
    const QStringList found = program::findings(verdict);
    for (const QString &severity : {error, QStringLiteral("warning")}) {
        const QString told = severity + QLatin1Char(' ') + path;
        if (!path.isEmpty() && std::any_of(found.begin(), found.end(), [&told](const QString &each) {
                return each.startsWith(told);
            })) {
            return severity;
        }
    }
    return {};
}

} // namespace

// Three hundred files with one planted fault each. CALORA_FAULTS, where set, is the seed of others.
class TestFilesFaults : public QObject
{
    Q_OBJECT

private slots:
    void filesWithoutFaultHaveNoFindings();
    void plantedFaultsAreRecognised();
};

void TestFilesFaults::filesWithoutFaultHaveNoFindings()
{
    const program::Folder folder;
    const auto verdicts = program::check(
        {folder.put(QStringLiteral("0.json"), base(0)), folder.put(QStringLiteral("1.json"), base(1))});
    QCOMPARE(program::findings(verdicts.value(QStringLiteral("0.json"))), QStringList());
    QCOMPARE(program::findings(verdicts.value(QStringLiteral("1.json"))), QStringList());
}

void TestFilesFaults::plantedFaultsAreRecognised()
{
    const program::Folder folder;
    Dice dice(qEnvironmentVariableIsSet("CALORA_FAULTS") ? qgetenv("CALORA_FAULTS").toUInt() : seed);
    QStringList files;
    std::vector<Damaged> planted;
    for (const Kind &kind : kinds()) {
        for (int number = 0; number < kind.count; ++number) {
            planted.push_back(kind.plant(base(number), dice));
            files.append(folder.put(QStringLiteral("%1.json").arg(files.size()), planted.back().content));
        }
    }
    QCOMPARE(files.size(), 300);
    const auto verdicts = program::check(files);

    QMap<QString, int> all;
    int file = 0;
    for (const Kind &kind : kinds()) {
        QMap<QString, int> seen;
        for (int number = 0; number < kind.count; ++number, ++file) {
            const QString path = planted.at(static_cast<std::size_t>(file)).path;
            const QString how = recognised(verdicts.value(QStringLiteral("%1.json").arg(file)), path);
            ++seen[how];
            ++all[how];
            if (how.isEmpty()) {
                std::printf("  not seen: %s at %s\n", kind.name, qPrintable(path));
            }
        }
        std::printf("%3d errors and %2d warnings of %2d  %s\n", seen[QStringLiteral("error")],
                    seen[QStringLiteral("warning")], kind.count, kind.name);
    }
    std::printf("%3d errors and %2d warnings of 300\n", all[QStringLiteral("error")],
                all[QStringLiteral("warning")]);
    QVERIFY(files.size() - all.value(QString()) >= wanted);
}

QTEST_GUILESS_MAIN(TestFilesFaults)
#include "tst_filesfaults.moc"
