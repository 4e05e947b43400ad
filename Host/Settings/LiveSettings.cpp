#include "LiveSettings.h"

#include "Command.h"
#include "ReadThrough.h"

#include <algorithm>

namespace Host {

bool LiveSettings::Misses(const Instance& instance) const {
    return std::any_of(missing.begin(), missing.end(), [&](const Instance& each) { return IsSame(each, instance); });
}

LiveSettings TakeLiveSettings(Session& session) {
    const ReadThrough reader(session);
    if (session.Connection().HasControl()) {
        return {TakeSettings(reader.Camera()), {}};
    }
    std::vector<Instance> missing;
    Settings settings = TakeSettings(reader.Camera(), [&](const Instance& instance, const Reading& reading) {
        missing.push_back(instance);
        Complain(instance.Name() + ": " + reading.errorText);
    });
    return {std::move(settings), std::move(missing)};
}

} // namespace Host
