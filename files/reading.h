#pragma once

#include <QJsonObject>

#include <optional>
#include <utility>

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
/// The path of a key below another path. A dot in the key gets a backslash, so that it is no step; an empty
/// key is a backslash.
QString below(const QString &path, const QString &key);
// As long as a value may get on a line, and a path.
constexpr int longestValue = 60;
constexpr int longestPath = 200;

/// A text, cut where it gets longer.
QString cut(const QString &text, int longest = longestValue);
/// A value as JSON on one line, cut where it gets long.
QString told(const QJsonValue &value);
/// The same of two values, from where they begin to differ.
std::pair<QString, QString> told(const QJsonValue &one, const QJsonValue &other);

} // namespace reading
