#pragma once

#include "Tests/Boundary/CameraTest.h"
#include "Tests/Support/Observed.h"

namespace Test {

class M2VXTest : public CameraTest {
protected:
    static const Operation& Row(const std::string& name) { return FindOperation("M2VX::" + name); }

    static std::string OutcomeOf(const std::string& row, const Camera& camera) {
        return Outcome(Row(row).call, *camera.Object());
    }

    static void Unplug() { throw Unplugged{0}; }
};

} // namespace Test
