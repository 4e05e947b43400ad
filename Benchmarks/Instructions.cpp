// Runs five operations for callgrind to count their instructions. Collection is on only during the calls, and each
// count is dumped under the operation's name. Without callgrind it just runs them.

#include "Benchmarks/Workbench.h"
#include "Tests/Support/LogCapture.h"

#include <valgrind/callgrind.h>

#include <functional>

using namespace SDK4::Control;

namespace {

constexpr int calls = 20; // each count is the sum of these calls

/// Counts @p call after a warm-up. @p prepare is not counted.
void Count(
    const char* name, const std::function<void()>& call, const std::function<void()>& prepare = [] {}) {
    for (int i = 0; i < 3; ++i) {
        prepare();
        call();
    }
    CALLGRIND_ZERO_STATS;
    for (int i = 0; i < calls; ++i) {
        prepare();
        CALLGRIND_TOGGLE_COLLECT;
        call();
        CALLGRIND_TOGGLE_COLLECT;
    }
    CALLGRIND_DUMP_STATS_AT(name);
}

} // namespace

int main() {
    Test::LogCapture::Silence();
    Bench::Workbench bench;
    auto& gain = bench.orvik.As<IGain>();
    auto& roa = bench.orvik.As<IRoa>();
    auto& settings = bench.orvikLoading.As<IBasicSettings>();
    auto& properties = bench.m2vx.As<IPropertyState>();

    Count("IGain::GetGain", [&] { gain.GetGain(); });
    Count("IGain::SetGain", [&] { gain.SetGain(100); });
    Count(
        "IRoa::SetReadoutArea", [&] { roa.SetReadoutArea(bench.area); }, [&] { bench.ReadEverything(bench.orvik); });
    Count(
        "IBasicSettings::LoadSettings", [&] { settings.LoadSettings(1); },
        [&] { bench.ReadEverything(bench.orvikLoading); });
    Count("IPropertyState::GetUIntValue", [&] { properties.GetUIntValue("motorcontrol"); });
}
