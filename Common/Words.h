#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Common {

/// A line, split into words at blanks. Quotes group characters.
struct Words {
    std::vector<std::string> words; ///< without quotes
    char openQuote = '\0';          ///< if its end is missing
    bool isWordOpen = false;        ///< whether more text would belong to the last word
};

/// What else is special in a line.
enum class Special {
    Hash,      ///< at the start of a word it begins a comment
    Backslash, ///< escapes the next character
};

[[nodiscard]] Words SplitWords(std::string_view line, Special special);

} // namespace Common
