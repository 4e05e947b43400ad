#pragma once

#include "Host/Session.h"

namespace Host {

/// A control of its own for the camera of a session, with which every value is read from the camera. It stays so as
/// long as nothing is set through it: an Orvik control through which an automatic mode is switched off caches from then
/// on what that mode moved, whatever its index.
class UncachedCamera {
public:
    explicit UncachedCamera(Session& session)
        : control(session.CreateControl(index)),
          camera(*control, session.Model()) {}

    [[nodiscard]] const Host::Camera& Camera() const { return camera; }

private:
    static constexpr std::int32_t index = 2; ///< asks for that, of either family

    Control control;
    Host::Camera camera;
};

} // namespace Host
