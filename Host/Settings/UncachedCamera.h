#pragma once

#include "Host/Session.h"

namespace Host {

/// A separate, uncached control for the camera of a session. Do not set automatic modes through it if it must stay
/// uncached: switching one off makes an Orvik control cache the values that the mode owned.
class UncachedCamera {
public:
    explicit UncachedCamera(Session& session)
        : control(session.CreateControl(index)),
          camera(*control, session.Port(), session.Model()) {}

    [[nodiscard]] const Host::Camera& Camera() const { return camera; }

private:
    static constexpr std::int32_t index = 2; ///< uncached with both families

    Control control;
    Host::Camera camera;
};

} // namespace Host
