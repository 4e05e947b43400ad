#pragma once

#include "Simulation/GigEVision/Disturbances.h"
#include "Simulation/GigEVision/Recorder.h"
#include "Simulation/World.h"

#include <cstdint>
#include <memory>
#include <mutex>

namespace Simulation::GigEVision {

/// How a stream gets into the network.
struct StreamOptions {
    std::uint32_t megabytesPerSecond = 125; ///< of the link: Gigabit Ethernet; 0: as fast as this machine can
    double drop = 0;                        ///< share of the packets that get lost
    std::chrono::milliseconds delay{0};     ///< the longest time for which a packet is held back
    std::uint64_t seed = 0;                 ///< of what the camera sees, and of what gets lost
};

/// Sends the blocks of a device's stream, in a thread of its own.
class StreamSender {
public:
    /// @param guarded  the device, which is used under the mutex alone
    /// @param recorder records what is sent; may be null
    /// @throws std::runtime_error if the address has no port left
    StreamSender(Device& guarded, std::mutex& mutex, std::uint32_t address, const StreamOptions& options,
                 Recorder* recorder);
    ~StreamSender();
    StreamSender(const StreamSender&) = delete;
    StreamSender& operator=(const StreamSender&) = delete;

    /// Tells that something was requested of the device.
    void Wake();

private:
    class Thread;
    std::unique_ptr<Thread> thread;
};

} // namespace Simulation::GigEVision
