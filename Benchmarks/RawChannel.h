#pragma once

#include "Host/TracingPort.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct _ArvDevice; // declared here to avoid the headers of Aravis
struct _GError;

namespace Bench {

/// Whether an access is a register access rather than a memory access.
[[nodiscard]] bool IsOfRegister(const Host::Access& access);

/// A camera on the network, accessed by Aravis alone, without the plug-in and the host's port.
class RawChannel {
public:
    /// Opens the camera and takes control of it, without discovery.
    /// @param address an IPv4 address
    /// @throws std::runtime_error
    explicit RawChannel(const std::string& address);

    /// Repeats the accesses of a port, by register or memory as the host's port does.
    /// @throws std::runtime_error if one fails
    void Make(const std::vector<Host::Access>& accesses);

    /// The same. @throws std::runtime_error if this camera's answers differ from those recorded
    void RequireSameAnswers(const std::vector<Host::Access>& accesses);

private:
    struct Release {
        void operator()(_ArvDevice* opened) const;
    };

    void Make(const Host::Access& access);
    bool MoveRegister(const Host::Access& access, _GError** error);
    bool MoveMemory(const Host::Access& access, _GError** error);

    std::unique_ptr<_ArvDevice, Release> device;
    std::vector<std::uint8_t> moved; ///< data of the last access
};

} // namespace Bench
