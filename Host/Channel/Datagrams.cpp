#include "Host/Channel/Datagrams.h"

#include "Host/Errors.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <vector>

namespace Host {

namespace {

constexpr std::uint16_t controlPort = 3956; ///< of every GigE Vision camera
constexpr int patience = 300;               ///< milliseconds to wait for an answer ...
constexpr int trials = 4;                   ///< ... as often as this

/// A socket for datagrams to one address.
class Socket {
public:
    Socket(const std::string& address, std::uint16_t port) : handle(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in peer{};
        peer.sin_family = AF_INET;
        peer.sin_port = htons(port);
        inet_pton(AF_INET, address.c_str(), &peer.sin_addr);
        if (connect(handle, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) != 0) {
            const std::string why = std::strerror(errno);
            close(handle);
            throw OpenError("there is no way to " + address + ": " + why);
        }
    }
    ~Socket() { close(handle); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    [[nodiscard]] std::string LocalAddress() const {
        sockaddr_in local{};
        socklen_t size = sizeof local;
        getsockname(handle, reinterpret_cast<sockaddr*>(&local), &size);
        return PrintAddress(ntohl(local.sin_addr.s_addr));
    }
    void Send(const std::vector<std::uint8_t>& datagram) const {
        static_cast<void>(send(handle, datagram.data(), datagram.size(), 0)); // it may get lost as well later
    }
    /// @return nothing if none comes in time
    [[nodiscard]] std::vector<std::uint8_t> Receive() const {
        pollfd waiting{handle, POLLIN, 0};
        if (poll(&waiting, 1, patience) != 1) {
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

bool IsAddress(const std::string& text) {
    in_addr ignored{};
    return inet_pton(AF_INET, text.c_str(), &ignored) == 1;
}

std::string PrintAddress(std::uint32_t address) {
    const in_addr network{htonl(address)};
    std::array<char, INET_ADDRSTRLEN> text{};
    return inet_ntop(AF_INET, &network, text.data(), text.size());
}

bool HasNetworkInterface() {
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0) {
        return true; // nobody knows that there is none
    }
    bool found = false;
    for (const ifaddrs* each = list; each != nullptr; each = each->ifa_next) {
        const unsigned up = each->ifa_flags & (IFF_UP | IFF_LOOPBACK | IFF_POINTOPOINT);
        found = found || (up == IFF_UP && each->ifa_addr != nullptr && each->ifa_addr->sa_family == AF_INET);
    }
    freeifaddrs(list);
    return found;
}

std::string LocalAddressTowards(const std::string& address) { return Socket(address, controlPort).LocalAddress(); }

std::optional<std::string> ReadTextWithoutControl(const std::string& camera, std::uint32_t memory,
                                                  std::uint16_t length) {
    const auto byte = [](std::uint32_t value, int index) { return static_cast<std::uint8_t>(value >> 8 * index); };
    // The standard's READMEM: key, flag "answer me", command, length of what follows, request; address, count.
    const std::vector<std::uint8_t> request{0x42,
                                            0x01,
                                            0x00,
                                            0x84,
                                            0x00,
                                            0x08,
                                            0x00,
                                            0x01,
                                            byte(memory, 3),
                                            byte(memory, 2),
                                            byte(memory, 1),
                                            byte(memory, 0),
                                            0x00,
                                            0x00,
                                            byte(length, 1),
                                            byte(length, 0)};
    // Status, command of the answer, length of what follows, request; the address again, then what it holds.
    const std::vector<std::uint8_t> expected{0x00, 0x00, 0x00, 0x85, byte(length + 4U, 1), byte(length + 4U, 0),
                                             0x00, 0x01};
    constexpr std::size_t header = 12;
    const Socket socket(camera, controlPort);
    for (int trial = 0; trial < trials; ++trial) {
        socket.Send(request);
        const auto answer = socket.Receive();
        if (answer.size() >= header + length && std::equal(expected.begin(), expected.end(), answer.begin())) {
            const auto begin = answer.begin() + header;
            return std::string(begin, std::find(begin, begin + length, 0));
        }
    }
    return std::nullopt;
}

} // namespace Host
