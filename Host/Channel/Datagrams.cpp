#include "Host/Channel/Datagrams.h"

#include "Common/Gvcp.h"
#include "Common/Ipv4.h"
#include "Host/Errors.h"

#include <arpa/inet.h>
#include <net/if.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

namespace Host {

namespace {

constexpr int timeout = 300; ///< milliseconds to wait for an answer
constexpr int attempts = 4;  ///< requests sent before giving up

/// A socket for datagrams to the control port of one camera.
class Socket {
public:
    explicit Socket(const std::string& address) : handle(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in peer{};
        peer.sin_family = AF_INET;
        peer.sin_port = htons(Common::Gvcp::port);
        inet_pton(AF_INET, address.c_str(), &peer.sin_addr);
        if (connect(handle, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) != 0) {
            const std::string why = std::strerror(errno);
            close(handle);
            throw OpenError("cannot reach " + address + ": " + why);
        }
    }
    ~Socket() { close(handle); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    [[nodiscard]] std::string LocalAddress() const {
        sockaddr_in local{};
        socklen_t size = sizeof local;
        getsockname(handle, reinterpret_cast<sockaddr*>(&local), &size);
        return Common::PrintAddress(ntohl(local.sin_addr.s_addr));
    }
    void Send(const std::vector<std::uint8_t>& datagram) const {
        static_cast<void>(send(handle, datagram.data(), datagram.size(), 0)); // a failure counts as a lost packet
    }
    /// @return empty after the timeout
    [[nodiscard]] std::vector<std::uint8_t> Receive() const {
        pollfd waiting{handle, POLLIN, 0};
        if (poll(&waiting, 1, timeout) != 1) {
            return {};
        }
        std::vector<std::uint8_t> datagram(1500);
        const ssize_t size = recv(handle, datagram.data(), datagram.size(), 0);
        datagram.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
        return datagram;
    }

private:
    int handle;
};

} // namespace

bool HasNetworkInterface() {
    const auto interfaces = Common::NetworkInterfaces();
    return std::any_of(interfaces.begin(), interfaces.end(), [](const Common::NetworkInterface& each) {
        return (each.flags & (IFF_UP | IFF_LOOPBACK | IFF_POINTOPOINT)) == IFF_UP;
    });
}

std::string LocalAddressFor(const std::string& address) { return Socket(address).LocalAddress(); }

std::optional<std::string> ReadTextWithoutControl(const std::string& camera, std::uint32_t memory,
                                                  std::uint16_t length) {
    namespace Gvcp = Common::Gvcp;
    Gvcp::Bytes place;
    Gvcp::Put32(place, memory);
    Gvcp::Put32(place, length);
    const Gvcp::Bytes request = Gvcp::MakeRequest(Gvcp::Command::ReadMemory, 1, place);
    // The header of the acknowledge is known. The address and the data follow.
    const Gvcp::Bytes expected =
        Gvcp::Acknowledge(*Gvcp::Parse(request), Gvcp::Status::Success, Gvcp::Bytes(sizeof memory + length));
    const Socket socket(camera);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        socket.Send(request);
        const auto answer = socket.Receive();
        if (answer.size() >= expected.size() &&
            std::equal(expected.begin(), expected.begin() + Gvcp::headerSize, answer.begin())) {
            const auto begin = answer.begin() + Gvcp::headerSize + sizeof memory;
            return std::string(begin, std::find(begin, begin + length, 0));
        }
    }
    return std::nullopt;
}

} // namespace Host
