#pragma once

#include "RegisterSpace.h"

#include <map>

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

} // namespace Simulation
