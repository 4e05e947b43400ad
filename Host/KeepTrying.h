#pragma once

#include "Host/CameraName.h"
#include "Host/Command.h"
#include "Host/Interrupts.h"

#include <chrono>
#include <functional>
#include <string>

namespace Host {

/// Runs work on the camera of a command. With --keep-trying it waits as long as the camera cannot be opened, is lost,
/// or is controlled by another program, and then begins the work again. Without, the work runs once.
class KeepTrying {
public:
    struct Options {
        /// Told once that the camera is gone, and once that another program controls it.
        std::function<void(const std::string& why)> waits;
        /// Told when the camera is open again.
        std::function<void(std::chrono::milliseconds gone)> goesOn;
        /// Whether the work needs control. Asked before each begin.
        std::function<bool()> needsControl;
        /// Asked while waiting.
        std::function<bool()> shouldEnd = Interrupts::Received;
    };

    /// @throws UsageError for a camera that cannot be waited for: a simulated one, or that of a shell
    KeepTrying(const Invocation& command, Options chosen);

    /// @return whether the work ended, and not the waiting for the camera
    /// @throws OpenError; what the work throws, except a lost or unavailable camera that is waited for
    bool Run(const std::function<void(Session&)>& work);

private:
    using Clock = std::chrono::steady_clock;

    [[nodiscard]] Session& Open(const std::string& name);
    [[nodiscard]] Session& Reopen();
    void Wait(const std::string& why, bool& isTold);

    const Invocation& invocation;
    Options options;
    bool keeps;
    CameraName camera;       ///< if it keeps trying
    std::string model;       ///< of the camera, once it was open
    Clock::time_point since; ///< when it was lost, while waiting
    // While waiting, whether it was told that the camera does not answer, and that another program controls it.
    bool toldGone = false;
    bool toldControlled = false;
};

} // namespace Host
