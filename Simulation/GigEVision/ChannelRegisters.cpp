#include "GigEVision/ChannelRegisters.h"

#include "GigEVision/Gvcp.h"

#include <algorithm>

namespace Simulation::GigEVision {

namespace {

constexpr std::uint32_t interfaces = 0x0600;
constexpr std::uint32_t messageChannels = 0x0900;
constexpr std::uint32_t streamChannels = 0x0904;
constexpr std::uint32_t heartbeat = 0x0938; // milliseconds
constexpr std::uint32_t tickFrequencyHigh = 0x093C;
constexpr std::uint32_t tickFrequencyLow = 0x0940;
constexpr std::uint32_t clockControl = 0x0944;
constexpr std::uint32_t clockHigh = 0x0948;
constexpr std::uint32_t clockLow = 0x094C;
constexpr std::uint32_t applicationPortAddress = 0x0A04;
constexpr std::uint32_t applicationAddressAddress = 0x0A14;
constexpr std::uint32_t streamPort = 0x0D00;
constexpr std::uint32_t streamDestination = 0x0D18;
constexpr std::uint32_t streamSourcePort = 0x0D1C;

constexpr std::uint32_t leastHeartbeat = 500;
constexpr std::uint32_t writable[] = {heartbeat, clockControl, streamPort, streamDestination};

} // namespace

ChannelRegisters::ChannelRegisters(std::chrono::microseconds start)
    : words{
          {interfaces, 1},
          {messageChannels, 0},
          {streamChannels, 1},
          {heartbeat, 3000},
          {tickFrequencyHigh, 0},
          {tickFrequencyLow, 1000000}, // the camera counts microseconds
          {clockControl, 0},
          {clockHigh, 0},
          {clockLow, 0},
          {privilegeAddress, 0},
          {applicationPortAddress, 0},
          {applicationAddressAddress, 0},
          {streamPort, 0},
          {streamDestination, 0},
          {streamSourcePort, 0},
      },
      clockStart(start) {}

bool ChannelRegisters::IsWritable(std::uint32_t address) const {
    return std::find(std::begin(writable), std::end(writable), address) != std::end(writable);
}

void ChannelRegisters::Write(std::uint32_t address, std::uint32_t value, std::chrono::microseconds time) {
    if (address == clockControl) {
        UseClock(value, time); // reads as zero: it is a command
    } else if (address == heartbeat) {
        words[heartbeat] = std::max(value, leastHeartbeat);
    } else {
        words.at(address) = value;
    }
}

void ChannelRegisters::UseClock(std::uint32_t order, std::chrono::microseconds time) {
    const std::uint32_t reset = 1;
    const std::uint32_t latch = 2;
    if ((order & latch) != 0) {
        const auto ticks = static_cast<std::uint64_t>((time - clockStart).count());
        words[clockHigh] = static_cast<std::uint32_t>(ticks >> 32);
        words[clockLow] = static_cast<std::uint32_t>(ticks);
    }
    if ((order & reset) != 0) {
        clockStart = time;
    }
}

std::chrono::milliseconds ChannelRegisters::Heartbeat() const { return std::chrono::milliseconds(words.at(heartbeat)); }

void ChannelRegisters::ShowControl(std::uint32_t privilege, std::uint32_t applicationAddress,
                                   std::uint16_t applicationPort) {
    words[privilegeAddress] = privilege;
    words[applicationAddressAddress] = applicationAddress;
    words[applicationPortAddress] = applicationPort;
}

void ChannelRegisters::CloseStream() {
    words[streamPort] = 0;
    words[streamDestination] = 0;
}

} // namespace Simulation::GigEVision
