// What the window does about languages: its own texts, the order in which the pages follow, the popup.

#include "app/accessible.h"
#include "app/frameless.h"
#include "app/maindialog.h"
#include "app/radioring.h"
#include "languages/languagebox.h"
#include "languages/languagemenu.h"
#include "ui_maindialog.h"

#include <QCoreApplication>
#include <QDebug>

void MainDialog::initLanguages()
{
    Languages &languages = state.languages;
    languages.iniPath = QCoreApplication::applicationDirPath() + QStringLiteral("/language/language.ini");
    connect(&languages, &Languages::nameChanged, ui->labelCurrentLanguage, &QLabel::setText);
    connect(&languages, &Languages::filesChanged, this, &MainDialog::initLanguageMenu);
    connect(&languages, &Languages::replaced, this, &MainDialog::changeOwnTexts);
    connect(&languages, &Languages::changed, this, &MainDialog::changeLanguage);
    connect(&languages, &Languages::reloaded, this, [this] { setLanguageMenuOpen(false); });
    connect(&languages, &Languages::editorMade, this, [](QWidget *editor) {
        (new FrameLess(editor, true))->setParent(editor);
        new RadioRing(editor);
    });
    connect(ui->languageCombobox, &LanguageBox::pressedByKey, this, [this] {
        if (state.languageMenuOpen) {
            state.languageMenuWidget->takeKeys(ui->labelCurrentLanguage->text());
        }
    });
    languages.load(languages.iniPath);
}

// The tabs stand in another order in the form.
void MainDialog::changeOwnTexts()
{
    captions::set(*ui, this, [this](const QString &key) { return languageValue(key); });
    ui->functionTabButton->setText(languageValue(QStringLiteral("Function")));
    ui->installationTabButton->setText(languageValue(QStringLiteral("Installation")));
    ui->serviceTabButton->setText(languageValue(QStringLiteral("Service")));
    ui->userTabButton->setText(languageValue(QStringLiteral("User")));
    state.selectText = languageValue(QStringLiteral("Select"));
}

void MainDialog::changeLanguage()
{
    changeOwnTexts();
    ui->select->changeLanguage();
    ui->productSelection->changeLanguage();
    ui->serviceWidget->changeLanguage();
    ui->validation->changeLanguage();
    emit changeInstallationLanguage();
    accessible::languageChanged(this);
}

// The popup that is replaced stays a hidden child of the dialog.
void MainDialog::initLanguageMenu()
{
    state.languageMenuOpen = false;
    state.languageMenuWidget = new LanguageMenu(this);
    connect(state.languageMenuWidget, &LanguageMenu::closed, this, [this] { setLanguageMenuOpen(false); });
    state.languageMenuWidget->setLanguageList(Languages::names());
    state.languageMenuWidget->close();
    // The first menu is there before the ring.
    if (auto *ring = findChild<RadioRing *>()) {
        ring->serve(state.languageMenuWidget);
    }
}

// Oddity 50: a second form of the toggle that the filter does; nothing connects it.
void MainDialog::languageMenu()
{
    constexpr int top = 100;
    state.languageMenuOpen = !state.languageMenuOpen;
    if (!state.languageMenuOpen) {
        state.languageMenuWidget->hide();
        return;
    }
    qDebug() << "MainDialog::languageMenu open : " << top << ui->pathLabel->y() << ui->labelLanguage->y()
             << ui->toolbarGroupBox->height();
    state.languageMenuWidget->move(ui->labelLanguage->x() - 10, top);
    state.languageMenuWidget->show();
}
