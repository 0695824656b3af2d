#include "document/util.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

namespace {

/// The first name of a path, what follows it, and the index behind the name, if there is one.
struct PathHead {
    QString name;
    QString rest;
    int index = 0;
    bool indexed = false;
};

PathHead splitPath(const QString &path)
{
    const int dot = path.indexOf(QLatin1Char('.'));
    const int open = path.indexOf(QLatin1Char('['));
    const int close = path.indexOf(QLatin1Char(']'));

    PathHead head;
    head.index = open >= 0 && close > open ? path.mid(open + 1, close - open - 1).toInt() : 0;
    head.indexed = open >= 0 && (dot < 0 || dot > open);
    if (!head.indexed) {
        head.name = path.left(dot);
        head.rest = dot > 0 ? path.mid(dot + 1) : QString();
        return head;
    }
    head.name = path.left(open);
    head.rest = close > 0 ? path.mid(close + 1) : QString();
    if (head.rest.startsWith(QLatin1Char('.'))) {
        head.rest.remove(0, 1);
    }
    return head;
}

/// Replaces an element, or removes it for null. An element that isn't there leaves the array as it is.
void storeElement(QJsonArray &array, int index, const QJsonValue &value)
{
    if (index < 0 || index >= array.size()) {
        return;
    }
    if (value.isNull()) {
        array.removeAt(index);
    } else {
        array.replace(index, value);
    }
}

QJsonValue changedMember(const QJsonValue &member, const PathHead &head, const QJsonValue &value)
{
    if (head.rest.isEmpty()) {
        return value;
    }
    if (member.isArray()) {
        QJsonArray array = member.toArray();
        QJsonValue element = array.at(head.index);
        Util::modifyJsonValue(element, head.rest, value);
        if (head.index >= 0 && head.index < array.size()) {
            array.replace(head.index, element);
        }
        return array;
    }
    if (member.isObject()) {
        QJsonValue object = member;
        Util::modifyJsonValue(object, head.rest, value);
        return object;
    }
    // Oddity 51: the rest of the path is dropped: the missing name takes the value itself.
    return value;
}

} // namespace

QJsonValue Util::readJsonValue(const QJsonDocument &document, const QString &path)
{
    QJsonObject object = document.object();
    QString rest = path;
    while (true) {
        const PathHead head = splitPath(rest);
        const auto member = object.constFind(head.name);
        const QJsonValue value = member == object.constEnd() ? QJsonValue() : *member;
        if (head.indexed && value.isArray()) {
            return {};
        }
        if (head.rest.isEmpty()) {
            return value;
        }
        object = value.toObject();
        rest = head.rest;
    }
}

void Util::modifyJsonValue(QJsonDocument &document, const QString &path, const QJsonValue &value)
{
    QJsonValue root = document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    modifyJsonValue(root, path, value);
    document = root.isArray() ? QJsonDocument(root.toArray()) : QJsonDocument(root.toObject());
}

void Util::modifyJsonValue(QJsonValue &destValue, const QString &path, const QJsonValue &value)
{
    const PathHead head = splitPath(path);
    if (destValue.isArray()) {
        QJsonArray array = destValue.toArray();
        // Oddity 52: an element is fetched by its name read as a number and stored by the index in brackets.
        storeElement(array, head.index, changedMember(array.at(head.name.toInt()), head, value));
        destValue = array;
    } else if (destValue.isObject()) {
        QJsonObject object = destValue.toObject();
        const auto member = object.constFind(head.name);
        const QJsonValue changed = changedMember(
            member == object.constEnd() ? QJsonValue() : QJsonValue(*member), head, value);
        if (changed.isNull()) {
            object.remove(head.name);
        } else {
            object.insert(head.name, changed);
        }
        destValue = object;
    } else {
        qDebug() << "Util::modifyJsonValue destValue:" << destValue;
        destValue = value;
    }
}
