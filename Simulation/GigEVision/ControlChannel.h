#pragma once

#include "Common/Gvcp.h"
#include "Simulation/GigEVision/ChannelRegisters.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace Simulation::GigEVision {

using Common::Gvcp::Status;
using Time = std::chrono::steady_clock::time_point;

/// Where a datagram comes from or goes to.
struct Endpoint {
    std::uint32_t address;
    std::uint16_t port;

    bool operator==(const Endpoint&) const = default;
};

/// Which application controls the device, and what others may do meanwhile. Control that is not renewed ends with the
/// heartbeat time-out.
class ControlChannel {
public:
    explicit ControlChannel(ChannelRegisters& ofDevice) : registers(ofDevice) {}

    /// Under control of one application all may read, under its exclusive control nothing but who has it.
    [[nodiscard]] bool MayRead(const Endpoint& sender, std::uint32_t address, std::size_t length) const;
    [[nodiscard]] bool MayWrite(const Endpoint& sender) const { return controller == sender; }
    /// What a write of the control channel privilege does: takes control, changes its kind, or gives it back.
    [[nodiscard]] Status SetPrivilege(const Endpoint& sender, std::uint32_t privilege, Time now);
    void Release();

    [[nodiscard]] bool IsHeld() const { return controller.has_value(); }
    /// Any valid request of the controller shows that it is alive.
    void ResetHeartbeat(const Endpoint& sender, Time now);
    [[nodiscard]] bool IsExpired(Time now) const { return IsHeld() && now - lastRequest > registers.Heartbeat(); }

private:
    ChannelRegisters& registers;
    std::optional<Endpoint> controller;
    Time lastRequest{};
};

} // namespace Simulation::GigEVision
