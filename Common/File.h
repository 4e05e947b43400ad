#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Common {

/// @throws std::system_error with the reason; EFBIG for more than 64 MiB
[[nodiscard]] std::string ReadFile(const std::filesystem::path& file);

/// Replaces a file as a whole or not at all, or makes it, also when others do so at the same time. Its access rights
/// stay as they are; a link stays a link.
/// @throws std::system_error with the reason
void ReplaceFile(const std::filesystem::path& file, std::string_view content);

} // namespace Common
