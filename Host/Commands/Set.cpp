#include "Host/Commands/Commands.h"

#include "Host/Assignment.h"
#include "Host/Describe.h"
#include "Host/ErrorReporting.h"
#include "Host/Settings/ReadWhenSettled.h"
#include "Host/Settings/UncachedCamera.h"

namespace Host {

namespace {

struct Result {
    Outcome failure;
    std::string lockedBy;      ///< empty if it is not locked
    std::optional<Value> held; ///< read back from the camera
    bool rounded = false;      ///< as announced
};

/// @param reader an uncached control
Result Perform(const Camera& camera, const Camera& reader, const Wait& wait, const FunctionValue& assignment) {
    Result result;
    result.failure = Attempt([&] { camera.SetUnlessLocked(assignment.instance, assignment.value); });
    if (result.failure.code != 0) {
        result.lockedBy = camera.Inspect(assignment.instance).lockedBy;
    }
    if (assignment.instance->get != nullptr) {
        const Reading reading = ReadWhenSettled(reader, assignment.instance, assignment.value, wait);
        if (reading.code == 0) {
            result.held = reading.value;
            result.rounded = camera.RoundsTo(assignment.instance, assignment.value, reading.value);
        } else if (result.failure.code == 0 && !reading.IsAbsent()) {
            result.failure = {reading.code, "accepted, but the read-back failed: " + reading.reason, reading.cause};
        }
    }
    return result;
}

/// Describes a value that differs from the one set.
std::string DescribeHeld(const Camera& camera, const FunctionValue& assignment, const Result& result) {
    const std::string asked = assignment.instance.Print(assignment.value);
    const std::string held = assignment.instance.Print(*result.held);
    if (result.failure.code == 0) {
        return asked + (result.rounded ? " was rounded to " : " was accepted, but the camera now holds ") + held;
    }
    const bool clamped = result.failure.code == SDK4_ERR_OUTOFRANGE && !camera.RefusalOf(assignment.instance).keeps;
    return clamped ? asked + " was clamped, the camera now holds " + held
                   : asked + " was refused, the camera still holds " + held;
}

/// Reports a failure or a different value on standard error.
/// @return whether it was refused
bool Report(const Camera& camera, const FunctionValue& assignment, const Result& result) {
    const bool differs = result.held && *result.held != assignment.value;
    if (result.failure.code == 0 && !differs) {
        return false;
    }
    std::string text = assignment.instance.Name();
    if (result.failure.code != 0) {
        text += ": " + result.failure.reason + (result.lockedBy.empty() ? "" : " (locked by " + result.lockedBy + ")");
    }
    if (differs) {
        text += ": " + DescribeHeld(camera, assignment, result);
    }
    PrintError(text);
    return result.failure.code != 0 || !result.rounded;
}

Json ToJson(const FunctionValue& assignment, const Result& result) {
    const Instance& instance = assignment.instance;
    return Json{{"name", instance.Name()},
                {"asked", instance->trigger ? Json() : ToJson(instance, assignment.value)},
                {"value", result.held ? ToJson(instance, *result.held) : Json()},
                {"error", result.failure.code == 0 ? Json() : Json(result.failure.reason)}};
}

} // namespace

int Set(const Invocation& invocation) {
    invocation.Open().Connection().RequireControl();
    const Camera camera = invocation.OpenCamera();
    const auto assignments = ParseAssignments(camera, invocation.Texts(Parameter::Assignments));
    const UncachedCamera reader(invocation.Open());
    const Wait wait = MakeWait(invocation.Open());
    Output output = invocation.Output();
    bool refused = false;
    for (const FunctionValue& assignment : assignments) {
        const Result result = Perform(camera, reader.Camera(), wait, assignment);
        const Instance& instance = assignment.instance;
        output.Add(result.held ? instance.Name() + '=' + instance.Print(*result.held) : "", ToJson(assignment, result));
        refused |= Report(camera, assignment, result);
    }
    output.End();
    return refused ? Refused : Success;
}

} // namespace Host
