#include "Host/CallTrace.h"

#include "Host/Logging.h"
#include "Host/Session.h"
#include "Simulation/Cameras.h"

#include <algorithm>

namespace Host {

namespace {

constexpr std::int32_t uncachedIndex = 2; ///< with both families
constexpr std::int32_t cachedIndex = 3;

/// A simulated camera at its defaults, with a control of its own for each observation: one call must not decide what
/// the next one meets.
class Twin {
public:
    Twin(const Plugin& plugin, const std::string& model)
        : session(plugin, model, {.index = uncachedIndex}),
          camera(session.Camera()) {}

    [[nodiscard]] const Host::Camera& Camera() const { return camera; }

    template <typename Observation> auto OnNewControl(std::int32_t index, const Observation& observe) {
        const Control control = session.CreateControl(index);
        return observe(Host::Camera(*control, session.Port(), session.Model()));
    }

    template <typename Call> std::vector<Access> AccessesOf(const Call& call) {
        static_cast<void>(session.Port().Take());
        static_cast<void>(Attempt(call));
        return session.Port().Take();
    }

    template <typename Call> CallCosts CostsOf(const Call& call) {
        const auto observe = [&](const Host::Camera& fresh) {
            const auto callIt = [&] { call(fresh); };
            Calls calls{AccessesOf(callIt), {}};
            calls.again = AccessesOf(callIt);
            return calls;
        };
        return {OnNewControl(uncachedIndex, observe), OnNewControl(cachedIndex, observe)};
    }

private:
    Session session;
    Host::Camera camera;
};

/// A value that the function takes: that which it holds, or else ones.
Value Settable(const Camera& camera, const Instance& instance) {
    const Reading reading = camera.TryRead(instance);
    return reading.code == 0 && instance->get != nullptr
               ? reading.value
               : Value{.numbers = std::vector<std::int64_t>(instance->shape.fields.size(), 1), .text = "1"};
}

void SetMode(const Camera& camera, const Instance& instance, std::int64_t value) {
    camera.Write(camera.FindOne(instance->lock->mode), {{value}, {}});
}

/// Brings the camera into the mode that the function needs.
void Unlock(const Camera& camera, const Instance& instance) {
    if (instance->lock && !camera.LockedBy(instance).empty()) {
        SetMode(camera, instance, instance->lock->open.front());
    }
}

/// What may refresh a function. Itself first, because setting a mode decides how what it moves is cached.
std::vector<Instance> PossibleRefreshers(const Camera& camera, const Instance& instance) {
    std::vector<Instance> all;
    if (instance->set != nullptr) {
        all.push_back(instance);
    }
    for (const Function& function : camera.Table()) {
        const bool isSettingOrCommand = function.restore != RestorePolicy::Never || function.get == nullptr;
        if (function.set != nullptr && function.name != instance->name && isSettingOrCommand) {
            all.push_back({&function});
        }
    }
    return all;
}

std::vector<std::string_view> RefreshersOf(Twin& twin, const Instance& instance) {
    return twin.OnNewControl(cachedIndex, [&](const Camera& camera) {
        const auto readsCamera = [&] {
            return !twin.AccessesOf([&] { static_cast<void>(camera.Read(instance)); }).empty();
        };
        static_cast<void>(readsCamera());
        std::vector<std::string_view> found;
        for (const Instance& other : PossibleRefreshers(camera, instance)) {
            const Value value = Settable(twin.Camera(), other);
            if (Attempt([&] { camera.Write(other, value); }).code == 0 && readsCamera()) {
                found.push_back(other->name);
            }
        }
        return found;
    });
}

/// Whether a cached getter reads the camera each time while an automatic mode changes the value.
bool IsReadWhileLocked(Twin& twin, const Instance& instance) {
    if (!instance->lock || !instance->lock->moves) {
        return false;
    }
    return twin.OnNewControl(cachedIndex, [&](const Camera& camera) {
        SetMode(camera, instance, 1); // all such modes are on or in their first mode then
        const auto read = [&] { static_cast<void>(camera.Read(instance)); };
        static_cast<void>(twin.AccessesOf(read));
        return !twin.AccessesOf(read).empty();
    });
}

} // namespace

std::optional<std::uint32_t> CallTrace::Register() const {
    const auto& costs = get ? get : set;
    return !costs || costs->uncached.first.empty() ? std::nullopt : std::optional(costs->uncached.first.back().address);
}

std::optional<CallTrace> TraceCalls(const Plugin& plugin, const std::string& model, const Instance& instance) {
    const std::vector<std::string> simulated = Simulation::ModelNames();
    if (std::find(simulated.begin(), simulated.end(), model) == simulated.end()) {
        return std::nullopt;
    }
    const QuietLog quiet;
    Twin twin(plugin, model);
    if (!twin.Camera().TryRead(instance).IsImplemented()) {
        return std::nullopt;
    }
    Unlock(twin.Camera(), instance);
    CallTrace trace;
    if (instance->get != nullptr) {
        trace.get = twin.CostsOf([&](const Camera& camera) { static_cast<void>(camera.Read(instance)); });
    }
    if (instance->set != nullptr) {
        const Value value = Settable(twin.Camera(), instance);
        trace.set = twin.CostsOf([&](const Camera& camera) { camera.Write(instance, value); });
    }
    if (trace.get && trace.get->cached.again.empty()) {
        trace.refreshers = RefreshersOf(twin, instance);
        trace.readWhileLocked = IsReadWhileLocked(twin, instance);
    }
    return trace;
}

} // namespace Host
