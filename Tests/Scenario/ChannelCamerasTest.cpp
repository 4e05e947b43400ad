#include "Tests/Scenario/NetworkCamera.h"

#include <algorithm>
#include <chrono>
#include <list>
#include <memory>

namespace Scenario {

namespace {

/// Several simulated cameras.
struct Cameras {
    Cameras(int count, const std::string& delay) {
        for (int i = 1; i <= count; ++i) {
            const std::string address = "192.168.1." + std::to_string(100 + i);
            running.emplace_back("Orvik-710C", address, std::vector<std::string>{"--delay", delay});
            names += " gige:" + address;
        }
    }

    std::list<NetworkCamera> running;
    std::string names;
};

} // namespace

// A camera that answers slowly does not keep the others waiting.
TEST(ChannelCameras, AreServedAtOnce) {
    const Cameras cameras(16, "5");
    const auto timeOf = [](const std::string& which) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(RunHost("info" + which).code, 0);
        return std::chrono::steady_clock::now() - start;
    };
    const std::string one = cameras.names.substr(0, cameras.names.find(' ', 1));
    auto single = timeOf(one);
    auto all = timeOf(cameras.names);
    for (int more = 0; more < 4 && all > 3 * single; ++more) { // the machine may have been busy meanwhile
        single = std::max(single, timeOf(one));
        all = std::min(all, timeOf(cameras.names));
    }
    EXPECT_LE(all, 3 * single);
    EXPECT_GT(std::chrono::duration_cast<std::chrono::milliseconds>(timeOf(cameras.names + " --one-by-one")).count(),
              std::chrono::duration_cast<std::chrono::milliseconds>(3 * single).count());
}

TEST(ChannelCameras, AreRestoredToTheirModesWhenATerminationIsPassedOn) {
    const std::string file = TemporaryFile("json");
    const Cameras cameras(3, "20");
    EXPECT_EQ(cameras.running.front().Run("save CAMERA " + file).code, 0);
    for (const NetworkCamera& camera : cameras.running) {
        EXPECT_EQ(camera.Run("set CAMERA agc=1").code, 0);
    }
    Running restore("/bin/sh", {"-c", "exec " QDV12_HOST " restore " + file + cameras.names}, Running::both);
    for (const char* camera : {".101", ".102", ".103"}) {
        ASSERT_TRUE(restore.ReadUntil(camera + std::string("  triggertimer")));
    }
    restore.Signal(SIGTERM);
    EXPECT_EQ(restore.End(), 1);
    for (const NetworkCamera& camera : cameras.running) {
        EXPECT_EQ(camera.Run("get CAMERA agc").out, "agc=1\n");
    }
    std::filesystem::remove(file);
}

TEST(ChannelCameras, AreOpenedAgainByAShellThatLostThem) {
    const std::string again = TemporaryFile("again");
    auto camera = std::make_unique<NetworkCamera>("Orvik-710C");
    Running shell("/bin/sh",
                  {"-c", "{ echo diff serial:710C-0042; echo set gain=5; until [ -e " + again +
                             " ]; do sleep 0.05; done; "
                             "echo set gain=6; echo set gain=7; } | " QDV12_HOST " shell gige:192.168.1.10"},
                  Running::both);
    ASSERT_TRUE(shell.ReadUntil("gain=5\n"));
    camera.reset();
    camera = std::make_unique<NetworkCamera>("Orvik-710C");
    std::ofstream(again).put('\n');
    EXPECT_EQ(shell.End(), 1);
    EXPECT_EQ(shell.Read(), "gain=5\nqdv12host: gain: WriteMem at 0x14010000 failed: "
                            "control of the camera at 192.168.1.10 was lost\n"
                            "qdv12host: the camera is open again\ngain=7\n");
    std::filesystem::remove(again);
}

} // namespace Scenario
