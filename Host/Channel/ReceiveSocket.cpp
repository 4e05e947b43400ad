#include "Host/Channel/ReceiveSocket.h"

#include "Common/Number.h"

#include <linux/sock_diag.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <limits>

namespace Host {

namespace {

bool IsUdpSocketAt(int descriptor, std::uint16_t port) {
    int type = 0;
    socklen_t length = sizeof type;
    if (getsockopt(descriptor, SOL_SOCKET, SO_TYPE, &type, &length) != 0 || type != SOCK_DGRAM) {
        return false;
    }
    sockaddr_in local{};
    length = sizeof local;
    return getsockname(descriptor, reinterpret_cast<sockaddr*>(&local), &length) == 0 && local.sin_family == AF_INET &&
           ntohs(local.sin_port) == port;
}

} // namespace

ReceiveSocket::ReceiveSocket(std::uint16_t port) {
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd", ignored)) {
        const auto number = Common::ParseWhole<int>(entry.path().filename().string());
        if (number && IsUdpSocketAt(*number, port)) {
            descriptor = *number;
        }
    }
}

void ReceiveSocket::Enlarge(std::uint64_t bytes) const {
    const int size = static_cast<int>(std::min<std::uint64_t>(bytes, std::numeric_limits<int>::max() / 2));
    if (size > 0 && static_cast<std::uint64_t>(size) > BufferSize()) {
        setsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &size, sizeof size);
    }
}

/// The system reports twice the granted size, including its own overhead.
std::uint64_t ReceiveSocket::BufferSize() const {
    int size = 0;
    socklen_t length = sizeof size;
    return getsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &size, &length) == 0 ? static_cast<std::uint64_t>(size) / 2
                                                                              : 0;
}

std::uint64_t ReceiveSocket::Dropped() const {
    std::array<std::uint32_t, SK_MEMINFO_VARS> counts{};
    socklen_t length = sizeof counts;
    return getsockopt(descriptor, SOL_SOCKET, SO_MEMINFO, counts.data(), &length) == 0 ? counts[SK_MEMINFO_DROPS] : 0;
}

} // namespace Host
