#include "Simulation/GigEVision/StreamSocket.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace Simulation::GigEVision {

namespace {

sockaddr_in SocketAddress(const Endpoint& endpoint) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(endpoint.port);
    address.sin_addr.s_addr = htonl(endpoint.address);
    return address;
}

/// sendmmsg does not change the bytes, but its declaration is not const.
iovec VectorOf(std::span<const std::uint8_t> bytes) { return {const_cast<std::uint8_t*>(bytes.data()), bytes.size()}; }

} // namespace

StreamSocket::StreamSocket(std::uint32_t address)
    : descriptor(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)),
      self{address, 0} {
    sockaddr_in name = SocketAddress(self);
    socklen_t length = sizeof name;
    if (bind(descriptor, reinterpret_cast<sockaddr*>(&name), length) != 0 ||
        getsockname(descriptor, reinterpret_cast<sockaddr*>(&name), &length) != 0) {
        const std::string reason = std::strerror(errno);
        close(descriptor);
        throw std::runtime_error("no port for the stream: " + reason);
    }
    self.port = ntohs(name.sin_port);
    const int size = 4 << 20; // a burst then does not wait for the network card
    setsockopt(descriptor, SOL_SOCKET, SO_SNDBUF, &size, sizeof size);
    dontFragment = true;
    SetDontFragment(false);
}

StreamSocket::~StreamSocket() { close(descriptor); }

void StreamSocket::SetDontFragment(bool set) {
    if (set != dontFragment) {
        const int discovery = set ? IP_PMTUDISC_DO : IP_PMTUDISC_INTERFACE; // neither has this machine fragment
        setsockopt(descriptor, IPPROTO_IP, IP_MTU_DISCOVER, &discovery, sizeof discovery);
        dontFragment = set;
    }
}

void StreamSocket::Send(const Endpoint& to, std::span<const Gvsp::Packet> packets) {
    sockaddr_in name = SocketAddress(to);
    std::array<iovec, 2 * mostPackets> vectors{};
    std::array<mmsghdr, mostPackets> messages{};
    for (std::size_t i = 0; i < packets.size(); ++i) {
        vectors[2 * i] = VectorOf(packets[i].Head());
        vectors[2 * i + 1] = VectorOf(packets[i].data);
        msghdr& header = messages[i].msg_hdr;
        header.msg_name = &name;
        header.msg_namelen = sizeof name;
        header.msg_iov = &vectors[2 * i];
        header.msg_iovlen = 2;
    }
    for (std::size_t sent = 0; sent < packets.size();) {
        const int count = sendmmsg(descriptor, &messages[sent], static_cast<unsigned int>(packets.size() - sent), 0);
        sent += count > 0 ? static_cast<std::size_t>(count) : 1; // a packet that cannot be sent is lost
    }
}

} // namespace Simulation::GigEVision
