#pragma once

#include "Host/Function.h"
#include "Host/Session.h"

#include <functional>
#include <optional>
#include <vector>

namespace Host {

/// What became of a function that was set.
struct Assigned {
    Outcome failure;
    std::string lockedBy;      ///< if that is the reason
    std::optional<Value> held; ///< by the camera, afterwards
    bool rounded = false;      ///< to what it holds, as it may
};

/// Sets functions in their order, and says on standard error what did not go as asked for.
/// @param told of each, before what went wrong is said
/// @return whether something was refused
bool Assign(Session& session, const std::vector<FunctionValue>& assignments,
            const std::function<void(const FunctionValue&, const Assigned&)>& told);

} // namespace Host
