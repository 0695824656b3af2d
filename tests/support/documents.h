#pragma once

#include <QJsonDocument>
#include <QVariantMap>

/// Settings documents of the tests.
namespace documents {

/// The default document of "R32" or "R410".
QJsonDocument standard(const QString &refrigerant);

/// The default document with all that the pages can offer: two circuits, air and water as references, every
/// option, on a heat pump for "R32" or a hydronic module for "R410".
QJsonDocument everything(const QString &refrigerant);

/// The document with the values set at their paths; an invalid QVariant removes the key.
QJsonDocument with(QJsonDocument document, const QVariantMap &values);

/// Both maps in one; `more` wins.
QVariantMap joined(QVariantMap values, const QVariantMap &more);

/// Path -> value of every leaf that differs: the value in `after`, or an invalid QVariant where it is gone.
QVariantMap changes(const QJsonDocument &before, const QJsonDocument &after);

} // namespace documents
