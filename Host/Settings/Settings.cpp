#include "Settings.h"

#include "Functions/Names.h"
#include "Functions/Tables.h"

#include <algorithm>
#include <ctime>
#include <stdexcept>

namespace Host {

namespace {

std::string Now() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
    return text;
}

} // namespace

bool IsSame(const Instance& one, const Instance& other) {
    return one.function == other.function && one.index == other.index;
}

const Value* Settings::Find(const Instance& instance) const {
    const auto found = std::find_if(values.begin(), values.end(),
                                    [&](const Setting& setting) { return IsSame(setting.instance, instance); });
    return found == values.end() ? nullptr : &found->value;
}

bool Settings::Moved(const Instance& instance) const {
    const auto& lock = instance->lock;
    if (!lock || !lock->moves) {
        return false;
    }
    const auto mode = std::find_if(values.begin(), values.end(),
                                   [&](const Setting& setting) { return setting.instance->name == lock->mode; });
    return mode != values.end() &&
           std::find(lock->open.begin(), lock->open.end(), mode->value.numbers.at(0)) == lock->open.end();
}

bool IsAbsent(const Reading& reading) {
    return reading.error == SDK4_ERR_NOT_IMPLEMENTED || reading.error == SDK4_ERR_INVALID_INTERFACE ||
           reading.error == SDK4_ERR_DISABLED;
}

Settings TakeSettings(const Camera& camera, const std::function<void(const Instance&, const Reading&)>& unreadable,
                      bool outputs) {
    const std::string serial = camera.Read(camera.FindOne(Name::serialNumber)).text;
    Settings settings{camera.Model(), camera.Family(), serial, Now(), {}};
    for (const Instance& instance : camera.All()) {
        const bool wanted = instance->restore != Restore::Never && (instance->restore != Restore::Output || outputs);
        if (!wanted || instance->get == nullptr || instance->set == nullptr) {
            continue;
        }
        const Reading reading = camera.TryRead(instance);
        if (reading.error == 0) {
            settings.values.push_back({instance, reading.value});
        } else if (!IsAbsent(reading)) {
            unreadable(instance, reading);
        }
    }
    return settings;
}

Settings TakeSettings(const Camera& camera) {
    return TakeSettings(camera, [](const Instance& instance, const Reading& reading) {
        throw std::runtime_error(instance.Name() + ": " + reading.errorText);
    });
}

std::vector<Difference> Compare(const Settings& first, const Settings& second) {
    std::vector<Difference> differences;
    for (const Function& function : *TableOf(first.family)) {
        for (const Instance& instance : InstancesOf(function)) {
            const Value* const one = first.Find(instance);
            const Value* const other = second.Find(instance);
            const bool equal = one == nullptr || other == nullptr ? one == other : *one == *other;
            if (!equal && !first.Moved(instance) && !second.Moved(instance)) {
                differences.push_back({instance, one, other});
            }
        }
    }
    return differences;
}

} // namespace Host
