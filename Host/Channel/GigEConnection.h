#pragma once

#include "Host/Connection.h"

#include <memory>
#include <string>

namespace Host {

/// A camera on the network.
class NetworkConnection : public Connection {
public:
    [[nodiscard]] bool IsOnNetwork() const final { return true; }
    /// The model name that the camera reports. @throws ChannelError
    [[nodiscard]] virtual std::string ModelName() = 0;
};

/// Opens the control channel of the GigE Vision camera at an IPv4 address.
/// @throws OpenError, also if this program was built without Aravis
[[nodiscard]] std::unique_ptr<NetworkConnection> ConnectGigE(const std::string& address);

/// Opens the same camera to read from it only. It takes no control, writes nothing, and needs no Aravis.
/// @throws OpenError
[[nodiscard]] std::unique_ptr<NetworkConnection> ConnectReadOnly(const std::string& address);

} // namespace Host
