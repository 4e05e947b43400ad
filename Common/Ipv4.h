#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Common {

// Addresses of IPv4, as numbers: 0xC0A8010A for 192.168.1.10.

/// @return nothing for an invalid address
[[nodiscard]] std::optional<std::uint32_t> ParseAddress(const std::string& text);
[[nodiscard]] std::string PrintAddress(std::uint32_t address);

/// How a host takes part in a network.
struct IpConfiguration {
    std::uint32_t address = 0;
    std::uint32_t subnetMask = 0;
    std::uint32_t gateway = 0; ///< 0: none
};

/// Parses the texts of an address, a mask and a gateway.
/// @return nothing if one is invalid
[[nodiscard]] std::optional<IpConfiguration> ParseConfiguration(const std::string& address, const std::string& mask,
                                                                const std::string& gateway);
/// "192.168.1.0, mask 255.255.255.0"
[[nodiscard]] std::string PrintSubnet(const IpConfiguration& host);
/// Why no host can have that configuration; empty if one can.
[[nodiscard]] std::string WhyUnusable(const IpConfiguration& host);
/// Whether two hosts reach each other without a router: each is in the subnet of the other.
[[nodiscard]] bool AreNeighbours(const IpConfiguration& one, const IpConfiguration& other);

/// A network interface of this machine that has an IPv4 address.
struct NetworkInterface {
    unsigned int flags; ///< as in net/if.h
    std::uint32_t address;
    std::uint32_t subnetMask;
};

/// @throws std::system_error
[[nodiscard]] std::vector<NetworkInterface> NetworkInterfaces();
/// Whether this machine reaches the host without a router.
/// @throws std::system_error
[[nodiscard]] bool HasNeighbour(const IpConfiguration& host);

} // namespace Common
