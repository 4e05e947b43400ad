#pragma once

#include "Tests/Scenario/HostProcess.h"

#include "Host/Commands/Commands.h"
#include "Host/ErrorReporting.h"
#include "Host/Logging.h"

#include <functional>
#include <iostream>
#include <sstream>

namespace Scenario {

/// Called after each port access. If it throws, the access fails.
using Observer = std::function<void(const Host::Access&)>;

/// Runs a command of the host in this process, on a simulated camera, which a state file keeps if one is given.
inline Outcome RunInProcess(int (*command)(const Host::Invocation&), const Host::Invocation::Given& given,
                            const Observer& observer, const std::string& state = "", bool json = false) {
    Host::ConfigureLogging("off");
    Host::Options options;
    options.plugin = QDV12_PLUGIN;
    options.json = json;
    options.camera.accesses = observer;
    options.camera.simulation.state = state;
    std::ostringstream out;
    std::ostringstream err;
    std::streambuf* const usualOut = std::cout.rdbuf(out.rdbuf());
    std::streambuf* const usualErr = std::cerr.rdbuf(err.rdbuf());
    Host::Program program(options);
    const int code = Host::RunAndReport([&] { return command(Host::Invocation(program, given)); });
    program.Finish();
    std::cout.rdbuf(usualOut);
    std::cerr.rdbuf(usualErr);
    return {code, out.str(), err.str()};
}

} // namespace Scenario
