#pragma once

#include "LogCapture.h"
#include "Operations.h"
#include "Plugin.h"

#include <gtest/gtest.h>

namespace Test {

/// What a port may throw: no type of the library's.
struct Unplugged {
    int reason;
};

class CameraTest : public testing::Test {
protected:
    /// A camera in the state that @p state describes. The accesses made for that are not in the log.
    Camera Open(const State& state = {}, int index = 0) {
        Prepare(port, state);
        Camera camera(plugin, state.model, &port, index);
        if (state.before)
            state.before(*camera.Object());
        port.TakeLog();
        return camera;
    }

    /// The accesses that a call costs, and its outcome.
    struct Observed {
        std::string outcome, accesses;
        bool operator==(const Observed&) const = default;
        friend std::ostream& operator<<(std::ostream& stream, const Observed& observed) {
            return stream << observed.outcome << " (" << observed.accesses << ")";
        }
    };
    Observed Observe(const Camera& camera, const Call& call) {
        port.TakeLog();
        std::string outcome = Outcome(call, *camera.Object());
        return {std::move(outcome), port.TakeLog()};
    }

    Plugin plugin;
    RecordingPort port;
};

} // namespace Test
