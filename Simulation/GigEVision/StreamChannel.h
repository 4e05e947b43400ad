#pragma once

#include "Simulation/Acquisition.h"
#include "Simulation/GigEVision/ChannelRegisters.h"
#include "Simulation/GigEVision/ControlChannel.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace Simulation::GigEVision {

/// Where the stream goes, and how.
struct StreamTarget {
    Endpoint receiver{};
    std::uint32_t packetSize = 0; ///< including the IP header
    bool dontFragment = false;
    std::chrono::microseconds packetDelay{0}; ///< between two packets
};

/// Packets that a receiver missed.
struct ResendRequest {
    std::uint16_t block;
    std::uint32_t first;
    std::uint32_t last; ///< may exceed the last packet of the block
};

/// A frame to send.
struct DueBlock {
    std::uint16_t id = 0;
    std::uint64_t timestamp = 0; ///< ticks
    StreamTarget target{};
    ExposedFrame exposed;
};

/// The stream channel of a device. It determines when a frame is sent, where to, and in packets of which size, from the
/// registers, the camera's time and the requests of receivers. It has no socket and no clock.
///
/// The channel is open while its port (0x0D00) is not 0. Block ids begin at 1 when it is opened. They continue when
/// acquisition stops and starts, because receivers discard a frame with an id that they have seen as a late one.
class StreamChannel {
public:
    StreamChannel(SimulatedCamera& ofCamera, const ChannelRegisters& ofDevice);

    /// Permits a stream to other addresses than that of the controller.
    void AllowAnyDestination() { anyDestination = true; }
    [[nodiscard]] Acquisition& Frames() { return frames; }

    // For the control channel.

    /// Whether the word may be written. A stream is only sent to the application that requests it.
    /// @param controller the address of the application that writes
    [[nodiscard]] bool Admits(const Register& entry, std::uint32_t value, std::uint32_t controller) const;
    /// Call it before the word is written.
    void BeforeWrite(const Register& entry, std::uint32_t value);
    /// Takes a request of the receiver. It has no acknowledge. Requests from other addresses, and more than can be
    /// served, are ignored.
    void RequestResend(const Endpoint& from, std::span<const std::uint8_t> payload);

    // For the sender.

    /// Nothing while the channel is closed.
    [[nodiscard]] std::optional<StreamTarget> Target() const;
    /// The camera's time at which the next block is ready.
    [[nodiscard]] std::optional<std::chrono::microseconds> Due() const;
    /// The next block, if its frame is ready.
    [[nodiscard]] std::optional<DueBlock> TakeBlock();
    [[nodiscard]] std::vector<ResendRequest> TakeResends();
    /// Whether a test packet was requested since the last call.
    [[nodiscard]] bool TakeTestPacket();
    [[nodiscard]] bool HasRequests() const { return testPacket || !resends.empty(); }

private:
    SimulatedCamera& camera;
    const ChannelRegisters& registers;
    Acquisition frames;
    bool anyDestination = false;
    bool testPacket = false;
    std::uint16_t lastId = 0;
    std::vector<ResendRequest> resends;
};

} // namespace Simulation::GigEVision
