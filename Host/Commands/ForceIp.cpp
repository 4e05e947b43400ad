#include "Host/Commands/Commands.h"

#include "Common/Number.h"
#include "Common/Text.h"
#include "Host/CameraName.h"
#include "Host/Channel/Broadcast.h"
#include "Host/Channel/Busy.h"
#include "Host/Channel/Requests.h"
#include "Host/Commands/FoundCameras.h"

#include <net/if.h>

#include <algorithm>

namespace Host {

namespace {

namespace Gvcp = Common::Gvcp;

constexpr int forceAttempts = 3;
constexpr std::chrono::milliseconds forceTimeout{300}; ///< to wait for an acknowledge
constexpr int discoveryAttempts = 5;                   ///< of a second each, after an acknowledge

/// The camera, and where to move it.
struct Wanted {
    std::string mac;
    Common::IpConfiguration ip;
};

/// "192.168.1.2, mask 255.255.255.0; 10.0.0.1, mask 255.0.0.0"
std::string DescribeCards() {
    std::vector<std::string> cards;
    for (const Common::NetworkInterface& each : Common::NetworkInterfaces()) {
        if ((each.flags & (IFF_UP | IFF_LOOPBACK)) == IFF_UP) {
            cards.push_back(Common::PrintAddress(each.address) + ", mask " + Common::PrintAddress(each.subnetMask));
        }
    }
    return cards.empty() ? "it has none with an address" : "it has " + Common::Join(cards, "; ");
}

Wanted ParseWanted(const Invocation& invocation) {
    const std::string gateway = invocation.Text(Parameter::Gateway);
    const std::string text = invocation.Text(Parameter::Mac);
    const auto mac = ParseMac(text);
    if (!mac) {
        throw UsageError("invalid MAC address \"" + text + "\", such as 02:00:12:07:07:10");
    }
    const std::string parts[] = {invocation.Text(Parameter::Address), invocation.Text(Parameter::Mask),
                                 gateway.empty() ? "0.0.0.0" : gateway};
    for (const std::string& part : parts) {
        if (!Common::ParseAddress(part)) {
            throw UsageError("invalid IPv4 address \"" + part + '"');
        }
    }
    Wanted wanted{*mac, Common::ParseConfiguration(parts[0], parts[1], parts[2]).value()};
    if (const std::string why = Common::WhyUnusable(wanted.ip); !why.empty()) {
        throw UsageError(why);
    }
    if (!Common::HasNeighbour(wanted.ip)) {
        throw UsageError("no network card of this machine is in the subnet " + Common::PrintSubnet(wanted.ip) +
                         ", so that the camera could not be reached: " + DescribeCards());
    }
    return wanted;
}

bool IsOfThisMachine(std::uint32_t address) {
    const auto cards = Common::NetworkInterfaces();
    return std::any_of(cards.begin(), cards.end(), [&](const auto& card) { return card.address == address; });
}

/// A simulated camera takes an address of this machine. Any other camera must not.
/// @param camera null if it was not found
void RequireFree(const Wanted& wanted, const std::vector<FoundCamera>& found, const FoundCamera* camera) {
    const std::string address = Common::PrintAddress(wanted.ip.address);
    for (const FoundCamera& each : found) {
        if (each.ip.address == wanted.ip.address && each.mac != wanted.mac) {
            throw UsageError(address + " is the address of another camera, " + each.mac);
        }
    }
    const bool isSimulated = camera != nullptr && IsOfThisMachine(camera->ip.address);
    if (IsOfThisMachine(wanted.ip.address) && !isSimulated) {
        throw UsageError(address + " is an address of this machine");
    }
}

/// The number of a valid MAC address.
std::uint64_t NumberOf(const std::string& mac) {
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < mac.size(); i += 3) {
        number = number << 8 | Common::ParseWhole<std::uint8_t>(mac.substr(i, 2), 16).value_or(0);
    }
    return number;
}

/// Sends the request until it is acknowledged.
/// @return nothing without acknowledge
std::optional<Gvcp::Status> ForceOnce(Broadcast& network, const Gvcp::Bytes& forced) {
    network.Send(Gvcp::Command::ForceIp, forced);
    for (int attempt = 0; attempt < forceAttempts; ++attempt) {
        if (attempt > 0) {
            network.Repeat();
        }
        if (const auto answer = network.Receive(Broadcast::Clock::now() + forceTimeout)) {
            return answer->status;
        }
    }
    return std::nullopt;
}

std::optional<Gvcp::Status> Force(const Wanted& wanted) {
    const Gvcp::Bytes forced = Gvcp::MakeForcedIp({NumberOf(wanted.mac), wanted.ip});
    Broadcast network;
    return RetryWhileBusy([&] { return ForceOnce(network, forced); },
                          [](const auto& status) { return status == Gvcp::Status::Busy; });
}

const FoundCamera* FindMac(const std::vector<FoundCamera>& found, const std::string& mac) {
    const auto camera = std::find_if(found.begin(), found.end(), [&](const auto& each) { return each.mac == mac; });
    return camera == found.end() ? nullptr : &*camera;
}

/// Discovers the camera until it is where it shall be.
/// @return where it was found last; nothing if it never was
std::optional<FoundCamera> Await(const Wanted& wanted, int attempts) {
    const auto isThere = [&](const FoundCamera& camera) {
        return camera.mac == wanted.mac && camera.ip.address == wanted.ip.address;
    };
    std::optional<FoundCamera> last;
    for (int attempt = 0; attempt < attempts && !(last && isThere(*last)); ++attempt) {
        const auto found = DiscoverCameras(isThere);
        const auto there = std::find_if(found.begin(), found.end(), isThere);
        const FoundCamera* const camera = there == found.end() ? FindMac(found, wanted.mac) : &*there;
        last = camera == nullptr ? last : std::optional(*camera);
    }
    return last;
}

} // namespace

int ForceIp(const Invocation& invocation) {
    const Wanted wanted = ParseWanted(invocation);
    const Plugin& plugin = invocation.Program().LoadedPlugin();
    const auto found = DiscoverCameras();
    const FoundCamera* const before = FindMac(found, wanted.mac);
    RequireFree(wanted, found, before);
    const std::string name = "the camera " + wanted.mac + (before == nullptr ? "" : " at " + before->address);
    const auto status = Force(wanted); // to all, since a camera that was not found may obey nevertheless
    if (status == Gvcp::Status::AccessDenied) {
        throw OpenError(name + " is controlled by another program, and keeps its address meanwhile");
    }
    if (status && *status != Gvcp::Status::Success) {
        throw std::runtime_error(name + " refused the address: " + DescribeStatus(*status));
    }
    const auto now = Await(wanted, status ? discoveryAttempts : 1);
    if (!now && before == nullptr) {
        throw OpenError("no camera with the MAC address " + wanted.mac + " answered; qdv12host discover lists those " +
                        "that do");
    }
    if (!now) {
        throw std::runtime_error(name + " no longer answers; after its next start it has its former address");
    }
    if (now->ip.address != wanted.ip.address) {
        throw std::runtime_error(name +
                                 (status ? " accepted the address, but is still at " : " ignored the address: ") +
                                 (status ? now->address : "does another program control it?"));
    }
    Output output = invocation.Output();
    PrintFound(output, plugin, *now);
    output.End();
    return Success;
}

} // namespace Host
