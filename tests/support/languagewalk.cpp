#include "support/languagewalk.h"

#include "support/languagefolder.h"

#include <QFrame>

namespace {

const QString mark = QStringLiteral("~");

// The longest list whose items aren't numbers has as many.
constexpr int mostWords = 7;

void copyLanguages()
{
    languagefolder::restore();
    const QDir delivered(QStringLiteral(LANGUAGES_DIR));
    const auto names = delivered.entryList({QStringLiteral("*.json")}, QDir::Files);
    for (const QString &name : names) {
        testfiles::put(languagefolder::file(name), testfiles::content(delivered.filePath(name)));
    }
}

/// The name of a list and of the page that holds it.
QString nameOf(const QWidget *list)
{
    const QWidget *page = list->parentWidget();
    while (page->metaObject()->className()[0] == 'Q') {
        page = page->parentWidget();
    }
    return QString::fromLatin1(page->metaObject()->className()) + QLatin1Char('.') + list->objectName();
}

} // namespace

LanguageWalk::LanguageWalk()
{
    window.stopPainting();
    copyLanguages();
    window.dialog.rebuildLanguageMenu();
    findTranslated();
}

QStringList LanguageWalk::languages()
{
    QStringList names = QDir(QStringLiteral(LANGUAGES_DIR))
                            .entryList({QStringLiteral("*.json")}, QDir::Files);
    names.replaceInStrings(QStringLiteral(".json"), QString());
    names.removeOne(QStringLiteral("English"));
    names.prepend(QStringLiteral("English"));
    return names;
}

void LanguageWalk::speak(const QString &language)
{
    window.dialog.saveLanguageName(language);
    window.dialog.loadLanguageData(window.dialog.languageIniPath());
}

void LanguageWalk::showTab(int tab)
{
    shownTab = tab;
    window.showPage(MainDialog::SettingPage, tab);
    expandSections();
    // Posted events that pile up are searched at each show.
    QCoreApplication::processEvents();
}

void LanguageWalk::expandSections() const
{
    const auto buttons = window.dialog.findChildren<QPushButton *>(QStringLiteral("hideButton"));
    for (QPushButton *button : buttons) {
        if (button->isVisible()) {
            Window::expand(button->parentWidget()->parentWidget());
        }
    }
}

void LanguageWalk::showPages(const std::function<void()> &look)
{
    for (const int page : {MainDialog::SelectPage, MainDialog::ProductPage, MainDialog::DipSwitchPage,
                           MainDialog::ValidationPage}) {
        window.showPage(page);
        look();
    }
    for (const int tab : {MainDialog::FunctionTab, MainDialog::UserTab, MainDialog::ServiceTab,
                          MainDialog::InstallationTab}) {
        showTab(tab);
        look();
    }
}

void LanguageWalk::findTranslated()
{
    window.speak(mark);
    for (const char *refrigerant : {"R32", "R410"}) {
        window.use(documents::everything(refrigerant));
        showPages([this] {
            const auto lists = window.dialog.findChildren<QComboBox *>();
            for (QComboBox *list : lists) {
                if (list->isVisible() && !translated.contains(list)
                    && Window::items(list).join(QString()).contains(mark)) {
                    translated.append(list);
                }
            }
        });
    }
}

QVector<Move> LanguageWalk::moveLists(const QString &language, const QJsonDocument &document)
{
    const bool english = language == QLatin1String("English");
    moves.clear();
    messages::clear();
    speak(language);
    window.use(document);
    for (const int tab : {MainDialog::FunctionTab, MainDialog::UserTab, MainDialog::InstallationTab}) {
        showTab(tab);
        for (QComboBox *list : qAsConst(translated)) {
            if (list->isVisible() && list->isEnabled()) {
                if (english) {
                    englishItems.insert(list, Window::items(list));
                }
                moveList(list, english || Window::items(list) != englishItems.value(list));
            }
        }
        const int rounds = mostItems();
        for (int round = 0; round < rounds; ++round) {
            reloadLists(round);
        }
    }
    return moves;
}

void LanguageWalk::moveList(QComboBox *list, bool told)
{
    const int start = list->currentIndex();
    const int last = list->count() - 1;
    const auto moveTo = [&](int index) {
        list->setCurrentIndex(index);
        if (told) {
            moves.append({nameOf(list), index, list->currentText(), window.dialog.document()});
        }
    };
    for (int index = 0; index <= last; index += told ? 1 : qMax(last, 1)) {
        moveTo(index);
    }
    moveTo(start);
}

// Of a list of words on the page that is shown.
int LanguageWalk::mostItems() const
{
    int most = 1;
    for (const QComboBox *list : translated) {
        if (list->isVisible() && list->isEnabled() && list->count() <= mostWords) {
            most = qMax(most, list->count());
        }
    }
    return most;
}

// Each list at another item than in the round before, so that every item of the short ones is loaded once.
void LanguageWalk::reloadLists(int round)
{
    QVector<QComboBox *> lists;
    for (QComboBox *list : qAsConst(translated)) {
        if (list->isVisible() && list->isEnabled()) {
            list->setCurrentIndex(qMax(list->count() - 1 - round, 0));
            lists.append(list);
        }
    }
    window.showPage(MainDialog::SettingPage, shownTab);
    for (const QComboBox *list : qAsConst(lists)) {
        moves.append({QStringLiteral("round %1, ").arg(round) + nameOf(list), list->currentIndex(),
                      list->currentText(), window.dialog.document()});
    }
}
