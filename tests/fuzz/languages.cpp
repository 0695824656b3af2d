// A language file becomes the language in force while a page is shown. An
// input is the file itself, or in the form of script.h: its base is "English" and the step and tab of the
// page shown, as "English 3 1", and its lines replace texts.

#include "fuzz/changes.h"
#include "fuzz/pages.h"
#include "fuzz/script.h"
#include "fuzz/target.h"

#include "support/languagefolder.h"
#include "support/openedfiles.h"

#include <QComboBox>
#include <QJsonArray>
#include <QRegularExpression>

namespace {

/// Fails at the first text that isn't as it was.
void expectEqual(const QStringList &now, const QStringList &before, const char *what)
{
    for (int i = 0; i < qMax(now.size(), before.size()); ++i) {
        if (now.value(i) != before.value(i)) {
            fail(what, before.value(i).toUtf8() + "\n" + now.value(i).toUtf8());
        }
    }
}

/// All that can be read in the window.
QStringList texts(const Pages &pages)
{
    QStringList result;
    for (const QWidget *widget : pages.window.dialog.findChildren<QWidget *>()) {
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            result.append(label->text());
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            result.append(button->text());
        } else if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
            result.append(Window::items(combo));
        }
    }
    return result;
}

class LanguageTarget : public Target
{
public:
    LanguageTarget();

    void run(const QByteArray &input) override;
    void runAfter() override;
    QByteArray anyBase(Dice &dice) const override;
    QByteArray anyPath(Dice &dice) const override;
    QByteArray anyValue(Dice &dice, const QByteArray &path) const override;

private:
    const QLabel *label(const char *name) const { return Window::find<QLabel>(&pages.window.dialog, name); }
    void change(const QString &name);
    void spreadSelections();
    void expectSelections(const QVector<QPair<int, int>> &before) const;
    QVector<QPair<int, int>> selections() const;
    void load();
    void expectTexts(const QByteArray &content) const;
    void expectNothingOpened() const;

    Pages pages;
    QList<QComboBox *> combos = pages.window.dialog.findChildren<QComboBox *>();
    /// One of the window's own labels, and one of each kind of page.
    QVector<QPair<const QLabel *, QString>> labels{{label("labelSlide1"), "ProductSelection"},
                                                   {label("labelProductType"), "Producttype"},
                                                   {label("labelSolar"), "Solarthermalkit"},
                                                   {label("labelBrightness"), "BRIGHTNESS"}};
    WrittenPaths written;
    QJsonDocument standard = documents::standard(QStringLiteral("R32"));
    QJsonObject english = QJsonDocument::fromJson(languagefolder::english()).object();
    QJsonDocument loaded;
    QStringList englishTexts;
};

LanguageTarget::LanguageTarget()
{
    testfiles::put(pages.file("standard.json"), standard.toJson());
    languagefolder::restore();
    pages.setSectionsOpen(true);
    change(QStringLiteral("English"));
    load();
    // An open section brings what lies outside of a list onto the list.
    loaded = pages.document();
    englishTexts = texts(pages);
}

// As a click on a row of the language menu does.
void LanguageTarget::change(const QString &name)
{
    pages.window.dialog.saveLanguageName(name);
    pages.window.dialog.loadLanguageData(pages.window.dialog.languageIniPath());
}

// Chooses another item in each combo box, so that a selection that is lost shows. Past the page, but for the
// months: they fill the lists of days.
void LanguageTarget::spreadSelections()
{
    int number = 1;
    for (QComboBox *combo : qAsConst(combos)) {
        combo->blockSignals(!combo->objectName().contains(QLatin1String("Month")));
        combo->setCurrentIndex(combo->count() > 0 ? ++number % combo->count() : -1);
        combo->blockSignals(false);
    }
}

/// How many items each combo box has, and which is chosen.
QVector<QPair<int, int>> LanguageTarget::selections() const
{
    QVector<QPair<int, int>> result;
    for (const QComboBox *combo : combos) {
        result.append({combo->count(), combo->currentIndex()});
    }
    return result;
}

void LanguageTarget::expectSelections(const QVector<QPair<int, int>> &before) const
{
    for (int i = 0; i < combos.size(); ++i) {
        if (combos.at(i)->count() != before.at(i).first
            || combos.at(i)->currentIndex() != before.at(i).second) {
            fail("a language changes a selection", combos.at(i)->objectName().toUtf8());
        }
    }
}

void LanguageTarget::load()
{
    pages.open(pages.file("standard.json"));
    pages.showSettings();
}

void LanguageTarget::expectTexts(const QByteArray &content) const
{
    const QJsonObject language = QJsonDocument::fromJson(content).object();
    for (const auto &[label, key] : labels) {
        if (label->text() != language.value(key).toVariant().toString()) {
            fail("not the text of the language", (key + QLatin1Char('\n') + label->text()).toUtf8());
        }
    }
}

// A label that took its text for markup would load the pictures of it as soon as it is measured.
void LanguageTarget::expectNothingOpened() const
{
    for (const QLabel *each : pages.window.dialog.findChildren<QLabel *>()) {
        each->sizeHint();
    }
    for (const QString &path : openedfiles::all()) {
        if (!path.startsWith(languagefolder::path())) {
            fail("a text opens a file", path.toUtf8());
        }
    }
}

void LanguageTarget::run(const QByteArray &input)
{
    static const QRegularExpression form(QStringLiteral("^English ([0-5]) ([0-3])$"));
    const Script script = Script::parse(input);
    const auto options = form.match(QString::fromLatin1(script.base));
    QJsonObject language = english;
    for (const Script::Line &line : script.lines) {
        language.insert(line.path, line.value);
    }
    const QByteArray content = options.hasMatch() ? QJsonDocument(language).toJson() : input;
    testfiles::put(languagefolder::file(QStringLiteral("Input.json")), content);

    pages.window.showPage(options.captured(1).toInt(), options.captured(2).toInt());
    spreadSelections();
    const QJsonDocument document = pages.document();
    const auto selected = selections();
    openedfiles::clear();
    change(QStringLiteral("Input"));
    expectNothingOpened();
    if (pages.document() != document) {
        fail("a language reaches the document", changes(document, pages.document()).join('\n').toUtf8());
    }
    expectSelections(selected);
    expectTexts(content);
}

// The pages are loaded in the language, and English after it is as it was.
void LanguageTarget::runAfter()
{
    load();
    written.expectOnlyThese(changes(standard, pages.document()));
    change(QStringLiteral("English"));
    load();
    if (pages.document() != loaded) {
        fail("the language before left a trace", changes(loaded, pages.document()).join('\n').toUtf8());
    }
    expectEqual(texts(pages), englishTexts, "a text of the language before has stayed");
}

QByteArray LanguageTarget::anyBase(Dice &dice) const
{
    return "English " + QByteArray::number(dice.roll(6)) + ' ' + QByteArray::number(dice.roll(4));
}

QByteArray LanguageTarget::anyPath(Dice &dice) const
{
    return english.keys().at(dice.roll(english.size())).toUtf8();
}

// The texts of other keys make a text stand for two keys.
QByteArray LanguageTarget::anyValue(Dice &dice, const QByteArray &path) const
{
    static const QVector<QByteArray> odd = words("texts.txt");
    if (dice.once(3)) {
        return dice.absurdValue();
    }
    if (dice.once(3)) {
        return dice.pick(odd);
    }
    const QString other = english.value(QString::fromUtf8(anyPath(dice))).toString();
    return QJsonDocument(QJsonArray{dice.once(9) ? QString::fromUtf8(path) : other})
        .toJson(QJsonDocument::Compact)
        .chopped(1)
        .mid(1);
}

} // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<LanguageTarget>(); }
