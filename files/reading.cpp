#include "files/reading.h"

#include "document/files.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

constexpr int longestList = 10;

/// Where the parser stopped, counted in characters as an editor counts them.
QString position(const QByteArray &content, int offset)
{
    const QByteArray before = content.left(offset);
    const int lineStart = before.lastIndexOf('\n') + 1;
    const int line = before.count('\n') + 1;
    const int column = QString::fromUtf8(before.mid(lineStart)).size() + 1;
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

QString compact(const QJsonValue &value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

} // namespace

Reading reading::read(const QString &name)
{
    if (name == QLatin1String("-")) {
        QFile input;
        return input.open(stdin, QIODevice::ReadOnly) ? parse(input.readAll())
                                                      : Reading{{}, QStringLiteral("can't be read")};
    }
    const auto content = files::read(name);
    return content ? parse(*content) : Reading{{}, QStringLiteral("can't be opened")};
}

Reading reading::parse(const QByteArray &content)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError) {
        return {{},
                QStringLiteral("is not JSON: %1 at %2")
                    .arg(error.errorString(), position(content, error.offset))};
    }
    if (!document.isObject()) {
        return {{}, QStringLiteral("is no settings file: it holds a list where a group of settings is due")};
    }
    return {document.object(), {}};
}

QJsonValue reading::at(const QJsonObject &document, const QString &path)
{
    QJsonValue value = document;
    const QStringList names = path.split(QLatin1Char('.'));
    for (const QString &name : names) {
        value = value.toObject().value(name);
    }
    return value;
}

QString reading::below(const QString &path, const QString &key)
{
    QString name = key;
    name.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('.'), QLatin1String("\\."));
    if (name.isEmpty()) {
        name = QLatin1Char('\\');
    }
    return path.isEmpty() ? name : path + QLatin1Char('.') + name;
}

QString reading::cut(const QString &text, int longest)
{
    return text.size() <= longest ? text : text.left(longest) + QStringLiteral("…");
}

QString reading::told(const QJsonValue &value)
{
    if (value.isUndefined()) {
        return {};
    }
    const QJsonArray list = value.toArray();
    const bool isShort = list.size() <= longestList
        && std::none_of(list.begin(), list.end(), [](const QJsonValue &each) { return !each.isDouble(); });
    if (value.isObject() || (value.isArray() && !isShort)) {
        return value.isObject() ? QStringLiteral("{…}") : QStringLiteral("[…]");
    }
    return cut(compact(value.isString() ? value.toString().left(longestValue + 1) : value));
}

std::pair<QString, QString> reading::told(const QJsonValue &one, const QJsonValue &other)
{
    const QString text = compact(one);
    const QString otherText = compact(other);
    const auto same = std::mismatch(text.begin(), text.end(), otherText.begin(), otherText.end()).first
        - text.begin();
    const auto rest = [same](const QString &whole) {
        return QStringLiteral("…") + cut(whole.mid(static_cast<int>(same)));
    };
    return {rest(text), rest(otherText)};
}
