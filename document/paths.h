#pragma once

// Paths of the settings document that several places ask for. A path that one row or slot alone uses stands
// there. What makes a document that of a product (rules/productpresets.cpp) is told key by key.

namespace paths {

constexpr const char *product = "product";
constexpr const char *oduFunction = "SettingInfo.installation.OduFunctionMS";
constexpr const char *fcuDisable = "SettingInfo.installation.UFH_stop.FCU_disable";
constexpr const char *enableMainZone = "SettingInfo.installation.circuitMainZone.enableMainZone";
constexpr const char *coolWaterControlBasis = "SettingInfo.installation.coolWaterControlBasis";
constexpr const char *heatWaterControlBasis = "SettingInfo.installation.heatWaterControlBasis";
constexpr const char *tankHeaterUse = "SettingInfo.installation.hotWaterTankHeater.tankHeaterUse";
constexpr const char *hsSetting = "SettingInfo.installation.hsSetting";
constexpr const char *airAndWaterUse = "SettingInfo.installation.sensorDefine.airAndWaterUse";
constexpr const char *airTempLocation = "SettingInfo.installation.sensorDefine.airTempLocation";
constexpr const char *settempSelect = "SettingInfo.installation.sensorDefine.settemp_select";
constexpr const char *hotWaterHighLimit = "SettingInfo.installation.settempLimit.hotWater.high_limit";
constexpr const char *silentPriority = "SettingInfo.installation.silentModePriority";
constexpr const char *tempConversion = "SettingInfo.user.tempUnit.tempConversion";

} // namespace paths

/// Flags of the indoor unit: "SET" or "CLR".
namespace flags {

constexpr const char *antiFreeze = "IduFuncList.isAntiFreeze";
constexpr const char *autoOp = "IduFuncList.is_autoOp";
constexpr const char *boosterOnly = "IduFuncList.is_boosterht_onlyMode";
constexpr const char *commDisinfection = "IduFuncList.is_comm_disinfection";
constexpr const char *cool = "IduFuncList.is_cool";
constexpr const char *coolAir16 = "IduFuncList.isCoolAir16";
constexpr const char *coolTempMin5 = "IduFuncList.isCoolTempMin5";
constexpr const char *coolWaterControlBasis = "IduFuncList.is_coolwatercontrolbasis";
constexpr const char *heat = "IduFuncList.is_heat";
constexpr const char *heatWaterControlBasis = "IduFuncList.is_heatwatercontrolbasis";
constexpr const char *heater1 = "IduFuncList.is_heater1";
constexpr const char *heater2 = "IduFuncList.is_heater2";
constexpr const char *hotWater = "IduFuncList.is_hotwater";
constexpr const char *hotWaterByDisinfection = "IduFuncList.is_hotwater_by_disinfection";
constexpr const char *hsModel = "IduFuncList.isHsModel";
constexpr const char *iduAirTempSw = "IduFuncList.isIduAirTempSW";
constexpr const char *indoorHotWaterKey = "IduFuncList.isIndoorHotWaterKey";
constexpr const char *installedHeater = "IduFuncList.is_installed_heater";
constexpr const char *r32 = "IduFuncList.isR32";
constexpr const char *r410CoolExpand = "IduFuncList.isR410CoolExpand";
constexpr const char *seasonalAuto = "IduFuncList.isSeasonalAuto";
constexpr const char *silentPriority = "IduFuncList.isSilentPriority";
constexpr const char *sun = "IduFuncList.is_sun";
constexpr const char *tankHeater = "IduFuncList.isHotwaterTankHeaterUse";
constexpr const char *timerHotWater = "IduFuncList.is_timer_hotwater";
constexpr const char *waterCtrBasisAir = "IduFuncList.isWaterCtrBasisAir";

} // namespace flags
