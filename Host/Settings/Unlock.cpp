#include "Host/Settings/Unlock.h"

#include "Host/Channel/ChannelErrors.h"

#include <algorithm>

namespace Host {

void WhileUnlocked(const Camera& camera, const Instance& instance, const std::function<void()>& action) {
    if (!instance->lock || camera.LockedBy(instance).empty()) {
        action();
        return;
    }
    const auto& open = instance->lock->open;
    const Instance mode = camera.FindOne(instance->lock->mode);
    const Value held = camera.Read(mode);
    if (std::find(open.begin(), open.end(), held.numbers.at(0)) != open.end()) {
        camera.Write(mode, held); // the control takes the function for locked, the camera does not
        action();
        return;
    }
    camera.Write(mode, {{open.front()}, {}});
    try {
        action();
    } catch (const ChannelLost&) { // nothing can be put back
        throw;
    } catch (...) {
        camera.Write(mode, held);
        throw;
    }
    camera.Write(mode, held);
}

} // namespace Host
