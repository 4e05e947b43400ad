#include "Host/Channel/GigEConnection.h"
#include "Host/Errors.h"

// Replaces the sources that need Aravis if it is missing.

namespace Host {

std::unique_ptr<NetworkConnection> ConnectGigE(const std::string& /*address*/) {
    throw OpenError("this qdv12host was built without Aravis and cannot control cameras on the network; install the "
                    "Debian packages libaravis-dev and libusb-1.0-0-dev, then rebuild it");
}

} // namespace Host
