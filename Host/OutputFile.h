#pragma once

#include <string>
#include <string_view>

namespace Host {

/// The file name that stands for standard input or standard output.
constexpr const char* standardStream = "-";

/// A file as messages name it: its name in quotes, or "standard input".
[[nodiscard]] std::string DescribeFile(const std::string& file);

/// Checks that the file can be there: its folder exists, and nothing else than a file has its name.
/// @throws UsageError
void CheckOutput(const std::string& file);

/// Writes a file, or to standard output. An existing file is replaced as a whole or not at all.
/// @throws UsageError for a wrong name; std::runtime_error for a failed write
void WriteOutput(const std::string& file, std::string_view content);

} // namespace Host
