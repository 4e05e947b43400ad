#pragma once

#include "Common/Gvcp.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace Host {

constexpr const char* noAnswer = "no answer"; ///< why an access failed

/// The refusal of a camera: "the camera is busy (0x8007)".
[[nodiscard]] std::string DescribeStatus(Common::Gvcp::Status status);

/// Requests to the control port of one camera, over a socket. They only read, and need no control.
class Requests {
public:
    /// Sends nothing.
    /// @param address an IPv4 address
    /// @param tries how often a request is sent before giving up
    /// @throws CameraUnavailable if it cannot be reached
    explicit Requests(const std::string& address, int tries = 6);
    ~Requests();
    Requests(const Requests&) = delete;
    Requests& operator=(const Requests&) = delete;

    /// The local address used to send to the camera.
    [[nodiscard]] std::string LocalAddress() const;

    // These return the answer of the camera, with the data alone, or nothing if it does not answer. Unanswered requests
    // are repeated.
    [[nodiscard]] std::optional<Common::Gvcp::Answer> ReadRegister(std::uint32_t address);
    /// @param address a multiple of 4
    /// @param length a multiple of 4, at most 536
    [[nodiscard]] std::optional<Common::Gvcp::Answer> ReadMemory(std::uint32_t address, std::uint32_t length);

private:
    [[nodiscard]] std::optional<Common::Gvcp::Answer> Make(Common::Gvcp::Command command,
                                                           const Common::Gvcp::Bytes& payload);
    /// Waits for a datagram. Returns an empty one if none can be received.
    [[nodiscard]] Common::Gvcp::Bytes Receive(std::chrono::milliseconds patience) const;

    int handle;
    int attempts;
    std::uint16_t lastId = 0;
};

} // namespace Host
