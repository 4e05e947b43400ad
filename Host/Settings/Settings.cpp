#include "Host/Settings/Settings.h"

#include "Host/Functions/Names.h"
#include "Host/Functions/Tables.h"

#include <algorithm>
#include <ctime>
#include <optional>
#include <utility>

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

/// Whether an automatic mode owns the value in either settings.
bool IsMovedInEither(const Settings& first, const Settings& second, const Instance& instance) {
    return first.IsMoved(instance) || second.IsMoved(instance);
}

} // namespace

const Value* Settings::Find(const Instance& instance) const {
    const auto found = std::find_if(values.begin(), values.end(),
                                    [&](const FunctionValue& setting) { return setting.instance == instance; });
    return found == values.end() ? nullptr : &found->value;
}

bool Settings::IsMissing(const Instance& instance) const {
    return std::find(missing.begin(), missing.end(), instance) != missing.end();
}

bool Settings::IsMoved(const Instance& instance) const {
    const auto& lock = instance->lock;
    return lock && lock->moves && std::any_of(values.begin(), values.end(), [&](const FunctionValue& setting) {
               return setting.instance->name == lock->mode && !lock->IsOpen(setting.value);
           });
}

Settings TakeSettings(const Camera& camera, const Unreadable& unreadable, bool outputs,
                      const std::function<bool(const Instance&)>& needs) {
    Settings settings{camera.Model(), camera.Family(), "", Now(), {}};
    const auto read = [&](const Instance& instance) -> std::optional<Value> {
        const Reading reading = camera.TryRead(instance);
        if (reading.code == 0) {
            return reading.value;
        }
        if (!reading.IsAbsent()) {
            unreadable(instance, reading);
            settings.missing.push_back(instance);
        }
        return std::nullopt;
    };
    settings.serial = read(camera.FindOne(Name::serialNumber)).value_or(Value()).text;
    for (const Instance& instance : camera.All()) {
        const bool wanted =
            instance->restore != RestorePolicy::Never && (instance->restore != RestorePolicy::Output || outputs);
        if (!wanted || instance->get == nullptr || instance->set == nullptr || !needs(instance)) {
            continue;
        }
        if (const auto value = read(instance)) {
            settings.values.push_back({instance, *value});
        }
    }
    return settings;
}

std::string NamesOf(const std::vector<Instance>& instances) {
    std::string names;
    const Function* last = nullptr;
    for (const Instance& instance : instances) {
        if (std::exchange(last, instance.function) != instance.function) {
            names += (names.empty() ? "" : ", ") + std::string(instance->name);
        }
    }
    return names;
}

std::vector<Difference> Compare(const Settings& first, const Settings& second) {
    std::vector<Difference> differences;
    for (const Function& function : *TableOf(first.family)) {
        for (const Instance& instance : InstancesOf(function)) {
            const Value* const one = first.Find(instance);
            const Value* const other = second.Find(instance);
            const bool equal = one == nullptr || other == nullptr ? one == other : *one == *other;
            const bool comparable =
                !IsMovedInEither(first, second, instance) && !first.IsMissing(instance) && !second.IsMissing(instance);
            if (!equal && comparable) {
                differences.push_back({instance, one, other});
            }
        }
    }
    return differences;
}

std::vector<Instance> Uncompared(const Settings& first, const Settings& second) {
    std::vector<Instance> missing = first.missing;
    std::erase_if(missing, [&](const Instance& instance) {
        const bool isUnread = std::find(second.unread.begin(), second.unread.end(), instance) != second.unread.end();
        return (second.Find(instance) == nullptr && !isUnread) || IsMovedInEither(first, second, instance);
    });
    return missing;
}

} // namespace Host
