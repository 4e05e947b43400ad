#pragma once

#include <stdexcept>
#include <string>

namespace Common {

/// How a program ends.
enum ExitCode {
    Success = 0,
    Refused = 1,     ///< the camera or the library refused
    Differs = 1,     ///< of a comparison, ...
    NotCompared = 2, ///< ... of which everything that fails is told apart from that
    WrongUsage = 2,  ///< of the command line; an unknown function, an unreadable value
    NotOpened = 3,   ///< the plug-in or the camera, an address or a file; an unknown model
};

/// What is wrong with what the user asked for, in words.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// One line on standard error: "qdv12host: gain: SDK4_ERR_OUTOFRANGE".
void PrintError(const std::string& program, const std::string& text);

/// Writes what is left of a program's results, at its end. Results that could not be written are no success: a disk is
/// full, for one.
/// @param code   the exit code of the program otherwise
/// @param failed the exit code where they could not be written
[[nodiscard]] int FlushResults(const std::string& program, int code, int failed);

} // namespace Common
