#pragma once

#include <chrono>
#include <cstdint>
#include <span>
#include <string>

namespace Host {

/// What the pictures of a camera are like.
struct PictureFormat {
    std::uint32_t pixelFormat = 0; ///< of the GigE Vision standard
    std::uint32_t width = 0;       ///< in pixels
    std::uint32_t height = 0;

    bool operator==(const PictureFormat&) const = default;
};

/// A picture as a camera sent it.
struct Picture {
    PictureFormat format{};
    std::uint64_t number = 0;         ///< that the camera gave it
    std::chrono::nanoseconds time{0}; ///< of the camera
    std::span<const std::uint8_t> bytes{};
};

/// What became of the frames that a camera sent. In process there are no packets.
struct StreamStatistics {
    std::uint64_t missing = 0;      ///< frames between the first and the last that did not come, or not as a whole
    std::uint64_t resent = 0;       ///< packets that were asked for again, and came
    std::uint64_t dropped = 0;      ///< packets that found no room in the socket buffer of this machine
    std::uint32_t packetSize = 0;   ///< in bytes, with all headers
    std::uint64_t socketBuffer = 0; ///< in bytes, as the system granted it
};

/// Where the pictures of a camera arrive. To be opened before acquisition starts, and closed after it has stopped.
class PictureSource {
public:
    PictureSource() = default;
    virtual ~PictureSource() = default;
    PictureSource(const PictureSource&) = delete;
    PictureSource& operator=(const PictureSource&) = delete;

    /// Waits for the next picture.
    /// @param longest how long, in the camera's own time
    /// @return null if none came. A picture stays valid until the next one has come.
    [[nodiscard]] virtual const Picture* Next(std::chrono::milliseconds longest) = 0;

    [[nodiscard]] virtual StreamStatistics Statistics() const = 0;
    /// Why pictures may have been lost, in words for the user; empty if nothing is known.
    [[nodiscard]] virtual std::string ExplainLosses() const = 0;
};

} // namespace Host
