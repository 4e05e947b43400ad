// The time of calls compared with the same kind of call in Aravis, on cameras in memory. Writes the table of
// docs/performance.md.

#include "Benchmarks/Peer.h"
#include "Benchmarks/Workbench.h"
#include "Tests/Support/LogCapture.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

using namespace SDK4::Control;

namespace Bench {

namespace {

// clang-format off
void AddOrvik(Table& table, const Workbench& bench) {
    auto& gain = bench.orvik.As<IGain>();
    auto& format = bench.orvik.As<ISignalFormat>();
    auto& exposure = bench.orvik.As<IExposure>();
    auto& roa = bench.orvik.As<IRoa>();
    auto& settings = bench.orvikLoading.As<IBasicSettings>();
    auto& overlay = bench.orvik.As<IOverlay>();
    auto& identity = bench.orvik.As<IGufi>();
    auto& gainReading = bench.orvikReading.As<IGain>();

    table.Add({"IGain::GetGain, cached",                           peerRead,  0.10}, [&] { gain.GetGain(); });
    table.Add({"ISignalFormat::GetImageSize, cached",              peerRead,  0.10}, [&] { format.GetImageSize(); });
    table.Add({"IExposure::GetAutoExposureLevel, cached",          peerRead,  0.10}, [&] { exposure.GetAutoExposureLevel(); });
    table.Add({"IGain::SetGain",                                   peerWrite, 0.35}, [&] { gain.SetGain(100); });
    table.Add({"IRoa::SetReadoutArea, limits cached",              peerWrite, 1},    [&] { roa.SetReadoutArea(Workbench::area); });
    table.Add({"IRoa::SetReadoutArea, dependants valid, too",      peerWrite, 1},    [&] { roa.SetReadoutArea(Workbench::area); },
              [&] { bench.ReadEverything(bench.orvik); });
    table.Add({"IBasicSettings::LoadSettings, all registers valid", peerWrite, 20},  [&] { settings.LoadSettings(1); },
              [&] { bench.ReadEverything(bench.orvikLoading); });
    table.Add({"IBasicSettings::LoadSettings, all stale"},      [&] { settings.LoadSettings(1); });
    table.Add({"IGain::GetGain, reading the camera"},           [&] { gainReading.GetGain(); });
    table.Add({"IOverlay::SetOverlayPosition, limit computed"}, [&] { overlay.SetOverlayPosition(0, {5, 5}); });
    table.Add({"IGufi::GetDeviceName, cached"},                 [&] { identity.GetDeviceName(); });
}

void AddM2VX(Table& table, const Workbench& bench) {
    auto& gain = bench.m2vx.As<M2VX::IGain>();
    auto& properties = bench.m2vx.As<IPropertyState>();
    auto& overlay = bench.m2vx.As<M2VX::IOverlay>();
    auto& gainReading = bench.m2vxReading.As<M2VX::IGain>();

    table.Add({"M2VX::IGain::GetGain, cached",                  peerRead, 0.05}, [&] { gain.GetGain(); });
    table.Add({"IPropertyState::GetUIntValue, the last name",   peerRead, 3},    [&] { properties.GetUIntValue("motorcontrol"); });
    table.Add({"IPropertyState::IsEnumerated, an unknown name", peerRead, 3},    [&] { properties.IsEnumerated("motorcontrox"); });
    table.Add({"M2VX::IGain::GetGain, reading the camera"},   [&] { gainReading.GetGain(); });
    table.Add({"M2VX::IGain::SetGain"},                       [&] { gain.SetGain(100); });
    table.Add({"M2VX::IOverlay::GetOverlayPosition, cached"}, [&] { overlay.GetOverlayPosition(1); });
}

void AddOpening(Table& table, Workbench& bench) {
    table.Add({"opening and releasing an Orvik camera"}, [&] { Test::Camera(bench.plugin, Workbench::orvikModel, &bench.orvikPort, 0); });
    table.Add({"opening and releasing an M2VX camera, cached"}, [&] { Test::Camera(bench.plugin, Workbench::m2vxModel, &bench.m2vxPort, 3); });
}
// clang-format on

/// Writes the table. @return whether all limits are met
bool Print(const Table& table) {
    bool allReached = true;
    std::puts("| Operation | ns | Port accesses | Heap allocations | Ratio | Limit | Reached |");
    std::puts("|---|--:|--:|--:|--:|--:|---|");
    for (const Row& row : table.Rows()) {
        const Result& result = table.At(row.name);
        std::printf("| %s | %.*f | %.0f | %.0f |", row.name.c_str(), result.nanoseconds < 100 ? 1 : 0,
                    result.nanoseconds, result.accesses, result.allocations);
        if (row.peer == nullptr) {
            std::puts(" | | |");
            continue;
        }
        const double ratio = result.nanoseconds / table.At(row.peer).nanoseconds;
        allReached = allReached && ratio <= row.limit;
        std::printf(" %.*f | %g | %s |\n", ratio < 1 ? 3 : 2, ratio, row.limit, ratio <= row.limit ? "yes" : "**no**");
    }
    return allReached;
}

int Main() {
    Test::LogCapture::Silence();
    Workbench bench;
    Table table([&] { return bench.orvikPort.Accesses() + bench.m2vxPort.Accesses(); });
    AddPeer(table);
    AddOrvik(table, bench);
    AddM2VX(table, bench);
    AddOpening(table, bench);
    table.Run();
    return Print(table) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

} // namespace Bench

int main() {
    try {
        return Bench::Main();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
