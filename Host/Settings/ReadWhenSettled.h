#pragma once

#include "Host/Session.h"

#include <chrono>
#include <functional>

namespace Host {

/// Lets the time of a camera pass.
using Wait = std::function<void(std::chrono::milliseconds)>;
[[nodiscard]] Wait MakeWait(Session& session);

/// What a function holds; of one that reaches what is wired to the camera, once it has arrived there, or does not get
/// there in the time that a motor needs from one end to the other.
[[nodiscard]] Reading ReadWhenSettled(const Camera& reader, const Instance& instance, const Value& expected,
                                      const Wait& wait);

} // namespace Host
