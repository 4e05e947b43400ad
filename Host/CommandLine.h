#pragma once

#include "Host/Command.h"

#include <string>
#include <vector>

namespace Host {

/// A command line that was understood.
struct ParsedCommandLine {
    const Command* command = nullptr; ///< null when only help was asked for, which is printed then
    Invocation::Given given;
    Options options;
};

/// Reads the arguments of the program, and prints its help if they ask for it.
/// @throws UsageError for what is wrong with them
[[nodiscard]] ParsedCommandLine ParseCommandLine(std::vector<std::string> arguments);

/// Reads a line of a shell: a command without CAMERA, and of the common options --json alone.
/// @throws UsageError as above
[[nodiscard]] ParsedCommandLine ParseShellLine(std::vector<std::string> arguments);

} // namespace Host
