#pragma once

#include <QByteArray>
#include <QRandomGenerator>

/// Settings files that have gone wrong in transport or come from elsewhere.
namespace mutations {

/// A default document with random changes; now and then something that is no document at all.
QByteArray file(QRandomGenerator &random);

} // namespace mutations
