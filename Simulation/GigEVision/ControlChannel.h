#pragma once

#include "Common/Gvcp.h"
#include "Simulation/GigEVision/ChannelRegisters.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace Simulation::GigEVision {

using Common::Gvcp::Status;
using Time = std::chrono::steady_clock::time_point;

/// The source or destination of a datagram.
struct Endpoint {
    std::uint32_t address;
    std::uint16_t port;

    bool operator==(const Endpoint&) const = default;
};

/// Which application controls the device, and what others may do meanwhile. Control ends with the heartbeat timeout.
class ControlChannel {
public:
    explicit ControlChannel(ChannelRegisters& ofDevice) : registers(ofDevice) {}

    /// With control access, every application may read. With exclusive access, others may read only the privilege.
    [[nodiscard]] bool MayRead(const Endpoint& sender, std::uint32_t address, std::size_t length) const;
    [[nodiscard]] bool MayWrite(const Endpoint& sender) const { return controller == sender; }
    /// Handles a write of the control channel privilege: takes control, changes its kind, or releases it.
    [[nodiscard]] Status SetPrivilege(const Endpoint& sender, std::uint32_t privilege, Time now);
    void Release();

    [[nodiscard]] bool IsHeld() const { return controller.has_value(); }
    /// To be called for every valid request.
    void ResetHeartbeat(const Endpoint& sender, Time now);
    [[nodiscard]] bool IsExpired(Time now) const { return IsHeld() && now - lastRequest > registers.Heartbeat(); }

private:
    ChannelRegisters& registers;
    std::optional<Endpoint> controller;
    Time lastRequest{};
};

} // namespace Simulation::GigEVision
