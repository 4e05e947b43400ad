#pragma once

#include "Session.h"
#include "Settings.h"

#include <vector>

namespace Host {

/// What an open camera is set to.
struct LiveSettings {
    Settings settings;
    std::vector<Instance> missing; ///< what can be read only with control, which another program has

    [[nodiscard]] bool Misses(const Instance& instance) const;
};

/// Reads them from the camera, and tells on standard error what is missing.
/// @throw std::runtime_error for what cannot be read although there is control
[[nodiscard]] LiveSettings TakeLiveSettings(Session& session);

} // namespace Host
