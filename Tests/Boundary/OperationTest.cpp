// Every row of the table of operations, and rules that hold for all of them.

#include "Tests/Boundary/Rows.h"

#include <set>

namespace Test {

namespace {

/// The class name in the operation's log lines.
std::string LoggingClass(const Operation& row) {
    if (row.state.IsM2VX()) {
        return IsOf("IPropertyState", row) ? "CBaseControlHelper" : "CM2VXBaseControl";
    }
    if (IsOf("IControl", row)) {
        return "COrvikFeatureCtrl";
    }
    if (IsOf("ILookUpTable", row)) {
        return "KLookupTable";
    }
    const std::string interface = InterfaceOf(row.name); // also IGain2, for KGain
    return IsOf("IACC", row) ? "KDigitalEnhancement"
                             : "K" + interface.substr(1, interface.find_last_not_of("23456789"));
}

/// Setters of an M2VX control log their values at info level.
bool LogsItsValues(const Operation& row, const std::string& operation) {
    const bool isSetter = operation.starts_with("Set") || operation.starts_with("Store") ||
                          operation.starts_with("Load") || operation.starts_with("Save");
    return row.state.IsM2VX() && isSetter && row.result != notImplemented && !IsOf("IPropertyState", row);
}

} // namespace

class OperationTest : public CameraTest, public testing::WithParamInterface<Operation> {
protected:
    std::set<std::string> ExpectedAffected(const std::set<std::string>& valid) const;

    const Operation& row = GetParam();
};

TEST_P(OperationTest, AnswersAtTheStatedCost) {
    SCOPED_TRACE("mend " + LoggingClass(row) + " or the row in Tests/Operations");
    const Camera cached = Open(row.state, row.state.CachedIndex());
    EXPECT_EQ(Observe(cached, row.call), (Observation{row.result, row.accesses.first}));
    EXPECT_EQ(Observe(cached, row.call), (Observation{row.result, row.accesses.again})) << "repeated";
    const Camera uncached = Open(row.state, row.state.UncachedIndex());
    EXPECT_EQ(Observe(uncached, row.call), (Observation{row.result, row.accesses.firstUncached})) << "uncached";
    EXPECT_EQ(Observe(uncached, row.call), (Observation{row.result, row.accesses.againUncached}))
        << "uncached, repeated";
}

/// The affected getters that the row states. Resolves "all but" against the getters that were cached before the call.
std::set<std::string> OperationTest::ExpectedAffected(const std::set<std::string>& valid) const {
    const std::string allBut = "all but ";
    if (!row.accesses.affected.starts_with(allBut)) {
        const std::vector<std::string> names = Split(row.accesses.affected, ", ");
        return {names.begin(), names.end()};
    }
    std::set<std::string> expected = valid;
    for (const std::string& survivor : Split(row.accesses.affected.substr(allBut.size()), ", ")) {
        EXPECT_EQ(expected.erase(survivor), 1u) << survivor;
    }
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
        if (line.text.starts_with("warn SDK4Exception")) {
            warnings.push_back(line.text);
        }
    }
    const std::vector<std::string> throwing{"warn SDK4Exception [X4Error(" + row.result + ")]"};
    EXPECT_EQ(warnings, IsError(row.result) ? throwing : std::vector<std::string>{});

    if (IsOf("IVideoFrame", row) || IsOf("IDSMediaType", row) || IsOf("IGigEVisionPort", row)) {
        return;
    }
    ASSERT_FALSE(log.Lines().empty());
    const LogCapture::Line& entry = log.Lines().front();
    const std::string operation = WithoutInterface(row.name.substr(0, row.name.find(' ')));
    const std::string plain =
        row.name.find("GigECamera::SetUserDefinedName") != std::string::npos && !row.state.IsM2VX() ? "debug CALL"
                                                                                                    : "debug Call";
    if (LogsItsValues(row, operation)) {
        EXPECT_TRUE(entry.text.starts_with("info Call(") && entry.text.ends_with(")")) << entry.text;
    } else {
        EXPECT_EQ(entry.text, plain);
    }
    EXPECT_EQ(entry.className, LoggingClass(row));
    EXPECT_EQ(entry.function, operation);
}

INSTANTIATE_TEST_SUITE_P(, OperationTest, testing::ValuesIn(Operations()), TestName);

TEST_F(CameraTest, NullPortIsRefusedAtTheFirstAccess) {
    for (const Operation& row : Operations()) {
        if (row.accesses.first.empty() || row.state.before || row.state.IsM2VX()) { // M2VX refuses it at opening
            continue;
        }
        const Camera camera(plugin, row.state.model, nullptr);
        EXPECT_EQ(Outcome(row.call, *camera.Object()), invalid) << row.name;
    }
}

} // namespace Test
