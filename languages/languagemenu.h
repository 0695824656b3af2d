#pragma once

#include <QWidget>

#include <memory>

class LanguageItem;
class QListWidgetItem;
namespace Ui {
class LanguageMenu;
}

/// The popup below the tool bar that lists the languages. It is a child of the main dialog, shown above the
/// dialog's content; each of its actions closes it.
class LanguageMenu : public QWidget
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget *parent);
    ~LanguageMenu() override;

    /// Adds one row per language, in the order of `names`.
    void setLanguageList(const QStringList &names);

    /// Styles the rows, which otherwise happens when the menu is first shown.
    void prepareRows();

    /// Gives the list the keys, with the row of `language` as the current one, or the first row. Arrows
    /// choose a row, Return takes it, Esc closes the popup.
    void takeKeys(const QString &language);

signals:
    /// An action of the popup has closed it.
    void closed();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void on_listWidget_itemClicked(QListWidgetItem *item);
    void on_newButton_clicked();
    void on_loadButton_clicked();
    void clickedModifyButton(const QString &language);
    /// Makes a file the language in force and tells no page.
    void loadLanguageJson(const QString &filePath);

private:
    void followPointer();
    void closeMenu();
    LanguageItem *rowAt(int index) const;
    QString shownLanguage() const;

    std::unique_ptr<Ui::LanguageMenu> ui;
};
