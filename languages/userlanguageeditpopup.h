#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class UserLanguageEditPopup;
}

/// The language editor: a row per language key, with the text of the language in force and a line for the new
/// one. What is edited goes to the snapshot of the languages; Save makes that snapshot a language file
/// and the language in force.
class UserLanguageEditPopup : public QDialog
{
    Q_OBJECT

public:
    explicit UserLanguageEditPopup(QWidget *parent = nullptr);
    ~UserLanguageEditPopup() override;

    /// Whether Save asks for a file name.
    void setNewLanguage(bool isNew);
    /// The file that Save writes when it doesn't ask; empty for none.
    void setLanguageFilePath(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void initUi();
    void addLanguageData();
    /// Makes the file the language in force and the reference of the rows; tells no page.
    void loadLanguageFile(const QString &filePath);
    /// Hides the rows whose new text doesn't hold `text`, in any case.
    void searchText(const QString &text);
    void returnSearchText();
    void on_pushButtonSearch_clicked();
    void on_searchLineEdit_textEdited(const QString &text);
    void on_openButton_clicked();
    void on_closeButton_clicked();
    void on_saveButton_clicked();

private:
    QString jsonFilter(const char *name) const;
    bool saveNewLanguage();
    bool writeLanguage(const QString &path, const char *warning) const;

    bool isNewLanguage = false;
    QString languageFilePath;
    std::unique_ptr<Ui::UserLanguageEditPopup> ui;
};
