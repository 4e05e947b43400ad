#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Common {

/// @throws std::system_error with the reason; EFBIG for more than 64 MiB
[[nodiscard]] std::string ReadFile(const std::filesystem::path& file);

/// Creates or atomically replaces a file. Access rights are kept; symbolic links are followed.
/// @throws std::system_error with the reason
void ReplaceFile(const std::filesystem::path& file, std::string_view content);

} // namespace Common
