#include "Simulation/GigEVision/ChannelRegisters.h"

#include <algorithm>
#include <string_view>

namespace Simulation::GigEVision {

namespace {

constexpr std::uint32_t leastHeartbeat = 500;
constexpr std::string_view writable[] = {"heartbeat", "timestampcontrol", "streamport", "streamdestination"};

} // namespace

ChannelRegisters::ChannelRegisters(RegisterSpace& ofCamera, std::chrono::microseconds start)
    : space(ofCamera),
      powerUp(ofCamera.Save({Role::Channel})),
      timestampOrigin(start) {}

bool ChannelRegisters::IsWritable(const Register& entry) {
    return std::find(std::begin(writable), std::end(writable), entry.name) != std::end(writable);
}

void ChannelRegisters::Write(const Register& entry, std::uint32_t value, std::chrono::microseconds time) {
    if (entry.name == "timestampcontrol") {
        ControlTimestamp(value, time); // a command: reads as 0
    } else {
        space.Set(entry.name, {entry.name == "heartbeat" ? std::max(value, leastHeartbeat) : value});
    }
}

void ChannelRegisters::ControlTimestamp(std::uint32_t command, std::chrono::microseconds time) {
    const std::uint32_t reset = 1;
    const std::uint32_t latch = 2;
    if ((command & latch) != 0) {
        const auto ticks = TimestampAt(time);
        space.Set("timestamphigh", {static_cast<std::uint32_t>(ticks >> 32)});
        space.Set("timestamplow", {static_cast<std::uint32_t>(ticks)});
    }
    if ((command & reset) != 0) {
        timestampOrigin = time;
    }
}

std::chrono::milliseconds ChannelRegisters::Heartbeat() const {
    return std::chrono::milliseconds(space.Get("heartbeat")[0]);
}

std::uint32_t ChannelRegisters::Privilege() const { return space.Get("privilege")[0]; }

void ChannelRegisters::ShowControl(std::uint32_t privilege, std::uint32_t applicationAddress,
                                   std::uint16_t applicationPort) {
    space.Set("privilege", {privilege});
    space.Set("applicationaddress", {applicationAddress});
    space.Set("applicationport", {applicationPort});
}

void ChannelRegisters::ShowStreamSource(std::uint16_t port) {
    streamSource = port;
    space.Set("streamsourceport", {port});
}

void ChannelRegisters::CloseStream() {
    space.Set("streamport", {0});
    space.Set("streamdestination", {0});
}

void ChannelRegisters::Restart(std::chrono::microseconds time) {
    space.Load(powerUp);
    ShowStreamSource(streamSource);
    timestampOrigin = time;
}

} // namespace Simulation::GigEVision
