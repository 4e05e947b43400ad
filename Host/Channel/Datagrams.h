#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Host {

// Network requests without Aravis. Addresses are IPv4.

/// Whether discovery reaches a network: an interface is up, has an IPv4 address, and is neither loopback nor a
/// point-to-point link, which Aravis ignores.
[[nodiscard]] bool HasNetworkInterface();

/// The local address used to send to an address. Sends nothing.
/// @throws OpenError if it cannot be reached
[[nodiscard]] std::string LocalAddressFor(const std::string& address);

/// Reads a text from a camera's memory without taking control. Returns nothing if the camera does not answer.
/// @param length a multiple of 4, at most 536
[[nodiscard]] std::optional<std::string> ReadTextWithoutControl(const std::string& camera, std::uint32_t memory,
                                                                std::uint16_t length);

} // namespace Host
