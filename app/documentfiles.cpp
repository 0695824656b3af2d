// New, Open and Save, as far as the window takes part: what it shows of the document, and its file dialogs.

#include "app/maindialog.h"
#include "document/paths.h"
#include "pages/product/productselection.h"
#include "ui_maindialog.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

void MainDialog::startNewDocument()
{
    state.results.clear();
    for (QLabel *icon : {ui->functionValidationIcon, ui->installationValidationIcon,
                         ui->serviceValidationIcon, ui->userValidationIcon}) {
        icon->show();
    }
    showWhetherSaveSaves();
    ui->productSelectionButton->setEnabled(true);
    ui->stackedWidget->setCurrentIndex(ProductPage);
    ui->productSelection->newJsonData();
    forgetShownPages();
    setSideBarVisible(true);
}

void MainDialog::forgetShownPages()
{
    ui->stackedWidget->forgetShownPages();
    ui->settingStackedWidget->forgetShownPages();
}

bool MainDialog::openNewJsonFile(const QString &refrigerant)
{
    if (!state.settings.startWith(refrigerant)) {
        return false;
    }
    forgetShownPages();
    showWhetherSaveSaves();
    ui->pathLabel->showPath(refrigerant.toUpper());
    setTempUnit(state.settings.value(QLatin1String(paths::tempConversion)).toString());
    return true;
}

// Oddity 32: the unit of the display stays that of the last New, whatever the opened file says.
bool MainDialog::openJsonFile()
{
    const QString selectedFile = QFileDialog::getOpenFileName(this, tr("Json File"), dialogDirectory(),
                                                              jsonFilter(), nullptr, {});
    if (selectedFile.isEmpty() || !state.settings.open(selectedFile)) {
        return false;
    }
    ui->pathLabel->showPath(selectedFile);
    ui->productSelectionButton->setEnabled(false);
    setStepCompleted(true, 1);
    // The product page is shown for an instant, so that it loads itself.
    ui->stackedWidget->setCurrentIndex(ProductPage);
    forgetShownPages(); // the one that was shown until now, too
    ui->stackedWidget->setCurrentIndex(DipSwitchPage);
    return true;
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
    if (!state.settings.allowsSave(stepsDone())) {
        return;
    }
    if (state.settings.isNewFile) {
        const QString saveFile = QFileDialog::getSaveFileName(this, tr("Save"), dialogDirectory(),
                                                              jsonFilter(), nullptr, {});
        if (saveFile.isEmpty()) {
            return;
        }
        state.settings.takeName(saveFile);
    }
    saveJsonFile(state.settings.filePath);
    qDebug() << "MainDialog::on_saveButton_clicked save file finished" << state.settings.filePath;
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
