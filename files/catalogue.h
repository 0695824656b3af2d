#pragma once

#include <QString>

#include <vector>

class QJsonObject;
class Texts;

/// How a page shows the value of a path.
enum class Form {
    Words,      ///< each value is a word or number that stands for a text
    PartOfWord, ///< the same, where the page shows a word for more than this value
    Celsius,    ///< °C, or °F as the tool's table has it
    Kelvin,     ///< a difference
    Number,     ///< times a factor, plus an offset, then the text of the unit
    TwoDigits,  ///< a minute
    Hour,       ///< of twelve in the document, of 24 on the page
    WholeHour,  ///< "05:00"
    Hexadecimal,
    Text,
};

/// A value of the settings file and the control that shows it.
struct Setting {
    const char *path;
    const char *control;  ///< "Page/control", or the radios of one choice separated by blanks
    const char *captions; ///< language keys from the outer caption to the inner one, separated by "/"
    Form form;
    /// "value=Key" pairs separated by blanks, where "#" begins a text of no language; or the unit's key.
    const char *texts = "";
    int factor = 1;
    int offset = 0;
};

/// How a document is told: the language, the unit, and what captions depend on.
struct View {
    View(const Texts &texts, bool fahrenheit, const QJsonObject &document);

    const Texts &texts;
    bool fahrenheit;
    bool twoCircuits;
    bool pumpBySpeed;
};

/// The settings in the order of the wizard.
namespace catalogue {

const std::vector<Setting> &settings();
/// The setting at the path, as the document shows it; null for what no control shows.
const Setting *find(const QString &path, const View &view);
/// Whether a list stores the position of its item at the path, as all do whose items hold a language's words;
/// others store the number that they show.
bool isPosition(const QString &path);
/// Whether it is this one, where a path has a control for each of two units.
bool applies(const Setting &setting, const View &view);
/// The class of the page.
QString page(const Setting &setting);
/// The caption of the page or section, in the order of the wizard.
QString pageCaption(const Setting &setting, const Texts &texts);
QString caption(const Setting &setting, const View &view);
/// The value as the page shows it; empty where the page has no text for it.
QString shown(const Setting &setting, const QJsonObject &document, const View &view);
/// An item of a list, which is in keys and °C, as the page shows it.
QString item(const QString &text, const View &view);

} // namespace catalogue
