#pragma once

#include "Host/Camera.h"

#include <functional>

namespace Host {

/// Runs an action with the lock of a function released: sets the locking mode to a value that leaves the function open,
/// and restores it afterwards. The mode is also written if only the control takes the function as locked.
/// @throws X4Error if the lock cannot be released; what the action throws
void WhileUnlocked(const Camera& camera, const Instance& instance, const std::function<void()>& action);

} // namespace Host
