#include "Tests/Scenario/NetworkCamera.h"

#include <regex>

namespace Scenario {

namespace {

/// Aravis' simulated camera, an independent implementation of the bootstrap registers.
class AravisCamera {
public:
    AravisCamera() : process("arv-fake-gv-camera-0.8", {"-i", "127.0.0.1"}, STDERR_FILENO) {
        for (int i = 0; i < 50 && RunHost("network", "arv-tool-0.8").out.find("127.0.0.1") == std::string::npos; ++i) {
        }
    }

private:
    Running process;
};

const std::string served =
    "use --force-model with one of Orvik-31200M, Orvik-31200C, Orvik-710M, Orvik-710C, Orvik-390M, Orvik-390C, "
    "Orvik-520M, Orvik-520C, Orvik-530M, Orvik-530C, Cerix7-MV, Cerix-MV7, Sollux G\n";

/// The text after a label on its line.
std::string After(const std::string& label, const std::string& text) {
    const std::size_t at = text.find(label);
    EXPECT_NE(at, std::string::npos) << label << " in\n" << text;
    return at == std::string::npos ? "" : text.substr(at + label.size(), text.find('\n', at) - at - label.size());
}

} // namespace

TEST(ChannelModel, TheCameraSaysWhichOneItIs) {
    const NetworkCamera camera("Cerix-MV7");
    EXPECT_EQ(camera.Run("get CAMERA gain").out, "gain=0\n");
    struct Case {
        const char* command;
        int code;
        std::string err;
    };
    const Case cases[] = {
        {"get CAMERA gain --force-model Orvik-71", 3,
         "qdv12host: unknown model \"Orvik-71\"; did you mean \"Orvik-710M\"?\n"},
        {"get CAMERA functionmodelid --force-model Orvik-710C", 0, ""},
        {"get CAMERA Gain", 2, "qdv12host: unknown function \"Gain\"; did you mean \"gain\"?\n"},
        {"get CAMERA gain --seed 0", 2, "qdv12host: --seed, --state and --fault apply to simulated cameras only\n"},
        {"diff CAMERA Cerix-MV7", 0, ""},
        {"diff Orvik-710C CAMERA", 2, "qdv12host: settings of different models: Orvik-710C and Cerix-MV7\n"},
    };
    for (const Case& each : cases) {
        const Outcome run = camera.Run(each.command);
        EXPECT_EQ(run.code, each.code) << each.command;
        EXPECT_EQ(run.err, each.err) << each.command;
    }
    const Outcome traced = camera.Run("get CAMERA gain --trace");
    EXPECT_TRUE(std::regex_search(traced.err, std::regex("read  ReadRegister      0x14010000  0  [0-9]+ us\n")));
}

TEST(ChannelModel, DiscoveryListsWhatIsThere) {
    const NetworkCamera orvik("Orvik-710C");
    const NetworkCamera m2vx("Sollux G", "192.168.1.20");
    const AravisCamera foreign;
    ASSERT_EQ(orvik.Run("set CAMERA username='on the left'").code, 0);
    const Outcome found = RunHost("discover");
    EXPECT_EQ(found.code, 0);
    EXPECT_EQ(found.err, "");
    for (const char* camera :
         {"192.168.1.10     02:00:12:07:07:10  Orvik-710C      710C-0042       on the left\n",
          "192.168.1.20     02:00:12:00:71:01  Sollux G        M28929-0042\n",
          "127.0.0.1        00:00:00:00:00:00  Fake            GV01                            (not served)\n"}) {
        EXPECT_TRUE(Has(found.out, camera));
    }
    EXPECT_TRUE(
        Has(RunHost("discover --json").out,
            "  {\n    \"address\": \"192.168.1.10\",\n    \"mac\": \"02:00:12:07:07:10\",\n    \"model\": "
            "\"Orvik-710C\",\n    \"serial\": \"710C-0042\",\n    \"userName\": \"on the left\",\n    \"served\": "
            "true,\n    \"subnetMask\": \"255.255.255.0\",\n    \"gateway\": \"192.168.1.1\",\n    "
            "\"reachable\": true\n  }"));
    const Outcome refused = RunHost("info gige:127.0.0.1");
    EXPECT_EQ(refused.code, 3);
    EXPECT_EQ(refused.err, "qdv12host: the camera at 127.0.0.1 reports the unknown model \"Fake\"; " + served);
}

TEST(ChannelModel, ACameraIsFoundByWhatItIs) {
    const NetworkCamera left("Orvik-710C", "192.168.1.10", {"--serial", "left-rig", "--mac", "02:00:12:07:07:0A"});
    const NetworkCamera right("Orvik-710C", "192.168.1.11", {"--mac", "02:00:12:07:07:0B"});
    for (const auto& [camera, name] : {std::pair{&left, "at the\\tdoor"}, {&right, "right"}}) {
        ASSERT_EQ(camera->Run("set CAMERA username='" + std::string(name) + "'").code, 0);
    }
    ASSERT_EQ(left.Run("set CAMERA gain=7").code, 0);
    for (const char* camera : {"serial:left-rig", "mac:02-00-12-07-07-0a", "'name:at the\\tdoor'"}) {
        const Outcome run = RunHost("get " + std::string(camera) + " gain --no-control");
        EXPECT_EQ(run.out, "gain=7\n") << run.err;
    }
    const Outcome diff = RunHost("diff serial:left-rig name:right");
    EXPECT_EQ(diff.code, 1) << diff.err;
    EXPECT_TRUE(Has(diff.out, "gain                      7                       0\n"));
    EXPECT_EQ(RunHost("info gige:localhost").err,
              "qdv12host: the camera at 127.0.0.1 could not be opened: no answer\n");
    EXPECT_EQ(RunHost("info gige:no-such-host.invalid").code, 3);
    EXPECT_EQ(RunHost("info serial:left-rig --seed 0").code, 2);

    ASSERT_EQ(left.Run("set CAMERA username=right").code, 0);
    const std::pair<const char*, std::string> failures[] = {
        {"name:right", "several cameras have the user-defined name \"right\": 192.168.1.10 (Orvik-710C, left-rig, "
                       "\"right\"), 192.168.1.11 (Orvik-710C, 710C-0042, \"right\"); name one as gige:ADDRESS"},
        {"serial:left", "no camera with the serial number \"left\" was found; qdv12host discover lists the cameras"},
    };
    for (const auto& [camera, message] : failures) {
        const Outcome run = RunHost("set " + std::string(camera) + " gain=5");
        EXPECT_EQ(run.code, 3);
        EXPECT_EQ(run.err, "qdv12host: " + message + "\n");
    }
}

TEST(ChannelModel, ForceIpMovesACameraThatNobodyControls) {
    const NetworkCamera camera("Cerix-MV7");
    const NetworkCamera other("Orvik-710C", "192.168.1.20");
    const std::string mac = "02:00:12:00:70:02";
    struct Case {
        const char* arguments;
        int code;
        std::string err;
    };
    const Case cases[] = {
        {"02:00:12:00:70 192.168.1.77 255.255.255.0", 2,
         "invalid MAC address \"02:00:12:00:70\", such as 02:00:12:07:07:10"},
        {"02:00:12:00:70:02 192.168.1 255.255.255.0", 2, "invalid IPv4 address \"192.168.1\""},
        {"02:00:12:00:70:02 192.168.1.255 255.255.255.0", 2, "192.168.1.255 is the broadcast address of its subnet"},
        {"02:00:12:00:70:02 192.168.1.77 255.255.255.0 192.168.2.1", 2,
         "the gateway 192.168.2.1 is not in the subnet 192.168.1.0, mask 255.255.255.0; give 0.0.0.0 for none"},
        {"02:00:12:00:70:02 192.168.1.20 255.255.255.0", 2,
         "192.168.1.20 is the address of another camera, 02:00:12:07:07:10"},
        {"02:00:12:00:70:03 192.168.1.77 255.255.255.0", 3,
         "no camera with the MAC address 02:00:12:00:70:03 answered; qdv12host discover lists those that do"},
    };
    for (const Case& each : cases) {
        const Outcome run = RunHost("force-ip " + std::string(each.arguments));
        EXPECT_EQ(run.code, each.code) << each.arguments;
        EXPECT_EQ(run.err, "qdv12host: " + each.err + '\n');
    }
    const std::string force = "force-ip " + mac + " 192.168.1.77 255.255.255.0";
    {
        Running watch(QDV12_HOST, {"watch", "gige:192.168.1.10", "gain=5"}, STDOUT_FILENO);
        ASSERT_TRUE(watch.ReadUntil("gain"));
        const Outcome refused = RunHost(force);
        EXPECT_EQ(refused.code, 3);
        EXPECT_EQ(refused.err, "qdv12host: the camera " + mac +
                                   " at 192.168.1.10 is controlled by another program, and keeps its address "
                                   "meanwhile\n");
        watch.Signal(SIGTERM);
        EXPECT_EQ(watch.End(), 0);
    }
    const Outcome forced = RunHost(force);
    EXPECT_EQ(forced.code, 0) << forced.err;
    EXPECT_EQ(forced.out, "192.168.1.77     " + mac + "  Cerix-MV7       M28674-0042\n");
    EXPECT_EQ(RunHost("get gige:192.168.1.77 ipaddress subnetmask gateway gain").out,
              "ipaddress=192.168.1.77\nsubnetmask=255.255.255.0\ngateway=0.0.0.0\ngain=5\n");

    // It would be in a subnet without this machine.
    const Outcome set = RunHost("set gige:192.168.1.77 persistentip=192.168.1.5,255.255.255.248,0.0.0.0");
    EXPECT_EQ(set.code, 0);
    EXPECT_EQ(set.out, "persistentip=192.168.1.5,255.255.255.248,0.0.0.0\n");
    EXPECT_EQ(set.err, "qdv12host: persistentip: no network card of this machine is in the subnet 192.168.1.0, mask "
                       "255.255.255.248; from its next start on, the camera can be reached through a router only\n");
}

TEST(ChannelModel, DiscoveryTellsWhyNothingIsThere) {
    const std::string unreachable = "qdv12host: no network interface with an IPv4 address is up, except loopback\n";
    const std::string discover = QDV12_HOST " discover";
    for (const std::string& run : {discover, "unshare -n " + discover}) { // with loopback up and down
        const Outcome outcome = RunHost("", run);
        EXPECT_EQ(outcome.code, 1) << run;
        EXPECT_EQ(outcome.out, "") << run;
        EXPECT_EQ(outcome.err, unreachable) << run;
    }
    const Outcome json = RunHost("discover --json");
    EXPECT_EQ(json.code, 1);
    EXPECT_EQ(json.out, "[]\n");

    // A card without an address, which discovery ignores, then one with an address.
    const std::string card = "ip link add card type veth peer name other && ip link set card up && ";
    const std::string address = "ip address add 192.168.7.1/24 dev card && ";
    const auto with = [&](const std::string& made) {
        return RunHost("", "unshare -n sh -c '" + made + discover + "'");
    };
    if (RunHost("", "unshare -n sh -c '" + card + "true'").code != 0) {
        GTEST_SKIP() << "cannot create a virtual network card";
    }
    EXPECT_EQ(with(card).err, unreachable);
    const Outcome none = with(card + address);
    EXPECT_EQ(none.code, 0);
    EXPECT_EQ(none.out, "no cameras found\n");
    EXPECT_EQ(none.err, "");
}

TEST(ChannelModel, DiscoveryEscapesWhatACameraIsCalled) {
    const NetworkCamera camera("Orvik-710C");
    ASSERT_EQ(camera.Run("set CAMERA username='\\x1B]0;owned\\x07'").code, 0);
    const Outcome found = RunHost("discover");
    EXPECT_TRUE(found.out.ends_with("710C-0042       \\x1B]0;owned\\x07\n")) << found.out;
    EXPECT_TRUE(Has(RunHost("discover --json").out, "\"userName\": \"\\u001b]0;owned\\u0007\""));
}

TEST(ChannelModel, TwoCamerasOfAModelAreToldApart) {
    for (const std::string model : {"Orvik-710C", "Sollux G"}) {
        const NetworkCamera one(model);
        const NetworkCamera other(model, "192.168.1.20", {"--serial", "left-rig.042", "--mac", "02:00:12:34:56:78"});
        const Outcome found = RunHost("discover");
        EXPECT_TRUE(Has(found.out, "192.168.1.10     02:00:12:0"));
        EXPECT_TRUE(std::regex_search(
            found.out, std::regex("192\\.168\\.1\\.20 +02:00:12:34:56:78 +" + model + " +left-rig\\.042\n")))
            << found.out;
        // In the bootstrap register and the vendor register.
        EXPECT_EQ(other.Run("get CAMERA serialnumber macaddress").out,
                  "serialnumber=left-rig.042\nmacaddress=02:00:12:34:56:78\n");
        EXPECT_FALSE(Has(one.Run("get CAMERA serialnumber macaddress").out, "left-rig.042"));
        ASSERT_EQ(one.Run("set CAMERA gain=5").code, 0);
        EXPECT_EQ(RunHost("diff gige:192.168.1.10 gige:192.168.1.20").out,
                  "gain                      5                       0\n");
    }
}

// Its memory ends after the bootstrap registers. It terminates when asked for more.
TEST(ChannelModel, AgreesWithAravisAboutItsCamera) {
    const AravisCamera camera;
    const std::string aravis = RunHost("network", "arv-tool-0.8").out;
    const std::string registers =
        RunHost("control 'R[0x0]' 'R[0x8]' 'R[0xC]' 'R[0x14]' 'R[0xD04]' 'R[0xD08]'", "arv-tool-0.8").out;
    const Outcome run =
        RunHost("get gige:127.0.0.1 ipaddress subnetmask gateway gigeversion macaddress ipconfig packetsize "
                "packetdelay --force-model Orvik-710M");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(After("ipaddress=", run.out), After("Current IP: ", aravis));
    EXPECT_EQ(After("subnetmask=", run.out), After("Current Mask: ", aravis));
    EXPECT_EQ(After("gateway=", run.out), After("Current Gateway: ", aravis));
    const auto word = [&](const std::string& address) {
        return std::stoul(After("R[" + address + "] = ", registers), nullptr, 16);
    };
    const auto held = [&](const std::string& name) { return std::stoul(After(name + "=", run.out), nullptr, 0); };
    EXPECT_EQ(held("gigeversion"), word("0x00000000"));
    EXPECT_EQ(held("ipconfig"), word("0x00000014"));
    EXPECT_EQ(held("packetsize"), word("0x00000d04"));
    EXPECT_EQ(held("packetsize"), 1400U); // unlike the others, not zero
    EXPECT_EQ(held("packetdelay"), word("0x00000d08"));
    const std::string mac = std::regex_replace(After("macaddress=", run.out), std::regex(":"), "");
    EXPECT_EQ(std::stoul(mac, nullptr, 16), word("0x00000008") << 32 | word("0x0000000c"));
}

} // namespace Scenario
