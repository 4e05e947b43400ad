#pragma once

#include <string>

namespace Host {

/// Sets up log4cxx, which this program brings for the plug-in too. Without a configuration, lines of the given level
/// ("off", "error", "warn", "info" or "debug"; off if it is empty) and above go to standard error. With one, it decides
/// where lines go, and the level only if none is given here.
void ConfigureLogging(const std::string& level, const std::string& configuration = "");

} // namespace Host
