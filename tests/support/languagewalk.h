#pragma once

#include "support/window.h"

#include <QHash>
#include <QVector>

/// What a list shows and what the document is once it was moved, or once its page was loaded anew.
struct Move {
    QString list;
    int index;
    QString item;
    QJsonDocument document;
};

/// Shows the pages of one window in one language after the other and moves their lists of translated texts.
class LanguageWalk
{
public:
    Window window;

    /// Copies the delivered languages beside the test and makes a window that knows them.
    LanguageWalk();

    /// The names of the languages beside the test, English first.
    static QStringList languages();

    /// Puts a language in force as the popup does.
    void speak(const QString &language);
    /// Shows each page with captions anew, its sections open, and runs `look` on it.
    void showPages(const std::function<void()> &look);

    /// Moves each list to each of its items and back, in a document, then loads the pages with the lists at
    /// other items. Moves of a list that holds the same items as in English are told of English only: the
    /// same text has the same end.
    QVector<Move> moveLists(const QString &language, const QJsonDocument &document);

private:
    void showTab(int tab);
    void expandSections() const;
    void findTranslated();
    void moveList(QComboBox *list, bool told);
    int mostItems() const;
    void reloadLists(int round);

    int shownTab = 0;
    /// Lists whose items change with the language.
    QVector<QComboBox *> translated;
    QHash<QComboBox *, QStringList> englishItems;
    QVector<Move> moves;
};
