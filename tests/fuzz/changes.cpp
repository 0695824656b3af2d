#include "fuzz/changes.h"

#include "fuzz/target.h"
#include "support/schema.h"

#include <QJsonObject>

#include <algorithm>

namespace {

void collect(const QJsonValue &before, const QJsonValue &after, const QString &path, QStringList &changed)
{
    if (before == after) {
        return;
    }
    if (!before.isObject() || !after.isObject()) {
        changed.append(path);
        return;
    }
    const QJsonObject old = before.toObject();
    const QJsonObject now = after.toObject();
    QStringList names = old.keys() + now.keys();
    names.removeDuplicates();
    for (const QString &name : qAsConst(names)) {
        collect(old.value(name), now.value(name), path.isEmpty() ? name : path + QLatin1Char('.') + name,
                changed);
    }
}

} // namespace

QStringList changes(const QJsonDocument &before, const QJsonDocument &after)
{
    QStringList changed;
    collect(before.object(), after.object(), QString(), changed);
    return changed;
}

WrittenPaths::WrittenPaths()
{
    const QStringList written = schema::written();
    paths = QSet<QString>(written.begin(), written.end());
}

bool WrittenPaths::isAbove(const QString &path) const
{
    return std::any_of(paths.begin(), paths.end(),
                       [&path](const QString &each) { return each.startsWith(path + QLatin1Char('.')); });
}

void WrittenPaths::expectOnlyThese(const QStringList &changed) const
{
    for (const QString &path : changed) {
        if (!paths.contains(path) && !isAbove(path)) {
            fail("a page has changed what no page writes", path.toUtf8());
        }
    }
}
