#pragma once

#include <QJsonDocument>
#include <QMap>
#include <QVariant>

/// A language: a file as parsed, and its texts by key.
struct Language {
    QJsonDocument document;
    QMap<QString, QVariant> map;

    void set(const QJsonDocument &language);
    /// False, and nothing changed, when the file can't be opened. What isn't JSON has no texts.
    bool read(const QString &path);

    /// The text of a key; empty, with a warning in the log, when there is none.
    QString value(const QString &key) const;
    /// The text of a key, or the key.
    QString textOrKey(const QString &key) const;
    /// The first key in sorted order that has the text, or the text.
    QString keyOrText(const QString &text) const;
    /// The first key in sorted order that has the text, or nothing.
    QString key(const QString &text) const { return map.key(text); }
};
