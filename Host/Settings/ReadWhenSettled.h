#pragma once

#include "Host/Session.h"

#include <chrono>
#include <functional>

namespace Host {

/// Lets the time of a camera pass.
using Wait = std::function<void(std::chrono::milliseconds)>;
[[nodiscard]] Wait MakeWait(Session& session);

/// Reads a function. For an output, waits until it holds the expected value, at most the time that a motor needs for
/// its full travel.
[[nodiscard]] Reading ReadWhenSettled(const Camera& reader, const Instance& instance, const Value& expected,
                                      const Wait& wait);

} // namespace Host
