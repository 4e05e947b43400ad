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
    Endpoint receiver;
    std::uint32_t packetSize; ///< from the IP header on
    bool dontFragment;
    std::chrono::microseconds packetDelay; ///< between two packets
};

/// Packets that a receiver missed.
struct ResendRequest {
    std::uint16_t block;
    std::uint32_t first;
    std::uint32_t last; ///< may lie beyond the last one of the block
};

/// A frame that is to be sent.
struct DueBlock {
    std::uint16_t id;
    std::uint64_t timestamp; ///< ticks
    StreamTarget target;
    ExposedFrame exposed;
};

/// The stream channel of a device: which frame is sent when, where to, in packets of which size. It has no socket and
/// no clock; it follows from the registers, the camera's time and what receivers request.
///
/// The channel is open while its port (0x0D00) is not 0. Block ids begin at 1 when it is opened, and go on over the end
/// and the start of acquisition, since receivers take a frame whose id they had before for a late one.
class StreamChannel {
public:
    StreamChannel(SimulatedCamera& ofCamera, const ChannelRegisters& ofDevice);

    /// Lets the stream go to other addresses than the controller's.
    void AllowAnyDestination() { anyDestination = true; }
    [[nodiscard]] Acquisition& Frames() { return frames; }

    // For the control channel.

    /// Whether the word may be written: a stream is not sent to those who did not ask for it.
    /// @param controller the address of the application that writes
    [[nodiscard]] bool Admits(const Register& entry, std::uint32_t value, std::uint32_t controller) const;
    /// Tells that the word is about to be written.
    void BeforeWrite(const Register& entry, std::uint32_t value);
    /// Takes a request of the receiver's, which has no acknowledge. Those from elsewhere are ignored, and so are more
    /// than can be served.
    void RequestResend(const Endpoint& from, std::span<const std::uint8_t> payload);

    // For the sender.

    /// Nothing while the channel is closed.
    [[nodiscard]] std::optional<StreamTarget> Target() const;
    /// The camera's time at which there is a block to be sent.
    [[nodiscard]] std::optional<std::chrono::microseconds> Due() const;
    /// The next block, if its frame is ready.
    [[nodiscard]] std::optional<DueBlock> TakeBlock();
    [[nodiscard]] std::vector<ResendRequest> TakeResends();
    /// Whether a test packet was asked for since the last call.
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
