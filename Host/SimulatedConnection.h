#pragma once

#include "Host/Connection.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace Simulation {
class Acquisition;
class SimulatedCamera;
} // namespace Simulation

namespace Host {

/// Options of a simulated camera.
struct SimulationOptions {
    std::optional<std::uint64_t> seed; ///< seed of its environment, 0 by default
    std::string state{};               ///< file that keeps its state between runs; empty for none
    std::vector<std::string> faults{}; ///< faults to inject
};

/// A simulated camera in this process.
class SimulatedConnection final : public Connection {
public:
    /// @throws OpenError for a model that is not simulated; for an invalid state file
    /// @throws UsageError for an invalid fault
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
    [[nodiscard]] std::unique_ptr<PictureSource> OpenStream(const PictureFormat& format) override;
    void SaveState() const override;

private:
    std::string state;
    std::uint64_t seed;
    std::unique_ptr<Simulation::SimulatedCamera> camera;
    std::unique_ptr<Simulation::Acquisition> acquisition; ///< which the camera knows from the first stream on
};

} // namespace Host
