#include "Host/Channel/Requests.h"

#include "Common/Ipv4.h"
#include "Common/Number.h"
#include "Host/Errors.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace Host {

namespace Gvcp = Common::Gvcp;

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds timeout{300}; ///< to wait for an answer

} // namespace

std::string DescribeStatus(Gvcp::Status status) {
    using enum Gvcp::Status;
    switch (status) {
    case NotImplemented:
        return "the camera does not implement the command (0x8001)";
    case InvalidParameter:
        return "invalid parameter (0x8002)";
    case InvalidAddress:
        return "the camera has no such address (0x8003)";
    case WriteProtected:
        return "the register is write-protected (0x8004)";
    case BadAlignment:
        return "bad alignment (0x8005)";
    case AccessDenied:
        return "access denied (0x8006)";
    case Busy:
        return "the camera is busy (0x8007)";
    default:
        return "the camera reports status " + Common::Hex(static_cast<std::uint16_t>(status));
    }
}

Requests::Requests(const std::string& address, int tries)
    : handle(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)),
      attempts(tries) {
    sockaddr_in peer{};
    peer.sin_family = AF_INET;
    peer.sin_port = htons(Gvcp::port);
    inet_pton(AF_INET, address.c_str(), &peer.sin_addr);
    if (connect(handle, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) != 0) {
        const std::string why = std::strerror(errno);
        close(handle);
        throw CameraUnavailable("cannot reach " + address + ": " + why);
    }
}

Requests::~Requests() { close(handle); }

std::string Requests::LocalAddress() const {
    sockaddr_in local{};
    socklen_t size = sizeof local;
    getsockname(handle, reinterpret_cast<sockaddr*>(&local), &size);
    return Common::PrintAddress(ntohl(local.sin_addr.s_addr));
}

std::optional<Gvcp::Answer> Requests::ReadRegister(std::uint32_t address) {
    Gvcp::Bytes place;
    Gvcp::Put32(place, address);
    return Make(Gvcp::Command::ReadRegister, place);
}

std::optional<Gvcp::Answer> Requests::ReadMemory(std::uint32_t address, std::uint32_t length) {
    Gvcp::Bytes place;
    Gvcp::Put32(place, address);
    Gvcp::Put32(place, length);
    auto answer = Make(Gvcp::Command::ReadMemory, place);
    if (answer) { // the data follow the address
        auto& payload = answer->payload;
        payload.erase(payload.begin(), payload.begin() + std::min<std::ptrdiff_t>(std::ssize(payload), 4));
    }
    return answer;
}

std::optional<Gvcp::Answer> Requests::Make(Gvcp::Command command, const Gvcp::Bytes& payload) {
    lastId = lastId == 0xFFFF ? 1 : lastId + 1; // 0 is no id
    const Gvcp::Bytes request = Gvcp::MakeRequest(command, lastId, payload);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const auto end = Clock::now() + timeout;
        static_cast<void>(send(handle, request.data(), request.size(), 0)); // a failure counts as a lost packet
        for (auto left = timeout; left.count() > 0;) {
            // Answers to earlier requests may still arrive.
            if (auto answer = Gvcp::ParseAcknowledge(Receive(left), command, lastId)) {
                return answer;
            }
            left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
        }
    }
    return std::nullopt;
}

Gvcp::Bytes Requests::Receive(std::chrono::milliseconds patience) const {
    pollfd waiting{handle, POLLIN, 0};
    if (poll(&waiting, 1, static_cast<int>(patience.count())) != 1) { // or a signal came
        return {};
    }
    Gvcp::Bytes datagram(1500);
    const ssize_t size = recv(handle, datagram.data(), datagram.size(), 0);
    datagram.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    return datagram;
}

} // namespace Host
