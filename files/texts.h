#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

/// The texts of one language by key.
class Texts
{
public:
    /// The language of that name from the folder beside the program; nothing when there is none. English is
    /// in the program too.
    static std::optional<Texts> load(const QString &name);
    /// Each key is its own text: no two texts are the same.
    static Texts keys() { return {}; }
    /// Where languages and fonts lie: beside the program, or where the Debian package keeps the
    /// configurator's.
    static QString folder();
    /// The names of the languages there.
    static QStringList delivered();

    /// The text on one line; the key where there is none.
    QString text(const QString &key) const { return texts.value(key, key); }
    QString text(const char *key) const { return text(QString(QLatin1String(key))); }

private:
    QHash<QString, QString> texts;
};
