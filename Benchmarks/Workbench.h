#pragma once

#include "Tests/Support/FlatPort.h"
#include "Tests/Support/Plugin.h"

#include <SDK4/SDK4.h>

namespace Bench {

/// The plug-in, loaded as a host loads it, and cameras on ports that answer from memory.
class Workbench {
public:
    Workbench();

    /// Reads everything that an Orvik camera remembers, so that nothing is stale.
    static void ReadEverything(const Test::Camera& camera);

    static constexpr const char* orvikModel = "Orvik-31200C";
    static constexpr const char* m2vxModel = "Cerix7-MV";
    static constexpr SDK4_KAREA area{10, 10, 1000, 700};

    Test::Plugin plugin;
    Test::FlatPort orvikPort, m2vxPort;

    Test::Camera orvik;        ///< remembers, and has read the limits of the readout area; `area` lies between them
    Test::Camera orvikLoading; ///< remembers; for settings loads, which make everything stale
    Test::Camera orvikReading; ///< reads its camera every time
    Test::Camera m2vx;         ///< remembers
    Test::Camera m2vxReading;  ///< reads its camera every time

private:
    static Test::FlatPort& Orvik(Test::FlatPort& port);
    static Test::FlatPort& M2VX(Test::FlatPort& port);
    void ReadLimits();
};

} // namespace Bench
