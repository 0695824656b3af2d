#include "fuzz/script.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

namespace {

QJsonValue valueOf(const QByteArray &text)
{
    // In brackets, because a document is an object or an array. What isn't JSON gives the missing element.
    return QJsonDocument::fromJson('[' + text + ']').array().at(0);
}

QJsonObject with(QJsonObject object, const QStringList &names, const QJsonValue &value)
{
    const QString &name = names.first();
    if (names.size() == 1) {
        object.insert(name, value);
    } else {
        object.insert(name, with(object.value(name).toObject(), names.mid(1), value));
    }
    return object;
}

} // namespace

Script Script::parse(const QByteArray &input)
{
    QList<QByteArray> texts = input.split('\n');
    Script script;
    script.base = texts.takeFirst();
    for (const QByteArray &text : qAsConst(texts)) {
        const int tab = text.indexOf('\t');
        const bool hasValue = tab >= 0;
        if (!text.isEmpty()) {
            script.lines.append({QString::fromUtf8(text.left(tab)),
                                 hasValue ? valueOf(text.mid(tab + 1)) : QJsonValue(), hasValue});
        }
    }
    return script;
}

QJsonObject withLines(QJsonObject object, const QVector<Script::Line> &lines)
{
    for (const Script::Line &line : lines) {
        object = with(object, line.path.split(QLatin1Char('.')), line.value);
    }
    return object;
}
