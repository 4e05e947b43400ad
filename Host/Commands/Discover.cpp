#include "Host/Commands/Commands.h"

#include "Common/Text.h"
#include "Host/Channel/Datagrams.h"
#include "Host/Channel/Discovery.h"
#include "Host/Describe.h"
#include "Host/Format.h"

namespace Host {

namespace {

std::string Describe(const FoundCamera& camera, bool served) {
    const auto column = [](const std::string& text, std::size_t width) {
        return Pad(Common::Escaped(text) + ' ', width);
    };
    std::string line = column(camera.address, 17) + column(camera.mac, 19) + column(camera.model, 16) +
                       column(camera.serial, 16) + column(camera.userName, 16) + (served ? "" : "(not served)");
    return line.erase(line.find_last_not_of(' ') + 1);
}

} // namespace

int Discover(const Invocation& invocation) {
    const Plugin& plugin = invocation.Program().LoadedPlugin();
    const auto found = DiscoverCameras();
    Output output = invocation.Output();
    for (const FoundCamera& camera : found) {
        const bool served = plugin.Serves(camera.model);
        output.Add(Describe(camera, served), Json{{"address", camera.address},
                                                  {"mac", camera.mac},
                                                  {"model", TextToJson(camera.model)},
                                                  {"serial", TextToJson(camera.serial)},
                                                  {"userName", TextToJson(camera.userName)},
                                                  {"served", served}});
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
