#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Common {

/// "; did you mean "exposure"?" for the known name nearest to an unknown one, or an empty text if none is near.
[[nodiscard]] std::string Suggestion(std::string_view unknown, const std::vector<std::string>& known);

} // namespace Common
