#pragma once

#include <QJsonObject>

#include <optional>

class QJsonValue;

/// A settings file as it was read: its document, or why it isn't usable.
struct Reading {
    std::optional<QJsonObject> document;
    QString trouble;
};

/// Reading files, and single values out of them.
namespace reading {

/// Reads the file of that name; "-" is the standard input.
Reading read(const QString &name);
/// The document in these bytes.
Reading parse(const QByteArray &content);
/// The value at a path of names joined by dots; undefined when there is none.
QJsonValue at(const QJsonObject &document, const QString &path);
/// A value as JSON on one line, cut where it gets long.
QString told(const QJsonValue &value);

} // namespace reading
