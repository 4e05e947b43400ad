#include "Host/Channel/TestPackets.h"

#include "Common/Bootstrap.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <vector>

namespace Host {

using namespace Common::Bootstrap;

namespace {

constexpr std::uint32_t fire = 0x80000000;
constexpr std::uint32_t doNotFragment = 0x40000000;
constexpr std::uint32_t headers = 20 + 8; ///< IP and UDP
constexpr int testAttempts = 3;
constexpr int testTimeout = 100; ///< milliseconds

/// @return a socket with a port of its own; -1 if there is none
int OpenSocket(std::uint32_t address, std::uint16_t& port) {
    const int descriptor = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sockaddr_in local{};
    local.sin_family = AF_INET;
    local.sin_addr.s_addr = htonl(address);
    socklen_t length = sizeof local;
    bind(descriptor, reinterpret_cast<sockaddr*>(&local), length);
    getsockname(descriptor, reinterpret_cast<sockaddr*>(&local), &length);
    port = ntohs(local.sin_port);
    return descriptor;
}

} // namespace

TestPackets::TestPackets(SDK4::IControlPort& ofCamera, std::uint32_t address)
    : port(ofCamera),
      portBefore(port.ReadRegister(streamPort)),
      sizeBefore(port.ReadRegister(streamPacketSize)) {
    std::uint16_t own = 0;
    descriptor = OpenSocket(address, own);
    port.WriteRegister(streamPort, own);
}

TestPackets::~TestPackets() {
    close(descriptor);
    try {
        port.WriteRegister(streamPacketSize, sizeBefore);
        port.WriteRegister(streamPort, portBefore);
    } catch (...) { // NOLINT(bugprone-empty-catch): the camera is lost, which the command reports
    }
}

std::uint32_t TestPackets::Try(std::uint32_t size) {
    std::vector<std::uint8_t> packet(65536);
    for (int attempt = 0; attempt < testAttempts; ++attempt) {
        port.WriteRegister(streamPacketSize, fire | doNotFragment | size);
        pollfd waiting{descriptor, POLLIN, 0};
        if (poll(&waiting, 1, testTimeout) == 1) {
            const ssize_t length = recv(descriptor, packet.data(), packet.size(), 0);
            return length < 0 ? 0 : static_cast<std::uint32_t>(length) + headers;
        }
    }
    return 0;
}

} // namespace Host
