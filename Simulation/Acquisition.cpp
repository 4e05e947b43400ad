#include "Simulation/Acquisition.h"

#include "Simulation/Orvik.h"

#include <SDK4/Enums.h>

#include <algorithm>

namespace Simulation {

using std::chrono::microseconds;

namespace {

constexpr std::uint32_t singleFrame = 1;
// Base 7 and 2,097,151 counts. The register holds more, which no clock of nanoseconds does.
constexpr std::uint64_t longestDelay = 2'097'151ULL * 10'000'000; // microseconds

} // namespace

Acquisition::Acquisition(SimulatedCamera& ofCamera)
    : camera(ofCamera),
      hasTrigger(ofCamera.Registers().Find("softtrigger") != nullptr) {
    camera.AfterWrite("startacquisition", [this](RegisterSpace&, const auto& change) {
        if (change.before[0] == 0) {
            last = camera.Time();
            triggered.reset();
        }
    });
    if (hasTrigger) {
        camera.AfterWrite("softtrigger", [this](RegisterSpace&) { Trigger(); });
        camera.AfterWrite("exposuremode", [this](RegisterSpace&) {
            last = camera.Time();
            triggered.reset();
        });
    }
}

bool Acquisition::IsAcquiring() const { return camera.Registers().Get("startacquisition")[0] != 0; }

bool Acquisition::IsTriggered() const {
    return hasTrigger && camera.Registers().Get("exposuremode")[0] >= SDK4_EXPOSUREMODE_RESETRESTART;
}

bool Acquisition::AwaitsTrigger() const { return IsAcquiring() && IsTriggered() && !triggered; }

microseconds Acquisition::Period() const {
    const RegisterSpace& space = camera.Registers();
    const std::uint64_t rate = space.Get("acquisitionframerate")[0]; // in mHz
    const std::uint64_t shortest = space.Get("frameduration")[0];
    return microseconds(rate == 0 ? shortest : std::max(shortest, 1'000'000'000 / rate));
}

void Acquisition::Trigger() {
    if (!AwaitsTrigger()) {
        return;
    }
    const RegisterSpace& space = camera.Registers();
    triggered = camera.Time();
    if (space.Get("exposuremode")[0] == SDK4_EXPOSUREMODE_RESETRESTART) {
        *triggered += microseconds(std::min(MicrosecondsOf(space.Get("triggerdelay")), longestDelay) +
                                   space.Get("frameduration")[0]);
    }
}

std::optional<microseconds> Acquisition::Due() const {
    if (!IsAcquiring()) {
        return std::nullopt;
    }
    if (IsTriggered()) {
        return triggered;
    }
    return paced ? last + Period() : camera.Time();
}

std::optional<ExposedFrame> Acquisition::Take() {
    const auto due = Due();
    if (!due || *due > camera.Time()) {
        return std::nullopt;
    }
    const auto late = (camera.Time() - *due) / std::max(Period(), microseconds(1));
    last = IsTriggered() ? *due : *due + late * Period();
    triggered.reset();
    RegisterSpace& space = camera.Registers();
    ExposedFrame frame{++frames, last, Picture::SettingsOf(space)};
    space.Set("storeimage", {0}); // this frame is the one
    if (space.Get("acquisitionmode")[0] == singleFrame) {
        space.Set("startacquisition", {0});
    }
    return frame;
}

} // namespace Simulation
