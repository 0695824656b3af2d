// What controls write that isn't the one path of their rule. tst_controls.cpp holds both of all controls;
// which values the effects bring stands in the tests of the pages.

#include "walk/controlrows.h"

namespace {

const char *const sections = "InstallationCool InstallationHeat InstallationaAuto InstallationDWH";
const char *const autoMode = "InstallationaAuto";

// The refrigerants aren't here: they replace the document. The radios of the dip switch page have a table of
// their own, tests/data/dipswitches.tsv.
const std::vector<ControlRow> productRows{
    {"ProductSelection", "radioButtonAwhp radioButtonMiddleTemp", ""},
    {"DipSwitchSettingStatus", "lineEditWHM1", "/SettingInfo.installation.meterInterface.interface1"},
    {"DipSwitchSettingStatus", "lineEditWHM2", "/SettingInfo.installation.meterInterface.interface2"},
    {"DipSwitchSettingStatus", "lineEditWHM3", "/SettingInfo.installation.meterInterface.interface3"},
    {"DipSwitchSettingStatus", "lineEditWHM4", "/SettingInfo.installation.meterInterface.interface4"},
    {"DipSwitchSettingStatus",
     "DipSwitch11 DipSwitch12 DipSwitch13 DipSwitch14 DipSwitch21 DipSwitch22 DipSwitch23 DipSwitch24 "
     "DipSwitch25 DipSwitch26 DipSwitch27 DipSwitch28 DipSwitch31 DipSwitch32 DipSwitch33 DipSwitch34",
     ""},
};

const std::vector<ControlRow> operationRows{
    {"SettingFunction", "comboSilentStartHour", "silentTimer.start.hour silentTimer.start.ampm"},
    {"SettingFunction", "comboSilentStartMin", "silentTimer.start.min"},
    {"SettingFunction", "comboSilentEndHour", "silentTimer.end.hour silentTimer.end.ampm"},
    {"SettingFunction", "comboSilentEndMin", "silentTimer.end.min"},
    {"SettingUser", "comboScreenSaverTimer", "backlightControl.dimmTimeSet"},
    {"SettingUser", "comboBrightness", "backlightControl.brightness"},
    {"SettingUser", "comboDateYear", "DateInfo.year"},
    {"SettingUser", "comboDateMonth", "DateInfo.month DateInfo.mday"},
    {"SettingUser", "comboDateDay", "DateInfo.mday"},
    {"SettingUser", "comboStartMonth", "summerTime.start.mon summerTime.start.day"},
    {"SettingUser", "comboStartDay", "summerTime.start.day"},
    {"SettingUser", "comboEndMonth", "summerTime.end.mon summerTime.end.day"},
    {"SettingUser", "comboEndDay", "summerTime.end.day"},
    {"SettingService", "lineEditOfficeName", "company"},
    {"SettingService", "lineEditInstallerName", "installerName"},
    {"SettingService", "lineEditTelephone", "phoneNumber"},
};

const std::vector<ControlRow> systemRows{
    {"InstallationSystemSetting", "comboBoxSensingTemp", "@sensing", sections},
    {"InstallationSystemSetting", "comboBoxAirTemp", "sensorDefine.airTempLocation"},
    {"InstallationSystemSetting", "comboCentral", "cc_address"},
    {"InstallationSystemSetting", "comboBoxScreedStep", "cement_cure.cmt_step"},
    {"InstallationSystemSetting", "comboModbus", "modbusAddress"},
    {"InstallationSystemSetting", "comboWaterRpmDuty comboWaterpumpRPM", "pumpRPM.pumpRPMValue"},
    {"InstallationSystemSetting", "comboOperationPeriod", "pumpOperationByForce.ByForcePeriod"},
    {"InstallationSystemSetting", "comboOperationTime", "pumpOperationByForce.ByForceRuntime"},
    {"InstallationSystemSetting", "comboDryContactInstallation", "dryContactInstallation"},
    {"InstallationSystemSetting", "comboCnEXT", "digitalInput"},
    {"InstallationSystemAWHP", "radio2ndNotuse radio2ndUse", "circuitMainZone.enableMainZone", sections},
    {"InstallationSystemAWHP", "comboValveClosingTime", "circuitMainZone.controlTimeMainZone"},
    {"InstallationSystemAWHP", "radioWaterTankHeaterNotuse radioWaterTankHeaterUse radioWaterTankHeaterMode",
     "hotWaterTankHeater.tankHeaterUse settempLimit.hotWater.high_limit", sections},
    {"InstallationSystemAWHP", "comboHeatingPriority", "hotWaterTankHeater.tankHeaterPriority"},
    {"InstallationSystemAWHP", "comboAntiFreezingTemp", "antiFreezeTemp"},
    {"InstallationSystemAWHP", "comboControlMode", "boilerOfThirdParty.thirdPartyMode"},
    {"InstallationSystemAquabox", "radioOpt1 radioOpt2", "combination200.combiOilRecover"},
    {"InstallationSystemAquabox", "comboWater", "waterFlowRate"},
};

const std::vector<ControlRow> waterRows{
    {"InstallationCool", "comboReferenceWater", "coolWaterControlBasis @coolLimits @seasonalWater", autoMode},
    {"InstallationCool", "radioFanCoilNotuse", "UFH_stop.FCU_disable @coolLimits @seasonalWater", autoMode},
    {"InstallationCool", "radioFanCoilUse", "UFH_stop.FCU_disable @coolLimits", autoMode},
    {"InstallationCool", "comboTemperatureIndoorMin", "settempLimit.coolAir.low_limit", autoMode},
    {"InstallationCool", "comboTemperatureIndoorMax", "settempLimit.coolAir.high_limit", autoMode},
    {"InstallationCool", "comboTemperatureWaterMin", "settempLimit.coolWater.low_limit @coolControl",
     autoMode},
    {"InstallationCool", "comboTemperatureWaterMax", "settempLimit.coolWater.high_limit @coolControl",
     autoMode},
    {"InstallationCool", "comboControlMainZoneTemp",
     "/SettingInfo.func.waterCtrBasisAirCool.ctrTempMainZone /SettingInfo.func.waterCtrBasisAirCool.ctrTemp"},
    {"InstallationCool", "comboControlWaterTemp",
     "/SettingInfo.func.waterCtrBasisAirCool.ctrTemp /SettingInfo.func.waterCtrBasisAirCool.ctrTempMainZone"},
    {"InstallationHeat", "comboReferenceWater", "heatWaterControlBasis @heatLimits @seasonalWater", autoMode},
    {"InstallationHeat", "comboTemperatureIndoorMin", "settempLimit.heatAir.low_limit", autoMode},
    {"InstallationHeat", "comboTemperatureIndoorMax", "settempLimit.heatAir.high_limit", autoMode},
    {"InstallationHeat", "comboTemperatureWaterMin", "settempLimit.heatWater.low_limit @heatControl",
     autoMode},
    {"InstallationHeat", "comboTemperatureWaterMax", "settempLimit.heatWater.high_limit @heatControl",
     autoMode},
    {"InstallationHeat", "comboControlMainZoneTemp",
     "/SettingInfo.func.waterCtrBasisAirHeat.ctrTempMainZone /SettingInfo.func.waterCtrBasisAirHeat.ctrTemp"},
    {"InstallationHeat", "comboControlWaterTemp",
     "/SettingInfo.func.waterCtrBasisAirHeat.ctrTemp /SettingInfo.func.waterCtrBasisAirHeat.ctrTempMainZone"},
    {"InstallationDWH", "comboInletWaterMax", "hotwater_logic.compMaxTemp"},
};

// With one circuit, the rows of both circuits are written together.
const std::vector<ControlRow> autoRows{
    {autoMode, "comboHeatingOutdoorMax", "seasonalAutoOption.heatOutTemp.max"},
    {autoMode, "comboHeatingOutdoorMin", "seasonalAutoOption.heatOutTemp.min"},
    {autoMode, "comboCoolingOutdoorMax", "seasonalAutoOption.coolOutTemp.max"},
    {autoMode, "comboCoolingOutdoorMin", "seasonalAutoOption.coolOutTemp.min"},
    {autoMode, "comboHeatingIndoorMax",
     "seasonalAutoOption.heatAirTemp.max ~seasonalAutoOption.heatAirTempMainZone.max"},
    {autoMode, "comboHeatingIndoorMin",
     "seasonalAutoOption.heatAirTemp.min ~seasonalAutoOption.heatAirTempMainZone.min"},
    {autoMode, "comboCoolingIndoorMax",
     "seasonalAutoOption.coolAirTemp.max ~seasonalAutoOption.coolAirTempMainZone.max"},
    {autoMode, "comboCoolingIndoorMin",
     "seasonalAutoOption.coolAirTemp.min ~seasonalAutoOption.coolAirTempMainZone.min"},
    {autoMode, "comboHeatingWaterMax",
     "seasonalAutoOption.heatWaterTemp.max ~seasonalAutoOption.heatWaterTempMainZone.max"},
    {autoMode, "comboHeatingWaterMin",
     "seasonalAutoOption.heatWaterTemp.min ~seasonalAutoOption.heatWaterTempMainZone.min"},
    {autoMode, "comboCoolingWaterMax",
     "seasonalAutoOption.coolWaterTemp.max ~seasonalAutoOption.coolWaterTempMainZone.max"},
    {autoMode, "comboCoolingWaterMin",
     "seasonalAutoOption.coolWaterTemp.min ~seasonalAutoOption.coolWaterTempMainZone.min"},
    {autoMode, "comboMainZoneHeatingIndoorMax", "seasonalAutoOption.heatAirTempMainZone.max"},
    {autoMode, "comboMainZoneHeatingIndoorMin", "seasonalAutoOption.heatAirTempMainZone.min"},
    {autoMode, "comboMainZoneIndoorMax", "seasonalAutoOption.coolAirTempMainZone.max"},
    {autoMode, "comboMainZoneIndoorMin", "seasonalAutoOption.coolAirTempMainZone.min"},
    {autoMode, "comboMainZoneHeatingWaterMax", "seasonalAutoOption.heatWaterTempMainZone.max"},
    {autoMode, "comboMainZoneHeatingWaterMin", "seasonalAutoOption.heatWaterTempMainZone.min"},
    {autoMode, "comboMainZoneWaterMax", "seasonalAutoOption.coolWaterTempMainZone.max"},
    {autoMode, "comboMainZoneWaterMin", "seasonalAutoOption.coolWaterTempMainZone.min"},
};

std::vector<ControlRow> joined()
{
    std::vector<ControlRow> rows;
    for (const auto *part : {&productRows, &operationRows, &systemRows, &waterRows, &autoRows}) {
        rows.insert(rows.end(), part->begin(), part->end());
    }
    return rows;
}

} // namespace

const std::vector<ControlRow> &controlRows()
{
    static const std::vector<ControlRow> rows = joined();
    return rows;
}
