#include "Common/Gvcp.h"

#include <utility>

namespace Common::Gvcp {

namespace {

constexpr std::uint8_t key = 0x42;
constexpr std::uint8_t acknowledgeFlag = 0x01;
constexpr std::uint8_t broadcastFlag = 0x10; ///< of Discovery and ForceIp

// The payload of ForceIp. All else is reserved.
constexpr std::size_t forcedIpSize = 56;
constexpr std::size_t macAt = 2; ///< six bytes
constexpr std::size_t addressAt = 20;
constexpr std::size_t maskAt = 36;
constexpr std::size_t gatewayAt = 52;

std::uint32_t AcknowledgeOf(Command command) { return static_cast<std::uint32_t>(command) + 1; } // as in the standard

/// @param first the first 16 bits: key and flags of a request, or the status of an acknowledge
Bytes Packet(std::uint32_t first, std::uint32_t command, std::uint16_t id, const Bytes& payload) {
    Bytes bytes;
    bytes.reserve(headerSize + payload.size());
    Put16(bytes, first);
    Put16(bytes, command);
    Put16(bytes, static_cast<std::uint32_t>(payload.size()));
    Put16(bytes, id);
    bytes.insert(bytes.end(), payload.begin(), payload.end());
    return bytes;
}

} // namespace

std::uint16_t Get16(std::span<const std::uint8_t> bytes) {
    return static_cast<std::uint16_t>(bytes[0] << 8 | bytes[1]);
}

std::uint32_t Get32(std::span<const std::uint8_t> bytes) {
    return std::uint32_t{Get16(bytes)} << 16 | Get16(bytes.subspan(2));
}

void Put16(Bytes& bytes, std::uint32_t value) {
    bytes.push_back(static_cast<std::uint8_t>(value >> 8));
    bytes.push_back(static_cast<std::uint8_t>(value));
}

void Put32(Bytes& bytes, std::uint32_t value) {
    Put16(bytes, value >> 16);
    Put16(bytes, value);
}

std::optional<Request> Parse(std::span<const std::uint8_t> datagram) {
    if (datagram.size() < headerSize || datagram.size() > largestPayload || datagram[0] != key) {
        return std::nullopt;
    }
    const Request request{(datagram[1] & acknowledgeFlag) != 0, (datagram[1] & broadcastFlag) != 0,
                          Command{Get16(datagram.subspan(2))}, Get16(datagram.subspan(6)),
                          datagram.subspan(headerSize)};
    if (request.id == 0 || Get16(datagram.subspan(4)) != request.payload.size()) {
        return std::nullopt;
    }
    return request;
}

Bytes MakeRequest(Command command, std::uint16_t id, const Bytes& payload, bool wantsBroadcast) {
    const int flags = acknowledgeFlag | (wantsBroadcast ? broadcastFlag : 0);
    return Packet(static_cast<std::uint32_t>(key << 8 | flags), static_cast<std::uint32_t>(command), id, payload);
}

Bytes Acknowledge(const Request& request, Status status, const Bytes& payload) {
    return Packet(static_cast<std::uint32_t>(status), AcknowledgeOf(request.command), request.id, payload);
}

std::optional<Answer> ParseAcknowledge(std::span<const std::uint8_t> datagram, Command command, std::uint16_t id) {
    if (datagram.size() < headerSize || Get16(datagram.subspan(2)) != AcknowledgeOf(command) ||
        Get16(datagram.subspan(4)) != datagram.size() - headerSize || Get16(datagram.subspan(6)) != id) {
        return std::nullopt;
    }
    return Answer{Status{Get16(datagram)}, Bytes(datagram.begin() + headerSize, datagram.end())};
}

Bytes MakeForcedIp(const ForcedIp& forced) {
    Bytes payload(macAt);
    Put16(payload, static_cast<std::uint32_t>(forced.mac >> 32));
    Put32(payload, static_cast<std::uint32_t>(forced.mac));
    for (const auto& [at, word] :
         {std::pair{addressAt, forced.ip.address}, {maskAt, forced.ip.subnetMask}, {gatewayAt, forced.ip.gateway}}) {
        payload.resize(at);
        Put32(payload, word);
    }
    return payload;
}

std::optional<ForcedIp> ParseForcedIp(std::span<const std::uint8_t> payload) {
    if (payload.size() != forcedIpSize) {
        return std::nullopt;
    }
    const std::uint64_t mac = std::uint64_t{Get16(payload.subspan(macAt))} << 32 | Get32(payload.subspan(macAt + 2));
    return ForcedIp{
        mac, {Get32(payload.subspan(addressAt)), Get32(payload.subspan(maskAt)), Get32(payload.subspan(gatewayAt))}};
}

} // namespace Common::Gvcp
