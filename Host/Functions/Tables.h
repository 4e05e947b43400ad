#pragma once

#include "Host/Functions/FunctionTable.h"

#include <string_view>

namespace Host {

/// The functions of a family, or null for an unknown one.
[[nodiscard]] const Functions* TableOf(std::string_view classId);

/// Whether any family has a function of that name, with or without an index.
[[nodiscard]] bool IsFunction(std::string_view name);
/// Whether any family has a command without a value of that name.
[[nodiscard]] bool IsTrigger(std::string_view name);

// The rows, by subject. For both families, even if one does not implement a function, to show that.
void AddIdentity(FunctionTable& table);
void AddNetwork(FunctionTable& table);
void AddFrames(FunctionTable& table);
void AddProcessing(FunctionTable& table);
void AddMemory(FunctionTable& table);
void AddSettingsSets(FunctionTable& table);
void AddTests(FunctionTable& table);

// Orvik.
void AddOrvikFormat(FunctionTable& table);
void AddOrvikExposure(FunctionTable& table);
void AddOrvikProcessing(FunctionTable& table);
void AddOrvikOverlay(FunctionTable& table);
void AddOrvikDevice(FunctionTable& table);

// M2VX.
void AddM2VXFormat(FunctionTable& table);
void AddM2VXExposure(FunctionTable& table);
void AddM2VXProcessing(FunctionTable& table);
void AddM2VXOverlay(FunctionTable& table);
void AddM2VXDevice(FunctionTable& table);

} // namespace Host
