#pragma once

#include "Host/Functions/FunctionTable.h"

#include <string_view>

namespace Host {

/// The functions of the family whose control calls itself so, or null for one that is not known.
[[nodiscard]] const Functions* TableOf(std::string_view classId);

/// Whether a family has a function of that name, which may end in an index.
[[nodiscard]] bool IsFunction(std::string_view name);

// The rows, by subject. Of both families: a row that one of them does not implement is there to say so.
void AddIdentity(FunctionTable& table);
void AddNetwork(FunctionTable& table);
void AddFrames(FunctionTable& table);
void AddProcessing(FunctionTable& table);
void AddMemory(FunctionTable& table);
void AddSettingsSets(FunctionTable& table);
void AddTests(FunctionTable& table);

// Of the one.
void AddOrvikFormat(FunctionTable& table);
void AddOrvikExposure(FunctionTable& table);
void AddOrvikProcessing(FunctionTable& table);
void AddOrvikOverlay(FunctionTable& table);
void AddOrvikDevice(FunctionTable& table);

// Of the other.
void AddM2VXFormat(FunctionTable& table);
void AddM2VXExposure(FunctionTable& table);
void AddM2VXProcessing(FunctionTable& table);
void AddM2VXOverlay(FunctionTable& table);
void AddM2VXDevice(FunctionTable& table);

} // namespace Host
