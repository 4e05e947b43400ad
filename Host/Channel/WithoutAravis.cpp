#include "Host/Channel/Discovery.h"
#include "Host/Channel/GigEConnection.h"
#include "Host/Errors.h"

// Replaces the sources that need Aravis if it is missing.

namespace Host {

namespace {

[[noreturn]] void Refuse() {
    throw OpenError(
        "this qdv12host was built without Aravis and can neither find nor control cameras on the network; install the "
        "Debian packages libaravis-dev and libusb-1.0-0-dev, then rebuild it");
}

} // namespace

std::unique_ptr<NetworkConnection> ConnectGigE(const std::string& /*address*/) { Refuse(); }

std::vector<FoundCamera> DiscoverCameras() { Refuse(); }

} // namespace Host
