#include "Tests/Scenario/Grabbed.h"
#include "Tests/Scenario/NetworkCamera.h"

#include <thread>

namespace Scenario {

TEST(ChannelGrab, PicturesAreThoseOfTheCameraInProcess) {
    const std::string settings = " readoutarea=0,0,639,479 colorcoding=mono12packed gain=100 exposure=1:500 --raw ";
    const std::string here = TemporaryFile("here");
    const std::string there = TemporaryFile("there");
    const NetworkCamera camera("Orvik-710C", "192.168.1.10", {"--seed", "7", "--stream-drop", "0.01"});
    const Outcome run = camera.Run("grab CAMERA " + there + settings + "--count 30 --every 30 --json");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(camera.Run("get CAMERA packetsize").out, "packetsize=1404\n"); // as before the negotiation
    EXPECT_EQ(NumberIn(run.out, "frames"), 30);
    EXPECT_EQ(NumberIn(run.out, "missing"), 0); // what was lost is sent again
    EXPECT_GT(NumberIn(run.out, "packetsResent"), 0);
    EXPECT_GE(NumberIn(run.out, "packetSize"), 1404);
    EXPECT_GE(NumberIn(run.out, "socketBuffer"), 100'000);
    EXPECT_EQ(RunHost("grab Orvik-710C --seed 7 " + here + settings).code, 0);
    EXPECT_TRUE(Content(here) == Content(there));
    for (const std::string& file : {here, here + ".json", there, there + ".json"}) {
        EXPECT_TRUE(std::filesystem::remove(file)) << file;
    }
    const Outcome triggered = camera.Run("grab CAMERA exposuremode=frameondemand --count 3");
    EXPECT_EQ(triggered.code, 0) << triggered.err;
    EXPECT_TRUE(Has(triggered.out, "3 pictures of 640 x 480 mono12packed"));
}

TEST(ChannelGrab, EndsWellWhateverEndsIt) {
    const NetworkCamera camera("Orvik-710C");
    Running grab(QDV12_HOST, {"grab", "gige:192.168.1.10", "-", "readoutarea=0,0,63,63", "--count", "1000000"},
                 Running::both);
    EXPECT_TRUE(grab.ReadUntil("PNG"));
    const Outcome second = camera.Run("grab CAMERA");
    EXPECT_EQ(second.code, 3);
    EXPECT_TRUE(Has(second.err, "the camera at 192.168.1.10 is controlled by another program"));
    grab.Signal(SIGTERM);
    EXPECT_EQ(grab.End(), 1);
    EXPECT_TRUE(Has(grab.Read(), "qdv12host: interrupted; acquisition is stopped\n"));
    EXPECT_EQ(camera.Run("grab CAMERA colorcoding=mono8").code, 0); // control is there, and nothing is locked
    Running killed(QDV12_HOST, {"grab", "gige:192.168.1.10", "-", "--count", "1000000"}, Running::both);
    EXPECT_TRUE(killed.ReadUntil("PNG"));
    killed.Signal(SIGKILL); // leaves acquisition running, and control taken until the heartbeat times out
    EXPECT_EQ(killed.End(), -1);
    std::this_thread::sleep_for(std::chrono::seconds(5));
    EXPECT_EQ(camera.Run("grab CAMERA").code, 0);
    Running lost(QDV12_HOST, {"grab", "gige:192.168.1.10", "-", "--count", "1000000"}, Running::both);
    EXPECT_TRUE(lost.ReadUntil("PNG"));
    camera.Signal(SIGSTOP);
    EXPECT_EQ(lost.End(), 1);
    const std::string said = lost.Read().substr(lost.Read().rfind("qdv12host: "));
    EXPECT_TRUE(Has(said, "qdv12host: waiting for a picture: "));
    EXPECT_TRUE(Has(said, " failed: the camera at 192.168.1.10 no longer answers\n"));
}

TEST(ChannelGrab, SaysWhatDidNotCome) {
    const NetworkCamera silent("Orvik-390M", "192.168.1.10", {"--stream-drop", "1"});
    const Outcome none = silent.Run("grab CAMERA");
    EXPECT_EQ(none.code, 1);
    EXPECT_EQ(none.err, "qdv12host: no picture came within 2.1 s: no packet came, not even a test packet: does a "
                        "firewall let UDP from the camera through?\n");
    const NetworkCamera idle("Orvik-390M", "192.168.1.12", {"--fault", "ignore:startacquisition"});
    EXPECT_TRUE(Has(idle.Run("grab CAMERA").err, "2.1 s: test packets arrive, but the camera sent no pictures\n"));
    const NetworkCamera other("Orvik-710C", "192.168.1.11", {"--fault", "ignore:colorcoding"});
    const Outcome large = other.Run("grab CAMERA --index 0 colorcoding=mono8"); // three times the buffer
    EXPECT_EQ(large.code, 1);
    EXPECT_TRUE(
        Has(large.err, "qdv12host: the camera sent a frame of 3208 x 2208 rgb8 instead of 3208 x 2208 mono8\n"));
    Running slow(QDV12_HOST, {"grab", "gige:192.168.1.11", "-", "readoutarea=0,0,63,63", "--count", "90"},
                 Running::both);
    EXPECT_TRUE(slow.ReadUntil("PNG"));
    std::this_thread::sleep_for(std::chrono::seconds(3)); // longer than the buffers last
    EXPECT_EQ(slow.End(), 1);
    EXPECT_TRUE(Has(slow.Read(), " frames are missing: frames came while earlier pictures were still being written\n"));
}

TEST(ChannelGrab, FindsTheBufferThatIsTooSmall) {
    const NetworkCamera camera("Orvik-390M", "192.168.1.10", {"--link", "60"});
    Running grab(QDV12_HOST, {"grab", "gige:192.168.1.10", "--count", "60"}, Running::both);
    std::this_thread::sleep_for(std::chrono::seconds(1));
    grab.Signal(SIGSTOP); // nobody empties the buffer
    std::this_thread::sleep_for(std::chrono::seconds(1));
    grab.Signal(SIGCONT);
    EXPECT_EQ(grab.End(), 1);
    EXPECT_TRUE(Has(grab.Read(), " packets found no room in the socket buffer of "));
}

TEST(ChannelGrab, FindsTheLinkThatIsTooSmall) {
    const auto setMtu = [](const char* mtu) {
        EXPECT_EQ(Running("ip", {"link", "set", "lo", "mtu", mtu}, Running::both).End(), 0);
    };
    const NetworkCamera camera("Orvik-390M", "192.168.1.10", {"--link", "30"});
    Running grab(QDV12_HOST, {"grab", "gige:192.168.1.10", "-", "--count", "1000000"}, Running::both);
    EXPECT_TRUE(grab.ReadUntil("PNG"));
    setMtu("1500"); // after the negotiation
    EXPECT_EQ(grab.End(), 1);
    EXPECT_TRUE(Has(grab.Read(), "packets of 65516 bytes do not arrive, those of 1404 bytes do: the MTU of a network "
                                 "card or a switch is too small\n"));
    const Outcome negotiated = camera.Run("grab CAMERA --json");
    EXPECT_EQ(negotiated.code, 0) << negotiated.err;
    EXPECT_EQ(NumberIn(negotiated.out, "packetSize"), 1500);
    setMtu("65536");
}

} // namespace Scenario
