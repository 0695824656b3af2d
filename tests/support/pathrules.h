#pragma once

#include <QJsonValue>
#include <QString>

/// The rules of document/util.h told a second time, slowly: a path is cut into all its parts first, and a
/// write builds each level anew.
namespace pathrules {

QJsonValue read(const QJsonValue &root, const QString &path);

/// `root` with the value written at the path.
QJsonValue write(const QJsonValue &root, const QString &path, const QJsonValue &value);

} // namespace pathrules
