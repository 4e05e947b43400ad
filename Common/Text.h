#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Common {

// Texts of a camera, of a file or of a user, as a terminal may be shown them: in one line, and without anything that a
// terminal takes for a command. UTF-8 is shown as it is.

/// Control characters (C0, DEL, C1) and bytes that are no UTF-8 become \n, \t, \r or \x1B, byte by byte, and a
/// backslash becomes two.
[[nodiscard]] std::string Escaped(std::string_view text);

/// Reads back what Escaped made; an ordinary text is itself.
/// @return nothing if a backslash begins no escape
[[nodiscard]] std::optional<std::string> Unescaped(std::string_view text);

/// As Escaped, for a message, which may hold escaped texts already: backslashes stay.
[[nodiscard]] std::string InOneLine(std::string_view message);

/// How many columns of a terminal an escaped text takes.
[[nodiscard]] std::size_t Width(std::string_view text);

/// Whether a text is well-formed UTF-8. A camera holds any bytes as a text.
[[nodiscard]] bool IsUtf8(std::string_view text);

/// As much of a text as fits into that many bytes, without a part of a character at its end.
[[nodiscard]] std::string CutAtCharacter(const std::string& text, std::size_t bytes);

/// What is wrong with the value of an option, for the parsers of command lines: nothing may be meant, and no other
/// option.
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
