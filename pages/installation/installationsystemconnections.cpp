// What the system is connected to: the central controller, Modbus, dry contacts and the digital input.

#include "pages/installation/installationsystemsetting.h"
#include "ui_installationsystemsetting.h"

namespace {

constexpr const char *dryContact = "SettingInfo.installation.dryContactInstallation";
constexpr const char *digitalInput = "SettingInfo.installation.digitalInput";
constexpr const char *centralAddress = "SettingInfo.installation.cc_address";
constexpr const char *modbusAddress = "SettingInfo.installation.modbusAddress";

/// The document's word for "no Modbus address".
constexpr int noAddress = -9999;

/// Two lower case hexadecimal digits.
QString hexadecimal(int value) { return QStringLiteral("%1").arg(value, 2, 16, QLatin1Char('0')); }

QStringList addresses(int first, int last)
{
    QStringList items;
    for (int address = first; address <= last; ++address) {
        items.append(hexadecimal(address));
    }
    return items;
}

} // namespace

QStringList InstallationSystemSetting::modbusAddresses() { return addresses(1, 247); }

QStringList InstallationSystemSetting::centralAddresses()
{
    return addresses(0, 255).join(QLatin1Char(' ')).toUpper().split(QLatin1Char(' '));
}

QStringList InstallationSystemSetting::digitalInputTexts()
{
    std::vector<const char *> keys{"NotUse", "SimpleOperation", "SimpleDryContact", "SingleEmergencyStop"};
    // Oddity 34: this flag counts in capitals only.
    if (text("IduFuncList.isEmergencyAllStop") == QLatin1String("SET")) {
        keys.push_back("MultiEmergencyStop");
    }
    return languageTexts(keys);
}

// In the order of the list.
QStringList InstallationSystemSetting::dryContactWords()
{
    return {QStringLiteral("IDU"), QStringLiteral("NOT_INSTALL"), QStringLiteral("INSTALL")};
}

void InstallationSystemSetting::loadCentralAddress()
{
    const bool unlocked = word("ExtSysInfo.hard_lock") == QLatin1String("CLR");
    const QString address = text(centralAddress);
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
void InstallationSystemSetting::loadModbusAddress()
{
    const int address = number(modbusAddress);
    const bool available = isSet("IduFuncList.isModbusAddress");
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

void InstallationSystemSetting::loadDigitalInput()
{
    ui->groupBoxDryContact->setVisible(isSet("IduFuncList.is_DryContactInstallationSetting"));
    const QString installed = word(dryContact);
    const QString input = text(digitalInput);
    const int item = installed.isEmpty() ? 0 : dryContactWords().indexOf(installed);
    if (item >= 0) {
        ui->comboDryContactInstallation->setCurrentIndex(item);
    }
    // An empty text reads as 0.
    ui->comboCnEXT->setCurrentIndex(QString(input).remove(QStringLiteral("STEP")).toInt());
    ui->groupBoxCnExt->setVisible(isSet("IduFuncList.isDiExpand"));
}

void InstallationSystemSetting::on_radioDryManual_clicked() { change(ui->radioDryManual); }

void InstallationSystemSetting::on_radioDryAuto_clicked() { change(ui->radioDryAuto); }

void InstallationSystemSetting::on_comboDryContactInstallation_currentTextChanged(const QString &)
{
    const QString chosen = dryContactWords().value(ui->comboDryContactInstallation->currentIndex());
    if (!chosen.isEmpty()) {
        save(dryContact, chosen);
    }
    validationCheck();
}

void InstallationSystemSetting::on_comboCnEXT_currentIndexChanged(int index)
{
    change(digitalInput, QStringLiteral("STEP") + QString::number(index));
}

void InstallationSystemSetting::on_comboCentral_currentTextChanged(const QString &text)
{
    change(centralAddress, text.toUpper());
}

// Oddity 8: the text is read as decimal though it shows hexadecimal digits: "10" stores 10 and "0a" 0.
void InstallationSystemSetting::on_comboModbus_currentTextChanged(const QString &text)
{
    change(modbusAddress, text.toInt());
}
