#pragma once

#include "Common/Completion.h"
#include "Host/Command.h"

#include <string>
#include <vector>

namespace Host {

/// A parsed command line.
struct ParsedCommandLine {
    const Command* command = nullptr; ///< null if help was requested and printed
    Invocation::Given given;
    Options options;
};

/// Parses the arguments of the program, and prints help on request.
/// @throws UsageError for invalid arguments
[[nodiscard]] ParsedCommandLine ParseCommandLine(std::vector<std::string> arguments);

/// Parses a line of the shell: a command without CAMERA; --json is the only common option.
/// @throws UsageError as above
[[nodiscard]] ParsedCommandLine ParseShellLine(std::vector<std::string> arguments);

constexpr const char* anyCommand = "*";

/// The options that a command takes, those of every command included; of the program, if it is none.
[[nodiscard]] std::vector<Common::OptionSyntax> OptionsOf(const std::string& command, bool inShell);

} // namespace Host
