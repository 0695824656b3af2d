#pragma once

#include <QStringList>

class QAbstractButton;
class QWidget;

/// What a screen reader says of widgets. The names come from the texts that stand on the page, when they are
/// asked for: they follow a change of language, and cost the start nothing.
namespace accessnames {

/// The text in one line, as it is spoken, words that it breaks joined.
QString spoken(const QString &text);

/// The name that a form gives: the text of that language key, or the name itself where there is no such key.
QString given(const QWidget *widget);

/// The caption in the row or group of the widget; empty where it has none.
QString caption(const QWidget *row);

/// Row, part of the row and part of the date: "Indoor air temp. range Max", "Start date Month".
QString ofList(const QWidget *list);

/// A group of radios is called by its caption, one of groups by its heading. Any other is nameless: its row
/// tells itself.
QString ofGroup(const QWidget *group);

/// A section header by its section, a drawn button by what the form calls it, any other by its text.
QString ofButton(const QAbstractButton *button);

/// The caption of a step of the wizard.
QString ofStep(const QWidget *step);

/// Whether the step is the current one, and whether it is done or what is open there.
QString stepState(const QWidget *step);

/// The step, 1 to 4, whose button or mark has that object name, and the tab, 0 to 3; 0 and -1 for any other.
int stepOf(const QWidget *part);
int tabOf(const QWidget *part);

} // namespace accessnames
