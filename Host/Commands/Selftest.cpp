#include "Host/Selftest/Selftest.h"

#include "Host/Channel/ChannelErrors.h"
#include "Host/Commands/Commands.h"
#include "Host/Format.h"
#include "Host/Interrupts.h"
#include "Host/Settings/Restorer.h"
#include "Host/Settings/SettingsFile.h"
#include "Host/Settings/UncachedCamera.h"
#include "Host/Style.h"

#include <unistd.h>

#include <filesystem>
#include <iostream>

namespace Host {

namespace {

constexpr const char* notPutBack = "the settings could not be put back";

/// How far the run is; on a styled terminal alone.
class Progress {
public:
    explicit Progress(std::size_t totalSteps) : total(totalSteps), shown(IsStyled(STDERR_FILENO)) {}
    ~Progress() {
        if (shown) {
            std::cerr << "\r\033[K" << std::flush;
        }
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void Step(const std::string& name) {
        const std::size_t width = 40;
        const std::size_t filled = width * done++ / total;
        if (shown) {
            std::cerr << "\r[" << std::string(filled, '#') << std::string(width - filled, ' ') << "] " << name
                      << "\033[K" << std::flush;
        }
    }

private:
    std::size_t total;
    std::size_t done = 0;
    bool shown;
};

/// Keeps what the camera is set to, and sets it back, however the test ends.
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

    /// The camera is lost: keeps the settings in a file.
    /// @return what became of them, in words
    std::string GiveUp() {
        isBack = true;
        try {
            const auto file = std::filesystem::temp_directory_path() /
                              ("qdv12host-" + before.model + "-" + std::to_string(getpid()) + ".json");
            WriteSettings(before, file.string());
            return notPutBack + std::string("; ") + Quoted(file.string()) + " holds them for restore";
        } catch (const std::exception& error) {
            return notPutBack + std::string(", nor kept: ") + error.what();
        }
    }

    /// @return what is not as it was
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
    /// What cannot be read fails its test, and is not put back.
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

/// The instances of a row as one.
void Merge(std::vector<TestResult>& results, TestResult tested) {
    const Instance instance = tested.instance;
    for (std::string& failure : tested.failures) {
        failure.insert(0, instance->indexed ? std::to_string(instance.index) + ": " : "");
    }
    if (results.empty() || results.back().instance.function != instance.function) {
        results.push_back(std::move(tested));
        return;
    }
    TestResult& row = results.back();
    row.checks += tested.checks;
    row.failures.insert(row.failures.end(), tested.failures.begin(), tested.failures.end());
}

std::vector<TestResult> TestAll(Session& session, bool outputs) {
    const UncachedCamera setter(session);
    const UncachedCamera reader(session);
    const Selftest test(setter.Camera(), reader.Camera(), MakeWait(session), outputs);
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

/// @return nothing for what can only be read, unless that failed
std::string Describe(const TestResult& tested) {
    if (tested.instance->set == nullptr && tested.failures.empty()) {
        return "";
    }
    std::string text =
        Pad(std::string(tested.instance->name), 24) + "  " + Pad(std::to_string(tested.checks), 6) + "  ";
    text += !tested.leftOut.empty()   ? Dim("left out (" + tested.leftOut + ")")
            : tested.failures.empty() ? Green("passed")
                                      : Red("FAILED");
    for (const std::string& failure : tested.failures) {
        text += "\n    " + failure;
    }
    return text;
}

Json ToJson(const TestResult& tested) {
    Json failures(Json::List{});
    for (const std::string& failure : tested.failures) {
        failures.Add(failure);
    }
    return Json{{"name", tested.instance->name},
                {"checks", tested.checks},
                {"failures", failures},
                {"leftOut", tested.leftOut.empty() ? Json() : Json(tested.leftOut)}};
}

/// @return how many checks failed
int Report(const std::vector<TestResult>& results, Output output) {
    int checks = 0;
    int failures = 0;
    output.Line(Pad("FUNCTION", 24) + "  CHECKS  RESULT");
    for (const TestResult& tested : results) {
        checks += tested.checks;
        failures += static_cast<int>(tested.failures.size());
        output.Add(Describe(tested), ToJson(tested));
    }
    output.Line(std::to_string(checks) + " checks, " + std::to_string(failures) + " failures");
    output.End();
    return failures;
}

} // namespace

int RunSelftest(const Invocation& invocation) {
    Session& session = invocation.Open();
    session.Connection().RequireControl();
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
        PrintError("not put back: " + difference.instance.Name());
    }
    if (Interrupts::Received()) {
        PrintError(left.empty() ? "interrupted; the settings are put back" : "interrupted");
        return Refused;
    }
    return failures == 0 && left.empty() ? Success : Refused;
}

} // namespace Host
