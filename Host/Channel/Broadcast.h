#pragma once

#include "Common/Gvcp.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace Host {

/// Requests to the cameras on every network of this machine, whatever their addresses are. Cameras in another subnet
/// may broadcast what they answer.
class Broadcast {
public:
    using Clock = std::chrono::steady_clock;

    Broadcast();
    ~Broadcast();
    Broadcast(const Broadcast&) = delete;
    Broadcast& operator=(const Broadcast&) = delete;

    /// Sends a request on every network. The answers to earlier ones are ignored from now on.
    void Send(Common::Gvcp::Command command, const Common::Gvcp::Bytes& payload);
    /// Sends the last request again.
    void Repeat() const;
    /// The next answer, or nothing if none arrives in time.
    [[nodiscard]] std::optional<Common::Gvcp::Answer> Receive(Clock::time_point end) const;

private:
    Common::Gvcp::Command last{};
    std::uint16_t lastId = 0;
    Common::Gvcp::Bytes request;
    std::vector<int> senders;   ///< one on each address of this machine
    std::vector<int> receivers; ///< the same, and what is broadcast to them
};

} // namespace Host
