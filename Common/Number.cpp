#include "Common/Number.h"

#include <cstdio>

namespace Common {

namespace {

/// Decimal, or hexadecimal after "0x".
template <typename Number> std::optional<Number> ParseUnsigned(std::string_view text) {
    const bool isHexadecimal = text.starts_with("0x") || text.starts_with("0X");
    return ParseWhole<Number>(text.substr(isHexadecimal ? 2 : 0), isHexadecimal ? 16 : 10);
}

} // namespace

std::optional<std::int64_t> ParseNumber(std::string_view text) {
    const bool isNegative = text.starts_with('-');
    const auto magnitude = ParseUnsigned<std::uint32_t>(text.substr(isNegative ? 1 : 0));
    return magnitude ? std::optional(isNegative ? -std::int64_t{*magnitude} : std::int64_t{*magnitude}) : std::nullopt;
}

std::string CheckSeed(const std::string& text) {
    return ParseUnsigned<std::uint64_t>(text) ? "" : "invalid seed \"" + text + "\": must be a number of 0 or more";
}

std::string Hex(std::uint32_t value) {
    char text[11];
    std::snprintf(text, sizeof text, "0x%08X", value);
    return text;
}

} // namespace Common
