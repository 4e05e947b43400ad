#include "Format.h"

#include "Text.h"
#include "Value.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace Host {

namespace {

/// A record, field by field.
template <typename Record> std::string Fields(const Record& record) {
    const Shape shape = ShapeOf(&record);
    const Value value = FromMemory(&record, shape);
    std::string text;
    for (std::size_t i = 0; i < value.numbers.size(); ++i) {
        text += (text.empty() ? "" : ", ") + std::string(shape.fields[i].name) + " " + std::to_string(value.numbers[i]);
    }
    return text;
}

/// The text in the bytes: at least four printable characters, then nothing but NULs. Empty if it is none.
std::string TextIn(std::span<const std::uint8_t> bytes) {
    const auto printable = [](std::uint8_t byte) { return byte >= 0x20 && byte < 0x7F; }; // ASCII
    const auto end = std::find_if_not(bytes.begin(), bytes.end(), printable);
    const bool padded = std::all_of(end, bytes.end(), [](std::uint8_t byte) { return byte == 0; });
    return padded && end - bytes.begin() >= 4 ? std::string(bytes.begin(), end) : std::string();
}

std::string Quoted(const std::string& text) { return '"' + Escaped(text) + '"'; }

std::string Word(std::uint32_t word) { return word < 0x10000 ? std::to_string(word) : Hex(word); }

} // namespace

std::string Hex(std::uint32_t value) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", value);
    return text;
}

std::string Pad(std::string text, std::size_t width) {
    const std::size_t taken = Width(text);
    return text.append(taken < width ? width - taken : 0, ' ');
}

std::string Format(bool value) { return value ? "true" : "false"; }

std::string Format(int value) { return std::to_string(value); }

std::string Format(unsigned int value) {
    return std::to_string(value) + (value < 0x10000 ? "" : " (" + Hex(value) + ")");
}

std::string Format(std::uint64_t value) { return std::to_string(value); }

std::string Format(const char* text) { return text == nullptr ? "null" : Quoted(text); }

std::string Format(const SDK4::IMediaType* media) { return media == nullptr ? "null" : "an IMediaType"; }

// clang-format off
std::string Format(const SDK4_KAREA& record)             { return Fields(record); }
std::string Format(const SDK4_KSIZE& record)             { return Fields(record); }
std::string Format(const SDK4_KRGB& record)              { return Fields(record); }
std::string Format(const SDK4_KPOSITION& record)         { return Fields(record); }
std::string Format(const SDK4_KSTYLE& record)            { return Fields(record); }
std::string Format(const SDK4_KOVERLAYSIZE& record)      { return Fields(record); }
std::string Format(const SDK4_KEXPOSURE& record)         { return Fields(record); }
std::string Format(const SDK4_KBINNING& record)          { return Fields(record); }
std::string Format(const SDK4_KVERSION& record)          { return Fields(record); }
std::string Format(const SDK4_KREVISION& record)         { return Fields(record); }
std::string Format(const SDK4_KCIRCULARPOSITION& record) { return Fields(record); }
std::string Format(const SDK4_KMWCIRCLE& record)         { return Fields(record); }
std::string Format(const SDK4_KDEFECTPIXEL& record)      { return Fields(record); }
// clang-format on

std::string FormatBytes(std::span<const std::uint8_t> bytes) {
    if (const std::string text = TextIn(bytes); !text.empty()) {
        return Quoted(text);
    }
    std::string words;
    std::size_t at = 0;
    for (; bytes.size() - at >= sizeof(std::uint32_t); at += sizeof(std::uint32_t)) {
        const auto rest = bytes.subspan(at);
        if (const std::string text = at == 4 ? TextIn(rest) : ""; !text.empty()) { // a text behind its leading word
            return words + Quoted(text);
        }
        std::uint32_t word = 0;
        std::memcpy(&word, rest.data(), sizeof word);
        words += Word(word) + " ";
        if (at == 44 && rest.size() > sizeof word) {
            return words + "... (" + std::to_string(bytes.size()) + " bytes)";
        }
    }
    for (; at < bytes.size(); ++at) {
        words += std::to_string(bytes[at]) + " ";
    }
    if (!words.empty()) {
        words.pop_back();
    }
    return words;
}

} // namespace Host
