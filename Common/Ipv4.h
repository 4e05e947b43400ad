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

/// A network interface of this machine that has an IPv4 address.
struct NetworkInterface {
    unsigned int flags; ///< as in net/if.h
    std::uint32_t address;
    std::uint32_t subnetMask;
};

/// @throws std::system_error
[[nodiscard]] std::vector<NetworkInterface> NetworkInterfaces();

} // namespace Common
