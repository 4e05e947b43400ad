#pragma once

#include "Simulation/Picture/Settings.h"
#include "Simulation/SimulatedCamera.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace Simulation {

/// A frame that a camera has exposed and read out.
struct ExposedFrame {
    std::uint64_t number;           ///< counted from 1 since power-up
    std::chrono::microseconds time; ///< of the camera, at which it was ready
    Picture::Settings settings;     ///< with which it was made
};

/// When a camera delivers frames, in the camera's own time.
///
/// | Exposure mode                        | A frame is ready                                                          |
/// |--------------------------------------|---------------------------------------------------------------------------|
/// | free running, both                   | one frame duration after the one before; after 1/frame rate if that is
/// longer | | reset-restart, of Orvik              | after a software trigger, "triggerdelay" and one frame duration |
/// | frame on demand, of Orvik            | at a software trigger                                                     |
/// | any, of M2VX, which has no trigger   | as in the free-running modes                                              |
///
/// A trigger while a frame is on its way is ignored. In acquisition mode SingleFrame acquisition stops after a frame.
class Acquisition {
public:
    /// @param ofCamera must outlive the acquisition and be given to no other one
    explicit Acquisition(SimulatedCamera& ofCamera);
    Acquisition(const Acquisition&) = delete; // the camera's behaviours know it
    Acquisition& operator=(const Acquisition&) = delete;

    /// The camera's time at which the next frame is ready; nothing without acquisition, or while a trigger is awaited.
    [[nodiscard]] std::optional<std::chrono::microseconds> Due() const;
    /// Whether the next frame needs a trigger.
    [[nodiscard]] bool AwaitsTrigger() const;
    /// The next frame, if it is ready at the camera's time. Frames that nobody took in time are lost.
    [[nodiscard]] std::optional<ExposedFrame> Take();

    /// Has a free-running camera deliver a frame whenever one is taken.
    void IgnoreFrameDuration() { paced = false; }

private:
    [[nodiscard]] bool IsAcquiring() const;
    [[nodiscard]] bool IsTriggered() const;
    [[nodiscard]] std::chrono::microseconds Period() const;
    void Trigger();

    SimulatedCamera& camera;
    const bool hasTrigger;
    bool paced = true;
    std::uint64_t frames = 0;
    std::chrono::microseconds last{0};                    ///< when the frame before was ready, or acquisition began
    std::optional<std::chrono::microseconds> triggered{}; ///< when the frame of the trigger will be ready
};

} // namespace Simulation
