#pragma once

#include "Host/Camera.h"

#include <string>
#include <vector>

namespace Host {

/// What a function is to be set to.
struct Assignment {
    Instance instance;
    Value value;
};

/// Reads "gain=100", or the mere name of what has no value.
/// @throws UsageError
[[nodiscard]] Assignment ParseAssignment(const Camera& camera, const std::string& text);

/// Reads several, before the first is carried out.
[[nodiscard]] std::vector<Assignment> ParseAssignments(const Camera& camera, const std::vector<std::string>& texts);

} // namespace Host
