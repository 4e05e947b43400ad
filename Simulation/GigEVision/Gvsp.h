#pragma once

#include "Simulation/Picture/Frame.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// GVSP, the stream protocol of the GigE Vision standard: the packets of a frame.
namespace Simulation::GigEVision::Gvsp {

constexpr std::uint32_t ipAndUdpSize = 20 + 8; ///< part of the packet size
constexpr std::uint32_t headerSize = 8;
constexpr std::size_t largestHead = 44;

/// A packet. It refers to the data of the frame.
struct Packet {
    std::array<std::uint8_t, largestHead> head; ///< the header, and the content of leader and trailer
    std::size_t headSize;
    std::span<const std::uint8_t> data; ///< a part of the frame

    [[nodiscard]] std::span<const std::uint8_t> Head() const { return std::span(head).first(headSize); }
    [[nodiscard]] std::size_t Size() const { return headSize + data.size(); }
};

/// A frame as packets: packet 0 is the leader, the last packet is the trailer, those between are the payload.
class Block {
public:
    /// @param blockId     1 to 65535
    /// @param ticks       the timestamp of the frame
    /// @param packetSize  of all payload packets except the last, including the IP header
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
    std::uint32_t dataSize; ///< data per packet
    Picture::Frame frame;
    std::uint32_t payloadPackets;
};

/// The answer to a request for a packet that is no longer available.
[[nodiscard]] Packet Unavailable(std::uint16_t block, std::uint32_t packet);

} // namespace Simulation::GigEVision::Gvsp
