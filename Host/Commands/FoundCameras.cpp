#include "Host/Commands/FoundCameras.h"

#include "Common/Text.h"
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

void PrintFound(Output& output, const Plugin& plugin, const FoundCamera& camera) {
    const bool served = plugin.Serves(camera.model);
    const bool reachable = Common::HasNeighbour(camera.ip);
    const std::string advice = "\n    no network card of this machine is in its subnet " +
                               Common::PrintSubnet(camera.ip) + ": qdv12host force-ip " + camera.mac +
                               " ADDRESS MASK moves it";
    output.Add(Describe(camera, served) + (reachable ? "" : advice),
               Json{{"address", camera.address},
                    {"mac", camera.mac},
                    {"model", TextToJson(camera.model)},
                    {"serial", TextToJson(camera.serial)},
                    {"userName", TextToJson(camera.userName)},
                    {"served", served},
                    {"subnetMask", Common::PrintAddress(camera.ip.subnetMask)},
                    {"gateway", Common::PrintAddress(camera.ip.gateway)},
                    {"reachable", reachable}});
}

} // namespace Host
