#include "Simulation/Automatic.h"

namespace Simulation {

std::uint32_t Approach(std::uint32_t word, std::uint32_t goal) {
    return word < goal ? word + (goal - word + 1) / 2 : word - (word - goal + 1) / 2;
}

void AddAutomatic(SimulatedCamera& camera, const Automatic& automatic) {
    const auto work = [&camera, automatic](RegisterSpace& space) {
        if (!camera.Runs(automatic.mode)) {
            return;
        }
        Words words = space.Get(automatic.owned);
        const Words goal = automatic.goal(space);
        for (std::size_t i = 0; i < words.size(); ++i) {
            words[i] = Approach(words[i], goal[i]);
        }
        space.Set(automatic.owned, words);
        automatic.follow(space);
    };
    camera.DeclareAutomatic(automatic.mode);
    camera.EachStep([work](RegisterSpace& space, auto) { work(space); });
    camera.AfterWrite(automatic.owned, [work](RegisterSpace& space, const auto&) { work(space); });
}

} // namespace Simulation
