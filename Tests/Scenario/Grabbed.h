#pragma once

#include "Tests/Scenario/HostProcess.h"

#include <cstdlib>
#include <string>

namespace Scenario {

/// The number behind a name in JSON that was printed; -1 if there is none.
inline double NumberIn(const std::string& json, const std::string& name) {
    const std::size_t at = json.find('"' + name + "\": ");
    return at == std::string::npos ? -1 : std::strtod(json.c_str() + at + name.size() + 4, nullptr);
}

} // namespace Scenario
