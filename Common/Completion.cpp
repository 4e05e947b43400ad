#include "Common/Completion.h"

#include <algorithm>
#include <iostream>
#include <utility>

namespace Common {

namespace {

/// The option of a word with a value, or null.
const OptionSyntax* OptionIn(const std::string& word, const std::vector<OptionSyntax>& options) {
    const std::string name = word.substr(0, word.find('='));
    const auto found = std::find_if(options.begin(), options.end(), [&](const OptionSyntax& option) {
        return !option.value.empty() && option.name == name;
    });
    return found == options.end() ? nullptr : &*found;
}

/// Takes an option with a value: "--log=debug", or "--log" before the word with its value.
void TakeOption(Cursor& cursor, const OptionSyntax& option, const std::string& word, bool isLast) {
    const std::size_t equals = word.find('=');
    const bool isWhole = equals != std::string::npos;
    cursor.option = !isWhole || isLast ? &option : nullptr;
    cursor.before = isWhole ? word.substr(0, equals + 1) : "";
    cursor.word = isWhole ? word.substr(equals + 1) : "";
    cursor.values[option.name] = cursor.word;
}

} // namespace

Cursor FindCursor(const std::vector<std::string>& words, const std::vector<OptionSyntax>& options) {
    Cursor cursor;
    for (const std::string& word : words) {
        const bool isLast = &word == &words.back();
        if (const OptionSyntax* const option = std::exchange(cursor.option, nullptr)) { // the value of the last word
            cursor.option = isLast ? option : nullptr;
            cursor.values[option->name] = cursor.word = word;
            continue;
        }
        const OptionSyntax* const option = OptionIn(word, options);
        if (option != nullptr && (word.find('=') != std::string::npos || !isLast)) {
            TakeOption(cursor, *option, word, isLast);
            continue;
        }
        cursor.before = "";
        cursor.word = word;
        if (!isLast && (!word.starts_with('-') || word == "-")) {
            cursor.operands.push_back(word);
        }
    }
    return cursor;
}

Candidates ValuesOf(const OptionSyntax& option, const std::vector<std::string>& models) {
    const bool isFile = option.value == "FILE" || option.value == "PATH";
    return {option.value == "MODEL" ? models : option.choices, isFile};
}

std::vector<std::string> NamesOf(const std::vector<OptionSyntax>& options) {
    std::vector<std::string> names(options.size());
    std::transform(options.begin(), options.end(), names.begin(), [](const auto& option) { return option.name; });
    return names;
}

std::vector<std::string> WordsToCursor(const std::string& line, Special special) {
    Words split = SplitWords(line, special);
    if (!split.isWordOpen) {
        split.words.emplace_back();
    }
    return split.words;
}

Candidates Matching(const Candidates& candidates, const Cursor& cursor, const std::string& replaced) {
    const std::string typed = cursor.before + cursor.word;
    const std::size_t kept = typed.ends_with(replaced) ? typed.size() - replaced.size() : 0;
    Candidates matching{{}, candidates.files};
    auto& words = matching.words;
    for (const std::string& candidate : candidates.words) {
        const std::string whole = cursor.before + candidate;
        if (!whole.starts_with(typed) || whole.size() == kept) { // nothing is left to complete
            continue;
        }
        if (const std::string rest = whole.substr(kept); std::find(words.begin(), words.end(), rest) == words.end()) {
            words.push_back(rest);
        }
    }
    return matching;
}

void PrintCandidates(const Candidates& candidates) {
    std::cout << (candidates.files ? ":files\n" : "");
    for (const std::string& word : candidates.words) {
        std::cout << word << '\n';
    }
}

} // namespace Common
