#include "Common/Words.h"

namespace Common {

namespace {

bool IsBlank(char character) { return character == ' ' || character == '\t' || character == '\r'; }

bool IsQuote(char character) { return character == '"' || character == '\''; }

} // namespace

Words SplitWords(std::string_view line, Special special) {
    Words split;
    char& quote = split.openQuote;
    bool escaped = false;
    for (const char character : line) {
        if (quote == '\0' && !escaped && IsBlank(character)) {
            split.isWordOpen = false;
            continue;
        }
        if (!split.isWordOpen && character == '#' && special == Special::Hash) {
            break;
        }
        if (!split.isWordOpen) {
            split.words.emplace_back();
            split.isWordOpen = true;
        }
        if (!escaped && character == '\\' && quote != '\'' && special == Special::Backslash) {
            escaped = true;
            continue;
        }
        if (!escaped && character == quote) {
            quote = '\0';
        } else if (!escaped && quote == '\0' && IsQuote(character)) {
            quote = character;
        } else {
            split.words.back() += character;
        }
        escaped = false;
    }
    return split;
}

} // namespace Common
