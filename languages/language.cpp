#include "languages/language.h"

#include "document/files.h"

#include <QDebug>
#include <QJsonObject>

void Language::set(const QJsonDocument &language)
{
    document = language;
    map = language.object().toVariantMap();
}

bool Language::read(const QString &path)
{
    const auto content = files::read(path);
    if (content) {
        set(QJsonDocument::fromJson(*content));
    }
    return content.has_value();
}

// The message names the dialog, whose operation this is.
QString Language::value(const QString &key) const
{
    const QString text = map.value(key).toString();
    if (text.isEmpty()) {
        qDebug() << key;
        qWarning() << "MainDialog::languageValue language value is empty";
    }
    return text;
}

QString Language::textOrKey(const QString &key) const
{
    const QString text = map.value(key).toString();
    return text.isEmpty() ? key : text;
}

QString Language::keyOrText(const QString &text) const
{
    const QString found = key(text);
    return found.isEmpty() ? text : found;
}
