#pragma once

#include "Host/Logging.h"
#include "Host/Session.h"
#include "Simulation/SimulatedCamera.h"

#include <SDK4/SDK4.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace Scenario {

/// The plug-in, loaded once for all tests, with logging off: an unconfigured log4cxx logs at debug level, and there
/// the control reads its network registers when it is opened.
inline const Host::Plugin& LoadedPlugin() {
    static const Host::Plugin plugin = [] {
        Host::ConfigureLogging("off");
        return Host::Plugin(QDV12_PLUGIN);
    }();
    return plugin;
}

/// The interface of an opened camera; the test fails if the control lacks it.
template <typename Interface> Interface& As(const Host::Session& session) {
    return dynamic_cast<Interface&>(*session.As<IDynamicObject>());
}

/// What the simulated camera of a session holds.
inline Simulation::RegisterSpace& Registers(Host::Session& session) {
    return dynamic_cast<Host::SimulatedConnection&>(session.Connection()).Camera().Registers();
}

/// The error code that the call ends with, 0 if it ends well.
template <typename Call> std::int32_t CodeOf(const Call& call) {
    try {
        call();
        return 0;
    } catch (const SDK4::X4Error& error) {
        return error.code;
    }
}

/// How many port accesses the call costs.
template <typename Call> std::size_t CostOf(Host::Session& session, const Call& call) {
    (void)session.Port().Take();
    call();
    return session.Port().Take().size();
}

} // namespace Scenario
