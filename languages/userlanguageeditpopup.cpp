#include "languages/userlanguageeditpopup.h"

#include "document/files.h"
#include "languages/languages.h"
#include "languages/letteritem.h"
#include "ui_userlanguageeditpopup.h"
#include "widgets/jsonlist.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileDialog>
#include <QKeyEvent>
#include <QScrollBar>

UserLanguageEditPopup::UserLanguageEditPopup(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::UserLanguageEditPopup>())
{
    ui->setupUi(this);
    emit Languages::instance().editorMade(this);
    new JsonList(this);
    // A bar that always takes its room draws no handle while there is nothing to scroll.
    QScrollBar *bar = ui->listWidget->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, bar,
            [bar](int least, int most) { bar->setEnabled(most > least); });
    connect(ui->searchLineEdit, &QLineEdit::returnPressed, this, &UserLanguageEditPopup::returnSearchText);
}

UserLanguageEditPopup::~UserLanguageEditPopup() = default;

void UserLanguageEditPopup::setNewLanguage(bool isNew) { isNewLanguage = isNew; }

void UserLanguageEditPopup::setLanguageFilePath(const QString &path) { languageFilePath = path; }

// Oddity 50: nothing calls it.
void UserLanguageEditPopup::initUi()
{
    ui->listWidget->clear();
    if (isNewLanguage) {
        Languages::instance().loadDefault();
    }
}

void UserLanguageEditPopup::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    addLanguageData();
}

void UserLanguageEditPopup::addLanguageData()
{
    ui->listWidget->clear();
    // A shown list would lay out all its rows again for each one that comes.
    ui->listWidget->hide();
    // The viewport is where a row of a list ends up: moved there later, it would be styled twice.
    QWidget *parent = ui->listWidget->viewport();
    const QMap<QString, QVariant> texts = Languages::instance().inForce.map;
    for (const QVariant &value : texts) {
        const QString text = value.toString();
        ui->listWidget->addRow(text, new LetterItem(parent), text);
    }
    ui->listWidget->show();
    // New rows stand last; Tab comes to them before the buttons.
    for (QWidget *button : {ui->openButton, ui->closeButton, ui->saveButton}) {
        setTabOrder(previousInFocusChain(), button);
    }
}

// Oddity 45: the message names another class. The snapshot, which Save writes, stays as it is.
void UserLanguageEditPopup::loadLanguageFile(const QString &filePath)
{
    if (!Languages::instance().inForce.read(filePath)) {
        qWarning() << "LanguageMenu::on_loadButton_clicked failed to open file:" << filePath;
        return;
    }
    languageFilePath = filePath;
    addLanguageData();
}

void UserLanguageEditPopup::searchText(const QString &text)
{
    const QString wanted = text.toUpper();
    // In a shown list each row that comes back would ask the display where the mouse is.
    ui->listWidget->hide();
    for (int index = 0; index < ui->listWidget->count(); ++index) {
        const auto *row = static_cast<LetterItem *>(ui->listWidget->itemWidget(ui->listWidget->item(index)));
        ui->listWidget->setRowHidden(index, !row->editText().toUpper().contains(wanted));
    }
    ui->listWidget->doItemsLayout();
    ui->listWidget->scrollToTop();
    ui->listWidget->show();
}

void UserLanguageEditPopup::returnSearchText() { searchText(ui->searchLineEdit->text()); }

void UserLanguageEditPopup::on_pushButtonSearch_clicked() { searchText(ui->searchLineEdit->text()); }

void UserLanguageEditPopup::on_searchLineEdit_textEdited(const QString &text) { searchText(text); }

// Oddity 44: the dialog starts in the folder "languages", not in the one that holds the languages.
void UserLanguageEditPopup::on_openButton_clicked()
{
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/languages");
    const QString path = QFileDialog::getOpenFileName(this, QStringLiteral("Json File"), folder,
                                                      jsonFilter("JSON File"));
    if (path.isEmpty()) {
        return;
    }
    qDebug() << "UserLanguageEditPopup::on_openButton_clicked"
             << " selectedFile:" << path;
    loadLanguageFile(path);
}

void UserLanguageEditPopup::on_closeButton_clicked()
{
    Languages::instance().snapshot.map.clear();
    close();
}

// The snapshot is in force even if no file gets written.
void UserLanguageEditPopup::on_saveButton_clicked()
{
    Languages &languages = Languages::instance();
    languages.inForce.set(QJsonDocument::fromVariant(languages.snapshot.map));
    if (isNewLanguage) {
        if (!saveNewLanguage()) {
            return;
        }
    } else if (!languageFilePath.isEmpty()
               && !writeLanguage(languageFilePath, "UserLanguageEditPopup::on_saveButton_clicked:")) {
        return;
    }
    languages.reload();
    close();
}

bool UserLanguageEditPopup::saveNewLanguage()
{
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/language/");
    const QString path = QFileDialog::getSaveFileName(this, QStringLiteral("Save"), folder,
                                                      jsonFilter("Json File"));
    if (path.isEmpty()) {
        return false;
    }
    qDebug() << "UserLanguageEditPopup::on_saveButton_clicked saveFilePath:" << path;
    return writeLanguage(path, "UserLanguageEditPopup::on_saveButton_clicked file open failed:");
}

bool UserLanguageEditPopup::writeLanguage(const QString &path, const char *warning) const
{
    if (!files::replaceContent(path, Languages::instance().inForce.document.toJson())) {
        qWarning() << warning << path;
        return false;
    }
    Languages::instance().saveName(Languages::nameOf(path));
    return true;
}

QString UserLanguageEditPopup::jsonFilter(const char *name) const
{
    return tr(name) + QStringLiteral("(") + QStringLiteral("*.json;") + QStringLiteral(")");
}

// Return presses no button, since none is the default one. Esc is the Close button.
void UserLanguageEditPopup::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel)) {
        on_closeButton_clicked();
        return;
    }
    QDialog::keyPressEvent(event);
}
