#pragma once

#include "Simulation/RegisterSpace.h"

#include <cstdint>
#include <map>
#include <utility>

namespace Simulation {

/// The settings sets in a camera's permanent memory. Set 0, which cannot be saved, and sets that were never saved hold
/// the factory settings.
class SettingsSets {
public:
    using Saved = std::map<std::uint32_t, RegisterSpace::Content>; ///< by number

    explicit SettingsSets(RegisterSpace::Content factorySettings) : factory(std::move(factorySettings)) {}

    void Save(std::uint32_t number, RegisterSpace::Content settings) { saved[number] = std::move(settings); }
    [[nodiscard]] const RegisterSpace::Content& At(std::uint32_t number) const {
        const auto found = saved.find(number);
        return found == saved.end() ? factory : found->second;
    }

    [[nodiscard]] const Saved& All() const { return saved; }
    void Replace(Saved sets) { saved = std::move(sets); }

private:
    RegisterSpace::Content factory;
    Saved saved;
};

} // namespace Simulation
