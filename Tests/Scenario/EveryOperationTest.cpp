#include "Tests/Scenario/OperationsOn.h"

#include "Host/Functions/Tables.h"
#include "Simulation/Cameras.h"
#include "Tests/Operations/Published.h"

#include <set>

namespace Scenario {

namespace {

/// The rows state the results of a monochrome camera with image memory. With index 0, an M2VX control assumes that all
/// modes are on, as the rows do.
bool IsAsInTheTable(std::string_view model, int index) {
    const bool monoWithMemory = model == "Orvik-710M" || model == "Orvik-390M" || model == "Orvik-530M";
    return monoWithMemory || (!model.starts_with("Orvik") && index == 0);
}

std::string RefusalIn(const std::string& outcome) { return outcome.starts_with("SDK4_ERR") ? outcome : "none"; }

} // namespace

class EveryOperation : public testing::TestWithParam<std::string> {};

TEST_P(EveryOperation, FindsItsRegistersInTheSimulatedCamera) {
    const std::string& model = GetParam();
    for (const ::Test::Operation* row : OperationsOf(model)) {
        for (const int index : {row->state.CachedIndex(), row->state.UncachedIndex()}) {
            SCOPED_TRACE(row->name + " with index " + std::to_string(index));
            Host::Session session(LoadedPlugin(), model, {.index = index});
            const std::string outcome = OutcomeOf(*row, *session.As<IDynamicObject>());
            if (!row->name.starts_with("IGigEVisionPort::")) { // its rows use addresses that no camera has
                EXPECT_EQ(outcome.find(" failed: "), std::string::npos) << outcome << "; fix Simulation/*Registers.cpp";
            }
            if (row->state.presets.empty() && IsAsInTheTable(model, index)) {
                EXPECT_EQ(RefusalIn(outcome), RefusalIn(row->result));
            }
        }
    }
}

TEST(EveryInterface, HasARowInTheHost) {
    std::set<std::string> known{"IControl",        "IStreamControl", "IVideoFrame",
                                "IGigEVisionPort", "IPropertyState", "IPropertyList"}; // used by the host in other ways
    for (const char* family : {"Orvik", "M2VX"}) {
        for (const Host::Function& row : *Host::TableOf(family)) {
            known.insert(row.interfaceName.substr(row.interfaceName.rfind(':') + 1));
        }
    }
    ::Test::ForEachOperation([&](const std::string& name, auto /*operation*/) {
        EXPECT_TRUE(known.contains(name.substr(0, name.find(':')))) << name << " has no row in Host/Functions";
    });
}

INSTANTIATE_TEST_SUITE_P(Models, EveryOperation, testing::ValuesIn(Simulation::ModelNames()));

} // namespace Scenario
