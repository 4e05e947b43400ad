#pragma once

#include "Host/Errors.h"

#include <cstdint>
#include <functional>
#include <string>

namespace Host {

/// Runs an action and reports what it throws.
/// @param failed the ExitCode that belongs to what is neither wrong usage nor a camera that could not be opened
/// @return what the action returns, or the ExitCode that belongs to what it throws
int RunAndReport(const std::function<int()>& action, int failed = Refused);

/// Why a call of the plug-in failed.
enum class Cause {
    Any,
    NoSuchAddress, ///< the camera has no such register: it is of another firmware
    NoControl,     ///< it writes, if only an index, while another program has control
};

/// How a call of the plug-in ended.
struct Outcome {
    std::int32_t code = 0; ///< 0: well; else of its refusal; SDK4_ERR_ERROR for what the port said, which has no code
    std::string reason;    ///< the name of the code, or what the port said
    Cause cause = Cause::Any;
};

/// Runs calls of the plug-in.
/// @throws ChannelLost, after which no call can do anything
[[nodiscard]] Outcome Attempt(const std::function<void()>& calls);

} // namespace Host
