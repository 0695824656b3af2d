#include "rules/productpresets.h"

namespace presets {

const std::array<Preset, 35> aquabox{{
    {"product", "aquabox"},
    {"IduFuncList.is_schedule_boostHeater", "CLR"},
    {"IduFuncList.isSilentDisable", "CLR"},
    {"IduFuncList.isWaterFlowRate", "SET"},
    {"IduFuncList.isOverride", "SET"},
    {"IduFuncList.isDisableHotwaterKeyCool", "SET"},
    {"IduFuncList.isDisableRunMode", "CLR"},
    {"IduFuncList.is_200Combination", "SET"},
    {"IduFuncList.is_cement_Curing", "CLR"},
    {"IduFuncList.is_waterthermoonoff", "SET"},
    {"IduFuncList.is_coolThermoOnOff", "SET"},
    {"IduFuncList.is_ghpWarningOil", "SET"},
    {"IduFuncList.is_ModeLock", "CLR"},
    {"IduFuncList.is_MainZone_circuit", "CLR"},
    {"IduFuncList.isSGReady", "CLR"},
    {"IduFuncList.isModbusAddress", "CLR"},
    {"IduFuncList.isOduFunctionMS", "SET"},
    {"IduFuncList.isDefrostMode", "SET"},
    {"IduFuncList.isLeakRefrigerant", "SET"},
    {"IduFuncList.isIduAdd", "SET"},
    {"IduFuncList.isEmergencyAllStop", "SET"},
    {"IduFuncList.isSilentPriority", "SET"},
    {"IduFuncList.isHsModel", "SET"},
    {"IduFuncList.is200CombinationOp2", "SET"},
    {"IduFuncList.isModeStandby", "SET"},
    {"IduFuncList.isMotorDuty", "CLR"},
    {"IduFuncList.isWaterCtrBasisAir", "SET"},
    {"IduFuncList.isHotwaterTankHeaterUse", "CLR"},
    {"IduFuncList.isAntiFreeze", "CLR"},
    {"IduFuncList.isMeterInterface", "SET"},
    {"IduFuncList.isCoolAir16", "SET"},
    {"IduFuncList.isWaterPumpOperationByForceAdv", "SET"},
    {"IduFuncList.isPumpPreOverRun", "SET"},
    {"IduFuncList.isIduAirTempSW", "SET"},
    {"IduFuncList.isNoticeCanEmerOper", "SET"},
}};

const std::array<Preset, 8> highTemp{{
    {"IduFuncList.is_heater2", "CLR"},
    {"IduFuncList.is_heater1", "CLR"},
    {"IduFuncList.is_cool", "CLR"},
    {"IduFuncList.isDisableDisinfect", "CLR"},
    {"IduFuncList.is_hotwater_by_disinfection", "SET"},
    {"IduFuncList.is_installed_heater", "CLR"},
    {"IduFuncList.isCoolTempMin5", "CLR"},
    {"IduFuncList.isR32", "CLR"},
}};

} // namespace presets
