#pragma once

#include "document/units.h"

class QComboBox;
class QLineEdit;
class QRadioButton;

/// Value lists filled into combo boxes, and the checks that pages share. Messages name the dialog, whose
/// operations these are.
class ValueLists
{
public:
    explicit ValueLists(const Units &inForce);

    /// Fills the list with lower to upper (°C for temperatures, shown in the unit in force), signals blocked.
    /// lower > upper leaves the list as it is.
    void setRangeValueInComboBox(QComboBox *comboBox, int lower, int upper, int unit, int step) const;
    /// Selects the item of a document value, signals blocked. A value that isn't listed lands on an end of
    /// the list.
    void setComboByValue(QComboBox *comboBox, int value, int unit) const;
    /// Replaces the items, signals blocked; an index of -1 leaves the selection to the list.
    static void setComboItems(QComboBox *comboBox, const QStringList &items, int index);
    /// As setComboItems, but -1 selects item 0.
    static void refillComboItems(QComboBox *comboBox, const QStringList &items, int index);
    static int textWithoutTwoChars(const QString &text) { return Units::numberBefore(text, 2); }
    static int textWithoutOneChar(const QString &text) { return Units::numberBefore(text, 1); }

    /// The checks pass for what is hidden or disabled. Index 0 of a list stands for no choice; `third` may be
    /// null.
    static bool checkValidationComboBox(const QComboBox *comboBox);
    static bool checkValidationRadio(const QRadioButton *first, const QRadioButton *second,
                                     const QRadioButton *third);
    static bool checkValidationLineEdit(const QLineEdit *lineEdit);

protected:
    /// Selects the item of that text, else item 0. Signals stay live.
    static void selectText(QComboBox *comboBox, const QString &text);

private:
    const Units &units;
};
