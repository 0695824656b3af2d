#pragma once

#include <QStringList>

/// docs/settings-file.schema.json, which tells every key of a settings file.
namespace schema {

/// The paths that pages write, in the order of the schema's keys. All else passes unchanged.
QStringList written();

} // namespace schema
