#include "Host/Settings/Assign.h"

#include "Host/Command.h"
#include "Host/Describe.h"
#include "Host/ErrorReporting.h"
#include "Host/Settings/ReadWhenSettled.h"
#include "Host/Settings/UncachedCamera.h"

namespace Host {

namespace {

/// What became of a value that the camera does not hold as it was asked for.
std::string DescribeHeld(const Camera& camera, const FunctionValue& assignment, const Assigned& result) {
    const std::string asked = assignment.instance.Print(assignment.value);
    const std::string held = assignment.instance.Print(*result.held);
    if (result.failure.code == 0) {
        return asked + (result.rounded ? " was rounded to " : " was accepted, but the camera now holds ") + held;
    }
    const bool clamped = result.failure.code == SDK4_ERR_OUTOFRANGE && !camera.RefusalOf(assignment.instance).keeps;
    return clamped ? asked + " was clamped, the camera now holds " + held
                   : asked + " was refused, the camera still holds " + held;
}

} // namespace

Assigned AssignOne(const Camera& camera, const Camera& reader, const Wait& wait, const FunctionValue& assignment) {
    Assigned result;
    result.failure = Attempt([&] { camera.SetUnlessLocked(assignment.instance, assignment.value); });
    if (result.failure.code != 0) {
        result.lock = camera.WhatRefused(assignment.instance);
    }
    if (assignment.instance->get != nullptr) {
        const Reading reading = ReadWhenSettled(reader, assignment.instance, assignment.value, wait);
        if (reading.code == 0) {
            result.held = reading.value;
            result.rounded = camera.RoundsTo(assignment.instance, assignment.value, reading.value);
        } else if (result.failure.code == 0 && !reading.IsAbsent()) {
            result.failure = {reading.code,
                              "accepted, but what the camera now holds could not be read: " + reading.reason,
                              reading.cause};
        }
    }
    return result;
}

std::string DescribeProblem(const Camera& camera, const FunctionValue& assignment, const Assigned& result) {
    const bool differs = result.held && *result.held != assignment.value;
    std::string text;
    if (result.failure.code != 0) {
        text += ": " + DescribeRefusal(result.failure.reason, result.lock);
    }
    if (differs) {
        text += ": " + DescribeHeld(camera, assignment, result);
    }
    return text.empty() ? "" : assignment.instance.Name() + text;
}

Json ToJson(const FunctionValue& assignment, const Assigned& result) {
    const Instance& instance = assignment.instance;
    Json document{{"name", instance.Name()},
                  {"asked", instance->trigger ? Json() : ToJson(instance, assignment.value)},
                  {"value", result.held ? ToJson(instance, *result.held) : Json()},
                  {"error", result.failure.code == 0 ? Json() : Json(result.failure.reason)}};
    AddLock(document, result.lock);
    return document;
}

void Caution(const Connection& connection, const Instance& instance, const Value& held) {
    const bool concerns = instance->caution != nullptr && connection.IsOnNetwork();
    if (const std::string text = concerns ? instance->caution(held) : ""; !text.empty()) {
        PrintError(instance.Name() + ": " + text);
    }
}

bool Assign(Session& session, const std::vector<FunctionValue>& assignments,
            const std::function<void(const FunctionValue&, const Assigned&)>& told) {
    const Camera camera = session.Camera();
    const UncachedCamera reader(session);
    const Wait wait = MakeWait(session);
    bool refused = false;
    for (const FunctionValue& assignment : assignments) {
        const Assigned result = AssignOne(camera, reader.Camera(), wait, assignment);
        told(assignment, result);
        if (const std::string problem = DescribeProblem(camera, assignment, result); !problem.empty()) {
            PrintError(problem);
            refused |= !result.IsAccepted(assignment.value);
        }
        if (result.failure.code == 0 && result.held) {
            Caution(session.Connection(), assignment.instance, *result.held);
        }
    }
    return refused;
}

} // namespace Host
