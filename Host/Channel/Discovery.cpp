#include "Host/Channel/Discovery.h"

#include "Common/Bootstrap.h"
#include "Host/Channel/Broadcast.h"

#include <algorithm>
#include <cstdio>
#include <span>

namespace Host {

namespace Gvcp = Common::Gvcp;

namespace {

constexpr std::chrono::milliseconds discoveryTime{1000}; ///< the longest time that a camera may take
constexpr std::chrono::milliseconds repeatTime{300};     ///< a packet may be lost

/// A text of that size in memory.
std::string TextIn(const Gvcp::Bytes& memory, std::size_t at, std::size_t size) {
    const auto begin = memory.begin() + static_cast<std::ptrdiff_t>(at);
    return {begin, std::find(begin, begin + static_cast<std::ptrdiff_t>(size), 0)};
}

std::string MacIn(std::span<const std::uint8_t> memory) {
    char text[18];
    const auto octets = memory.subspan(Common::Bootstrap::macAddress + 2);
    std::snprintf(text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x", octets[0], octets[1], octets[2], octets[3],
                  octets[4], octets[5]);
    return text;
}

/// The answer is the memory of the camera, from address 0 to the end of its user-defined name.
FoundCamera CameraIn(const Gvcp::Bytes& memory) {
    using namespace Common::Bootstrap;
    const auto word = [&](std::size_t at) { return Gvcp::Get32(std::span(memory).subspan(at)); };
    const Common::IpConfiguration ip{word(currentAddress), word(currentSubnetMask), word(currentGateway)};
    return {Common::PrintAddress(ip.address),
            MacIn(memory),
            TextIn(memory, modelName, modelNameLength),
            TextIn(memory, serialNumber, serialNumberLength),
            TextIn(memory, userDefinedName, userDefinedNameLength),
            ip};
}

} // namespace

std::vector<FoundCamera> DiscoverCameras(const std::function<bool(const FoundCamera&)>& isEnough) {
    using Common::Bootstrap::userDefinedName;
    using Common::Bootstrap::userDefinedNameLength;
    Broadcast network;
    const auto begin = Broadcast::Clock::now();
    std::vector<FoundCamera> found;
    network.Send(Gvcp::Command::Discovery, {});
    bool isRepeated = false;
    for (;;) {
        const auto answer = network.Receive(begin + (isRepeated ? discoveryTime : repeatTime));
        if (!answer && isRepeated) {
            break;
        }
        if (!answer) {
            network.Repeat();
            isRepeated = true;
        } else if (answer->payload.size() >= userDefinedName + userDefinedNameLength) {
            FoundCamera camera = CameraIn(answer->payload);
            if (std::find(found.begin(), found.end(), camera) == found.end()) { // one may answer on several networks
                found.push_back(std::move(camera));
            }
            if (isEnough(found.back())) {
                break;
            }
        }
    }
    std::sort(found.begin(), found.end(),
              [](const FoundCamera& one, const FoundCamera& other) { return one.ip.address < other.ip.address; });
    return found;
}

} // namespace Host
