#pragma once

#include "Host/Camera.h"
#include "Host/Json.h"

#include <optional>
#include <string>

namespace Host {

/// All that is known of a function of a camera now.
struct FunctionState {
    Reading reading;
    Limits limits;
    std::optional<Value> defaultValue; ///< if the family publishes it; not of a report or a command
    Outcome limitsOutcome;             ///< how reading the limits ended
};

/// Reads it from the camera. No setting is written.
/// @throws ChannelLost
[[nodiscard]] FunctionState InspectFunction(const Camera& camera, const Instance& instance);

[[nodiscard]] bool HasValue(const Instance& instance, const FunctionState& state);

/// The state as DescribeState of the reading, or why there are no limits.
[[nodiscard]] std::string DescribeState(const Instance& instance, const FunctionState& state);

/// How the function is saved and restored, in words.
[[nodiscard]] const char* DescribeRestoring(const Function& function);

/// What the row and the camera say of a function. docs/host.md lists the members.
/// @param many for a row that stands for all its instances, of which only the first was inspected
[[nodiscard]] Json FunctionToJson(const Instance& instance, const FunctionState& state, bool many = false);

} // namespace Host
