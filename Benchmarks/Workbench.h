#pragma once

#include "Tests/Support/FlatPort.h"
#include "Tests/Support/Plugin.h"

#include <SDK4/SDK4.h>

namespace Bench {

/// The plug-in, loaded as by a host, and cameras on ports in memory.
class Workbench {
public:
    Workbench();

    /// Reads everything that an Orvik camera caches, so that nothing is stale.
    static void ReadEverything(const Test::Camera& camera);

    static constexpr const char* orvikModel = "Orvik-31200C";
    static constexpr const char* m2vxModel = "Cerix7-MV";
    static constexpr SDK4_KAREA area{10, 10, 1000, 700};

    Test::Plugin plugin;
    Test::FlatPort orvikPort, m2vxPort;

    Test::Camera orvik;        ///< cached, with known limits of the readout area; `area` is within them
    Test::Camera orvikLoading; ///< cached; for settings loads, which make everything stale
    Test::Camera orvikReading; ///< uncached
    Test::Camera m2vx;         ///< cached
    Test::Camera m2vxReading;  ///< uncached

private:
    static Test::FlatPort& Orvik(Test::FlatPort& port);
    static Test::FlatPort& M2VX(Test::FlatPort& port);
    void ReadLimits();
};

} // namespace Bench
