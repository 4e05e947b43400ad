#include "Host/Value.h"

#include "Common/Number.h"
#include "Common/Text.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace Host {

namespace {

// clang-format off
constexpr Field signedNumber[]   = {{"", true}};
constexpr Field unsignedNumber[] = {{""}};
constexpr Field area[]           = {{"startx"}, {"starty"}, {"endx"}, {"endy"}};
constexpr Field size[]           = {{"width"}, {"height"}};
constexpr Field gains[]          = {{"red"}, {"green"}, {"blue"}};
constexpr Field position[]       = {{"posx"}, {"posy"}};
constexpr Field style[]          = {{"color"}, {"style"}};
constexpr Field overlaySize[]    = {{"width"}, {"length"}};
constexpr Field exposure[]       = {{"base", true}, {"counter"}};
constexpr Field binning[]        = {{"horizontal"}, {"vertical"}};
constexpr Field version[]        = {{"value1"}, {"value2"}};
constexpr Field circlePosition[] = {{"xpos", true}, {"ypos", true}};
constexpr Field circle[]         = {{"radius"}, {"width"}, {"xpos", true}, {"ypos", true}, {"vstretch"}};
constexpr Field pixel[]          = {{"xpos"}, {"ypos"}, {"mode"}};
// clang-format on

std::optional<std::int64_t> ParseNumber(std::string_view text, const Field& field, Codes codes) {
    for (const Code& code : codes) {
        if (text == code.name) {
            return code.value;
        }
    }
    const auto number = Common::ParseNumber(text);
    const bool fits = field.isSigned ? number >= std::numeric_limits<std::int32_t>::min() &&
                                           number <= std::numeric_limits<std::int32_t>::max()
                                     : number >= 0;
    return fits ? number : std::nullopt;
}

} // namespace

Value FromMemory(const void* memory, const Shape& shape) {
    Value value;
    const auto* at = static_cast<const unsigned char*>(memory);
    for (const Field& field : shape.fields) {
        std::uint32_t word = 0;
        std::memcpy(&word, at, sizeof word);
        at += sizeof word;
        value.numbers.push_back(field.isSigned ? std::int64_t{static_cast<std::int32_t>(word)} : std::int64_t{word});
    }
    return value;
}

void ToMemory(const Value& value, const Shape& shape, void* memory) {
    auto* at = static_cast<unsigned char*>(memory);
    for (std::size_t i = 0; i < shape.fields.size(); ++i) {
        const auto word = static_cast<std::uint32_t>(value.numbers.at(i));
        std::memcpy(at, &word, sizeof word);
        at += sizeof word;
    }
}

std::string Print(std::int64_t number, const Shape& shape, Codes codes) {
    const auto found = std::find_if(codes.begin(), codes.end(), [&](const Code& code) { return code.value == number; });
    if (found != codes.end()) {
        return found->name;
    }
    return shape.hexadecimal ? Common::Hex(static_cast<std::uint32_t>(number)) : std::to_string(number);
}

std::string Print(const Value& value, const Shape& shape, Codes codes) {
    if (shape.fields.empty()) {
        return Common::Escaped(value.text);
    }
    std::string text;
    for (const std::int64_t number : value.numbers) {
        text += (text.empty() ? "" : std::string(1, shape.separator)) + Print(number, shape, codes);
    }
    return text;
}

std::optional<Value> ParseValue(std::string_view text, const Shape& shape, Codes codes) {
    Value value;
    if (shape.fields.empty()) {
        const auto plain = Common::Unescaped(text);
        return plain ? std::optional(Value{{}, *plain}) : std::nullopt;
    }
    for (std::size_t i = 0; i < shape.fields.size(); ++i) {
        const bool last = i + 1 == shape.fields.size();
        const std::size_t end = last ? text.size() : text.find_first_of(",:.");
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const auto number = ParseNumber(text.substr(0, end), shape.fields[i], codes);
        if (!number) {
            return std::nullopt;
        }
        value.numbers.push_back(*number);
        text.remove_prefix(last ? end : end + 1);
    }
    return value;
}

// clang-format off
Shape ShapeOf(const std::int32_t*)           { return {signedNumber}; }
Shape ShapeOf(const std::uint32_t*)          { return {unsignedNumber}; }
Shape ShapeOf(const char* const*)            { return {}; }
Shape ShapeOf(const std::string*)            { return {}; }
Shape ShapeOf(const SDK4_KAREA*)             { return {area}; }
Shape ShapeOf(const SDK4_KSIZE*)             { return {size}; }
Shape ShapeOf(const SDK4_KRGB*)              { return {gains}; }
Shape ShapeOf(const SDK4_KPOSITION*)         { return {position}; }
Shape ShapeOf(const SDK4_KSTYLE*)            { return {style}; }
Shape ShapeOf(const SDK4_KOVERLAYSIZE*)      { return {overlaySize}; }
Shape ShapeOf(const SDK4_KEXPOSURE*)         { return {exposure, ':'}; }
Shape ShapeOf(const SDK4_KBINNING*)          { return {binning}; }
Shape ShapeOf(const SDK4_KVERSION*)          { return {version, '.'}; }
Shape ShapeOf(const SDK4_KREVISION*)         { return {version, '.'}; }
Shape ShapeOf(const SDK4_KCIRCULARPOSITION*) { return {circlePosition}; }
Shape ShapeOf(const SDK4_KMWCIRCLE*)         { return {circle}; }
Shape ShapeOf(const SDK4_KDEFECTPIXEL*)      { return {pixel}; }
// clang-format on

} // namespace Host
