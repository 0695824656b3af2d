#pragma once

#include "languages/captions.h"
#include "pages/rows.h"
#include "rules/range.h"

#include <QJsonValue>
#include <QWidget>

#include <vector>

class QComboBox;

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
    static QJsonValue read(const char *path);
    static QString text(const char *path);
    /// The text at `path`, upper-cased; empty when it is missing or no text.
    static QString word(const char *path);
    static int number(const char *path);
    /// Whether the text at `path` reads "SET", in any case.
    static bool isSet(const char *path);

    // Writing. A page's saveJsonData is its one way into the document and holds its guard.
    static void write(const QString &path, const QJsonValue &value);
    static void writeUnlessEmpty(const QString &path, const QJsonValue &value);
    virtual void saveJsonData(const QString &path, const QJsonValue &value) = 0;
    /// Judges the page and reports the result: the last step of most changes.
    virtual void validationCheck() = 0;

    // Captions
    /// Sets the texts of the page's form from the language in force, in the order of the form.
    template <class Form>
    void setCaptions(Form &form)
    {
        captions::set(form, this, [this](const QString &key) { return captionOf(key); });
    }
    /// The text of a form's key.
    virtual QString captionOf(const QString &key) const;
    /// Sets the texts of labels and radios from the language in force, in the order of the rows.
    static void setCaptions(const std::vector<CaptionRow> &rows);

    // Rows. A control that stands in none ends the run.
    /// The page's radios that exclude each other, in the order of its check.
    std::vector<Choice> choices;
    /// The page's regular lists, in the order of its load.
    std::vector<ValueRow> lists;
    const Choice &choiceOf(const QRadioButton *radio) const;
    const ValueRow &listOf(const QComboBox *list) const;
    /// Checks the radio of the choice whose word the document holds, in any case. Where it holds another
    /// word, the first leaves the radios as they are and returns false; the second unchecks them.
    bool checkStored(const QRadioButton *radio) const;
    void loadChoice(const QRadioButton *radio) const;
    /// Shows the group of a choice where its flag is set, and loads the choice only then.
    void loadOffered(QWidget *group, const char *flag, const QRadioButton *radio) const;
    /// Whether each choice is made, hidden or disabled; the first that isn't ends the check.
    bool choicesMade() const;
    /// Reads the values of lists, then selects them in order: with its signals live, a list runs its slot.
    static void loadLists(const std::vector<ValueRow> &rows);
    void loadList(const QComboBox *list) const;
    /// Selects the item of a document value.
    static void select(const ValueRow &list, const QJsonValue &value);
    /// Saves a value, the word of a radio, or what an item of a list stands for.
    void save(const char *path, const QJsonValue &value);
    void save(const QRadioButton *radio);
    void save(const QComboBox *list, const QString &item);
    void save(const QComboBox *list, int index);
    /// Saves and checks, as most slots do.
    template <class... What>
    void change(const What &...what)
    {
        save(what...);
        validationCheck();
    }
    /// The document value of an item's text; null where the index tells it.
    static QJsonValue shownValue(Shown shown, const QString &item);

    // Radios, labels and lists
    /// A group that the product doesn't have is neither shown nor enabled.
    static void offerGroup(QWidget *group, bool offered);
    /// Enables widgets, or not, and gives captions the look of it.
    static void enable(bool enabled, std::initializer_list<QWidget *> captions,
                       std::initializer_list<QWidget *> widgets);
    /// Unchecks radios of an auto-exclusive group, which stay unchecked.
    static void uncheck(const std::vector<QRadioButton *> &radios);
    /// Replaces the items without running a slot; the first is selected, or the index stays.
    static void fill(QComboBox *list, const QStringList &items);
    static void refill(QComboBox *list, const QStringList &items);
    /// Offers the temperatures of a range, in the unit in force.
    static void offer(QComboBox *list, Range range);
    /// Selects the item of a text; none where the list doesn't hold it.
    static void selectText(QComboBox *list, const QString &text);
    /// Selects the item of a number in the unit in force, quietly; none where the list doesn't hold it.
    static void selectTemperature(QComboBox *list, int shown);
    /// °C of a number in the unit in force.
    static int celsius(int shown);
    /// The texts of language keys.
    static QStringList languageTexts(const std::vector<const char *> &keys);
    /// first, first + step, ... last, each followed by `suffix`.
    static QStringList numbered(int first, int last, int step, const QString &suffix);
    /// Where `value` stands in a list that counts up from `first`; -1 for what lies before it or is no index.
    static int indexOf(int value, int first);
};
