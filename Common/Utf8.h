#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Common {

/// A character of UTF-8, of so many bytes; a byte that begins none stands for itself.
struct Character {
    std::size_t length;
    char32_t code;
    bool valid;
};

/// The first character of a text that is not empty.
[[nodiscard]] Character FirstCharacter(std::string_view text);

/// Whether a text is well-formed UTF-8. A camera holds any bytes as a text.
[[nodiscard]] bool IsUtf8(std::string_view text);

/// As much of a text as fits into that many bytes, without a part of a character at its end.
[[nodiscard]] std::string CutAtCharacter(const std::string& text, std::size_t bytes);

} // namespace Common
