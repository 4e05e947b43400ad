#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace Common {

/// A whole text as a number: a decimal one, unless a base or a format is given as std::from_chars takes it.
template <typename Number, typename... Form>
[[nodiscard]] std::optional<Number> ParseWhole(std::string_view text, Form... form) {
    Number number{};
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number, form...);
    return error == std::errc() && end == last ? std::optional(number) : std::nullopt;
}

/// A whole text as a number of 32 bits, perhaps with a minus sign: decimal, or hexadecimal after "0x".
[[nodiscard]] std::optional<std::int64_t> ParseNumber(std::string_view text);

/// What is wrong with a seed that a user gave, for the parsers of command lines; empty for a number of 64 bits.
[[nodiscard]] std::string CheckSeed(const std::string& text);

/// "0x" and eight digits.
[[nodiscard]] std::string Hex(std::uint32_t value);

} // namespace Common
