#include "Host/Settings/Restorer.h"

#include "Host/Guarded.h"
#include "Host/Settings/Unlock.h"

#include <algorithm>

namespace Host {

namespace {

constexpr int passes = 3; ///< more than one setting needs that is moved by one behind it

/// What all automatic modes have in common.
const Value off{{0}, {}};

/// What became of a setting that was written, and then read.
Fate FateOf(const Camera& camera, const Restored& result) {
    const bool accepted = result.reason.empty();
    if (result.held == result.saved) {
        return accepted ? Fate::Done : Fate::Refused;
    }
    if (accepted && camera.RoundsTo(result.instance, result.saved, *result.held)) {
        return Fate::Rounded;
    }
    return result.held != result.before ? Fate::Clamped : Fate::Refused;
}

bool IsMode(const Instance& instance) { return instance->restore == Restore::Mode; }

bool WasSwitchedOff(const Restored& mode) { return mode.before && *mode.before != off && mode.held == off; }

} // namespace

const char* NameOf(Fate fate) {
    switch (fate) {
    case Fate::Pending:
        return "pending";
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
    case Fate::PutBack:
        return "put back";
    case Fate::LeftOff:
        return "left off";
    }
    return "";
}

std::string Restorer::WhyNot(const Instance& instance) const {
    switch (instance->restore) {
    case Restore::Setting:
    case Restore::Mode:
        return "";
    case Restore::Output:
        return options.outputs ? "" : "an output; --outputs includes it";
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
    result.fate = FateOf(setter, result);
    if (result.fate == Fate::Refused && result.reason.empty()) {
        result.reason = "the camera does not take it";
    }
    return result;
}

bool Restorer::MustStop() {
    stopped = stopped || options.isToStop();
    return stopped;
}

void Restorer::Settle(Restored& result, Restored now) {
    now.before = result.before;
    if (now.fate == Fate::Done && now.before == now.saved) { // another setting moved it meanwhile
        now.fate = Fate::Unchanged;
    } else if (now.fate == Fate::Unchanged && now.before && now.before != now.saved) { // or brought it there
        now.fate = Fate::Done;
    }
    const bool told = result.fate == now.fate && result.held == now.held && result.reason == now.reason;
    result = std::move(now);
    if (!told) {
        options.settled(result);
    }
}

void Restorer::Look() {
    for (const Setting& setting : settings.values) {
        results.push_back(Compare(setting));
        results.back().fate = Fate::Pending;
    }
}

void Restorer::SwitchOff() {
    for (Restored& result : results) {
        if (IsMode(result.instance) && !MustStop()) {
            result.held = off; // before it is tried: if the camera is lost meanwhile, nobody knows
            // What refuses this is told of where its saved value is set, or where it keeps others from being set.
            result.held = Set({result.instance, off}).held;
        }
    }
}

bool Restorer::SetValues(bool again) {
    bool changed = false;
    for (std::size_t i = 0; i < results.size() && !MustStop(); ++i) {
        Restored& result = results[i];
        if (IsMode(result.instance) || (again && IsFailure(result.fate))) {
            continue;
        }
        Restored now = Set(settings.values[i]);
        changed |= now.fate == Fate::Done;
        if (!again || now.fate != Fate::Unchanged) {
            Settle(result, std::move(now));
        }
    }
    return changed;
}

void Restorer::SetModes() {
    for (std::size_t i = 0; i < results.size(); ++i) {
        if (!IsMode(results[i].instance)) {
            continue;
        }
        if (!MustStop()) {
            Settle(results[i], Set(settings.values[i]));
        } else if (WasSwitchedOff(results[i])) {
            PutBack(results[i]);
        }
    }
}

void Restorer::PutBack(Restored& mode) {
    const Restored now = Set({mode.instance, *mode.before});
    mode.held = now.held;
    mode.fate = now.held == mode.before ? Fate::PutBack : Fate::LeftOff;
    mode.reason = now.reason;
    options.settled(mode);
}

void Restorer::Restore() {
    Look(); // modes will be off, but it counts what they were
    SwitchOff();
    for (int pass = 0; pass < passes && SetValues(pass != 0) && !stopped; ++pass) {
    }
    SetModes();
}

void Restorer::Plan() {
    for (const Setting& setting : settings.values) {
        results.push_back(Compare(setting));
        options.settled(results.back());
    }
}

std::vector<Instance> Restorer::ModesLeftOff() const {
    std::vector<Instance> modes;
    for (const Restored& result : results) {
        const bool restored = result.fate == Fate::Done || result.fate == Fate::Unchanged;
        if (result.fate == Fate::LeftOff || (IsMode(result.instance) && WasSwitchedOff(result) && !restored)) {
            modes.push_back(result.instance);
        }
    }
    return modes;
}

} // namespace Host
