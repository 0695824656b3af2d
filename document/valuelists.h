#pragma once

#include <QStringList>

class QComboBox;
class QLineEdit;
class QRadioButton;
struct Units;

/// Value lists filled into combo boxes, and the checks that pages share. Messages name the dialog, whose
/// operations these are.
namespace valuelists {

/// Replaces the items, signals blocked; an index of -1 leaves the selection to the list.
void setItems(QComboBox *comboBox, const QStringList &items, int index);
/// Fills the list with lower to upper (°C for temperatures, shown in the unit in force), signals blocked.
/// lower > upper leaves the list as it is.
void setRange(QComboBox *comboBox, const Units &units, int lower, int upper, int unit, int step);
/// Selects the item of a document value, signals blocked. A value that isn't listed lands on an end of the
/// list.
void selectValue(QComboBox *comboBox, const Units &units, int value, int unit);
/// Selects the item of that text, else item 0. Signals stay live.
void selectText(QComboBox *comboBox, const QString &text);

/// The checks pass for what is hidden or disabled. Index 0 of a list stands for no choice; `third` may be
/// null.
bool isChosen(const QComboBox *comboBox);
bool isChosen(const QRadioButton *first, const QRadioButton *second, const QRadioButton *third);
bool isFilled(const QLineEdit *lineEdit);

} // namespace valuelists
