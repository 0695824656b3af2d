// The system section's lists, and its load: how the document sets the controls, in the order of the load.

#include "app/maindialog.h"
#include "pages/installation/installationsystemsetting.h"
#include "ui_installationsystemsetting.h"

namespace {

// Items of the control method, in the order of the list.
constexpr int waterItem = 0;
constexpr int airItem = 1;
constexpr int airWaterItem = 2;

/// The document's word for "no Modbus address".
constexpr int noAddress = -9999;

/// Two lower case hexadecimal digits.
QString hexadecimal(int value) { return QStringLiteral("%1").arg(value, 2, 16, QLatin1Char('0')); }

QStringList modbusAddresses()
{
    QStringList items;
    for (int address = 1; address <= 247; ++address) {
        items.append(hexadecimal(address));
    }
    return items;
}

QStringList centralAddresses()
{
    QStringList items;
    for (int address = 0; address <= 255; ++address) {
        items.append(hexadecimal(address).toUpper());
    }
    return items;
}

/// A value that isn't listed leaves the combo box blank.
void selectText(QComboBox *combo, const QString &text) { combo->setCurrentIndex(combo->findText(text)); }

} // namespace

// The suffixes and words stay untranslated until changeLanguageInCombobox() replaces them.
void InstallationSystemSetting::initDefaultRange()
{
    mainDialog->setRangeValueInComboBox(ui->comboWaterpumpRPM, 0, 3700, MainDialog::PlainNumber, 10);
    mainDialog->setComboItems(ui->comboOperationPeriod, numbered(firstPeriod, 180, 1, QStringLiteral("hour")),
                              -1);
    mainDialog->setComboItems(ui->comboOperationTime, numbered(firstRuntime, 10, 1, QStringLiteral("min")),
                              -1);
    mainDialog->setComboItems(
        ui->comboDryContactInstallation,
        {QStringLiteral("Auto"), QStringLiteral("NOTINSTALL"), QStringLiteral("INSTALL")}, -1);
    mainDialog->setComboItems(ui->comboWaterRpmDuty, numbered(10, 100, 5, QStringLiteral("%")), -1);
    mainDialog->setComboItems(ui->comboCentral, centralAddresses(), -1);
    mainDialog->setComboItems(ui->comboModbus, modbusAddresses(), -1);
    mainDialog->setRangeValueInComboBox(ui->comboBoxScreedStep, 1, 11, MainDialog::PlainNumber, 1);
    mainDialog->setRangeValueInComboBox(ui->comboBoxScreedMaxTemp, 35, 55, MainDialog::Temperature, 1);
    mainDialog->setComboItems(ui->comboBoxScreedHolding,
                              numbered(firstHolding, 30, 1, QStringLiteral("stepDay")), -1);
}

void InstallationSystemSetting::changeLanguageInCombobox()
{
    const auto refill = [](QComboBox *combo, const QStringList &items) {
        mainDialog->refillComboItems(combo, items, combo->currentIndex());
    };
    const auto suffix = [](const char *key) { return mainDialog->languageValue(QLatin1String(key)); };
    refill(ui->comboCnEXT, digitalInputTexts());
    refill(ui->comboBoxScreedHolding, numbered(firstHolding, 30, 1, suffix("day")));
    refill(ui->comboOperationPeriod, numbered(firstPeriod, 180, 1, suffix("Hour")));
    refill(ui->comboOperationTime, numbered(firstRuntime, 10, 1, suffix("OperationMinute")));
    refill(ui->comboDryContactInstallation, languageTexts({"Auto", "NOTINSTALL", "INSTALL"}));
    refill(ui->comboBoxSensingTemp, sensingTexts());
    refill(ui->comboBoxAirTemp, airTempTexts());
}

QStringList InstallationSystemSetting::sensingTexts()
{
    return flag("isWaterCtrBasisAir") ? languageTexts({"WATER", "AIR", "AIR_WATER"})
                                      : languageTexts({"WATER", "AIR"});
}

QStringList InstallationSystemSetting::airTempTexts()
{
    return flag("isIduAirTempSW") ? languageTexts({"IDU", "RemoteController"})
                                  : languageTexts({"RemoteController"});
}

QStringList InstallationSystemSetting::digitalInputTexts()
{
    std::vector<const char *> keys{"NotUse", "SimpleOperation", "SimpleDryContact", "SingleEmergencyStop"};
    // Oddity 34: this flag counts in capitals only.
    if (text(flagPath("isEmergencyAllStop")) == QLatin1String("SET")) {
        keys.push_back("MultiEmergencyStop");
    }
    return languageTexts(keys);
}

// In the order of the list.
QStringList InstallationSystemSetting::dryContactWords()
{
    return {QStringLiteral("IDU"), QStringLiteral("NOT_INSTALL"), QStringLiteral("INSTALL")};
}

// Selections run with the signals live: in an open section each writes back what it shows. So what a later
// step needs is read before the first control that could write it is touched.
void InstallationSystemSetting::loadJsonData()
{
    const QString product = word(QStringLiteral("product"));
    loadProduct(product);
    loadSensing();
    const QString dryContactMode = word(installation("drycontactAuto"));
    const int modbusAddress = number(installation("modbusAddress"));
    const int period = number(installation("pumpOperationByForce.ByForcePeriod"));
    const int runtime = number(installation("pumpOperationByForce.ByForceRuntime"));
    const QString use = word(installation("pumpOperationByForce.ByForceUse"));
    checkPair(dryContactMode, {ui->radioDryManual, "AUTO_OFF", ui->radioDryAuto, "AUTO_ON"});
    loadCentralAddress();
    mainDialog->setComboItems(ui->comboCnEXT, digitalInputTexts(), -1);
    loadModbusAddress(modbusAddress);
    loadScreedDrying();
    loadPump();
    loadEnforcedCirculation(use, period, runtime);
    loadDigitalInput();
    if (firstLoad) {
        // The hydronic module comes up through its own show event.
        if (product == QLatin1String("AWHP")) {
            emit refreshAwhpCategory();
        }
        firstLoad = false;
    }
}

void InstallationSystemSetting::loadProduct(const QString &product)
{
    if (product == QLatin1String("AQUABOX")) {
        ui->widgetAquabox->show();
        ui->widgetAwhp->hide();
    } else if (product == QLatin1String("AWHP")) {
        ui->widgetAwhp->show();
        ui->widgetAquabox->hide();
    }
}

void InstallationSystemSetting::loadSensing()
{
    const bool indoorSensor = flag("isIduAirTempSW");
    const QString basis = word(installation("sensorDefine.settemp_select"));
    const QString location = word(installation("sensorDefine.airTempLocation"));
    const QString airAndWater = word(installation("sensorDefine.airAndWaterUse"));
    const bool threeMethods = flag("isWaterCtrBasisAir");

    mainDialog->setComboItems(ui->comboBoxSensingTemp, sensingTexts(), -1);
    int item = waterItem;
    if (basis != QLatin1String("WATER")) {
        item = threeMethods && airAndWater != QLatin1String("CLR") ? airWaterItem : airItem;
    }
    ui->comboBoxSensingTemp->setCurrentIndex(item);

    ui->groupBoxAirTempSensor->setEnabled(indoorSensor);
    mainDialog->setComboItems(ui->comboBoxAirTemp, airTempTexts(), 0);
    if (indoorSensor) {
        ui->comboBoxAirTemp->setCurrentIndex(location == QLatin1String("IDU") ? 0 : 1);
        ui->groupBoxAirTempSensor->setEnabled(ui->comboBoxSensingTemp->currentIndex() != waterItem);
    }
}

void InstallationSystemSetting::loadCentralAddress()
{
    const bool unlocked = word(QStringLiteral("ExtSysInfo.hard_lock")) == QLatin1String("CLR");
    const QString address = text(installation("cc_address"));
    ui->groupBoxCCAddress->setEnabled(unlocked);
    if (!unlocked) {
        return;
    }
    if (address.isEmpty()) {
        ui->comboCentral->setCurrentIndex(0);
    } else {
        selectText(ui->comboCentral, address);
    }
}

// Oddity 8: shown in hexadecimal, though the slot stores the text read as decimal.
void InstallationSystemSetting::loadModbusAddress(int address)
{
    const bool available = flag("isModbusAddress");
    ui->groupBoxModbusAddress->setVisible(available);
    if (!available) {
        return;
    }
    if (address == noAddress) {
        ui->comboModbus->setCurrentIndex(0);
    } else {
        selectText(ui->comboModbus, hexadecimal(address));
    }
}

void InstallationSystemSetting::loadScreedDrying()
{
    const bool available = flag("is_cement_Curing");
    const int step = number(installation("cement_cure.cmt_step"));
    const int maxTemp = number(installation("cement_cure.cmt_maxTemp"));
    const int holding = number(installation("cement_cure.cmt_holding"));
    selectText(ui->comboBoxScreedStep, QString::number(step));
    mainDialog->setComboByValue(ui->comboBoxScreedMaxTemp, maxTemp, MainDialog::Temperature);
    ui->comboBoxScreedHolding->setCurrentIndex(indexOf(holding, firstHolding));
    ui->groupBoxCementCuring->setVisible(available);
}

void InstallationSystemSetting::loadPump()
{
    const bool bySpeed = flag("is_PumpRpmOption") || flag("isMotorDuty");
    const int value = number(installation("pumpRPM.pumpRPMValue"));
    ui->groupBoxPumpRPM->setVisible(bySpeed);
    ui->groupBoxPumpCapacity->setVisible(!bySpeed);
    if (bySpeed) {
        selectText(ui->comboWaterpumpRPM, QString::number(qint64{value} * 10));
    } else {
        selectText(ui->comboWaterRpmDuty, QString::number(value) + QLatin1Char('%'));
    }
}

void InstallationSystemSetting::loadEnforcedCirculation(const QString &use, int period, int runtime)
{
    ui->groupBoxEnforced->setVisible(flag("isWaterPumpOperationByForce"));
    ui->groupBoxEnforcedSub->show();
    if (flag("isWaterPumpOperationByForceAdv")) {
        checkPair(use, {ui->radioEnforcedNotuse, "NOTUSE", ui->radioEnforcedUse, "USE"});
        if (use == QLatin1String("USE")) {
            ui->comboOperationPeriod->setCurrentIndex(indexOf(period, firstPeriod));
            ui->comboOperationTime->setCurrentIndex(indexOf(runtime, firstRuntime));
        }
    }
    enableEnforcedCirculation();
}

void InstallationSystemSetting::loadDigitalInput()
{
    ui->groupBoxDryContact->setVisible(flag("is_DryContactInstallationSetting"));
    const QString dryContact = word(installation("dryContactInstallation"));
    const QString input = text(installation("digitalInput"));
    const int item = dryContact.isEmpty() ? 0 : dryContactWords().indexOf(dryContact);
    if (item >= 0) {
        ui->comboDryContactInstallation->setCurrentIndex(item);
    }
    // An empty text reads as 0.
    ui->comboCnEXT->setCurrentIndex(QString(input).remove(QStringLiteral("STEP")).toInt());
    ui->groupBoxCnExt->setVisible(flag("isDiExpand"));
}
