#pragma once

#include <string>

namespace Host {

/// Sets up log4cxx for this program and the plug-in. Without a configuration file, lines of the given level ("off",
/// "error", "warn", "info" or "debug"; off if empty) and above go to standard error. A configuration file defines the
/// appenders, and also the level if none is given here.
void ConfigureLogging(const std::string& level, const std::string& configuration = "");

/// Drops all log lines as long as it exists.
class QuietLog {
public:
    QuietLog();
    ~QuietLog();
    QuietLog(const QuietLog&) = delete;
    QuietLog& operator=(const QuietLog&) = delete;

private:
    int threshold; ///< before
};

} // namespace Host
