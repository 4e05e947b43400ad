#pragma once

#include "Simulation/Picture/Settings.h"
#include "Simulation/RegisterSpace.h"

namespace Simulation::Picture {

// What the registers say about overlays, measure frames and blanking.

[[nodiscard]] DrawingSettings OrvikDrawing(const RegisterSpace& space);
[[nodiscard]] DrawingSettings M2VXDrawing(const RegisterSpace& space);

/// The circular measure window of an M2VX camera.
[[nodiscard]] Disc MeasureDisc(const RegisterSpace& space);

} // namespace Simulation::Picture
