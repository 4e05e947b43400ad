#include "Tests/Scenario/NetworkCamera.h"

#include "Host/Channel/ChannelErrors.h"
#include "Host/Channel/GigEPort.h"
#include "Host/Channel/ReadOnlyPort.h"

#include <arpa/inet.h>
#include <sys/socket.h>

#include <array>
#include <chrono>
#include <memory>
#include <thread>

namespace Scenario {

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes Memory(SDK4::IControlPort& port, std::uint32_t address, std::uint64_t length) {
    Bytes bytes(length);
    port.ReadMem(address, bytes.data(), &length);
    return bytes;
}

/// The message of a failed access.
template <typename Error = Host::ChannelError, typename Call> std::string Failure(const Call& call) {
    try {
        call();
    } catch (const Error& error) {
        return error.what();
    }
    return "no failure";
}

/// A device that answers every request with one status.
class RefusingDevice {
public:
    RefusingDevice(const std::string& address, std::uint16_t status) : handle(socket(AF_INET, SOCK_DGRAM, 0)) {
        sockaddr_in own{};
        own.sin_family = AF_INET;
        own.sin_port = htons(3956);
        inet_pton(AF_INET, address.c_str(), &own.sin_addr);
        EXPECT_EQ(bind(handle, reinterpret_cast<const sockaddr*>(&own), sizeof own), 0);
        answering = std::thread([this, status] {
            std::array<std::uint8_t, 600> packet{};
            sockaddr_in from{};
            socklen_t size = sizeof from;
            auto* const sender = reinterpret_cast<sockaddr*>(&from);
            while (recvfrom(handle, packet.data(), packet.size(), 0, sender, &size) >= 8) {
                packet[0] = static_cast<std::uint8_t>(status >> 8U);
                packet[1] = static_cast<std::uint8_t>(status & 0xFFU);
                ++packet[3]; // the command of the acknowledge
                packet[4] = packet[5] = 0;
                sendto(handle, packet.data(), 8, 0, sender, size);
            }
        });
    }
    ~RefusingDevice() {
        shutdown(handle, SHUT_RDWR); // ends the pending receive
        answering.join();
        close(handle);
    }
    RefusingDevice(const RefusingDevice&) = delete;
    RefusingDevice& operator=(const RefusingDevice&) = delete;

private:
    int handle;
    std::thread answering;
};

} // namespace

TEST(ChannelPort, DescribesEachStatus) {
    const std::pair<std::uint16_t, std::string> statuses[] = {
        {0x8001, "the camera does not implement the command (0x8001)"},
        {0x8002, "invalid parameter (0x8002)"},
        {0x8003, "the camera has no such address (0x8003)"},
        {0x8004, "the register is write-protected (0x8004)"},
        {0x8005, "bad alignment (0x8005)"},
        {0x8006, "access denied (0x8006)"},
        {0x8007, "the camera is busy (0x8007)"},
    };
    const std::string failed = "qdv12host: the camera at 192.168.1.10 could not be opened: ";
    for (const auto& [status, words] : statuses) {
        const RefusingDevice device("192.168.1.10", status);
        EXPECT_EQ(RunHost("info gige:192.168.1.10").err, failed + words + "\n");
        EXPECT_EQ(RunHost("info gige:192.168.1.10 --no-control").err, failed + words + "\n");
    }
    const NetworkCamera mute("Orvik-710C", "192.168.1.10", {"--fault", "fail:description"});
    EXPECT_EQ(mute.Run("info CAMERA").err, failed + "its GenICam description cannot be read\n");
}

TEST(ChannelPort, MovesBytesAsTheyLieInTheCamera) {
    const NetworkCamera camera("Orvik-710C");
    Host::GigEPort port("192.168.1.10");
    EXPECT_TRUE(port.HasControl());
    port.WriteRegisterPair(0x0A030000, 5000ULL << 32); // an exposure with base 0
    port.WriteString(0x000000E8, "a name\0\0", 8);
    Host::ReadOnlyPort readOnly("192.168.1.10");
    for (Host::ChannelPort* each : std::initializer_list<Host::ChannelPort*>{&port, &readOnly}) {
        EXPECT_EQ(each->ModelName(), "Orvik-710C");
        EXPECT_EQ(each->ReadRegister(0x64030000), 0x00070710U);
        EXPECT_EQ(Memory(*each, 0x64030000, 4), (Bytes{0x10, 0x07, 0x07, 0x00})); // vendor byte order
        EXPECT_EQ(Memory(*each, 0x00000024, 4), (Bytes{192, 168, 1, 10}));        // standard byte order
        EXPECT_EQ(each->ReadRegister(0x00000024), 0xC0A8010AU);
        EXPECT_EQ(each->ReadRegisterPair(0x0A030000), 5000ULL << 32);
        EXPECT_EQ(Memory(*each, 0x0A030000, 8), (Bytes{0, 0, 0, 0, 0x88, 0x13, 0, 0}));
        const char* const text = each->ReadString(0x000000E8, 16);
        EXPECT_EQ(std::string(text, 17), std::string("a name") + std::string(11, '\0'));
        EXPECT_EQ(std::string(each->ReadString(0x64010000, 15), 4), std::string("\x0A\0\0\0", 4)); // a word before it
    }
}

TEST(ChannelPort, ReadsWhatIsNotAlignedAndDoesNotWriteIt) {
    const NetworkCamera camera("Orvik-710C");
    Host::GigEPort port("192.168.1.10");
    EXPECT_EQ(Memory(port, 0x64010005, 3), (Bytes{'r', 'v', 'i'}));
    EXPECT_EQ(Memory(port, 0x64010003, 2), (Bytes{0, 'O'}));
    EXPECT_EQ(port.ReadRegister(0x64010005), 0x6B697672U); // "rvik"
    const Bytes whole = Memory(port, 0x00010000, 1540);    // three packets and a rest
    const Bytes shifted = Memory(port, 0x00010003, 1537);
    EXPECT_TRUE(std::equal(shifted.begin(), shifted.end(), whole.begin() + 3));
    Host::ReadOnlyPort readOnly("192.168.1.10");
    EXPECT_EQ(Memory(readOnly, 0x00010003, 1537), shifted);
    EXPECT_EQ(Memory(port, 0x64010000, 0), Bytes{});
    Bytes zeros(6);
    std::uint64_t length = zeros.size();
    EXPECT_EQ(Failure([&] { port.WriteMem(0x14010000, zeros.data(), &length); }),
              "WriteMem at 0x14010000 failed: 6 bytes: writes must be whole words at multiples of 4");
    EXPECT_EQ(Failure([&] { port.WriteRegister(0x14010002, 1); }),
              "WriteRegister at 0x14010002 failed: the address is not a multiple of 4");
    EXPECT_EQ(Failure([&] { Memory(port, 0xFFFFFFFC, 8); }),
              "ReadMem at 0xFFFFFFFC failed: the access exceeds the address space");
    EXPECT_EQ(Failure([&] { port.WriteBlock(0xFFFFFFFC, whole.data(), 8); }),
              "WriteBlock at 0xFFFFFFFC failed: the access exceeds the address space");
}

TEST(ChannelPort, DescribesRefusals) {
    const NetworkCamera camera("Orvik-710C");
    Host::GigEPort port("192.168.1.10");
    EXPECT_EQ(Failure<Host::NoSuchAddress>([&] { (void)port.ReadRegister(0xE0000000); }),
              "ReadRegister at 0xE0000000 failed: the camera has no such address (0x8003)");
    EXPECT_EQ(Failure([&] { port.WriteRegister(0x00000024, 1); }),
              "WriteRegister at 0x00000024 failed: the register is write-protected (0x8004)");
    Host::GigEPort second("192.168.1.10");
    EXPECT_FALSE(second.HasControl());
    EXPECT_EQ(second.ReadRegister(0x14010000), 0U);
    const std::string held = Failure<Host::ControlHeld>([&] { second.WriteRegister(0x14010000, 1); });
    EXPECT_TRUE(
        held.starts_with("WriteRegister at 0x14010000 failed: the camera at 192.168.1.10 is controlled by another "
                         "program at 192.168.1.10:"))
        << held;
    Host::ReadOnlyPort readOnly("192.168.1.10");
    EXPECT_EQ(Failure<Host::NoSuchAddress>([&] { (void)readOnly.ReadRegister(0xE0000000); }),
              "ReadRegister at 0xE0000000 failed: the camera has no such address (0x8003)");
    EXPECT_EQ(Failure<Host::ControlHeld>([&] { readOnly.WriteString(0x000000E8, "name", 4); }),
              "WriteString at 0x000000E8 failed: the camera at 192.168.1.10 was opened with --no-control");
    const NetworkCamera broken("Cerix-MV7", "192.168.1.11", {"--fault", "fail:0x934"});
    const Outcome opening = broken.Run("get CAMERA gain");
    EXPECT_EQ(opening.code, 3);
    EXPECT_TRUE(opening.err.starts_with("qdv12host: opening \"Cerix-MV7\" failed: ReadRegister at 0x00000934 failed: "))
        << opening.err;
}

// No access times out then, but the camera has lost its settings.
TEST(ChannelPort, NoticesARestartedCamera) {
    auto camera = std::make_unique<NetworkCamera>("Orvik-710C");
    auto second = std::make_unique<NetworkCamera>("Orvik-710C", "192.168.1.11");
    Host::GigEPort port("192.168.1.10");
    Host::GigEPort secondPort("192.168.1.11");
    for (auto* const each : {&camera, &second}) {
        each->reset();
    }
    camera = std::make_unique<NetworkCamera>("Orvik-710C");
    second = std::make_unique<NetworkCamera>("Orvik-710C", "192.168.1.11");
    const auto lost = [](const char* access, const char* address) {
        return std::string(access) + " failed: control of the camera at " + address + " was lost";
    };
    EXPECT_EQ(Failure<Host::ChannelLost>([&] { port.WriteRegister(0x14010000, 1); }),
              lost("WriteRegister at 0x14010000", "192.168.1.10"));
    EXPECT_EQ(Failure<Host::ChannelLost>([&] { secondPort.RequireUnbrokenControl(); }),
              lost("ReadRegister at 0x00000A00", "192.168.1.11"));
}

TEST(ChannelPort, DetectsALossByTheHeartbeat) {
    auto camera = std::make_unique<NetworkCamera>("Orvik-710C");
    Host::GigEPort port("192.168.1.10");
    camera.reset();
    camera = std::make_unique<NetworkCamera>("Orvik-710C");
    const auto read = [&] { // the first read after a heartbeat, within twenty seconds
        for (int tries = 0; tries < 200; ++tries) {
            (void)port.ReadRegister(0x14010000);
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
    };
    EXPECT_EQ(Failure<Host::ChannelLost>(read),
              "ReadRegister at 0x14010000 failed: control of the camera at 192.168.1.10 was lost");
}

TEST(ChannelPort, OnceLostFailsAtOnce) {
    const NetworkCamera camera("Orvik-710C");
    Host::GigEPort port("192.168.1.10");
    Host::ReadOnlyPort readOnly("192.168.1.10");
    camera.Signal(SIGKILL);
    const std::string lost = " failed: the camera at 192.168.1.10 no longer answers";
    const std::initializer_list<Host::ChannelPort*> ports{&port, &readOnly};
    for (Host::ChannelPort* each : ports) {
        EXPECT_EQ(Failure<Host::ChannelLost>([&] { (void)each->ReadRegister(0x14010000); }),
                  "ReadRegister at 0x14010000" + lost);
    }
    const NetworkCamera another("Orvik-710C"); // unknown to these ports
    for (Host::ChannelPort* each : ports) {
        EXPECT_EQ(Failure<Host::ChannelLost>([&] { Memory(*each, 0x14010000, 4); }), "ReadMem at 0x14010000" + lost);
    }
    EXPECT_EQ(Failure<Host::ChannelLost>([&] { port.WriteRegister(0x14010000, 1); }),
              "WriteRegister at 0x14010000" + lost);
}

} // namespace Scenario
