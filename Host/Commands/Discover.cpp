#include "Host/Commands/Commands.h"

#include "Host/Channel/Datagrams.h"
#include "Host/Commands/FoundCameras.h"

namespace Host {

int Discover(const Invocation& invocation) {
    const Plugin& plugin = invocation.Program().LoadedPlugin();
    const auto found = DiscoverCameras();
    Output output = invocation.Output();
    for (const FoundCamera& camera : found) {
        PrintFound(output, plugin, camera);
    }
    const bool unreachable = found.empty() && !HasNetworkInterface();
    output.Line(found.empty() && !unreachable ? "no cameras found" : "");
    output.End();
    if (unreachable) {
        PrintError("no network interface with an IPv4 address is up, except loopback");
        return Refused;
    }
    return Success;
}

} // namespace Host
