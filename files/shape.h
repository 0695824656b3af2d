#pragma once

#include "files/finding.h"

#include <QJsonObject>

class Schema;

/// A document held against the default document of its refrigerant, which has every key.
namespace shape {

/// The default document for the refrigerant that the document names.
QJsonObject defaultFor(const QJsonObject &document);

/// Keys that are missing or unknown, values of another type, and what can't be a flag.
Findings check(const QJsonObject &document, const Schema &schema);

} // namespace shape
