#include "Host/Selftest/ComplianceTest.h"

#include "Host/Describe.h"
#include "Host/ErrorReporting.h"
#include "Host/Settings/Unlock.h"

#include <algorithm>
#include <stdexcept>

namespace Host {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds modeTime{500}; ///< time for an automatic mode to adjust its values

std::string NameOf(std::int32_t code) { return code == 0 ? "no error" : SDK4::ErrorName(code); }

bool IsLockCode(std::int32_t code) { return code == SDK4_ERR_DISABLED || code == SDK4_ERR_CANTSETFEATURE; }

} // namespace

void ComplianceTest::SwitchOffModes() const {
    for (const Instance& instance : setter.All(false)) {
        if (instance->restore == RestorePolicy::Mode && reader.TryRead(instance).code == 0) {
            // A refusal also fails the test of the mode.
            static_cast<void>(Attempt([&] { static_cast<void>(Write(instance, {{0}, {}})); }));
        }
    }
}

TestResult ComplianceTest::Test(const Instance& instance) const {
    TestResult result{instance, 0, {}, ReasonToSkip(instance)};
    if (!result.leftOut.empty()) {
        return result;
    }
    // A function that is not available now may be available when unlocked.
    if (const Reading reading = reader.TryRead(instance); !reading.IsImplemented()) {
        result.leftOut = reading.reason;
        return result;
    }
    const Outcome failure = Attempt([&] {
        WhileUnlocked(setter, instance, [&] { TestUnlocked(result); });
        if (result.leftOut.empty() && result.failures.empty() && instance->lock && instance->set != nullptr) {
            TestLock(result);
        }
    });
    if (failure.code != 0) {
        result.failures.push_back(failure.reason);
    }
    return result;
}

std::string ComplianceTest::ReasonToSkip(const Instance& instance) const {
    const RestorePolicy policy = instance->restore;
    return instance->set == nullptr                      ? "" // read-only
           : policy == RestorePolicy::Never              ? "not a setting"
           : IsNetwork(policy)                           ? "network"
           : policy == RestorePolicy::Output && !outputs ? "an output; use --outputs to include it"
                                                         : "";
}

void ComplianceTest::TestUnlocked(TestResult& result) const {
    const Instance& instance = result.instance;
    const Reading reading = reader.TryRead(instance);
    if (reading.IsAbsent()) {
        result.leftOut = reading.reason;
        result.lock = reader.WhatRefused(instance);
        return;
    }
    ++result.checks;
    if (reading.code != 0) {
        result.failures.push_back("read failed: " + reading.reason);
        return;
    }
    if (instance->set == nullptr || reading.value.numbers.empty()) {
        return;
    }
    const Limits limits = reader.LimitsOf(instance);
    const Refusal refusal = reader.RefusalOf(instance);
    for (const TestCase& testCase : TestCasesOf(instance, limits, refusal, reading.value)) {
        Try(result, testCase, limits, refusal);
    }
    if (limits.empty()) {
        TryNeighbours(result, reading.value);
    }
    static_cast<void>(Write(instance, reading.value));
}

void ComplianceTest::Try(TestResult& result, const TestCase& testCase, const Limits& limits,
                         const Refusal& refusal) const {
    ++result.checks;
    const Instance& instance = result.instance;
    const Value before = reader.Read(instance);
    const std::int32_t code = Write(instance, testCase.value);
    const std::int32_t expectedCode = testCase.admitted ? 0 : refusal.code;
    const Value expected = testCase.admitted ? testCase.value
                           : refusal.keeps   ? before
                                             : Clamped(limits, testCase.value);
    const Value held = Held(instance, expected);
    const std::string what = testCase.what + " (" + instance.Print(testCase.value) + "): ";
    if (code != expectedCode) {
        result.failures.push_back(what + Explain(instance, code) + " instead of " + NameOf(expectedCode));
    }
    const bool mayDiffer = testCase.value != before && setter.RoundsTo(instance, testCase.value, held);
    if (held != expected && !mayDiffer) {
        result.failures.push_back(what + "the camera holds " + instance.Print(held) + " instead of " +
                                  instance.Print(expected));
    }
}

void ComplianceTest::TryNeighbours(TestResult& result, const Value& current) const {
    const Instance& instance = result.instance;
    for (std::size_t field = 0; field < current.numbers.size(); ++field) {
        ++result.checks;
        bool taken = false;
        for (const Value& neighbour : Neighbours(instance, current, field)) {
            taken = TryNeighbour(result, neighbour, current) || taken;
        }
        if (!taken) {
            result.failures.push_back(
                "the camera keeps " + instance.Print(current) + ", whatever is written" +
                (current.numbers.size() == 1 ? "" : " to " + std::string(instance->shape.fields[field].name)));
        }
    }
}

bool ComplianceTest::TryNeighbour(TestResult& result, const Value& neighbour, const Value& current) const {
    const Instance& instance = result.instance;
    if (const std::int32_t code = Write(instance, neighbour); code != 0) {
        result.failures.push_back(instance.Print(neighbour) + ": " + Explain(instance, code));
    }
    const Value held = Held(instance, neighbour);
    if (held != current && held != neighbour && !setter.RoundsTo(instance, neighbour, held)) {
        result.failures.push_back(instance.Print(neighbour) + ": the camera holds " + instance.Print(held) +
                                  " instead");
    }
    static_cast<void>(Write(instance, current));
    static_cast<void>(Held(instance, current));
    return held != current;
}

void ComplianceTest::TestLock(TestResult& result) const {
    const Instance& instance = result.instance;
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
    ++result.checks;
    const Value value = reader.TryRead(instance).value;
    setter.Write(mode, {{*closing}, {}});
    const std::string closed = mode.Name() + "=" + mode.Print({{*closing}, {}});
    if (const std::int32_t code = value.numbers.empty() ? SDK4_ERR_DISABLED : Write(instance, value);
        !IsLockCode(code)) {
        result.failures.push_back("with " + closed + ": " + NameOf(code));
    }
    wait(modeTime);
    setter.Write(mode, {{lock.open.front()}, {}});
    if (lock.moves) {
        ++result.checks;
        static_cast<void>(Write(instance, value));
        const Value written = reader.Read(instance);
        wait(modeTime);
        if (const Value now = reader.Read(instance); now != written) {
            result.failures.push_back("after " + closed + ": the camera still changes it, from " +
                                      instance.Print(written) + " to " + instance.Print(now));
        }
    }
    setter.Write(mode, held.value);
}

/// The name of the code of a call, and what locks the function if that is the reason.
std::string ComplianceTest::Explain(const Instance& instance, std::int32_t code) const {
    return IsLockCode(code) ? DescribeRefusal(NameOf(code), setter.WhatRefused(instance)) : NameOf(code);
}

/// @return the code of the refusal, or 0
std::int32_t ComplianceTest::Write(const Instance& instance, const Value& value) const {
    try {
        setter.Write(instance, value);
        return 0;
    } catch (const SDK4::X4Error& error) {
        return error.code;
    }
}

/// The value that the camera holds after a write. @throws std::runtime_error if it cannot be read
Value ComplianceTest::Held(const Instance& instance, const Value& expected) const {
    const Reading reading = ReadWhenSettled(reader, instance, expected, wait);
    if (reading.code != 0) {
        throw std::runtime_error("read-back failed: " + reading.reason);
    }
    return reading.value;
}

} // namespace Host
