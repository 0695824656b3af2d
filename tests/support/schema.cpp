#include "support/schema.h"

#include "support/testfiles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QVariant>

namespace {

const QJsonObject &root()
{
    static const QJsonObject object = QJsonDocument::fromJson(
                                          testfiles::content(QStringLiteral(
                                              TEST_DATA_DIR "/../../docs/settings-file.schema.json")))
                                          .object();
    return object;
}

/// What passes through is `true`, or an object whose keys aren't told.
void collect(const QJsonObject &keys, const QString &prefix, bool readOnly, QStringList &paths)
{
    for (auto key = keys.begin(); key != keys.end(); ++key) {
        const QJsonObject told = key.value().toObject();
        const QString path = prefix + key.key();
        collect(told.value(QLatin1String("properties")).toObject(), path + QLatin1Char('.'), readOnly, paths);
        if (!told.isEmpty() && told.value(QLatin1String("type")) != QLatin1String("object")
            && (readOnly || !told.contains(QLatin1String("readOnly")))) {
            paths.append(path);
        }
    }
}

/// A part of the schema with what it refers to.
QJsonObject resolved(const QJsonObject &part)
{
    const QString name = part.value(QLatin1String("$ref")).toString().section(QLatin1Char('/'), -1);
    return name.isEmpty() ? part
                          : root().value(QLatin1String("definitions")).toObject().value(name).toObject();
}

/// What the schema says of a path, alternatives one by one.
QVector<QJsonObject> partsOf(const QString &path)
{
    QJsonObject part = root();
    for (const QString &name : path.split(QLatin1Char('.'))) {
        part = part.value(QLatin1String("properties")).toObject().value(name).toObject();
    }
    QVector<QJsonObject> parts;
    for (const auto &each : part.value(QLatin1String("anyOf")).toArray()) {
        parts.append(resolved(each.toObject()));
    }
    return parts.isEmpty() ? QVector<QJsonObject>{resolved(part)} : parts;
}

bool takes(const QJsonObject &part, const QVariant &value)
{
    if (part.contains(QLatin1String("const"))) {
        return part.value(QLatin1String("const")).toVariant() == value;
    }
    if (part.contains(QLatin1String("enum"))) {
        return part.value(QLatin1String("enum")).toArray().contains(QJsonValue::fromVariant(value));
    }
    if (part.value(QLatin1String("type")) == QLatin1String("integer")) {
        const double number = value.toDouble();
        return value.type() != QVariant::String && number == static_cast<int>(number)
            && number >= part.value(QLatin1String("minimum")).toDouble(number)
            && number <= part.value(QLatin1String("maximum")).toDouble(number);
    }
    const QRegularExpression pattern(part.value(QLatin1String("pattern")).toString());
    return value.type() == QVariant::String && pattern.match(value.toString()).hasMatch();
}

} // namespace

QStringList schema::written()
{
    QStringList paths;
    collect(root().value(QLatin1String("properties")).toObject(), QString(), false, paths);
    return paths;
}

QStringList schema::told()
{
    QStringList paths;
    collect(root().value(QLatin1String("properties")).toObject(), QString(), true, paths);
    return paths;
}

bool schema::takes(const QString &path, const QVariant &value)
{
    const auto parts = partsOf(path);
    return std::any_of(parts.begin(), parts.end(),
                       [&value](const QJsonObject &part) { return ::takes(part, value); });
}

QVariantList schema::around(const QString &path)
{
    QVariantList values{QVariant(), QStringLiteral("x"), QString(), 0, -9999};
    for (const QJsonObject &part : partsOf(path)) {
        for (const auto &word : part.value(QLatin1String("enum")).toArray()) {
            values << word.toString() << word.toString().toLower();
        }
        if (part.contains(QLatin1String("minimum"))) {
            const int low = part.value(QLatin1String("minimum")).toInt();
            const int high = part.value(QLatin1String("maximum")).toInt();
            values << low - 1 << low << low + 1 << (low + high) / 2 << high - 1 << high << high + 1;
        }
    }
    return values;
}
