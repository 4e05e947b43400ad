#include "Host/Commands/Commands.h"

#include "Host/CameraName.h"
#include "Host/Channel/ChannelErrors.h"
#include "Host/Describe.h"
#include "Host/Format.h"
#include "Host/Functions/Tables.h"
#include "Host/Interrupts.h"
#include "Host/KeepTrying.h"
#include "Host/Settings/Assign.h"
#include "Host/Settings/Restorer.h"
#include "Host/Settings/ResultJson.h"
#include "Host/Settings/Selection.h"
#include "Host/Settings/SettingsFile.h"
#include "Host/Settings/UncachedCamera.h"
#include "Host/Style.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
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
    /// @param onlyChanged whether to leave out what was unchanged
    Printer(const Output& printed, bool onlyChanged) : output(printed), changed(onlyChanged) {}

    void operator()(const RestoreResult& result) {
        if (changed && result.status == RestoreStatus::Unchanged) {
            return;
        }
        const Function* const skipped = result.status == RestoreStatus::Skipped ? result.instance.function : nullptr;
        if (skipped == nullptr || skipped != lastSkipped) {
            output.Line(Line(result));
            std::cout.flush(); // a reader waits for each result
        }
        lastSkipped = skipped;
    }

private:
    const Output& output;
    bool changed;
    const Function* lastSkipped = nullptr;
};

/// How many results there are of each kind.
std::map<RestoreStatus, std::int64_t> Count(const std::vector<RestoreResult>& results) {
    std::map<RestoreStatus, std::int64_t> counts;
    for (const RestoreResult& result : results) {
        ++counts[result.status];
    }
    return counts;
}

/// "1 ok, 66 unchanged"
std::string DescribeCounts(const std::vector<RestoreResult>& results) {
    std::string text;
    for (const auto& [status, count] : Count(results)) {
        text += (text.empty() ? "" : ", ") + std::to_string(count) + ' ' + NameOf(status);
    }
    return text;
}

/// A list of results; of those that changed, an object with this list and the counts of all.
Json ToJson(const std::vector<RestoreResult>& results, bool onlyChanged) {
    Json list(Json::List{});
    for (const RestoreResult& result : results) {
        if (!onlyChanged || result.status != RestoreStatus::Unchanged) {
            list.Add(ToJson(result));
        }
    }
    if (!onlyChanged) {
        return list;
    }
    Json counts(Json::Object{});
    for (const auto& [status, count] : Count(results)) {
        counts.Add(NameOf(status), count);
    }
    return Json{{"results", list}, {"summary", counts}};
}

/// "12 of 67 functions restored, 3 skipped, 52 not reached; automatic modes reverted: agc", for an incomplete restore.
/// @param all the number of functions to restore
std::string DescribeProgress(const RestoreProgress& progress, std::size_t all) {
    auto counts = Count(progress.results);
    const auto restored =
        counts[RestoreStatus::Done] + counts[RestoreStatus::Unchanged] + counts[RestoreStatus::Rounded];
    const auto skipped = counts[RestoreStatus::Skipped];
    const auto refused = counts[RestoreStatus::Clamped] + counts[RestoreStatus::Refused];
    std::vector<Instance> putBack;
    for (const RestoreResult& result : progress.Known()) {
        if (result.status == RestoreStatus::PutBack) {
            putBack.push_back(result.instance);
        }
    }
    std::string text = std::to_string(restored) + " of " + std::to_string(all) + " functions restored";
    const auto add = [&](std::int64_t number, const char* what) {
        text += number == 0 ? "" : ", " + std::to_string(number) + what;
    };
    add(skipped, " skipped");
    add(refused, " refused");
    add(static_cast<std::int64_t>(all) - restored - skipped - refused, " not reached");
    const auto leftOff = progress.ModesLeftOff();
    text += putBack.empty() ? "" : "; automatic modes reverted: " + NamesOf(putBack);
    text += leftOff.empty() ? "" : "; automatic modes left off: " + NamesOf(leftOff);
    return text;
}

/// One run of the command, which may need several sessions.
class RestoreRun {
public:
    /// @throws UsageError for a file that cannot be restored, or an unknown name
    explicit RestoreRun(const Invocation& command)
        : invocation(command),
          file(command.Text(Parameter::File)),
          saved(ReadSettings(file, command.Program().IsOpen())),
          selection(*TableOf(saved.family), command.Texts(Parameter::Only), command.Texts(Parameter::Except)),
          dryRun(command.Has(Parameter::DryRun)),
          changed(command.Has(Parameter::Changed)),
          output(command.Output()) {
        hasAll = selection.ReportAbsent(saved, file);
        selected = static_cast<std::size_t>(
            std::count_if(saved.values.begin(), saved.values.end(),
                          [&](const FunctionValue& each) { return selection.Takes(each.instance); }));
        if (selected == 0) {
            throw UsageError(DescribeFile(file) + " holds no values to restore");
        }
    }

    /// @return the exit code
    int Run() {
        const auto waits = [](const std::string& why) { PrintError(why + "; waiting for the camera"); };
        const auto goesOn = [](std::chrono::milliseconds gone) {
            PrintError("the camera is back after " + PrintSeconds(gone));
        };
        KeepTrying attempts(invocation, {waits, goesOn, [&] { return !dryRun; }});
        bool ended = false;
        try {
            ended = attempts.Run([&](Session& session) { Attempt(session); });
        } catch (const ChannelLost&) {
            PrintEnd();
            throw;
        }
        PrintEnd();
        return Report(ended && !progress.stopped);
    }

private:
    /// Restores, or plans to, from the first function on.
    void Attempt(Session& session) {
        if (saved.model != session.Model()) {
            throw UsageError(DescribeFile(file) + " holds settings of model " + saved.model + ", but the camera is " +
                             session.Model());
        }
        Restorer::Options options{.outputs = invocation.Has(Parameter::Outputs),
                                  .network = invocation.Has(Parameter::Network),
                                  .selects = [&](const Instance& each) { return selection.Takes(each); },
                                  .earlier = progress,
                                  .report = Printer(output, changed)};
        std::optional<Interrupts> interrupts;
        std::optional<IgnoredPipeSignal> pipes;
        if (!dryRun) {
            interrupts.emplace();
            pipes.emplace();
            options.shouldStop = Interrupts::Received;
        }
        const Camera camera = session.Camera();
        const UncachedCamera reader(session);
        Restorer restorer(saved, camera, reader.Camera(), MakeWait(session), options);
        try {
            dryRun ? restorer.Plan() : restorer.Restore();
        } catch (ChannelLost& error) {
            progress = restorer.Progress();
            if (!dryRun) {
                error.AddConsequence(DescribeProgress(progress, selected));
            }
            throw;
        }
        progress = restorer.Progress();
        for (const RestoreResult& result : progress.results) {
            if (result.status == RestoreStatus::Done) {
                Caution(session.Connection(), result.instance, result.saved);
            }
        }
    }

    /// Prints what comes after the results.
    void PrintEnd() {
        const auto known = progress.Known();
        output.Set(changed && !known.empty() ? DescribeCounts(known) : "", ToJson(known, changed));
        output.End();
    }

    /// Reports failures on standard error. @return the exit code
    [[nodiscard]] int Report(bool isWhole) const {
        if (!isWhole) {
            PrintError("interrupted; " + DescribeProgress(progress, selected));
            return Refused;
        }
        const auto failures = std::count_if(progress.results.begin(), progress.results.end(),
                                            [](const RestoreResult& result) { return IsFailure(result.status); });
        if (failures != 0) {
            PrintError(std::to_string(failures) + " of " + std::to_string(selected) + " functions not restored");
        }
        return failures == 0 && hasAll ? Success : Refused;
    }

    const Invocation& invocation;
    std::string file;
    Settings saved;
    Selection selection;
    bool dryRun;
    bool changed; ///< whether to print only what is not unchanged
    Output output;
    bool hasAll = false;      ///< whether the file has values of all names
    std::size_t selected = 0; ///< how many functions to restore
    RestoreProgress progress; ///< of the last attempt
};

} // namespace

int Restore(const Invocation& invocation) {
    const std::string file = invocation.Text(Parameter::File);
    if (std::error_code ignored; IsCamera(file) && !std::filesystem::exists(file, ignored)) {
        throw UsageError('"' + file + "\" is a camera, not a file; usage: restore FILE" +
                         (invocation.Program().IsOpen() ? "" : " CAMERA"));
    }
    return RestoreRun(invocation).Run();
}

} // namespace Host
