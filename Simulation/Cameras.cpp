#include "Simulation/Cameras.h"

#include "Simulation/BootstrapRegisters.h"
#include "Simulation/Description.h"
#include "Simulation/M2VX.h"
#include "Simulation/Orvik.h"
#include "Simulation/World.h"
#include "Simulation/Zip.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <mutex>

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

const M2VXModel m2vxModels[] = {
    // name        number
    {"Cerix7-MV",  0x7001},
    {"Cerix-MV7",  0x7002},
    {"Sollux G",   0x7101},
};
// clang-format on

Identity IdentityOf(const OrvikModel& model) {
    return {model.name, FunctionModelId(model), SerialNumber(model), Zipped(model.name + ".xml", Description(model))};
}

Identity IdentityOf(const M2VXModel& model) {
    return {model.name, model.number, SerialNumber(model), Zipped(model.name + ".xml", Description(model))};
}

std::vector<Register> FunctionRegisters(const OrvikModel& model) { return OrvikRegisters(model); }
std::vector<Register> FunctionRegisters(const M2VXModel& model) { return M2VXRegisters(model); }

/// Registers are made once for each model, because that takes longer than all else of a camera.
template <typename Model> RegisterSpace::Registers RegistersOf(const Model& model) {
    static std::mutex access;
    static std::map<std::string, RegisterSpace::Registers> known; // by model
    const std::lock_guard lock(access);
    RegisterSpace::Registers& registers = known[model.name];
    if (registers == nullptr) {
        std::vector<Register> all = BootstrapRegisters(IdentityOf(model));
        std::vector<Register> own = FunctionRegisters(model);
        std::move(own.begin(), own.end(), std::back_inserter(all));
        registers = std::make_shared<const std::vector<Register>>(std::move(all));
    }
    return registers;
}

template <typename Model> std::unique_ptr<SimulatedCamera> Make(const Model& model) {
    auto camera = std::make_unique<SimulatedCamera>(RegistersOf(model));
    AddBootstrapBehaviour(*camera);
    return camera;
}

template <typename Models> auto Find(const Models& models, std::string_view name) {
    const auto* const found =
        std::find_if(std::begin(models), std::end(models), [&](const auto& model) { return model.name == name; });
    return found == std::end(models) ? nullptr : found;
}

} // namespace

std::unique_ptr<SimulatedCamera> MakeCamera(std::string_view name, std::uint64_t seed) {
    const World world(seed);
    if (const auto* const orvik = Find(orvikModels, name)) {
        auto camera = Make(*orvik);
        AddOrvikBehaviour(*camera, *orvik, world);
        return camera;
    }
    if (const auto* const m2vx = Find(m2vxModels, name)) {
        auto camera = Make(*m2vx);
        AddM2VXBehaviour(*camera, world);
        return camera;
    }
    return nullptr;
}

std::vector<std::string> ModelNames() {
    std::vector<std::string> names;
    for (const OrvikModel& model : orvikModels) {
        names.push_back(model.name);
    }
    for (const M2VXModel& model : m2vxModels) {
        names.push_back(model.name);
    }
    return names;
}

} // namespace Simulation
