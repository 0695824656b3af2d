// New, Open and Save: how a settings document comes into the dialog and how it leaves as a file.

#include "app/maindialog.h"
#include "document/files.h"
#include "document/util.h"
#include "pages/product/productselection.h"
#include "ui_maindialog.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QJsonDocument>
#include <QStandardPaths>

namespace {

constexpr auto unitPath = "SettingInfo.user.tempUnit.tempConversion";

}

QJsonDocument MainDialog::document() const { return state.document; }

void MainDialog::setDocument(const QJsonDocument &document) { state.document = document; }

void MainDialog::saveJsonData(const QString &path, const QJsonValue &value)
{
    if (!state.document.isEmpty()) {
        Util::modifyJsonValue(state.document, path, value);
    }
}

void MainDialog::startNewDocument()
{
    state.productDone = state.dipSwitchDone = state.settingDone = false;
    state.functionValid = state.userValid = state.serviceValid = state.installationValid = false;
    for (QLabel *icon : {ui->functionValidationIcon, ui->installationValidationIcon,
                         ui->serviceValidationIcon, ui->userValidationIcon}) {
        icon->show();
    }
    ui->productSelectionButton->setEnabled(true);
    ui->stackedWidget->setCurrentIndex(ProductPage);
    ui->productSelection->newJsonData();
    setSideBarVisible(true);
}

bool MainDialog::openNewJsonFile(const QString &refrigerant)
{
    const QString name = refrigerant.toUpper();
    QString path;
    if (name == QLatin1String("R410")) {
        path = QStringLiteral(":/defaultsettings/KV5_AWHP_DATA_R410.json");
    } else if (name == QLatin1String("R32")) {
        path = QStringLiteral(":/defaultsettings/KV5_AWHP_DATA_R32.json");
    }
    if (!loadJsonData(path)) {
        qWarning() << "MainDialog::openNewJsonFile load json data failed";
        return false;
    }
    state.filePath = path;
    ui->pathLabel->showPath(name);
    state.isNewFile = true;
    state.tempUnit = Util::readJsonValue(state.document, QLatin1String(unitPath)).toString();
    return true;
}

// Oddity 32: the unit of the display stays that of the last New, whatever the opened file says.
bool MainDialog::openJsonFile()
{
    const QString selectedFile = QFileDialog::getOpenFileName(this, tr("Json File"), dialogDirectory(),
                                                              jsonFilter(), nullptr, {});
    if (selectedFile.isEmpty()) {
        return false;
    }
    qDebug() << "MainDialog::openJsonFile"
             << " selectedFile:" << selectedFile;
    if (!loadJsonData(selectedFile)) {
        qWarning() << "MainDialog::openJsonFile load json data failed";
        return false;
    }
    state.filePath = selectedFile;
    ui->pathLabel->showPath(selectedFile);
    state.isNewFile = false;
    ui->productSelectionButton->setEnabled(false);
    setStepCompleted(true, 1);
    // The product page is shown for an instant, so that it loads itself.
    ui->stackedWidget->setCurrentIndex(ProductPage);
    ui->stackedWidget->setCurrentIndex(DipSwitchPage);
    return true;
}

// Oddity 48: what isn't JSON gives a null document and counts as loaded all the same.
bool MainDialog::loadJsonData(const QString &filePath)
{
    qDebug() << "Load Json Data!!";
    const auto content = files::read(filePath);
    if (!content) {
        qWarning() << "MainDialog::loadJsonData failed to open file:" << filePath;
        return false;
    }
    state.document = QJsonDocument::fromJson(*content);
    return true;
}

void MainDialog::saveJsonFile(const QString &saveFilePath)
{
    if (saveFilePath.isEmpty()) {
        qWarning() << "MainDialog::saveJsonFile save file path is empty";
        return;
    }
    if (!files::replaceContent(saveFilePath, state.document.toJson(QJsonDocument::Compact))) {
        qWarning() << "MainDialog::saveJsonFile:" << saveFilePath;
    }
}

void MainDialog::on_newButton_clicked() { startNewDocument(); }

void MainDialog::on_openButton_clicked()
{
    if (openJsonFile()) {
        setSideBarVisible(true);
    } else {
        qWarning() << "MainDialog::on_openButton_clicked open failed";
    }
}

void MainDialog::on_saveButton_clicked()
{
    if (!stepsDone()) {
        qDebug() << "MainDialog::on_saveButton_clicked save is failed validation :" << state.saveValidated;
        return;
    }
    if (state.filePath.isEmpty()) {
        qDebug() << "MainDialog::on_saveButton_clicked file is not opened";
        return;
    }
    if (state.isNewFile) {
        const QString saveFile = QFileDialog::getSaveFileName(this, tr("Save"), dialogDirectory(),
                                                              jsonFilter(), nullptr, {});
        if (saveFile.isEmpty()) {
            return;
        }
        state.filePath = saveFile;
        state.isNewFile = false;
    }
    saveJsonFile(state.filePath);
    qDebug() << "MainDialog::on_saveButton_clicked save file finished" << state.filePath;
}

QString MainDialog::jsonFilter() const
{
    return tr("JSON File") + QStringLiteral("(") + QStringLiteral("*.json;") + QStringLiteral(")");
}

QString MainDialog::dialogDirectory() const
{
    return QStandardPaths::standardLocations(QStandardPaths::DesktopLocation).value(0) + QLatin1Char('/');
}

QString MainDialog::defaultSavePath()
{
    const QString path = dialogDirectory() + QLatin1Char('/') + QCoreApplication::applicationName();
    QDir().mkpath(path);
    return path;
}

QString MainDialog::defaultLoadPath() { return {}; }
