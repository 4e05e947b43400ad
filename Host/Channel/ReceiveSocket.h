#pragma once

#include <cstdint>

namespace Host {

/// A UDP socket of this process that a library does not expose, found by its port. The system counts the packets that
/// it dropped.
class ReceiveSocket {
public:
    explicit ReceiveSocket(std::uint16_t port);

    /// Requests a buffer of that size. The system may silently grant less.
    void Enlarge(std::uint64_t bytes) const;
    /// The size that the system granted; 0 if there is no such socket.
    [[nodiscard]] std::uint64_t BufferSize() const;
    /// The number of packets that arrived while the buffer was full.
    [[nodiscard]] std::uint64_t Dropped() const;

private:
    int descriptor = -1; ///< owned by the library
};

} // namespace Host
