#include "Simulation/Picture/Renderer.h"

namespace Simulation::Picture {

void Renderer::Render(const Settings& settings, std::uint64_t number, Frame& frame) {
    frame.pixelFormat = settings.pixelFormat;
    frame.width = settings.width;
    frame.height = settings.height;
    frame.bytes.assign(PayloadSize(settings.pixelFormat, settings.width, settings.height),
                       static_cast<std::uint8_t>(number));
}

} // namespace Simulation::Picture
