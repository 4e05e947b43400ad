#include "Tests/Boundary/Rows.h"

#include <map>

namespace Test {

CameraTest::Effect CameraTest::EffectOf(const Operation& row) {
    const Camera camera = Open(row.state, row.state.CachedIndex());
    const std::vector<const Operation*> getters = CachedGetters(row.state.IsM2VX());
    std::map<const Operation*, std::string> before;
    for (const Operation* getter : getters) {
        before[getter] = Outcome(getter->call, *camera.Object());
    }

    Effect effect;
    effect.outcome = Outcome(row.call, *camera.Object());
    for (const Operation* getter : getters) {
        const auto [outcome, accesses] = Observe(camera, getter->call);
        const bool valid = !IsError(before[getter]);
        const std::string name = WithoutInterface(getter->name);
        if (valid && !getter->name.starts_with("IGufi")) {
            effect.valid.insert(name);
        }
        if ((valid && !accesses.empty()) || (row.state.IsM2VX() && outcome != before[getter])) {
            effect.affected.insert(name);
        }
    }
    return effect;
}

} // namespace Test
