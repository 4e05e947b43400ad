#pragma once

#include "Host/Errors.h"

#include <cstdint>
#include <functional>
#include <string>

namespace Host {

/// Runs an action and prints its exceptions.
/// @param failed the exit code for other errors than wrong usage and failure to open
/// @return the result of the action, or the exit code for its exception
int RunAndReport(const std::function<int()>& action, int failed = Refused);

/// Why a call of the plug-in failed.
enum class Cause {
    Any,
    NoSuchAddress, ///< the camera lacks the register, for example with another firmware
    NoControl,     ///< it writes (perhaps only an index) without control
};

/// How a call of the plug-in ended.
struct Outcome {
    std::int32_t code = 0; ///< 0 on success; an SDK4_ERR code; SDK4_ERR_ERROR for exceptions of the port
    std::string reason;    ///< the name of the code, or the message of the port
    Cause cause = Cause::Any;
};

/// Runs calls of the plug-in.
/// @throws ChannelLost, after which every call fails
[[nodiscard]] Outcome Attempt(const std::function<void()>& calls);

} // namespace Host
