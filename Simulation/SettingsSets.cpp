#include "SettingsSets.h"

namespace Simulation {

void SettingsSets::Load(std::uint32_t number, RegisterSpace& space) const {
    const auto found = saved.find(number);
    space.LoadSettings(found == saved.end() ? powerUp : found->second);
}

std::shared_ptr<SettingsSets> AddSettingsSets(SimulatedCamera& camera) {
    auto sets = std::make_shared<SettingsSets>(camera.Registers());
    camera.AfterWrite("savesettings",
                      [sets](RegisterSpace& space) { sets->Save(space.Get("savesettings")[0], space); });
    camera.AfterWrite("loadsettings",
                      [sets](RegisterSpace& space) { sets->Load(space.Get("loadsettings")[0], space); });
    return sets;
}

} // namespace Simulation
