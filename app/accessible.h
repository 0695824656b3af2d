#pragma once

class QWidget;

/// How the window's widgets present themselves to a screen reader.
namespace accessible {

/// Lets Qt ask here first, for whom somebody asks. Without a screen reader nobody does.
void install();

/// Tells a screen reader, if there is one, that the language changed what the parts of the window are called.
void languageChanged(const QWidget *window);

} // namespace accessible
