// The heat pump section's lists, and its load: how the document sets the controls, in the order of the load.

#include "app/maindialog.h"
#include "pages/installation/installationsystemawhp.h"
#include "ui_installationsystemawhp.h"

namespace {

constexpr int lastClosingTime = 999;
constexpr int lastRun = 10;
/// The anti-freeze step of the first item; the steps fall along the list.
constexpr int highestAntiFreezeStep = 4;

/// The delays of the boost heater: minutes, each followed by `suffix`.
QStringList delays(const QString &suffix)
{
    QStringList items;
    for (const int minutes : {10, 20, 30, 40, 50, 60, 90, 120, 1440}) {
        items.append(QString::number(minutes) + suffix);
    }
    return items;
}

} // namespace

// The suffixes and keys stay untranslated until changeLanguageInCombobox() replaces them.
void InstallationSystemAWHP::initUi()
{
    const QString minutes = QStringLiteral("min");
    mainDialog->setComboItems(ui->comboValveClosingTime,
                              numbered(firstClosingTime, lastClosingTime, 1, QStringLiteral("s")), -1);
    mainDialog->setComboItems(ui->comboPreRun, numbered(firstRun, lastRun, 1, minutes), -1);
    mainDialog->setComboItems(ui->comboOverRun, numbered(firstRun, lastRun, 1, minutes), -1);
    mainDialog->setComboItems(
        ui->comboStep, {QStringLiteral("STEP0"), QStringLiteral("STEP1"), QStringLiteral("STEP2")}, -1);
    mainDialog->setComboItems(ui->comboHeatingPriority,
                              {QStringLiteral("Cycle"), QStringLiteral("Cycle_Heater")}, -1);
    mainDialog->setComboItems(ui->comboDelayTime, delays(minutes), -1);
    mainDialog->setComboItems(ui->comboControlMode, {QStringLiteral("Manual"), QStringLiteral("Auto")}, -1);
    initDefaultTempRange();
}

void InstallationSystemAWHP::initDefaultTempRange()
{
    // Oddity 34: this flag counts in capitals only.
    const bool expanded = text(flagPath("isR410CoolExpand")) == QLatin1String("SET");
    mainDialog->setRangeValueInComboBox(ui->comboHysterisis, 1, 5, MainDialog::Kelvin, 1);
    mainDialog->setRangeValueInComboBox(ui->comboAntiFreezingTemp, -25, -5, MainDialog::Kelvin, 5);
    mainDialog->setRangeValueInComboBox(ui->comboControlTemp, -25, 25, MainDialog::Temperature, 1);
    mainDialog->setRangeValueInComboBox(ui->combo3rdHysterisis, 2, 10, MainDialog::Kelvin, 1);
    mainDialog->setRangeValueInComboBox(ui->comboHeaterOnTemperature, expanded ? -15 : -25, 18,
                                        MainDialog::Temperature, 1);
}

void InstallationSystemAWHP::changeLanguageInCombobox()
{
    const auto refill = [](QComboBox *combo, const QStringList &items) {
        mainDialog->refillComboItems(combo, items, combo->currentIndex());
    };
    const QString seconds = mainDialog->languageValue(QStringLiteral("OperationSecond"));
    const QString minutes = mainDialog->languageValue(QStringLiteral("OperationMinute"));
    refill(ui->comboHeatingPriority, languageTexts({"Cycle", "Cycle_Heater"}));
    refill(ui->comboControlMode, languageTexts({"Manual", "Auto"}));
    refill(ui->comboValveClosingTime, numbered(firstClosingTime, lastClosingTime, 1, seconds));
    refill(ui->comboPreRun, numbered(firstRun, lastRun, 1, minutes));
    refill(ui->comboOverRun, numbered(firstRun, lastRun, 1, minutes));
    refill(ui->comboDelayTime, delays(minutes));
    refill(ui->comboStep, languageTexts({"STEP0", "STEP1", "STEP2"}));
}

// Oddity 25: with U+00BA and not the degree sign of the other lists, and four items for five steps.
void InstallationSystemAWHP::conversionToFahrenheit()
{
    mainDialog->setComboItems(ui->comboHysterisis, numbered(2, 8, 2, QStringLiteral("\u00BAF")), -1);
}

void InstallationSystemAWHP::loadJsonData()
{
    const QString mainZone = word(installation("circuitMainZone.enableMainZone"));
    loadSmartGrid();
    loadHeaters();
    loadWaterTankHeater();
    loadPumps();
    load3rdPartyBoiler();
    checkPair(mainZone, {ui->radio2ndNotuse, "CLR", ui->radio2ndUse, "SET"});
    enable2ndCircuit();
    enableSmartGrid();
    enableWaterTankHeater();
}

void InstallationSystemAWHP::loadSmartGrid()
{
    const bool available = flag("isSGReady");
    const QString use = word(installation("smartGrid.smartGridUse"));
    ui->groupBoxSmartGrid->setVisible(available);
    if (available) {
        checkPair(use, {ui->radioSgNotuse, "CLR", ui->radioSgUse, "SET"});
    }
}

void InstallationSystemAWHP::loadHeaters()
{
    const QString priority = word(installation("EH_BH_priority"));
    // Oddity 24: below the installation settings, where the default documents have no such key: the test
    // passes then.
    const QString model = word(installation("is_indoor_model"));
    const bool fixed = model == QLatin1String("GHU") || model == QLatin1String("WHU")
        || model == QLatin1String("CASCADE");
    const bool choosable = !fixed && flag("is_hotwater");
    ui->groupBoxHeaterPriority->setVisible(choosable);
    if (choosable && priority == QLatin1String("CLR")) {
        ui->radioHeaterPriorityNotuse->setChecked(true);
    } else if (choosable && priority == QLatin1String("SET")) {
        ui->radioHeaterPriorityUse->setChecked(true);
    }
    const bool firstHeater = flag("is_heater1");
    const bool secondHeater = flag("is_heater2");
    ui->groupBoxHeaterOnTemp->setVisible(!fixed && (firstHeater || secondHeater));
}

void InstallationSystemAWHP::loadWaterTankHeater()
{
    const QString use = word(installation("hotWaterTankHeater.tankHeaterUse"));
    // Oddity 34: the second flag counts in capitals only.
    const bool available = flag("is_hotwater")
        && text(flagPath("isHotwaterTankHeaterUse")) == QLatin1String("SET");
    ui->groupBoxWaterTankHeater->setVisible(available);
    if (!available) {
        return;
    }
    if (use == QLatin1String("NOTUSE")) {
        ui->radioWaterTankHeaterNotuse->setChecked(true);
    } else if (use == QLatin1String("BH_USE")) {
        ui->radioWaterTankHeaterUse->setChecked(true);
    } else if (use == QLatin1String("ONLY_DISINFECT")) {
        ui->radioWaterTankHeaterMode->setChecked(true);
    } else {
        uncheck({ui->radioWaterTankHeaterNotuse, ui->radioWaterTankHeaterUse, ui->radioWaterTankHeaterMode});
    }
}

void InstallationSystemAWHP::loadPumps()
{
    ui->groupBoxAntiFreeze->setVisible(flag("isAntiFreeze"));
    ui->groupBoxPumpControl->setVisible(flag("isPumpPreOverRun"));
    const QString external = word(installation("extWaterPump"));
    const bool available = flag("isExtWaterPump");
    ui->groupBoxExternalPump->setVisible(available);
    if (available) {
        checkPair(external, {ui->radioExternalPumpNotuse, "CLR", ui->radioExternalPumpUse, "SET"});
    }
}

void InstallationSystemAWHP::load3rdPartyBoiler()
{
    const QString mode = word(installation("boilerOfThirdParty.thirdPartyMode"));
    const QString use = word(installation("boilerOfThirdParty.thirdPartyUse"));
    const bool available = flag("isBoilerOf3rdParty");
    ui->groupBoxThirdParty->setVisible(available);
    if (!available) {
        return;
    }
    checkPair(use, {ui->radio3rdNotUse, "CLR", ui->radio3rdUse, "SET"});
    if (use == QLatin1String("SET")) {
        ui->comboControlMode->setCurrentIndex(mode == QLatin1String("MANUAL") ? 0 : 1);
    }
    enable3rdPartyBoiler();
}

// Most selections run with the signals live, so all that the first ones could write is read before them.
void InstallationSystemAWHP::setloadJsonValue()
{
    const int heaterOn = number(installation("eheater_onoff.heater1_value"));
    QString antiFreeze = text(installation("antiFreezeTemp"));
    const int controlTemp = number(installation("boilerOfThirdParty.thirdPartyTemp"));
    const int boilerHysteresis = number(installation("boilerOfThirdParty.thirdPartyHysterisis"));
    mainDialog->setComboByValue(ui->comboHeaterOnTemperature, heaterOn, MainDialog::Temperature);
    const int step = antiFreeze.remove(QStringLiteral("STEP")).toInt();
    // The list runs against the steps: its first item is the last step.
    ui->comboAntiFreezingTemp->setCurrentIndex(indexOf(highestAntiFreezeStep, step));
    mainDialog->setComboByValue(ui->comboControlTemp, controlTemp, MainDialog::Temperature);
    mainDialog->setComboByValue(ui->combo3rdHysterisis, boilerHysteresis, MainDialog::Kelvin);

    const int overRun = number(installation("pumpPreOverRun.overRun"));
    const int preRun = number(installation("pumpPreOverRun.preRun"));
    const int gridMode = number(installation("smartGrid.smartGridMode"));
    ui->comboOverRun->setCurrentIndex(indexOf(overRun, firstRun));
    ui->comboPreRun->setCurrentIndex(indexOf(preRun, firstRun));
    ui->comboStep->setCurrentIndex(gridMode);
    ui->comboDelayTime->setCurrentIndex(number(installation("hotWaterTankHeater.tankHeaterDelay")));

    const QString priority = word(installation("hotWaterTankHeater.tankHeaterPriority"));
    if (priority == QLatin1String("HP_ONLY")) {
        mainDialog->setComboByKey(ui->comboHeatingPriority, QStringLiteral("Cycle"));
    } else if (priority == QLatin1String("HP_BH_BOTH")) {
        mainDialog->setComboByKey(ui->comboHeatingPriority, QStringLiteral("Cycle_Heater"));
    }

    const int hysteresis = number(installation("circuitMainZone.hysterisisMainZone"));
    const bool last = mainDialog->isFahrenheit() && hysteresis == lastHysteresis;
    ui->comboHysterisis->setCurrentIndex(last ? lastHysteresisItem : hysteresis);
    // Oddity 26: with "s" in every language: where the text of the second is another, each time loads as the
    // first item.
    const int closingTime = number(installation("circuitMainZone.controlTimeMainZone"));
    mainDialog->setComboByKey(ui->comboValveClosingTime, QString::number(closingTime) + QLatin1Char('s'));
}
