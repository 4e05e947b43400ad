#pragma once

#include "Host/Selftest/TestCases.h"
#include "Host/Settings/ReadWhenSettled.h"
#include "Host/Settings/Settings.h"

#include <string>
#include <vector>

namespace Host {

/// The result of testing a function.
struct TestResult {
    Instance instance;
    int checks = 0;
    std::vector<std::string> failures;
    std::string leftOut; ///< why it was not tested, else empty
    LockState lock{};    ///< what locks it, if it was therefore not tested
};

/// A compliance test: checks that the library and the camera behave as the table says. It changes settings; the caller
/// restores them.
class ComplianceTest {
public:
    /// @param setting sets the functions
    /// @param reading reads them, uncached; nothing is set through it
    /// @param waiting lets the time of the camera pass
    ComplianceTest(const Camera& setting, const Camera& reading, Wait waiting, bool withOutputs)
        : setter(setting),
          reader(reading),
          wait(std::move(waiting)),
          outputs(withOutputs) {}

    /// Automatic modes would change the values under test.
    void SwitchOffModes() const;

    /// Tests a function. A read-only one is only read.
    /// @throws ChannelLost, and nothing else
    [[nodiscard]] TestResult Test(const Instance& instance) const;

private:
    [[nodiscard]] std::string ReasonToSkip(const Instance& instance) const;
    void TestUnlocked(TestResult& result) const;
    void Try(TestResult& result, const TestCase& testCase, const Limits& limits, const Refusal& refusal) const;
    void TryNeighbours(TestResult& result, const Value& current) const;
    /// @return whether the camera then holds another value than before
    bool TryNeighbour(TestResult& result, const Value& neighbour, const Value& current) const;
    void TestLock(TestResult& result) const;
    [[nodiscard]] std::string Explain(const Instance& instance, std::int32_t code) const;
    [[nodiscard]] std::int32_t Write(const Instance& instance, const Value& value) const;
    [[nodiscard]] Value Held(const Instance& instance, const Value& expected) const;

    const Camera& setter;
    const Camera& reader;
    Wait wait;
    bool outputs;
};

} // namespace Host
