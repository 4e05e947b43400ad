#include "Host/Selftest/ComplianceTest.h"

#include "Host/Channel/ChannelErrors.h"
#include "Host/Commands/Commands.h"
#include "Host/Describe.h"
#include "Host/Format.h"
#include "Host/Interrupts.h"
#include "Host/Progress.h"
#include "Host/Settings/Restorer.h"
#include "Host/Settings/SettingsFile.h"
#include "Host/Settings/UncachedCamera.h"
#include "Host/Style.h"

#include <unistd.h>

#include <filesystem>
#include <iostream>

namespace Host {

namespace {

constexpr const char* notPutBack = "the settings could not be restored";

/// Saves the settings of the camera and restores them when the test ends.
class SettingsGuard {
public:
    SettingsGuard(Session& openSession, bool withOutputs)
        : session(openSession),
          outputs(withOutputs),
          before(Take()) {}
    ~SettingsGuard() {
        try {
            static_cast<void>(PutBack());
        } catch (const std::exception& error) {
            PrintError(notPutBack + std::string(": ") + error.what());
        }
    }
    SettingsGuard(const SettingsGuard&) = delete;
    SettingsGuard& operator=(const SettingsGuard&) = delete;

    /// Saves the settings to a file when the camera is lost.
    /// @return a description for the user
    std::string GiveUp() {
        isBack = true;
        try {
            const auto file = std::filesystem::temp_directory_path() /
                              ("qdv12host-" + before.model + "-" + std::to_string(getpid()) + ".json");
            WriteSettings(before, file.string());
            return notPutBack + std::string("; they are saved in ") + DescribeFile(file.string());
        } catch (const std::exception& error) {
            return notPutBack + std::string(", nor saved: ") + error.what();
        }
    }

    /// @return settings that could not be restored
    std::vector<Difference> PutBack() {
        if (std::exchange(isBack, true)) {
            return {};
        }
        const UncachedCamera setter(session);
        const UncachedCamera reader(session);
        Restorer restorer(before, setter.Camera(), reader.Camera(), MakeWait(session), {.outputs = outputs});
        restorer.Restore();
        now = Take();
        auto left = Compare(before, now);
        for (const Instance& instance : Uncompared(now, before)) {
            left.push_back({instance, before.Find(instance), nullptr});
        }
        return left;
    }

private:
    /// Functions that cannot be read fail their test and are not restored.
    [[nodiscard]] Settings Take() const {
        const UncachedCamera reader(session);
        return TakeSettings(
            reader.Camera(), [](const Instance&, const Reading&) {}, outputs);
    }

    Session& session;
    bool outputs;
    Settings before;
    Settings now;
    bool isBack = false;
};

/// Combines the instances of a row into one result.
void Merge(std::vector<TestResult>& results, TestResult result) {
    const Instance instance = result.instance;
    for (std::string& failure : result.failures) {
        failure.insert(0, instance->indexed ? std::to_string(instance.index) + ": " : "");
    }
    if (results.empty() || results.back().instance.function != instance.function) {
        results.push_back(std::move(result));
        return;
    }
    TestResult& row = results.back();
    row.checks += result.checks;
    row.failures.insert(row.failures.end(), result.failures.begin(), result.failures.end());
}

std::vector<TestResult> TestAll(Session& session, bool outputs) {
    const UncachedCamera setter(session);
    const UncachedCamera reader(session);
    const ComplianceTest test(setter.Camera(), reader.Camera(), MakeWait(session), outputs);
    test.SwitchOffModes();
    const auto instances = setter.Camera().All();
    Progress progress(instances.size());
    std::vector<TestResult> results;
    for (const Instance& instance : instances) {
        if (Interrupts::Received()) {
            break;
        }
        progress.Step(instance.Name());
        Merge(results, test.Test(instance));
    }
    return results;
}

/// @return empty for a read-only function that passed
std::string Describe(const TestResult& result) {
    if (result.instance->set == nullptr && result.failures.empty()) {
        return "";
    }
    std::string text =
        Pad(std::string(result.instance->name), 24) + "  " + Pad(std::to_string(result.checks), 6) + "  ";
    text += !result.leftOut.empty()   ? Dim("left out (" + DescribeRefusal(result.leftOut, result.lock) + ")")
            : result.failures.empty() ? Green("passed")
                                      : Red("FAILED");
    for (const std::string& failure : result.failures) {
        text += "\n    " + failure;
    }
    return text;
}

Json ToJson(const TestResult& result) {
    Json failures(Json::List{});
    for (const std::string& failure : result.failures) {
        failures.Add(failure);
    }
    Json document{{"name", result.instance->name},
                  {"checks", result.checks},
                  {"failures", failures},
                  {"leftOut", TextOrNull(result.leftOut)}};
    AddLock(document, result.lock);
    return document;
}

/// @return how many checks failed
int Report(const std::vector<TestResult>& results, Output output) {
    int checks = 0;
    int failures = 0;
    output.Line(Pad("FUNCTION", 24) + "  CHECKS  RESULT");
    for (const TestResult& result : results) {
        checks += result.checks;
        failures += static_cast<int>(result.failures.size());
        output.Add(Describe(result), ToJson(result));
    }
    output.Line(std::to_string(checks) + " checks, " + std::to_string(failures) + " failures");
    output.End();
    return failures;
}

} // namespace

int Selftest(const Invocation& invocation) {
    Session& session = invocation.Open();
    session.Connection().RequireControl();
    if (session.Acquires()) {
        throw UsageError("acquisition runs, and locks functions that selftest sets; stop it first");
    }
    const bool outputs = invocation.Has(Parameter::Outputs);
    const Interrupts interrupts;
    const IgnoredPipeSignal pipes;
    SettingsGuard preserved(session, outputs);
    std::vector<TestResult> results;
    std::vector<Difference> left;
    try {
        results = TestAll(session, outputs);
        left = preserved.PutBack();
    } catch (ChannelLost& error) {
        error.AddConsequence(preserved.GiveUp());
        throw;
    }
    const int failures = Report(results, invocation.Output());
    for (const Difference& difference : left) {
        PrintError(difference.instance.Name() + ": could not be restored");
    }
    if (Interrupts::Received()) {
        PrintError(left.empty() ? "interrupted; the settings were restored" : "interrupted");
        return Refused;
    }
    return failures == 0 && left.empty() ? Success : Refused;
}

} // namespace Host
