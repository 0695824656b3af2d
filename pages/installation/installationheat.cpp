#include "pages/installation/installationheat.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "pages/style.h"
#include "ui_installationheat.h"

#include <QDebug>

namespace {

WaterRules heatRules()
{
    WaterRules rules;
    rules.basisFlag = flags::heatWaterControlBasis;
    rules.controlBasis = paths::heatWaterControlBasis;
    rules.airLow = "SettingInfo.installation.settempLimit.heatAir.low_limit";
    rules.airHigh = "SettingInfo.installation.settempLimit.heatAir.high_limit";
    rules.waterLow = "SettingInfo.installation.settempLimit.heatWater.low_limit";
    rules.waterHigh = "SettingInfo.installation.settempLimit.heatWater.high_limit";
    rules.controlType = "SettingInfo.func.waterCtrBasisAirHeat.ctrType";
    rules.constant = "SettingInfo.func.waterCtrBasisAirHeat.ctrTemp";
    rules.constantMainZone = "SettingInfo.func.waterCtrBasisAirHeat.ctrTempMainZone";
    rules.thermoFlag = "IduFuncList.isHeatThermoOnOff";
    rules.airThermo = "SettingInfo.installation.typeOfHeat_Air_thermo";
    rules.waterThermo = "SettingInfo.installation.typeOfHeat_Water_thermo";
    rules.pumpFlag = "IduFuncList.is_PumpOperationSettingInHeat";
    rules.pumpOnFlag = "IduFuncList.is_PumpOperationSettingInHeatOn";
    rules.pumpOption = "SettingInfo.installation.pumpOperOptionInHeat.option";
    rules.pumpOnTime = "SettingInfo.installation.pumpOperOptionInHeat.timeOn";
    rules.pumpOffTime = "SettingInfo.installation.pumpOperOptionInHeat.time";
    rules.circuits = waterranges::Circuits::MainZoneBelow;
    return rules;
}

} // namespace

InstallationHeat::InstallationHeat(QWidget *parent)
    : WaterSection(heatRules(), parent)
    , ui(std::make_unique<Ui::InstallationHeat>())
{
    ui->setupUi(this);
    adopt(waterControls(*ui));
    startCollapsed(ui->hideButton, ui->frame);
    initUi();
}

InstallationHeat::~InstallationHeat() = default;

void InstallationHeat::showEvent(QShowEvent *event)
{
    WaterSection::showEvent(event);
    refresh();
}

void InstallationHeat::initUi()
{
    fillLists();
    initDefaultTempRange();
}

void InstallationHeat::refresh()
{
    loadJsonData();
    initDefaultTempRange();
    setloadJsonValue();
    changeLanguage();
    validationCheck();
}

void InstallationHeat::saveJsonData(const QString &path, const QJsonValue &value)
{
    writeWhileExpanded(path, value);
}

QJsonValue InstallationHeat::parseJsonData(const QString &path) { return read(path); }

void InstallationHeat::initDefaultTempRange()
{
    offer(ui->comboTemperatureIndoorMin, {16, 22});
    offer(ui->comboTemperatureIndoorMax, {24, 30});
}

void InstallationHeat::loadJsonData()
{
    showControlBasis();
    setHeatWaterTempRange();
    enableTemperatureControl();
    showOrHide({ui->groupBoxTHOnOff, ui->groupBoxTHIndoor, ui->groupBoxTHWater}, isSet(rules.thermoFlag));
    showWaterPump();
}

void InstallationHeat::setloadJsonValue()
{
    showStored({ui->comboTemperatureIndoorMin, ui->comboTemperatureIndoorMax, ui->comboControlWaterTemp,
                ui->comboControlMainZoneTemp});
}

void InstallationHeat::enableWaterPumpOperationTimer() { enableTimers(); }

void InstallationHeat::enableTemperatureControl() { showTemperatureControl(); }

void InstallationHeat::setControlWaterTempRange() { keepConstantsInLimits(); }

QString InstallationHeat::setOpacity(bool isEnabled) { return style::labelText(isEnabled); }

void InstallationHeat::setHeatWaterTempRange()
{
    const bool outlet = word(rules.controlBasis) == QLatin1String("EXIT");
    applyWaterLimits(waterranges::heatLow(isSet(flags::installedHeater)),
                     waterranges::heatHigh(isSet(flags::r32), outlet));
}

void InstallationHeat::on_hideButton_clicked() { toggle(ui->hideButton, ui->frame); }

void InstallationHeat::on_comboReferenceWater_currentTextChanged(const QString &text)
{
    saveControlBasis(text);
    setHeatWaterTempRange();
    initSeasonalAutoRange();
    validationCheck();
    announceChange();
}

// Oddity 31: the timers' captions keep their colour, unlike in cooling.
void InstallationHeat::choosePump(const QRadioButton *radio)
{
    save(radio);
    enableTimers();
    validationCheck();
}

void InstallationHeat::on_comboTemperatureIndoorMin_currentTextChanged(const QString &text)
{
    chooseAirLimit(ui->comboTemperatureIndoorMin, text);
}

void InstallationHeat::on_comboTemperatureIndoorMax_currentTextChanged(const QString &text)
{
    chooseAirLimit(ui->comboTemperatureIndoorMax, text);
}

void InstallationHeat::on_comboTemperatureWaterMin_currentTextChanged(const QString &text)
{
    chooseWaterLimit(ui->comboTemperatureWaterMin, text);
}

void InstallationHeat::on_comboTemperatureWaterMax_currentTextChanged(const QString &text)
{
    chooseWaterLimit(ui->comboTemperatureWaterMax, text);
}

void InstallationHeat::on_comboTNIndoorAirTemp_currentTextChanged(const QString &text)
{
    change(ui->comboTNIndoorAirTemp, text);
}

void InstallationHeat::on_comboTNIndoorWaterTemp_currentTextChanged(const QString &text)
{
    change(ui->comboTNIndoorWaterTemp, text);
}

void InstallationHeat::on_comboWaterPumpOnTimer_currentIndexChanged(int index)
{
    change(ui->comboWaterPumpOnTimer, index);
}

void InstallationHeat::on_comboWaterPumpOffTimer_currentIndexChanged(int index)
{
    change(ui->comboWaterPumpOffTimer, index);
}

void InstallationHeat::on_radioWaterPumpNotuse_clicked() { choosePump(ui->radioWaterPumpNotuse); }

void InstallationHeat::on_radioWaterPumpUse_clicked() { choosePump(ui->radioWaterPumpUse); }

void InstallationHeat::on_radioControlTypeAuto_clicked() { chooseControlType(ui->radioControlTypeAuto); }

void InstallationHeat::on_radioControlTypeManual_clicked() { chooseControlType(ui->radioControlTypeManual); }

void InstallationHeat::on_comboControlWaterTemp_currentTextChanged(const QString &text)
{
    chooseConstant(text);
}

void InstallationHeat::on_comboControlMainZoneTemp_currentTextChanged(const QString &text)
{
    chooseConstantMainZone(text);
}

void InstallationHeat::validationCheck()
{
    const bool valid = choicesMade();
    if (valid) {
        qDebug() << "InstallationHeat::SettingUser validation succeed!";
    } else {
        qDebug() << "InstallationHeat::validationCheck validation check failed!!";
    }
    mainDialog->setHeatSectionValid(valid);
    mainDialog->updateInstallationValid();
}

void InstallationHeat::changeLanguage()
{
    setCaptions(*ui);
    changeLanguageInCombobox();
}

void InstallationHeat::changeLanguageInCombobox() { refillLists(); }

// The cooling defaults are put back as well, and whatever the water basis.
void InstallationHeat::initSeasonalAutoRange() { saveSeasonalDefaults({{16, 20}, {28, 35}}); }

void InstallationHeat::announceChange() { emit refreshInstallationPageSignal(); }
