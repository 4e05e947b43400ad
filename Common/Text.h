#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Common {

// Makes texts of cameras, files and users safe for a terminal: one line, no control sequences. UTF-8 is kept.

/// Control characters (C0, DEL, C1) and bytes that are not UTF-8 are escaped as \n, \t, \r or \x1B, byte by byte.
/// Backslashes are doubled.
[[nodiscard]] std::string Escaped(std::string_view text);

/// The inverse of Escaped.
/// @return nothing for an invalid escape
[[nodiscard]] std::optional<std::string> Unescaped(std::string_view text);

/// As Escaped, for messages that may contain escaped texts: backslashes are kept.
[[nodiscard]] std::string InOneLine(std::string_view message);

/// The width of an escaped text, in columns of a terminal.
[[nodiscard]] std::size_t Width(std::string_view text);

/// Whether a text is well-formed UTF-8. The texts of a camera need not be.
[[nodiscard]] bool IsUtf8(std::string_view text);

/// Truncates a text to a number of bytes without splitting a character.
[[nodiscard]] std::string CutAtCharacter(const std::string& text, std::size_t bytes);

/// Checks the value of an option for a command-line parser: it must not be empty or look like an option.
[[nodiscard]] std::string CheckValue(const std::string& text);

/// "one, two": the texts with the separator between them.
template <typename Texts> [[nodiscard]] std::string Join(const Texts& texts, const std::string& separator = ", ") {
    std::string all;
    for (const std::string& text : texts) {
        all += (all.empty() ? "" : separator) + text;
    }
    return all;
}

} // namespace Common
