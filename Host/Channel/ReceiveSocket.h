#pragma once

#include <cstdint>

namespace Host {

/// A UDP socket of this process that a library keeps to itself, found by its port. The system knows how many packets it
/// had no room for.
class ReceiveSocket {
public:
    explicit ReceiveSocket(std::uint16_t port);

    /// Asks for a buffer of that size. The system grants less, silently, if it is set up so.
    void Enlarge(std::uint64_t bytes) const;
    /// As the system granted it; 0 if there is no such socket.
    [[nodiscard]] std::uint64_t BufferSize() const;
    /// Packets that came while the buffer was full.
    [[nodiscard]] std::uint64_t Dropped() const;

private:
    int descriptor = -1; ///< the library's
};

} // namespace Host
