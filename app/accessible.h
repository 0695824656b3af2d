#pragma once

/// How the window's widgets present themselves to a screen reader.
namespace accessible {

/// Lets Qt ask here first, for whom somebody asks. Without a screen reader nobody does.
void install();

} // namespace accessible
