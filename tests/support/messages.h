#pragma once

#include <QStringList>

/// The log of the tool under test. Every message is kept; one that tells of a slot without a signal ends the
/// test run, since a control would then do nothing.
namespace messages {

/// Called once the test runner has set its own handler; calling it again changes nothing.
void install();

/// Forgets what has been logged.
void clear();

/// What has been logged since, a line each.
QStringList all();

/// Whether a message holds `part`.
bool contain(const QString &part);

} // namespace messages
