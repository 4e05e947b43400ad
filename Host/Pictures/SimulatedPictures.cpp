#include "Host/Pictures/SimulatedPictures.h"

#include <algorithm>
#include <utility>

namespace Host {

using std::chrono::microseconds;

bool SimulatedPictures::Await(std::chrono::milliseconds longest) {
    const auto due = acquisition.Due();
    const microseconds wait = due ? *due - camera.Time() : longest;
    camera.Advance(std::clamp<microseconds>(wait, microseconds(0), longest));
    auto next = acquisition.Take();
    if (!next) {
        return false;
    }
    exposed = std::move(next);
    return true;
}

const Picture& SimulatedPictures::Develop() {
    renderer.Render(exposed->settings, exposed->number, frame);
    picture = {{frame.pixelFormat, frame.width, frame.height}, exposed->number, exposed->time, frame.bytes};
    return picture;
}

} // namespace Host
