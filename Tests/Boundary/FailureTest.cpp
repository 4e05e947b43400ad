// Every port access of every operation fails in turn: what reaches the host, what the library says and keeps of it, and
// whether the object works on.

#include "Tests/Boundary/Failing.h"

#include <algorithm>
#include <span>

using namespace SDK4::Control;

namespace Test {

class FailureTest : public Failing, public testing::WithParamInterface<Operation> {
protected:
    /// How a camera was opened, and whether every getter was called since.
    struct Opening {
        const char* name;
        int index;
        bool filled;
    };

    /// What a call does when nothing fails.
    struct Untroubled {
        std::string accesses;
        Texts told; ///< to an observer of properties
        Texts heldBefore, heldAfter;
    };

    Camera OpenAs(const Opening& opening);
    std::vector<Observation> Answers(const Camera& camera);
    Texts Held(int index);
    Untroubled Watch(const Opening& opening);
    void ExpectHarmless(const Opening& opening, std::span<const Failure> failures, const Untroubled& untroubled);
    void ExpectNoTrace(const Camera& camera, const Failure& failure, const Untroubled& untroubled);

    const Operation& row = GetParam();
    const std::vector<const Operation*> getters = CachedGetters(row.state.IsM2VX());
    Observed observed;
};

Camera FailureTest::OpenAs(const Opening& opening) {
    port = {};
    Camera camera = Open(row.state, opening.index);
    if (opening.filled && !row.state.IsM2VX()) { // which is filled when opened
        Answers(camera);
    }
    if (row.state.IsM2VX()) {
        camera.As<IPropertyState>().AddCallback(Observed::Notify, &observed);
    }
    observed.Take();
    return camera;
}

/// What the getters answer, and at which cost.
std::vector<CameraTest::Observation> FailureTest::Answers(const Camera& camera) {
    std::vector<Observation> answers;
    answers.reserve(getters.size());
    for (const Operation* getter : getters) {
        answers.push_back(Observe(camera, getter->call));
    }
    return answers;
}

/// What the camera holds: a control that is opened just now has nothing else to answer.
Texts FailureTest::Held(int index) {
    const Camera fresh(plugin, row.state.model, &port, index);
    return Outcomes(fresh, getters);
}

FailureTest::Untroubled FailureTest::Watch(const Opening& opening) {
    OpenAs(opening);
    const Texts before = Held(opening.index);
    const Camera camera = OpenAs(opening);
    const auto [outcome, accesses] = Observe(camera, row.call);
    EXPECT_EQ(outcome, row.result);
    const Texts told = observed.Take();
    if (IsOf("IMotorControl", row) ||
        IsOf("IDefectPixel", row)) { // where a motor is is not remembered; one pixel for all
        return {accesses, told, before, Outcomes(camera, getters)};
    }
    return {accesses, told, before, Held(opening.index)};
}

void FailureTest::ExpectNoTrace(const Camera& camera, const Failure& failure, const Untroubled& untroubled) {
    const long live = LiveBeyondThePort();
    EXPECT_EQ(Fail(failure, UpTo(failure.nth, untroubled.accesses), [&] { row.call(*camera.Object()); }),
              failure.Expected());
    EXPECT_EQ(LiveBeyondThePort(), live);
    EXPECT_EQ(observed.Take(), Texts{}) << "a property claims what did not happen";
}

/// Several failures of one object, one after the other, and then success.
void FailureTest::ExpectHarmless(const Opening& opening, std::span<const Failure> failures,
                                 const Untroubled& untroubled) {
    const Camera camera = OpenAs(opening);
    const std::vector<Observation> before = opening.filled ? Answers(camera) : std::vector<Observation>{};
    for (const Failure& failure : failures) {
        SCOPED_TRACE(failure);
        ExpectNoTrace(camera, failure, untroubled);
        if (opening.filled) {
            EXPECT_EQ(Answers(camera), before);
        }
        if (!row.state.IsM2VX()) { // which may have sent a value, and then failed to read what the camera made of it
            EXPECT_EQ(Outcomes(camera, getters), untroubled.heldBefore);
        }
    }
    EXPECT_EQ(Outcome(row.call, *camera.Object()), row.result);
    EXPECT_EQ(observed.Take(), untroubled.told);
    EXPECT_EQ(Outcomes(camera, getters), untroubled.heldAfter);
}

TEST_P(FailureTest, AFailedAccessDoesNoHarm) {
    if (row.accesses.firstUncached.empty()) {
        return;
    }
    std::vector<Opening> openings{{"remembering", row.state.RememberingIndex(), true},
                                  {"reading", row.state.ReadingIndex(), false}};
    if (!row.state.IsM2VX()) {
        openings.push_back({"nothing remembered yet", row.state.RememberingIndex(), false});
    }
#ifdef QDV12_SANITIZED // see FailuresOf
    static std::size_t turn = 0;
    openings = {openings[turn++ % openings.size()]};
#endif
    for (const Opening& opening : openings) {
        SCOPED_TRACE(opening.name);
        const Untroubled untroubled = Watch(opening);
        const std::vector<Failure> failures = FailuresOf(CountOf(untroubled.accesses));
        // What a call reads before it fails may be remembered, and is then not read again.
        const std::size_t together = opening.filled || row.state.IsM2VX() ? 4 : 1;
        for (std::size_t at = 0; at < failures.size(); at += together) {
            ExpectHarmless(opening, std::span(failures).subspan(at, std::min(together, failures.size() - at)),
                           untroubled);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, FailureTest, testing::ValuesIn(Operations()), TestName);

} // namespace Test
