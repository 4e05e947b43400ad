#include "Common/Ipv4.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <system_error>

namespace Common {

namespace {

std::uint32_t AddressIn(const sockaddr* address) {
    sockaddr_in internet{};
    std::memcpy(&internet, address, sizeof internet);
    return ntohl(internet.sin_addr.s_addr);
}

bool AreInOneSubnet(std::uint32_t one, std::uint32_t other, std::uint32_t mask) { return ((one ^ other) & mask) == 0; }

/// Empty if it is the address of a host.
std::string WhyNoHost(std::uint32_t address, std::uint32_t mask) {
    const std::uint32_t firstMulticast = 0xE0000000;
    const bool isUnicast = address >> 24 != 0 && address < firstMulticast;
    const std::uint32_t inSubnet = address & ~mask;
    const char* const why = !isUnicast          ? " is not the address of a host"
                            : inSubnet == 0     ? " is the address of the subnet itself"
                            : inSubnet == ~mask ? " is the broadcast address of its subnet"
                                                : "";
    return *why == '\0' ? "" : PrintAddress(address) + why;
}

} // namespace

std::optional<std::uint32_t> ParseAddress(const std::string& text) {
    in_addr parsed{};
    return inet_pton(AF_INET, text.c_str(), &parsed) == 1 ? std::optional(ntohl(parsed.s_addr)) : std::nullopt;
}

std::string PrintAddress(std::uint32_t address) {
    const in_addr network{htonl(address)};
    char text[INET_ADDRSTRLEN];
    return inet_ntop(AF_INET, &network, text, sizeof text);
}

std::optional<IpConfiguration> ParseConfiguration(const std::string& address, const std::string& mask,
                                                  const std::string& gateway) {
    const auto parsed = ParseAddress(address);
    const auto parsedMask = ParseAddress(mask);
    const auto parsedGateway = ParseAddress(gateway);
    return parsed && parsedMask && parsedGateway ? std::optional(IpConfiguration{*parsed, *parsedMask, *parsedGateway})
                                                 : std::nullopt;
}

std::string PrintSubnet(const IpConfiguration& host) {
    return PrintAddress(host.address & host.subnetMask) + ", mask " + PrintAddress(host.subnetMask);
}

std::string WhyUnusable(const IpConfiguration& host) {
    const std::uint32_t inSubnet = ~host.subnetMask;
    if (host.subnetMask == 0 || (inSubnet & (inSubnet + 1)) != 0) { // it must be ones followed by zeros
        return PrintAddress(host.subnetMask) + " is not a subnet mask";
    }
    if (std::string why = WhyNoHost(host.address, host.subnetMask); !why.empty() || host.gateway == 0) {
        return why;
    }
    const std::string gateway = "the gateway " + PrintAddress(host.gateway);
    if (!AreInOneSubnet(host.address, host.gateway, host.subnetMask)) {
        return gateway + " is not in the subnet " + PrintSubnet(host) + "; give 0.0.0.0 for none";
    }
    if (host.address == host.gateway) {
        return gateway + " is the address itself; give 0.0.0.0 for none";
    }
    return WhyNoHost(host.gateway, host.subnetMask);
}

bool AreNeighbours(const IpConfiguration& one, const IpConfiguration& other) {
    return AreInOneSubnet(one.address, other.address, one.subnetMask) &&
           AreInOneSubnet(one.address, other.address, other.subnetMask);
}

bool HasNeighbour(const IpConfiguration& host) {
    const auto cards = NetworkInterfaces();
    return std::any_of(cards.begin(), cards.end(), [&](const NetworkInterface& card) {
        return (card.flags & IFF_UP) != 0 && AreNeighbours({card.address, card.subnetMask}, host);
    });
}

std::vector<NetworkInterface> NetworkInterfaces() {
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0) {
        throw std::system_error(errno, std::generic_category(), "the network interfaces cannot be listed");
    }
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> list(first, &freeifaddrs);
    std::vector<NetworkInterface> found;
    for (const ifaddrs* entry = first; entry != nullptr; entry = entry->ifa_next) {
        if (entry->ifa_addr != nullptr && entry->ifa_netmask != nullptr && entry->ifa_addr->sa_family == AF_INET) {
            found.push_back({entry->ifa_flags, AddressIn(entry->ifa_addr), AddressIn(entry->ifa_netmask)});
        }
    }
    return found;
}

} // namespace Common
