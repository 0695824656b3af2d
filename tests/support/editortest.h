#pragma once

#include "support/languagefolder.h"
#include "support/window.h"

#include "languages/languagelist.h"
#include "languages/letteritem.h"
#include "languages/userlanguageeditpopup.h"

#include <QListWidget>

/// A test of the language editor: the main window in English with an editor open beside it. The language
/// folders are as delivered again after each test.
class EditorTest : public QObject
{
protected:
    using Texts = QMap<QString, QVariant>;

    void open()
    {
        window = std::make_unique<Window>();
        start(true);
    }
    void close()
    {
        editor.reset();
        window.reset();
        QDir(otherFolder()).removeRecursively();
        languagefolder::restore();
    }
    static Texts english()
    {
        return QJsonDocument::fromJson(languagefolder::english()).object().toVariantMap();
    }
    /// The folder in which the editor's file dialog starts: it isn't delivered.
    static QString otherFolder()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/languages");
    }
    void start(bool isNew)
    {
        editor.reset();
        dialog().setLanguageSnapshot(dialog().languageDocument());
        editor = std::make_unique<UserLanguageEditPopup>();
        editor->setNewLanguage(isNew);
        editor->setLanguageFilePath(QString());
        editor->show();
        if (!QTest::qWaitForWindowExposed(editor.get())) {
            qFatal("The editor isn't shown");
        }
        messages::clear();
    }
    MainDialog &dialog() const { return window->dialog; }
    LanguageList *list() const { return Window::find<LanguageList>(editor.get(), "listWidget"); }
    LetterItem *row(int index) const
    {
        return qobject_cast<LetterItem *>(list()->itemWidget(list()->item(index)));
    }
    LetterItem *rowOf(const QString &key) const { return row(dialog().languageMap().keys().indexOf(key)); }
    QString reference(int index) const { return Window::find<QLabel>(row(index), "labelReference")->text(); }
    QLineEdit *search() const { return Window::find<QLineEdit>(editor.get(), "searchLineEdit"); }
    void edit(const QString &key, const QString &text) const
    {
        list()->scrollToItem(list()->item(dialog().languageMap().keys().indexOf(key)));
        Window::type(Window::find<QLineEdit>(rowOf(key), "lineEdit"), text);
    }
    QStringList shownTexts() const
    {
        QStringList texts;
        for (int index = 0; index < list()->count(); ++index) {
            if (!list()->isRowHidden(index)) {
                texts.append(row(index)->editText());
            }
        }
        return texts;
    }
    filedialogs::Seen press(const char *button, const QString &path) const
    {
        return filedialogs::answer([this, button] { Window::click(editor.get(), button); }, path);
    }
    QString text(const char *name) const
    {
        return Window::find(&dialog(), name)->property("text").toString();
    }
    static QByteArray ini() { return testfiles::content(languagefolder::iniPath()); }

    std::unique_ptr<Window> window;
    std::unique_ptr<UserLanguageEditPopup> editor;
};
