// With logging off, frequent calls allocate nothing: cached getters and setters.

#include "Tests/Boundary/Rows.h"
#include "Tests/Support/Allocations.h"
#include "Tests/Support/FlatPort.h"

#include <algorithm>
#include <memory>

namespace Test {

namespace {

/// Longer results make the table's own call allocate. They are texts and wide records.
constexpr std::size_t withoutAllocation = 15;

/// Longer than the internal buffer of a std::string: checks that the text is not truncated.
constexpr const char* longText = "IGufi::GetDeviceName";

/// Whether the state has several instances at an address, which the flat port cannot distinguish.
bool NeedsInstances(const State& state) {
    return std::ranges::any_of(state.presets, [](const Preset& preset) { return preset.index >= 0; });
}

/// The number of allocations of the repeated call.
std::uint64_t AllocationsOf(const Operation& row, const Camera& camera) {
    Outcome(row.call, *camera.Object());
    const std::uint64_t before = Allocations();
    const std::string outcome = Outcome(row.call, *camera.Object());
    const std::uint64_t after = Allocations();
    EXPECT_FALSE(IsError(outcome)) << row.name << ": " << outcome;
    return after - before;
}

} // namespace

TEST_F(CameraTest, AllocationsAreCounted) {
    const std::uint64_t before = Allocations();
    const auto block = std::make_unique<int>();
    EXPECT_GT(Allocations(), before);
    const Camera camera(plugin, "Orvik-31200M", &port);
    EXPECT_GT(Allocations(), before + 100) << "those of the plug-in";
}

TEST_F(CameraTest, CachedGettersAllocateNothing) {
    std::size_t tested = 0;
    for (const bool ofM2VX : {false, true}) {
        for (const Operation* row : CachedGetters(ofM2VX)) {
            if (row->result.size() > withoutAllocation || row->name == longText) {
                continue;
            }
            const Camera camera = Open(row->state, row->state.CachedIndex());
            EXPECT_EQ(AllocationsOf(*row, camera), 0u) << row->name;
            ++tested;
        }
    }
    EXPECT_GT(tested, 90u);
}

TEST_F(CameraTest, SettersAllocateNothing) {
    std::size_t tested = 0;
    for (const Operation& row : Operations()) {
        if (row.result != done || row.accesses.again.empty() || row.state.before || NeedsInstances(row.state)) {
            continue;
        }
        FlatPort flat;
        Prepare(flat, row.state);
        const Camera camera(plugin, row.state.model, &flat, row.state.CachedIndex());
        EXPECT_EQ(AllocationsOf(row, camera), 0u) << row.name;
        ++tested;
    }
    EXPECT_GT(tested, 90u);
}

} // namespace Test
