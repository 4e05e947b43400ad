#pragma once

#include "Host/Function.h"
#include "Host/Json.h"
#include "Host/Session.h"
#include "Host/Settings/ReadWhenSettled.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Host {

/// What became of a function that was set.
struct Assigned {
    Outcome failure;
    LockState lock;            ///< what locks the function, if it was refused
    std::optional<Value> held; ///< what the camera holds afterwards
    bool rounded = false;      ///< the camera rounded the value, as it may

    /// Whether the camera holds the value that was asked for, or rounded it.
    [[nodiscard]] bool IsAccepted(const Value& asked) const {
        return failure.code == 0 && (rounded || !held || *held == asked);
    }
};

/// Sets a function, unless a mode locks it.
/// @param camera sets it
/// @param reader reads what the camera holds, whatever the other control has cached
/// @throws ChannelLost
[[nodiscard]] Assigned AssignOne(const Camera& camera, const Camera& reader, const Wait& wait,
                                 const FunctionValue& assignment);

/// Why the camera does not hold the value as it was asked for, as one line; empty if it does.
[[nodiscard]] std::string DescribeProblem(const Camera& camera, const FunctionValue& assignment,
                                          const Assigned& result);

/// A result, as set --json prints it.
[[nodiscard]] Json ToJson(const FunctionValue& assignment, const Assigned& result);

/// Says on standard error what to know of a value that the camera now holds.
void Caution(const Connection& connection, const Instance& instance, const Value& held);

/// Sets functions in order, and prints on standard error what failed or was changed by the camera.
/// @param told called for each function, before its error is printed
/// @return whether something was refused
bool Assign(Session& session, const std::vector<FunctionValue>& assignments,
            const std::function<void(const FunctionValue&, const Assigned&)>& told);

} // namespace Host
