#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Common {

/// "; did you mean "exposure"?" for the known name that is nearest to an unknown one, or nothing if none is near.
[[nodiscard]] std::string Suggestion(std::string_view unknown, const std::vector<std::string>& known);

} // namespace Common
