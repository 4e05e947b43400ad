#pragma once

#include "Host/Pictures/PictureSource.h"
#include "Host/Session.h"

#include <SDK4/IStreamControl.h>
#include <SDK4/ITrigger.h>

#include <memory>

namespace Host {

/// Acquisition of an opened camera, which runs while one lives.
class Acquisition {
public:
    /// Opens the stream for pictures as the camera is set to, and starts acquisition. One that ran is stopped before.
    /// @throws std::runtime_error if the stream cannot be opened; X4Error; ChannelError
    explicit Acquisition(Session& opened);
    /// Stops acquisition, unless that was done, whatever becomes of it.
    ~Acquisition();
    Acquisition(const Acquisition&) = delete;
    Acquisition& operator=(const Acquisition&) = delete;

    [[nodiscard]] const PictureFormat& Format() const { return format; }
    /// How long Next waits: longer than a frame takes, as far as the control tells that.
    [[nodiscard]] std::chrono::milliseconds Patience() const { return patience; }

    /// Waits for the next picture; has the camera make it, in an exposure mode that waits for a trigger.
    /// @return null if none came, or a signal (Interrupts). A picture stays valid until the next one, or the end.
    /// @throws std::runtime_error for a frame that is not of that format; ChannelLost
    [[nodiscard]] const Picture* Next();

    /// @throws X4Error; ChannelError
    void Stop();

    [[nodiscard]] const PictureSource& Source() const { return *source; }

private:
    void Abandon();

    Session& session;
    SDK4::IStreamControl& control;
    SDK4::Control::ITrigger* trigger = nullptr; ///< null for a camera that runs freely
    PictureFormat format;
    std::chrono::milliseconds patience;
    std::unique_ptr<PictureSource> source;
    Picture picture{};
    bool runs = false;
};

} // namespace Host
