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
    LockState lock;            ///< what locks the function, if it was refused
    std::optional<Value> held; ///< what the camera holds afterwards
    bool rounded = false;      ///< the camera rounded the value, as it may
};

/// Says on standard error what to know of a value that the camera now holds.
void Caution(const Connection& connection, const Instance& instance, const Value& held);

/// Sets functions in order, and prints on standard error what failed or was changed by the camera.
/// @param told called for each function, before its error is printed
/// @return whether something was refused
bool Assign(Session& session, const std::vector<FunctionValue>& assignments,
            const std::function<void(const FunctionValue&, const Assigned&)>& told);

} // namespace Host
