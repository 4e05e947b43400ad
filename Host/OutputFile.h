#pragma once

#include <string>
#include <string_view>

namespace Host {

/// Instead of the name of a file: standard input, or standard output.
constexpr const char* standardStream = "-";

/// A file for messages: its name in quotes, or standard input.
[[nodiscard]] std::string DescribeFile(const std::string& file);

/// Writes a file, or to standard output. A file that is there is replaced as a whole or not at all.
/// @throws UsageError for a file that cannot be there; std::runtime_error for one that could not be written
void WriteOutput(const std::string& file, std::string_view content);

} // namespace Host
