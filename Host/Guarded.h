#pragma once

#include <functional>

namespace Host {

/// Runs an action and reports what it throws.
/// @return what the action returns, or the ExitCode that belongs to what it throws
int Guarded(const std::function<int()>& action);

} // namespace Host
