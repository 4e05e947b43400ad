#include "Restorer.h"

#include "Guarded.h"
#include "Unlock.h"

#include <algorithm>

namespace Host {

namespace {

constexpr int passes = 3; ///< more than one setting needs that is moved by one behind it

/// What all automatic modes have in common.
const Value off{{0}, {}};

/// What became of a setting that was written, and then read.
Fate FateOf(const Restored& result) {
    const bool accepted = result.reason.empty();
    if (result.held == result.saved) {
        return accepted ? Fate::Done : Fate::Refused;
    }
    if (accepted && result.instance->rounds) {
        return Fate::Rounded;
    }
    return result.held != result.before ? Fate::Clamped : Fate::Refused;
}

} // namespace

const char* NameOf(Fate fate) {
    switch (fate) {
    case Fate::Done:
        return "ok";
    case Fate::Unchanged:
        return "unchanged";
    case Fate::Rounded:
        return "rounded";
    case Fate::Clamped:
        return "clamped";
    case Fate::Refused:
        return "refused";
    case Fate::Skipped:
        return "skipped";
    case Fate::Planned:
        return "would set";
    }
    return "";
}

std::string Restorer::WhyNot(const Instance& instance) const {
    switch (instance->restore) {
    case Restore::Setting:
    case Restore::Mode:
        return "";
    case Restore::Output:
        return outputs ? "" : "an output; --outputs includes it";
    case Restore::Network:
        return "network settings are never restored";
    case Restore::Never:
        break;
    }
    return "never restored";
}

Restored Restorer::Compare(const Setting& setting) const {
    Restored result{setting.instance, Fate::Planned, setting.value, {}, {}, WhyNot(setting.instance)};
    if (!result.reason.empty()) {
        result.fate = Fate::Skipped;
        return result;
    }
    const Reading reading = reader.TryRead(setting.instance);
    if (reading.error == 0) {
        result.before = reading.value;
        result.held = reading.value;
        result.fate = reading.value == setting.value ? Fate::Unchanged : Fate::Planned;
    }
    return result;
}

Restored Restorer::Set(const Setting& setting) const {
    Restored result = Compare(setting);
    if (result.fate != Fate::Planned) {
        return result;
    }
    const auto set = [&] { setter.SetUnlessLocked(setting.instance, setting.value); };
    result.reason = Attempt([&] { WhileUnlocked(setter, setting.instance, set); }).reason;
    const Reading reading = Settled(reader, setting.instance, setting.value, wait);
    if (reading.error != 0) {
        result.held.reset();
        result.reason = result.reason.empty() ? reading.errorText : result.reason;
        result.fate = Fate::Refused;
        return result;
    }
    result.held = reading.value;
    result.fate = FateOf(result);
    if (result.fate == Fate::Refused && result.reason.empty()) {
        result.reason = "the camera does not take it";
    }
    return result;
}

void Restorer::SwitchOff(const Settings& settings) const {
    for (const Setting& setting : settings.values) {
        if (setting.instance->restore == Restore::Mode) {
            // What refuses this is told of where its saved value is set, or where it keeps others from being set.
            static_cast<void>(Set({setting.instance, off}));
        }
    }
}

bool Restorer::SetValues(const Settings& settings, bool again, std::vector<Restored>& results) const {
    bool changed = false;
    for (std::size_t i = 0; i < results.size(); ++i) {
        Restored& result = results[i];
        if (result.instance->restore == Restore::Mode || (again && IsFailure(result.fate))) {
            continue;
        }
        const Restored now = Set(settings.values[i]);
        if (!again || now.fate != Fate::Unchanged) {
            changed |= now.fate == Fate::Done;
            result = now;
        }
    }
    return changed;
}

void Restorer::SetModes(const Settings& settings, std::vector<Restored>& results) const {
    for (std::size_t i = 0; i < results.size(); ++i) {
        if (results[i].instance->restore == Restore::Mode) {
            results[i] = Set(settings.values[i]);
        }
    }
}

std::vector<Restored> Restorer::Restore(const Settings& settings) const {
    const std::vector<Restored> before = Plan(settings); // modes will be off, but it counts what they were
    SwitchOff(settings);
    std::vector<Restored> results = before;
    for (int pass = 0; pass < passes && SetValues(settings, pass != 0, results); ++pass) {
    }
    SetModes(settings, results);
    for (std::size_t i = 0; i < results.size(); ++i) {
        Restored& result = results[i];
        result.before = before[i].before;
        if (result.fate == Fate::Done && result.before == result.saved) {
            result.fate = Fate::Unchanged;
        } else if (result.fate == Fate::Unchanged && result.before && result.before != result.saved) {
            result.fate = Fate::Done; // another setting brought it there
        }
    }
    return results;
}

std::vector<Restored> Restorer::Plan(const Settings& settings) const {
    std::vector<Restored> results;
    for (const Setting& setting : settings.values) {
        results.push_back(Compare(setting));
    }
    return results;
}

} // namespace Host
