#pragma once

#include "Host/Pictures/PictureSource.h"
#include "Host/Session.h"

#include <SDK4/ITrigger.h>

#include <memory>

namespace Host {

/// Acquires pictures from an open camera. Acquisition runs as long as the object exists.
class Acquisition {
public:
    /// Opens the stream for pictures of the present format, and starts acquisition. Stops it first if it runs.
    /// @throws std::runtime_error if the stream cannot be opened; X4Error; ChannelError
    explicit Acquisition(Session& opened);
    /// Stops acquisition, unless Stop did. Ignores errors.
    ~Acquisition();
    Acquisition(const Acquisition&) = delete;
    Acquisition& operator=(const Acquisition&) = delete;

    [[nodiscard]] const PictureFormat& Format() const { return format; }
    /// How long Next waits: longer than a frame takes, if the control knows its duration.
    [[nodiscard]] std::chrono::milliseconds Patience() const { return patience; }

    /// Waits for the next picture. In an exposure mode that waits for a trigger, triggers it first.
    /// @return null if none came, or after a signal (Interrupts). A picture is valid until the next call.
    /// @throws std::runtime_error for a frame of another format; ChannelLost
    [[nodiscard]] const Picture* Next();

    /// Whether each exposure waits for a trigger.
    [[nodiscard]] bool IsTriggered() const { return trigger != nullptr; }
    /// Triggers an exposure, if exposures wait for one.
    /// @throws X4Error; ChannelError
    void Trigger();

    /// The picture, cut to the bytes of the format.
    /// @throws std::runtime_error if it has another format or is too short
    [[nodiscard]] Picture Checked(const Picture& came) const;

    /// @throws X4Error; ChannelError
    void Stop();

    [[nodiscard]] PictureSource& Source() const { return *source; }

private:
    void Abandon();

    Session& session;
    SDK4::Control::ITrigger* trigger = nullptr; ///< null in a free-running mode
    PictureFormat format;
    std::chrono::milliseconds patience;
    std::unique_ptr<PictureSource> source;
    Picture picture{};
    bool runs = false;
};

} // namespace Host
