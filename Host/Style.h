#pragma once

#include <string>

namespace Host {

// Colour on standard output, where it is a terminal and NO_COLOR is not set; else the text as it is.
[[nodiscard]] std::string Dim(const std::string& text);
[[nodiscard]] std::string Yellow(const std::string& text);
[[nodiscard]] std::string Green(const std::string& text);
[[nodiscard]] std::string Red(const std::string& text);

} // namespace Host
