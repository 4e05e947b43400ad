#pragma once

#include <string>
#include <vector>

namespace Host {

/// A camera that answered a discovery.
struct FoundCamera {
    std::string address;
    std::string mac;
    std::string model;
    std::string serial;
    std::string userName; ///< empty if it cannot be read
};

/// Discovers the GigE Vision cameras on every network of this machine. Takes control of none.
/// @throws OpenError if this program was built without Aravis
[[nodiscard]] std::vector<FoundCamera> DiscoverCameras();

} // namespace Host
