// The helper that runs programs fails if a program hangs, instead of hanging with it.

#include "Tests/Support/Running.h"
#include "Tests/Support/Files.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace Test {

namespace {

using namespace std::chrono_literals;

TEST(RunningTest, FailsWithWhatWasReadWhenNothingMoreComes) {
    Running program("sh", {"-c", "echo begun; sleep 1000; echo never"}, STDOUT_FILENO, 200ms);
    EXPECT_TRUE(program.ReadUntil("begun"));
    EXPECT_NONFATAL_FAILURE(EXPECT_FALSE(program.ReadUntil("never")), "did not go on within 200 ms");
    EXPECT_EQ(program.Read(), "begun\n");
    EXPECT_EQ(program.End(), -1); // killed; reported once
}

TEST(RunningTest, FailsWithWhatWasReadWhenItDoesNotEnd) {
    Running program("sh", {"-c", "echo begun; exec >&- 2>&-; sleep 1000; :"}, STDOUT_FILENO, 200ms);
    EXPECT_NONFATAL_FAILURE(EXPECT_EQ(program.End(), -1), "it was killed. It printed:\nbegun\n");
    EXPECT_TRUE(program.HasTimedOut());
}

TEST(RunningTest, TakesWhatTheProgramStartedWithIt) {
    std::string child;
    {
        Running program("sh", {"-c", "sleep 1000 & echo $!.; wait"}, STDOUT_FILENO);
        ASSERT_TRUE(program.ReadUntil("."));
        child = program.Read().substr(0, program.Read().find('.'));
    }
    // It may be a zombie.
    const auto isAlive = [&] {
        const std::string state = Content("/proc/" + child + "/stat");
        return !state.empty() && state.find(") Z ") == std::string::npos;
    };
    for (int i = 0; i < 1000 && isAlive(); ++i) {
        usleep(10000);
    }
    EXPECT_FALSE(isAlive());
}

} // namespace

} // namespace Test
