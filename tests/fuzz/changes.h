#pragma once

#include <QJsonDocument>
#include <QSet>
#include <QStringList>

/// The deepest paths at which the two documents differ.
QStringList changes(const QJsonDocument &before, const QJsonDocument &after);

/// The paths that pages write, as the schema names them. All else passes unchanged.
class WrittenPaths
{
public:
    WrittenPaths();

    /// Whether pages write below the path. Where no object stands there, such a write takes the place itself.
    bool isAbove(const QString &path) const;
    /// Fails when there is any other path among these.
    void expectOnlyThese(const QStringList &changed) const;

private:
    QSet<QString> paths;
};
