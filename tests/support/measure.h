#pragma once

#include <QStringList>

class QString;
class QWidget;

/// Measures whether what a window shows has room. Each function returns a line for each fault it finds.
namespace measure {

/// Labels and buttons whose text is wider or higher than its place, lists without room for one of their
/// items, and lines that are too low for their text.
QStringList cutTexts(const QWidget *window);

/// Widgets that reach out of their parent or lie over a sibling.
QStringList misplaced(const QWidget *window);

/// Scroll areas that scroll though their content would fit, or that scroll sideways at all.
QStringList needlessScrolling(const QWidget *window);

/// The text with each of its words longer by 40 %.
QString lengthened(const QString &text);

} // namespace measure
