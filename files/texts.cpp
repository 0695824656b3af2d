#include "files/texts.h"

#include "document/files.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

QString languages() { return Texts::folder() + QStringLiteral("/language"); }

/// The same letters in one way of writing them; a shell may give another than the disk.
QString composed(const QString &name) { return name.normalized(QString::NormalizationForm_C); }

} // namespace

std::optional<Texts> Texts::load(const QString &name)
{
    const QStringList names = delivered();
    const auto found = std::find_if(names.begin(), names.end(), [&name](const QString &each) {
        return composed(each).compare(composed(name), Qt::CaseInsensitive) == 0;
    });
    const bool english = name.compare(QLatin1String("English"), Qt::CaseInsensitive) == 0;
    if (found == names.end() && !english) {
        return std::nullopt;
    }
    const auto content = files::read(found == names.end()
                                         ? QStringLiteral(":/language/English.json")
                                         : languages() + QLatin1Char('/') + *found + QStringLiteral(".json"));
    static const QRegularExpression brokenWord(QStringLiteral("-\\n(?=\\p{Ll})"));
    const QJsonObject map = QJsonDocument::fromJson(content.value_or(QByteArray())).object();
    Texts texts;
    for (auto each = map.begin(); each != map.end(); ++each) {
        // The window breaks long captions.
        const QString shown = each->toString().remove(brokenWord).simplified();
        if (!shown.isEmpty()) {
            texts.texts.insert(each.key(), shown);
        }
    }
    return texts;
}

QStringList Texts::delivered()
{
    QStringList names = QDir(languages()).entryList({QStringLiteral("*.json")}, QDir::Files);
    names.replaceInStrings(QStringLiteral(".json"), QString());
    return names;
}

QString Texts::folder()
{
    const QString here = QCoreApplication::applicationDirPath();
    return QDir(here).exists(QStringLiteral("language"))
        ? here
        : here + QStringLiteral("/../lib/calora-configurator");
}
