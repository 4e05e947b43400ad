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
    std::string userName; ///< empty also if it cannot be read
};

/// Asks on every network of this machine which GigE Vision cameras there are. Takes control of none.
/// @throws OpenError if this program was built without Aravis
[[nodiscard]] std::vector<FoundCamera> DiscoverCameras();

} // namespace Host
