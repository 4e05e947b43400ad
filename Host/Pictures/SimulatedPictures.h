#pragma once

#include "Host/Pictures/PictureSource.h"

#include "Simulation/Acquisition.h"
#include "Simulation/Picture/Renderer.h"

#include <optional>

namespace Host {

/// The pictures of a simulated camera in this process. Nothing is lost. The simulated time advances as fast as pictures
/// are rendered.
class SimulatedPictures final : public PictureSource {
public:
    SimulatedPictures(Simulation::SimulatedCamera& ofCamera, Simulation::Acquisition& ofItsFrames,
                      const Simulation::World& world)
        : camera(ofCamera),
          acquisition(ofItsFrames),
          renderer(world) {}

    [[nodiscard]] bool Await(std::chrono::milliseconds longest) override;
    [[nodiscard]] const Picture& Develop() override;
    [[nodiscard]] StreamStatistics Statistics() const override { return {}; }
    [[nodiscard]] std::string ExplainLosses() const override { return ""; }

private:
    Simulation::SimulatedCamera& camera;
    Simulation::Acquisition& acquisition;
    std::optional<Simulation::ExposedFrame> exposed;
    Simulation::Picture::Renderer renderer;
    Simulation::Picture::Frame frame;
    Picture picture;
};

} // namespace Host
