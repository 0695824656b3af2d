#pragma once

#include "pages/rows.h"

#include <QJsonValue>
#include <QWidget>

class QLabel;

/// What the pages share: reading the document, writing rows, captions, radios. It has no slots of its own;
/// each page declares its slots and says in a line what they do.
///
/// A page is loaded in its show event, every time it is shown. It keeps no copy of the document.
class Page : public QWidget
{
public:
    explicit Page(QWidget *parent = nullptr);

protected:
    // Reading
    static QJsonValue read(const QString &path);
    static QString text(const QString &path);
    /// The text at `path`, upper-cased; empty when it is missing or no text.
    static QString word(const QString &path);
    static int number(const QString &path);
    /// Whether the text at `path` reads "SET", in any case.
    static bool isSet(const QString &path);
    /// Whether the indoor unit's flag of that name reads "SET", in any case.
    static bool flag(const char *name);
    /// The path of a flag of the indoor unit, and of a key of the installation settings.
    static QString flagPath(const char *name);
    static QString installation(const char *key);

    // Writing. A page's saveJsonData is its one way into the document and holds its guard.
    static void write(const QString &path, const QJsonValue &value);
    static void writeUnlessEmpty(const QString &path, const QJsonValue &value);
    virtual void saveJsonData(const QString &path, const QJsonValue &value) = 0;

    // Rows
    /// Sets the texts of labels, radios and buttons from the language in force, in the order of the rows.
    static void setCaptions(const std::vector<CaptionRow> &rows);
    /// Saves the word of the row that `button` stands in.
    void saveChoice(const std::vector<ChoiceRow> &rows, const QAbstractButton *button);
    /// The document value of an item's text; null where the index tells it.
    static QJsonValue shownValue(Shown shown, const QString &item);

    // Radios and labels
    /// Unchecks radios of an auto-exclusive group, which stay unchecked.
    static void uncheck(std::initializer_list<QRadioButton *> radios);
    /// Checks `first` when the word at `path` is `firstWord`, `second` when it is `secondWord`, otherwise
    /// neither.
    static void checkPair(const QString &value, const PairRow &pair);
    /// The texts of language keys.
    static QStringList languageTexts(const std::vector<const char *> &keys);
    /// first, first + step, ... last, each followed by `suffix`.
    static QStringList numbered(int first, int last, int step, const QString &suffix);
    /// Where `value` stands in a list that counts up from `first`; -1 for what lies before it or is no index.
    static int indexOf(int value, int first);
};
