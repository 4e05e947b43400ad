#include "Cameras.h"

#include "BootstrapRegisters.h"
#include "Orvik.h"

#include <algorithm>

namespace Simulation {

namespace {

// clang-format off
const OrvikModel orvikModels[] = {
    // name          number  width height colour memory histogram
    {"Orvik-31200M", 0x3120, 6480, 4816, false, false, false},
    {"Orvik-31200C", 0x3120, 6480, 4816, true,  false, false},
    {"Orvik-710M",   0x0710, 3208, 2208, false, true,  true},
    {"Orvik-710C",   0x0710, 3208, 2208, true,  true,  true},
    {"Orvik-390M",   0x0390, 2256, 1728, false, true,  false},
    {"Orvik-390C",   0x0390, 2256, 1728, true,  true,  false},
    {"Orvik-520M",   0x0520, 2592, 2008, false, false, true},
    {"Orvik-520C",   0x0520, 2592, 2008, true,  false, true},
    {"Orvik-530M",   0x0530, 2592, 2048, false, true,  true},
    {"Orvik-530C",   0x0530, 2592, 2048, true,  true,  true},
};
// clang-format on

std::unique_ptr<SimulatedCamera> MakeOrvik(const OrvikModel& model) {
    std::vector<Register> registers = BootstrapRegisters(model.name, model.number);
    const std::vector<Register> own = OrvikRegisters(model);
    registers.insert(registers.end(), own.begin(), own.end());

    auto camera = std::make_unique<SimulatedCamera>(registers);
    AddOrvikBehaviour(*camera);
    return camera;
}

} // namespace

std::unique_ptr<SimulatedCamera> MakeCamera(std::string_view model) {
    const auto* const found = std::find_if(std::begin(orvikModels), std::end(orvikModels),
                                           [&](const OrvikModel& candidate) { return candidate.name == model; });
    return found == std::end(orvikModels) ? nullptr : MakeOrvik(*found);
}

} // namespace Simulation
