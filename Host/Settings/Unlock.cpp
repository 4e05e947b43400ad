#include "Host/Settings/Unlock.h"

#include "Host/Channel/ChannelErrors.h"

namespace Host {

namespace {

void WhileSet(const Camera& camera, const Instance& mode, const Value& opening, const Value& held,
              const std::function<void()>& action) {
    camera.Write(mode, opening);
    try {
        action();
    } catch (const ChannelLost&) {
        throw;
    } catch (...) {
        camera.Write(mode, held);
        throw;
    }
    camera.Write(mode, held);
}

} // namespace

void WhileUnlocked(const Camera& camera, const Instance& instance, const std::function<void()>& action) {
    if (!instance->lock || camera.LockedBy(instance).empty()) {
        action();
        return;
    }
    const Instance mode = camera.FindOne(instance->lock->mode);
    const Value held = camera.Read(mode);
    if (instance->lock->IsOpen(held)) {
        camera.Write(mode, held); // only the control takes the function as locked
        action();
        return;
    }
    const Value opening{{instance->lock->open.front()}, {}};
    try {
        WhileSet(camera, mode, opening, held, action);
    } catch (ChannelLost& error) { // the mode cannot be restored
        error.AddConsequence(mode.Name() + " may still be " + mode.Print(opening) + ", it was " + mode.Print(held));
        throw;
    }
}

} // namespace Host
