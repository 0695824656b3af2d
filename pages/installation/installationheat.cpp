#include "pages/installation/installationheat.h"

#include "app/maindialog.h"
#include "pages/style.h"
#include "ui_installationheat.h"

#include <QDebug>

namespace {

WaterRules heatRules()
{
    WaterRules rules;
    rules.basisFlag = QStringLiteral("IduFuncList.is_heatwatercontrolbasis");
    rules.controlBasis = QStringLiteral("SettingInfo.installation.heatWaterControlBasis");
    rules.airLow = QStringLiteral("SettingInfo.installation.settempLimit.heatAir.low_limit");
    rules.airHigh = QStringLiteral("SettingInfo.installation.settempLimit.heatAir.high_limit");
    rules.waterLow = QStringLiteral("SettingInfo.installation.settempLimit.heatWater.low_limit");
    rules.waterHigh = QStringLiteral("SettingInfo.installation.settempLimit.heatWater.high_limit");
    rules.controlType = QStringLiteral("SettingInfo.func.waterCtrBasisAirHeat.ctrType");
    rules.constant = QStringLiteral("SettingInfo.func.waterCtrBasisAirHeat.ctrTemp");
    rules.constantMainZone = QStringLiteral("SettingInfo.func.waterCtrBasisAirHeat.ctrTempMainZone");
    rules.thermoFlag = QStringLiteral("IduFuncList.isHeatThermoOnOff");
    rules.airThermo = QStringLiteral("SettingInfo.installation.typeOfHeat_Air_thermo");
    rules.waterThermo = QStringLiteral("SettingInfo.installation.typeOfHeat_Water_thermo");
    rules.pumpFlag = QStringLiteral("IduFuncList.is_PumpOperationSettingInHeat");
    rules.pumpOnFlag = QStringLiteral("IduFuncList.is_PumpOperationSettingInHeatOn");
    rules.pumpOption = QStringLiteral("SettingInfo.installation.pumpOperOptionInHeat.option");
    rules.pumpOnTime = QStringLiteral("SettingInfo.installation.pumpOperOptionInHeat.timeOn");
    rules.pumpOffTime = QStringLiteral("SettingInfo.installation.pumpOperOptionInHeat.time");
    rules.circuits = waterranges::Circuits::MainZoneBelow;
    return rules;
}

} // namespace

InstallationHeat::InstallationHeat(QWidget *parent)
    : WaterSection(heatRules(), parent)
    , ui(std::make_unique<Ui::InstallationHeat>())
{
    ui->setupUi(this);
    controls = waterControls(*ui);
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
    showStored({{ui->comboTemperatureIndoorMin, rules.airLow},
                {ui->comboTemperatureIndoorMax, rules.airHigh},
                {ui->comboControlWaterTemp, rules.constant},
                {ui->comboControlMainZoneTemp, rules.constantMainZone}});
}

void InstallationHeat::enableWaterPumpOperationTimer() { enableTimers(); }

void InstallationHeat::enableTemperatureControl() { showTemperatureControl(); }

void InstallationHeat::setControlWaterTempRange() { keepConstantsInLimits(); }

QString InstallationHeat::setOpacity(bool isEnabled) { return style::labelText(isEnabled); }

void InstallationHeat::setHeatWaterTempRange()
{
    const bool outlet = word(rules.controlBasis) == QLatin1String("EXIT");
    applyWaterLimits(waterranges::heatLow(flag("is_installed_heater")),
                     waterranges::heatHigh(flag("isR32"), outlet));
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
void InstallationHeat::choosePump(const QString &option)
{
    saveJsonData(rules.pumpOption, option);
    enableTimers();
    validationCheck();
}

void InstallationHeat::on_comboTemperatureIndoorMin_currentTextChanged(const QString &text)
{
    chooseAirLimit(rules.airLow, text);
}

void InstallationHeat::on_comboTemperatureIndoorMax_currentTextChanged(const QString &text)
{
    chooseAirLimit(rules.airHigh, text);
}

void InstallationHeat::on_comboTemperatureWaterMin_currentTextChanged(const QString &text)
{
    chooseWaterLimit(rules.waterLow, text);
}

void InstallationHeat::on_comboTemperatureWaterMax_currentTextChanged(const QString &text)
{
    chooseWaterLimit(rules.waterHigh, text);
}

void InstallationHeat::on_comboTNIndoorAirTemp_currentTextChanged(const QString &text)
{
    chooseThermo(rules.airThermo, text);
}

void InstallationHeat::on_comboTNIndoorWaterTemp_currentTextChanged(const QString &text)
{
    chooseThermo(rules.waterThermo, text);
}

void InstallationHeat::on_comboWaterPumpOnTimer_currentIndexChanged(int index)
{
    chooseTime(rules.pumpOnTime, index);
}

void InstallationHeat::on_comboWaterPumpOffTimer_currentIndexChanged(int index)
{
    chooseTime(rules.pumpOffTime, index);
}

void InstallationHeat::on_radioWaterPumpNotuse_clicked() { choosePump(QStringLiteral("SET")); }

void InstallationHeat::on_radioWaterPumpUse_clicked() { choosePump(QStringLiteral("CLR")); }

void InstallationHeat::on_radioControlTypeAuto_clicked() { chooseControlType(QStringLiteral("AUTO")); }

void InstallationHeat::on_radioControlTypeManual_clicked() { chooseControlType(QStringLiteral("MANUAL")); }

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
    const bool valid = mainDialog->checkValidationRadio(ui->radioControlTypeAuto, ui->radioControlTypeManual,
                                                        nullptr)
        && mainDialog->checkValidationRadio(ui->radioWaterPumpNotuse, ui->radioWaterPumpUse, nullptr);
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
