#pragma once

#include <QStringList>

class Scene;

/// What each control and each load of a page may write to the document, by hand.
namespace effects {

/// The paths that a touch of the control may write, with all loads that it causes.
QStringList ofControl(const QString &name, const Scene &scene);
/// Of these, what each change of the control writes; nothing where that depends.
QStringList own(const QString &name, const Scene &scene);
/// Whether a group that the control's own value lies in is missing, so that the value goes into its place.
bool isBelowMissingGroup(const QString &name, const Scene &scene);
/// The pages whose loads such a touch causes.
QStringList loadsBy(const QString &name);
/// The paths that the loads of these pages may write.
QStringList ofLoads(const QStringList &pages, const Scene &scene);
/// Every path that a control or a load may write.
QStringList all();
/// The paths that pages write by the schema and no row tells of.
QStringList untold();
/// Whether there is a row for the control.
bool knows(const QString &name);
/// Whether there can't be one.
bool needsNoRow(const QString &name);

} // namespace effects
