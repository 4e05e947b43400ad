#include "Host/Commands/Commands.h"

#include "Host/CameraName.h"
#include "Host/Channel/ChannelErrors.h"
#include "Host/Describe.h"
#include "Host/Format.h"
#include "Host/Interrupts.h"
#include "Host/Settings/Assign.h"
#include "Host/Settings/Restorer.h"
#include "Host/Settings/ResultJson.h"
#include "Host/Settings/SettingsFile.h"
#include "Host/Settings/UncachedCamera.h"
#include "Host/Style.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <system_error>

namespace Host {

namespace {

/// "7 -> 100", or what went wrong.
std::string Describe(const RestoreResult& result) {
    const Instance& instance = result.instance;
    const std::string reason = DescribeRefusal(result.reason, result.lock) + (result.reason.empty() ? "" : "; ");
    const std::string now = result.held ? ", the camera now holds " + instance.Print(*result.held) : "";
    switch (result.status) {
    case RestoreStatus::Done:
    case RestoreStatus::Planned:
        return (result.before ? instance.Print(*result.before) + " -> " : "") + instance.Print(result.saved);
    case RestoreStatus::Unchanged:
        return instance.Print(result.saved);
    case RestoreStatus::Skipped:
        return result.reason;
    case RestoreStatus::PutBack:
        return instance.Print(*result.held) + ", as before";
    case RestoreStatus::LeftOff:
        return reason + "it was " + instance.Print(*result.before) + now;
    default:
        return reason + "asked for " + instance.Print(result.saved) + now;
    }
}

std::string Line(const RestoreResult& result) {
    const std::string status = Pad(NameOf(result.status), 10);
    const bool left = result.status == RestoreStatus::Unchanged || result.status == RestoreStatus::Skipped;
    const std::string name =
        result.status == RestoreStatus::Skipped ? std::string(result.instance->name) : result.instance.Name();
    const std::string shown = IsFailure(result.status) ? Red(status) : left ? Dim(status) : Green(status);
    return Pad(name, 24) + "  " + shown + "  " + Describe(result);
}

/// Prints one line per result as it arrives. Skipped instances of one function share a line.
class Printer {
public:
    explicit Printer(const Output& printed) : output(printed) {}

    void operator()(const RestoreResult& result) {
        const Function* const skipped = result.status == RestoreStatus::Skipped ? result.instance.function : nullptr;
        if (skipped == nullptr || skipped != lastSkipped) {
            output.Line(Line(result));
            std::cout.flush(); // a reader waits for each result
        }
        lastSkipped = skipped;
    }

private:
    const Output& output;
    const Function* lastSkipped = nullptr;
};

void PrintDocument(const std::vector<RestoreResult>& results, Output& output) {
    for (const RestoreResult& result : results) {
        if (result.status != RestoreStatus::Pending) {
            output.Add("", ToJson(result));
        }
    }
    output.End();
}

/// "12 of 67 functions restored, 3 skipped, 52 not reached; automatic modes reverted: agc", for an incomplete restore.
std::string DescribeProgress(const Restorer& restorer) {
    const auto& results = restorer.Results();
    const auto count = [&](std::initializer_list<RestoreStatus> statuses) {
        return std::count_if(results.begin(), results.end(), [&](const RestoreResult& result) {
            return std::find(statuses.begin(), statuses.end(), result.status) != statuses.end();
        });
    };
    const auto restored = count({RestoreStatus::Done, RestoreStatus::Unchanged, RestoreStatus::Rounded});
    const auto skipped = count({RestoreStatus::Skipped});
    const auto refused = count({RestoreStatus::Clamped, RestoreStatus::Refused});
    std::vector<Instance> putBack;
    for (const RestoreResult& result : results) {
        if (result.status == RestoreStatus::PutBack) {
            putBack.push_back(result.instance);
        }
    }
    std::string text = std::to_string(restored) + " of " + std::to_string(results.size()) + " functions restored";
    const auto add = [&](std::ptrdiff_t number, const char* what) {
        text += number == 0 ? "" : ", " + std::to_string(number) + what;
    };
    add(skipped, " skipped");
    add(refused, " refused");
    add(std::ssize(results) - restored - skipped - refused, " not reached");
    const auto leftOff = restorer.ModesLeftOff();
    text += putBack.empty() ? "" : "; automatic modes reverted: " + NamesOf(putBack);
    text += leftOff.empty() ? "" : "; automatic modes left off: " + NamesOf(leftOff);
    return text;
}

/// Runs or plans a restore and prints the results, even if it fails.
void RunAndPrint(Restorer& restorer, bool dryRun, Output& output) {
    try {
        dryRun ? restorer.Plan() : restorer.Restore();
    } catch (ChannelLost& error) {
        PrintDocument(restorer.Results(), output);
        if (!dryRun) {
            error.AddConsequence(DescribeProgress(restorer));
        }
        throw;
    }
    PrintDocument(restorer.Results(), output);
}

/// Reports failures on standard error. @return the exit code
int Report(const Restorer& restorer) {
    if (restorer.IsStopped()) {
        PrintError("interrupted; " + DescribeProgress(restorer));
        return Refused;
    }
    const auto& results = restorer.Results();
    const auto failures = std::count_if(results.begin(), results.end(),
                                        [](const RestoreResult& result) { return IsFailure(result.status); });
    if (failures != 0) {
        PrintError(std::to_string(failures) + " of " + std::to_string(results.size()) + " functions not restored");
    }
    return failures == 0 ? Success : Refused;
}

} // namespace

int Restore(const Invocation& invocation) {
    const std::string file = invocation.Text(Parameter::File);
    const bool dryRun = invocation.Has(Parameter::DryRun);
    if (std::error_code ignored; IsCamera(file) && !std::filesystem::exists(file, ignored)) {
        throw UsageError('"' + file + "\" is a camera, not a file; usage: restore FILE" +
                         (invocation.Program().IsOpen() ? "" : " CAMERA"));
    }
    const Settings saved = ReadSettings(file, invocation.Program().IsOpen());
    if (saved.values.empty()) {
        throw UsageError(DescribeFile(file) + " holds no values to restore");
    }
    Session& session = invocation.Open();
    if (saved.model != session.Model()) {
        throw UsageError(DescribeFile(file) + " holds settings of model " + saved.model + ", but the camera is " +
                         session.Model());
    }
    Output output = invocation.Output();
    Restorer::Options options{.outputs = invocation.Has(Parameter::Outputs),
                              .network = invocation.Has(Parameter::Network),
                              .report = Printer(output)};
    std::optional<Interrupts> interrupts;
    std::optional<IgnoredPipeSignal> pipes;
    if (!dryRun) {
        session.Connection().RequireControl();
        interrupts.emplace();
        pipes.emplace();
        options.shouldStop = Interrupts::Received;
    }
    const Camera camera = session.Camera();
    const UncachedCamera reader(session);
    Restorer restorer(saved, camera, reader.Camera(), MakeWait(session), options);
    RunAndPrint(restorer, dryRun, output);
    for (const RestoreResult& result : restorer.Results()) {
        if (result.status == RestoreStatus::Done) {
            Caution(session.Connection(), result.instance, result.saved);
        }
    }
    return Report(restorer);
}

} // namespace Host
