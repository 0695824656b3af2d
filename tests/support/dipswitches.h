#pragma once

#include <QJsonValue>
#include <QStringList>
#include <QVariantMap>

#include <functional>

/// tests/data/dipswitches.tsv: what the radios of the dip switch page write, and by which words they are
/// checked.
namespace dipswitches {

/// What the document holds at a path.
using ValueOf = std::function<QJsonValue(const QString &path)>;

/// Those that words alone decide.
QStringList choices();
/// The radios of a choice, or of all.
QStringList radios(const QString &choice = {});

/// The radio of the choice that a load checks; "" where the words fit none.
QString checked(const QString &choice, const ValueOf &value);

/// What a click on the radio writes, by path.
QVariantMap clicked(const QString &radio);
/// The part of it that a load writes, too, of a document whose flags stand for the radio.
QVariantMap loaded(const QString &radio);

} // namespace dipswitches
