// Every row of the table of operations, and what holds for all of them.

#include "CameraTest.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace Test {

namespace {

bool IsError(const std::string& outcome) { return outcome.starts_with("SDK4_ERR"); }

std::vector<std::string> Split(const std::string& text, const std::string& separator) {
    std::vector<std::string> parts;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(separator, at), text.size());
        parts.push_back(text.substr(at, end - at));
        at = end + separator.size();
    }
    return parts;
}

std::string WithoutInterface(const std::string& name) { return name.substr(name.find("::") + 2); }

std::string TestName(const testing::TestParamInfo<Operation>& row) {
    std::string name = row.param.name;
    name.replace(name.find("::"), 2, "_");
    std::replace(name.begin(), name.end(), '-', 'm');
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
}

/// The rows whose value the library keeps: getters whose repetition costs nothing. Width, height, format and time per
/// frame of the video frame are other views of the same registers.
std::vector<const Operation*> CachedGetters() {
    std::vector<const Operation*> getters;
    for (const Operation& row : Operations()) {
        if (!row.accesses.first.empty() && row.accesses.again.empty() && !IsError(row.result) &&
            !row.name.starts_with("IVideoFrame"))
            getters.push_back(&row);
    }
    return getters;
}

} // namespace

void PrintTo(const Operation& operation, std::ostream* stream) { *stream << operation.name; }

class OperationTest : public CameraTest, public testing::WithParamInterface<Operation> {
protected:
    const Operation& row = GetParam();
};

TEST_P(OperationTest, AnswersAtTheStatedCost) {
    const Camera cached = Open(row.state);
    EXPECT_EQ(Observe(cached, row.call), (Observed{row.result, row.accesses.first}));
    EXPECT_EQ(Observe(cached, row.call), (Observed{row.result, row.accesses.again})) << "repeated";
    const Camera uncached = Open(row.state, 2);
    EXPECT_EQ(Observe(uncached, row.call), (Observed{row.result, row.accesses.firstUncached})) << "index 2";
    EXPECT_EQ(Observe(uncached, row.call), (Observed{row.result, row.accesses.againUncached})) << "index 2, repeated";
}

TEST_P(OperationTest, MakesStaleWhatDependsOnItAndNothingElse) {
    const Camera camera = Open(row.state);
    std::set<std::string> observed, expected;
    std::vector<const Operation*> valid;
    for (const Operation* getter : CachedGetters()) {
        if (!IsError(Outcome(getter->call, *camera.Object())))
            valid.push_back(getter);
    }
    EXPECT_EQ(Outcome(row.call, *camera.Object()), row.result);
    for (const Operation* getter : valid) {
        if (!Observe(camera, getter->call).accesses.empty())
            observed.insert(WithoutInterface(getter->name));
    }

    const std::string allBut = "all but ";
    if (row.accesses.stale.starts_with(allBut)) {
        for (const Operation* getter : valid) {
            if (!getter->name.starts_with("IGufi")) // who the camera is does not change
                expected.insert(WithoutInterface(getter->name));
        }
        for (const std::string& survivor : Split(row.accesses.stale.substr(allBut.size()), ", "))
            EXPECT_EQ(expected.erase(survivor), 1u) << survivor;
    } else {
        for (const std::string& name : Split(row.accesses.stale, ", "))
            expected.insert(name);
    }
    EXPECT_EQ(observed, expected);
}

TEST_P(OperationTest, PassesPortFailuresAndStaysUsable) {
    const std::vector<std::string> accesses = Split(row.accesses.first, "; ");
    for (unsigned int nth = 1; nth <= accesses.size(); ++nth) {
        SCOPED_TRACE(accesses[nth - 1]);
        port = {};
        const Camera camera = Open(row.state);
        port.FailAt(nth, [nth] { throw Unplugged{static_cast<int>(nth)}; });
        try {
            row.call(*camera.Object());
            ADD_FAILURE() << "nothing was thrown";
        } catch (const Unplugged& failure) {
            EXPECT_EQ(failure.reason, static_cast<int>(nth));
        }
        EXPECT_EQ(Split(port.TakeLog(), "; "), std::vector(accesses.begin(), accesses.begin() + nth));
        EXPECT_EQ(Outcome(row.call, *camera.Object()), row.result) << "after the failure";
    }
}

TEST_P(OperationTest, LogsItsEntryAndOneLineForAThrow) {
    const Camera camera = Open(row.state);
    LogCapture log;
    Outcome(row.call, *camera.Object());

    std::vector<std::string> warnings;
    for (const LogCapture::Line& line : log.Lines()) {
        EXPECT_TRUE(line.file.ends_with(".cpp") || line.file.ends_with(".h")) << line.file;
        EXPECT_GT(line.line, 0);
        if (line.text.starts_with("warn"))
            warnings.push_back(line.text);
    }
    const std::vector<std::string> throwing{"warn SDK4Exception [X4Error(" + row.result + ")]"};
    EXPECT_EQ(warnings, IsError(row.result) ? throwing : std::vector<std::string>{});

    if (row.name.starts_with("IVideoFrame") || row.name.starts_with("IDSMediaType") ||
        row.name.starts_with("IGigEVisionPort"))
        return;
    ASSERT_FALSE(log.Lines().empty());
    const LogCapture::Line& entry = log.Lines().front();
    const std::string operation = WithoutInterface(row.name.substr(0, row.name.find(' ')));
    EXPECT_TRUE(entry.text == "debug Call" || entry.text == "debug CALL") << entry.text;
    EXPECT_EQ(entry.function, operation);
}

INSTANTIATE_TEST_SUITE_P(, OperationTest, testing::ValuesIn(Operations()), TestName);

TEST_F(CameraTest, NullPortIsRefusedAtTheFirstAccess) {
    for (const Operation& row : Operations()) {
        if (row.accesses.first.empty() || row.state.before)
            continue;
        const Camera camera(plugin, row.state.model, nullptr);
        EXPECT_EQ(Outcome(row.call, *camera.Object()), Invalid) << row.name;
    }
}

} // namespace Test
