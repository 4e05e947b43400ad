#pragma once

#include <SDK4/IControlPort.h>

#include <cstdint>
#include <string>

namespace Host {

/// Test packets of a camera's stream channel: whether packets of a size arrive at this machine. They come to a socket
/// of their own; afterwards the stream goes where it went before.
class TestPackets {
public:
    /// @param ofCamera  a port with control, while acquisition is stopped
    /// @param address   of the network card that faces the camera
    TestPackets(SDK4::IControlPort& ofCamera, std::uint32_t address);
    ~TestPackets();
    TestPackets(const TestPackets&) = delete;
    TestPackets& operator=(const TestPackets&) = delete;

    /// Requests a packet of that size, with all headers, which the network must not fragment, up to three times.
    /// @return the size that arrived: the camera rounds it; 0 if none came
    [[nodiscard]] std::uint32_t Try(std::uint32_t size);

private:
    SDK4::IControlPort& port;
    std::uint32_t portBefore;
    std::uint32_t sizeBefore;
    int descriptor;
};

} // namespace Host
