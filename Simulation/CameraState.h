#pragma once

#include "Simulation/SimulatedCamera.h"

#include <filesystem>
#include <stdexcept>

namespace Simulation {

/// A camera's memory that cannot be read or written; the text names the file and says why.
class StateError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Writes what the camera holds to a file, for the next run of the program: permanent memory (settings sets, start-up
/// set, user-defined name, persistent addresses, defect pixels), serial number and MAC address, all other registers as
/// they are, and the camera's time. The file is replaced as a whole or not at all. Injected faults do not go into it.
/// @throws StateError
void SaveState(const SimulatedCamera& camera, const std::filesystem::path& path);

/// Whether there is a file to load. What cannot be looked at is taken for one, so that loading it tells why.
[[nodiscard]] bool HasState(const std::filesystem::path& path);

/// Has the camera go on where the file says that it was, as the one that it was; only images are no longer acquired, as
/// nobody is connected between two runs. Everything in the file is checked first, so that a camera is changed as a
/// whole or not at all.
/// @throws StateError for a file that is not there or cannot be read, is no such file or a damaged one, or belongs to
///        another format version or another model
void LoadState(SimulatedCamera& camera, const std::filesystem::path& path);

} // namespace Simulation
