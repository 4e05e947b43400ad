#pragma once

#include "Host/Camera.h"

#include <string>
#include <vector>

namespace Host {

/// Parses "gain=100", or only the name of a function that takes no value.
/// @throws UsageError
[[nodiscard]] FunctionValue ParseAssignment(const Camera& camera, const std::string& text);

/// Parses several assignments.
/// @throws UsageError
[[nodiscard]] std::vector<FunctionValue> ParseAssignments(const Camera& camera, const std::vector<std::string>& texts);

} // namespace Host
