#include "support/documents.h"

#include <QFile>
#include <QJsonObject>

namespace {

void collect(const QJsonObject &object, const QString &prefix, QVariantMap &leaves)
{
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString path = prefix + member.key();
        if (member->isObject() && !member->toObject().isEmpty()) {
            collect(member->toObject(), path + QLatin1Char('.'), leaves);
        } else {
            leaves.insert(path, member->toVariant());
        }
    }
}

/// What differs, without a look into groups that are the same.
void compare(const QJsonObject &before, const QJsonObject &after, const QString &prefix, QVariantMap &changes)
{
    QStringList names = before.keys() + after.keys();
    names.removeDuplicates();
    for (const QString &name : qAsConst(names)) {
        const QJsonValue old = before.value(name);
        const QJsonValue now = after.value(name);
        if (old == now) {
            continue;
        }
        const QString path = prefix + name;
        if (!old.toObject().isEmpty() && !now.toObject().isEmpty()) {
            compare(old.toObject(), now.toObject(), path + QLatin1Char('.'), changes);
            continue;
        }
        QVariantMap gone;
        QVariantMap come;
        collect({{name, old}}, prefix, gone);
        collect({{name, now}}, prefix, come);
        for (auto leaf = gone.begin(); leaf != gone.end(); ++leaf) {
            changes.insert(leaf.key(), QVariant());
        }
        changes = documents::joined(changes, come);
    }
}

QJsonObject set(QJsonObject object, const QStringList &names, const QVariant &value)
{
    const QString &name = names.first();
    if (names.size() > 1) {
        object.insert(name, set(object.value(name).toObject(), names.mid(1), value));
    } else if (value.isValid()) {
        object.insert(name, QJsonValue::fromVariant(value));
    } else {
        object.remove(name);
    }
    return object;
}

} // namespace

QJsonDocument documents::standard(const QString &refrigerant)
{
    QFile file(QStringLiteral(":/defaultsettings/KV5_AWHP_DATA_%1.json").arg(refrigerant));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("No default document %s", qPrintable(refrigerant));
    }
    return QJsonDocument::fromJson(file.readAll());
}

QJsonDocument documents::everything(const QString &refrigerant)
{
    QVariantMap plant;
    for (const char *flag : {"is_hotwater",        "is_timer_hotwater", "is_cool",
                             "isSeasonalAuto",     "is_heater1",        "isAntiFreeze",
                             "isModbusAddress",    "isIduAirTempSW",    "is_waterthermoonoff",
                             "isDefrostMode",      "isSilentPriority",  "isOduFunctionMS",
                             "isEmergencyAllStop", "is_200Combination", "is200CombinationOp2",
                             "isModeStandby",      "isHsModel",         "isKnightModel",
                             "isWaterFlowRate",    "isLeakRefrigerant"}) {
        plant.insert(QStringLiteral("IduFuncList.") + QLatin1String(flag), "SET");
    }
    const QString installation = QStringLiteral("SettingInfo.installation.");
    plant.insert(installation + "sensorDefine.settemp_select", "AIR");
    plant.insert(installation + "sensorDefine.airAndWaterUse", "SET");
    plant.insert(installation + "circuitMainZone.enableMainZone", "SET");
    plant.insert(installation + "smartGrid.smartGridUse", "SET");
    plant.insert(installation + "boilerOfThirdParty.thirdPartyUse", "SET");
    plant.insert(installation + "meterInterface.interfaceAdd", 176);
    plant.insert(installation + "disinfect_time.enable", "SET");
    plant.insert(installation + "OduFunctionMS", "MASTER");
    // The dip switch page reads the key in this spelling.
    plant.insert(installation + "OduFunctionMs", "MASTER");
    plant.insert("SettingInfo.func.silentTimer.set", "SET");
    plant.insert("SettingInfo.user.summerTime.enable", "SET");
    plant.insert("product", refrigerant == QLatin1String("R32") ? "awhp" : "aquabox");
    return with(standard(refrigerant), plant);
}

QJsonDocument documents::with(QJsonDocument document, const QVariantMap &values)
{
    QJsonObject root = document.object();
    for (auto value = values.begin(); value != values.end(); ++value) {
        root = set(root, value.key().split(QLatin1Char('.')), value.value());
    }
    document.setObject(root);
    return document;
}

QVariantMap documents::joined(QVariantMap values, const QVariantMap &more)
{
    for (auto value = more.begin(); value != more.end(); ++value) {
        values.insert(value.key(), value.value());
    }
    return values;
}

QVariantMap documents::changes(const QJsonDocument &before, const QJsonDocument &after)
{
    QVariantMap result;
    compare(before.object(), after.object(), QString(), result);
    return result;
}
