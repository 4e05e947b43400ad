#pragma once

#include <stdexcept>

namespace Host {

/// How the program ends.
enum ExitCode {
    Success = 0,
    Refused = 1,     ///< the camera or the library refused
    Differs = 1,     ///< of a comparison, ...
    NotCompared = 2, ///< ... of which everything that fails is told apart from that
    WrongUsage = 2,  ///< of the command line; an unknown function, an unreadable value
    NotOpened = 3,   ///< the plug-in or the camera; an unknown model
};

/// Why the plug-in or a camera could not be opened, in words for the user.
struct OpenError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What is wrong with what the user asked for, in words.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace Host
