#include "Benchmarks/Workbench.h"

#include "Tests/Boundary/Rows.h"

namespace Bench {

namespace {

constexpr std::uint32_t readoutArea = 0x28050000, areaLimits = 0x28090000;

struct IndexedArea {
    int index;
    SDK4_KAREA area;
};

} // namespace

Workbench::Workbench()
    : orvik(plugin, orvikModel, &Orvik(orvikPort), 0),
      orvikLoading(plugin, orvikModel, &orvikPort, 0),
      orvikReading(plugin, orvikModel, &orvikPort, 2),
      m2vx(plugin, m2vxModel, &M2VX(m2vxPort), 3),
      m2vxReading(plugin, m2vxModel, &m2vxPort, 0) {
    ReadLimits();
    ReadEverything(orvik);
}

Test::FlatPort& Workbench::Orvik(Test::FlatPort& port) {
    Test::Prepare(port, Test::Colour());
    port.Set(readoutArea, area);
    return port;
}

Test::FlatPort& Workbench::M2VX(Test::FlatPort& port) {
    Test::Prepare(port, Test::OnM2VX());
    return port;
}

void Workbench::ReadEverything(const Test::Camera& camera) {
    static const std::vector<const Test::Operation*> getters = Test::CachedGetters(false);
    for (const Test::Operation* getter : getters) {
        Test::Outcome(getter->call, *camera.Object());
    }
    auto& lines = camera.As<SDK4::Control::IGPIO>();
    for (unsigned int line = 0; line < 6; ++line) { // the table has rows for some of the lines
        lines.GetIoMode(line);
        lines.GetIoPort(line);
        lines.GetIoPolarity(line);
        lines.GetIoDelay(line);
    }
}

void Workbench::ReadLimits() {
    auto& roa = orvik.As<SDK4::Control::IRoa>();
    orvikPort.Set(areaLimits, IndexedArea{0, {0, 0, 63, 63}});
    roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MIN);
    orvikPort.Set(areaLimits, IndexedArea{1, {200, 200, 2047, 1535}});
    roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MAX);
}

} // namespace Bench
