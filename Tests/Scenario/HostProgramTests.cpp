#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace Scenario {

struct Outcome {
    int code;
    std::string out;
    std::string err;
};

std::string Content(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

Outcome RunHost(const std::string& arguments) {
    const std::string file = testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::string command =
        std::string(QDV12_HOST) + " " + arguments + " >" + file + ".out 2>" + file + ".err </dev/null";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Content(file + ".out"), Content(file + ".err")};
}

testing::AssertionResult Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos ? testing::AssertionSuccess()
                                                : testing::AssertionFailure() << '"' << part << "\" is not in\n"
                                                                              << text;
}

/// How a tour begins the line of a call.
std::string Call(std::string text) {
    text.resize(64, ' ');
    return "  " + text + "  ";
}

TEST(HostProgram, ListsTheModels) {
    const Outcome run = RunHost("models");
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_TRUE(run.out.starts_with("Orvik-31200M    qdv12\nOrvik-31200C    qdv12\n"));
    EXPECT_TRUE(run.out.ends_with("Cerix7-MV       qdv12\nCerix-MV7       qdv12\nSollux G        qdv12\n"));
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 13);
}

TEST(HostProgram, ToursACameraAndShowsWhatEachCallCosts) {
    const Outcome run = RunHost("tour Orvik-390M");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_TRUE(Has(run.out, Call("gain.SetGain(512)") +
                                 "! SDK4_ERR_OUTOFRANGE\n"
                                 "      ReadMem            0x46020000  agc                      -> 0\n"
                                 "      WriteMem           0x14010000  gain                     <- 511\n" +
                                 Call("gain.GetGain()") + "= 511\n      (no port access)\n"));
    EXPECT_TRUE(Has(run.out, Call("enhancement.GetContrast()") +
                                 "= 200\n"
                                 "      ReadMem            0x18020000  contrast                 -> 200\n"));
    EXPECT_TRUE(Has(run.out,
                    Call("roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MIN)") + "= startx 0, starty 0, endx 63, endy 63\n"));
    EXPECT_TRUE(run.out.ends_with(" refusals, 0 surprises.\n"));
}

TEST(HostProgram, ToursTheOtherFamilyWithItsPropertiesAndCallbacks) {
    const Outcome run = RunHost("tour 'Sollux G'");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_TRUE(Has(run.out, "behind the control \"M2VX\".\n"));
    EXPECT_TRUE(
        Has(run.out, "  defectpixel.xpos              258      0        1024        0        unsigned, indexed\n"));
    EXPECT_TRUE(Has(run.out, Call("gain.SetGain(600)") +
                                 "! SDK4_ERR_OUTOFRANGE\n"
                                 "      WriteRegister      0x14010000  gain                     <- 600\n"
                                 "      ReadRegister       0x14010000  gain                     -> 568\n"
                                 "      callback           gain                                 value = 568\n"));
    EXPECT_TRUE(Has(run.out, "  Opening it with index 3 cost 608 port accesses, 512 of them on motorcontrol.\n"));
    EXPECT_TRUE(run.out.ends_with(" refusals, 0 surprises.\n"));
}

TEST(HostProgram, LogsWhenAskedTo) {
    const Outcome run = RunHost("tour Orvik-390C --log INFO");
    EXPECT_EQ(run.code, 0);
    EXPECT_TRUE(Has(run.err, "QDV12: CreateObject(Orvik-390C)"));
    EXPECT_TRUE(Has(run.err, "SDK4Exception [X4Error(SDK4_ERR_CANTSETFEATURE)]"));
    EXPECT_FALSE(Has(run.err, "DEBUG"));
}

TEST(HostProgram, SaysWhyAPluginDoesNotLoad) {
    const Outcome absent = RunHost("--plugin /nowhere/libqdv12ctrl.so models");
    EXPECT_EQ(absent.code, 3);
    EXPECT_EQ(absent.out, "");
    EXPECT_TRUE(Has(absent.err, "path:   /nowhere/libqdv12ctrl.so\n"));
    EXPECT_TRUE(Has(absent.err, "No such file or directory"));

    const Outcome other = RunHost("--plugin libm.so.6 models");
    EXPECT_EQ(other.code, 3);
    EXPECT_TRUE(Has(other.err, "missing export: InitLibrary\n"));
    EXPECT_TRUE(Has(other.err, "missing export: CreateObject\n"));
}

TEST(HostProgram, RefusesAnUnknownModel) {
    const Outcome run = RunHost("tour orvik-710m");
    EXPECT_EQ(run.code, 3);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(Has(run.err, "unknown model \"orvik-710m\""));
}

TEST(HostProgram, TellsWrongUsageFromFailure) {
    for (const char* arguments : {"", "tour", "frobnicate", "--log loud models", "models --plugin", "tour a b"}) {
        EXPECT_EQ(RunHost(arguments).code, 2) << arguments;
    }
    EXPECT_EQ(RunHost("--help").code, 0);
}

} // namespace Scenario
