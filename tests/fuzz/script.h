#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QVector>

/// The form of most inputs, since bytes at random are seldom JSON: a first line that tells what to start
/// from, then a line each of a path, a tab and a value as JSON. The value "undefined" stands for none at all.
///
///     R32
///     SettingInfo.user.DateInfo.year	"last"
struct Script {
    struct Line {
        QString path;
        QJsonValue value;
        /// A line without a tab names a path alone.
        bool hasValue = false;
    };
    QByteArray base;
    QVector<Line> lines;

    static Script parse(const QByteArray &input);
};

/// The object with the values set, objects made on the way; a missing value removes the key. A path is cut at
/// each dot.
QJsonObject withLines(QJsonObject object, const QVector<Script::Line> &lines);
