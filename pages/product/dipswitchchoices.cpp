// What the controls of the dip switch page do.

#include "pages/product/dipswitchsettingstatus.h"

#include "document/paths.h"
#include "pages/style.h"
#include "rules/seasonaldefaults.h"
#include "ui_dipswitchsettingstatus.h"

#include <array>

namespace {

constexpr const char *meterAddress = "SettingInfo.installation.meterInterface.interfaceAdd";
constexpr std::array<const char *, 4> pulsePaths{"SettingInfo.installation.meterInterface.interface1",
                                                 "SettingInfo.installation.meterInterface.interface2",
                                                 "SettingInfo.installation.meterInterface.interface3",
                                                 "SettingInfo.installation.meterInterface.interface4"};

} // namespace

void DipSwitchSettingStatus::saveFlags(std::initializer_list<Flag> flags)
{
    for (const auto &[path, value] : flags) {
        save(path, QLatin1String(value));
    }
}

void DipSwitchSettingStatus::choose(std::initializer_list<Switch> switches, std::initializer_list<Flag> flags)
{
    turn(switches);
    saveFlags(flags);
    validationCheck();
}

void DipSwitchSettingStatus::choose(const QRadioButton *radio, std::initializer_list<Switch> switches)
{
    turn(switches);
    change(radio);
}

// Hot water tank and solar kit

void DipSwitchSettingStatus::on_radioDhwNotUse_clicked()
{
    chooseTank({{ui->DipSwitch22, false}, {ui->DipSwitch23, false}},
               {{flags::hotWater, "CLR"},
                {flags::sun, "CLR"},
                {flags::boosterOnly, "CLR"},
                {flags::timerHotWater, "CLR"}});
}

void DipSwitchSettingStatus::on_radioDhwUse_clicked()
{
    chooseTank({{ui->DipSwitch22, false}, {ui->DipSwitch23, true}},
               {{flags::hotWater, "SET"}, {flags::boosterOnly, "CLR"}, {flags::timerHotWater, "SET"}});
}

void DipSwitchSettingStatus::on_radioDhwOnly_clicked()
{
    chooseTank({{ui->DipSwitch22, true}, {ui->DipSwitch23, true}},
               {{flags::boosterOnly, "SET"}, {flags::hotWater, "SET"}, {flags::sun, "CLR"}});
}

void DipSwitchSettingStatus::chooseTank(std::initializer_list<Switch> switches,
                                        std::initializer_list<Flag> flags)
{
    turn(switches);
    saveFlags(flags);
    setPowerHotWater();
    enableSolarThermalKit();
    validationCheck();
}

// The state is read back from the drawn switches: both are on for DHW only.
void DipSwitchSettingStatus::setPowerHotWater()
{
    const QString on = QStringLiteral("true");
    const bool dhwOnly = ui->DipSwitch22->text() == on && ui->DipSwitch23->text() == on;
    saveFlags({{"IduFuncList.is_power_hotwater", dhwOnly ? "SET" : "CLR"}});
}

bool DipSwitchSettingStatus::enableSolarThermalKit()
{
    const bool offered = !ui->radioDhwNotUse->isChecked() && !ui->radioDhwOnly->isChecked();
    style::apply(ui->labelSolar,
                 offered ? QStringLiteral("color : #333333;")
                         : QStringLiteral("color : rgba(33,33,33,30%);"));
    if (!offered) {
        uncheck({ui->radioSolarThermalKitNotuse, ui->radioSolarThermalKitUse});
    }
    for (QRadioButton *radio : {ui->radioSolarThermalKitNotuse, ui->radioSolarThermalKitUse}) {
        radio->setEnabled(offered);
        style::apply(radio, setRadioTextOpacity(offered));
    }
    if (offered) {
        showSolarThermalKit();
    }
    return offered;
}

void DipSwitchSettingStatus::showSolarThermalKit()
{
    const bool sun = loadPair(ui->radioSolarThermalKitUse, ui->radioSolarThermalKitNotuse);
    turn({{ui->DipSwitch22, sun}, {ui->DipSwitch23, !sun}});
}

// Oddity 7: they change switches 22 and 23, and leave is_power_hotwater alone all the same.
void DipSwitchSettingStatus::on_radioSolarThermalKitNotuse_clicked()
{
    choose(ui->radioSolarThermalKitNotuse, {{ui->DipSwitch22, false}, {ui->DipSwitch23, true}});
}

void DipSwitchSettingStatus::on_radioSolarThermalKitUse_clicked()
{
    choose(ui->radioSolarThermalKitUse, {{ui->DipSwitch22, true}, {ui->DipSwitch23, false}});
}

// Operation mode, flow switch, thermostat, air sensor, anti-freeze

// Oddity 6: is_autoOp and is_heat are set in both modes.
void DipSwitchSettingStatus::on_radioOperationHeating_clicked()
{
    choose(
        {{ui->DipSwitch24, false}},
        {{flags::autoOp, "SET"}, {flags::heat, "SET"}, {flags::cool, "CLR"}, {flags::seasonalAuto, "CLR"}});
}

void DipSwitchSettingStatus::on_radioOperationBoth_clicked()
{
    choose(
        {{ui->DipSwitch24, true}},
        {{flags::autoOp, "SET"}, {flags::heat, "SET"}, {flags::cool, "SET"}, {flags::seasonalAuto, "SET"}});
}

void DipSwitchSettingStatus::on_radioFlowAlways_clicked()
{
    choose(ui->radioFlowAlways, {{ui->DipSwitch25, false}});
}

void DipSwitchSettingStatus::on_radioFlowOnlyPump_clicked()
{
    choose(ui->radioFlowOnlyPump, {{ui->DipSwitch25, true}});
}

void DipSwitchSettingStatus::on_radioThermostatNone_clicked()
{
    choose(ui->radioThermostatNone, {{ui->DipSwitch28, false}});
}

void DipSwitchSettingStatus::on_radioThermostatUse_clicked()
{
    choose(ui->radioThermostatUse, {{ui->DipSwitch28, true}});
}

void DipSwitchSettingStatus::on_radioAdditionalAirNotUse_clicked()
{
    chooseAirSensor(ui->radioAdditionalAirNotUse, false);
}

void DipSwitchSettingStatus::on_radioAdditionalAirUse_clicked()
{
    chooseAirSensor(ui->radioAdditionalAirUse, true);
}

// Oddity 5: the sensor's location is "RMC" with and without a remote sensor.
void DipSwitchSettingStatus::chooseAirSensor(const QRadioButton *radio, bool used)
{
    turn({{ui->DipSwitch31, used}});
    save(radio);
    change(paths::airTempLocation, QStringLiteral("RMC"));
}

void DipSwitchSettingStatus::on_radioAntifreezeNotuse_clicked()
{
    choose(ui->radioAntifreezeNotuse, {{ui->DipSwitch32, false}});
}

void DipSwitchSettingStatus::on_radioAntifreezeUse_clicked()
{
    choose(ui->radioAntifreezeUse, {{ui->DipSwitch32, true}});
}

// Electric heater

void DipSwitchSettingStatus::on_radioElectricHeaterNotuse_clicked() { chooseHeater("CLR", "CLR"); }

void DipSwitchSettingStatus::on_radioElectricHeater1_clicked() { chooseHeater("SET", "CLR"); }

// Oddity 3: the two flags are a selection, not a pair of heaters: steps 1 and 2 clear the flag of step 1.
void DipSwitchSettingStatus::on_radioElectricHeaterBoth_clicked() { chooseHeater("CLR", "SET"); }

void DipSwitchSettingStatus::chooseHeater(const char *heater1, const char *heater2)
{
    saveFlags({{flags::heater1, heater1}, {flags::heater2, heater2}});
    setElectricHeater(QLatin1String(heater1), QLatin1String(heater2));
    initSeasonalAutoRange();
    validationCheck();
}

// It runs on loading too, so showing the page can rewrite these flags.
void DipSwitchSettingStatus::setElectricHeater(const QString &isHeater1, const QString &isHeater2)
{
    if (isHeater1.toUpper() == QLatin1String("SET")) {
        turn({{ui->DipSwitch26, true}, {ui->DipSwitch27, false}});
        saveFlags({{flags::installedHeater, "SET"},
                   {flags::timerHotWater, "SET"},
                   {flags::commDisinfection, "SET"},
                   {flags::indoorHotWaterKey, "SET"},
                   {flags::hotWaterByDisinfection, "SET"}});
    } else if (isHeater2.toUpper() == QLatin1String("SET")) {
        turn({{ui->DipSwitch26, true}, {ui->DipSwitch27, true}});
        saveFlags({{flags::installedHeater, "SET"},
                   {flags::commDisinfection, "SET"},
                   {flags::indoorHotWaterKey, "SET"},
                   {flags::hotWaterByDisinfection, "SET"}});
    } else {
        turn({{ui->DipSwitch26, false}, {ui->DipSwitch27, false}});
        saveFlags({{flags::installedHeater, "CLR"},
                   {flags::commDisinfection, "CLR"},
                   {flags::boosterOnly, "CLR"},
                   {flags::indoorHotWaterKey, "CLR"},
                   {flags::hotWaterByDisinfection, "CLR"}});
    }
}

void DipSwitchSettingStatus::initSeasonalAutoRange()
{
    seasonal::saveWaterDefaults({{16, 20}, {28, 35}}, [this](const QString &path, const QJsonValue &value) {
        saveJsonData(path, value);
    });
}

// Meter interface

void DipSwitchSettingStatus::on_radioOrvometerInterfaceNotuse_clicked()
{
    save(meterAddress, 0);
    enableOrvoMeterSubCategory();
    setOrvoSubCategory();
    validationCheck();
}

void DipSwitchSettingStatus::on_radioOrvoAddressB0_clicked() { chooseAddress(0xB0); }

void DipSwitchSettingStatus::on_radioOrvoAddressB1_clicked() { chooseAddress(0xB1); }

void DipSwitchSettingStatus::chooseAddress(int address)
{
    save(meterAddress, address);
    ui->groupBoxMeterInterface->setEnabled(true);
    validationCheck();
}

void DipSwitchSettingStatus::enableOrvoMeterSubCategory()
{
    if (ui->groupBoxMeterInterface->isEnabled()) {
        return;
    }
    uncheck({ui->radioOrvoAddressB0, ui->radioOrvoAddressB1});
    ui->radioOrvoAddressB0->setEnabled(true);
    ui->radioOrvoAddressB1->setEnabled(true);
}

// An address that no radio stands for leaves the two address radios as they are.
void DipSwitchSettingStatus::setOrvoSubCategory()
{
    const int address = number(meterAddress);
    ui->groupBoxMeterInterface->setEnabled(address != 0);
    if (address == 0) {
        ui->radioOrvometerInterfaceNotuse->setChecked(true);
    } else {
        uncheck({ui->radioOrvometerInterfaceNotuse});
    }
    if (address == 0xB0) {
        ui->radioOrvoAddressB0->setChecked(true);
    } else if (address == 0xB1) {
        ui->radioOrvoAddressB1->setChecked(true);
    }
    const char *const *path = pulsePaths.begin();
    for (QLineEdit *edit : pulseEdits()) {
        edit->setText(QString::number(read(*path++).toDouble() / 10.0, 'g', 6));
    }
}

void DipSwitchSettingStatus::on_lineEditWHM1_textEdited(const QString &text) { savePulses(1, text); }

void DipSwitchSettingStatus::on_lineEditWHM2_textEdited(const QString &text) { savePulses(2, text); }

void DipSwitchSettingStatus::on_lineEditWHM3_textEdited(const QString &text) { savePulses(3, text); }

void DipSwitchSettingStatus::on_lineEditWHM4_textEdited(const QString &text) { savePulses(4, text); }

// Pulses per kWh, in tenths; an emptied field gives 0.
void DipSwitchSettingStatus::savePulses(std::size_t meter, const QString &pulses)
{
    change(pulsePaths.at(meter - 1), static_cast<int>(pulses.toDouble() * 10.0));
}

// Outdoor unit: function master and silent mode priority

void DipSwitchSettingStatus::on_radioOduMaster_clicked()
{
    save(ui->radioOduMaster);
    offerGroup(ui->groupBoxSilentModePriority, isSet(flags::silentPriority));
    validationCheck();
}

void DipSwitchSettingStatus::on_radioOduSlave_clicked()
{
    save(ui->radioOduSlave);
    ui->groupBoxSilentModePriority->hide();
    validationCheck();
}

void DipSwitchSettingStatus::on_radioSilentODU_clicked() { change(ui->radioSilentODU); }

void DipSwitchSettingStatus::on_radioSilentRemote_clicked() { change(ui->radioSilentRemote); }

void DipSwitchSettingStatus::enableOduFunctionMaster()
{
    const bool master = ui->radioOduMaster->isChecked();
    if (!master) {
        uncheck({ui->radioOduMaster, ui->radioOduSlave});
    }
    for (QRadioButton *radio : {ui->radioOduMaster, ui->radioOduSlave}) {
        style::apply(radio, setRadioTextOpacity(master));
        radio->setEnabled(master);
    }
    style::apply(ui->labelODUFunctionMaster, setOpacity(master));
}

void DipSwitchSettingStatus::enableOduFunctionMasterSubCategory()
{
    const bool master = ui->radioOduMaster->isChecked();
    if (!master && !ui->radioOduSlave->isChecked()) {
        return;
    }
    ui->radioSilentODU->setEnabled(master);
    ui->radioSilentRemote->setEnabled(master);
    style::apply(ui->labelSilentMode, setOpacity(master));
}
