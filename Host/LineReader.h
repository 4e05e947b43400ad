#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Host {

/// Reads lines from standard input; from a terminal with a prompt, history and completion. Only one can exist at a
/// time.
class LineReader {
public:
    /// Returns the completions of a word.
    /// @param before the part of the line before it
    using Completer = std::function<std::vector<std::string>(const std::string& before)>;

    LineReader(std::string promptText, Completer completer);
    ~LineReader();
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    [[nodiscard]] bool IsTerminal() const { return terminal; }

    /// @return nothing at the end of the input
    [[nodiscard]] std::optional<std::string> Next();

private:
    std::string prompt;
    bool terminal;
};

} // namespace Host
