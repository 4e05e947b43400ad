#include "Simulation/GigEVision/Gvsp.h"

#include "Common/Gvcp.h"

#include <algorithm>

namespace Simulation::GigEVision::Gvsp {

namespace {

using Common::Gvcp::Put16;
using Common::Gvcp::Put32;

constexpr std::uint32_t success = 0;
constexpr std::uint32_t packetUnavailable = 0x800C;
constexpr std::uint32_t leaderFormat = 1;
constexpr std::uint32_t trailerFormat = 2;
constexpr std::uint32_t payloadFormat = 3;
constexpr std::uint32_t imagePayload = 1;

Packet MakePacket(const Bytes& head, std::span<const std::uint8_t> data = {}) {
    Packet packet{{}, head.size(), data};
    std::copy(head.begin(), head.end(), packet.head.begin());
    return packet;
}

Bytes Header(std::uint32_t status, std::uint16_t block, std::uint32_t format, std::uint32_t packet) {
    Bytes bytes;
    bytes.reserve(largestHead);
    Put16(bytes, status);
    Put16(bytes, block);
    Put32(bytes, format << 24 | packet);
    return bytes;
}

} // namespace

Block::Block(std::uint16_t blockId, std::uint64_t ticks, std::uint32_t packetSize, Picture::Frame sent)
    : id(blockId),
      timestamp(ticks),
      dataSize(packetSize - ipAndUdpSize - headerSize),
      frame(std::move(sent)),
      payloadPackets(static_cast<std::uint32_t>((frame.bytes.size() + dataSize - 1) / dataSize)) {}

Packet Block::At(std::uint32_t packet) const {
    if (packet == 0) {
        return Leader();
    }
    if (packet > payloadPackets) {
        return Trailer();
    }
    const auto rest = std::span(frame.bytes).subspan(std::size_t{packet - 1} * dataSize);
    return MakePacket(Header(success, id, payloadFormat, packet),
                      rest.first(std::min<std::size_t>(rest.size(), dataSize)));
}

Packet Block::Leader() const {
    Bytes bytes = Header(success, id, leaderFormat, 0);
    Put32(bytes, imagePayload);
    Put32(bytes, static_cast<std::uint32_t>(timestamp >> 32));
    Put32(bytes, static_cast<std::uint32_t>(timestamp));
    for (const std::uint32_t word :
         {frame.pixelFormat, frame.width, frame.height, frame.offsetX, frame.offsetY, 0U /* padding */}) {
        Put32(bytes, word);
    }
    return MakePacket(bytes);
}

Packet Block::Trailer() const {
    Bytes bytes = Header(success, id, trailerFormat, payloadPackets + 1);
    Put32(bytes, imagePayload);
    Put32(bytes, frame.height);
    return MakePacket(bytes);
}

Packet Unavailable(std::uint16_t block, std::uint32_t packet) {
    return MakePacket(Header(packetUnavailable, block, payloadFormat, packet));
}

} // namespace Simulation::GigEVision::Gvsp
