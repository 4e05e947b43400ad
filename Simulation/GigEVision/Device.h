#pragma once

#include "Common/Gvcp.h"
#include "Simulation/GigEVision/ChannelRegisters.h"
#include "Simulation/GigEVision/ControlChannel.h"
#include "Simulation/GigEVision/DeviceMemory.h"
#include "Simulation/GigEVision/LastAcknowledges.h"
#include "Simulation/GigEVision/StreamChannel.h"
#include "Simulation/SimulatedCamera.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>

namespace Simulation::GigEVision {

using Common::IpConfiguration;

/// A simulated camera as a GigE Vision device. It answers datagrams, without socket or clock.
///
/// The camera's time follows the time passed in, and may run ahead of it through accesses. The current IP configuration
/// in the camera's registers is the device's, also after a restart. An application may force another one until the next
/// power cycle, while none has control.
class Device {
public:
    static constexpr std::chrono::seconds bootTime{5};

    /// @param served must outlive the device, and must not be given to another device
    Device(SimulatedCamera& served, const IpConfiguration& current, Time now);
    Device(const Device&) = delete; // the camera's behaviours refer to it
    Device& operator=(const Device&) = delete;

    /// Tries to move the device to another address. Returns whether it is there.
    using Move = std::function<bool(const IpConfiguration&)>;
    /// Without it, the device moves to any address.
    void MoveWith(Move mover) { move = std::move(mover); }

    /// The acknowledge, at most largestPayload bytes, or nothing if none is due.
    /// @param isBusy refuses the request as busy, unless it is a discovery or a repetition
    [[nodiscard]] std::optional<Bytes> Answer(const Endpoint& from, std::span<const std::uint8_t> datagram, Time now,
                                              bool isBusy = false);

    /// Advances the camera's time and checks the heartbeat timeout.
    void PassTime(Time now);

    [[nodiscard]] StreamChannel& Stream() { return stream; }
    /// When the stream has a block to send. Nothing: not before the next request.
    [[nodiscard]] std::optional<Time> StreamDue() const;
    /// Sets the source port of the stream.
    void SetStreamSource(std::uint16_t port) { channel.ShowStreamSource(port); }

    /// Simulates a power cycle: restarts the camera, which does not answer for bootTime.
    void Reboot(Time now);

private:
    [[nodiscard]] bool IsStarting(Time now) const { return now < bootEnd; }
    [[nodiscard]] std::optional<Bytes> CarryOut(const Endpoint& from, const Common::Gvcp::Request& request, Time now);
    [[nodiscard]] Bytes Discover(const Common::Gvcp::Request& request);
    [[nodiscard]] bool IsForAnother(const Common::Gvcp::Request& request) const;
    [[nodiscard]] Status ForceIp(const IpConfiguration& wanted);
    [[nodiscard]] bool MoveTo(const IpConfiguration& wanted);
    [[nodiscard]] Bytes ReadRegisters(const Endpoint& from, const Common::Gvcp::Request& request);
    [[nodiscard]] Bytes WriteRegisters(const Endpoint& from, const Common::Gvcp::Request& request, Time now);
    [[nodiscard]] Bytes ReadMemory(const Endpoint& from, const Common::Gvcp::Request& request);
    [[nodiscard]] Bytes WriteMemory(const Endpoint& from, const Common::Gvcp::Request& request, Time now);
    [[nodiscard]] Status WriteWord(const Endpoint& from, std::uint32_t address, std::uint32_t value, Time now);
    void EndControl();
    void ShowAddress();

    SimulatedCamera& camera;
    const IpConfiguration assigned;
    IpConfiguration ip;
    Move move = [](const IpConfiguration&) { return true; };
    ChannelRegisters channel;
    ControlChannel control{channel};
    StreamChannel stream;
    DeviceMemory memory;
    LastAcknowledges lastAcknowledges;
    const Time start;
    const std::chrono::microseconds cameraStart;
    Time bootEnd{}; ///< the camera does not answer before
};

} // namespace Simulation::GigEVision
