#pragma once

#include "Simulation/GigEVision/ControlChannel.h"

#include <pcap/pcap.h>

#include <cstdint>
#include <memory>
#include <mutex>
#include <span>
#include <string>

namespace Simulation::GigEVision {

/// Writes datagrams to a pcap file, as IPv4 packets without a link layer. Each is flushed at once. After the first
/// write error, which it reports on standard error, it stops recording.
class Recorder {
public:
    /// @throws std::runtime_error if the file cannot be written
    explicit Recorder(const std::string& path);

    void Record(const Endpoint& from, const Endpoint& to, std::span<const std::uint8_t> datagram);
    /// Records a packet of a stream, in two parts, but of its data so much only as makes 64 bytes with the first part:
    /// a stream would fill the disk.
    void RecordStream(const Endpoint& from, const Endpoint& to, std::span<const std::uint8_t> head,
                      std::span<const std::uint8_t> data);

private:
    /// @param length of the datagram, of which the payload may be the beginning
    void Write(const Endpoint& from, const Endpoint& to, std::span<const std::uint8_t> payload, std::size_t length);

    std::mutex mutex; ///< control and stream are recorded by two threads
    std::unique_ptr<pcap_t, decltype(&pcap_close)> capture;
    std::unique_ptr<pcap_dumper_t, decltype(&pcap_dump_close)> file;
    std::uint16_t number = 0; ///< of the last packet
};

} // namespace Simulation::GigEVision
