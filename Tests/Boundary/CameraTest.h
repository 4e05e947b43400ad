#pragma once

#include "Tests/Operations/Operations.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/Plugin.h"

#include <gtest/gtest.h>

#include <climits>
#include <set>

namespace Test {

inline std::string InterfaceOf(const std::string& row) { return row.substr(0, row.rfind("::")); }
inline std::string WithoutInterface(const std::string& row) { return row.substr(row.rfind("::") + 2); }

/// An exception of the port that the library does not know.
struct Unplugged {
    int reason;
};

/// A host's registry, which records the models: "model=key", one a line.
struct Registry final : IModelRegistry {
    void RegisterModel(const char* modelName, const char* libraryKey) override {
        models += std::string(modelName) + "=" + libraryKey + "\n";
    }
    std::string models;
};

/// Sets a value through some operation.
using Setter = std::function<void(IDynamicObject&, int)>;

template <typename Interface, typename Value> Setter Sets(void (Interface::*operation)(Value)) {
    return [operation](IDynamicObject& camera, int value) {
        (Part<Interface>(camera).*operation)(static_cast<Value>(value));
    };
}

/// The same for an instance.
template <typename Interface, typename Line, typename Value>
Setter Sets(void (Interface::*operation)(Line, Value), Line line) {
    return [operation, line](IDynamicObject& camera, int value) {
        (Part<Interface>(camera).*operation)(line, static_cast<Value>(value));
    };
}

class CameraTest : public testing::Test {
protected:
    /// Opens a camera in the state @p state. The accesses for that are not in the log.
    Camera Open(const State& state = {}, int index = 0) {
        Prepare(port, state);
        Camera camera(plugin, state.model, &port, index);
        if (state.before) {
            state.before(*camera.Object());
        }
        port.TakeLog();
        return camera;
    }

    /// The accesses and the outcome of a call.
    struct Observation {
        std::string outcome, accesses;
        bool operator==(const Observation&) const = default;
        friend std::ostream& operator<<(std::ostream& stream, const Observation& observed) {
            return stream << observed.outcome << " (" << observed.accesses << ")";
        }
    };
    Observation Observe(const Camera& camera, const Call& call) {
        port.TakeLog();
        std::string outcome = Outcome(call, *camera.Object());
        return {std::move(outcome), port.TakeLog()};
    }

    /// The effect of a row's call on the getters that a cached control answers without access.
    struct Effect {
        std::string outcome;
        std::set<std::string> valid;    ///< getters cached before the call, except for the camera's identity
        std::set<std::string> affected; ///< getters that read the camera afterwards or, for M2VX, answer differently
    };
    Effect EffectOf(const Operation& row);

    /// The values that a setter accepts. It must refuse the others with @p refusal, without writing them.
    std::string AdmittedBy(const Setter& set, const Camera& camera, const std::string& refusal) {
        std::vector<int> values{INT_MIN, -65536, 256, 257, 65536, 65537, INT_MAX};
        for (int value = -2; value < 160; ++value) {
            values.push_back(value);
        }
        std::string accepted;
        for (const int value : values) {
            const auto [outcome, accesses] =
                Observe(camera, [&](IDynamicObject& object) { return set(object, value), done; });
            if (outcome == done) {
                accepted += std::to_string(value) + " ";
            } else {
                EXPECT_TRUE(outcome == refusal && accesses.find('=') == std::string::npos) << value << outcome;
            }
        }
        return accepted;
    }

    Plugin plugin;
    RecordingPort port;
};

} // namespace Test
