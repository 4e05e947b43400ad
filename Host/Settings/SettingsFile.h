#pragma once

#include "Host/Settings/Settings.h"

#include <string>

namespace Host {

/// File name for standard input or standard output.
constexpr const char* standardStream = "-";

/// The name of an input file for messages: in quotes, or "standard input".
[[nodiscard]] std::string DescribeFile(const std::string& file);

/// Writes settings as JSON. An existing file is replaced atomically.
/// @throws UsageError for an invalid file name; std::runtime_error if writing fails
void WriteSettings(const Settings& settings, const std::string& file);

/// @param inShell whether standard input holds the commands of a shell
/// @throws UsageError if the file cannot be read, is damaged or not a settings file, or has another format version
[[nodiscard]] Settings ReadSettings(const std::string& file, bool inShell);

} // namespace Host
