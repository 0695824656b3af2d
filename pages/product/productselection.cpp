#include "pages/product/productselection.h"

#include "app/maindialog.h"
#include "rules/productpresets.h"
#include "ui_productselection.h"

#include <QDebug>

ProductSelection::ProductSelection(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::ProductSelection>())
{
    ui->setupUi(this);
    ui->label_img_awhp->setPixmap(QPixmap(QStringLiteral(":/images/img_step1_awhp.png")));
    ui->label_img_aquabox->setPixmap(QPixmap(QStringLiteral(":/images/img_step1_aquabox.png")));
    ui->label_img_awhp->hide();
    ui->label_img_aquabox->hide();
}

ProductSelection::~ProductSelection() = default;

void ProductSelection::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    mainDialog->setCurrentStep(1);
    loadJsonData();
    validationCheck();
}

void ProductSelection::newJsonData()
{
    qDebug() << "ProductSelection::newJsonData";
    uncheck({ui->radioButtonMiddleTemp, ui->radioButtonHighTemp, ui->radioButtonR32, ui->radioButtonR410,
             ui->radioButtonAwhp, ui->radioButtonAquabox});
    repaint();
    loadJsonData();
}

// Oddity 23: Aquabox and High temperature are withdrawn from the user and stay complete in code.
void ProductSelection::loadJsonData()
{
    enableProductSpec();
    enableRefrigerantType();
    ui->radioButtonAquabox->setEnabled(false);
    ui->radioButtonAquabox->hide();
    ui->radioButtonHighTemp->hide();
    ui->radioButtonAwhp->click();
}

void ProductSelection::saveJsonData(const QString &path, const QJsonValue &value)
{
    writeUnlessEmpty(path, value);
}

void ProductSelection::enableProductSpec()
{
    if (ui->radioButtonAwhp->isChecked()) {
        ui->radioButtonMiddleTemp->setEnabled(true);
        ui->radioButtonHighTemp->setEnabled(false);
    }
}

void ProductSelection::enableRefrigerantType()
{
    if (ui->radioButtonAwhp->isChecked()) {
        ui->radioButtonR32->setEnabled(true);
    } else if (ui->radioButtonAquabox->isChecked()) {
        ui->radioButtonR410->click();
        ui->radioButtonR32->setEnabled(false);
    }
}

void ProductSelection::validationCheck()
{
    const bool awhp = ui->radioButtonAwhp->isChecked();
    if (!awhp && !ui->radioButtonAquabox->isChecked()) {
        qDebug() << "ProductSelection::validationCheck radioButton product type" << false;
        return;
    }
    if (!ui->radioButtonMiddleTemp->isChecked() && !ui->radioButtonHighTemp->isChecked()) {
        qDebug() << "ProductSelection::validationCheck radioButton product spec" << false;
        return;
    }
    if (awhp && !ui->radioButtonR32->isChecked() && !ui->radioButtonR410->isChecked()) {
        qDebug() << "ProductSelection::validationCheck radioButtonR32" << false;
        return;
    }
    mainDialog->setStepCompleted(true, 1);
}

void ProductSelection::on_radioButtonAwhp_clicked()
{
    enableProductSpec();
    enableRefrigerantType();
    validationCheck();
}

// Oddity 41: the writes come first; the refrigerant click that follows replaces the document with the R410
// default.
void ProductSelection::on_radioButtonAquabox_clicked()
{
    for (const presets::Preset &preset : presets::aquabox) {
        saveJsonData(QLatin1String(preset.path), QLatin1String(preset.value));
    }
    enableProductSpec();
    enableRefrigerantType();
    validationCheck();
}

void ProductSelection::on_radioButtonMiddleTemp_clicked()
{
    enableRefrigerantType();
    validationCheck();
}

void ProductSelection::on_radioButtonHighTemp_clicked()
{
    for (const presets::Preset &preset : presets::highTemp) {
        saveJsonData(QLatin1String(preset.path), QLatin1String(preset.value));
    }
    enableRefrigerantType();
    validationCheck();
}

void ProductSelection::on_radioButtonR410_clicked() { startWith(QStringLiteral("R410")); }

void ProductSelection::on_radioButtonR32_clicked() { startWith(QStringLiteral("R32")); }

void ProductSelection::startWith(const QString &refrigerant)
{
    if (!mainDialog->openNewJsonFile(refrigerant)) {
        return;
    }
    for (const int tab : {0, 1, 2, 3}) {
        mainDialog->setSettingTabValid(false, tab);
    }
    validationCheck();
    mainDialog->setRefrigerant(refrigerant);
    emit buttonClicked(refrigerant);
}

void ProductSelection::changeLanguage() { setCaptions(*ui); }
