#pragma once

#include <QStringList>
#include <QVariantList>

/// docs/settings-file.schema.json, which tells every key of a settings file.
namespace schema {

/// The paths that pages write, in the order of the schema's keys. All else passes unchanged.
QStringList written();

/// The same, and those that the tool only reads.
QStringList told();

/// Whether the value at that path is one that the tool can have written.
bool takes(const QString &path, const QVariant &value);

/// Values at the path for tests of loads: all words, also in small letters, the bounds of numbers and what
/// lies beside them, unknown ones, and an invalid one for a missing key.
QVariantList around(const QString &path);

} // namespace schema
