#include "pages/installation/installationsystemawhp.h"

#include "app/maindialog.h"
#include "pages/style.h"
#include "ui_installationsystemawhp.h"

#include <QDebug>

namespace {

/// The hot water limit in °C that each choice of the boost heater sets, whatever the refrigerant.
constexpr int hotWaterLimit = 50;

/// The word of an anti-freeze temperature in K, the greatest step for the lowest; empty for what isn't
/// listed.
QString antiFreezeWord(int kelvin)
{
    const bool listed = kelvin >= -25 && kelvin <= -5 && kelvin % 5 == 0;
    return listed ? QStringLiteral("STEP") + QString::number(-kelvin / 5 - 1) : QString();
}

} // namespace

InstallationSystemAWHP::InstallationSystemAWHP(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::InstallationSystemAWHP>())
{
    ui->setupUi(this);
    initUi();
}

InstallationSystemAWHP::~InstallationSystemAWHP() = default;

void InstallationSystemAWHP::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    refresh();
}

// The lists stand before values are selected in them; the load sets visibility and radios only.
void InstallationSystemAWHP::refresh()
{
    loadJsonData();
    initDefaultTempRange();
    if (mainDialog->isFahrenheit()) {
        conversionToFahrenheit();
    }
    setloadJsonValue();
    validataionCheck();
}

QJsonValue InstallationSystemAWHP::parseJsonData(const QString &path) { return read(path); }

void InstallationSystemAWHP::saveJsonData(const QString &path, const QJsonValue &value)
{
    emit saveJsonValue(path, value);
}

QString InstallationSystemAWHP::setOpacity(bool isEnabled) { return style::labelText(isEnabled); }

void InstallationSystemAWHP::refreshInstallation() { emit refreshInstallationPage(); }

void InstallationSystemAWHP::enable2ndCircuit()
{
    const bool used = ui->radio2ndUse->isChecked();
    style::apply(ui->label2ndValve, setOpacity(used));
    style::apply(ui->label2ndHysterisis, setOpacity(used));
    ui->bulletAwhp2->setEnabled(used);
    ui->comboValveClosingTime->setEnabled(used);
    ui->bulletAwhp3->setEnabled(used);
    ui->comboHysterisis->setEnabled(used);
}

void InstallationSystemAWHP::enableSmartGrid()
{
    const bool used = ui->radioSgUse->isChecked();
    style::apply(ui->labelSmartgridStep, setOpacity(used));
    ui->bulletAwhp5->setEnabled(used);
    ui->comboStep->setEnabled(used);
}

// Disinfection only dims the rows as well.
void InstallationSystemAWHP::enableWaterTankHeater()
{
    const bool used = ui->radioWaterTankHeaterUse->isChecked();
    style::apply(ui->labelWaterTankPriority, setOpacity(used));
    style::apply(ui->labelWaterTankTime, setOpacity(used));
    ui->bulletAwhp9->setEnabled(used);
    ui->comboHeatingPriority->setEnabled(used);
    ui->bulletAwhp10->setEnabled(used);
    ui->comboDelayTime->setEnabled(used);
}

void InstallationSystemAWHP::enable3rdPartyBoiler()
{
    const bool used = ui->radio3rdUse->isChecked();
    for (QGroupBox *group : {ui->groupBox3rdPartySub1, ui->groupBox3rdPartySub2, ui->groupBox3rdPartySub3}) {
        group->setEnabled(used);
    }
    for (QLabel *label : {ui->label3rdMode, ui->label3rdTemp, ui->label3rdHysterisis}) {
        style::apply(label, setOpacity(used));
    }
    ui->comboControlMode->setEnabled(used);
    setControlledByTemperature(used && ui->comboControlMode->currentIndex() != 0);
}

void InstallationSystemAWHP::setControlledByTemperature(bool controlled)
{
    ui->combo3rdHysterisis->setEnabled(controlled);
    ui->comboControlTemp->setEnabled(controlled);
}

void InstallationSystemAWHP::choose(const QAbstractButton *button)
{
    saveChoice(
        {{ui->radio2ndNotuse, "SettingInfo.installation.circuitMainZone.enableMainZone", "CLR"},
         {ui->radio2ndUse, "SettingInfo.installation.circuitMainZone.enableMainZone", "SET"},
         {ui->radioSgNotuse, "SettingInfo.installation.smartGrid.smartGridUse", "CLR"},
         {ui->radioSgUse, "SettingInfo.installation.smartGrid.smartGridUse", "SET"},
         {ui->radioHeaterPriorityNotuse, "SettingInfo.installation.EH_BH_priority", "CLR"},
         {ui->radioHeaterPriorityUse, "SettingInfo.installation.EH_BH_priority", "SET"},
         {ui->radioWaterTankHeaterNotuse, "SettingInfo.installation.hotWaterTankHeater.tankHeaterUse",
          "NOTUSE"},
         {ui->radioWaterTankHeaterUse, "SettingInfo.installation.hotWaterTankHeater.tankHeaterUse", "BH_USE"},
         {ui->radioWaterTankHeaterMode, "SettingInfo.installation.hotWaterTankHeater.tankHeaterUse",
          "ONLY_DISINFECT"},
         {ui->radioExternalPumpNotuse, "SettingInfo.installation.extWaterPump", "CLR"},
         {ui->radioExternalPumpUse, "SettingInfo.installation.extWaterPump", "SET"},
         {ui->radio3rdNotUse, "SettingInfo.installation.boilerOfThirdParty.thirdPartyUse", "CLR"},
         {ui->radio3rdUse, "SettingInfo.installation.boilerOfThirdParty.thirdPartyUse", "SET"}},
        button);
}

void InstallationSystemAWHP::save(const char *key, const QJsonValue &value)
{
    saveJsonData(installation(key), value);
    validataionCheck();
}

// Captions of other sections depend on the second circuit.
void InstallationSystemAWHP::choose2ndCircuit(const QAbstractButton *button)
{
    enable2ndCircuit();
    choose(button);
    mainDialog->changeLanguage();
    validataionCheck();
    emit refreshInstallationPage();
}

void InstallationSystemAWHP::on_radio2ndNotuse_clicked() { choose2ndCircuit(ui->radio2ndNotuse); }

void InstallationSystemAWHP::on_radio2ndUse_clicked() { choose2ndCircuit(ui->radio2ndUse); }

void InstallationSystemAWHP::on_radioSgNotuse_clicked()
{
    enableSmartGrid();
    choose(ui->radioSgNotuse);
    validataionCheck();
}

void InstallationSystemAWHP::on_radioSgUse_clicked()
{
    enableSmartGrid();
    choose(ui->radioSgUse);
    validataionCheck();
}

void InstallationSystemAWHP::on_radioHeaterPriorityNotuse_clicked()
{
    choose(ui->radioHeaterPriorityNotuse);
    validataionCheck();
}

void InstallationSystemAWHP::on_radioHeaterPriorityUse_clicked()
{
    choose(ui->radioHeaterPriorityUse);
    validataionCheck();
}

void InstallationSystemAWHP::chooseWaterTankHeater(const QAbstractButton *button)
{
    enableWaterTankHeater();
    choose(button);
    saveJsonData(installation("settempLimit.hotWater.high_limit"), hotWaterLimit);
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

void InstallationSystemAWHP::on_radioExternalPumpNotuse_clicked()
{
    choose(ui->radioExternalPumpNotuse);
    validataionCheck();
}

void InstallationSystemAWHP::on_radioExternalPumpUse_clicked()
{
    choose(ui->radioExternalPumpUse);
    validataionCheck();
}

void InstallationSystemAWHP::on_radio3rdNotUse_clicked()
{
    choose(ui->radio3rdNotUse);
    enable3rdPartyBoiler();
    validataionCheck();
}

void InstallationSystemAWHP::on_radio3rdUse_clicked()
{
    choose(ui->radio3rdUse);
    enable3rdPartyBoiler();
    validataionCheck();
}

// The index is the value.
void InstallationSystemAWHP::on_comboHysterisis_currentIndexChanged(int index)
{
    const bool last = mainDialog->isFahrenheit() && index == lastHysteresisItem;
    save("circuitMainZone.hysterisisMainZone", last ? lastHysteresis : index);
}

// By the list's index, whatever the text: a language may follow the number with any word.
void InstallationSystemAWHP::on_comboValveClosingTime_currentTextChanged(const QString &)
{
    save("circuitMainZone.controlTimeMainZone", ui->comboValveClosingTime->currentIndex() + firstClosingTime);
}

void InstallationSystemAWHP::on_comboStep_currentIndexChanged(int index)
{
    save("smartGrid.smartGridMode", index);
}

void InstallationSystemAWHP::on_comboHeaterOnTemperature_currentTextChanged(const QString &text)
{
    save("eheater_onoff.heater1_value", shownValue(Shown::Temperature, text));
}

// Oddity 17: In °F the number goes through the table of temperatures as well, which leaves none that is
// listed.
void InstallationSystemAWHP::on_comboAntiFreezingTemp_currentTextChanged(const QString &text)
{
    save("antiFreezeTemp", antiFreezeWord(shownValue(Shown::Kelvin, text).toInt()));
}

void InstallationSystemAWHP::on_comboPreRun_currentIndexChanged(int index)
{
    save("pumpPreOverRun.preRun", index + firstRun);
}

void InstallationSystemAWHP::on_comboOverRun_currentIndexChanged(int index)
{
    save("pumpPreOverRun.overRun", index + firstRun);
}

void InstallationSystemAWHP::on_comboDelayTime_currentIndexChanged(int index)
{
    save("hotWaterTankHeater.tankHeaterDelay", index);
}

void InstallationSystemAWHP::on_comboControlMode_currentTextChanged(const QString &)
{
    const bool manual = ui->comboControlMode->currentIndex() == 0;
    saveJsonData(installation("boilerOfThirdParty.thirdPartyMode"),
                 manual ? QStringLiteral("MANUAL") : QStringLiteral("AUTO"));
    setControlledByTemperature(!manual);
    validataionCheck();
}

void InstallationSystemAWHP::on_comboControlTemp_currentTextChanged(const QString &text)
{
    save("boilerOfThirdParty.thirdPartyTemp", shownValue(Shown::Temperature, text));
}

void InstallationSystemAWHP::on_combo3rdHysterisis_currentTextChanged(const QString &text)
{
    save("boilerOfThirdParty.thirdPartyHysterisis", shownValue(Shown::Kelvin, text));
}

// The messages name the system section.
void InstallationSystemAWHP::validataionCheck()
{
    const MainDialog *dialog = mainDialog;
    const bool result = dialog->checkValidationRadio(ui->radio2ndNotuse, ui->radio2ndUse, nullptr)
        && dialog->checkValidationRadio(ui->radio3rdNotUse, ui->radio3rdUse, nullptr)
        && dialog->checkValidationRadio(ui->radioExternalPumpNotuse, ui->radioExternalPumpUse, nullptr)
        && dialog->checkValidationRadio(ui->radioHeaterPriorityNotuse, ui->radioHeaterPriorityUse, nullptr)
        && dialog->checkValidationRadio(ui->radioSgNotuse, ui->radioSgUse, nullptr)
        && dialog->checkValidationRadio(ui->radioWaterTankHeaterMode, ui->radioWaterTankHeaterNotuse,
                                        ui->radioWaterTankHeaterUse);
    qDebug() << (result ? "InstallationSystemSetting::validationCheck succeed"
                        : "InstallationSystemSetting::validationCheck failed");
    emit validationCheckSignals(result, QStringLiteral("AWHP"));
}

void InstallationSystemAWHP::on_comboHeatingPriority_currentIndexChanged(int index)
{
    save("hotWaterTankHeater.tankHeaterPriority",
         index == 0 ? QStringLiteral("HP_ONLY") : QStringLiteral("HP_BH_BOTH"));
}

void InstallationSystemAWHP::changeLanguage()
{
    setCaptions(*ui);
    changeLanguageInCombobox();
}
