#include "Host/Settings/Restorer.h"

#include "Host/ErrorReporting.h"
#include "Host/Functions/Names.h"
#include "Host/Settings/Unlock.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Host {

namespace {

constexpr int passes = 3; ///< enough for settings that depend on later ones

/// The same value for all automatic modes.
const Value off{{0}, {}};

/// The status of a setting after write and read-back.
RestoreStatus StatusOf(const Camera& camera, const RestoreResult& result) {
    const bool accepted = result.reason.empty();
    if (result.held == result.saved) {
        return accepted ? RestoreStatus::Done : RestoreStatus::Refused;
    }
    if (accepted && camera.RoundsTo(result.instance, result.saved, *result.held)) {
        return RestoreStatus::Rounded;
    }
    return result.held != result.before ? RestoreStatus::Clamped : RestoreStatus::Refused;
}

bool IsMode(const Instance& instance) { return instance->restore == RestorePolicy::Mode; }

bool IsOff(const FunctionValue& setting) { return setting.instance.Print(setting.value) == "off"; }

bool IsAddress(const FunctionValue& setting) { return setting.instance->restore == RestorePolicy::Address; }

bool SwitchesAddressOff(const FunctionValue& setting) { return IsAddress(setting) && IsOff(setting); }

bool WasSwitchedOff(const RestoreResult& mode) { return mode.before && *mode.before != off && mode.held == off; }

} // namespace

const char* NameOf(RestoreStatus status) {
    constexpr const char* names[] = {"pending", "ok",      "unchanged", "rounded",  "clamped",
                                     "refused", "skipped", "would set", "reverted", "left off"};
    return names[static_cast<std::size_t>(status)];
}

std::vector<RestoreResult> RestoreProgress::Known() const {
    std::vector<RestoreResult> known = results;
    known.insert(known.end(), borrowed.begin(), borrowed.end());
    std::erase_if(known, [](const RestoreResult& result) { return result.status == RestoreStatus::Pending; });
    return known;
}

std::vector<Instance> RestoreProgress::ModesLeftOff() const {
    std::vector<Instance> modes;
    for (const auto* const each : {&results, &borrowed}) {
        for (const RestoreResult& result : *each) {
            const bool restored = result.status == RestoreStatus::Done || result.status == RestoreStatus::Unchanged;
            if (result.status == RestoreStatus::LeftOff ||
                (IsMode(result.instance) && WasSwitchedOff(result) && !restored)) {
                modes.push_back(result.instance);
            }
        }
    }
    return modes;
}

Restorer::Restorer(const Settings& saved, const Camera& setting, const Camera& reading, Wait waiting, Options chosen)
    : settings(saved),
      setter(setting),
      reader(reading),
      wait(std::move(waiting)),
      options(std::move(chosen)) {
    std::copy_if(settings.values.begin(), settings.values.end(), std::back_inserter(selected),
                 [&](const FunctionValue& each) { return options.selects(each.instance); });
    progress.borrowed = options.earlier.borrowed;
}

bool Restorer::IsSameCamera() const {
    const Reading serial = reader.TryRead(reader.FindOne(Name::serialNumber));
    return serial.code == 0 && serial.value.text == settings.serial;
}

std::string Restorer::ReasonToSkip(const FunctionValue& setting) const {
    const RestorePolicy policy = setting.instance->restore;
    const bool isDistinct = setting.instance->distinct && !IsOff(setting);
    return policy == RestorePolicy::Never                        ? "never restored"
           : IsNetwork(policy) && !options.network               ? "a network setting; use --network to include it"
           : policy == RestorePolicy::Output && !options.outputs ? "an output; use --outputs to include it"
           : isDistinct && !IsSameCamera() ? "it is that of another camera, with the serial number " + settings.serial
                                           : "";
}

std::string Restorer::AddressMissing(const FunctionValue& setting, bool isPlan) const {
    std::string missing;
    for (const FunctionValue& other : settings.values) {
        if (!IsAddress(other) || other.instance == setting.instance || IsOff(other)) {
            continue;
        }
        const Reading reading = reader.TryRead(other.instance);
        const bool isOn = reading.code == 0 && !IsOff({other.instance, reading.value});
        if (isOn || (isPlan && options.selects(other.instance) && ReasonToSkip(other).empty())) {
            return "";
        }
        missing = other.instance.Name();
    }
    return missing;
}

RestoreResult Restorer::Compare(const FunctionValue& setting) const {
    RestoreResult result{setting.instance, RestoreStatus::Planned, setting.value, {}, {}, ReasonToSkip(setting)};
    if (!result.reason.empty()) {
        result.status = RestoreStatus::Skipped;
        return result;
    }
    const Reading reading = reader.TryRead(setting.instance);
    if (reading.code == 0) {
        result.before = reading.value;
        result.held = reading.value;
        result.status = reading.value == setting.value ? RestoreStatus::Unchanged : RestoreStatus::Planned;
    }
    if (result.status == RestoreStatus::Planned) {
        result.reason = setting.instance.WhyInvalid(setting.value);
        result.status = result.reason.empty() ? RestoreStatus::Planned : RestoreStatus::Refused;
    }
    return result;
}

void Restorer::SkipLastAddress(RestoreResult& result, bool isPlan) const {
    const FunctionValue setting{result.instance, result.saved};
    const bool concerns = result.status == RestoreStatus::Planned && SwitchesAddressOff(setting);
    if (const std::string missing = concerns ? AddressMissing(setting, isPlan) : ""; !missing.empty()) {
        result.status = RestoreStatus::Skipped;
        result.reason = "the camera would be left without an address, because " + missing + " is not restored";
    }
}

bool Restorer::IsMoved(const Instance& instance) const {
    const auto& lock = instance->lock;
    if (!lock || !lock->moves) {
        return false;
    }
    const Reading mode = reader.TryRead(reader.FindOne(lock->mode));
    return mode.code == 0 && !lock->IsOpen(mode.value);
}

RestoreResult Restorer::Set(const FunctionValue& setting) const {
    RestoreResult result = Compare(setting);
    if (result.status != RestoreStatus::Planned) {
        return result;
    }
    SkipLastAddress(result, false);
    if (result.status != RestoreStatus::Planned) {
        return result;
    }
    const bool mayMove = setting.instance->lock && setting.instance->lock->moves;
    std::optional<Reading> unlocked;
    const auto read = [&] { return ReadWhenSettled(reader, setting.instance, setting.value, wait); };
    const auto set = [&] {
        setter.SetUnlessLocked(setting.instance, setting.value);
        unlocked = mayMove ? std::optional(read()) : std::nullopt; // before the mode changes it again
    };
    result.reason = Attempt([&] { WhileUnlocked(setter, setting.instance, set); }).reason;
    const Reading reading = unlocked && result.reason.empty() ? *unlocked : read();
    result.moved = IsMoved(setting.instance);
    if (reading.code != 0) {
        result.held.reset();
        result.reason = result.reason.empty() ? reading.reason : result.reason;
        result.status = RestoreStatus::Refused;
    } else {
        result.held = reading.value;
        result.status = StatusOf(setter, result);
    }
    if (!result.reason.empty()) {
        result.lock = setter.WhatRefused(setting.instance);
    } else if (result.status == RestoreStatus::Refused) {
        result.reason = "the camera ignored it";
    }
    return result;
}

bool Restorer::MustStop() {
    progress.stopped = progress.stopped || options.shouldStop();
    return progress.stopped;
}

void Restorer::Record(RestoreResult& result, RestoreResult now) {
    now.before = result.before;
    if (now.status == RestoreStatus::Done && now.before == now.saved) { // another setting had changed it meanwhile
        now.status = RestoreStatus::Unchanged;
    } else if (now.status == RestoreStatus::Unchanged && now.before && now.before != now.saved) { // or set it
        now.status = RestoreStatus::Done;
    }
    const bool told = result.status == now.status && result.held == now.held && result.reason == now.reason;
    result = std::move(now);
    if (!told) {
        options.report(result);
    }
}

void Restorer::ReadCurrent() {
    auto& results = progress.results;
    const auto& earlier = options.earlier.results;
    for (std::size_t i = 0; i < selected.size(); ++i) { // all of them, even if reading fails
        const auto before = i < earlier.size() ? earlier[i].before : std::nullopt;
        results.push_back({selected[i].instance, RestoreStatus::Pending, selected[i].value, before, {}, {}});
    }
    for (std::size_t i = 0; i < results.size(); ++i) {
        const auto before = results[i].before;
        results[i] = Compare(selected[i]);
        results[i].status = RestoreStatus::Pending;
        results[i].before = before ? before : results[i].before;
    }
}

void Restorer::Borrow() {
    const auto has = [](const auto& all, const Instance& mode) {
        return std::any_of(all.begin(), all.end(), [&](const auto& each) { return each.instance == mode; });
    };
    for (const FunctionValue& setting : selected) {
        if (!setting.instance->lock || !ReasonToSkip(setting).empty()) {
            continue;
        }
        const Instance mode = reader.FindOne(setting.instance->lock->mode);
        if (has(selected, mode) || has(progress.borrowed, mode)) {
            continue;
        }
        if (const Reading now = reader.TryRead(mode); now.code == 0) {
            progress.borrowed.push_back({mode, RestoreStatus::Pending, now.value, now.value, now.value, {}});
        }
    }
}

bool Restorer::MovesSelected(const RestoreResult& mode) const {
    return std::any_of(selected.begin(), selected.end(), [&](const FunctionValue& setting) {
        const auto& lock = setting.instance->lock;
        return lock && lock->moves && lock->mode == mode.instance->name && !lock->IsOpen(*mode.before);
    });
}

void Restorer::SwitchModesOff() {
    for (RestoreResult& result : progress.results) {
        if (IsMode(result.instance)) {
            SwitchOff(result);
        }
    }
    for (RestoreResult& mode : progress.borrowed) {
        if (IsMode(mode.instance) && MovesSelected(mode)) {
            SwitchOff(mode);
        }
    }
}

void Restorer::SwitchOff(RestoreResult& mode) {
    if (!MustStop()) {
        mode.held = off; // assumed, in case the camera is lost meanwhile
        // A refusal is reported when the saved value is set, or when it blocks other settings.
        mode.held = Set({mode.instance, off}).held;
    }
}

bool Restorer::SetValues(bool again) {
    bool changed = false;
    for (const bool last : {false, true}) {
        for (std::size_t i = 0; i < selected.size() && !MustStop(); ++i) {
            if ((options.network && SwitchesAddressOff(selected[i])) == last) {
                changed |= SetValue(i, again);
            }
        }
    }
    return changed;
}

bool Restorer::SetValue(std::size_t i, bool again) {
    RestoreResult& result = progress.results[i];
    if (IsMode(result.instance) || (again && (IsFailure(result.status) || result.moved))) {
        return false;
    }
    RestoreResult now = Set(selected[i]);
    const bool changed = now.status == RestoreStatus::Done;
    if (!again || now.status != RestoreStatus::Unchanged) {
        Record(result, std::move(now));
    }
    return changed;
}

void Restorer::SetModes() {
    auto& results = progress.results;
    for (std::size_t i = 0; i < results.size(); ++i) {
        if (!IsMode(results[i].instance)) {
            continue;
        }
        if (!MustStop()) {
            Record(results[i], Set(selected[i]));
        } else if (WasSwitchedOff(results[i])) {
            PutBack(results[i]);
        }
    }
}

void Restorer::ReturnBorrowed() {
    for (RestoreResult& mode : progress.borrowed) {
        if (reader.TryRead(mode.instance).value != *mode.before) {
            PutBack(mode);
        }
    }
}

void Restorer::PutBack(RestoreResult& mode) {
    const RestoreResult now = Set({mode.instance, *mode.before});
    mode.held = now.held;
    mode.status = now.held == mode.before ? RestoreStatus::PutBack : RestoreStatus::LeftOff;
    mode.reason = now.reason;
    options.report(mode);
}

void Restorer::Restore() {
    ReadCurrent(); // before the modes are switched off
    Borrow();
    SwitchModesOff();
    for (int pass = 0; pass < passes && SetValues(pass != 0) && !progress.stopped; ++pass) {
    }
    SetModes();
    ReturnBorrowed();
}

void Restorer::Plan() {
    for (const FunctionValue& setting : selected) {
        progress.results.push_back(Compare(setting));
        SkipLastAddress(progress.results.back(), true);
        options.report(progress.results.back());
    }
}

} // namespace Host
