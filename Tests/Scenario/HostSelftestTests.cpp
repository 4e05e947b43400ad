#include "HostProcess.h"

namespace Scenario {

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
    Running run(QDV12_HOST, {"selftest", "Sollux G", "--trace", "--outputs", "--state", state}, STDERR_FILENO);
    ASSERT_TRUE(run.ReadUntil("0x14010000  568")); // the gain is being tested
    run.Signal(SIGINT);
    EXPECT_EQ(run.End(), 1);
    EXPECT_TRUE(run.Read().ends_with("qdv12host: interrupted; the settings are put back\n"));
    const Outcome diff = RunHost("diff " + saved + " --live 'Sollux G' --state " + state);
    EXPECT_EQ(diff.code, 0) << diff.out << diff.err;
    std::filesystem::remove(state);
    std::filesystem::remove(saved);
}

} // namespace Scenario
