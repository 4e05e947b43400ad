#include "Tests/Network/DeviceFixture.h"
#include "Tests/Support/Files.h"
#include "Tests/Support/Running.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

namespace Network {

namespace {

using Test::Content;
using Test::TemporaryFile;

/// A loopback address that no other running test uses.
std::string OwnAddress() {
    const auto process = static_cast<unsigned>(getpid());
    return "127." + std::to_string(77 + (process >> 16 & 0x3F)) + '.' + std::to_string(process >> 8 & 0xFF) + '.' +
           std::to_string(process & 0xFF);
}

/// Runs the program and reads its first line: the announcement or an error.
class Simulator : public Test::Running {
public:
    explicit Simulator(const std::vector<std::string>& arguments) : Running(QDV12_SIMULATOR, arguments, both) {
        ReadUntil("\n");
    }
};

/// A client of the device, over a socket.
class Application {
public:
    explicit Application(const std::string& address) {
        sockaddr_in device{};
        device.sin_family = AF_INET;
        device.sin_port = htons(3956);
        inet_pton(AF_INET, address.c_str(), &device.sin_addr);
        const timeval patience{5, 0};
        setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        EXPECT_EQ(connect(socket, reinterpret_cast<const sockaddr*>(&device), sizeof device), 0);
    }
    ~Application() { close(socket); }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    void Send(const std::string& request) const {
        const Bytes bytes = FromHex(request);
        send(socket, bytes.data(), bytes.size(), 0);
    }

    std::string Ask(const std::string& request) const {
        Send(request);
        Bytes answer(1000);
        const auto size = recv(socket, answer.data(), answer.size(), 0);
        answer.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
        return ToHex(answer);
    }

private:
    int socket = ::socket(AF_INET, SOCK_DGRAM, 0);
};

TEST(SimulatorProgramTest, ServesUntilItIsTerminatedAndKeepsTheCamera) {
    const std::string address = OwnAddress();
    const std::string state = TemporaryFile("state");
    const std::string announced =
        "Orvik-710C at " + address + ":3956, MAC 02:00:12:07:07:10, serial number 710C-0042\n";
    {
        Simulator simulator({"Orvik-710C", "--address", address, "--state", state});
        ASSERT_EQ(simulator.Read(), announced);
        const Application application(address);
        EXPECT_EQ(application.Ask("4201 0082 0010 0001 00000a00 00000002 000000e8 4c656674"),
                  "0000 0083 0004 0001 00000002");
        in_addr own{};
        inet_pton(AF_INET, address.c_str(), &own);
        char digits[9];
        std::snprintf(digits, sizeof digits, "%08x", ntohl(own.s_addr));
        EXPECT_EQ(application.Ask("4201 0080 0008 0002 00000024 00000034"),
                  "0000 0081 0008 0002 " + std::string(digits) + " ff000000");

        Simulator second({"Orvik-390C", "--address", address});
        EXPECT_EQ(second.End(), 3);
        EXPECT_EQ(second.Read(), "qdv12sim: " + address + ":3956 cannot be used: Address already in use\n");
        simulator.Signal(SIGTERM);
        EXPECT_EQ(simulator.End(), 0);
    }
    Simulator again({"Orvik-710C", "--address", address, "--state", state});
    ASSERT_EQ(again.Read(), announced);
    EXPECT_EQ(Application(address).Ask("4201 0080 0004 0001 000000e8"), "0000 0081 0004 0001 4c656674");
    again.Signal(SIGINT);
    EXPECT_EQ(again.End(), 0);
    std::filesystem::remove(state);
}

TEST(SimulatorProgramTest, IsTheCameraThatItsOptionsNameOrElseItsStateFile) {
    const std::string address = OwnAddress();
    const std::string state = TemporaryFile("state");
    const auto announced = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"Orvik-710C", "--address", address, "--state", state});
        Simulator simulator(options);
        simulator.Signal(SIGTERM);
        EXPECT_EQ(simulator.End(), 0);
        return simulator.Read().substr(simulator.Read().find("MAC"));
    };
    EXPECT_EQ(announced({"--serial", "rig-1"}), "MAC 02:00:12:07:07:10, serial number rig-1\n");
    EXPECT_EQ(announced({"--mac", "0a:1B:2c:3D:4e:5F"}), "MAC 0A:1B:2C:3D:4E:5F, serial number rig-1\n");
    EXPECT_EQ(announced({"--serial", "rig-2"}), "MAC 0A:1B:2C:3D:4E:5F, serial number rig-2\n");
    EXPECT_EQ(announced({}), "MAC 0A:1B:2C:3D:4E:5F, serial number rig-2\n");
    std::filesystem::remove(state);
}

TEST(SimulatorProgramTest, RecordsWhatIsReceivedAndSent) {
    const std::string address = OwnAddress();
    const std::string record = TemporaryFile("pcap");
    Simulator simulator({"Sollux G", "--address", address, "--record", record, "--duplicate", "1"});
    ASSERT_NE(simulator.Read().find("Sollux G at "), std::string::npos);
    EXPECT_EQ(Application(address).Ask("4201 0080 0004 0001 14010000"), "0000 0081 0004 0001 00000000");
    const std::size_t size = 24 + 3 * (16 + 20 + 8 + 12); // a request, and two acknowledges
    for (int i = 0; i < 500 && Content(record).size() < size; ++i) {
        usleep(10000); // the acknowledge may arrive before it is in the file
    }
    simulator.Signal(SIGKILL); // the file must be complete all the same
    EXPECT_EQ(simulator.End(), -1);

    const std::string file = Content(record);
    ASSERT_EQ(file.size(), size);
    const Bytes packet(file.begin() + 24 + 16, file.begin() + 24 + 16 + 40);
    EXPECT_EQ(file[20], 101); // IPv4 packets without a link layer
    EXPECT_EQ(ToHex(packet).substr(0, 27), "4500 0028 0001 4000 4011" + ToHex(packet).substr(24, 3));
    const auto sum = [](const Bytes& bytes, std::size_t from, std::uint32_t total) {
        for (std::size_t i = from; i < bytes.size(); i += 2) {
            total += static_cast<std::uint32_t>(bytes[i] << 8 | bytes[i + 1]);
        }
        return (total & 0xFFFF) + (total >> 16);
    };
    // The sum over the data and its checksum has all bits set.
    EXPECT_EQ(sum({packet.begin(), packet.begin() + 20}, 0, 0), 0xFFFFU);
    EXPECT_EQ(sum(packet, 12, 17 + 20), 0xFFFFU); // the pseudo header: both addresses, protocol, length
    std::filesystem::remove(record);
}

TEST(SimulatorProgramTest, ContinuesWhenTheRecordingFails) {
    const std::string address = OwnAddress();
    const std::string record = TemporaryFile("pipe");
    const std::string state = TemporaryFile("state");
    ASSERT_EQ(mkfifo(record.c_str(), 0600), 0);
    const int reader = open(record.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    Simulator simulator({"Orvik-710C", "--address", address, "--record", record, "--state", state});
    ASSERT_NE(simulator.Read().find("Orvik-710C at "), std::string::npos);
    close(reader);
    const Application application(address);
    EXPECT_EQ(application.Ask("4201 0080 0004 0001 14010000"), "0000 0081 0004 0001 00000000");
    EXPECT_EQ(application.Ask("4201 0080 0004 0002 14010000"), "0000 0081 0004 0002 00000000");
    simulator.Signal(SIGTERM);
    EXPECT_EQ(simulator.End(), 0);
    const std::string said = "qdv12sim: recording cannot be written: Broken pipe; recording stopped\n";
    EXPECT_EQ(simulator.Read().substr(simulator.Read().find('\n') + 1), said); // once
    EXPECT_TRUE(std::filesystem::remove(state));
    std::filesystem::remove(record);
}

TEST(SimulatorProgramTest, HoldsAcknowledgesBack) {
    const std::string address = OwnAddress();
    Simulator simulator({"Orvik-710C", "--address", address, "--delay", "100"});
    ASSERT_NE(simulator.Read().find("Orvik-710C at "), std::string::npos);
    const Application application(address);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(application.Ask("4201 0080 0004 0001 14010000"), "0000 0081 0004 0001 00000000");
    }
    EXPECT_GT(std::chrono::steady_clock::now() - start, 100ms); // 250 ms on average
}

TEST(SimulatorProgramTest, RefusesWhatItCannotDo) {
    struct Row {
        std::vector<std::string> arguments;
        int code;
        std::string line;
    };
    const std::string more = " (see qdv12sim --help)";
    const std::string serial = "--serial: invalid serial number ";
    const std::string mac = "--mac: invalid MAC address ";
    const std::string device = ", expected a unicast address such as 02:00:12:07:07:10";
    const Row rows[] = {
        {{}, 2, "MODEL is required" + more},
        {{"orvik710m"}, 2, "unknown model \"orvik710m\"; did you mean \"Orvik-710M\"? (see qdv12sim --help)"},
        {{"Orvik-710C", "--address", "127.0.0.300"}, 2, "--address: \"127.0.0.300\" is not a unicast IPv4 address"},
        {{"Orvik\x1b[2J"}, 2, "unknown model \"Orvik\\x1B[2J\""},
        {{"Orvik-710C", "--address", "224.0.0.1"}, 2, "--address: \"224.0.0.1\" is not a unicast IPv4 address"},
        {{"Orvik-710C", "--sede", "7"}, 2, "unknown option \"--sede\"; did you mean \"--seed\"?" + more},
        {{"Orvik-710C", "Sollux G"}, 2, "unexpected argument \"Sollux G\"" + more},
        {{"Orvik-710C", "--seed", "1", "--seed", "2"}, 2, "--seed is given twice" + more},
        {{"Orvik-710C", "--seed", "-1"}, 2, "--seed: invalid seed \"-1\": must be a number of 0 or more" + more},
        {{"Orvik-710C", "--drop", "1.5"}, 2, "--drop: \"1.5\" is not a share between 0 and 1" + more},
        {{"Orvik-710C", "--duplicate", "nan"}, 2, "--duplicate: \"nan\" is not a share between 0 and 1" + more},
        {{"Orvik-710C", "--nack", "often"}, 2, "--nack: \"often\" is not a share between 0 and 1" + more},
        {{"Orvik-710C", "--delay", "-3"}, 2, "--delay: Value -3 not in range 0 to 60000" + more},
        {{"Orvik-710C", "--reboot-after", "0"}, 2, "--reboot-after: Value 0 not in range 1 to 1000000000" + more},
        {{"Orvik-710C", "--fault", "ignore:nothing"},
         2,
         "fault \"ignore:nothing\": this camera has no register \"nothing\""},
        {{"Orvik-710C", "--address", OwnAddress(), "--record", "/dev/null/at.all"},
         3,
         "recording cannot be written: /dev/null/at.all: Not a directory"},
        {{"Orvik-710C", "--serial", ""}, 2, serial + "\"\", expected 1 to 12 ASCII characters without blanks"},
        {{"Orvik-710C", "--serial", "1234567890123"},
         2,
         serial + "\"1234567890123\", expected 1 to 12 ASCII characters without blanks"},
        {{"Sollux G", "--serial", "1234567890123456"},
         2,
         serial + "\"1234567890123456\", expected 1 to 15 ASCII characters without blanks"},
        {{"Orvik-710C", "--serial", "no 7"}, 2, serial + "\"no 7\", expected 1 to 12 ASCII"},
        {{"Orvik-710C", "--serial", "n\xC3\xB6"}, 2, serial + "\"n\xC3\xB6\", expected 1 to 12 ASCII"},
        {{"Orvik-710C", "--mac", ""}, 2, mac + "\"\"" + device},
        {{"Orvik-710C", "--mac", "02:00:12:07:07"}, 2, mac + "\"02:00:12:07:07\"" + device},
        {{"Orvik-710C", "--mac", "02:00:12:07:07:1"}, 2, mac + "\"02:00:12:07:07:1\"" + device},
        {{"Orvik-710C", "--mac", "02:00:12:07:07:1g"}, 2, mac + "\"02:00:12:07:07:1g\"" + device},
        {{"Orvik-710C", "--mac", "02-00-12-07-07-10"}, 2, mac + "\"02-00-12-07-07-10\"" + device},
        {{"Orvik-710C", "--mac", "00:00:00:00:00:00"}, 2, mac + "\"00:00:00:00:00:00\"" + device},
        {{"Orvik-710C", "--mac", "03:00:12:07:07:10"}, 2, mac + "\"03:00:12:07:07:10\"" + device}, // a group
        {{"Orvik-710C", "--address", OwnAddress(), "--state", "/dev/null/state"},
         3,
         "camera state /dev/null/state: cannot be written: Not a directory"},
        {{"Orvik-710C", "--state", "/dev/null"}, 3, "camera state /dev/null: damaged: "},
        {{"Orvik-710C", "--state", "/"}, 3, "camera state /: cannot be read: Is a directory"},
    };
    for (const Row& row : rows) {
        Simulator simulator(row.arguments);
        EXPECT_EQ(simulator.End(), row.code) << row.line;
        const std::string& text = simulator.Read();
        EXPECT_EQ(text.substr(0, 10 + row.line.size()), "qdv12sim: " + row.line);
        EXPECT_EQ(text.find('\n'), text.size() - 1) << text;
    }
}

} // namespace

} // namespace Network
