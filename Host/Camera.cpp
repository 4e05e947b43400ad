#include "Host/Camera.h"

#include "Host/Channel/ChannelErrors.h"
#include "Host/CurrentCall.h"
#include "Host/Describe.h"
#include "Host/ErrorReporting.h"
#include "Host/Errors.h"
#include "Host/Functions/Tables.h"

#include <SDK4/IControl.h>

#include <algorithm>

namespace Host {

namespace {

/// The name of the property of a field.
std::string PropertyOf(const Function& function, const Field& field) {
    const std::string_view base = function.property.empty() ? function.name : function.property;
    return std::string(base) + (*field.name == '\0' ? "" : ".") + field.name;
}

/// Calls the control. Errors of the channel get the name of the function.
template <typename Call> auto Calling(const char* verb, const Instance& instance, const Call& call) {
    const CurrentCall named(verb + instance.Name());
    try {
        return call();
    } catch (ChannelError& error) {
        error.SetFunction(instance.Name());
        throw;
    }
}

FieldLimits LimitsOfProperty(SDK4::Control::IPropertyState& properties, const char* name) {
    FieldLimits limits;
    if (properties.IsUnsigned(name)) {
        limits.min = properties.GetUIntMin(name);
        limits.max = properties.GetUIntMax(name);
        limits.defaultValue = properties.GetUIntDefault(name);
    } else {
        limits.min = properties.GetIntMin(name);
        limits.max = properties.GetIntMax(name);
        limits.defaultValue = properties.GetIntDefault(name);
    }
    if (properties.IsEnumerated(name)) { // the codes of this family have no gaps
        for (std::int64_t code = limits.min; code <= limits.max; ++code) {
            limits.admitted.push_back(code);
        }
    }
    return limits;
}

} // namespace

Camera::Camera(IDynamicObject& opened, SDK4::IControlPort& openedOn, std::string modelName, const bool& isAcquiring)
    : control(opened),
      port(openedOn),
      model(std::move(modelName)),
      acquires(isAcquiring),
      functions(nullptr),
      properties(As<SDK4::Control::IPropertyState>()) {
    auto* const identity = As<SDK4::IControl>();
    family = identity == nullptr ? "" : identity->GetClassID();
    functions = TableOf(family);
    if (functions == nullptr) {
        throw OpenError("unknown camera family \"" + family + '"');
    }
}

std::vector<Instance> Camera::All(bool oneByOne) const {
    std::vector<Instance> all;
    for (const Function& function : *functions) {
        auto instances = InstancesOf(function);
        if (!oneByOne && function.count > fewInstances) {
            instances.resize(1);
        }
        all.insert(all.end(), instances.begin(), instances.end());
    }
    return all;
}

std::vector<Instance> Camera::Find(std::string_view name) const { return FindIn(*functions, name); }

std::vector<Instance> Camera::FindReadable(std::string_view name) const {
    auto found = Find(name);
    if (found.front()->get == nullptr) {
        throw UsageError("\"" + std::string(name) + "\" is write-only");
    }
    return found;
}

Instance Camera::FindOne(std::string_view name) const {
    const auto found = Find(name);
    if (found.size() > 1) {
        throw UsageError("\"" + std::string(name) + "\" requires an index: " + found.front().Name() + " to " +
                         found.back().Name());
    }
    return found.front();
}

Value Camera::Read(const Instance& instance) const {
    if (instance->get == nullptr) {
        throw SDK4::X4Error(SDK4_ERR_CANTGETFEATURE);
    }
    return Calling("get ", instance, [&] { return instance->get({control, port}, instance.index); });
}

void Camera::Write(const Instance& instance, const Value& value) const {
    if (instance->set == nullptr) {
        throw SDK4::X4Error(SDK4_ERR_CANTSETFEATURE);
    }
    Calling("set ", instance, [&] { instance->set({control, port}, instance.index, value); });
}

void Camera::SetUnlessLocked(const Instance& instance, const Value& value) const {
    const std::string lock = properties == nullptr ? "" : LockedBy(instance);
    if (!lock.empty() && lock != acquisition) { // the control knows whether acquisition runs
        throw SDK4::X4Error(SDK4_ERR_DISABLED);
    }
    Write(instance, value);
}

Reading Camera::TryRead(const Instance& instance) const {
    Reading reading;
    static_cast<Outcome&>(reading) = Attempt([&] {
        if (instance->get != nullptr) {
            reading.value = Read(instance);
        } else if (!instance->presence.empty()) {
            static_cast<void>(Read(FindOne(instance->presence)));
        }
    });
    return reading;
}

Reading Camera::Inspect(const Instance& instance) const {
    Reading reading = TryRead(instance);
    if (reading.IsAccessible()) {
        const Outcome failure = Attempt([&] { reading.lock = LockOf(instance); });
        if (reading.code == 0) {
            static_cast<Outcome&>(reading) = failure;
        }
    } else {
        reading.lock.needs = NeedsOf(instance);
    }
    return reading;
}

LockState Camera::WhatRefused(const Instance& instance) const {
    LockState lock = Inspect(instance).lock;
    return lock.by.empty() ? LockState() : lock;
}

/// "agc=off"
std::string Camera::NeedsOf(const Instance& instance) const {
    if (!instance->lock) {
        return instance->lockedInAcquisition ? "stopped acquisition" : "";
    }
    const Instance mode = FindOne(instance->lock->mode);
    const Limits admitted = LimitsOf(mode);
    std::vector<std::int64_t> open = instance->lock->open;
    std::erase_if(open, [&](std::int64_t value) { return !admitted.empty() && !admitted.front().Admits(value); });
    return mode.Name() + "=" + DescribeLimits(mode, {SingleValues(open.empty() ? instance->lock->open : open)});
}

LockState Camera::LockOf(const Instance& instance) const {
    LockState state{"", NeedsOf(instance)};
    if (const auto& lock = instance->lock) {
        const Instance mode = FindOne(lock->mode);
        const Value value = Read(mode);
        if (!lock->IsOpen(value)) {
            state.by = mode.Name() + "=" + mode.Print(value);
            return state;
        }
    }
    if (instance->lockedInAcquisition && acquires) {
        state.by = acquisition;
        return state;
    }
    if (properties == nullptr || instance->set == nullptr || instance->shape.fields.empty()) {
        return state;
    }
    const std::string property = PropertyOf(*instance.function, instance->shape.fields.front());
    if (properties->GetImplemented(property.c_str()) && !properties->GetEnabled(property.c_str())) {
        state.by = "the control";
    }
    return state;
}

Limits Camera::LimitsOf(const Instance& instance) const {
    if (instance->limitsReader != nullptr) {
        return Calling("limits of ", instance, [&] { return instance->limitsReader(control, model); });
    }
    Limits published = PublishedLimits(instance);
    return published.empty() ? instance->limits : published;
}

Limits Camera::PublishedLimits(const Instance& instance) const {
    if (properties == nullptr || instance->trigger) {
        return {};
    }
    Limits limits;
    for (const Field& field : instance->shape.fields) {
        const std::string name = PropertyOf(*instance.function, field);
        if (!properties->GetImplemented(name.c_str())) {
            return {};
        }
        limits.push_back(LimitsOfProperty(*properties, name.c_str()));
        if (instance.index != 0) { // only index 0 publishes its default
            limits.back().defaultValue.reset();
        }
    }
    return limits;
}

Refusal Camera::RefusalOf(const Instance& instance) const {
    if (instance->refusal) {
        return *instance->refusal;
    }
    const Limits limits = LimitsOf(instance);
    const bool enumerated = !limits.empty() && std::all_of(limits.begin(), limits.end(), [](const FieldLimits& field) {
        return !field.admitted.empty();
    });
    if (!enumerated) {
        return {SDK4_ERR_OUTOFRANGE, false};
    }
    return {properties == nullptr ? SDK4_ERR_INVALID_PARAMETER : SDK4_ERR_OUTOFRANGE, true};
}

bool Camera::RoundsTo(const Instance& instance, const Value& asked, const Value& held) const {
    bool announced = false;
    if (instance->rounding != nullptr) { // fails if a value that the rule needs cannot be read
        static_cast<void>(Attempt([&] {
            announced = Calling("rounding of ", instance, [&] { return instance->rounding(control, asked, held); });
        }));
    }
    return announced;
}

} // namespace Host
