#pragma once

#include "Simulation/GigEVision/ChannelRegisters.h"
#include "Simulation/GigEVision/ControlChannel.h"
#include "Simulation/GigEVision/DeviceMemory.h"
#include "Simulation/GigEVision/Gvcp.h"
#include "Simulation/GigEVision/LastAnswers.h"
#include "Simulation/SimulatedCamera.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>

namespace Simulation::GigEVision {

/// Where in the network a device is.
struct Network {
    std::uint32_t address;
    std::uint32_t mask;
};

/// A simulated camera as a GigE Vision device: what it answers to a datagram, without a socket and without a clock.
///
/// The camera's time goes on with the time that is passed in, and with accesses if these take it further. The camera
/// shows the address at which it is as its current one, also after a restart.
class Device {
public:
    static constexpr std::chrono::seconds bootTime{5};

    /// @param served must outlive the device and be given to no other one
    Device(SimulatedCamera& served, const Network& place, Time now);
    Device(const Device&) = delete; // the camera's behaviours know it
    Device& operator=(const Device&) = delete;

    /// The acknowledge, at most largestPayload bytes; nothing when none is due.
    /// @param isBusy whether the device has no time for it: it refuses what is neither a discovery nor repeated
    [[nodiscard]] std::optional<Bytes> Answer(const Sender& from, std::span<const std::uint8_t> datagram, Time now,
                                              bool isBusy = false);

    /// What goes on without requests: the camera's own work, and the heartbeat time-out.
    void PassTime(Time now);

    /// Has the camera lose power: it answers nothing for bootTime, and has then what a start leaves it.
    void Reboot(Time now);

private:
    [[nodiscard]] bool IsStarting(Time now) const { return now < backAt; }
    [[nodiscard]] std::optional<Bytes> CarryOut(const Sender& from, const Request& request, Time now);
    [[nodiscard]] Bytes Discover(const Request& request);
    [[nodiscard]] Bytes ReadRegisters(const Sender& from, const Request& request);
    [[nodiscard]] Bytes WriteRegisters(const Sender& from, const Request& request, Time now);
    [[nodiscard]] Bytes ReadMemory(const Sender& from, const Request& request);
    [[nodiscard]] Bytes WriteMemory(const Sender& from, const Request& request, Time now);
    [[nodiscard]] Status WriteWord(const Sender& from, std::uint32_t address, std::uint32_t value, Time now);
    void EndControl();
    void ShowAddress();

    SimulatedCamera& camera;
    const Network network;
    ChannelRegisters channel;
    ControlChannel control{channel};
    DeviceMemory memory;
    LastAnswers lastAnswers;
    const Time start;
    const std::chrono::microseconds cameraStart;
    Time backAt{}; ///< the camera answers nothing before
};

} // namespace Simulation::GigEVision
