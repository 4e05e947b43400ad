#pragma once

#include "Simulation/GigEVision/ControlChannel.h"

#include <pcap/pcap.h>

#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>

namespace Simulation::GigEVision {

/// A file for packets that cannot be written; the text says which and why.
class RecordError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Writes datagrams to a pcap file, as packets of IPv4 without a link layer. Each is in the file at once.
class Recorder {
public:
    /// @throws RecordError
    explicit Recorder(const std::string& path);

    /// @throws RecordError
    void Record(const Sender& from, const Sender& to, std::span<const std::uint8_t> datagram);

private:
    void Flush();

    std::unique_ptr<pcap_t, decltype(&pcap_close)> capture;
    std::unique_ptr<pcap_dumper_t, decltype(&pcap_dump_close)> file;
    std::uint16_t number = 0; ///< of the packet
};

} // namespace Simulation::GigEVision
