#include "pages/installation/installationsystemawhp.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "pages/style.h"
#include "ui_installationsystemawhp.h"

#include <QDebug>

namespace {

constexpr const char *hysteresisPath = "SettingInfo.installation.circuitMainZone.hysterisisMainZone";
constexpr const char *antiFreezePath = "SettingInfo.installation.antiFreezeTemp";

// What item 0 stands for: seconds, and minutes.
constexpr int firstClosingTime = 60;
constexpr int firstRun = 1;
// Oddity 9: In °F the last step of the hysteresis stands for 5 and not for its index; the list in °F ends
// before it.
constexpr int lastHysteresisItem = 4;
constexpr int lastHysteresis = 5;
constexpr int lastClosingTime = 999;
constexpr int lastRun = 10;
/// The anti-freeze step of the first item; the steps fall along the list.
constexpr int highestAntiFreezeStep = 4;

/// The word of an anti-freeze temperature in K, the greatest step for the lowest; empty for what isn't
/// listed.
QString antiFreezeWord(int kelvin)
{
    const bool listed = kelvin >= -25 && kelvin <= -5 && kelvin % 5 == 0;
    return listed ? QStringLiteral("STEP") + QString::number(-kelvin / 5 - 1) : QString();
}

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

InstallationSystemAWHP::InstallationSystemAWHP(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::InstallationSystemAWHP>())
{
    ui->setupUi(this);
    choices = {{paths::enableMainZone, {{ui->radio2ndNotuse, "CLR"}, {ui->radio2ndUse, "SET"}}},
               {"SettingInfo.installation.boilerOfThirdParty.thirdPartyUse",
                {{ui->radio3rdNotUse, "CLR"}, {ui->radio3rdUse, "SET"}}},
               {"SettingInfo.installation.extWaterPump",
                {{ui->radioExternalPumpNotuse, "CLR"}, {ui->radioExternalPumpUse, "SET"}}},
               {"SettingInfo.installation.EH_BH_priority",
                {{ui->radioHeaterPriorityNotuse, "CLR"}, {ui->radioHeaterPriorityUse, "SET"}}},
               {"SettingInfo.installation.smartGrid.smartGridUse",
                {{ui->radioSgNotuse, "CLR"}, {ui->radioSgUse, "SET"}}},
               {paths::tankHeaterUse,
                {{ui->radioWaterTankHeaterMode, "ONLY_DISINFECT"},
                 {ui->radioWaterTankHeaterNotuse, "NOTUSE"},
                 {ui->radioWaterTankHeaterUse, "BH_USE"}}}};
    lists = {
        {ui->comboHeaterOnTemperature, "SettingInfo.installation.eheater_onoff.heater1_value",
         Shown::Temperature},
        {ui->comboControlTemp, "SettingInfo.installation.boilerOfThirdParty.thirdPartyTemp",
         Shown::Temperature},
        {ui->combo3rdHysterisis, "SettingInfo.installation.boilerOfThirdParty.thirdPartyHysterisis",
         Shown::Kelvin},
        {ui->comboOverRun, "SettingInfo.installation.pumpPreOverRun.overRun", Shown::Index, firstRun},
        {ui->comboPreRun, "SettingInfo.installation.pumpPreOverRun.preRun", Shown::Index, firstRun},
        {ui->comboStep, "SettingInfo.installation.smartGrid.smartGridMode", Shown::Index},
        {ui->comboDelayTime, "SettingInfo.installation.hotWaterTankHeater.tankHeaterDelay", Shown::Index},
        {ui->comboValveClosingTime, "SettingInfo.installation.circuitMainZone.controlTimeMainZone",
         Shown::Index, firstClosingTime}};
    initUi();
}

InstallationSystemAWHP::~InstallationSystemAWHP() = default;

void InstallationSystemAWHP::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    refresh();
}

// The suffixes and keys stay untranslated until changeLanguageInCombobox() replaces them.
void InstallationSystemAWHP::initUi()
{
    const QString minutes = QStringLiteral("min");
    fill(ui->comboValveClosingTime, numbered(firstClosingTime, lastClosingTime, 1, QStringLiteral("s")));
    fill(ui->comboPreRun, numbered(firstRun, lastRun, 1, minutes));
    fill(ui->comboOverRun, numbered(firstRun, lastRun, 1, minutes));
    fill(ui->comboStep, {QStringLiteral("STEP0"), QStringLiteral("STEP1"), QStringLiteral("STEP2")});
    fill(ui->comboHeatingPriority, {QStringLiteral("Cycle"), QStringLiteral("Cycle_Heater")});
    fill(ui->comboDelayTime, delays(minutes));
    fill(ui->comboControlMode, {QStringLiteral("Manual"), QStringLiteral("Auto")});
    initDefaultTempRange();
}

void InstallationSystemAWHP::initDefaultTempRange()
{
    // Oddity 34: this flag counts in capitals only.
    const bool expanded = text(flags::r410CoolExpand) == QLatin1String("SET");
    mainDialog->setRangeValueInComboBox(ui->comboHysterisis, 1, 5, MainDialog::Kelvin, 1);
    mainDialog->setRangeValueInComboBox(ui->comboAntiFreezingTemp, -25, -5, MainDialog::Kelvin, 5);
    mainDialog->setRangeValueInComboBox(ui->comboControlTemp, -25, 25, MainDialog::Temperature, 1);
    mainDialog->setRangeValueInComboBox(ui->combo3rdHysterisis, 2, 10, MainDialog::Kelvin, 1);
    mainDialog->setRangeValueInComboBox(ui->comboHeaterOnTemperature, expanded ? -15 : -25, 18,
                                        MainDialog::Temperature, 1);
}

void InstallationSystemAWHP::changeLanguageInCombobox()
{
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
    fill(ui->comboHysterisis, numbered(2, 8, 2, QStringLiteral("\u00BAF")));
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

void InstallationSystemAWHP::loadJsonData()
{
    loadOffered(ui->groupBoxSmartGrid, "IduFuncList.isSGReady", ui->radioSgUse);
    loadHeaters();
    loadWaterTankHeater();
    loadPumps();
    load3rdPartyBoiler();
    loadChoice(ui->radio2ndUse);
    enable2ndCircuit();
    enableSmartGrid();
    enableWaterTankHeater();
}

void InstallationSystemAWHP::loadPumps()
{
    ui->groupBoxAntiFreeze->setVisible(isSet(flags::antiFreeze));
    ui->groupBoxPumpControl->setVisible(isSet("IduFuncList.isPumpPreOverRun"));
    loadOffered(ui->groupBoxExternalPump, "IduFuncList.isExtWaterPump", ui->radioExternalPumpUse);
}

// Most selections run with the signals live. Each slot writes the value of its own list alone.
void InstallationSystemAWHP::setloadJsonValue()
{
    loadList(ui->comboHeaterOnTemperature);
    const int step = text(antiFreezePath).remove(QStringLiteral("STEP")).toInt();
    // The list runs against the steps: its first item is the last step.
    ui->comboAntiFreezingTemp->setCurrentIndex(indexOf(highestAntiFreezeStep, step));
    for (const QComboBox *list : {ui->comboControlTemp, ui->combo3rdHysterisis, ui->comboOverRun,
                                  ui->comboPreRun, ui->comboStep, ui->comboDelayTime}) {
        loadList(list);
    }

    loadTankPriority();
    const int hysteresis = number(hysteresisPath);
    const bool last = mainDialog->isFahrenheit() && hysteresis == lastHysteresis;
    ui->comboHysterisis->setCurrentIndex(last ? lastHysteresisItem : hysteresis);
    // Oddity 26: with "s" in every language: where the text of the second is another, each time loads as the
    // first item.
    const int closingTime = number(listOf(ui->comboValveClosingTime).path);
    mainDialog->setComboByKey(ui->comboValveClosingTime, QString::number(closingTime) + QLatin1Char('s'));
}

QString InstallationSystemAWHP::setOpacity(bool isEnabled) { return style::labelText(isEnabled); }

void InstallationSystemAWHP::refreshInstallation() { emit refreshInstallationPage(); }

void InstallationSystemAWHP::enable2ndCircuit()
{
    enable(ui->radio2ndUse->isChecked(), {ui->label2ndValve, ui->label2ndHysterisis},
           {ui->bulletAwhp2, ui->comboValveClosingTime, ui->bulletAwhp3, ui->comboHysterisis});
}

void InstallationSystemAWHP::enableSmartGrid()
{
    enable(ui->radioSgUse->isChecked(), {ui->labelSmartgridStep}, {ui->bulletAwhp5, ui->comboStep});
}

// Captions of other sections depend on the second circuit.
void InstallationSystemAWHP::choose2ndCircuit(const QRadioButton *radio)
{
    enable2ndCircuit();
    save(radio);
    mainDialog->changeLanguage();
    validataionCheck();
    emit refreshInstallationPage();
}

void InstallationSystemAWHP::on_radio2ndNotuse_clicked() { choose2ndCircuit(ui->radio2ndNotuse); }

void InstallationSystemAWHP::on_radio2ndUse_clicked() { choose2ndCircuit(ui->radio2ndUse); }

void InstallationSystemAWHP::on_radioSgNotuse_clicked()
{
    enableSmartGrid();
    change(ui->radioSgNotuse);
}

void InstallationSystemAWHP::on_radioSgUse_clicked()
{
    enableSmartGrid();
    change(ui->radioSgUse);
}

void InstallationSystemAWHP::on_radioExternalPumpNotuse_clicked() { change(ui->radioExternalPumpNotuse); }

void InstallationSystemAWHP::on_radioExternalPumpUse_clicked() { change(ui->radioExternalPumpUse); }

// The index is the value.
void InstallationSystemAWHP::on_comboHysterisis_currentIndexChanged(int index)
{
    const bool last = mainDialog->isFahrenheit() && index == lastHysteresisItem;
    change(hysteresisPath, last ? lastHysteresis : index);
}

// By the list's index, whatever the text: a language may follow the number with any word.
void InstallationSystemAWHP::on_comboValveClosingTime_currentTextChanged(const QString &)
{
    change(ui->comboValveClosingTime, ui->comboValveClosingTime->currentIndex());
}

void InstallationSystemAWHP::on_comboStep_currentIndexChanged(int index) { change(ui->comboStep, index); }

// Oddity 17: In °F the number goes through the table of temperatures as well, which leaves none that is
// listed.
void InstallationSystemAWHP::on_comboAntiFreezingTemp_currentTextChanged(const QString &text)
{
    change(antiFreezePath, antiFreezeWord(shownValue(Shown::Kelvin, text).toInt()));
}

void InstallationSystemAWHP::on_comboPreRun_currentIndexChanged(int index) { change(ui->comboPreRun, index); }

void InstallationSystemAWHP::on_comboOverRun_currentIndexChanged(int index)
{
    change(ui->comboOverRun, index);
}

// The messages name the system section.
void InstallationSystemAWHP::validataionCheck()
{
    const bool result = choicesMade();
    qDebug() << (result ? "InstallationSystemSetting::validationCheck succeed"
                        : "InstallationSystemSetting::validationCheck failed");
    emit validationCheckSignals(result, QStringLiteral("AWHP"));
}

void InstallationSystemAWHP::changeLanguage()
{
    setCaptions(*ui);
    changeLanguageInCombobox();
}
