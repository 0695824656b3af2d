// Languages: files, lookup, and the change of every text in the window.

#include "app/maindialog.h"
#include "document/files.h"
#include "languages/languagemenu.h"
#include "ui_maindialog.h"
#include "widgets/plaintext.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>

namespace {

QString languageFolder() { return QCoreApplication::applicationDirPath() + QStringLiteral("/language"); }

} // namespace

QString MainDialog::languageValue(const QString &key) const
{
    const QString text = state.languageMap.value(key).toString();
    if (text.isEmpty()) {
        qDebug() << key;
        qWarning() << "MainDialog::languageValue language value is empty";
    }
    return text;
}

QString MainDialog::languageTextOrKey(const QString &key) const
{
    const QString text = state.languageMap.value(key).toString();
    return text.isEmpty() ? key : text;
}

QString MainDialog::languageKeyOrText(const QString &text) const
{
    const QString key = languageKey(text);
    return key.isEmpty() ? text : key;
}

QString MainDialog::languageKey(const QString &text) const { return state.languageMap.key(text); }

QJsonDocument MainDialog::languageDocument() const { return state.languageDocument; }

QMap<QString, QVariant> MainDialog::languageMap() const { return state.languageMap; }

void MainDialog::setLanguageDocument(const QJsonDocument &document)
{
    state.languageDocument = document;
    state.languageMap = document.object().toVariantMap();
}

void MainDialog::setLanguageSnapshot(const QJsonDocument &document)
{
    state.languageSnapshot = document;
    state.languageSnapshotMap = document.object().toVariantMap();
}

QMap<QString, QVariant> MainDialog::languageSnapshotMap() const { return state.languageSnapshotMap; }

void MainDialog::setLanguageSnapshotText(const QString &key, const QString &text)
{
    state.languageSnapshotMap.insert(key, text);
}

void MainDialog::clearLanguageSnapshot() { state.languageSnapshotMap.clear(); }

QString MainDialog::languageIniPath() const { return state.languageIniPath; }

QString MainDialog::languageFilePath(const QString &name) const
{
    return languageFolder() + QLatin1Char('/') + name + QStringLiteral(".json");
}

// The name isn't trimmed: a line end becomes part of it.
void MainDialog::loadLanguageData(const QString &iniPath)
{
    const auto name = files::read(iniPath);
    if (!name) {
        qWarning() << "MainDialog::loadLanguageData failed to open file:";
        return;
    }
    ui->labelCurrentLanguage->setText(QString::fromUtf8(*name));
    const QString path = languageFilePath(QString::fromUtf8(*name));
    qDebug() << "MainDialog::loadLanguageData path:" << path;
    const auto content = files::read(path);
    if (!content) {
        qWarning() << "MainDialog::loadLanguageData failed to open file:" << path;
        return;
    }
    setLanguageDocument(QJsonDocument::fromJson(*content));
    changeLanguage();
}

// Oddity 49: the message names another class; it stands for every caller.
void MainDialog::saveLanguageName(const QString &name)
{
    if (!files::replaceContent(state.languageIniPath, name.toUtf8())) {
        qWarning() << "LanguageMenu::on_listWidget_itemClicked failed to open file:";
        return;
    }
    ui->labelCurrentLanguage->setText(name);
}

void MainDialog::loadLanguageAnotherPath(const QString &filePath)
{
    const QString name = QFileInfo(filePath).fileName().remove(QStringLiteral(".json"));
    const auto content = files::read(filePath);
    if (!content) {
        qWarning() << "MainDialog::loadLanguageAnotherPath failed to open file:" << filePath;
        return;
    }
    setLanguageDocument(QJsonDocument::fromJson(*content));
    saveLanguageName(name);
    const QString target = languageFilePath(name);
    // A file that lies at its target already stays as it is: removing it would lose it.
    if (QFileInfo(filePath) != QFileInfo(target)) {
        if (QFile::exists(target)) {
            QFile::remove(target);
        }
        QFile::copy(filePath, target);
    }
    initLanguageMenu();
    changeLanguage();
}

// Oddity 47: a path from the root of the drive: neither the language folder nor the resource of that name.
void MainDialog::loadDefaultLanguageJsonFile()
{
    const QString path = QStringLiteral("/language/English.json");
    const auto content = files::read(path);
    if (!content) {
        qWarning() << "MainDialog::loadDefaultLanguageJsonFile failed to open file:" << path;
        return;
    }
    setLanguageDocument(QJsonDocument::fromJson(*content));
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
}

// The popup that is replaced stays a hidden child of the dialog.
void MainDialog::initLanguageMenu()
{
    state.languageMenuOpen = false;
    state.languageMenuWidget = new LanguageMenu(this);
    const QDir folder(languageFolder());
    QStringList names = folder.entryList({QStringLiteral("*.JSON"), QStringLiteral("*.json")}, QDir::Files);
    names.replaceInStrings(QStringLiteral(".json"), QString());
    state.languageMenuWidget->setLanguageList(names);
    state.languageMenuWidget->close();
}

void MainDialog::rebuildLanguageMenu() { initLanguageMenu(); }

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
