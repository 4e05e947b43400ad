#pragma once

#include "Host/Function.h"
#include "Host/Plugin.h"
#include "Host/TracingPort.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Host {

// What calls cost and which registers they reach, found by making them on a simulated camera of the model.

/// The accesses of a call, and those of the same call repeated at once.
struct Calls {
    std::vector<Access> first;
    std::vector<Access> again;
};

/// The calls of a getter or a setter on new controls.
struct CallCosts {
    Calls uncached; ///< index 2
    Calls cached;
};

struct CallTrace {
    std::optional<CallCosts> get; ///< if there is a getter
    std::optional<CallCosts> set;
    std::vector<std::string_view> refreshers; ///< functions after whose setting a cached getter reads the camera again
    bool readWhileLocked = false;             ///< a cached getter reads the camera each time while the mode locks it

    /// The register of the function: the last one of a call, behind those that decide whether it may be made.
    [[nodiscard]] std::optional<std::uint32_t> Register() const;
};

/// Traces the calls of a function. What the library logs meanwhile is not of the host's camera, and is dropped.
/// @return nothing if no simulated camera of the model has the function
[[nodiscard]] std::optional<CallTrace> TraceCalls(const Plugin& plugin, const std::string& model,
                                                  const Instance& instance);

} // namespace Host
