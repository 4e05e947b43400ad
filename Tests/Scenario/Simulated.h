#pragma once

#include "Simulation/Cameras.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

namespace Scenario {

using Simulation::Words;
using namespace std::chrono_literals;

/// A simulated camera, controlled through its port and inspected directly.
class Simulated {
public:
    explicit Simulated(const char* model, std::uint64_t seed = 0) : camera(Simulation::MakeCamera(model, seed)) {}

    void Write(std::uint32_t address, const Words& words) const {
        camera->WriteBlock(address, reinterpret_cast<const unsigned char*>(words.data()),
                           static_cast<std::uint32_t>(words.size() * sizeof words[0]));
    }
    [[nodiscard]] Words Get(const std::string& name, std::uint32_t index = 0) const {
        return camera->Registers().Get(name, index);
    }
    void Advance(std::chrono::microseconds time) const { camera->Advance(time); }

    std::unique_ptr<Simulation::SimulatedCamera> camera;
};

} // namespace Scenario
