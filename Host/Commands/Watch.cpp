#include "Host/Commands/Commands.h"

#include "Common/Number.h"
#include "Host/Assignment.h"
#include "Host/Describe.h"
#include "Host/ErrorReporting.h"
#include "Host/Format.h"
#include "Host/Interrupts.h"
#include "Host/Settings/UncachedCamera.h"

#include <iostream>

namespace Host {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds period{100}; ///< between two polls

/// Prints changes with the time since the start.
class Changes {
public:
    explicit Changes(bool asJson) : json(asJson) {}

    /// @param what the function or the property
    /// @param source "camera" for a change found by polling, "callback" for one reported by the control
    /// @param text for people
    /// @param members for programs
    void Print(const std::string& what, const char* source, const std::string& text,
               const Json::Object& members) const {
        const auto time = std::chrono::duration_cast<milliseconds>(Clock::now() - start).count();
        if (json) {
            Json line{{"milliseconds", std::int64_t{time}}, {"name", what}, {"source", source}};
            for (const auto& [name, value] : members) {
                line.Add(name, value);
            }
            std::cout << line.PrintInOneLine();
        } else {
            const std::string fraction = std::to_string(1000 + time % 1000).substr(1);
            std::cout << Pad(std::to_string(time / 1000) + "." + fraction + " s", 12) << Pad(source, 10)
                      << Pad(what, 24) << text;
        }
        std::cout << std::endl; // a reader waits for each change
    }

private:
    bool json;
    Clock::time_point start = Clock::now();
};

/// Prints the callbacks of a control that has them.
class Listener {
public:
    Listener(const Camera& camera, const Changes& printed)
        : properties(camera.As<SDK4::Control::IPropertyState>()),
          changes(printed) {
        if (properties != nullptr) {
            properties->AddCallback(OnChange, this);
        }
    }
    ~Listener() {
        if (properties != nullptr) {
            properties->RemoveCallback(OnChange);
        }
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

private:
    static void OnChange(const char* name, const char* attribute, void* context) {
        const auto* const self = static_cast<Listener*>(context);
        const auto now = self->Read(name, attribute);
        self->changes.Print(name, "callback", attribute + (now ? " = " + now->Print() : ""),
                            {{"attribute", attribute}, {"value", now.value_or(Json())}});
    }

    [[nodiscard]] std::optional<Json> Read(const char* name, const std::string& attribute) const {
        if (attribute == "enabled") {
            return properties->GetEnabled(name);
        }
        if (attribute != "value" || properties->IsIndexed(name)) { // a callback has no index
            return std::nullopt;
        }
        try {
            return properties->IsUnsigned(name) ? Json(properties->GetUIntValue(name))
                                                : Json(properties->GetIntValue(name));
        } catch (const SDK4::X4Error&) { // a callback must not throw
            return std::nullopt;
        }
    }

    SDK4::Control::IPropertyState* properties;
    const Changes& changes;
};

/// The functions that are polled, with their last values.
class WatchedFunctions {
public:
    explicit WatchedFunctions(const Camera& reading) : reader(reading) {
        for (const Instance& instance : reader.All()) {
            if (instance->get != nullptr && instance->count <= fewInstances) {
                last.push_back({instance, Read(instance)});
            }
        }
    }

    void Poll(const Changes& changes) {
        for (auto& [instance, before] : last) {
            if (Held now = Read(instance); now.text != before.text) {
                changes.Print(instance.Name(), "camera", before.text + " -> " + now.text,
                              {{"before", before.json}, {"value", now.json}});
                before = std::move(now);
            }
        }
    }

private:
    struct Held {
        std::string text;
        Json json; ///< null if it could not be read
    };

    [[nodiscard]] Held Read(const Instance& instance) const {
        const Reading reading = reader.TryRead(instance);
        if (reading.code != 0) {
            return {"(" + reading.reason + ")", {}};
        }
        return {PrintWithUnit(instance, reading.value), ToJson(instance, reading.value)};
    }

    const Camera& reader;
    std::vector<std::pair<Instance, Held>> last;
};

/// @return the value of --seconds, if given
std::optional<milliseconds> DurationOf(const Invocation& invocation) {
    const std::string text = invocation.Text(Parameter::Seconds);
    if (text.empty()) {
        return std::nullopt;
    }
    const auto seconds = Common::ParseWhole<double>(text);
    if (!seconds || !(*seconds >= 0) || *seconds > 1e9) {
        throw UsageError("invalid number of seconds \"" + text + '"');
    }
    return milliseconds(static_cast<std::int64_t>(*seconds * 1000));
}

} // namespace

int Watch(const Invocation& invocation) {
    const auto duration = DurationOf(invocation);
    if (invocation.Has(Parameter::NoControl) && invocation.Has(Parameter::Assignments)) {
        throw UsageError("setting needs control: leave out NAME=VALUE or --no-control");
    }
    Session& session = invocation.Open();
    const Camera camera = session.Camera();
    if (invocation.Has(Parameter::Assignments)) {
        session.Connection().RequireControl();
    }
    const auto assignments = ParseAssignments(camera, invocation.Texts(Parameter::Assignments));
    const UncachedCamera reader(session);
    const Interrupts interrupts;
    const Changes changes(invocation.Program().Json());
    WatchedFunctions watched(reader.Camera());
    int code = Success;
    {
        const Listener listener(camera, changes);
        for (const FunctionValue& assignment : assignments) {
            const Outcome failure = Attempt([&] { camera.SetUnlessLocked(assignment.instance, assignment.value); });
            if (failure.code != 0) { // watching goes on
                PrintError(assignment.instance.Name() + ": " + failure.reason);
                code = Refused;
            }
        }
    }
    const auto end = Clock::now() + duration.value_or(milliseconds(0));
    while (!Interrupts::Received() && (!duration || Clock::now() < end)) {
        watched.Poll(changes);
        const auto before = Clock::now();
        Interrupts::Sleep(period);
        session.Connection().TimePassed(std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - before));
    }
    watched.Poll(changes);
    return code;
}

} // namespace Host
