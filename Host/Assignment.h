#pragma once

#include "Host/Camera.h"

#include <string>
#include <vector>

namespace Host {

/// Parses "gain=100", or just the name of a function without a value.
/// @throws UsageError
[[nodiscard]] FunctionValue ParseAssignment(const Camera& camera, const std::string& text);

/// Parses several.
[[nodiscard]] std::vector<FunctionValue> ParseAssignments(const Camera& camera, const std::vector<std::string>& texts);

} // namespace Host
