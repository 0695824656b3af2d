#include "support/pathrules.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

namespace {

struct Part {
    QString name;
    int index = 0;
    bool bracket = false;
};

QVector<Part> parts(QString path)
{
    QVector<Part> result;
    while (true) {
        const QStringList dots = path.split(QLatin1Char('.'));
        const int open = path.indexOf(QLatin1Char('['));
        const int close = path.indexOf(QLatin1Char(']'));
        Part part;
        if (open >= 0 && close > open) {
            part.index = path.mid(open + 1, close - open - 1).toInt();
        }
        QString rest;
        if (dots.first().contains(QLatin1Char('['))) {
            part.bracket = true;
            part.name = path.left(open);
            rest = close > 0 ? path.mid(close + 1) : QString();
            rest = rest.startsWith(QLatin1Char('.')) ? rest.mid(1) : rest;
        } else {
            part.name = dots.first();
            rest = part.name.isEmpty() ? QString() : dots.mid(1).join(QLatin1Char('.'));
        }
        result.append(part);
        if (rest.isEmpty()) {
            return result;
        }
        path = rest;
    }
}

bool there(const QJsonArray &list, int index) { return index >= 0 && index < list.size(); }

QJsonValue memberOrNull(const QJsonValue &at, const QString &name)
{
    const QJsonObject object = at.toObject();
    return object.contains(name) ? object.value(name) : QJsonValue();
}

QJsonObject storedAs(QJsonObject object, const QString &name, const QJsonValue &value)
{
    if (value.isNull()) {
        object.remove(name);
    } else {
        object.insert(name, value);
    }
    return object;
}

QJsonArray storedAt(QJsonArray array, int index, const QJsonValue &value)
{
    if (there(array, index) && value.isNull()) {
        array.removeAt(index);
    } else if (there(array, index)) {
        array.replace(index, value);
    }
    return array;
}

QJsonValue written(const QJsonValue &at, const QVector<Part> &path, const QJsonValue &value);

/// What becomes of the value below `at` that the first part names.
QJsonValue writtenBelow(const QJsonValue &sub, const QVector<Part> &path, const QJsonValue &value)
{
    const QVector<Part> rest = path.mid(1);
    if (!rest.isEmpty() && sub.isObject()) {
        return written(sub, rest, value);
    }
    if (!rest.isEmpty() && sub.isArray()) {
        QJsonArray array = sub.toArray();
        const int index = path.first().index;
        if (there(array, index)) {
            array.replace(index, written(array.at(index), rest, value));
        }
        return array;
    }
    return value;
}

QJsonValue written(const QJsonValue &at, const QVector<Part> &path, const QJsonValue &value)
{
    const Part &part = path.first();
    if (at.isObject()) {
        return storedAs(at.toObject(), part.name, writtenBelow(memberOrNull(at, part.name), path, value));
    }
    if (at.isArray()) {
        const QJsonArray array = at.toArray();
        const int number = part.name.toInt();
        const QJsonValue sub = there(array, number) ? array.at(number) : QJsonValue();
        return storedAt(array, part.index, writtenBelow(sub, path, value));
    }
    return value;
}

} // namespace

QJsonValue pathrules::read(const QJsonValue &root, const QString &path)
{
    QJsonValue at = root;
    for (const Part &part : parts(path)) {
        at = memberOrNull(at, part.name);
        if (part.bracket && at.isArray()) {
            return {};
        }
    }
    return at;
}

QJsonValue pathrules::write(const QJsonValue &root, const QString &path, const QJsonValue &value)
{
    return written(root, parts(path), value);
}
