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

/// The exit code of a program whose results could be written; what nobody gets to see is no success: a disk is full,
/// for one.
/// @param failed the exit code where they could not
[[nodiscard]] int AsWritten(const std::string& program, int code, int failed);

} // namespace Common
