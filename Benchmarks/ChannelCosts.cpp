// The time that the plug-in and the host's port add to accesses to a camera on the network. Compares each call with the
// same accesses by Aravis alone, to another camera of the same model. Writes a table of docs/performance.md.

#include "Benchmarks/RawChannel.h"
#include "Benchmarks/Timing.h"

#include "Host/Channel/GigEPort.h"
#include "Host/Logging.h"
#include "Host/Plugin.h"
#include <SDK4/SDK4.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <span>
#include <stdexcept>

using namespace SDK4::Control;

namespace Bench {

namespace {

constexpr double limit = 1.10;

/// A call, its accesses, and for every round the seconds of both sides and their ratio.
struct Comparison {
    std::string name;
    std::vector<Host::Access> accesses;
    std::function<void()> call, raw;
    std::vector<double> callTimes{}, rawTimes{}, ratios{};
};

using Comparisons = std::vector<Comparison>;

/// Two cameras of a model: one for the plug-in over the host's port, one for Aravis alone.
class Cameras {
public:
    Cameras(const Host::Plugin& plugin, const char* model, std::int32_t index, const char* ours, const char* theirs)
        : port(ours),
          traced(port),
          control(plugin.Create(model, port, index)),
          tracedControl(plugin.Create(model, traced, index)),
          channel(theirs) {}

    /// A camera function.
    template <typename Interface> void Add(Comparisons& table, const char* name, void (*call)(Interface&)) {
        Add(table, name, call, dynamic_cast<Interface&>(*control), dynamic_cast<Interface&>(*tracedControl));
    }

    /// An operation of the port, without the plug-in.
    void AddAccess(Comparisons& table, const char* name, void (*call)(SDK4::IControlPort&)) {
        Add<SDK4::IControlPort>(table, name, call, port, traced);
    }

private:
    /// Compares with the accesses of a repeated call, since the first call may find caches empty.
    template <typename Interface>
    void Add(Comparisons& table, const char* name, void (*call)(Interface&), Interface& measured, Interface& recorded) {
        call(recorded);
        static_cast<void>(traced.Take());
        call(recorded);
        const std::vector<Host::Access> accesses = traced.Take();
        if (accesses.empty()) {
            throw std::runtime_error(std::string(name) + " does not reach the camera");
        }
        channel.RequireSameAnswers(accesses);
        table.push_back(
            {name, accesses, [&measured, call] { call(measured); }, [this, accesses] { channel.Make(accesses); }});
    }

    Host::GigEPort port;
    Host::TracingPort traced;
    Host::Control control, tracedControl;
    RawChannel channel;
};

// clang-format off
void AddOrvik(Comparisons& table, Cameras& cameras) {
    cameras.AddAccess(table, "GigEPort::ReadRegister",  [](auto& port) { port.ReadRegister(0x14010000); });
    cameras.AddAccess(table, "GigEPort::WriteRegister", [](auto& port) { port.WriteRegister(0x14010000, 100); });

    cameras.Add<IGain>    (table, "IGain::GetGain",               [](auto& gain) { gain.GetGain(); });
    cameras.Add<IGain>    (table, "IGain::SetGain",               [](auto& gain) { gain.SetGain(100); });
    cameras.Add<IExposure>(table, "IExposure::SetExposure",       [](auto& exposure) { exposure.SetExposure({2, 1000}); });
    cameras.Add<IRoa>     (table, "IRoa::SetReadoutArea",         [](auto& roa) { roa.SetReadoutArea({100, 100, 1123, 867}); });
    cameras.Add<IOverlay> (table, "IOverlay::GetOverlayPosition", [](auto& overlay) { overlay.GetOverlayPosition(1); });
}

void AddM2VX(Comparisons& table, Cameras& cameras) {
    cameras.Add<M2VX::IGain>       (table, "M2VX::IGain::SetGain",               [](auto& gain) { gain.SetGain(100); });
    cameras.Add<ISignalFormat>     (table, "ISignalFormat::GetImageSize, M2VX",  [](auto& format) { format.GetImageSize(); });
    cameras.Add<M2VX::IDefectPixel>(table, "M2VX::IDefectPixel::GetDefectPixel", [](auto& pixels) { pixels.GetDefectPixel({0, 1}); });
    cameras.Add<IGufi>             (table, "IGufi::GetSerialNumber, M2VX",       [](auto& identity) { identity.GetSerialNumber(); });
    cameras.Add<IGigECamera>       (table, "IGigECamera::GetMacAddress, M2VX",   [](auto& camera) { camera.GetMacAddress(); });
}
// clang-format on

/// The two sides take turns. A disturbance of the machine that lasts longer than a round affects both sides, and so
/// hardly changes their ratio.
void MeasureRound(Comparison& row) {
    constexpr int turns = 25;
    row.call();
    row.raw();
    std::vector<double> callTimes, rawTimes;
    for (int turn = 0; turn < turns; ++turn) {
        callTimes.push_back(Time(1, row.call));
        rawTimes.push_back(Time(1, row.raw));
    }
    row.callTimes.push_back(Median(callTimes));
    row.rawTimes.push_back(Median(rawTimes));
    row.ratios.push_back(row.callTimes.back() / row.rawTimes.back());
}

void Measure(Comparisons& table) {
    constexpr int rounds = 200;
    for (int round = 0; round < rounds; ++round) {
        for (Comparison& row : table) {
            MeasureRound(row);
        }
    }
}

/// "R 46020000/4, w 14010000"
std::string Print(const std::vector<Host::Access>& accesses) {
    std::string text;
    for (const Host::Access& access : accesses) {
        const bool ofRegister = IsOfRegister(access);
        const char* const letter = access.write ? (ofRegister ? "w " : "W ") : (ofRegister ? "r " : "R ");
        char address[9];
        std::snprintf(address, sizeof address, "%0*X", access.address < 0x10000 ? 4 : 8, access.address);
        text += (text.empty() ? "" : ", ") + std::string(letter) + address;
        text += ofRegister ? "" : "/" + std::to_string(access.data.size());
    }
    return text;
}

/// Writes the table. @return whether all limits are met
bool Print(const Comparisons& table) {
    bool allReached = true;
    std::puts("| Operation | Accesses | Aravis alone, µs | The call, µs | Ratio | Limit | Reached |");
    std::puts("|---|---|--:|--:|--:|--:|---|");
    for (const Comparison& row : table) {
        const double ratio = Median(row.ratios);
        const bool reached = ratio <= limit;
        allReached = allReached && reached;
        std::printf("| %s | `%s` | %.1f | %.1f | %.2f | %.2f | %s |\n", row.name.c_str(), Print(row.accesses).c_str(),
                    Median(row.rawTimes) * 1e6, Median(row.callTimes) * 1e6, ratio, limit, reached ? "yes" : "**no**");
    }
    return allReached;
}

int Main(std::span<char*> addresses) {
    if (addresses.size() != 4) {
        throw std::runtime_error(
            "usage: qdv12_channel_costs ORVIK ORVIK M2VX M2VX (addresses of two Orvik-31200C and two Cerix7-MV)");
    }
    Host::ConfigureLogging("off");
    const Host::Plugin plugin(Host::DefaultPlugin());
    Cameras orvik(plugin, "Orvik-31200C", 2, addresses[0], addresses[1]);
    Cameras m2vx(plugin, "Cerix7-MV", 0, addresses[2], addresses[3]);
    Comparisons table;
    AddOrvik(table, orvik);
    AddM2VX(table, m2vx);
    Measure(table);
    return Print(table) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

} // namespace Bench

int main(int argc, char** argv) {
    try {
        return Bench::Main(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2; // 1 means that a limit was exceeded
    }
}
