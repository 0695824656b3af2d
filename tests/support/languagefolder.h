#pragma once

#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

/// The language folder beside the test, which is the test's own.
namespace languagefolder {

inline QString path() { return QCoreApplication::applicationDirPath() + QStringLiteral("/language"); }

inline QString file(const QString &name) { return path() + QLatin1Char('/') + name; }

inline QString iniPath() { return file(QStringLiteral("language.ini")); }

/// The file that is delivered.
inline QByteArray english() { return testfiles::content(QStringLiteral(":/language/English.json")); }

/// How many texts a language has.
inline int textCount() { return QJsonDocument::fromJson(english()).object().size(); }

/// English with `mark` behind each text.
inline QByteArray marked(const QString &mark)
{
    QJsonObject texts = QJsonDocument::fromJson(english()).object();
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        text.value() = text.value().toString() + mark;
    }
    return QJsonDocument(texts).toJson();
}

/// Puts the folder back as it is delivered.
inline void restore()
{
    QDir(path()).removeRecursively();
    QDir().mkpath(path());
    testfiles::put(iniPath(), "English");
    testfiles::put(file(QStringLiteral("English.json")), english());
}

} // namespace languagefolder
