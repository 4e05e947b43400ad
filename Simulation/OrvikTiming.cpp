// Readout time and frame duration follow from image size, exposure time and transmitted bytes.

#include "Simulation/Orvik.h"

#include <SDK4/Enums.h>

#include <algorithm>
#include <limits>

namespace Simulation {

namespace {

constexpr std::uint64_t pixelsPerMicrosecond = 320;
constexpr std::uint64_t bytesPerMicrosecond = 500; // of the link
constexpr std::uint64_t blanking = 100;            // microseconds from one readout to the next
constexpr std::uint32_t longestBase = 7;           // also of a camera with a fault

std::uint32_t Bounded(std::uint64_t number) {
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(number, std::numeric_limits<std::uint32_t>::max()));
}

std::uint64_t BytesOf(std::uint64_t pixels, std::uint32_t coding) {
    switch (coding) {
    case SDK4_COLORCODING_MONO8:
        return pixels;
    case SDK4_COLORCODING_MONO12PACKED:
        return pixels * 3 / 2;
    case SDK4_COLORCODING_RGB8:
    case SDK4_COLORCODING_BGR8:
        return pixels * 3;
    default:
        return pixels * 2; // YUV422, 14 bits
    }
}

} // namespace

std::uint64_t MicrosecondsOf(const Words& exposure) {
    std::uint64_t unit = 1;
    for (std::uint32_t base = 0; base < std::min(exposure[0], longestBase); ++base) {
        unit *= 10;
    }
    return exposure[1] * unit;
}

void UpdateTiming(RegisterSpace& space) {
    const Words size = space.Get("imagesize");
    const std::uint64_t pixels = std::uint64_t{size[0]} * size[1];
    const bool slow = space.Get("slowscan")[0] != 0;
    const std::uint64_t fastest = pixels * (slow ? 2 : 1) / pixelsPerMicrosecond;
    const std::uint64_t readout = std::max<std::uint64_t>(space.Requested("readouttime")[0], fastest);
    const std::uint64_t exposure = MicrosecondsOf(space.Get("exposure"));
    const std::uint64_t transmission = BytesOf(pixels, space.Get("colorcoding")[0]) / bytesPerMicrosecond;
    // In the free-running modes the next image is exposed while this one is read out.
    const bool freeRunning = space.Get("exposuremode")[0] <= SDK4_EXPOSUREMODE_FREERUNNING2;

    space.Set("pixelclock", {slow ? 80000000U : 160000000U});
    space.Set("readouttime", {Bounded(readout)});
    const std::uint64_t frame = (freeRunning ? std::max(exposure, readout) : exposure + readout) + blanking;
    space.Set("frameduration", {Bounded(std::max(frame, transmission))});
}

void AddOrvikTiming(SimulatedCamera& camera) {
    camera.Derive(UpdateTiming);
    for (const char* name :
         {"readouttime", "readoutarea", "binning", "colorcoding", "exposure", "exposuremode", "slowscan"}) {
        camera.AfterWrite(name, UpdateTiming);
    }
    camera.LockWhileAcquiring("slowscan");
}

} // namespace Simulation
