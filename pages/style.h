#pragma once

#include <QString>

class QWidget;

/// Style sheet texts that pages share.
namespace style {

/// The style of an enabled or dimmed radio.
QString radioText(bool isEnabled);

/// The style of an enabled or dimmed label. The dip switch page has colours of its own.
QString labelText(bool isEnabled);

/// Gives the widget the style sheet unless it has it already: each new sheet loads its pictures anew, and the
/// copies that are drawn stay in the pixmap cache.
void apply(QWidget *widget, const QString &sheet);

/// Sets a property that the window's style sheet asks for, and styles the widget anew if it changes.
void mark(QWidget *widget, const char *property, bool value);

} // namespace style
