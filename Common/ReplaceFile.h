#pragma once

#include <filesystem>
#include <string_view>

namespace Common {

/// Replaces a file as a whole or not at all, or makes it, also when others do so at the same time. Its access rights
/// stay as they are; a link stays a link.
/// @throws std::system_error with the reason
void ReplaceFile(const std::filesystem::path& file, std::string_view content);

} // namespace Common
