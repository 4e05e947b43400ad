#include "Simulation/Picture/Settings.h"

#include "Simulation/Picture/Frame.h"

namespace Simulation::Picture {

Settings SettingsOf(const RegisterSpace& space) {
    const Words size = space.Get("imagesize");
    return {PixelFormatOf(space.Get("colorcoding")[0]), size[0], size[1]};
}

} // namespace Simulation::Picture
