#include "pages/installation/installationaauto.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "rules/autoengine.h"
#include "ui_installationaauto.h"

#include <QDebug>

InstallationaAuto::InstallationaAuto(QWidget *parent)
    : Section(parent)
    , ui(std::make_unique<Ui::InstallationaAuto>())
{
    ui->setupUi(this);
    choices = {{"SettingInfo.installation.seasonalAutoOption.seasonalAutoOpMode",
                {{ui->radioHeatingOnly, "HEAT_ONLY"},
                 {ui->radioCoolingOnly, "COOL_ONLY"},
                 {ui->radioBoth, "HEAT_N_COOL"}}}};
    lists = {{ui->comboOutdoorOutdoorMax, "SettingInfo.installation.autoOp_outtemp.max", Shown::Temperature},
             {ui->comboOutdoorOutdoorMin, "SettingInfo.installation.autoOp_outtemp.min", Shown::Temperature},
             {ui->comboOutdoorIndoorMax, "SettingInfo.installation.autoOp_tempair.max", Shown::Temperature},
             {ui->comboOutdoorIndoorMin, "SettingInfo.installation.autoOp_tempair.min", Shown::Temperature},
             {ui->comboOutdoorWaterMax, "SettingInfo.installation.autoOp_tempwater.high_limit",
              Shown::Temperature},
             {ui->comboOutdoorWaterMin, "SettingInfo.installation.autoOp_tempwater.low_limit",
              Shown::Temperature}};
    startCollapsed(ui->hideButton, ui->frame);
    initUi();
}

InstallationaAuto::~InstallationaAuto() = default;

void InstallationaAuto::initUi() { initDefaultTempRange(); }

void InstallationaAuto::showEvent(QShowEvent *event)
{
    Section::showEvent(event);
    refresh();
}

void InstallationaAuto::refresh()
{
    loadJsonData();
    initDefaultTempRange();
    setloadJsonValue();
    refreshTempRange(1);
    refreshTempRange(2);
    refreshTempRange(3);
    validationCheck();
}

void InstallationaAuto::saveJsonData(const QString &path, const QJsonValue &value)
{
    writeWhileExpanded(path, value);
}

QJsonValue InstallationaAuto::parseJsonData(const QString &path) { return read(path); }

void InstallationaAuto::loadJsonData()
{
    setVisibleMode();
    setVisibleSeasonalAutoView();
    setTempRangeValue();
    checkStored(ui->radioBoth);
    setVisibleSeasonalAutoView();
}

// The two indoor values are shown as they stand, by setloadJsonValue().
void InstallationaAuto::initDefaultTempRange()
{
    const bool waterExit = word(paths::heatWaterControlBasis) == QLatin1String("EXIT");
    const autoranges::OutdoorMode offered = autoranges::outdoorMode(isSet(flags::r32), waterExit,
                                                                    isSet(flags::installedHeater));
    offer(ui->comboOutdoorOutdoorMax, offered.outdoorMax);
    offer(ui->comboOutdoorOutdoorMin, offered.outdoorMin);
    showClamped(ui->comboOutdoorOutdoorMax, offered.outdoorMax, ui->comboOutdoorOutdoorMin,
                offered.outdoorMin);
    offer(ui->comboOutdoorIndoorMax, offered.indoorMax);
    offer(ui->comboOutdoorIndoorMin, offered.indoorMin);
    offer(ui->comboOutdoorWaterMax, offered.waterMax);
    offer(ui->comboOutdoorWaterMin, offered.waterMin);
    showClamped(ui->comboOutdoorWaterMax, offered.waterMax, ui->comboOutdoorWaterMin, offered.waterMin);
}

void InstallationaAuto::showClamped(const QComboBox *high, Range highRange, const QComboBox *low,
                                    Range lowRange)
{
    const auto clamped = [](const ValueRow &row, Range range) {
        return qBound(range.low, number(row.path), range.high);
    };
    const ValueRow &highRow = listOf(high);
    const ValueRow &lowRow = listOf(low);
    const int highest = clamped(highRow, highRange);
    const int lowest = clamped(lowRow, lowRange);
    select(highRow, highest);
    select(lowRow, lowest);
    save(lowRow.path, lowest);
    save(highRow.path, highest);
}

void InstallationaAuto::setVisibleMode()
{
    const bool seasonal = isSet(flags::seasonalAuto);
    ui->groupBoxSeasonalAutoMode->setVisible(seasonal);
    ui->groupBoxOutdoorMode->setVisible(!seasonal);
    setVisibleMainZone();
}

void InstallationaAuto::setVisibleMainZone()
{
    if (isSet(paths::enableMainZone)) {
        showControlled(ui->groupBoxMainZoneIndoor, ui->groupBoxMainZoneWater);
    } else {
        ui->groupBoxMainZoneIndoor->hide();
        ui->groupBoxMainZoneWater->hide();
    }
    setVisibleIndoorWaterView();
}

void InstallationaAuto::setVisibleIndoorWaterView()
{
    showControlled(ui->groupBoxSeasonalIndoor, ui->groupBoxSeasonalWater);
}

void InstallationaAuto::showControlled(QWidget *indoor, QWidget *water)
{
    const QString sensed = word(paths::settempSelect);
    const bool air = sensed == QLatin1String("AIR");
    if (air || sensed == QLatin1String("WATER")) {
        indoor->setVisible(air);
        water->setVisible(!air);
    }
    if (isSet(paths::airAndWaterUse)) {
        indoor->show();
        water->show();
    }
}

void InstallationaAuto::setVisibleIndoorWaterView(const QString &value)
{
    const QString sensed = value.toUpper();
    const bool both = sensed == QLatin1String("AIR_WATER");
    const bool air = both || sensed == QLatin1String("AIR");
    const bool water = both || sensed == QLatin1String("WATER");
    if (air || water) {
        ui->groupBoxSeasonalIndoor->setVisible(air);
        ui->groupBoxMainZoneIndoor->setVisible(air);
        ui->groupBoxSeasonalWater->setVisible(water);
        ui->groupBoxMainZoneWater->setVisible(water);
    }
}

void InstallationaAuto::setVisibleSeasonalAutoView()
{
    const QString sensed = word(paths::settempSelect);
    const QString both = word(paths::airAndWaterUse);
    const QString mainZone = word(paths::enableMainZone);
    const bool indoor = sensed != QLatin1String("WATER");
    const bool water = sensed != QLatin1String("AIR") || both != QLatin1String("CLR");
    const bool mainZoneWater = water && mainZone != QLatin1String("CLR");
    ui->groupBoxHeatOutTemp->show();
    ui->groupBoxCoolOutTemp->show();
    ui->groupBoxHeatAirTemp->setVisible(indoor);
    ui->groupBoxCoolAirTemp->setVisible(indoor);
    ui->groupBoxHeatWaterTempMainZone->setVisible(mainZoneWater);
    ui->groupBoxCoolWaterTempMainZone->setVisible(mainZoneWater);
    ui->groupBoxHeatWaterTemp->setVisible(water);
    ui->groupBoxCoolWaterTemp->setVisible(water);
}

void InstallationaAuto::on_hideButton_clicked() { toggle(ui->hideButton, ui->frame); }

void InstallationaAuto::on_radioHeatingOnly_clicked() { change(ui->radioHeatingOnly); }

void InstallationaAuto::on_radioCoolingOnly_clicked() { change(ui->radioCoolingOnly); }

void InstallationaAuto::on_radioBoth_clicked() { change(ui->radioBoth); }

void InstallationaAuto::on_comboOutdoorOutdoorMax_currentTextChanged(const QString &text)
{
    change(ui->comboOutdoorOutdoorMax, text);
}

void InstallationaAuto::on_comboOutdoorOutdoorMin_currentTextChanged(const QString &text)
{
    change(ui->comboOutdoorOutdoorMin, text);
}

void InstallationaAuto::on_comboOutdoorIndoorMax_currentTextChanged(const QString &text)
{
    change(ui->comboOutdoorIndoorMax, text);
}

void InstallationaAuto::on_comboOutdoorIndoorMin_currentTextChanged(const QString &text)
{
    change(ui->comboOutdoorIndoorMin, text);
}

void InstallationaAuto::on_comboOutdoorWaterMax_currentTextChanged(const QString &text)
{
    change(ui->comboOutdoorWaterMax, text);
}

void InstallationaAuto::on_comboOutdoorWaterMin_currentTextChanged(const QString &text)
{
    change(ui->comboOutdoorWaterMin, text);
}

void InstallationaAuto::on_comboHeatingOutdoorMax_currentTextChanged(const QString &text)
{
    choose(autoengine::HeatOutdoorMax, text);
}

void InstallationaAuto::on_comboHeatingOutdoorMin_currentTextChanged(const QString &text)
{
    choose(autoengine::HeatOutdoorMin, text);
}

void InstallationaAuto::on_comboCoolingOutdoorMax_currentTextChanged(const QString &text)
{
    choose(autoengine::CoolOutdoorMax, text);
}

void InstallationaAuto::on_comboCoolingOutdoorMin_currentTextChanged(const QString &text)
{
    choose(autoengine::CoolOutdoorMin, text);
}

void InstallationaAuto::on_comboHeatingIndoorMax_currentTextChanged(const QString &text)
{
    choose(autoengine::HeatIndoorMax, text);
}

void InstallationaAuto::on_comboHeatingIndoorMin_currentTextChanged(const QString &text)
{
    choose(autoengine::HeatIndoorMin, text);
}

void InstallationaAuto::on_comboCoolingIndoorMax_currentTextChanged(const QString &text)
{
    choose(autoengine::CoolIndoorMax, text);
}

void InstallationaAuto::on_comboCoolingIndoorMin_currentTextChanged(const QString &text)
{
    choose(autoengine::CoolIndoorMin, text);
}

void InstallationaAuto::on_comboHeatingWaterMax_currentTextChanged(const QString &text)
{
    choose(autoengine::HeatWaterMax, text);
}

void InstallationaAuto::on_comboHeatingWaterMin_currentTextChanged(const QString &text)
{
    choose(autoengine::HeatWaterMin, text);
}

void InstallationaAuto::on_comboCoolingWaterMax_currentTextChanged(const QString &text)
{
    choose(autoengine::CoolWaterMax, text);
}

void InstallationaAuto::on_comboCoolingWaterMin_currentTextChanged(const QString &text)
{
    choose(autoengine::CoolWaterMin, text);
}

void InstallationaAuto::on_comboMainZoneHeatingIndoorMax_currentTextChanged(const QString &text)
{
    choose(autoengine::ZoneHeatIndoorMax, text);
}

void InstallationaAuto::on_comboMainZoneHeatingIndoorMin_currentTextChanged(const QString &text)
{
    choose(autoengine::ZoneHeatIndoorMin, text);
}

void InstallationaAuto::on_comboMainZoneIndoorMax_currentTextChanged(const QString &text)
{
    choose(autoengine::ZoneCoolIndoorMax, text);
}

void InstallationaAuto::on_comboMainZoneIndoorMin_currentTextChanged(const QString &text)
{
    choose(autoengine::ZoneCoolIndoorMin, text);
}

void InstallationaAuto::on_comboMainZoneHeatingWaterMax_currentTextChanged(const QString &text)
{
    choose(autoengine::ZoneHeatWaterMax, text);
}

void InstallationaAuto::on_comboMainZoneHeatingWaterMin_currentTextChanged(const QString &text)
{
    choose(autoengine::ZoneHeatWaterMin, text);
}

void InstallationaAuto::on_comboMainZoneWaterMax_currentTextChanged(const QString &text)
{
    choose(autoengine::ZoneCoolWaterMax, text);
}

void InstallationaAuto::on_comboMainZoneWaterMin_currentTextChanged(const QString &text)
{
    choose(autoengine::ZoneCoolWaterMin, text);
}

// Whatever the section offers is valid, so the check always passes.
void InstallationaAuto::validationCheck()
{
    qDebug() << "InstallationaAuto::validationCheck : " << true;
    mainDialog->setAutoSectionValid(true);
    mainDialog->updateInstallationValid();
}

void InstallationaAuto::changeLanguage()
{
    captionOutdoorMode();
    captionSeasonalMode();
    captionEnds();
}

void InstallationaAuto::captionOutdoorMode()
{
    setCaptions({{ui->labelTitle, "Automode"},
                 {ui->labelOutdoorTemp, "OutdoorTempDependentMode"},
                 {ui->labelOutdoorTempSub1, "OutdoorTempRange"},
                 {ui->labelOutdoorTempSub2, "IndoorAirTempRange"},
                 {ui->labelOutdoorTempSub3, "WaterTempRange"},
                 {ui->labelOutdoorTempMax1, "Max"},
                 {ui->labelOutdoorTempMax2, "Max"},
                 {ui->labelOutdoorTempMax3, "Max"},
                 {ui->labelOutdoorTempMin1, "Min"},
                 {ui->labelOutdoorTempMin2, "Min"},
                 {ui->labelOutdoorTempMin3, "Min"}});
}

void InstallationaAuto::captionSeasonalMode()
{
    const bool circuits = isSet(paths::enableMainZone);
    setCaptions({{ui->labelSeasonalAutoMode, "SeasonalAutoMode"},
                 {ui->radioHeatingOnly, "HeatingOnly"},
                 {ui->radioCoolingOnly, "CoolingOnly"},
                 {ui->radioBoth, "Both"},
                 {ui->labelSeasonalOutdoor, "OutdoorTempRange"},
                 {ui->labelSeasonalOutdoorCool, "CoolingRange"},
                 {ui->labelSeasonalOutdoorHeat, "HeatingRange"},
                 {ui->labelSeasonalAir, circuits ? "SeasonalAirTempRoom2" : "SeasonalAirTemp"},
                 {ui->labelSeasonalWater, circuits ? "SeasonalWaterTempRoom2" : "SeasonalWaterTemp"},
                 {ui->labelSeasonalAirCool, "CoolingRange"},
                 {ui->labelSeasonalAirHeat, "HeatingRange"},
                 {ui->labelSeasonalWaterCool, "CoolingRange"},
                 {ui->labelSeasonalWaterHeat, "HeatingRange"},
                 {ui->labelMainZoneIndoor, "SeasonalAirTempMainZone"},
                 {ui->labelMainZoneWater, "SeasonalWaterTempMainZone"},
                 {ui->labelMainZoneIndoorCool, "CoolingRange"},
                 {ui->labelMainZoneIndoorHeat, "HeatingRange"},
                 {ui->labelMainZoneWaterCool, "CoolingRange"},
                 {ui->labelMainZoneWaterHeat, "HeatingRange"}});
}

void InstallationaAuto::captionEnds()
{
    setCaptions({{ui->labelHeatingOutdoorMax, "Max"},        {ui->labelHeatingOutdoorMin, "Min"},
                 {ui->labelCoolingOutdoorMax, "Max"},        {ui->labelCoolingOutdoorMin, "Min"},
                 {ui->labelHeatingIndoorMax, "Max"},         {ui->labelHeatingIndoorMin, "Min"},
                 {ui->labelCoolingIndoorMax, "Max"},         {ui->labelCoolingIndoorMin, "Min"},
                 {ui->labelHeatingWaterMax, "Max"},          {ui->labelHeatingWaterMin, "Min"},
                 {ui->labelCoolingWaterMax, "Max"},          {ui->labelCoolingWaterMin, "Min"},
                 {ui->labelMainZoneHeatingIndoorMax, "Max"}, {ui->labelMainZoneHeatingIndoorMin, "Min"},
                 {ui->labelMainZoneIndoorMax, "Max"},        {ui->labelMainZoneIndoorMin, "Min"},
                 {ui->labelMainZoneHeatingWaterMax, "Max"},  {ui->labelMainZoneHeatingWaterMin, "Min"},
                 {ui->labelMainZoneWaterMax, "Max"},         {ui->labelMainZoneWaterMin, "Min"}});
}
