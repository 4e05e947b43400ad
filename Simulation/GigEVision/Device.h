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
#include <optional>
#include <span>

namespace Simulation::GigEVision {

/// Where in the network a device is.
struct IpConfiguration {
    std::uint32_t address;
    std::uint32_t subnetMask;
};

/// A simulated camera as a GigE Vision device: what it answers to a datagram, without a socket and without a clock.
///
/// The camera's time goes on with the time that is passed in, and with accesses if these take it further. The camera
/// shows the address at which it is as its current one, also after a restart.
class Device {
public:
    static constexpr std::chrono::seconds bootTime{5};

    /// @param served must outlive the device and be given to no other one
    Device(SimulatedCamera& served, const IpConfiguration& current, Time now);
    Device(const Device&) = delete; // the camera's behaviours know it
    Device& operator=(const Device&) = delete;

    /// The acknowledge, at most largestPayload bytes; nothing when none is due.
    /// @param isBusy whether the device has no time for it: it refuses what is neither a discovery nor repeated
    [[nodiscard]] std::optional<Bytes> Answer(const Endpoint& from, std::span<const std::uint8_t> datagram, Time now,
                                              bool isBusy = false);

    /// What goes on without requests: the camera's own work, and the heartbeat time-out.
    void PassTime(Time now);

    [[nodiscard]] StreamChannel& Stream() { return stream; }
    /// When the stream has a block to send; nothing until something is requested of the device.
    [[nodiscard]] std::optional<Time> StreamDue() const;
    /// Shows from which port the stream comes.
    void SetStreamSource(std::uint16_t port) { channel.ShowStreamSource(port); }

    /// Has the camera lose power: it answers nothing for bootTime, and has then what a start leaves it.
    void Reboot(Time now);

private:
    [[nodiscard]] bool IsStarting(Time now) const { return now < bootEnd; }
    [[nodiscard]] std::optional<Bytes> CarryOut(const Endpoint& from, const Common::Gvcp::Request& request, Time now);
    [[nodiscard]] Bytes Discover(const Common::Gvcp::Request& request);
    [[nodiscard]] Bytes ReadRegisters(const Endpoint& from, const Common::Gvcp::Request& request);
    [[nodiscard]] Bytes WriteRegisters(const Endpoint& from, const Common::Gvcp::Request& request, Time now);
    [[nodiscard]] Bytes ReadMemory(const Endpoint& from, const Common::Gvcp::Request& request);
    [[nodiscard]] Bytes WriteMemory(const Endpoint& from, const Common::Gvcp::Request& request, Time now);
    [[nodiscard]] Status WriteWord(const Endpoint& from, std::uint32_t address, std::uint32_t value, Time now);
    void EndControl();
    void ShowAddress();

    SimulatedCamera& camera;
    const IpConfiguration ip;
    ChannelRegisters channel;
    ControlChannel control{channel};
    StreamChannel stream;
    DeviceMemory memory;
    LastAcknowledges lastAcknowledges;
    const Time start;
    const std::chrono::microseconds cameraStart;
    Time bootEnd{}; ///< the camera answers nothing before
};

} // namespace Simulation::GigEVision
