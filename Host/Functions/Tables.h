#pragma once

#include "FunctionTable.h"

#include <string_view>

namespace Host {

/// The functions of the family whose control calls itself so, or null for one that is not known.
[[nodiscard]] const Functions* TableOf(std::string_view classId);

// The rows, by subject.
void AddIdentity(FunctionTable& table);
void AddNetwork(FunctionTable& table);
void AddFrames(FunctionTable& table);
void AddOrvikExposure(FunctionTable& table);

} // namespace Host
