#pragma once

#include "Host/Logging.h"
#include "Host/Session.h"
#include "Simulation/SimulatedCamera.h"

#include <SDK4/SDK4.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace Scenario {

/// The plug-in, loaded once for all tests, with logging off. An unconfigured log4cxx logs at debug level, at which the
/// control reads its network registers when it is opened.
inline const Host::Plugin& LoadedPlugin() {
    static const Host::Plugin plugin = [] {
        Host::ConfigureLogging("off");
        return Host::Plugin(QDV12_PLUGIN);
    }();
    return plugin;
}

/// An interface of an opened camera. Fails the test if the control does not have it.
template <typename Interface> Interface& As(const Host::Session& session) {
    return dynamic_cast<Interface&>(*session.As<IDynamicObject>());
}

/// The registers of a session's simulated camera.
inline Simulation::RegisterSpace& Registers(Host::Session& session) {
    return dynamic_cast<Host::SimulatedConnection&>(session.Connection()).Camera().Registers();
}

/// The error code of the call, or 0.
template <typename Call> std::int32_t CodeOf(const Call& call) {
    try {
        call();
        return 0;
    } catch (const SDK4::X4Error& error) {
        return error.code;
    }
}

/// The number of port accesses of the call.
template <typename Call> std::size_t CostOf(Host::Session& session, const Call& call) {
    (void)session.Port().Take();
    call();
    return session.Port().Take().size();
}

} // namespace Scenario
