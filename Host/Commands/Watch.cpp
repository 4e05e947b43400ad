#include "Host/Commands/Commands.h"

#include "Common/Number.h"
#include "Host/Assignment.h"
#include "Host/Describe.h"
#include "Host/ErrorReporting.h"
#include "Host/Format.h"
#include "Host/Functions/Tables.h"
#include "Host/Interrupts.h"
#include "Host/KeepTrying.h"
#include "Host/Settings/UncachedCamera.h"

#include <algorithm>
#include <ctime>
#include <iostream>
#include <iterator>
#include <utility>

namespace Host {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// Local time, "2026-03-01T14:03:22.123+01:00".
std::string TimeOfDay() {
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    const auto fraction = std::chrono::duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000;
    std::tm parts{};
    localtime_r(&seconds, &parts);
    char date[24];
    char zone[8];
    std::strftime(date, sizeof date, "%Y-%m-%dT%H:%M:%S", &parts);
    std::strftime(zone, sizeof zone, "%z", &parts); // +0100
    return date + ("." + std::to_string(1000 + fraction).substr(1)) + std::string(zone).insert(3, ":");
}

/// Prints what happens, with its time.
class Changes {
public:
    explicit Changes(bool asJson) : json(asJson) {}

    /// @param what the function, the property or the camera
    /// @param source "first" for the first value, "camera" for a change found by polling, "callback" for one reported
    /// by
    ///        the control, "waiting" and "back" for the camera itself
    /// @param text for people
    /// @param members for programs
    void Print(const std::string& what, const char* source, const std::string& text,
               const Json::Object& members) const {
        const std::string now = TimeOfDay();
        if (json) {
            const auto time = std::chrono::duration_cast<milliseconds>(Clock::now() - start).count();
            Json line{{"time", now}, {"milliseconds", std::int64_t{time}}, {"name", what}, {"source", source}};
            for (const auto& [name, value] : members) {
                line.Add(name, value);
            }
            std::cout << line.PrintInOneLine();
        } else {
            const std::string untilSeconds = now.substr(0, now.find('T')) + ' ' + now.substr(now.find('T') + 1, 12);
            std::cout << Pad(untilSeconds, 25) << Pad(source, 10) << Pad(what, 24) << text;
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
    /// Those named, or all but those with many instances.
    /// @throws UsageError for a function that cannot be watched
    WatchedFunctions(const Camera& camera, const std::vector<std::string>& names) : areNamed(!names.empty()) {
        for (const std::string& name : names) {
            const auto found = camera.FindReadable(name);
            std::copy_if(found.begin(), found.end(), std::back_inserter(watched), [&](const Instance& instance) {
                return std::find(watched.begin(), watched.end(), instance) == watched.end();
            });
        }
        if (!areNamed) {
            watched = camera.All();
            std::erase_if(watched, [](const Instance& instance) {
                return instance->get == nullptr || instance->count > fewInstances;
            });
        }
        last.resize(watched.size());
    }

    /// Prints what changed, and the first values of functions that were named.
    void Poll(const Camera& reader, const Changes& changes) {
        for (std::size_t i = 0; i < watched.size(); ++i) {
            const bool isShownFirst = areNamed && !last[i];
            Held now = Read(reader, watched[i], isShownFirst);
            if (isShownFirst) {
                Json members{{"value", now.json}};
                AddLock(members, now.lock);
                changes.Print(watched[i].Name(), "first", DescribeRefusal(now.text, now.lock), *members.Members());
            } else if (last[i] && now.text != last[i]->text) {
                changes.Print(watched[i].Name(), "camera", last[i]->text + " -> " + now.text,
                              {{"before", last[i]->json}, {"value", now.json}});
            }
            last[i] = std::move(now);
        }
    }

private:
    struct Held {
        std::string text;
        Json json; ///< null if it could not be read
        LockState lock;
    };

    [[nodiscard]] static Held Read(const Camera& reader, const Instance& instance, bool andItsLock) {
        const Reading reading = andItsLock ? reader.Inspect(instance) : reader.TryRead(instance);
        if (reading.code != 0) {
            return {"(" + reading.reason + ")", {}, reading.lock};
        }
        return {PrintWithUnit(instance, reading.value), ToJson(instance, reading.value), reading.lock};
    }

    bool areNamed;
    std::vector<Instance> watched;
    std::vector<std::optional<Held>> last; ///< of each; nothing before it was read
};

/// @return the value of an option in seconds, if given
/// @throws UsageError unless it is a number from the smallest on
std::optional<milliseconds> SecondsOf(const Invocation& invocation, Parameter parameter, double smallest) {
    const std::string text = invocation.Text(parameter);
    if (text.empty()) {
        return std::nullopt;
    }
    const auto seconds = Common::ParseWhole<double>(text);
    if (!seconds || !(*seconds >= smallest) || *seconds > 1e9) {
        throw UsageError("invalid number of seconds \"" + text + '"' + (smallest > 0 ? ", at least 0.001" : ""));
    }
    return milliseconds(static_cast<std::int64_t>(*seconds * 1000));
}

/// One run of the command, which may need several sessions.
class Watching {
public:
    explicit Watching(const Invocation& command)
        : invocation(command),
          duration(SecondsOf(command, Parameter::Seconds, 0)),
          interval(SecondsOf(command, Parameter::Interval, 0.001).value_or(milliseconds(100))),
          changes(command.Program().Json()),
          end(EndFromNow()) {
        for (const std::string& text : invocation.Texts(Parameter::Names)) {
            (text.find('=') != std::string::npos || IsTrigger(text) ? toSet : names).push_back(text);
        }
        if (invocation.Has(Parameter::NoControl) && !toSet.empty()) {
            throw UsageError("setting needs control: leave out " + toSet.front() + " or --no-control");
        }
    }

    /// @return the exit code
    int Run() {
        const std::string camera = invocation.Text(Parameter::Camera);
        const auto waits = [&](const std::string& why) { changes.Print(camera, "waiting", why, {{"reason", why}}); };
        const auto goesOn = [&](milliseconds gone) {
            changes.Print(camera, "back", "after " + PrintSeconds(gone),
                          {{"goneMilliseconds", std::int64_t{gone.count()}}});
        };
        const auto needsControl = [&] { return areSet < toSet.size(); };
        KeepTrying attempts(invocation, {waits, goesOn, needsControl, [&] { return IsEnding(); }});
        if (!attempts.Run([&](Session& session) { Watch(session); }) && !Interrupts::Received()) {
            return isBegun ? Refused : NotOpened; // the time is over, and the camera away
        }
        return code;
    }

private:
    void Watch(Session& session) {
        const Camera camera = session.Camera();
        if (!watched) {
            watched.emplace(camera, names);
            assignments = ParseAssignments(camera, toSet);
        }
        const UncachedCamera reader(session);
        const Interrupts interrupts;
        if (areSet < assignments.size()) {
            watched->Poll(reader.Camera(), changes);
            SetValues(camera);
        }
        if (!std::exchange(isBegun, true)) {
            end = EndFromNow();
        }
        auto next = Clock::now();
        while (!IsEnding()) {
            watched->Poll(reader.Camera(), changes);
            next = std::max(next + interval, Clock::now());
            Sleep(session.Connection(), duration ? std::min(next, end) : next);
        }
        watched->Poll(reader.Camera(), changes);
    }

    /// Sets those that are not set yet.
    void SetValues(const Camera& camera) {
        const Listener listener(camera, changes);
        for (; areSet < assignments.size(); ++areSet) {
            const FunctionValue& wanted = assignments[areSet];
            const Outcome failure = Attempt([&] { camera.SetUnlessLocked(wanted.instance, wanted.value); });
            if (failure.code != 0) { // watching goes on
                const LockState lock = camera.WhatRefused(wanted.instance);
                PrintError(wanted.instance.Name() + ": " + DescribeRefusal(failure.reason, lock));
                code = Refused;
            }
        }
    }

    static void Sleep(Connection& connection, Clock::time_point until) {
        const auto before = Clock::now();
        Interrupts::Sleep(std::chrono::ceil<milliseconds>(until - before));
        connection.TimePassed(std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - before));
    }

    [[nodiscard]] Clock::time_point EndFromNow() const { return Clock::now() + duration.value_or(milliseconds(0)); }
    [[nodiscard]] bool IsEnding() const { return Interrupts::Received() || (duration && Clock::now() >= end); }

    const Invocation& invocation;
    std::optional<milliseconds> duration;
    milliseconds interval;
    Changes changes;
    std::vector<std::string> names; ///< functions to watch; empty for all
    std::vector<std::string> toSet;
    Clock::time_point end; ///< first of waiting for the camera, then of watching
    bool isBegun = false;
    std::optional<WatchedFunctions> watched;
    std::vector<FunctionValue> assignments;
    std::size_t areSet = 0; ///< the assignments that were made
    int code = Success;
};

} // namespace

int Watch(const Invocation& invocation) { return Watching(invocation).Run(); }

} // namespace Host
