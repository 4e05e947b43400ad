#pragma once

#include "Host/Settings/Settings.h"

#include <string>

namespace Host {

/// Instead of the name of a file: standard input, or standard output.
constexpr const char* standardStream = "-";

/// A file that was read, for messages: its name in quotes, or standard input.
[[nodiscard]] std::string DescribeFile(const std::string& file);

/// Writes settings as JSON. A file that is there is replaced as a whole or not at all.
/// @throws UsageError for a file that cannot be there; std::runtime_error for one that could not be written
void WriteSettings(const Settings& settings, const std::string& file);

/// @param inShell whether standard input holds the commands of a shell
/// @throws UsageError for a file that is not there, is no such file or a damaged one, or of another format version
[[nodiscard]] Settings ReadSettings(const std::string& file, bool inShell);

} // namespace Host
