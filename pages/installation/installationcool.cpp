#include "pages/installation/installationcool.h"

#include "app/maindialog.h"
#include "pages/style.h"
#include "ui_installationcool.h"

#include <QDebug>

namespace {

// Oddity 1: the sense is inverted: "SET" is no fan coil unit.
const char *const fanCoilPath = "UFH_stop.FCU_disable";
const char *const cutOffPath = "UFH_stop.watertemp";

WaterRules coolRules()
{
    WaterRules rules;
    rules.basisFlag = QStringLiteral("IduFuncList.is_coolwatercontrolbasis");
    rules.controlBasis = QStringLiteral("SettingInfo.installation.coolWaterControlBasis");
    rules.airLow = QStringLiteral("SettingInfo.installation.settempLimit.coolAir.low_limit");
    rules.airHigh = QStringLiteral("SettingInfo.installation.settempLimit.coolAir.high_limit");
    rules.waterLow = QStringLiteral("SettingInfo.installation.settempLimit.coolWater.low_limit");
    rules.waterHigh = QStringLiteral("SettingInfo.installation.settempLimit.coolWater.high_limit");
    rules.controlType = QStringLiteral("SettingInfo.func.waterCtrBasisAirCool.ctrType");
    rules.constant = QStringLiteral("SettingInfo.func.waterCtrBasisAirCool.ctrTemp");
    rules.constantMainZone = QStringLiteral("SettingInfo.func.waterCtrBasisAirCool.ctrTempMainZone");
    rules.thermoFlag = QStringLiteral("IduFuncList.is_coolThermoOnOff");
    rules.airThermo = QStringLiteral("SettingInfo.installation.coolAirThermoOnOff");
    rules.waterThermo = QStringLiteral("SettingInfo.installation.coolWaterThermoOnOff");
    rules.pumpFlag = QStringLiteral("IduFuncList.is_PumpOperationSettingInCool");
    rules.pumpOnFlag = QStringLiteral("IduFuncList.is_PumpOperationSettingInCoolOn");
    rules.pumpOption = QStringLiteral("SettingInfo.installation.pumpOperOptionInCool.option");
    rules.pumpOnTime = QStringLiteral("SettingInfo.installation.pumpOperOptionInCool.timeOn");
    rules.pumpOffTime = QStringLiteral("SettingInfo.installation.pumpOperOptionInCool.time");
    rules.circuits = waterranges::Circuits::MainZoneAbove;
    return rules;
}

} // namespace

InstallationCool::InstallationCool(QWidget *parent)
    : WaterSection(coolRules(), parent)
    , ui(std::make_unique<Ui::InstallationCool>())
{
    ui->setupUi(this);
    controls = waterControls(*ui);
    startCollapsed(ui->hideButton, ui->frame);
    initUi();
}

InstallationCool::~InstallationCool() = default;

void InstallationCool::showEvent(QShowEvent *event)
{
    WaterSection::showEvent(event);
    refresh();
}

void InstallationCool::initUi()
{
    fillLists();
    initDefaultTempRange();
}

void InstallationCool::refresh()
{
    loadJsonData();
    initDefaultTempRange();
    setloadJsonValue();
    changeLanguage();
    validationCheck();
}

void InstallationCool::saveJsonData(const QString &path, const QJsonValue &value)
{
    writeWhileExpanded(path, value);
}

QJsonValue InstallationCool::parseJsonData(const QString &path) { return read(path); }

void InstallationCool::initDefaultTempRange()
{
    offer(ui->comboTemperatureIndoorMin, {flag("isCoolAir16") ? 16 : 18, 22});
    offer(ui->comboTemperatureIndoorMax, {24, 30});
    offer(ui->comboForcerWater, {16, 25});
}

void InstallationCool::loadJsonData()
{
    showControlBasis();
    showOrHide({ui->groupBoxTempIndoorAirTemp, ui->groupBoxTempWaterTemp}, true);
    setCoolWaterTempRange();
    enableTemperatureControl();
    showOrHide({ui->groupBoxTHOnOff, ui->groupBoxTHIndoorAirTemp, ui->groupBoxTHWaterTemp},
               isSet(rules.thermoFlag));
    showOrHide({ui->groupBoxTempRange, ui->groupBoxForcedStop},
               word(flagPath("is_cool")) != QLatin1String("CLR"));
    checkPair(word(installation(fanCoilPath)), {ui->radioFanCoilNotuse, "SET", ui->radioFanCoilUse, "CLR"});
    enableFcuWaterTemp();
    showWaterPump();
}

void InstallationCool::setloadJsonValue()
{
    showStored({{ui->comboTemperatureIndoorMin, rules.airLow},
                {ui->comboTemperatureIndoorMax, rules.airHigh},
                {ui->comboForcerWater, installation(cutOffPath)},
                {ui->comboControlWaterTemp, rules.constant},
                {ui->comboControlMainZoneTemp, rules.constantMainZone}});
}

void InstallationCool::enableTemperatureControl() { showTemperatureControl(); }

void InstallationCool::enablePumpOperOptionInCool()
{
    enableTimers();
    const QString look = setOpacity(ui->radioWaterPumpUse->isChecked());
    style::apply(ui->labelOpeartionOn, look);
    style::apply(ui->labelOpeartionOff, look);
}

void InstallationCool::enableFcuWaterTemp()
{
    ui->groupBoxForcedWaterTemp->setEnabled(!ui->radioFanCoilUse->isChecked());
}

void InstallationCool::setControlWaterTempRange() { keepConstantsInLimits(); }

void InstallationCool::setCoolWaterTempRange()
{
    const waterranges::CoolWords words{word(installation(fanCoilPath)), word(rules.basisFlag),
                                       word(flagPath("isR32")),         word(flagPath("isR410CoolExpand")),
                                       word(rules.controlBasis),        word(flagPath("isCoolTempMin5"))};
    applyWaterLimits(waterranges::coolLow(words), waterranges::coolHigh(words));
}

QString InstallationCool::setOpacity(bool isEnabled) { return style::labelText(isEnabled); }

void InstallationCool::changeWaterTempByFCU()
{
    const int low = ui->radioFanCoilNotuse->isChecked() ? 18 : 5;
    mainDialog->setComboByValue(ui->comboTemperatureWaterMin, low, MainDialog::Temperature);
    mainDialog->setComboByValue(ui->comboTemperatureWaterMax, 24, MainDialog::Temperature);
}

void InstallationCool::on_hideButton_clicked() { toggle(ui->hideButton, ui->frame); }

void InstallationCool::on_comboReferenceWater_currentTextChanged(const QString &text)
{
    saveControlBasis(text);
    setCoolWaterTempRange();
    initSeasonalAutoRange();
    validationCheck();
    announceChange();
}

void InstallationCool::on_comboForcerWater_currentTextChanged(const QString &text)
{
    saveTemperature(installation(cutOffPath), text);
    validationCheck();
}

void InstallationCool::on_radioFanCoilNotuse_clicked()
{
    chooseFanCoil(QStringLiteral("SET"));
    initSeasonalAutoRange();
    announceChange();
}

// Oddity 38: the seasonal defaults stay as they are here, unlike above.
void InstallationCool::on_radioFanCoilUse_clicked()
{
    chooseFanCoil(QStringLiteral("CLR"));
    announceChange();
}

void InstallationCool::chooseFanCoil(const QString &disabled)
{
    saveJsonData(installation(fanCoilPath), disabled);
    validationCheck();
    setCoolWaterTempRange();
    enableFcuWaterTemp();
}

void InstallationCool::choosePump(const QString &option)
{
    saveJsonData(rules.pumpOption, option);
    enablePumpOperOptionInCool();
    validationCheck();
}

void InstallationCool::on_comboTemperatureIndoorMin_currentTextChanged(const QString &text)
{
    chooseAirLimit(rules.airLow, text);
}

void InstallationCool::on_comboTemperatureIndoorMax_currentTextChanged(const QString &text)
{
    chooseAirLimit(rules.airHigh, text);
}

void InstallationCool::on_comboTemperatureWaterMin_currentTextChanged(const QString &text)
{
    chooseWaterLimit(rules.waterLow, text);
}

void InstallationCool::on_comboTemperatureWaterMax_currentTextChanged(const QString &text)
{
    chooseWaterLimit(rules.waterHigh, text);
}

void InstallationCool::on_comboTNIndoorAirTemp_currentTextChanged(const QString &text)
{
    chooseThermo(rules.airThermo, text);
}

void InstallationCool::on_comboTNIndoorWaterTemp_currentTextChanged(const QString &text)
{
    chooseThermo(rules.waterThermo, text);
}

void InstallationCool::on_comboWaterPumpOnTimer_currentIndexChanged(int index)
{
    chooseTime(rules.pumpOnTime, index);
}

void InstallationCool::on_comboWaterPumpOffTimer_currentIndexChanged(int index)
{
    chooseTime(rules.pumpOffTime, index);
}

void InstallationCool::on_radioWaterPumpNotuse_clicked() { choosePump(QStringLiteral("SET")); }

void InstallationCool::on_radioWaterPumpUse_clicked() { choosePump(QStringLiteral("CLR")); }

void InstallationCool::on_radioControlTypeAuto_clicked() { chooseControlType(QStringLiteral("AUTO")); }

void InstallationCool::on_radioControlTypeManual_clicked() { chooseControlType(QStringLiteral("MANUAL")); }

void InstallationCool::on_comboControlWaterTemp_currentTextChanged(const QString &text)
{
    chooseConstant(text);
}

void InstallationCool::on_comboControlMainZoneTemp_currentTextChanged(const QString &text)
{
    chooseConstantMainZone(text);
}

void InstallationCool::validationCheck()
{
    const bool valid = mainDialog->checkValidationRadio(ui->radioControlTypeAuto, ui->radioControlTypeManual,
                                                        nullptr)
        && mainDialog->checkValidationRadio(ui->radioFanCoilNotuse, ui->radioFanCoilUse, nullptr)
        && mainDialog->checkValidationRadio(ui->radioWaterPumpNotuse, ui->radioWaterPumpUse, nullptr);
    if (valid) {
        qDebug() << "InstallationCool::SettingUser validation succeed!";
    } else {
        qDebug() << "InstallationCool::validationCheck validation check failed!!";
    }
    mainDialog->setCoolSectionValid(valid);
    mainDialog->updateInstallationValid();
}

void InstallationCool::changeLanguage()
{
    setCaptions(*ui);
    changeLanguageInCombobox();
}

void InstallationCool::changeLanguageInCombobox() { refillLists(); }

// Oddity 34: compared as it stands: the word in another case counts as the inlet.
void InstallationCool::initSeasonalAutoRange()
{
    const bool outlet = text(rules.controlBasis) == QLatin1String("EXIT");
    saveSeasonalDefaults({{outlet ? 16 : 20, 20}, {28, 35}});
}

void InstallationCool::announceChange() { emit refreshInstallationPageSignal(); }
