#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace Common {

/// Parses an entire text as a number: decimal, unless a base or format for std::from_chars is given.
template <typename Number, typename... Form>
[[nodiscard]] std::optional<Number> ParseWhole(std::string_view text, Form... form) {
    Number number{};
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number, form...);
    return error == std::errc() && end == last ? std::optional(number) : std::nullopt;
}

/// Parses an entire text as a 32-bit number with an optional minus sign: decimal, or hexadecimal after "0x".
[[nodiscard]] std::optional<std::int64_t> ParseNumber(std::string_view text);

/// Checks a seed for a command-line parser. Returns the error, or an empty text for a 64-bit number.
[[nodiscard]] std::string CheckSeed(const std::string& text);

/// "0x" and eight digits.
[[nodiscard]] std::string Hex(std::uint32_t value);

} // namespace Common
