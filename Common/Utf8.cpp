#include "Common/Utf8.h"

namespace Common {

namespace {

constexpr std::size_t longest = 4;

unsigned char Byte(char character) { return static_cast<unsigned char>(character); }

bool Continues(char character) { return (Byte(character) & 0xC0U) == 0x80; }

} // namespace

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
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000}; // a longer form than needed is no UTF-8
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < least[length] || code > 0x10FFFF || isSurrogate ? alone : Character{length, code, true};
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
    while (end > 0 && bytes - end < longest && Continues(text[end])) {
        --end;
    }
    return text.substr(0, Continues(text[end]) ? bytes : end); // a text in another encoding
}

} // namespace Common
