#include "Simulation/GigEVision/StreamChannel.h"

#include "Common/Gvcp.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Simulation::GigEVision {

using Common::Gvcp::Get16;
using Common::Gvcp::Get32;
using std::chrono::microseconds;

namespace {

constexpr std::uint32_t firesTestPacket = 0x80000000; // of the packet size register
constexpr std::uint32_t doesNotFragment = 0x40000000;
constexpr std::uint32_t lowHalf = 0xFFFF; // the port; the packet size
constexpr std::uint32_t packetId = 0x00FFFFFF;
constexpr std::size_t resendSize = 12;
constexpr std::size_t mostResends = 1024; // waiting

} // namespace

StreamChannel::StreamChannel(SimulatedCamera& ofCamera, const ChannelRegisters& ofDevice)
    : camera(ofCamera),
      registers(ofDevice),
      frames(ofCamera) {}

bool StreamChannel::Admits(const Register& entry, std::uint32_t value, std::uint32_t controller) const {
    return entry.name != "streamdestination" || anyDestination || value == 0 || value == controller;
}

void StreamChannel::BeforeWrite(const Register& entry, std::uint32_t value) {
    if (entry.name == "streamport" && camera.Registers().Get("streamport")[0] == 0) {
        lastId = 0;
        resends.clear();
    }
    if (entry.name == "packetsize" && (value & firesTestPacket) != 0) {
        testPacket = true;
    }
}

void StreamChannel::RequestResend(const Endpoint& from, std::span<const std::uint8_t> payload) {
    const auto target = Target();
    // A receiver may send requests from any port.
    if (!target || target->receiver.address != from.address || payload.size() != resendSize || Get16(payload) != 0 ||
        resends.size() >= mostResends) {
        return;
    }
    const ResendRequest request{Get16(payload.subspan(2)), Get32(payload.subspan(4)) & packetId,
                                Get32(payload.subspan(8)) & packetId};
    if (request.first <= request.last) {
        resends.push_back(request);
    }
}

std::optional<StreamTarget> StreamChannel::Target() const {
    const RegisterSpace& space = camera.Registers();
    const std::uint32_t port = space.Get("streamport")[0] & lowHalf;
    const std::uint32_t address = space.Get("streamdestination")[0];
    if (port == 0 || address == 0) {
        return std::nullopt;
    }
    const std::uint32_t size = space.Get("packetsize")[0];
    return StreamTarget{{address, static_cast<std::uint16_t>(port)},
                        size & lowHalf,
                        (size & doesNotFragment) != 0,
                        microseconds(space.Get("packetdelay")[0])}; // the camera counts microseconds
}

std::optional<microseconds> StreamChannel::Due() const { return Target() ? frames.Due() : std::nullopt; }

std::optional<DueBlock> StreamChannel::TakeBlock() {
    const auto target = Target();
    if (!target) {
        return std::nullopt;
    }
    const auto exposed = frames.Take();
    if (!exposed) {
        return std::nullopt;
    }
    lastId = lastId == std::numeric_limits<std::uint16_t>::max() ? 1 : lastId + 1; // there is no block 0
    return DueBlock{lastId, registers.TimestampAt(exposed->time), *target, *exposed};
}

std::vector<ResendRequest> StreamChannel::TakeResends() { return std::exchange(resends, {}); }

bool StreamChannel::TakeTestPacket() { return std::exchange(testPacket, false) && Target(); }

} // namespace Simulation::GigEVision
