#pragma once

#include "Simulation/SimulatedCamera.h"

#include <filesystem>
#include <stdexcept>

namespace Simulation {

/// A state file that cannot be read or written. The text names the file and the reason.
class StateError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Saves the camera to a file: permanent memory (settings sets, start-up set, user-defined name, persistent addresses,
/// defect pixels), serial number and MAC address, all other registers, and the camera's time. The file is replaced as a
/// whole or not at all. Injected faults are not saved.
/// @throws StateError
void SaveState(const SimulatedCamera& camera, const std::filesystem::path& path);

/// Whether there is a file to load. True also if the path cannot be accessed, so that LoadState reports the reason.
[[nodiscard]] bool HasState(const std::filesystem::path& path);

/// Restores the camera from a file, with acquisition stopped. The file is checked first, so that the camera is changed
/// as a whole or not at all.
/// @throws StateError if the file is missing, unreadable, damaged, or of another format version or model
void LoadState(SimulatedCamera& camera, const std::filesystem::path& path);

} // namespace Simulation
