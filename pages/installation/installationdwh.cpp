#include "pages/installation/installationdwh.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "rules/hotwaterranges.h"
#include "ui_installationdwh.h"

#include <QDebug>

namespace {

std::vector<const char *> stepKeys() { return {"STEP0", "STEP1", "STEP2", "STEP3"}; }

std::vector<const char *> dayKeys() { return {"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"}; }

QStringList asTexts(const std::vector<const char *> &keys)
{
    QStringList texts;
    for (const char *key : keys) {
        texts.append(QLatin1String(key));
    }
    return texts;
}

QStringList wholeHours()
{
    QStringList hours;
    for (int hour = 0; hour < 24; ++hour) {
        hours.append(QStringLiteral("%1:00").arg(hour, 2, 10, QLatin1Char('0')));
    }
    return hours;
}

// Oddity 10: in the order in which a load selects. Two steps of a list aren't those of its value: the holding
// time goes by 5 in the list and by 1 in the value, and the stop time stores the index and no minutes.
std::vector<ValueRow> valueRows(const Ui::InstallationDWH &ui)
{
    return {
        {ui.comboHotWaterMin, "SettingInfo.installation.settempLimit.hotWater.low_limit", Shown::Temperature},
        {ui.comboHotWaterMax, paths::hotWaterHighLimit, Shown::Temperature},
        {ui.comboTankWaterMin, "SettingInfo.installation.hotwater_logic.hysterisis", Shown::Kelvin},
        {ui.comboMaxTemp, "SettingInfo.installation.disinfect_data.maxTemp", Shown::Temperature},
        {ui.comboTankHeatingHysterisis, "SettingInfo.installation.hotwater_addData.hysterisis",
         Shown::Kelvin},
        {ui.comboInletWaterMax, "SettingInfo.installation.hotwater_logic.compMaxTemp", Shown::Temperature},
        {ui.comboHeatingDurationTime, "SettingInfo.installation.hotwater_timer.maintain_time", Shown::Index,
         1},
        {ui.comboStopDurationTime, "SettingInfo.installation.hotwater_timer.restrict_time", Shown::Index},
        {ui.comboHeatPump, "SettingInfo.installation.waterThermoOnOff", Shown::Key},
        {ui.comboSchedule1, "SettingInfo.installation.disinfect_time.day", Shown::Index},
        {ui.comboSchedule2, "SettingInfo.installation.disinfect_time.start", Shown::Index},
        {ui.comboMaxTempDuration, "SettingInfo.installation.disinfect_data.howLong", Shown::Index, 5},
        {ui.comboCutOffDuration, "SettingInfo.installation.disinfect_data.cutOffTime", Shown::Index, 1},
    };
}

} // namespace

InstallationDWH::InstallationDWH(QWidget *parent)
    : Section(parent)
    , ui(std::make_unique<Ui::InstallationDWH>())
{
    ui->setupUi(this);
    lists = valueRows(*ui);
    choices = {{"SettingInfo.installation.hotwater_addData.UFH_priority",
                {{ui->radioUnderFloorNotUse, "CLR"}, {ui->radioUnderFloorUse, "SET"}}},
               {"SettingInfo.installation.disinfect_time.enable",
                {{ui->radioDisinfectionNotUse, "CLR"}, {ui->radioDisinfectionUse, "SET"}}}};
    startCollapsed(ui->hideButton, ui->frame);
    initUi();
}

InstallationDWH::~InstallationDWH() = default;

void InstallationDWH::showEvent(QShowEvent *event)
{
    Section::showEvent(event);
    refresh();
}

void InstallationDWH::initUi()
{
    mainDialog->setRangeValueInComboBox(ui->comboHeatingDurationTime, 5, 95, MainDialog::PlainNumber, 5);
    mainDialog->setRangeValueInComboBox(ui->comboStopDurationTime, 0, 600, MainDialog::PlainNumber, 30);
    fill(ui->comboHeatPump, asTexts(stepKeys()));
    fill(ui->comboSchedule1, asTexts(dayKeys()));
    fill(ui->comboSchedule2, wholeHours());
    fill(ui->comboMaxTempDuration, numbered(5, 60, 5, QStringLiteral("min")));
    fill(ui->comboCutOffDuration, numbered(1, 12, 1, QStringLiteral("hour")));
    initDefaultTempRange();
}

void InstallationDWH::initDefaultTempRange()
{
    mainDialog->setRangeValueInComboBox(ui->comboTankHeatingHysterisis, 2, 4, MainDialog::Kelvin, 1);
    // Oddity 34: compared as it stands, unlike the other flags.
    const bool heaterOffered = text(flags::tankHeater) == QLatin1String("SET");
    mainDialog->setRangeValueInComboBox(ui->comboTankWaterMin, 1, heaterOffered ? 30 : 20, MainDialog::Kelvin,
                                        1);
}

void InstallationDWH::refresh()
{
    loadJsonData();
    initDefaultTempRange();
    setloadJsonValue();
    validationCheck();
}

void InstallationDWH::saveJsonData(const QString &path, const QJsonValue &value)
{
    writeWhileExpanded(path, value);
}

QJsonValue InstallationDWH::parseJsonData(const QString &path) { return read(path); }

void InstallationDWH::loadJsonData()
{
    loadTargetTemperatures();
    loadTankTemperatures();
    loadTimer();
    ui->groupBoxHeatPump->setVisible(isSet("IduFuncList.is_waterthermoonoff"));
    loadTankHeating();
    loadDisinfection();
}

void InstallationDWH::loadTargetTemperatures()
{
    setHotWaterTempRange();
    ui->groupBoxHotWater->setVisible(isSet(flags::hotWater));
}

void InstallationDWH::loadTankTemperatures()
{
    const bool hotWater = isSet(flags::hotWater);
    ui->groupBoxTankWaterTemp->setVisible(hotWater);
    if (hotWater) {
        offer(ui->comboInletWaterMax,
              hotwater::compressorLimit(word("IduFuncList.is_indoor_model"), word(flags::r32)));
    }
}

void InstallationDWH::loadTimer()
{
    const bool visible = isSet(flags::hotWater) && isSet(flags::timerHotWater)
        && word(flags::boosterOnly) == QLatin1String("CLR");
    ui->groupBoxHeatingOperationTimer->setVisible(visible);
    if (!visible) {
        return;
    }
    // Oddity 29: the list of the compressor's limit gets the minutes, not those of the timer.
    const QString expand = word("IduFuncList.isHotwaterTimerExpand");
    if (expand == QLatin1String("SET")) {
        mainDialog->setRangeValueInComboBox(ui->comboInletWaterMax, 0, 1440, MainDialog::PlainNumber, 60);
    } else if (expand == QLatin1String("CLR")) {
        mainDialog->setRangeValueInComboBox(ui->comboInletWaterMax, 0, 600, MainDialog::PlainNumber, 30);
    }
}

void InstallationDWH::loadTankHeating()
{
    ui->groupBoxTankHeating->setVisible(isSet(flags::hotWater));
    const bool roomFirst = isSet(choiceOf(ui->radioUnderFloorUse).path);
    (roomFirst ? ui->radioUnderFloorUse : ui->radioUnderFloorNotUse)->setChecked(true);
}

void InstallationDWH::loadDisinfection()
{
    const bool used = isSet(choiceOf(ui->radioDisinfectionUse).path);
    const QString tankHeaterUse = word(paths::tankHeaterUse);
    offer(ui->comboMaxTemp, hotwater::disinfection(tankHeaterUse));
    ui->groupBoxDisinfection->setVisible(isDisinfectionOffered(tankHeaterUse));
    (used ? ui->radioDisinfectionUse : ui->radioDisinfectionNotUse)->setChecked(true);
    ui->groupBoxDisinfectSub->setEnabled(used);
    ui->groupBoxCutOff->setVisible(isSet(flags::tankHeater));
    enableDisinfection();
}

bool InstallationDWH::isDisinfectionOffered(const QString &tankHeaterUse)
{
    if (!isSet(flags::hotWater)) {
        return false;
    }
    if (word("IduFuncList.isDisableDisinfect") != QLatin1String("CLR")) {
        return isSet(paths::hsSetting);
    }
    return !isSet(flags::tankHeater) || tankHeaterUse == QLatin1String("BH_USE")
        || tankHeaterUse == QLatin1String("ONLY_DISINFECT");
}

// From the heating duration on, a selection runs its slot, which writes back while the section is open.
void InstallationDWH::setloadJsonValue() { loadLists(lists); }

void InstallationDWH::setHotWaterTempRange()
{
    const hotwater::Words words{word(paths::product), word(flags::coolTempMin5), word(flags::tankHeater),
                                word(flags::hsModel), word(flags::r32),          word(paths::tankHeaterUse)};
    offer(ui->comboHotWaterMin, hotwater::lowLimit(words));
    offer(ui->comboHotWaterMax, hotwater::highLimit(words));
}

void InstallationDWH::enableDisinfection()
{
    ui->groupBoxDisinfectSub->setEnabled(ui->radioDisinfectionUse->isChecked());
}

void InstallationDWH::chooseDisinfection(const QRadioButton *radio)
{
    save(radio);
    enableDisinfection();
    validationCheck();
}

void InstallationDWH::on_hideButton_clicked() { toggle(ui->hideButton, ui->frame); }

void InstallationDWH::on_comboHotWaterMin_currentTextChanged(const QString &text)
{
    change(ui->comboHotWaterMin, text);
}

void InstallationDWH::on_comboHotWaterMax_currentTextChanged(const QString &text)
{
    change(ui->comboHotWaterMax, text);
}

void InstallationDWH::on_comboTankWaterMin_currentTextChanged(const QString &text)
{
    change(ui->comboTankWaterMin, text);
}

void InstallationDWH::on_comboInletWaterMax_currentTextChanged(const QString &text)
{
    change(ui->comboInletWaterMax, text);
}

void InstallationDWH::on_comboHeatPump_currentTextChanged(const QString &text)
{
    change(ui->comboHeatPump, text);
}

void InstallationDWH::on_comboTankHeatingHysterisis_currentTextChanged(const QString &text)
{
    change(ui->comboTankHeatingHysterisis, text);
}

void InstallationDWH::on_radioUnderFloorNotUse_clicked() { change(ui->radioUnderFloorNotUse); }

void InstallationDWH::on_radioUnderFloorUse_clicked() { change(ui->radioUnderFloorUse); }

void InstallationDWH::on_radioDisinfectionNotUse_clicked()
{
    chooseDisinfection(ui->radioDisinfectionNotUse);
}

void InstallationDWH::on_radioDisinfectionUse_clicked() { chooseDisinfection(ui->radioDisinfectionUse); }

void InstallationDWH::on_comboSchedule1_currentIndexChanged(int index) { change(ui->comboSchedule1, index); }

void InstallationDWH::on_comboSchedule2_currentIndexChanged(int index) { change(ui->comboSchedule2, index); }

void InstallationDWH::on_comboMaxTemp_currentTextChanged(const QString &text)
{
    change(ui->comboMaxTemp, text);
}

void InstallationDWH::on_comboCutOffDuration_currentIndexChanged(int index)
{
    change(ui->comboCutOffDuration, index);
}

void InstallationDWH::on_comboMaxTempDuration_currentIndexChanged(int index)
{
    change(ui->comboMaxTempDuration, index);
}

void InstallationDWH::validationCheck()
{
    const bool valid = choicesMade();
    // Oddity 49: both messages name other classes and stay so.
    if (valid) {
        qDebug() << "InstallationDWH::SettingUser validation succeed!";
    } else {
        qDebug() << "InstallationCool::validationCheck validation check failed!!";
    }
    mainDialog->setDwhSectionValid(valid);
    mainDialog->updateInstallationValid();
}

void InstallationDWH::changeLanguage()
{
    setCaptions(*ui);
    changeLanguageInCombobox();
}

void InstallationDWH::changeLanguageInCombobox()
{
    refill(ui->comboHeatPump, languageTexts(stepKeys()));
    const QString minutes = mainDialog->languageValue(QStringLiteral("OperationMinute"));
    refill(ui->comboMaxTempDuration, numbered(5, 60, 5, minutes));
    refill(ui->comboHeatingDurationTime, numbered(5, 95, 5, minutes));
    refill(ui->comboStopDurationTime, numbered(0, 600, 30, minutes));
    refill(ui->comboCutOffDuration, numbered(1, 12, 1, mainDialog->languageValue(QStringLiteral("Hour"))));
    refill(ui->comboSchedule1, languageTexts(dayKeys()));
}

void InstallationDWH::on_comboHeatingDurationTime_currentIndexChanged(int index)
{
    change(ui->comboHeatingDurationTime, index);
}

void InstallationDWH::on_comboStopDurationTime_currentIndexChanged(int index)
{
    change(ui->comboStopDurationTime, index);
}
