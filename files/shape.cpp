#include "files/shape.h"

#include "files/reading.h"
#include "files/schema.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace {

// Unknown keys of one group that are told one by one.
constexpr int toldKeys = 20;
// No key of a settings file is longer.
constexpr int longestKey = 60;

QJsonObject load(const char *name)
{
    QFile file(QStringLiteral(":/defaultsettings/KV5_AWHP_DATA_%1.json").arg(QLatin1String(name)));
    file.open(QIODevice::ReadOnly);
    return QJsonDocument::fromJson(file.readAll()).object();
}

const char *typeName(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Object:
        return "a group";
    case QJsonValue::Array:
        return "a list";
    case QJsonValue::String:
        return "a text";
    case QJsonValue::Double:
        return "a whole number";
    default:
        return "nothing else";
    }
}

bool isFlag(const QJsonValue &value)
{
    return value == QLatin1String("SET") || value == QLatin1String("CLR");
}

/// Walks both documents at once.
class Comparison
{
public:
    explicit Comparison(const Schema &theSchema)
        : schema(theSchema)
    {
    }

    void compare(const QJsonValue &value, const QJsonValue &model, const QString &path)
    {
        const bool fraction = value.isDouble() && value.toDouble() != std::floor(value.toDouble());
        if (value.type() != model.type() || fraction) {
            add(Severity::Error, path, value,
                QStringLiteral("has to be %1").arg(QLatin1String(typeName(model))));
        } else if (model.isObject()) {
            compareGroups(value.toObject(), model.toObject(), path);
        } else if (model.isArray()) {
            compareLists(value.toArray(), model.toArray(), path);
        } else if (isFlag(model) && !isFlag(value)) {
            add(Severity::Warning, path, value, QStringLiteral("is a flag, which is \"SET\" or \"CLR\""));
        }
    }

    Findings found;

private:
    void add(Severity severity, const QString &path, const QJsonValue &value, const QString &what)
    {
        found.push_back({severity, path, reading::told(value), what});
    }

    void compareGroups(const QJsonObject &group, const QJsonObject &model, const QString &path)
    {
        const auto below = [&path](const QString &name) { return reading::below(path, name); };
        for (auto each = model.begin(); each != model.end(); ++each) {
            const QString name = below(each.key());
            const auto own = group.find(each.key());
            if (own == group.end()) {
                const bool matters = schema.isUsed(name) || each->isObject();
                add(matters ? Severity::Error : Severity::Warning, name, QJsonValue::Undefined,
                    QStringLiteral("is missing"));
            } else {
                compare(*own, *each, name);
            }
        }
        int unknown = 0;
        for (auto each = group.begin(); each != group.end(); ++each) {
            if (model.contains(each.key()) || schema.isNamed(below(each.key()))) {
                continue;
            }
            if (++unknown <= toldKeys) {
                add(Severity::Note, below(each.key().left(longestKey)), each.value(),
                    QStringLiteral("is an unknown key, which passes through"));
            }
        }
        if (unknown > toldKeys) {
            add(Severity::Note, path, QJsonValue::Undefined,
                QStringLiteral("has %1 more unknown keys").arg(unknown - toldKeys));
        }
    }

    void compareLists(const QJsonArray &list, const QJsonArray &model, const QString &path)
    {
        if (list.size() != model.size()) {
            add(Severity::Error, path, list, QStringLiteral("has to hold %1 values").arg(model.size()));
            return;
        }
        for (int index = 0; index < list.size(); ++index) {
            compare(list.at(index), model.at(index), QStringLiteral("%1[%2]").arg(path).arg(index));
        }
    }

    const Schema &schema;
};

} // namespace

QJsonObject shape::defaultFor(const QJsonObject &document)
{
    static const QJsonObject r32 = load("R32");
    static const QJsonObject r410 = load("R410");
    const QString flag = reading::at(document, QStringLiteral("IduFuncList.isR32")).toString();
    return flag.compare(QLatin1String("CLR"), Qt::CaseInsensitive) == 0 ? r410 : r32;
}

Findings shape::check(const QJsonObject &document, const Schema &schema)
{
    Comparison comparison(schema);
    comparison.compare(document, defaultFor(document), {});
    return comparison.found;
}
