// Every row of the table of operations, and what holds for all of them.

#include "Rows.h"

#include <set>

namespace Test {

class OperationTest : public CameraTest, public testing::WithParamInterface<Operation> {
protected:
    std::set<std::string> ExpectedAffected(const std::set<std::string>& valid) const;

    const Operation& row = GetParam();
};

TEST_P(OperationTest, AnswersAtTheStatedCost) {
    const Camera cached = Open(row.state, row.state.RememberingIndex());
    EXPECT_EQ(Observe(cached, row.call), (Observed{row.result, row.accesses.first}));
    EXPECT_EQ(Observe(cached, row.call), (Observed{row.result, row.accesses.again})) << "repeated";
    const Camera uncached = Open(row.state, row.state.ReadingIndex());
    EXPECT_EQ(Observe(uncached, row.call), (Observed{row.result, row.accesses.firstUncached})) << "not remembering";
    EXPECT_EQ(Observe(uncached, row.call), (Observed{row.result, row.accesses.againUncached}))
        << "not remembering, repeated";
}

/// What the row states, once "all but" is taken from the getters that answered before the call.
std::set<std::string> OperationTest::ExpectedAffected(const std::set<std::string>& valid) const {
    const std::string allBut = "all but ";
    if (!row.accesses.affected.starts_with(allBut)) {
        const std::vector<std::string> names = Split(row.accesses.affected, ", ");
        return {names.begin(), names.end()};
    }
    std::set<std::string> expected = valid;
    for (const std::string& survivor : Split(row.accesses.affected.substr(allBut.size()), ", "))
        EXPECT_EQ(expected.erase(survivor), 1u) << survivor;
    return expected;
}

TEST_P(OperationTest, AffectsWhatDependsOnItAndNothingElse) {
    const Effect effect = EffectOf(row);
    EXPECT_EQ(effect.outcome, row.result);
    EXPECT_EQ(effect.affected, ExpectedAffected(effect.valid));
}

TEST_P(OperationTest, LogsItsEntryAndOneLineForAThrow) {
    const Camera camera = Open(row.state);
    LogCapture log;
    Outcome(row.call, *camera.Object());

    std::vector<std::string> warnings;
    for (const LogCapture::Line& line : log.Lines()) {
        EXPECT_TRUE(line.file.ends_with(".cpp") || line.file.ends_with(".h")) << line.file;
        EXPECT_GT(line.line, 0);
        if (line.text.starts_with("warn SDK4Exception"))
            warnings.push_back(line.text);
    }
    const std::vector<std::string> throwing{"warn SDK4Exception [X4Error(" + row.result + ")]"};
    EXPECT_EQ(warnings, IsError(row.result) ? throwing : std::vector<std::string>{});

    if (IsOf("IVideoFrame", row) || IsOf("IDSMediaType", row) || IsOf("IGigEVisionPort", row))
        return;
    ASSERT_FALSE(log.Lines().empty());
    const LogCapture::Line& entry = log.Lines().front();
    const std::string operation = WithoutInterface(row.name.substr(0, row.name.find(' ')));
    const bool setterOfM2VX = row.state.IsM2VX() && entry.text.starts_with("info Call(");
    EXPECT_TRUE(entry.text == "debug Call" || entry.text == "debug CALL" || setterOfM2VX) << entry.text;
    EXPECT_EQ(entry.function, operation);
}

INSTANTIATE_TEST_SUITE_P(, OperationTest, testing::ValuesIn(Operations()), TestName);

TEST_F(CameraTest, NullPortIsRefusedAtTheFirstAccess) {
    for (const Operation& row : Operations()) {
        if (row.accesses.first.empty() || row.state.before || row.state.IsM2VX()) // M2VX refuses it when opened
            continue;
        const Camera camera(plugin, row.state.model, nullptr);
        EXPECT_EQ(Outcome(row.call, *camera.Object()), Invalid) << row.name;
    }
}

} // namespace Test
