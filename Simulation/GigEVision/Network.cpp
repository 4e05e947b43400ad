#include "Simulation/GigEVision/Network.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <netinet/in.h>

#include <cstring>
#include <memory>

namespace Simulation::GigEVision {

namespace {

std::uint32_t AddressIn(const sockaddr* address) {
    sockaddr_in internet{};
    std::memcpy(&internet, address, sizeof internet);
    return ntohl(internet.sin_addr.s_addr);
}

} // namespace

std::uint32_t MaskOf(std::uint32_t address) {
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0) {
        return 0xFFFFFFFF;
    }
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> list(first, &freeifaddrs);
    std::uint32_t found = 0;
    for (const ifaddrs* entry = first; entry != nullptr; entry = entry->ifa_next) {
        if (entry->ifa_addr == nullptr || entry->ifa_netmask == nullptr || entry->ifa_addr->sa_family != AF_INET) {
            continue;
        }
        const std::uint32_t own = AddressIn(entry->ifa_addr);
        const std::uint32_t mask = AddressIn(entry->ifa_netmask);
        if (own == address) {
            return mask;
        }
        if (((own ^ address) & mask) == 0 && mask > found) { // all of 127.0.0.0/8 is this machine's, for one
            found = mask;
        }
    }
    return found == 0 ? 0xFFFFFFFF : found;
}

} // namespace Simulation::GigEVision
