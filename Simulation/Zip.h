#pragma once

#include <string>

namespace Simulation {

/// A zip archive that holds one file. The same content always gives the same archive.
[[nodiscard]] std::string Zipped(const std::string& file, const std::string& content);

} // namespace Simulation
