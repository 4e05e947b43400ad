#pragma once

#include "Common/Ipv4.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// GVCP, the control protocol of the GigE Vision standard: constants and packets.
namespace Common::Gvcp {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint16_t port = 3956;
constexpr std::size_t headerSize = 8;
constexpr std::uint32_t wordSize = 4;                ///< of a register; memory is read and written in whole words
constexpr std::size_t largestPayload = 576 - 20 - 8; ///< of a UDP datagram that is never fragmented
constexpr std::size_t largestMemory = 536;           ///< read or written by one packet

enum class Command : std::uint16_t {
    Discovery = 0x0002,
    ForceIp = 0x0004,
    PacketResend = 0x0040,
    ReadRegister = 0x0080,
    WriteRegister = 0x0082,
    ReadMemory = 0x0084,
    WriteMemory = 0x0086,
    Action = 0x0100,
};

enum class Status : std::uint16_t {
    Success = 0x0000,
    NotImplemented = 0x8001,
    InvalidParameter = 0x8002,
    InvalidAddress = 0x8003,
    WriteProtected = 0x8004,
    BadAlignment = 0x8005,
    AccessDenied = 0x8006,
    Busy = 0x8007,
    Error = 0x8FFF,
};

// Numbers in packets are big-endian.
[[nodiscard]] std::uint16_t Get16(std::span<const std::uint8_t> bytes);
[[nodiscard]] std::uint32_t Get32(std::span<const std::uint8_t> bytes);
void Put16(Bytes& bytes, std::uint32_t value);
void Put32(Bytes& bytes, std::uint32_t value);

/// A packet of an application.
struct Request {
    bool wantsAcknowledge;
    bool wantsBroadcast; ///< the acknowledge may be broadcast, if the application is in another subnet
    Command command;     ///< may be unknown
    std::uint16_t id;
    std::span<const std::uint8_t> payload; ///< in the datagram
};

/// Parses a datagram. Returns nothing for a wrong key, a zero id, a wrong length, or a datagram that is too long.
[[nodiscard]] std::optional<Request> Parse(std::span<const std::uint8_t> datagram);

/// The packet of a request that wants an acknowledge.
[[nodiscard]] Bytes MakeRequest(Command command, std::uint16_t id, const Bytes& payload, bool wantsBroadcast = false);

/// The acknowledge of a request.
[[nodiscard]] Bytes Acknowledge(const Request& request, Status status, const Bytes& payload = {});

/// What a camera answers to a request.
struct Answer {
    Status status; ///< may be unknown
    Bytes payload;
};

/// Parses the acknowledge of a request with that command and id. Returns nothing for any other datagram.
[[nodiscard]] std::optional<Answer> ParseAcknowledge(std::span<const std::uint8_t> datagram, Command command,
                                                     std::uint16_t id);

/// What ForceIp asks for: the camera with that MAC address takes that IP configuration until its next start.
struct ForcedIp {
    std::uint64_t mac = 0;
    IpConfiguration ip;
};
[[nodiscard]] Bytes MakeForcedIp(const ForcedIp& forced);
/// @return nothing for a payload of another size
[[nodiscard]] std::optional<ForcedIp> ParseForcedIp(std::span<const std::uint8_t> payload);

} // namespace Common::Gvcp
