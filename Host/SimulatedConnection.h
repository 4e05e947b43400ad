#pragma once

#include "Host/Connection.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace Simulation {
class SimulatedCamera;
}

namespace Host {

/// How a simulated camera is switched on.
struct SimulationOptions {
    std::optional<std::uint64_t> seed; ///< of the world around the camera; 0 if it is not given
    std::string state{};               ///< a file that holds the camera between two runs; none if empty
    std::vector<std::string> faults{}; ///< to be injected into the camera
};

/// A simulated camera in this process.
class SimulatedConnection final : public Connection {
public:
    /// Switches the camera on.
    /// @throws OpenError for a model that nothing simulates; for a state file that is no such file
    /// @throws UsageError for a fault that cannot be injected
    SimulatedConnection(const std::string& model, const SimulationOptions& options);
    ~SimulatedConnection() override;

    [[nodiscard]] Simulation::SimulatedCamera& Camera() { return *camera; }

    [[nodiscard]] SDK4::IControlPort& Port() override;
    [[nodiscard]] std::string Describe() const override { return "a simulated camera"; }
    void Wait(std::chrono::microseconds time) override;
    void TimePassed(std::chrono::microseconds time) override { Wait(time); }
    [[nodiscard]] bool HasControl() const override { return true; }
    void RequireControl() override {}
    [[nodiscard]] std::string TakeDenial() override { return ""; }
    void RequireUnbroken() override {}
    void SaveState() const override;

private:
    std::string state;
    std::unique_ptr<Simulation::SimulatedCamera> camera;
};

} // namespace Host
