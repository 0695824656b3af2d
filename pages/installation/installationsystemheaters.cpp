// What heats beside the heat pump: the electric heater, the boost heater of the tank, and a boiler.

#include "app/maindialog.h"
#include "document/paths.h"
#include "pages/installation/installationsystemawhp.h"
#include "ui_installationsystemawhp.h"

namespace {

constexpr const char *tankPriorityPath = "SettingInfo.installation.hotWaterTankHeater.tankHeaterPriority";
constexpr const char *boilerModePath = "SettingInfo.installation.boilerOfThirdParty.thirdPartyMode";

/// The hot water limit in °C that each choice of the boost heater sets, whatever the refrigerant.
constexpr int hotWaterLimit = 50;

} // namespace

void InstallationSystemAWHP::loadHeaters()
{
    // Oddity 24: below the installation settings, where the default documents have no such key: the test
    // passes then.
    const QString model = word("SettingInfo.installation.is_indoor_model");
    const bool fixed = model == QLatin1String("GHU") || model == QLatin1String("WHU")
        || model == QLatin1String("CASCADE");
    const bool choosable = !fixed && isSet(flags::hotWater);
    ui->groupBoxHeaterPriority->setVisible(choosable);
    if (choosable) {
        checkStored(ui->radioHeaterPriorityUse);
    }
    ui->groupBoxHeaterOnTemp->setVisible(!fixed && (isSet(flags::heater1) || isSet(flags::heater2)));
}

void InstallationSystemAWHP::loadWaterTankHeater()
{
    // Oddity 34: the second flag counts in capitals only.
    const bool available = isSet(flags::hotWater) && text(flags::tankHeater) == QLatin1String("SET");
    ui->groupBoxWaterTankHeater->setVisible(available);
    if (available) {
        loadChoice(ui->radioWaterTankHeaterUse);
    }
}

void InstallationSystemAWHP::load3rdPartyBoiler()
{
    const bool available = isSet("IduFuncList.isBoilerOf3rdParty");
    ui->groupBoxThirdParty->setVisible(available);
    if (!available) {
        return;
    }
    loadChoice(ui->radio3rdUse);
    if (ui->radio3rdUse->isChecked()) {
        ui->comboControlMode->setCurrentIndex(word(boilerModePath) == QLatin1String("MANUAL") ? 0 : 1);
    }
    enable3rdPartyBoiler();
}

void InstallationSystemAWHP::loadTankPriority()
{
    const QString priority = word(tankPriorityPath);
    if (priority == QLatin1String("HP_ONLY")) {
        mainDialog->setComboByKey(ui->comboHeatingPriority, QStringLiteral("Cycle"));
    } else if (priority == QLatin1String("HP_BH_BOTH")) {
        mainDialog->setComboByKey(ui->comboHeatingPriority, QStringLiteral("Cycle_Heater"));
    }
}

// Disinfection only dims the rows as well.
void InstallationSystemAWHP::enableWaterTankHeater()
{
    enable(ui->radioWaterTankHeaterUse->isChecked(), {ui->labelWaterTankPriority, ui->labelWaterTankTime},
           {ui->bulletAwhp9, ui->comboHeatingPriority, ui->bulletAwhp10, ui->comboDelayTime});
}

void InstallationSystemAWHP::enable3rdPartyBoiler()
{
    const bool used = ui->radio3rdUse->isChecked();
    enable(
        used, {ui->label3rdMode, ui->label3rdTemp, ui->label3rdHysterisis},
        {ui->groupBox3rdPartySub1, ui->groupBox3rdPartySub2, ui->groupBox3rdPartySub3, ui->comboControlMode});
    setControlledByTemperature(used && ui->comboControlMode->currentIndex() != 0);
}

void InstallationSystemAWHP::setControlledByTemperature(bool controlled)
{
    ui->combo3rdHysterisis->setEnabled(controlled);
    ui->comboControlTemp->setEnabled(controlled);
}

void InstallationSystemAWHP::on_radioHeaterPriorityNotuse_clicked() { change(ui->radioHeaterPriorityNotuse); }

void InstallationSystemAWHP::on_radioHeaterPriorityUse_clicked() { change(ui->radioHeaterPriorityUse); }

void InstallationSystemAWHP::on_comboHeaterOnTemperature_currentTextChanged(const QString &text)
{
    change(ui->comboHeaterOnTemperature, text);
}

void InstallationSystemAWHP::chooseWaterTankHeater(const QRadioButton *radio)
{
    enableWaterTankHeater();
    save(radio);
    save(paths::hotWaterHighLimit, hotWaterLimit);
    emit refreshInstallationPage();
    validataionCheck();
}

void InstallationSystemAWHP::on_radioWaterTankHeaterNotuse_clicked()
{
    chooseWaterTankHeater(ui->radioWaterTankHeaterNotuse);
}

void InstallationSystemAWHP::on_radioWaterTankHeaterUse_clicked()
{
    chooseWaterTankHeater(ui->radioWaterTankHeaterUse);
}

void InstallationSystemAWHP::on_radioWaterTankHeaterMode_clicked()
{
    chooseWaterTankHeater(ui->radioWaterTankHeaterMode);
}

void InstallationSystemAWHP::on_comboHeatingPriority_currentIndexChanged(int index)
{
    change(tankPriorityPath, index == 0 ? QStringLiteral("HP_ONLY") : QStringLiteral("HP_BH_BOTH"));
}

void InstallationSystemAWHP::on_comboDelayTime_currentIndexChanged(int index)
{
    change(ui->comboDelayTime, index);
}

void InstallationSystemAWHP::choose3rdPartyBoiler(const QRadioButton *radio)
{
    save(radio);
    enable3rdPartyBoiler();
    validataionCheck();
}

void InstallationSystemAWHP::on_radio3rdNotUse_clicked() { choose3rdPartyBoiler(ui->radio3rdNotUse); }

void InstallationSystemAWHP::on_radio3rdUse_clicked() { choose3rdPartyBoiler(ui->radio3rdUse); }

void InstallationSystemAWHP::on_comboControlMode_currentTextChanged(const QString &)
{
    const bool manual = ui->comboControlMode->currentIndex() == 0;
    save(boilerModePath, manual ? QStringLiteral("MANUAL") : QStringLiteral("AUTO"));
    setControlledByTemperature(!manual);
    validataionCheck();
}

void InstallationSystemAWHP::on_comboControlTemp_currentTextChanged(const QString &text)
{
    change(ui->comboControlTemp, text);
}

void InstallationSystemAWHP::on_combo3rdHysterisis_currentTextChanged(const QString &text)
{
    change(ui->combo3rdHysterisis, text);
}
