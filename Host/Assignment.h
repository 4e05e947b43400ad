#pragma once

#include "Host/Camera.h"

#include <string>
#include <vector>

namespace Host {

/// Reads "gain=100", or the mere name of what has no value.
/// @throws UsageError
[[nodiscard]] FunctionValue ParseAssignment(const Camera& camera, const std::string& text);

/// Reads several, before the first is carried out.
[[nodiscard]] std::vector<FunctionValue> ParseAssignments(const Camera& camera, const std::vector<std::string>& texts);

} // namespace Host
