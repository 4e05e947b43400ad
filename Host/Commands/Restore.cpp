#include "Commands.h"

#include "Channel/ChannelErrors.h"
#include "Describe.h"
#include "Format.h"
#include "Settings/ReadThrough.h"
#include "Settings/Restorer.h"
#include "Style.h"

#include <algorithm>
#include <iostream>

namespace Host {

namespace {

std::vector<Restored> RestoreAll(const Restorer& restorer, const Settings& saved) {
    try {
        return restorer.Restore(saved);
    } catch (ChannelLost& error) {
        error.SetConsequence("the settings may be restored in part");
        throw;
    }
}

/// "7 -> 100", and whatever is not as wanted.
std::string Describe(const Restored& result) {
    const Instance& instance = result.instance;
    switch (result.fate) {
    case Fate::Done:
    case Fate::Planned:
        return (result.before ? instance.Print(*result.before) + " -> " : "") + instance.Print(result.saved);
    case Fate::Unchanged:
        return instance.Print(result.saved);
    case Fate::Skipped:
        return result.reason;
    case Fate::Rounded:
    case Fate::Clamped:
    case Fate::Refused:
        break;
    }
    const std::string reason = result.reason + (result.reason.empty() ? "" : "; ");
    return reason + "asked for " + instance.Print(result.saved) +
           (result.held ? ", the camera now holds " + instance.Print(*result.held) : "");
}

void Print(const Restored& result) {
    const std::string fate = Pad(NameOf(result.fate), 10);
    const bool left = result.fate == Fate::Unchanged || result.fate == Fate::Skipped;
    const std::string name = result.fate == Fate::Skipped ? std::string(result.instance->name) : result.instance.Name();
    std::cout << Pad(name, 24) << "  "
              << (IsFailure(result.fate) ? Red(fate)
                  : left                 ? Dim(fate)
                                         : Green(fate))
              << "  " << Describe(result) << '\n';
}

/// One line per function; all that is skipped of one has one.
void Print(const std::vector<Restored>& results) {
    for (std::size_t i = 0; i < results.size(); ++i) {
        const Instance& instance = results[i].instance;
        const bool sameAsBefore = i != 0 && results[i].fate == Fate::Skipped && results[i - 1].fate == Fate::Skipped &&
                                  results[i - 1].instance.function == instance.function;
        if (!sameAsBefore) {
            Print(results[i]);
        }
    }
}

Json ToJson(const Restored& result) {
    const auto json = [&](const std::optional<Value>& value) {
        return value ? ToJson(result.instance, *value) : Json();
    };
    return Json{{"name", result.instance.Name()},
                {"result", NameOf(result.fate)},
                {"saved", ToJson(result.instance, result.saved)},
                {"before", json(result.before)},
                {"value", json(result.held)},
                {"reason", result.reason.empty() ? Json() : Json(result.reason)}};
}

} // namespace

int RunRestore(const Invocation& invocation) {
    const std::string file = invocation.Text("FILE");
    const Settings saved = ReadSettings(file);
    Session& session = invocation.Open();
    if (saved.model != session.Model()) {
        throw UsageError("\"" + file + "\" holds settings of model " + saved.model + ", this is " + session.Model());
    }
    if (!invocation.Has("--dry-run")) {
        session.Connection().RequireControl();
    }
    const Camera camera = session.Functions();
    const ReadThrough reader(session);
    const Restorer restorer(camera, reader.Camera(), WaitFor(session), invocation.Has("--outputs"));
    const auto results = invocation.Has("--dry-run") ? restorer.Plan(saved) : RestoreAll(restorer, saved);

    if (invocation.Program().Json()) {
        Json document(Json::List{});
        for (const Restored& result : results) {
            document.Add(ToJson(result));
        }
        std::cout << document.Print() << '\n';
    } else {
        Print(results);
    }
    const auto failures =
        std::count_if(results.begin(), results.end(), [](const Restored& result) { return IsFailure(result.fate); });
    if (failures != 0) {
        Complain(std::to_string(failures) + " of " + std::to_string(results.size()) + " functions not restored");
    }
    return failures == 0 ? AllWell : Refused;
}

} // namespace Host
