#pragma once

#include "Common/Words.h"

#include <map>
#include <string>
#include <vector>

namespace Common {

/// An option of a program, as its help names it.
struct OptionSyntax {
    std::string name;                 ///< "--log"
    std::string value;                ///< "LEVEL"; empty for a flag
    std::vector<std::string> choices; ///< if its values are known
};

/// What may be at the cursor.
struct Candidates {
    std::vector<std::string> words;
    bool files = false; ///< also files
};

/// A line up to the cursor, as the parser of a command line understands it.
struct Cursor {
    std::vector<std::string> operands;         ///< before the cursor
    std::map<std::string, std::string> values; ///< of options before the cursor, by name
    std::string before;                        ///< "--log=" in front of the word
    std::string word;                          ///< what is typed of the word at the cursor
    const OptionSyntax* option = nullptr;      ///< if the word is its value
};

/// @param words the last one is at the cursor
[[nodiscard]] Cursor FindCursor(const std::vector<std::string>& words, const std::vector<OptionSyntax>& options);

/// The candidates for the value of the option, if its name or its choices tell them: files, models.
[[nodiscard]] Candidates ValuesOf(const OptionSyntax& option, const std::vector<std::string>& models);

[[nodiscard]] std::vector<std::string> NamesOf(const std::vector<OptionSyntax>& options);

/// The words of a line up to the cursor; the last one is at the cursor, and may be empty.
[[nodiscard]] std::vector<std::string> WordsToCursor(const std::string& line, Special special);

/// Keeps the candidates that begin with the word, without the part of it in front of what the shell will replace.
/// @param replaced what the shell sees of the word, which it may also split, as in gain=1
[[nodiscard]] Candidates Matching(const Candidates& candidates, const Cursor& cursor, const std::string& replaced);

/// Prints what a shell's completion function reads: ":files" if files may be there, then each candidate that matches.
void PrintCandidates(const Candidates& candidates);

/// The hidden command of the programs: COMMAND LINE REPLACED, where the line is that of bash up to the cursor.
constexpr const char* completionCommand = "__complete";

} // namespace Common
