#include "Common/Words.h"

namespace Common {

namespace {

bool IsBlank(char character) { return character == ' ' || character == '\t' || character == '\r'; }

bool IsQuote(char character) { return character == '"' || character == '\''; }

/// Opens or closes a quotation. @return whether the character does
bool TakeQuote(Words& split, char character) {
    char& quote = split.openQuote;
    const bool closes = quote != '\0' && character == quote;
    const bool opens = quote == '\0' && IsQuote(character);
    quote = closes ? '\0' : opens ? character : quote;
    return closes || opens;
}

} // namespace

Words SplitWords(std::string_view line, Special special) {
    Words split;
    bool escaped = false;
    for (const char character : line) {
        if (split.openQuote == '\0' && !escaped && IsBlank(character)) {
            split.isWordOpen = false;
            continue;
        }
        if (!split.isWordOpen) {
            if (character == '#' && special == Special::Hash) {
                break;
            }
            split.words.emplace_back();
            split.isWordOpen = true;
        }
        const bool escapes = !escaped && character == '\\' && split.openQuote != '\'' && special == Special::Backslash;
        if (!escapes && (escaped || !TakeQuote(split, character))) {
            split.words.back() += character;
        }
        escaped = escapes;
    }
    return split;
}

} // namespace Common
