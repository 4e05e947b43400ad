#include "HostProcess.h"

#include <fcntl.h>

#include <array>
#include <csignal>

namespace Scenario {

namespace {

/// A program whose standard error is read while it runs.
class Running {
public:
    explicit Running(std::vector<std::string> arguments) {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        arguments.insert(arguments.begin(), QDV12_HOST);
        std::vector<char*> words;
        words.reserve(arguments.size() + 1);
        for (std::string& argument : arguments) {
            words.push_back(argument.data());
        }
        words.push_back(nullptr);
        process = fork();
        if (process == 0) {
            dup2(ends[1], STDERR_FILENO);
            close(ends[0]);
            close(ends[1]);
            dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
            execv(words[0], words.data());
            _exit(127);
        }
        close(ends[1]);
        from = ends[0];
    }
    ~Running() { close(from); }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    /// Reads until the text has come. As long as nobody reads on, the program stands still when the pipe is full.
    bool ReadUntil(const std::string& text) {
        while (read.find(text) == std::string::npos) {
            if (!ReadSome()) {
                return false;
            }
        }
        return true;
    }
    void Interrupt() const { kill(process, SIGINT); }
    /// Reads the rest. @return the exit code
    int End() {
        while (ReadSome()) {
        }
        int status = 0;
        waitpid(process, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    [[nodiscard]] const std::string& Read() const { return read; }

private:
    bool ReadSome() {
        std::array<char, 4096> some{};
        const ssize_t got = ::read(from, some.data(), some.size());
        read.append(some.data(), got > 0 ? static_cast<std::size_t>(got) : 0);
        return got > 0;
    }

    pid_t process = -1;
    int from = -1;
    std::string read;
};

} // namespace

TEST(HostSelftest, PassesOnEveryModel) {
    for (const std::string model :
         {"Orvik-31200M", "Orvik-31200C", "Orvik-710M", "Orvik-710C", "Orvik-390M", "Orvik-390C", "Orvik-520M",
          "Orvik-520C", "Orvik-530M", "Orvik-530C", "Cerix7-MV", "Cerix-MV7", "'Sollux G'"}) {
        const Outcome run = RunHost("selftest --outputs " + model);
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
        EXPECT_EQ(RunHost("diff " + saved + " --live " + model + memory).out, "") << model;
    }
    std::filesystem::remove(state);
    std::filesystem::remove(saved);
}

TEST(HostSelftest, LeavesOutWhatReachesBeyondTheCamera) {
    const Outcome run = RunHost("selftest 'Sollux G'");
    for (const char* name : {"username", "dhcp", "startupsettings", "savesettings", "restart", "storeimage",
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
        const char* found;
    };
    const Case cases[] = {
        {"Orvik-390C", "ignore:gain", "    maximum (511): the camera holds 0 instead of 511\n"},
        {"Orvik-390C", "clamp:gain=400", "    maximum (511): the camera holds 400 instead of 511\n"},
        {"Orvik-390C", "offset:gain=1", "    minimum (0): the camera holds 1 instead of 0\n"},
        {"Orvik-390C", "fail:0x14010000", "    reading it: ReadMem at 0x14010000 failed: no answer from the camera\n"},
        {"Orvik-390C", "failwrite:sharpness", "    WriteMem at 0x18030000 failed: no answer from the camera\n"},
        {"Orvik-390C", "fail:0x5A030000", "temperature               1       FAILED\n"},
        {"Orvik-390C", "endless:agc", "gain                      5       FAILED\n"},
        {"Orvik-390C", "ignore:overlaystyle", "    1: the camera holds 1,0, whatever is written to style\n"},
        {"Orvik-390C", "clamp:exposure=1000", "    the value it holds (0:20000): the camera holds 0:1000 instead of "},
        {"Orvik-390M", "clamp:readoutarea=500", "    maximum (2192,1664,2255,1727): the camera holds 500,"},
        {"'Sollux G'", "ignore:shadingcorrection", "    3: minimum (-128): the camera holds 0 instead of -128\n"},
        {"'Sollux G'", "clamp:exposure=1000",
         "    one above the maximum (2001): the camera holds 1000 instead of 2000\n"},
        {"'Sollux G'", "null:measurewindow", "    reading it: SDK4_ERR_CANTGETFEATURE\n"},
        {"'Sollux G'", "endless:agc", "gain                      5       FAILED\n"},
    };
    for (const Case& each : cases) {
        const Outcome run = RunHost("selftest " + std::string(each.model) + " --fault " + each.fault);
        EXPECT_EQ(run.code, 1) << each.fault;
        EXPECT_TRUE(Has(run.out, each.found)) << each.fault;
        EXPECT_FALSE(run.out.ends_with(" 0 failures\n")) << each.fault;
    }
    const Outcome json = RunHost("selftest Orvik-390M --json --fault clamp:gain=400");
    EXPECT_TRUE(
        Has(json.out, "    \"name\": \"gain\",\n    \"checks\": 5,\n    \"failures\": [\n      \"maximum (511): "));
}

TEST(HostSelftest, PutsSettingsBackWhenInterrupted) {
    const std::string state = TemporaryFile("state");
    const std::string saved = TemporaryFile("saved.json");
    ASSERT_EQ(RunHost("set 'Sollux G' gain=100 agc=2 brightness=300 --state " + state).code, 0);
    ASSERT_EQ(RunHost("save 'Sollux G' " + saved + " --state " + state).code, 0);
    Running run({"selftest", "Sollux G", "--trace", "--outputs", "--state", state});
    ASSERT_TRUE(run.ReadUntil("0x14010000  568")); // the gain is being tested
    run.Interrupt();
    EXPECT_EQ(run.End(), 1);
    EXPECT_TRUE(run.Read().ends_with("qdv12host: interrupted; the settings are put back\n"));
    const Outcome diff = RunHost("diff " + saved + " --live 'Sollux G' --state " + state);
    EXPECT_EQ(diff.code, 0) << diff.out << diff.err;
    std::filesystem::remove(state);
    std::filesystem::remove(saved);
}

} // namespace Scenario
