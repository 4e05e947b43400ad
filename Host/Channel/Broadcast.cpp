#include "Host/Channel/Broadcast.h"

#include "Common/Ipv4.h"

#include <net/if.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>

namespace Host {

namespace Gvcp = Common::Gvcp;

namespace {

constexpr std::uint32_t toAll = 0xFFFFFFFF;

sockaddr_in SocketName(std::uint32_t address, std::uint16_t port) {
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_port = htons(port);
    name.sin_addr.s_addr = htonl(address);
    return name;
}

/// @return -1 if the address cannot be used
int BoundSocket(std::uint32_t address, std::uint16_t port) {
    const int handle = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    setsockopt(handle, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
    const sockaddr_in name = SocketName(address, port);
    if (bind(handle, reinterpret_cast<const sockaddr*>(&name), sizeof name) != 0) {
        close(handle);
        return -1;
    }
    return handle;
}

std::uint16_t PortOf(int handle) {
    sockaddr_in name{};
    socklen_t size = sizeof name;
    getsockname(handle, reinterpret_cast<sockaddr*>(&name), &size);
    return ntohs(name.sin_port);
}

} // namespace

Broadcast::Broadcast() {
    for (const Common::NetworkInterface& card : Common::NetworkInterfaces()) {
        const bool isNetwork = (card.flags & (IFF_UP | IFF_POINTOPOINT)) == IFF_UP;
        const int sender = isNetwork ? BoundSocket(card.address, 0) : -1;
        if (sender < 0) {
            continue;
        }
        senders.push_back(sender);
        receivers.push_back(sender);
        if (const int receiver = BoundSocket(toAll, PortOf(sender)); receiver >= 0) { // a socket takes only one address
            receivers.push_back(receiver);
        }
    }
}

Broadcast::~Broadcast() {
    for (const int handle : receivers) {
        close(handle);
    }
}

void Broadcast::Send(Gvcp::Command command, const Gvcp::Bytes& payload) {
    last = command;
    request = Gvcp::MakeRequest(command, ++lastId, payload, true);
    Repeat();
}

void Broadcast::Repeat() const {
    const sockaddr_in all = SocketName(toAll, Gvcp::port);
    for (const int handle : senders) { // a failure counts as a lost packet
        static_cast<void>(
            sendto(handle, request.data(), request.size(), 0, reinterpret_cast<const sockaddr*>(&all), sizeof all));
    }
}

std::optional<Gvcp::Answer> Broadcast::Receive(Clock::time_point end) const {
    std::vector<pollfd> waiting;
    for (const int handle : receivers) {
        waiting.push_back({handle, POLLIN, 0});
    }
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        if (left <= 0 || receivers.empty()) {
            return std::nullopt;
        }
        poll(waiting.data(), waiting.size(), static_cast<int>(left));
        for (const pollfd& each : waiting) {
            Gvcp::Bytes datagram(1500);
            const ssize_t size = recv(each.fd, datagram.data(), datagram.size(), MSG_DONTWAIT);
            datagram.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
            if (auto answer = Gvcp::ParseAcknowledge(datagram, last, lastId)) {
                return answer;
            }
        }
    }
}

} // namespace Host
