#pragma once

#include "Host/Json.h"
#include "Host/OutputFile.h"
#include "Host/Settings/Settings.h"

#include <string>

namespace Host {

/// Writes settings as JSON. An existing file is replaced atomically.
/// @throws UsageError for an invalid file name; std::runtime_error if writing fails
void WriteSettings(const Settings& settings, const std::string& file);

/// The content of a file with settings, or of standard input.
/// @throws UsageError if it cannot be read, or is empty
[[nodiscard]] std::string ReadSettingsText(const std::string& file);

/// @param inShell whether standard input holds the commands of a shell
/// @throws UsageError if the file cannot be read, is damaged or not a settings file, or has another format version
[[nodiscard]] Settings ReadSettings(const std::string& file, bool inShell);

/// The document of a settings file.
[[nodiscard]] Json SettingsToJson(const Settings& settings);
/// @param file as messages name it
/// @throws UsageError as above
[[nodiscard]] Settings ParseSettings(const std::string& content, const std::string& file);

} // namespace Host
