#include "Common/Text.h"

#include "Common/Utf8.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace Common {

namespace {

constexpr std::pair<char, char> named[] = {{'\n', 'n'}, {'\t', 't'}, {'\r', 'r'}, {'\\', '\\'}};
constexpr std::string_view digits = "0123456789ABCDEF";

unsigned char Byte(char character) { return static_cast<unsigned char>(character); }

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

/// @return the value of a hexadecimal digit, or npos
std::size_t DigitOf(char character) {
    const bool isLower = character >= 'a' && character <= 'f';
    return digits.find(isLower ? static_cast<char>(character - 'a' + 'A') : character);
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
        const auto* const found = std::find_if(std::begin(named), std::end(named),
                                               [&](const auto& each) { return rest.starts_with(each.second); });
        if (found != std::end(named)) {
            plain += found->first;
            i += 1;
        } else if (rest.size() == 3 && rest[0] == 'x' && DigitOf(rest[1]) != digits.npos &&
                   DigitOf(rest[2]) != digits.npos) {
            plain += static_cast<char>(DigitOf(rest[1]) << 4 | DigitOf(rest[2]));
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
        width += columns < 0 ? 1 : static_cast<std::size_t>(columns); // the locale may not know it
        text.remove_prefix(first.length);
    }
    return width;
}

} // namespace Common
