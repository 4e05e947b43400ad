#pragma once

#include "RegisterSpace.h"
#include "SimulatedCamera.h"

#include <map>
#include <memory>

namespace Simulation {

/// The settings sets in a camera's permanent memory. A set that was never saved holds the power-up settings; so does
/// set 0, which cannot be saved to.
class SettingsSets {
public:
    explicit SettingsSets(const RegisterSpace& space) : powerUp(space.SaveSettings()) {}

    void Save(std::uint32_t number, const RegisterSpace& space) { saved[number] = space.SaveSettings(); }
    void Load(std::uint32_t number, RegisterSpace& space) const;

private:
    RegisterSpace::Settings powerUp;
    std::map<std::uint32_t, RegisterSpace::Settings> saved;
};

/// Has the camera save and load the set whose number is written to "savesettings" and "loadsettings".
std::shared_ptr<SettingsSets> AddSettingsSets(SimulatedCamera& camera);

} // namespace Simulation
