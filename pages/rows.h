#pragma once

#include <vector>

class QAbstractButton;
class QComboBox;
class QRadioButton;
class QWidget;

/// A label, radio or button that shows the text of a language key.
struct CaptionRow {
    QWidget *widget;
    const char *key;
};

/// A radio that saves a word at a path.
struct ChoiceRow {
    const QAbstractButton *button;
    const char *path;
    const char *word;
};

/// How a combo box shows a document value.
enum class Shown {
    Index,       ///< the index plus the row's offset is the value
    Temperature, ///< the text is a number and two unit characters; the value is in °C whatever is shown
    Kelvin,      ///< the text is a number and "K"; under °F it goes through the table all the same
    Key,         ///< the value is the language key of the text
};

/// A combo box that saves the item chosen in it at a path.
struct ValueRow {
    QComboBox *combo;
    const char *path;
    Shown shown;
    int offset = 0;
};

/// Two radios that stand for two words.
struct PairRow {
    QRadioButton *first;
    const char *firstWord;
    QRadioButton *second;
    const char *secondWord;
};
