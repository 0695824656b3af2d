#include "files/diff.h"

#include "files/catalogue.h"
#include "files/options.h"
#include "files/printing.h"
#include "files/reading.h"
#include "files/schema.h"
#include "files/shape.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSet>

#include <tuple>

namespace {

/// What is there to read where the page has no text, or the same one for both.
QString raw(const QJsonValue &value)
{
    return value.isUndefined() ? QStringLiteral("–") : reading::told(value);
}

/// Whether the hour tells it.
bool isHalf(const QJsonValue &value)
{
    const QString half = value.toString().toUpper();
    return half == QLatin1String("AM") || half == QLatin1String("PM");
}

/// Every value that isn't a group, by its path.
void collect(const QJsonObject &group, const QString &path, QMap<QString, QJsonValue> *leaves)
{
    for (auto each = group.begin(); each != group.end(); ++each) {
        const QString name = reading::below(path, each.key());
        if (each->isObject() && !each->toObject().isEmpty()) {
            collect(each->toObject(), name, leaves);
        } else {
            leaves->insert(name, *each);
        }
    }
}

class Comparison
{
public:
    Comparison(const QJsonObject &theBefore, const QJsonObject &theAfter, const Texts &theTexts,
               bool fahrenheit)
        : before(theBefore)
        , after(theAfter)
        , texts(theTexts)
        , viewBefore(theTexts, fahrenheit, theBefore)
        , viewAfter(theTexts, fahrenheit, theAfter)
    {
    }

    std::vector<Difference> differences()
    {
        for (const Setting &setting : catalogue::settings()) {
            compareSetting(setting);
        }
        compareRest();
        return found;
    }

private:
    void compareSetting(const Setting &setting)
    {
        if (!catalogue::applies(setting, viewAfter)) {
            return;
        }
        const QString path = QLatin1String(setting.path);
        told.insert(path);
        const QJsonValue one = reading::at(before, path);
        const QJsonValue other = reading::at(after, path);
        // The pump's unit may be another before.
        QString oneText = catalogue::shown(*catalogue::find(path, viewBefore), before, viewBefore);
        QString otherText = catalogue::shown(setting, after, viewAfter);
        if (one == other && (setting.form != Form::Hour || oneText == otherText)) {
            return;
        }
        const QString half = QString(path).replace(QLatin1String(".hour"), QLatin1String(".ampm"));
        if (setting.form == Form::Hour && oneText != otherText && isHalf(reading::at(before, half))
            && isHalf(reading::at(after, half))) {
            told.insert(half);
        }
        if (oneText == otherText) {
            oneText = otherText = QString();
        }
        add({catalogue::pageCaption(setting, texts), catalogue::caption(setting, viewAfter), path, one, other,
             oneText.isEmpty() ? raw(one) : reading::cut(oneText),
             otherText.isEmpty() ? raw(other) : reading::cut(otherText)});
    }

    /// Two that read alike are told from where they begin to differ.
    void add(Difference difference)
    {
        if (difference.beforeText == difference.afterText) {
            std::tie(difference.beforeText, difference.afterText) = reading::told(difference.before,
                                                                                  difference.after);
        }
        found.push_back(std::move(difference));
    }

    void compareRest()
    {
        static const Schema schema;
        QMap<QString, QJsonValue> leavesBefore;
        QMap<QString, QJsonValue> leavesAfter;
        collect(before, {}, &leavesBefore);
        collect(after, {}, &leavesAfter);
        QMap<QString, QJsonValue> all = leavesBefore;
        for (auto each = leavesAfter.begin(); each != leavesAfter.end(); ++each) {
            all.insert(each.key(), *each);
        }
        for (auto each = all.begin(); each != all.end(); ++each) {
            const QJsonValue one = leavesBefore.value(each.key(), QJsonValue::Undefined);
            const QJsonValue other = leavesAfter.value(each.key(), QJsonValue::Undefined);
            if (one != other && !told.contains(each.key())) {
                add({{}, schema.meaning(each.key()), each.key(), one, other, raw(one), raw(other)});
            }
        }
    }

    const QJsonObject &before;
    const QJsonObject &after;
    const Texts &texts;
    const View viewBefore;
    const View viewAfter;
    QSet<QString> told;
    std::vector<Difference> found;
};

QString asLines(const std::vector<Difference> &differences, const Options &options)
{
    QString lines;
    QTextStream out(&lines);
    QString page;
    for (std::size_t number = 0; number < differences.size(); ++number) {
        const Difference &each = differences.at(number);
        if (number == 0 || each.page != page) {
            page = each.page;
            out << (number == 0 ? "" : "\n")
                << (page.isEmpty() ? QStringLiteral("On no page") : printing::plain(page)) << '\n';
        }
        const bool named = !each.caption.isEmpty() && !each.page.isEmpty();
        const QString path = printing::plain(reading::cut(each.path, reading::longestPath));
        out << "  " << (named ? printing::plain(each.caption) : path) << ": "
            << printing::plain(each.beforeText) << QStringLiteral(" → ") << printing::plain(each.afterText);
        if (!named && !each.caption.isEmpty()) {
            out << "  (" << printing::plain(each.caption) << ')';
        }
        out << (options.paths && named ? QStringLiteral("  [%1]").arg(path) : QString()) << '\n';
    }
    out.flush();
    return lines;
}

QString asJson(const std::vector<Difference> &differences)
{
    QJsonArray list;
    for (const Difference &each : differences) {
        // A value that is missing is missing here, too.
        QJsonObject told{{QStringLiteral("page"), each.page},
                         {QStringLiteral("caption"), each.caption},
                         {QStringLiteral("path"), each.path},
                         {QStringLiteral("beforeText"), each.beforeText},
                         {QStringLiteral("afterText"), each.afterText}};
        told.insert(QStringLiteral("before"), each.before);
        told.insert(QStringLiteral("after"), each.after);
        list.append(told);
    }
    return printing::json({{QStringLiteral("differences"), list}}) + QLatin1Char('\n');
}

} // namespace

std::vector<Difference> diff::compare(const QJsonObject &before, const QJsonObject &after, const Texts &texts,
                                      bool fahrenheit)
{
    return Comparison(before, after, texts, fahrenheit).differences();
}

int diff::run(const Options &options)
{
    const auto texts = printing::language(options.language);
    if (!texts) {
        return 2;
    }
    std::vector<QJsonObject> documents;
    for (const QString &file : options.files) {
        const Reading reading = reading::read(file);
        if (!reading.document) {
            printing::complain(file + QStringLiteral(": ") + reading.trouble);
            return 2;
        }
        documents.push_back(*reading.document);
    }
    if (options.defaults) {
        documents.insert(documents.begin(), shape::defaultFor(documents.front()));
    }
    const auto differences = compare(documents.at(0), documents.at(1), *texts, options.fahrenheit);
    return printing::say(options.json ? asJson(differences) : asLines(differences, options),
                         differences.empty() ? 0 : 1);
}
