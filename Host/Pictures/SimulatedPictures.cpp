#include "Host/Pictures/SimulatedPictures.h"

#include <algorithm>

namespace Host {

using std::chrono::microseconds;

const Picture* SimulatedPictures::Next(std::chrono::milliseconds longest) {
    const auto due = acquisition.Due();
    const microseconds wait = due ? *due - camera.Time() : longest;
    camera.Advance(std::clamp<microseconds>(wait, microseconds(0), longest));
    const auto exposed = acquisition.Take();
    if (!exposed) {
        return nullptr;
    }
    renderer.Render(exposed->settings, exposed->number, frame);
    picture = {{frame.pixelFormat, frame.width, frame.height}, exposed->number, exposed->time, frame.bytes};
    return &picture;
}

} // namespace Host
