#pragma once

#include "Simulation/Picture/Frame.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// GVSP, the stream protocol of the GigE Vision standard: the packets that a frame becomes.
namespace Simulation::GigEVision::Gvsp {

constexpr std::uint32_t ipAndUdpSize = 20 + 8; ///< counts into the packet size
constexpr std::uint32_t headerSize = 8;
constexpr std::size_t largestHead = 44;

/// A packet, without a copy of the picture.
struct Packet {
    std::array<std::uint8_t, largestHead> head; ///< the header, and what leader and trailer tell
    std::size_t headSize;
    std::span<const std::uint8_t> data; ///< a part of the frame

    [[nodiscard]] std::span<const std::uint8_t> Head() const { return std::span(head).first(headSize); }
    [[nodiscard]] std::size_t Size() const { return headSize + data.size(); }
};

/// A frame on its way: packet 0 is the leader, then comes the payload, the last packet is the trailer.
class Block {
public:
    /// @param blockId     1 to 65535
    /// @param ticks       the timestamp of the frame
    /// @param packetSize  of all packets with payload but the last, from the IP header on
    Block(std::uint16_t blockId, std::uint64_t ticks, std::uint32_t packetSize, Picture::Frame sent);

    [[nodiscard]] std::uint16_t Id() const { return id; }
    [[nodiscard]] std::uint32_t PacketCount() const { return payloadPackets + 2; }
    /// @param packet less than PacketCount
    [[nodiscard]] Packet At(std::uint32_t packet) const;
    [[nodiscard]] const Picture::Frame& Frame() const { return frame; }
    [[nodiscard]] Picture::Frame TakeFrame() { return std::move(frame); }

private:
    [[nodiscard]] Packet Leader() const;
    [[nodiscard]] Packet Trailer() const;

    std::uint16_t id;
    std::uint64_t timestamp;
    std::uint32_t dataSize; ///< of a packet
    Picture::Frame frame;
    std::uint32_t payloadPackets;
};

/// Tells that a packet is not to be had any more.
[[nodiscard]] Packet Unavailable(std::uint16_t block, std::uint32_t packet);

} // namespace Simulation::GigEVision::Gvsp
