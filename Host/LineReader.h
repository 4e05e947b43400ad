#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Host {

/// Reads lines from standard input: from a terminal with a prompt, history and completion, from anything else plainly.
/// There is one at a time.
class LineReader {
public:
    /// What a word may be completed to.
    /// @param before what stands before it on its line
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
