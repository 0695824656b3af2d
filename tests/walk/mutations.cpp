#include "walk/mutations.h"

#include "support/documents.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const char *const words[] = {"SET",
                             "CLR",
                             "set",
                             "",
                             "AIR",
                             "WATER",
                             "AUTO",
                             "MANUAL",
                             "ENTRANCE",
                             "EXIT",
                             "STEP0",
                             "STEP1",
                             "STEP3",
                             "STEP9",
                             "USE",
                             "NOTUSE",
                             "BH_USE",
                             "HP_BH_BOTH",
                             "HP_ONLY",
                             "AUTO_OFF",
                             "IDU",
                             "INSTALL",
                             "ONLY_DISINFECT",
                             "MASTER",
                             "HEAT_N_COOL",
                             "COOL_ONLY",
                             "GERMANY",
                             "CASCADE",
                             "awhp",
                             "aquabox",
                             "FAHRENHEIT",
                             "rmcSetting",
                             "black",
                             "PM",
                             "0A",
                             "AM",
                             "clr",
                             "fridge",
                             "BRIGHTNESS20",
                             "BACKLIGHT60S"};

const int numbers[] = {0,   1,    2,  3,  4,  5,   6,   7,   9,   10,    12,         13,         15,
                       16,  18,   20, 22, 24, 25,  26,  28,  30,  31,    35,         40,         45,
                       50,  55,   57, 60, 65, 70,  80,  92,  100, 176,   177,        240,        350,
                       999, 2026, -1, -5, -7, -10, -15, -20, -25, -9999, 2147483647, -2147483647};

template <class T, std::size_t count>
const T &pick(QRandomGenerator &random, const T (&list)[count])
{
    return list[random.bounded(static_cast<int>(count))];
}

struct Leaf {
    QString path;
    QJsonValue value;
};

void collect(const QJsonObject &object, const QString &prefix, QVector<Leaf> &leaves)
{
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString path = prefix + member.key();
        if (member->isObject()) {
            collect(member->toObject(), path + QLatin1Char('.'), leaves);
        } else {
            leaves.append({path, member.value()});
        }
    }
}

/// Mostly of the leaf's own kind.
QVariant changed(QRandomGenerator &random, const QJsonValue &value)
{
    const int dice = random.bounded(20);
    if (dice == 0) {
        return {}; // The key is gone.
    }
    if (dice == 1) {
        const QVariant strange[] = {true, QVariant::fromValue(nullptr),
                                    QVariantList{1, QStringLiteral("SET")}, QVariantMap{}, 4.5};
        return pick(random, strange);
    }
    if (value.isDouble() == (dice > 2)) {
        return dice < 8 ? QVariant(value.toInt() + random.bounded(-3, 4)) : QVariant(pick(random, numbers));
    }
    const bool isFlag = value == QLatin1String("SET") || value == QLatin1String("CLR");
    if (isFlag && dice < 17) {
        return value == QLatin1String("SET") ? QStringLiteral("CLR") : QStringLiteral("SET");
    }
    return QString::fromLatin1(pick(random, words));
}

/// What a module's plant holds, which no page of the tool makes.
QVariantMap module()
{
    QVariantMap values{{QStringLiteral("product"), QStringLiteral("aquabox")}};
    for (const char *flag :
         {"isWaterFlowRate", "is_200Combination", "isOduFunctionMS", "isDefrostMode", "isLeakRefrigerant",
          "isHsModel", "is200CombinationOp2", "isModeStandby", "isKnightModel", "isMeterInterface",
          "is_waterthermoonoff", "isSilentPriority"}) {
        values.insert(QStringLiteral("IduFuncList.") + QLatin1String(flag), QStringLiteral("SET"));
    }
    return values;
}

QVariantMap date(QRandomGenerator &random)
{
    const QString path = QStringLiteral("SettingInfo.user.DateInfo.");
    return {{path + QStringLiteral("year"), random.bounded(2015, 2038)},
            {path + QStringLiteral("month"), random.bounded(1, 13)},
            {path + QStringLiteral("mday"), random.bounded(1, 29)}};
}

QByteArray nonsense(QRandomGenerator &random)
{
    const char *const files[] = {"",
                                 "{}",
                                 "[]",
                                 "[1,2]",
                                 "Heat pump, cellar",
                                 R"({"product":"awhp"})",
                                 R"({"IduFuncList":"SET","SettingInfo":{}})"};
    return pick(random, files);
}

} // namespace

QByteArray mutations::file(QRandomGenerator &random)
{
    if (random.bounded(25) == 0) {
        return nonsense(random);
    }
    QJsonDocument document = documents::standard(random.bounded(2) == 0 ? QStringLiteral("R32")
                                                                        : QStringLiteral("R410"));
    if (random.bounded(4) == 0) {
        document = documents::with(document, module());
    }
    if (random.bounded(3) != 0) {
        document = documents::with(document, date(random));
    }
    QVector<Leaf> leaves;
    collect(document.object(), QString(), leaves);
    QVariantMap values{{QStringLiteral("maker.serial"), static_cast<int>(random.bounded(1000))}};
    for (int count = random.bounded(40); count > 0; --count) {
        const Leaf &leaf = leaves.at(random.bounded(leaves.size()));
        values.insert(leaf.path, changed(random, leaf.value));
    }
    if (random.bounded(6) == 0) {
        // Read by the hot water section, and in no document of the tool.
        values.insert(QStringLiteral("IduFuncList.isHotwaterTimerExpand"),
                      random.bounded(2) == 0 ? QStringLiteral("SET") : QStringLiteral("CLR"));
        values.insert(QStringLiteral("IduFuncList.is_hotwater"), QStringLiteral("SET"));
        values.insert(QStringLiteral("IduFuncList.is_timer_hotwater"), QStringLiteral("SET"));
    }
    if (random.bounded(10) == 0) {
        // A whole group is gone.
        const QString &path = leaves.at(random.bounded(leaves.size())).path;
        values.clear();
        values.insert(path.section(QLatin1Char('.'), 0, random.bounded(1, 3)), QVariant());
    }
    return documents::with(document, values).toJson();
}
