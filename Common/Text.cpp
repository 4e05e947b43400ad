#include "Common/Text.h"

#include "Common/Number.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace Common {

namespace {

constexpr std::pair<char, char> named[] = {{'\n', 'n'}, {'\t', 't'}, {'\r', 'r'}, {'\\', '\\'}};
constexpr std::string_view digits = "0123456789ABCDEF";

unsigned char Byte(char character) { return static_cast<unsigned char>(character); }

/// A UTF-8 character and its length in bytes. An invalid byte is a character of its own.
struct Character {
    std::size_t length;
    char32_t code;
    bool valid;
};

bool Continues(char character) { return (Byte(character) & 0xC0U) == 0x80; }

/// The first character of a non-empty text.
Character FirstCharacter(std::string_view text) {
    const char32_t lead = Byte(text.front());
    const Character alone{1, lead, lead < 0x80};
    const std::size_t length = lead < 0xC2 || lead > 0xF4 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 1 || text.size() < length) {
        return alone;
    }
    char32_t code = lead & (0x7FU >> length);
    for (const char next : text.substr(1, length - 1)) {
        if (!Continues(next)) {
            return alone;
        }
        code = code << 6 | (Byte(next) & 0x3FU);
    }
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000}; // overlong forms are invalid
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < least[length] || code > 0x10FFFF || isSurrogate ? alone : Character{length, code, true};
}

bool IsControl(char32_t code) { return code < 0x20 || (code >= 0x7F && code < 0xA0); }

std::string EscapeOf(char character) {
    for (const auto& [meant, letter] : named) {
        if (meant == character) {
            return {'\\', letter};
        }
    }
    return {'\\', 'x', digits[Byte(character) >> 4], digits[Byte(character) & 0xFU]};
}

std::string Escape(std::string_view text, bool backslashes) {
    std::string escaped;
    while (!text.empty()) {
        const Character first = FirstCharacter(text);
        const bool asItIs = first.valid && !IsControl(first.code) && (first.code != '\\' || !backslashes);
        for (const char byte : text.substr(0, first.length)) {
            escaped += asItIs ? std::string(1, byte) : EscapeOf(byte);
        }
        text.remove_prefix(first.length);
    }
    return escaped;
}

} // namespace

std::string Escaped(std::string_view text) { return Escape(text, true); }

std::string InOneLine(std::string_view message) { return Escape(message, false); }

std::optional<std::string> Unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            plain += text[i];
            continue;
        }
        const std::string_view rest = text.substr(i + 1, 3);
        const auto byte = rest.size() == 3 ? ParseWhole<std::uint8_t>(rest.substr(1), 16) : std::nullopt;
        const auto* const found = std::find_if(std::begin(named), std::end(named),
                                               [&](const auto& each) { return rest.starts_with(each.second); });
        if (found != std::end(named)) {
            plain += found->first;
            i += 1;
        } else if (rest.starts_with('x') && byte) {
            plain += static_cast<char>(*byte);
            i += 3;
        } else {
            return std::nullopt;
        }
    }
    return plain;
}

std::size_t Width(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        const Character first = FirstCharacter(text);
        const int columns = wcwidth(static_cast<wchar_t>(first.code));
        width += columns < 0 ? 1 : static_cast<std::size_t>(columns); // unknown to the locale
        text.remove_prefix(first.length);
    }
    return width;
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const Character first = FirstCharacter(text);
        if (!first.valid) {
            return false;
        }
        text.remove_prefix(first.length);
    }
    return true;
}

std::string CutAtCharacter(const std::string& text, std::size_t bytes) {
    if (text.size() <= bytes) {
        return text;
    }
    std::size_t end = bytes;
    while (end > 0 && bytes - end < 4 && Continues(text[end])) {
        --end;
    }
    return text.substr(0, Continues(text[end]) ? bytes : end); // not UTF-8
}

std::string CheckValue(const std::string& text) {
    const bool isOption = text.size() > 1 && text[0] == '-' && (text[1] < '0' || text[1] > '9');
    return text.empty() || isOption ? "a value is required" : "";
}

} // namespace Common
