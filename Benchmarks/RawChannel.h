#pragma once

#include "Host/TracingPort.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct _ArvDevice; // Aravis' own names for what its headers would declare
struct _GError;

namespace Bench {

/// Whether an access moves one register by its value, not memory.
[[nodiscard]] bool IsOfRegister(const Host::Access& access);

/// A camera on the network as Aravis alone reaches it, with neither the plug-in nor the host's port.
class RawChannel {
public:
    /// Opens the camera and takes control of it. Nothing is broadcast.
    /// @param address an IPv4 address
    /// @throws std::runtime_error
    explicit RawChannel(const std::string& address);

    /// Makes the accesses that a port made, by register or by memory as the host's port does.
    /// @throws std::runtime_error when one fails
    void Make(const std::vector<Host::Access>& accesses);

    /// Makes them, too. @throws std::runtime_error when this camera does not answer what was answered to the port
    void RequireSameAnswers(const std::vector<Host::Access>& accesses);

private:
    struct Release {
        void operator()(_ArvDevice* opened) const;
    };

    void Make(const Host::Access& access);
    bool MoveRegister(const Host::Access& access, _GError** error);
    bool MoveMemory(const Host::Access& access, _GError** error);

    std::unique_ptr<_ArvDevice, Release> device;
    std::vector<std::uint8_t> moved; ///< by the last access
};

} // namespace Bench
