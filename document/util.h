#pragma once

class QJsonDocument;
class QJsonValue;
class QString;

/// Access to a JSON document by path: names joined by dots, such as "SettingInfo.user.themeSet". A name may
/// carry an index in brackets; reading skips it, and a write enters that element when more of the path
/// follows.
class Util
{
public:
    /// The value at `path`. Null for a missing key at any depth, for a path that runs into a value that is no
    /// object, and for an array named with an index: arrays aren't entered.
    static QJsonValue readJsonValue(const QJsonDocument &document, const QString &path);

    /// Sets the value at `path`; null removes the key. Below a missing object the rest of the path is
    /// dropped, and the first missing name takes the value itself.
    static void modifyJsonValue(QJsonDocument &document, const QString &path, const QJsonValue &value);

    /// The recursive form, on one value of the document.
    static void modifyJsonValue(QJsonValue &destValue, const QString &path, const QJsonValue &value);
};
