#include "files/schema.h"

#include "document/util.h"
#include "files/catalogue.h"
#include "files/reading.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <valijson/adapters/qtjson_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

namespace {

// Far more than a settings file may hold.
constexpr int longestText = 100;
// The one step that isn't the key of its text.
constexpr auto stepByPosition = "SettingInfo.installation.digitalInput";

/// The dotted path of a place as the library tells it: "<root>", "[name]" for each step down.
QString dotted(const std::vector<std::string> &context)
{
    QStringList names;
    for (std::size_t step = 1; step < context.size(); ++step) {
        const QString name = QString::fromStdString(context.at(step));
        names.append(name.mid(1, name.size() - 2));
    }
    return names.join(QLatin1Char('.'));
}

QJsonObject load()
{
    QFile file(QStringLiteral(":/files/settings-file.schema.json"));
    file.open(QIODevice::ReadOnly);
    return QJsonDocument::fromJson(file.readAll()).object();
}

QString range(const QJsonObject &rule)
{
    return QStringLiteral("%1 to %2")
        .arg(rule.value(QLatin1String("minimum")).toInt())
        .arg(rule.value(QLatin1String("maximum")).toInt());
}

QString words(const QJsonArray &choices)
{
    QStringList told;
    for (const QJsonValue &choice : choices) {
        told.append(reading::told(choice));
    }
    return told.join(QStringLiteral(", "));
}

} // namespace

struct Schema::Validator {
    explicit Validator(const QJsonObject &root)
    {
        valijson::SchemaParser(valijson::SchemaParser::kDraft7)
            .populateSchema(valijson::adapters::QtJsonAdapter(QJsonValue(root)), schema);
    }

    valijson::Schema schema;
};

Schema::Schema()
    : root(load())
    , validator(std::make_unique<Validator>(root))
{
    collect(root, {});
}

Schema::~Schema() = default;

void Schema::collect(const QJsonObject &group, const QString &path)
{
    const QJsonObject members = group.value(QLatin1String("properties")).toObject();
    for (auto member = members.begin(); member != members.end(); ++member) {
        const QString name = path.isEmpty() ? member.key() : path + QLatin1Char('.') + member.key();
        const QJsonObject rule = resolved(member->toObject());
        named.insert(name, rule);
        if (rule.contains(QLatin1String("properties"))) {
            collect(rule, name);
        } else if (!rule.isEmpty() && rule.value(QLatin1String("type")) != QLatin1String("object")) {
            leaves.insert(name, rule);
        }
    }
}

/// With what it refers to put in; its own words stand.
QJsonObject Schema::resolved(const QJsonObject &rule) const
{
    const QString reference = rule.value(QLatin1String("$ref")).toString();
    if (reference.isEmpty()) {
        return rule;
    }
    QJsonObject whole = root.value(QLatin1String("definitions")).toObject();
    whole = whole.value(reference.section(QLatin1Char('/'), -1)).toObject();
    for (auto each = rule.begin(); each != rule.end(); ++each) {
        whole.insert(each.key(), each.value());
    }
    return whole;
}

QString Schema::meaning(const QString &path) const
{
    return named.value(path).value(QLatin1String("description")).toString();
}

QString Schema::allowed(const QJsonObject &rule) const
{
    if (rule.contains(QLatin1String("enum"))) {
        return words(rule.value(QLatin1String("enum")).toArray());
    }
    if (rule.contains(QLatin1String("const"))) {
        return reading::told(rule.value(QLatin1String("const")));
    }
    if (rule.contains(QLatin1String("minimum"))) {
        return range(rule);
    }
    QStringList choices;
    const QJsonArray rules = rule.value(QLatin1String("anyOf")).toArray();
    for (const QJsonValue &choice : rules) {
        choices.append(allowed(resolved(choice.toObject())));
    }
    return choices.join(QStringLiteral(" or "));
}

QString Schema::wrong(const QString &path, const QJsonValue &value) const
{
    const QJsonObject rule = leaves.value(path);
    const QString choices = allowed(rule);
    if (!choices.isEmpty()) {
        return QStringLiteral("can be %1 only").arg(choices);
    }
    if (!rule.isEmpty() && !value.isString()) {
        return QStringLiteral("has to be a text");
    }
    if (value.toString().size() > rule.value(QLatin1String("maxLength")).toInt(value.toString().size())) {
        return QStringLiteral("has more than %1 characters")
            .arg(rule.value(QLatin1String("maxLength")).toInt());
    }
    return rule.isEmpty() ? QStringLiteral("isn't the group of settings that is due here")
                          : QStringLiteral("isn't of the form that it has to have: %1").arg(meaning(path));
}

/// A blank list stores the number below its first one, which a list of numbers does only where that is 0; or
/// the step of that number.
bool Schema::isLeftByWizard(const QString &path, const QJsonValue &value) const
{
    if (value == QLatin1String("STEP-1")) {
        return path == QLatin1String(stepByPosition);
    }
    const QJsonObject rule = leaves.value(path);
    const int blank = rule.value(QLatin1String("minimum")).toInt() - 1;
    return rule.contains(QLatin1String("minimum")) && value == QJsonValue(blank)
        && (blank == 0 || catalogue::isPosition(path));
}

Finding Schema::finding(const QString &path, const QJsonObject &document) const
{
    const QJsonValue value = reading::at(document, path);
    const bool left = isLeftByWizard(path, value);
    return {left ? Severity::Warning : Severity::Error, path, reading::told(value),
            left ? QStringLiteral("stands for a list in which nothing was chosen") : wrong(path, value)};
}

/// The document as the library is to see it.
QJsonObject Schema::plain(const QJsonObject &document) const
{
    QJsonDocument whole(document);
    // The one word that is compared without regard to case.
    Util::modifyJsonValue(whole, QStringLiteral("product"),
                          document.value(QLatin1String("product")).toString().toLower());
    for (auto leaf = leaves.begin(); leaf != leaves.end(); ++leaf) {
        // Its patterns recurse for every character.
        const QString text = leaf->contains(QLatin1String("pattern"))
            ? reading::at(document, leaf.key()).toString()
            : QString();
        if (text.size() > longestText) {
            Util::modifyJsonValue(whole, leaf.key(), text.left(longestText));
        }
    }
    return whole.object();
}

Findings Schema::check(const QJsonObject &document) const
{
    valijson::ValidationResults results;
    valijson::Validator checker;
    checker.validate(validator->schema, valijson::adapters::QtJsonAdapter(QJsonValue(plain(document))),
                     &results);

    QStringList places;
    valijson::ValidationResults::Error error;
    while (results.popError(error)) {
        places.append(dotted(error.context));
    }
    places.sort();
    places.removeDuplicates();
    Findings found;
    for (const QString &place : qAsConst(places)) {
        // What holds a faulty value is told by that value. A key that is missing is another's business.
        if (leaves.contains(place) || (named.contains(place) && !reading::at(document, place).isObject())) {
            found.push_back(finding(place, document));
        }
    }
    return found;
}
