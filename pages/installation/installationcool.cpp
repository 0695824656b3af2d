#include "pages/installation/installationcool.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "pages/style.h"
#include "ui_installationcool.h"

#include <QDebug>

namespace {

WaterRules coolRules()
{
    WaterRules rules;
    rules.basisFlag = flags::coolWaterControlBasis;
    rules.controlBasis = paths::coolWaterControlBasis;
    rules.airLow = "SettingInfo.installation.settempLimit.coolAir.low_limit";
    rules.airHigh = "SettingInfo.installation.settempLimit.coolAir.high_limit";
    rules.waterLow = "SettingInfo.installation.settempLimit.coolWater.low_limit";
    rules.waterHigh = "SettingInfo.installation.settempLimit.coolWater.high_limit";
    rules.controlType = "SettingInfo.func.waterCtrBasisAirCool.ctrType";
    rules.constant = "SettingInfo.func.waterCtrBasisAirCool.ctrTemp";
    rules.constantMainZone = "SettingInfo.func.waterCtrBasisAirCool.ctrTempMainZone";
    rules.thermoFlag = "IduFuncList.is_coolThermoOnOff";
    rules.airThermo = "SettingInfo.installation.coolAirThermoOnOff";
    rules.waterThermo = "SettingInfo.installation.coolWaterThermoOnOff";
    rules.pumpFlag = "IduFuncList.is_PumpOperationSettingInCool";
    rules.pumpOnFlag = "IduFuncList.is_PumpOperationSettingInCoolOn";
    rules.pumpOption = "SettingInfo.installation.pumpOperOptionInCool.option";
    rules.pumpOnTime = "SettingInfo.installation.pumpOperOptionInCool.timeOn";
    rules.pumpOffTime = "SettingInfo.installation.pumpOperOptionInCool.time";
    rules.circuits = waterranges::Circuits::MainZoneAbove;
    return rules;
}

} // namespace

InstallationCool::InstallationCool(QWidget *parent)
    : WaterSection(coolRules(), parent)
    , ui(std::make_unique<Ui::InstallationCool>())
{
    ui->setupUi(this);
    adopt(waterControls(*ui));
    // Oddity 1: the sense is inverted: "SET" is no fan coil unit. It is checked before the pump.
    choices.insert(choices.begin() + 1,
                   {paths::fcuDisable, {{ui->radioFanCoilNotuse, "SET"}, {ui->radioFanCoilUse, "CLR"}}});
    lists.push_back(
        {ui->comboForcerWater, "SettingInfo.installation.UFH_stop.watertemp", Shown::Temperature});
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
    offer(ui->comboTemperatureIndoorMin, {isSet(flags::coolAir16) ? 16 : 18, 22});
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
    showOrHide({ui->groupBoxTempRange, ui->groupBoxForcedStop}, word(flags::cool) != QLatin1String("CLR"));
    loadChoice(ui->radioFanCoilUse);
    enableFcuWaterTemp();
    showWaterPump();
}

void InstallationCool::setloadJsonValue()
{
    showStored({ui->comboTemperatureIndoorMin, ui->comboTemperatureIndoorMax, ui->comboForcerWater,
                ui->comboControlWaterTemp, ui->comboControlMainZoneTemp});
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
    const waterranges::CoolWords words{word(paths::fcuDisable),  word(rules.basisFlag),
                                       word(flags::r32),         word(flags::r410CoolExpand),
                                       word(rules.controlBasis), word(flags::coolTempMin5)};
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
    change(ui->comboForcerWater, text);
}

void InstallationCool::on_radioFanCoilNotuse_clicked()
{
    chooseFanCoil(ui->radioFanCoilNotuse);
    initSeasonalAutoRange();
    announceChange();
}

// Oddity 38: the seasonal defaults stay as they are here, unlike above.
void InstallationCool::on_radioFanCoilUse_clicked()
{
    chooseFanCoil(ui->radioFanCoilUse);
    announceChange();
}

void InstallationCool::chooseFanCoil(const QRadioButton *radio)
{
    change(radio);
    setCoolWaterTempRange();
    enableFcuWaterTemp();
}

void InstallationCool::choosePump(const QRadioButton *radio)
{
    save(radio);
    enablePumpOperOptionInCool();
    validationCheck();
}

void InstallationCool::on_comboTemperatureIndoorMin_currentTextChanged(const QString &text)
{
    chooseAirLimit(ui->comboTemperatureIndoorMin, text);
}

void InstallationCool::on_comboTemperatureIndoorMax_currentTextChanged(const QString &text)
{
    chooseAirLimit(ui->comboTemperatureIndoorMax, text);
}

void InstallationCool::on_comboTemperatureWaterMin_currentTextChanged(const QString &text)
{
    chooseWaterLimit(ui->comboTemperatureWaterMin, text);
}

void InstallationCool::on_comboTemperatureWaterMax_currentTextChanged(const QString &text)
{
    chooseWaterLimit(ui->comboTemperatureWaterMax, text);
}

void InstallationCool::on_comboTNIndoorAirTemp_currentTextChanged(const QString &text)
{
    change(ui->comboTNIndoorAirTemp, text);
}

void InstallationCool::on_comboTNIndoorWaterTemp_currentTextChanged(const QString &text)
{
    change(ui->comboTNIndoorWaterTemp, text);
}

void InstallationCool::on_comboWaterPumpOnTimer_currentIndexChanged(int index)
{
    change(ui->comboWaterPumpOnTimer, index);
}

void InstallationCool::on_comboWaterPumpOffTimer_currentIndexChanged(int index)
{
    change(ui->comboWaterPumpOffTimer, index);
}

void InstallationCool::on_radioWaterPumpNotuse_clicked() { choosePump(ui->radioWaterPumpNotuse); }

void InstallationCool::on_radioWaterPumpUse_clicked() { choosePump(ui->radioWaterPumpUse); }

void InstallationCool::on_radioControlTypeAuto_clicked() { chooseControlType(ui->radioControlTypeAuto); }

void InstallationCool::on_radioControlTypeManual_clicked() { chooseControlType(ui->radioControlTypeManual); }

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
    const bool valid = choicesMade();
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
