#pragma once

#include <chrono>
#include <cstdint>
#include <span>
#include <string>

namespace Host {

/// The format of the pictures of a camera.
struct PictureFormat {
    std::uint32_t pixelFormat = 0; ///< of the GigE Vision standard
    std::uint32_t width = 0;       ///< in pixels
    std::uint32_t height = 0;

    bool operator==(const PictureFormat&) const = default;
};

/// A picture as a camera sent it.
struct Picture {
    PictureFormat format{};
    std::uint64_t number = 0;         ///< counted by the camera
    std::chrono::nanoseconds time{0}; ///< by the clock of the camera
    std::span<const std::uint8_t> bytes{};
};

/// Losses of the stream. A camera in process sends no packets.
struct StreamStatistics {
    std::uint64_t missing = 0;      ///< frames that did not arrive, or not completely
    std::uint64_t resent = 0;       ///< packets that arrived after a resend request
    std::uint64_t dropped = 0;      ///< packets lost because the socket buffer of this machine was full
    std::uint32_t packetSize = 0;   ///< in bytes, with all headers
    std::uint64_t socketBuffer = 0; ///< in bytes, as granted by the system
};

/// Receives the pictures of a camera. Open it before acquisition starts, and close it after acquisition has stopped.
class PictureSource {
public:
    PictureSource() = default;
    virtual ~PictureSource() = default;
    PictureSource(const PictureSource&) = delete;
    PictureSource& operator=(const PictureSource&) = delete;

    /// Waits for the next frame, on the thread that owns the camera. Ends the validity of the last picture.
    /// @param longest the longest wait; in process, in simulated time
    /// @return whether one came
    [[nodiscard]] virtual bool Await(std::chrono::milliseconds longest) = 0;
    /// The picture of the frame that came last; on any thread. It takes long for a simulated camera in process, and
    /// needs no access to the camera.
    [[nodiscard]] virtual const Picture& Develop() = 0;

    /// Waits for the next picture.
    /// @param longest as above
    /// @return null if none came. A picture is valid until the next one arrives.
    [[nodiscard]] const Picture* Next(std::chrono::milliseconds longest) {
        return Await(longest) ? &Develop() : nullptr;
    }

    [[nodiscard]] virtual StreamStatistics Statistics() const = 0;
    /// Why pictures may have been lost, for a message; empty if nothing is known.
    [[nodiscard]] virtual std::string ExplainLosses() const = 0;
};

} // namespace Host
