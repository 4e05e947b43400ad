#include "Format.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <utility>

namespace Host {

namespace {

struct Field {
    const char* name;
    std::int64_t value;
};

std::string Fields(std::initializer_list<Field> fields) {
    std::string text;
    for (const Field& field : fields) {
        text += (text.empty() ? "" : ", ") + std::string(field.name) + " " + std::to_string(field.value);
    }
    return text;
}

/// The text in the bytes: at least four printable characters, then nothing but NULs. Empty if it is none.
std::string TextIn(std::span<const std::uint8_t> bytes) {
    const auto printable = [](std::uint8_t byte) { return std::isprint(byte) != 0; };
    const auto end = std::find_if_not(bytes.begin(), bytes.end(), printable);
    const bool padded = std::all_of(end, bytes.end(), [](std::uint8_t byte) { return byte == 0; });
    return padded && end - bytes.begin() >= 4 ? std::string(bytes.begin(), end) : std::string();
}

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string Word(std::uint32_t word) { return word < 0x10000 ? std::to_string(word) : Hex(word); }

} // namespace

std::string Hex(std::uint32_t value) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", value);
    return text;
}

std::string Pad(std::string text, std::size_t width) {
    text.resize(std::max(width, text.size()), ' ');
    return text;
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
std::string Format(const SDK4_KAREA& a)        { return Fields({{"startx", a.startx}, {"starty", a.starty},
                                                                {"endx", a.endx}, {"endy", a.endy}}); }
std::string Format(const SDK4_KSIZE& s)        { return Fields({{"width", s.width}, {"height", s.height}}); }
std::string Format(const SDK4_KRGB& g)         { return Fields({{"red", g.red}, {"green", g.green},
                                                                {"blue", g.blue}}); }
std::string Format(const SDK4_KPOSITION& p)    { return Fields({{"posx", p.posx}, {"posy", p.posy}}); }
std::string Format(const SDK4_KSTYLE& s)       { return Fields({{"color", s.color}, {"style", s.style}}); }
std::string Format(const SDK4_KOVERLAYSIZE& s) { return Fields({{"width", s.width}, {"length", s.length}}); }
std::string Format(const SDK4_KEXPOSURE& e)    { return Fields({{"base", e.base}, {"counter", e.counter}}); }
std::string Format(const SDK4_KBINNING& b)     { return Fields({{"horizontal", b.horizontal},
                                                                {"vertical", b.vertical}}); }
std::string Format(const SDK4_KVERSION& v)     { return Fields({{"value1", v.value1}, {"value2", v.value2}}); }
std::string Format(const SDK4_KREVISION& r)    { return Fields({{"value1", r.value1}, {"value2", r.value2}}); }
std::string Format(const SDK4_KCIRCULARPOSITION& p) { return Fields({{"xpos", p.xpos}, {"ypos", p.ypos}}); }
std::string Format(const SDK4_KMWCIRCLE& w)    { return Fields({{"radius", w.radius}, {"width", w.width},
                                                                {"xpos", w.xpos}, {"ypos", w.ypos},
                                                                {"vstretch", w.vstretch}}); }
std::string Format(const SDK4_KDEFECTPIXEL& p) { return Fields({{"xpos", p.xpos}, {"ypos", p.ypos},
                                                                {"mode", p.mode}}); }
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
