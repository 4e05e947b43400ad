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
    std::chrono::microseconds time; ///< of the camera, when the frame was ready
    Picture::Settings settings;     ///< of its exposure
};

/// When a camera delivers frames, in the camera's own time.
///
/// | Exposure mode          | A frame is ready                                                              |
/// |------------------------|-------------------------------------------------------------------------------|
/// | free running, both     | after a frame duration, or after 1/frame rate if that is longer               |
/// | Orvik, reset-restart   | after a software trigger, "triggerdelay" and a frame duration                 |
/// | Orvik, frame on demand | at a software trigger                                                         |
/// | M2VX, any              | as in the free-running modes: the family has no software trigger              |
///
/// A trigger is ignored until the frame of the last one is ready. In acquisition mode SingleFrame, acquisition stops
/// after one frame.
class Acquisition {
public:
    /// @param ofCamera must outlive the acquisition, and may have only one
    explicit Acquisition(SimulatedCamera& ofCamera);
    Acquisition(const Acquisition&) = delete; // the behaviours of the camera refer to it
    Acquisition& operator=(const Acquisition&) = delete;

    /// The camera's time at which the next frame is ready; nothing without acquisition, or before a trigger.
    [[nodiscard]] std::optional<std::chrono::microseconds> Due() const;
    /// Whether the next frame needs a trigger.
    [[nodiscard]] bool AwaitsTrigger() const;
    /// The next frame, if it is ready. Frames that were not taken in time are lost.
    [[nodiscard]] std::optional<ExposedFrame> Take();

    /// A free-running camera then has a frame ready at any time.
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
    std::chrono::microseconds last{0};                    ///< when the last frame was ready, or acquisition began
    std::optional<std::chrono::microseconds> triggered{}; ///< when the triggered frame is ready
};

} // namespace Simulation
