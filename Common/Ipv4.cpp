#include "Common/Ipv4.h"

#include <arpa/inet.h>
#include <ifaddrs.h>

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
