#pragma once

#include <QStringList>

/// Which files are opened through Qt, on Linux; elsewhere none are seen. For programs that have
/// openedfiles.cpp among their sources.
namespace openedfiles {

/// Forgets what has been opened.
void clear();

/// The paths that have been opened since, as they were asked for.
QStringList all();

} // namespace openedfiles
