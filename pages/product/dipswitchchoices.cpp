// What the controls of the dip switch page do.

#include "pages/product/dipswitchsettingstatus.h"

#include "pages/style.h"
#include "rules/seasonaldefaults.h"
#include "ui_dipswitchsettingstatus.h"

void DipSwitchSettingStatus::saveFlags(std::initializer_list<Flag> flags)
{
    for (const auto &[name, value] : flags) {
        saveJsonData(flagPath(name), QLatin1String(value));
    }
}

void DipSwitchSettingStatus::choose(std::initializer_list<Switch> switches, std::initializer_list<Flag> flags)
{
    turn(switches);
    saveFlags(flags);
    validationCheck();
}

// Hot water tank and solar kit

void DipSwitchSettingStatus::on_radioDhwNotUse_clicked()
{
    chooseTank({{ui->DipSwitch22, false}, {ui->DipSwitch23, false}},
               {{"is_hotwater", "CLR"},
                {"is_sun", "CLR"},
                {"is_boosterht_onlyMode", "CLR"},
                {"is_timer_hotwater", "CLR"}});
}

void DipSwitchSettingStatus::on_radioDhwUse_clicked()
{
    chooseTank({{ui->DipSwitch22, false}, {ui->DipSwitch23, true}},
               {{"is_hotwater", "SET"}, {"is_boosterht_onlyMode", "CLR"}, {"is_timer_hotwater", "SET"}});
}

void DipSwitchSettingStatus::on_radioDhwOnly_clicked()
{
    chooseTank({{ui->DipSwitch22, true}, {ui->DipSwitch23, true}},
               {{"is_boosterht_onlyMode", "SET"}, {"is_hotwater", "SET"}, {"is_sun", "CLR"}});
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
    saveFlags({{"is_power_hotwater", dhwOnly ? "SET" : "CLR"}});
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
    const bool sun = loadPair("is_sun", ui->radioSolarThermalKitUse, ui->radioSolarThermalKitNotuse);
    turn({{ui->DipSwitch22, sun}, {ui->DipSwitch23, !sun}});
}

// Oddity 7: they change switches 22 and 23, and leave is_power_hotwater alone all the same.
void DipSwitchSettingStatus::on_radioSolarThermalKitNotuse_clicked()
{
    choose({{ui->DipSwitch22, false}, {ui->DipSwitch23, true}}, {{"is_sun", "CLR"}});
}

void DipSwitchSettingStatus::on_radioSolarThermalKitUse_clicked()
{
    choose({{ui->DipSwitch22, true}, {ui->DipSwitch23, false}}, {{"is_sun", "SET"}});
}

// Operation mode, flow switch, thermostat, air sensor, anti-freeze

// Oddity 6: is_autoOp and is_heat are set in both modes.
void DipSwitchSettingStatus::on_radioOperationHeating_clicked()
{
    choose({{ui->DipSwitch24, false}},
           {{"is_autoOp", "SET"}, {"is_heat", "SET"}, {"is_cool", "CLR"}, {"isSeasonalAuto", "CLR"}});
}

void DipSwitchSettingStatus::on_radioOperationBoth_clicked()
{
    choose({{ui->DipSwitch24, true}},
           {{"is_autoOp", "SET"}, {"is_heat", "SET"}, {"is_cool", "SET"}, {"isSeasonalAuto", "SET"}});
}

void DipSwitchSettingStatus::on_radioFlowAlways_clicked()
{
    choose({{ui->DipSwitch25, false}}, {{"is_flow_switch", "CLR"}});
}

void DipSwitchSettingStatus::on_radioFlowOnlyPump_clicked()
{
    choose({{ui->DipSwitch25, true}}, {{"is_flow_switch", "SET"}});
}

void DipSwitchSettingStatus::on_radioThermostatNone_clicked()
{
    choose({{ui->DipSwitch28, false}}, {{"is_ThermostatModeChange", "CLR"}});
}

void DipSwitchSettingStatus::on_radioThermostatUse_clicked()
{
    choose({{ui->DipSwitch28, true}}, {{"is_ThermostatModeChange", "SET"}});
}

void DipSwitchSettingStatus::on_radioAdditionalAirNotUse_clicked() { chooseAirSensor(false); }

void DipSwitchSettingStatus::on_radioAdditionalAirUse_clicked() { chooseAirSensor(true); }

// Oddity 5: the sensor's location is "RMC" with and without a remote sensor.
void DipSwitchSettingStatus::chooseAirSensor(bool used)
{
    turn({{ui->DipSwitch31, used}});
    saveFlags({{"isIduAirTempSW", used ? "SET" : "CLR"}});
    saveJsonData(installation("sensorDefine.airTempLocation"), QStringLiteral("RMC"));
    validationCheck();
}

void DipSwitchSettingStatus::on_radioAntifreezeNotuse_clicked()
{
    choose({{ui->DipSwitch32, false}}, {{"isAntiFreeze", "CLR"}});
}

void DipSwitchSettingStatus::on_radioAntifreezeUse_clicked()
{
    choose({{ui->DipSwitch32, true}}, {{"isAntiFreeze", "SET"}});
}

// Electric heater

void DipSwitchSettingStatus::on_radioElectricHeaterNotuse_clicked() { chooseHeater("CLR", "CLR"); }

void DipSwitchSettingStatus::on_radioElectricHeater1_clicked() { chooseHeater("SET", "CLR"); }

// Oddity 3: the two flags are a selection, not a pair of heaters: steps 1 and 2 clear the flag of step 1.
void DipSwitchSettingStatus::on_radioElectricHeaterBoth_clicked() { chooseHeater("CLR", "SET"); }

void DipSwitchSettingStatus::chooseHeater(const char *heater1, const char *heater2)
{
    saveFlags({{"is_heater1", heater1}, {"is_heater2", heater2}});
    setElectricHeater(QLatin1String(heater1), QLatin1String(heater2));
    initSeasonalAutoRange();
    validationCheck();
}

// It runs on loading too, so showing the page can rewrite these flags.
void DipSwitchSettingStatus::setElectricHeater(const QString &isHeater1, const QString &isHeater2)
{
    if (isHeater1.toUpper() == QLatin1String("SET")) {
        turn({{ui->DipSwitch26, true}, {ui->DipSwitch27, false}});
        saveFlags({{"is_installed_heater", "SET"},
                   {"is_timer_hotwater", "SET"},
                   {"is_comm_disinfection", "SET"},
                   {"isIndoorHotWaterKey", "SET"},
                   {"is_hotwater_by_disinfection", "SET"}});
    } else if (isHeater2.toUpper() == QLatin1String("SET")) {
        turn({{ui->DipSwitch26, true}, {ui->DipSwitch27, true}});
        saveFlags({{"is_installed_heater", "SET"},
                   {"is_comm_disinfection", "SET"},
                   {"isIndoorHotWaterKey", "SET"},
                   {"is_hotwater_by_disinfection", "SET"}});
    } else {
        turn({{ui->DipSwitch26, false}, {ui->DipSwitch27, false}});
        saveFlags({{"is_installed_heater", "CLR"},
                   {"is_comm_disinfection", "CLR"},
                   {"is_boosterht_onlyMode", "CLR"},
                   {"isIndoorHotWaterKey", "CLR"},
                   {"is_hotwater_by_disinfection", "CLR"}});
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
    saveJsonData(installation("meterInterface.interfaceAdd"), 0);
    enableOrvoMeterSubCategory();
    setOrvoSubCategory();
    validationCheck();
}

void DipSwitchSettingStatus::on_radioOrvoAddressB0_clicked() { chooseAddress(0xB0); }

void DipSwitchSettingStatus::on_radioOrvoAddressB1_clicked() { chooseAddress(0xB1); }

void DipSwitchSettingStatus::chooseAddress(int address)
{
    saveJsonData(installation("meterInterface.interfaceAdd"), address);
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
    const int address = number(installation("meterInterface.interfaceAdd"));
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
    int meter = 1;
    for (QLineEdit *edit : pulseEdits()) {
        edit->setText(QString::number(read(pulsePath(meter++)).toDouble() / 10.0, 'g', 6));
    }
}

QString DipSwitchSettingStatus::pulsePath(int meter)
{
    return installation("meterInterface.interface") + QString::number(meter);
}

void DipSwitchSettingStatus::on_lineEditWHM1_textEdited(const QString &text) { savePulses(1, text); }

void DipSwitchSettingStatus::on_lineEditWHM2_textEdited(const QString &text) { savePulses(2, text); }

void DipSwitchSettingStatus::on_lineEditWHM3_textEdited(const QString &text) { savePulses(3, text); }

void DipSwitchSettingStatus::on_lineEditWHM4_textEdited(const QString &text) { savePulses(4, text); }

// Pulses per kWh, in tenths; an emptied field gives 0.
void DipSwitchSettingStatus::savePulses(int meter, const QString &pulses)
{
    saveJsonData(pulsePath(meter), static_cast<int>(pulses.toDouble() * 10.0));
    validationCheck();
}

// Outdoor unit: function master and silent mode priority

void DipSwitchSettingStatus::on_radioOduMaster_clicked()
{
    saveJsonData(installation("OduFunctionMS"), QStringLiteral("MASTER"));
    offer(ui->groupBoxSilentModePriority, flag("isSilentPriority"));
    validationCheck();
}

// Oddity 4: it saves "MASTER" as well; "SLAVE" is only ever read.
void DipSwitchSettingStatus::on_radioOduSlave_clicked()
{
    saveJsonData(installation("OduFunctionMS"), QStringLiteral("MASTER"));
    ui->groupBoxSilentModePriority->hide();
    validationCheck();
}

void DipSwitchSettingStatus::on_radioSilentODU_clicked()
{
    saveJsonData(installation("silentModePriority"), QStringLiteral("oduSwitch"));
    validationCheck();
}

void DipSwitchSettingStatus::on_radioSilentRemote_clicked()
{
    saveJsonData(installation("silentModePriority"), QStringLiteral("rmcSetting"));
    validationCheck();
}

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
