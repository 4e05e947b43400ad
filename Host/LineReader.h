#pragma once

#include "Common/Completion.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Host {

/// Reads lines from standard input; from a terminal with a prompt, history and completion. Only one can exist at a
/// time.
class LineReader {
public:
    /// Returns what may be at the end of a line.
    /// @param replaced the part of the last word that is replaced; the completions do not have what is before it
    using Completer = std::function<Common::Candidates(const std::string& line, const std::string& replaced)>;

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
