#include "Simulation/AutomaticMode.h"

namespace Simulation {

std::uint32_t Approach(std::uint32_t word, std::uint32_t target) {
    return word < target ? word + (target - word + 1) / 2 : word - (word - target + 1) / 2;
}

void AddAutomaticMode(SimulatedCamera& camera, const AutomaticMode& automatic) {
    const auto work = [&camera, automatic](RegisterSpace& space) {
        if (!camera.Runs(automatic.mode)) {
            return;
        }
        Words words = space.Get(automatic.controlled);
        const Words target = automatic.target(space);
        for (std::size_t i = 0; i < words.size(); ++i) {
            words[i] = Approach(words[i], target[i]);
        }
        space.Set(automatic.controlled, words);
        automatic.update(space);
    };
    camera.DeclareAutomatic(automatic.mode);
    camera.EachStep([work](RegisterSpace& space, auto) { work(space); });
    camera.AfterWrite(automatic.controlled, work);
}

} // namespace Simulation
