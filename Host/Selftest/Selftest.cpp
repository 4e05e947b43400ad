#include "Host/Selftest/Selftest.h"

#include "Host/ErrorReporting.h"
#include "Host/Settings/Unlock.h"

#include <algorithm>
#include <stdexcept>

namespace Host {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds modeTime{500}; ///< in which an automatic mode moves what it owns

std::string NameOf(std::int32_t code) { return code == 0 ? "no refusal" : SDK4::ErrorName(code); }

bool IsLockCode(std::int32_t code) { return code == SDK4_ERR_DISABLED || code == SDK4_ERR_CANTSETFEATURE; }

} // namespace

void Selftest::SwitchOffModes() const {
    for (const Instance& instance : setter.All(false)) {
        if (instance->restore == RestorePolicy::Mode && reader.TryRead(instance).code == 0) {
            // What refuses this fails in the mode's own test, too.
            static_cast<void>(Attempt([&] { static_cast<void>(Write(instance, {{0}, {}})); }));
        }
    }
}

TestResult Selftest::Test(const Instance& instance) const {
    TestResult tested{instance, 0, {}, WhyNot(instance)};
    if (!tested.leftOut.empty()) {
        return tested;
    }
    // One that is not available now may be so when it is unlocked.
    if (const Reading reading = reader.TryRead(instance); !reading.IsImplemented()) {
        tested.leftOut = reading.reason;
        return tested;
    }
    const Outcome failure = Attempt([&] {
        WhileUnlocked(setter, instance, [&] { TestUnlocked(tested); });
        if (tested.leftOut.empty() && tested.failures.empty() && instance->lock && instance->set != nullptr) {
            TestLock(tested);
        }
    });
    if (failure.code != 0) {
        tested.failures.push_back(failure.reason);
    }
    return tested;
}

std::string Selftest::WhyNot(const Instance& instance) const {
    const RestorePolicy policy = instance->restore;
    return instance->set == nullptr                      ? "" // reading it does no harm
           : policy == RestorePolicy::Never              ? "no setting"
           : policy == RestorePolicy::Network            ? "network"
           : policy == RestorePolicy::Output && !outputs ? "an output; --outputs includes it"
                                                         : "";
}

void Selftest::TestUnlocked(TestResult& tested) const {
    const Instance& instance = tested.instance;
    const Reading reading = reader.TryRead(instance);
    if (reading.IsAbsent()) {
        tested.leftOut = reading.reason;
        return;
    }
    ++tested.checks;
    if (reading.code != 0) {
        tested.failures.push_back("reading it: " + reading.reason);
        return;
    }
    if (instance->set == nullptr || reading.value.numbers.empty()) {
        return;
    }
    const Limits limits = reader.LimitsOf(instance);
    const Refusal refusal = reader.RefusalOf(instance);
    for (const TestCase& trial : TestCasesOf(instance, limits, refusal, reading.value)) {
        Try(tested, trial, limits, refusal);
    }
    if (limits.empty()) {
        TryNeighbours(tested, reading.value);
    }
    static_cast<void>(Write(instance, reading.value));
}

void Selftest::Try(TestResult& tested, const TestCase& trial, const Limits& limits, const Refusal& refusal) const {
    ++tested.checks;
    const Instance& instance = tested.instance;
    const Value before = reader.Read(instance);
    const std::int32_t code = Write(instance, trial.value);
    const std::int32_t expectedCode = trial.admitted ? 0 : refusal.code;
    const Value expected = trial.admitted ? trial.value : refusal.keeps ? before : Clamped(limits, trial.value);
    const Value held = Held(instance, expected);
    const std::string what = trial.what + " (" + instance.Print(trial.value) + "): ";
    if (code != expectedCode) {
        tested.failures.push_back(what + NameOf(code) + " instead of " + NameOf(expectedCode));
    }
    const bool mayDiffer = trial.value != before && setter.RoundsTo(instance, trial.value, held);
    if (held != expected && !mayDiffer) {
        tested.failures.push_back(what + "the camera holds " + instance.Print(held) + " instead of " +
                                  instance.Print(expected));
    }
}

void Selftest::TryNeighbours(TestResult& tested, const Value& current) const {
    const Instance& instance = tested.instance;
    for (std::size_t field = 0; field < current.numbers.size(); ++field) {
        ++tested.checks;
        bool taken = false;
        for (const Value& neighbour : Neighbours(instance, current, field)) {
            taken = TryNeighbour(tested, neighbour, current) || taken;
        }
        if (!taken) {
            tested.failures.push_back("the camera holds " + instance.Print(current) + ", whatever is written to " +
                                      (current.numbers.size() == 1 ? "it" : instance->shape.fields[field].name));
        }
    }
}

bool Selftest::TryNeighbour(TestResult& tested, const Value& neighbour, const Value& current) const {
    const Instance& instance = tested.instance;
    if (const std::int32_t code = Write(instance, neighbour); code != 0) {
        tested.failures.push_back(instance.Print(neighbour) + ": " + NameOf(code));
    }
    const Value held = Held(instance, neighbour);
    if (held != current && held != neighbour && !setter.RoundsTo(instance, neighbour, held)) {
        tested.failures.push_back(instance.Print(neighbour) + ": the camera holds " + instance.Print(held) +
                                  " instead");
    }
    static_cast<void>(Write(instance, current));
    static_cast<void>(Held(instance, current));
    return held != current;
}

void Selftest::TestLock(TestResult& tested) const {
    const Instance& instance = tested.instance;
    const Lock& lock = *instance->lock;
    const Instance mode = setter.FindOne(lock.mode);
    const Reading held = reader.TryRead(mode);
    const Limits admitted = reader.LimitsOf(mode);
    if (held.code != 0 || admitted.empty()) {
        return;
    }
    const auto isOpen = [&](std::int64_t number) { return lock.IsOpen({{number}, {}}); };
    const auto& numbers = admitted.front().admitted;
    const auto closing = std::find_if_not(numbers.begin(), numbers.end(), isOpen);
    if (closing == numbers.end()) {
        return;
    }
    ++tested.checks;
    const Value value = reader.TryRead(instance).value;
    setter.Write(mode, {{*closing}, {}});
    const std::string closed = mode.Name() + "=" + mode.Print({{*closing}, {}});
    if (const std::int32_t code = value.numbers.empty() ? SDK4_ERR_DISABLED : Write(instance, value);
        !IsLockCode(code)) {
        tested.failures.push_back("under " + closed + ": " + NameOf(code));
    }
    wait(modeTime);
    setter.Write(mode, {{lock.open.front()}, {}});
    if (lock.moves) {
        ++tested.checks;
        static_cast<void>(Write(instance, value));
        const Value written = reader.Read(instance);
        wait(modeTime);
        if (const Value now = reader.Read(instance); now != written) {
            tested.failures.push_back("after " + closed + ": the camera still moves it, from " +
                                      instance.Print(written) + " to " + instance.Print(now));
        }
    }
    setter.Write(mode, held.value);
}

/// @return the code of the refusal, or 0
std::int32_t Selftest::Write(const Instance& instance, const Value& value) const {
    try {
        setter.Write(instance, value);
        return 0;
    } catch (const SDK4::X4Error& error) {
        return error.code;
    }
}

/// What the camera holds after a write. @throws std::runtime_error if it cannot be read any more
Value Selftest::Held(const Instance& instance, const Value& expected) const {
    const Reading reading = ReadWhenSettled(reader, instance, expected, wait);
    if (reading.code != 0) {
        throw std::runtime_error("reading it back: " + reading.reason);
    }
    return reading.value;
}

} // namespace Host
