#include "Simulation/GigEVision/Recorder.h"

#include "Common/ErrorExit.h"
#include "Common/Gvcp.h"

#include <sys/time.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace Simulation::GigEVision {

using namespace Common::Gvcp;

namespace {

constexpr std::uint32_t ipHeaderSize = 20;
constexpr std::uint32_t udpHeaderSize = 8;
constexpr std::uint32_t udpProtocol = 17;
constexpr int largestPacket = 65535;
constexpr const char* notWritten = "recording cannot be written: ";

/// The one's complement sum of the 16-bit words. An odd last byte is padded with zero.
std::uint32_t Sum(std::span<const std::uint8_t> bytes, std::uint32_t sum = 0) {
    for (std::size_t i = 0; i < bytes.size(); i += 2) {
        sum += std::uint32_t{bytes[i]} << 8 | (i + 1 < bytes.size() ? bytes[i + 1] : 0U);
    }
    while (sum > 0xFFFF) {
        sum = (sum & 0xFFFF) + (sum >> 16);
    }
    return sum;
}

void PutChecksum(Bytes& bytes, std::size_t at, std::uint32_t sum) {
    const std::uint32_t checksum = ~sum & 0xFFFF;
    bytes[at] = static_cast<std::uint8_t>(checksum >> 8);
    bytes[at + 1] = static_cast<std::uint8_t>(checksum);
}

Bytes IpHeader(const Endpoint& from, const Endpoint& to, std::uint32_t length, std::uint16_t number) {
    Bytes header;
    Put16(header, 0x4500); // version 4, five words, default service
    Put16(header, ipHeaderSize + length);
    Put16(header, number);
    Put16(header, 0x4000); // do not fragment
    Put16(header, 64 << 8 | udpProtocol);
    Put16(header, 0); // the checksum
    Put32(header, from.address);
    Put32(header, to.address);
    PutChecksum(header, 10, Sum(header));
    return header;
}

/// @param payload all of it, or its beginning
/// @param size    of the whole payload
Bytes UdpDatagram(const Endpoint& from, const Endpoint& to, std::span<const std::uint8_t> payload, std::size_t size) {
    const auto length = udpHeaderSize + static_cast<std::uint32_t>(size);
    Bytes datagram;
    Put16(datagram, from.port);
    Put16(datagram, to.port);
    Put16(datagram, length);
    Put16(datagram, 0); // the checksum
    datagram.insert(datagram.end(), payload.begin(), payload.end());
    if (payload.size() != size) {
        return datagram; // with a checksum of zero, which says that there is none
    }

    Bytes pseudoHeader;
    Put32(pseudoHeader, from.address);
    Put32(pseudoHeader, to.address);
    Put16(pseudoHeader, udpProtocol);
    Put16(pseudoHeader, length);
    const std::uint32_t sum = Sum(datagram, Sum(pseudoHeader));
    PutChecksum(datagram, 6, sum == 0xFFFF ? 0 : sum); // a checksum of zero would mean none
    return datagram;
}

} // namespace

Recorder::Recorder(const std::string& path)
    : capture(pcap_open_dead(DLT_RAW, largestPacket), &pcap_close),
      file(pcap_dump_open(capture.get(), path.c_str()), &pcap_dump_close) {
    if (file == nullptr) {
        throw std::runtime_error(notWritten + std::string(pcap_geterr(capture.get())));
    }
    if (pcap_dump_flush(file.get()) != 0) {
        throw std::runtime_error(notWritten + std::string(std::strerror(errno)));
    }
}

void Recorder::Record(const Endpoint& from, const Endpoint& to, std::span<const std::uint8_t> datagram) {
    Write(from, to, datagram, datagram.size());
}

void Recorder::RecordStream(const Endpoint& from, const Endpoint& to, std::span<const std::uint8_t> head,
                            std::span<const std::uint8_t> data) {
    const std::size_t mostBytes = 64;
    Bytes payload(head.begin(), head.end());
    payload.insert(payload.end(), data.begin(),
                   data.begin() + static_cast<std::ptrdiff_t>(std::min(data.size(), mostBytes - head.size())));
    Write(from, to, payload, head.size() + data.size());
}

void Recorder::Write(const Endpoint& from, const Endpoint& to, std::span<const std::uint8_t> payload,
                     std::size_t length) {
    const std::lock_guard lock(mutex);
    if (file == nullptr) {
        return;
    }
    const Bytes udp = UdpDatagram(from, to, payload, length);
    Bytes packet = IpHeader(from, to, static_cast<std::uint32_t>(udpHeaderSize + length), ++number);
    packet.insert(packet.end(), udp.begin(), udp.end());
    pcap_pkthdr header{};
    gettimeofday(&header.ts, nullptr);
    header.caplen = static_cast<bpf_u_int32>(packet.size());
    header.len = static_cast<bpf_u_int32>(ipHeaderSize + udpHeaderSize + length);
    pcap_dump(reinterpret_cast<unsigned char*>(file.get()), &header, packet.data());
    if (pcap_dump_flush(file.get()) != 0) { // such as disk full
        Common::PrintError("qdv12sim", notWritten + std::string(std::strerror(errno)) + "; recording stopped");
        file.reset();
    }
}

} // namespace Simulation::GigEVision
