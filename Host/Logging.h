#pragma once

#include <string>

namespace Host {

/// Sets up log4cxx, which this program brings for the plug-in too: lines of the given level ("off", "error", "warn",
/// "info" or "debug") and above go to standard error.
void ConfigureLogging(const std::string& level);

} // namespace Host
