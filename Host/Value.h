#pragma once

#include <SDK4/Records.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Host {

/// One 32-bit field of a value; the only field of a plain number has no name.
struct Field {
    const char* name = "";
    bool isSigned = false;
};

/// The fields of a value, and the separator between them in text. A text has no fields.
struct Shape {
    std::span<const Field> fields;
    char separator = ',';
    bool hexadecimal = false; ///< print numbers in hexadecimal
};

/// The value of a camera function: a number, the numbers of a record in field order, or a text.
struct Value {
    std::vector<std::int64_t> numbers; ///< each within the 32-bit range of its field
    std::string text;

    bool operator==(const Value&) const = default;
};

/// A name for a number: "off" for 0.
struct Code {
    std::int64_t value;
    const char* name;
};
using Codes = std::span<const Code>;

[[nodiscard]] Value FromMemory(const void* memory, const Shape& shape);
void ToMemory(const Value& value, const Shape& shape, void* memory);

/// "1:2000", "0,0,1279,1023", "off", or the text, escaped. ParseValue is the inverse.
[[nodiscard]] std::string Print(const Value& value, const Shape& shape, Codes codes = {});
/// One number of a value, by its name if it has one.
[[nodiscard]] std::string Print(std::int64_t number, const Shape& shape, Codes codes = {});

/// Parses a value. Numbers are decimal, or hexadecimal with 0x; codes are names or numbers; the fields of a record are
/// separated by commas, colons or dots.
/// @return nothing for an invalid value
[[nodiscard]] std::optional<Value> ParseValue(std::string_view text, const Shape& shape, Codes codes = {});

// The shapes of the types in the interfaces. The argument only selects the type.
[[nodiscard]] Shape ShapeOf(const std::int32_t* number);
[[nodiscard]] Shape ShapeOf(const std::uint32_t* number);
[[nodiscard]] Shape ShapeOf(const char* const* text);
[[nodiscard]] Shape ShapeOf(const std::string* text);
[[nodiscard]] Shape ShapeOf(const SDK4_KAREA* area);
[[nodiscard]] Shape ShapeOf(const SDK4_KSIZE* size);
[[nodiscard]] Shape ShapeOf(const SDK4_KRGB* gains);
[[nodiscard]] Shape ShapeOf(const SDK4_KPOSITION* position);
[[nodiscard]] Shape ShapeOf(const SDK4_KSTYLE* style);
[[nodiscard]] Shape ShapeOf(const SDK4_KOVERLAYSIZE* size);
[[nodiscard]] Shape ShapeOf(const SDK4_KEXPOSURE* exposure);
[[nodiscard]] Shape ShapeOf(const SDK4_KBINNING* binning);
[[nodiscard]] Shape ShapeOf(const SDK4_KVERSION* version);
[[nodiscard]] Shape ShapeOf(const SDK4_KREVISION* revision);
[[nodiscard]] Shape ShapeOf(const SDK4_KCIRCULARPOSITION* position);
[[nodiscard]] Shape ShapeOf(const SDK4_KMWCIRCLE* window);
[[nodiscard]] Shape ShapeOf(const SDK4_KDEFECTPIXEL* pixel);

} // namespace Host
