#pragma once

#include "files/finding.h"

#include <QHash>
#include <QJsonObject>

#include <memory>

/// The schema of the settings file, docs/settings-file.schema.json: what each key means and may hold.
class Schema
{
public:
    Schema();
    ~Schema();

    /// Each value that the schema turns away.
    Findings check(const QJsonObject &document) const;

    /// What the key at the path means; empty where the schema doesn't say.
    QString meaning(const QString &path) const;
    /// Whether the path is one that a page writes or reads; what else there is passes through.
    bool isUsed(const QString &path) const { return leaves.contains(path); }
    /// Whether it is a group with keys of its own, or a key, that the schema names.
    bool isNamed(const QString &path) const { return named.contains(path); }

private:
    struct Validator;

    void collect(const QJsonObject &group, const QString &path);
    QJsonObject plain(const QJsonObject &document) const;
    QJsonObject resolved(const QJsonObject &rule) const;
    Finding finding(const QString &path, const QJsonObject &document) const;
    /// The words and numbers that the rule lets pass.
    QString allowed(const QJsonObject &rule) const;
    QString wrong(const QString &path, const QJsonValue &value) const;
    bool isLeftByWizard(const QString &path, const QJsonValue &value) const;

    QJsonObject root;
    QHash<QString, QJsonObject> leaves; ///< rules of the keys that pages use
    QHash<QString, QJsonObject> named;  ///< all that the schema names
    std::unique_ptr<Validator> validator;
};
