#pragma once

#include "Simulation/GigEVision/Disturbances.h"
#include "Simulation/GigEVision/Recorder.h"
#include "Simulation/World.h"

#include <cstdint>
#include <memory>
#include <mutex>

namespace Simulation::GigEVision {

/// How a stream is sent.
struct StreamOptions {
    std::uint32_t megabytesPerSecond = 125; ///< of the link: Gigabit Ethernet; 0: as fast as this machine can
    double drop = 0;                        ///< share of the packets that are lost
    std::chrono::milliseconds delay{0};     ///< the longest delay of a packet
    std::uint64_t seed = 0;                 ///< of the scene, and of the losses
};

/// Sends the blocks of a device's stream, in a thread of its own.
class StreamSender {
public:
    /// @param guarded  the device, used only under the mutex
    /// @param recorder records what is sent; may be null
    /// @throws std::runtime_error if the address has no port left
    StreamSender(Device& guarded, std::mutex& mutex, std::uint32_t address, const StreamOptions& options,
                 Recorder* recorder);
    ~StreamSender();
    StreamSender(const StreamSender&) = delete;
    StreamSender& operator=(const StreamSender&) = delete;

    /// Call it after a request to the device.
    void Wake();

private:
    class Thread;
    std::unique_ptr<Thread> thread;
};

} // namespace Simulation::GigEVision
