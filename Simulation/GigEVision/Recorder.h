#pragma once

#include "Simulation/GigEVision/ControlChannel.h"

#include <pcap/pcap.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace Simulation::GigEVision {

/// Writes datagrams to a pcap file, as packets of IPv4 without a link layer. Each is in the file at once. From the
/// first on that cannot be written, which it says on standard error, it records nothing more.
class Recorder {
public:
    /// @throws std::runtime_error if the file cannot be written
    explicit Recorder(const std::string& path);

    void Record(const Endpoint& from, const Endpoint& to, std::span<const std::uint8_t> datagram);

private:
    std::unique_ptr<pcap_t, decltype(&pcap_close)> capture;
    std::unique_ptr<pcap_dumper_t, decltype(&pcap_dump_close)> file;
    std::uint16_t number = 0; ///< of the packet
};

} // namespace Simulation::GigEVision
