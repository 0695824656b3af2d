#pragma once

#include <vector>

class QComboBox;
class QRadioButton;
class QWidget;

// Rows of a page: each says a control once, and the page loads, saves and checks it by its row. A path that
// one row or slot alone uses stands there; one that several places ask for stands in document/paths.h.

/// A label or radio that shows the text of a language key.
struct CaptionRow {
    QWidget *widget;
    const char *key;
};

/// A radio and the word that it saves.
struct Option {
    QRadioButton *radio;
    const char *word = nullptr;
};

/// Two or three radios that stand for the words at a path, in the order in which the check names them.
struct Choice {
    /// Null where several paths tell the choice: then the page loads and saves it by itself.
    const char *path;
    std::vector<Option> options;
};

/// How a combo box shows a document value.
enum class Shown {
    Index,       ///< the index plus the row's offset is the value
    Number,      ///< the text is the number
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
