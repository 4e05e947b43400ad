#pragma once

#include "Common/Ipv4.h"

#include <functional>
#include <string>
#include <vector>

namespace Host {

/// A camera that answered a discovery.
struct FoundCamera {
    std::string address;
    std::string mac;
    std::string model;
    std::string serial;
    std::string userName;
    Common::IpConfiguration ip{};

    bool operator==(const FoundCamera& other) const { return address == other.address && mac == other.mac; }
};

/// Discovers the GigE Vision cameras on every network of this machine, also those in other subnets, for a second. Takes
/// control of none. They are sorted by address.
/// @param isEnough ends it early, at a camera for which it returns true
[[nodiscard]] std::vector<FoundCamera> DiscoverCameras(const std::function<bool(const FoundCamera&)>& isEnough =
                                                           [](const FoundCamera&) { return false; });

} // namespace Host
