#pragma once

#include "Host/Camera.h"

#include <functional>

namespace Host {

/// Carries out an action on a function that another one may keep from being set: that one is given a value that leaves
/// it open, and what it held afterwards. Written also when it is open already, if the control has to learn of that.
/// @throws X4Error if it cannot be opened; what the action throws
void WhileUnlocked(const Camera& camera, const Instance& instance, const std::function<void()>& action);

} // namespace Host
