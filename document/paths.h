#pragma once

// Paths of the settings document that more than one place asks for. A path that one row or slot alone uses
// stands there.

namespace paths {

constexpr const char *product = "product";
constexpr const char *oduFunction = "SettingInfo.installation.OduFunctionMS";
constexpr const char *silentPriority = "SettingInfo.installation.silentModePriority";

} // namespace paths

/// The flags of the indoor unit: "SET" or "CLR".
namespace flags {

constexpr const char *cool = "IduFuncList.is_cool";
constexpr const char *hotWater = "IduFuncList.is_hotwater";
constexpr const char *silentPriority = "IduFuncList.isSilentPriority";

} // namespace flags
