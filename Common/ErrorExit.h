#pragma once

#include <stdexcept>
#include <string>

namespace Common {

/// Exit codes of the programs.
enum ExitCode {
    Success = 0,
    Refused = 1,     ///< the camera or the library refused
    Differs = 1,     ///< a comparison found differences
    NotCompared = 2, ///< a comparison failed for any reason
    WrongUsage = 2,  ///< invalid command line, unknown function, invalid value
    NotOpened = 3,   ///< the plug-in, camera, address or file could not be opened; unknown model
};

/// The user's input is invalid.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// One line on standard error: "qdv12host: gain: SDK4_ERR_OUTOFRANGE".
void PrintError(const std::string& program, const std::string& text);

/// The exit code of a program that did its work but lost a result.
/// @param code the exit code otherwise
/// @param failed that of a failure
[[nodiscard]] int Worse(int code, int failed);

/// Flushes the results at the end of a program, and fails if they cannot be written, for example to a full disk.
/// @param code the exit code if they can be written
/// @param failed the exit code if they cannot
[[nodiscard]] int FlushResults(const std::string& program, int code, int failed);

} // namespace Common
