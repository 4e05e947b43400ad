#pragma once

#include "Simulation/GigEVision/ControlChannel.h"
#include "Simulation/GigEVision/Gvsp.h"

#include <cstdint>
#include <span>

namespace Simulation::GigEVision {

/// A UDP socket that sends packets of streams.
class StreamSocket {
public:
    static constexpr std::size_t mostPackets = 64; ///< in one call of Send

    /// @throws std::runtime_error if the address has no port left
    explicit StreamSocket(std::uint32_t address);
    ~StreamSocket();
    StreamSocket(const StreamSocket&) = delete;
    StreamSocket& operator=(const StreamSocket&) = delete;

    /// The source address and port of its packets.
    [[nodiscard]] const Endpoint& Self() const { return self; }
    void SetDontFragment(bool set);
    /// Sends at most mostPackets. Packets that are too large for the path are lost, as with a camera.
    void Send(const Endpoint& to, std::span<const Gvsp::Packet> packets);

private:
    int descriptor;
    Endpoint self;
    bool dontFragment = false;
};

} // namespace Simulation::GigEVision
