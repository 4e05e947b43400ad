#include "SettingsSets.h"

namespace Simulation {

void SettingsSets::Load(std::uint32_t number, RegisterSpace& space) const {
    const auto found = saved.find(number);
    space.LoadSettings(found == saved.end() ? powerUp : found->second);
}

} // namespace Simulation
