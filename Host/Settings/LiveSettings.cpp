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
    std::string names;
    Settings settings = TakeSettings(reader.Camera(), [&](const Instance& instance, const Reading& /*reading*/) {
        if (missing.empty() || missing.back().function != instance.function) {
            names += (names.empty() ? "" : ", ") + std::string(instance->name);
        }
        missing.push_back(instance);
    });
    if (!missing.empty()) {
        Complain(session.Connection().TakeDenial() + "; without control these cannot be read: " + names);
    }
    return {std::move(settings), std::move(missing)};
}

} // namespace Host
