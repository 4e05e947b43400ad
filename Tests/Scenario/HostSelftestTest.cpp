#include "Tests/Scenario/InProcess.h"
#include "Tests/Scenario/SettingsFixture.h"

#include "Host/Logging.h"
#include "Host/Selftest/ComplianceTest.h"
#include "Host/Settings/UncachedCamera.h"
#include "Simulation/Cameras.h"

#include <pty.h>

#include <array>
#include <regex>

namespace Scenario {

namespace {

/// A camera with changed settings, and a file that holds them.
class HostSelftestEnds : public HostSettings {
protected:
    void SetUp() override {
        ASSERT_EQ(Run("set 'Sollux G' gain=100 agc=2 brightness=300").code, 0);
        ASSERT_EQ(Run("save 'Sollux G' " + saved).code, 0);
    }
    void ExpectSettingsBack() const {
        const Outcome diff = Run("diff " + saved + " 'Sollux G'");
        EXPECT_EQ(diff.code, 0) << diff.out << diff.err;
    }

    const std::vector<std::string> arguments{"selftest", "Sollux G", "--trace", "--outputs", "--state", state};
    const std::string begun = "0x14010000  568"; ///< the gain test has begun
};

} // namespace

TEST(HostSelftest, PassesOnEveryModel) {
    for (const std::string& model : Simulation::ModelNames()) {
        const Outcome run = RunHost("selftest --outputs '" + model + "'");
        EXPECT_EQ(run.code, 0) << model;
        EXPECT_EQ(run.err, "") << model;
        EXPECT_TRUE(run.out.ends_with(" checks, 0 failures\n")) << run.out;
    }
}

TEST(HostSelftest, LeavesTheCameraAsItWas) {
    const std::string state = TemporaryFile("state");
    const std::string saved = TemporaryFile("saved.json");
    const std::string memory = " --state " + state;
    for (const std::string model : {"Orvik-390C", "'Sollux G'"}) {
        std::filesystem::remove(state);
        ASSERT_EQ(RunHost("set " + model + " gain=31 agc=2 sharpness=7" + memory).code, 0);
        ASSERT_EQ(RunHost("save " + model + " " + saved + memory).code, 0);
        EXPECT_EQ(RunHost("selftest --outputs " + model + memory).code, 0);
        EXPECT_EQ(RunHost("diff " + saved + " " + model + memory).out, "") << model;
    }
    std::filesystem::remove(state);
    std::filesystem::remove(saved);
}

TEST(HostSelftest, LeavesOutWhatReachesBeyondTheCamera) {
    const Outcome run = RunHost("selftest 'Sollux G'");
    for (const char* name : {"username", "persistentip", "startupsettings", "savesettings", "restart", "storeimage",
                             "defectpixel", "motorcontrol", "lenscontrol"}) {
        EXPECT_TRUE(Has(run.out, "\n" + std::string(name) + std::string(26 - std::string(name).size(), ' ') +
                                     "0       left out ("));
    }
    const Outcome traced = RunHost("selftest 'Sollux G' --trace");
    EXPECT_FALSE(Has(traced.err, "write WriteRegister     0x51")); // settings sets, restart
    EXPECT_TRUE(Has(traced.err, "0x14010000"));
}

TEST(HostSelftest, FailsOnEachFault) {
    struct Case {
        const char* model;
        const char* fault;
        const char* found; ///< a pattern: an automatic mode tested before may have changed the function's value
    };
    const Case cases[] = {
        {"Orvik-390C", "ignore:gain", "    maximum \\(511\\): the camera holds [0-9]+ instead of 511\n"},
        {"Orvik-390C", "clamp:gain=400", "    maximum \\(511\\): the camera holds 400 instead of 511\n"},
        {"Orvik-390C", "offset:gain=1", "    minimum \\(0\\): the camera holds 1 instead of 0\n"},
        {"Orvik-390C", "fail:0x14010000", "    read failed: ReadMem at 0x14010000 failed: no answer from the camera\n"},
        {"Orvik-390C", "failwrite:sharpness", "    WriteMem at 0x18030000 failed: no answer from the camera\n"},
        {"Orvik-390C", "failread:agc", "\ngain +0 +FAILED\n    ReadMem at 0x46020000 failed: no answer"},
        {"Orvik-390C", "fail:0x5A030000", "\ntemperature +1 +FAILED\n"},
        {"Orvik-390C", "endless:agc", "\ngain +[0-9]+ +FAILED\n"},
        {"Orvik-390C", "ignore:overlaystyle", "    1: the camera keeps 1,0, whatever is written to style\n"},
        {"Orvik-390C", "clamp:exposure=1000",
         "    the value it holds \\(0:[0-9]+\\): the camera holds 0:1000 instead of "},
        {"Orvik-390M", "clamp:readoutarea=500", "    maximum \\(2192,1664,2255,1727\\): the camera holds 500,"},
        {"'Sollux G'", "ignore:shadingcorrection", "    3: minimum \\(-128\\): the camera holds 0 instead of -128\n"},
        {"'Sollux G'", "clamp:exposure=1000",
         "    one above the maximum \\(2001\\): the camera holds 1000 instead of 2000\n"},
        {"'Sollux G'", "null:measurewindow", "    read failed: SDK4_ERR_CANTGETFEATURE\n"},
        {"'Sollux G'", "endless:agc", "\ngain +[0-9]+ +FAILED\n"},
    };
    for (const Case& each : cases) {
        const Outcome run = RunHost("selftest " + std::string(each.model) + " --fault " + each.fault);
        EXPECT_EQ(run.code, 1) << each.fault;
        EXPECT_TRUE(std::regex_search(run.out, std::regex(each.found))) << each.fault << '\n' << run.out;
        const std::regex failure("\n    ");
        const auto failures = std::distance(std::sregex_iterator(run.out.begin(), run.out.end(), failure), {});
        EXPECT_TRUE(run.out.ends_with(" checks, " + std::to_string(failures) + " failures\n")) << run.out;
    }
    const Outcome json = RunHost("selftest Orvik-390M --json --fault clamp:gain=400");
    EXPECT_TRUE(
        Has(json.out, "    \"name\": \"gain\",\n    \"checks\": 5,\n    \"failures\": [\n      \"maximum (511): "));
}

TEST_F(HostSelftestEnds, WithItsSettingsPutBackWhateverSignalComes) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        Running run(QDV12_HOST, arguments, STDERR_FILENO);
        ASSERT_TRUE(run.ReadUntil(begun));
        run.Signal(signal);
        EXPECT_EQ(run.End(), 1);
        EXPECT_TRUE(run.Read().ends_with("qdv12host: interrupted; the settings were restored\n")) << signal;
        ExpectSettingsBack();
    }
}

TEST_F(HostSelftestEnds, WithItsSettingsPutBackWhenNobodyReadsOn) {
    {
        Running run(QDV12_HOST, arguments, STDERR_FILENO);
        ASSERT_TRUE(run.ReadUntil(begun));
        run.StopReading();
        EXPECT_EQ(run.End(), 0);
    }
    ExpectSettingsBack();
}

/// SIGHUP arrives, and writes to the terminal fail from then on.
TEST_F(HostSelftestEnds, WithItsSettingsPutBackWhenTheTerminalIsClosed) {
    int terminal = -1;
    const pid_t process = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (process == 0) {
        signal(SIGHUP, SIG_DFL);
        execl(QDV12_HOST, QDV12_HOST, "selftest", "Sollux G", "--trace", "--outputs", "--state", state.c_str(),
              nullptr);
        _exit(127);
    }
    std::string seen;
    std::array<char, 256> some{};
    for (ssize_t got = 1; got > 0 && seen.find(begun) == std::string::npos;) {
        got = read(terminal, some.data(), some.size());
        seen.append(some.data(), static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    }
    close(terminal);
    int status = -1;
    waitpid(process, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1) << status;
    ExpectSettingsBack();
}

/// It ignores a signal that nohup has ignored.
TEST_F(HostSelftestEnds, AsUsualWhenItIsToOutliveItsTerminal) {
    std::vector<std::string> words{"-c", "trap \"\" HUP; exec \"$0\" \"$@\"", QDV12_HOST};
    words.insert(words.end(), arguments.begin(), arguments.end());
    Running run("sh", words, Running::both);
    ASSERT_TRUE(run.ReadUntil(begun));
    run.Signal(SIGHUP);
    EXPECT_EQ(run.End(), 0);
    EXPECT_TRUE(Has(run.Read(), " checks, 0 failures\n"));
}

TEST(HostSelftest, LeavesALockOutWhoseModeCanNoLongerBeRead) {
    bool isTested = false; // the gain test, whose last write exceeds the maximum
    const Outcome run =
        RunInProcess(Host::Selftest, {{Host::Parameter::Camera, {"Sollux G"}}}, [&](const Host::Access& access) {
            isTested = isTested || (access.write && access.address == 0x14010000 && access.data[0] == 0x39);
            if (isTested && access.address == 0x46020000) {
                throw std::runtime_error("no answer");
            }
        });
    EXPECT_TRUE(Has(run.out, "\ngain                      5       passed\n"));
    EXPECT_TRUE(Has(run.out, "\nautomaticlevel            0       FAILED\n    no answer\n"));
}

TEST(HostSelftest, HoldsRoundingToWhatIsAnnounced) {
    Host::ConfigureLogging("off");
    const Host::Plugin plugin(QDV12_PLUGIN);
    Host::Session session(plugin, "Orvik-390C", {.index = 2, .accesses = [](const Host::Access&) {}});
    auto& camera = dynamic_cast<Host::SimulatedConnection&>(session.Connection()).Camera();
    camera.AfterWrite("exposure", [](Simulation::RegisterSpace& space, const auto&) {
        const auto exposure = space.Get("exposure");
        space.Set("exposure", {exposure[0], exposure[1] / 10 * 10});
    });
    camera.AfterWrite("measurewindow", [](Simulation::RegisterSpace& space, const auto& change) {
        auto window = space.Get("measurewindow", change.index);
        window[2] += window[2] % 2 == 0 ? 1U : 0U;
        space.Set("measurewindow", window, change.index);
    });
    const Host::UncachedCamera setter(session);
    const Host::UncachedCamera reader(session);
    const Host::ComplianceTest test(setter.Camera(), reader.Camera(), Host::MakeWait(session), false);
    const auto failures = [&](const char* name) { return test.Test(setter.Camera().FindOne(name)).failures; };
    EXPECT_EQ(failures("exposure"), std::vector<std::string>()); // only the counter differs
    EXPECT_EQ(failures("measurewindow.0"),
              std::vector<std::string>{"0,0,64,63: the camera holds 0,0,65,63 instead"}); // within the image
}

} // namespace Scenario
