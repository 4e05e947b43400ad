#include "Commands.h"

#include "Describe.h"

#include <iostream>

namespace Host {

namespace {

struct Assignment {
    Instance instance;
    Value value;
};

/// Reads "gain=100", or the mere name of what has no value.
Assignment ParseAssignment(const Camera& camera, const std::string& text) {
    const std::size_t equals = text.find('=');
    const std::string name = text.substr(0, equals);
    const Instance instance = camera.FindOne(name);
    if (instance->set == nullptr) {
        throw UsageError("\"" + name + "\" can only be read");
    }
    if (instance->trigger) {
        return {instance, {}};
    }
    if (equals == std::string::npos) {
        throw UsageError("no value for \"" + name + "\": NAME=VALUE is wanted");
    }
    const std::string given = text.substr(equals + 1);
    if (const auto value = instance.Parse(given)) {
        return {instance, *value};
    }
    const std::string form = DescribeForm(instance, camera.LimitsOf(instance));
    throw UsageError("\"" + given + "\" is no value of " + name + (form.empty() ? "" : " (" + form + ")"));
}

struct Result {
    std::int32_t code = 0;     ///< of the refusal; of what has no code, SDK4_ERR_ERROR
    std::string reason;        ///< its name, or what the port said
    std::string lockedBy;      ///< if that is the reason
    std::optional<Value> held; ///< by the camera, afterwards
};

Result Perform(const Camera& camera, const Assignment& assignment) {
    Result result;
    try {
        camera.SetUnlessLocked(assignment.instance, assignment.value);
    } catch (const SDK4::X4Error& error) {
        result.code = error.code;
        result.reason = SDK4::ErrorName(error.code);
        result.lockedBy = camera.Look(assignment.instance).lockedBy;
    } catch (const std::exception& error) { // of the port
        result.code = SDK4_ERR_ERROR;
        result.reason = error.what();
    }
    if (assignment.instance->get != nullptr) {
        const Reading reading = camera.TryRead(assignment.instance);
        if (reading.error == 0) {
            result.held = reading.value;
        }
    }
    return result;
}

/// What became of a value that the camera does not hold as it was asked for.
std::string DescribeFate(const Camera& camera, const Assignment& assignment, const Result& result) {
    const std::string asked = assignment.instance.Print(assignment.value);
    const std::string held = assignment.instance.Print(*result.held);
    if (result.code == 0) {
        return asked + " was accepted, but the camera now holds " + held;
    }
    const bool clamped = result.code == SDK4_ERR_OUTOFRANGE && !camera.RefusalOf(assignment.instance).keeps;
    return clamped ? asked + " was clamped, the camera now holds " + held
                   : asked + " was refused, the camera still holds " + held;
}

/// Says on standard error what did not go as asked for.
/// @return whether it was refused
bool Report(const Camera& camera, const Assignment& assignment, const Result& result) {
    const bool differs = result.held && *result.held != assignment.value;
    if (result.code == 0 && !differs) {
        return false;
    }
    std::string text = assignment.instance.Name();
    if (result.code != 0) {
        text += ": " + result.reason + (result.lockedBy.empty() ? "" : " (locked by " + result.lockedBy + ")");
    }
    if (differs) {
        text += ": " + DescribeFate(camera, assignment, result);
    }
    Complain(text);
    return result.code != 0 || !assignment.instance->rounds;
}

Json ToJson(const Assignment& assignment, const Result& result) {
    const Instance& instance = assignment.instance;
    return Json{{"name", instance.Name()},
                {"asked", instance->trigger ? Json() : ToJson(instance, assignment.value)},
                {"value", result.held ? ToJson(instance, *result.held) : Json()},
                {"error", result.code == 0 ? Json() : Json(result.reason)}};
}

} // namespace

int Set(const Invocation& invocation) {
    const Camera camera = invocation.OpenCamera();
    std::vector<Assignment> assignments; // all are understood before the first is carried out
    for (const std::string& text : invocation.Texts("NAME=VALUE...")) {
        assignments.push_back(ParseAssignment(camera, text));
    }
    Json document;
    bool refused = false;
    for (const Assignment& assignment : assignments) {
        const Result result = Perform(camera, assignment);
        if (invocation.Program().Json()) {
            document.Add(ToJson(assignment, result));
        } else if (result.held) {
            std::cout << assignment.instance.Name() << '=' << assignment.instance.Print(*result.held) << '\n';
        }
        refused |= Report(camera, assignment, result);
    }
    if (invocation.Program().Json()) {
        std::cout << document.Print() << '\n';
    }
    return refused ? Refused : AllWell;
}

} // namespace Host
