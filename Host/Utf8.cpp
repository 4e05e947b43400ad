#include "Utf8.h"

#include <algorithm>

namespace Host {

namespace {

/// Characters that begin with these bytes: their length, and what their second byte may be.
struct Sequence {
    unsigned char first;
    unsigned char last;
    std::size_t length;
    unsigned char lowestSecond;
    unsigned char highestSecond;
};

// clang-format off
constexpr Sequence sequences[] = {
    {0x00, 0x7F, 1, 0x80, 0xBF},
    {0xC2, 0xDF, 2, 0x80, 0xBF},
    {0xE0, 0xE0, 3, 0xA0, 0xBF}, // below: could be shorter
    {0xE1, 0xEC, 3, 0x80, 0xBF},
    {0xED, 0xED, 3, 0x80, 0x9F}, // above: surrogates
    {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, // below: could be shorter
    {0xF1, 0xF3, 4, 0x80, 0xBF},
    {0xF4, 0xF4, 4, 0x80, 0x8F}, // above: beyond the last character
};
// clang-format on

constexpr std::size_t longest = 4;

unsigned char ByteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

bool Continues(unsigned char byte) { return (byte & 0xC0) == 0x80; }

/// @return the length of the character that the text begins with, or 0 if that is none
std::size_t FirstCharacter(std::string_view text) {
    const auto* const sequence = std::find_if(std::begin(sequences), std::end(sequences), [&](const Sequence& each) {
        return ByteAt(text, 0) >= each.first && ByteAt(text, 0) <= each.last;
    });
    if (sequence == std::end(sequences) || text.size() < sequence->length) {
        return 0;
    }
    for (std::size_t i = 1; i < sequence->length; ++i) {
        const unsigned char lowest = i == 1 ? sequence->lowestSecond : 0x80;
        const unsigned char highest = i == 1 ? sequence->highestSecond : 0xBF;
        if (ByteAt(text, i) < lowest || ByteAt(text, i) > highest) {
            return 0;
        }
    }
    return sequence->length;
}

} // namespace

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = FirstCharacter(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

std::string CutAtCharacter(const std::string& text, std::size_t bytes) {
    if (text.size() <= bytes) {
        return text;
    }
    std::size_t end = bytes;
    while (end > 0 && bytes - end < longest && Continues(ByteAt(text, end))) {
        --end;
    }
    return text.substr(0, Continues(ByteAt(text, end)) ? bytes : end); // a text in another encoding
}

} // namespace Host
