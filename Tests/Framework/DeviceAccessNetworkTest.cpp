// The network classes of the two families side by side: what they share and where they differ. The calls of hosts are
// rows of the table of operations.

#include "GigEBootstrap.h"
#include "OrvikControlImpl/KGigECamera.h"
#include "RefusingPort.h"
#include "SDK4Private.h"

#include "Tests/Support/LogCapture.h"
#include "Tests/Support/Observed.h"
#include "Tests/Support/RecordingPort.h"

#include <gtest/gtest.h>

using namespace SDK4::Control;
using namespace Test;

namespace {

const std::string tenReads = "r 0010; r 0014; r 0024; r 0034; r 0044; r 064C; r 065C; r 066C; r 0934; r 0954";

/// A camera at 192.168.1.10 / 255.255.255.128 that supports persistent addresses and DHCP.
RecordingPort Network() {
    RecordingPort port;
    port.Set(0x0010, 7);
    port.Set(0x0014, 0x26);
    port.Set(0x0024, 0xC0A8010A);
    port.Set(0x0034, 0xFFFFFF80);
    port.Set(0x0044, 0xC0A80101);
    port.Set(0x064C, 0x0A000005);
    port.Set(0x065C, 0xFF000000);
    port.Set(0x066C, 0x0A0000FF);
    port.Set(0x0934, 0xAB);
    port.Set(0x0954, 0xCD);
    return port;
}

Texts StateLines(const std::string& level, const std::string& configurationLine) {
    Texts lines;
    for (const char* const text :
         {"SupportedIPConfig   : 0x7", "CurrentIPConfig     : 0x26", "CurrentIPAddress    : 192.168.1.10",
          "CurrentSubNetMask   : 255.255.255.128", "CurrentGateway      : 192.168.1.1",
          "PersistentIPAddress : 10.0.0.5", "PersistentSubNetMask: 255.0.0.0", "PersistentGateway   : 10.0.0.255",
          "GVCP Capability     : 0xab"}) {
        lines.push_back(level + " " + text);
    }
    lines.push_back(configurationLine);
    return lines;
}

Texts operator+(Texts lines, const Texts& more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

const Texts currentAddressLines = {"info IPAddress    : c0a8010a", "info IPAddress    : 192.168.1.10"};

} // namespace

TEST(DeviceAccessNetwork, TheBootstrapReadsTheNetworkStateAtAnyLogLevel) {
    RecordingPort port = Network();
    CBootstrap bootstrap(&port);
    EXPECT_EQ(port.TakeLog(), tenReads);

    LogCapture capture(log4cxx::Level::getInfo());
    CBootstrap logged(&port);
    EXPECT_EQ(capture.TakeTexts(), currentAddressLines + StateLines("info", "info GVCP Configuration  : 0xcd"));

    port.TakeLog();
    port.FailAt(10, [] { throw 42; });
    CBootstrap withoutConfiguration(&port);
    EXPECT_EQ(port.TakeLog(), tenReads);
    EXPECT_EQ(capture.TakeTexts(),
              currentAddressLines + StateLines("info", "warn GVCP Configuration  : Invalid Address"));

    port.FailAt(9, [] { throw 42; });
    EXPECT_THROW(CBootstrap{&port}, int) << "only the last read is guarded";
}

TEST(DeviceAccessNetwork, KGigECameraReadsTheNetworkStateForTheDebugLogOnly) {
    RecordingPort port = Network();
    {
        LogCapture capture(log4cxx::Level::getInfo());
        KGigECamera camera(&port);
        EXPECT_EQ(capture.TakeTexts(), Texts{"info Call"});
        EXPECT_EQ(port.TakeLog(), "");
    }
    LogCapture capture;
    KGigECamera camera(&port);
    EXPECT_EQ(port.TakeLog(), tenReads);
    EXPECT_EQ(capture.TakeTexts(), Texts{"info Call"} + StateLines("debug", "debug GVCP Configuration  : 0xcd"));

    port.FailAt(10, [] { throw 42; });
    KGigECamera withoutConfiguration(&port);
    EXPECT_EQ(capture.TakeTexts(),
              Texts{"info Call"} + StateLines("debug", "debug GVCP Configuration  : Invalid Address"));

    KGigECamera withoutCamera(SDK4::RefusingPort::Instance());
    EXPECT_EQ(capture.TakeTexts(), Texts{"info Call"});
}

TEST(DeviceAccessNetwork, AMissingNumberOfAnAddressIsZeroOrThatOfTheTextBefore) {
    const std::string start =
        "r 0010; r 0024; r 0034; r 0014; w 0014=39; w 064C=3232235796; w 065C=4294967168; w 066C=";
    RecordingPort port = Network();
    KGigECamera(&port).EnablePersistentIP("192.168.1.20", "255.255.255.128", "10.1");
    EXPECT_EQ(port.TakeLog(), start + "167837696"); // 10.1.0.0
    RecordingPort second = Network();
    CBootstrap bootstrap(&second);
    second.TakeLog();
    bootstrap.EnablePersistentIP("192.168.1.20", "255.255.255.128", "10.1");
    EXPECT_EQ(second.TakeLog(), start + "167903104"); // 10.1.255.128
}

TEST(DeviceAccessNetwork, OnlyTheBootstrapSaysWhatBecameOfAPersistentAddress) {
    RecordingPort port = Network();
    CBootstrap bootstrap(&port);
    KGigECamera camera(&port);
    port.TakeLog();
    LogCapture capture(log4cxx::Level::getInfo());
    for (IGigECamera* const network : {static_cast<IGigECamera*>(&bootstrap), static_cast<IGigECamera*>(&camera)}) {
        network->EnablePersistentIP("192.168.1.200", "255.255.255.128", "192.168.1.1");
        EXPECT_EQ(port.TakeLog(), "r 0010; r 0024; r 0034");
        EXPECT_EQ(capture.TakeTexts(), network == &bootstrap ? Texts{"warn Unreachable Subnet :0xffffffc8"} : Texts{});
        network->EnablePersistentIP("192.168.1.20", "255.255.255.128", "192.168.1.1");
        EXPECT_EQ(capture.TakeTexts(),
                  network == &bootstrap ? (Texts{"info StaticIPAddress :0xc0a80114", "info StaticSubNetMask:0xffffff80",
                                                 "info StaticGateway   :0xc0a80101"})
                                        : Texts{});
        port.TakeLog();
    }
}

TEST(DeviceAccessNetwork, TheBootstrapAnswersAsTheOtherFamilyDoesAndLogsNoCalls) {
    RecordingPort port = Network();
    CBootstrap bootstrap(&port);
    port.TakeLog();
    LogCapture capture;
    EXPECT_EQ(CodeOf([&] { bootstrap.SetPacketSize(1403); }), "SDK4_ERR_OUTOFRANGE");
    EXPECT_EQ(CodeOf([&] { bootstrap.SetPacketSize(65533); }), "SDK4_ERR_OUTOFRANGE");
    EXPECT_EQ(capture.TakeTexts(), Texts(2, "warn SDK4Exception [X4Error(SDK4_ERR_OUTOFRANGE)]"));
    bootstrap.SetPacketSize(1405);
    bootstrap.SetPacketSize(65532);
    EXPECT_EQ(port.TakeLog(), "w 0D04=1404; w 0D04=65532; w 0D04=1404; w 0D04=65532");

    for (const int missing : {0, 1, 2}) {
        const char* texts[] = {"192.168.1.20", "255.255.255.128", "192.168.1.1"};
        texts[missing] = nullptr;
        EXPECT_EQ(CodeOf([&] { bootstrap.EnablePersistentIP(texts[0], texts[1], texts[2]); }),
                  "SDK4_ERR_INVALID_PARAMETER");
    }
    EXPECT_EQ(CodeOf([&] { bootstrap.SetUserDefinedName(nullptr); }), "SDK4_ERR_INVALID_PARAMETER");
    EXPECT_EQ(port.TakeLog(), "") << "refused before any access";
    capture.TakeTexts();

    bootstrap.SetUserDefinedName("twenty characters 20");
    EXPECT_EQ(port.TakeLog(), "ws 00E8/16=twenty characte");
    bootstrap.DisablePersistentIP();
    bootstrap.DisableDHCP();
    bootstrap.EnableDHCP();
    EXPECT_EQ(port.TakeLog(), "r 0010; r 0014; w 0014=38; r 0010; r 0014; w 0014=36; r 0010; r 0014; w 0014=38");
    port.Set(0x0010, 4);
    bootstrap.DisablePersistentIP();
    bootstrap.DisableDHCP();
    bootstrap.EnableDHCP();
    bootstrap.EnablePersistentIP("192.168.1.20", "255.255.255.128", "192.168.1.1");
    EXPECT_EQ(port.TakeLog(), "r 0010; r 0010; r 0010; r 0010");

    port.Set(0x0008, 0xFFFF0A1B);
    port.Set(0x000C, 0x2C3D4E5F);
    EXPECT_STREQ(bootstrap.GetMacAddress(), "0A:1B:2C:3D:4E:5F");
    EXPECT_STREQ(bootstrap.GetCurrentSubnetmask(), "255.255.255.128");
    EXPECT_STREQ(bootstrap.GetCurrentDefaultGateway(), "192.168.1.1");
    bootstrap.GetFirstUrl();
    bootstrap.GetSecondUrl();
    bootstrap.GetUserDefinedName();
    bootstrap.SetPacketDelay(8);
    EXPECT_EQ(bootstrap.GetPacketDelay() + bootstrap.GetPacketSize() + bootstrap.GetGigEVersion() +
                  bootstrap.GetCurrentIPConfig(),
              8u + 65532u + 1u + 38u);
    EXPECT_EQ(port.TakeLog(), "r 000C; r 0008; r 0034; r 0044; rs 0200/512; rs 0400/512; rs 00E8/16; w 0D08=8; r 0D08; "
                              "r 0D04; r 0000; r 0014");
    EXPECT_EQ(capture.TakeTexts(), Texts{});
    EXPECT_STREQ(bootstrap.GetCurrentIPAddress(), "192.168.1.10");
    EXPECT_EQ(CBootstrap(&port).GetCurrentIPAddress(), CurrentIPAddress.c_str()) << "one text for all objects";
}

TEST(RefusingPort, RefusesEveryAccess) {
    SDK4::IControlPort& port = *SDK4::RefusingPort::Instance();
    using Access = void (*)(SDK4::IControlPort&);
    const Access accesses[] = {[](auto& p) { p.WriteRegister(0, 0); },
                               [](auto& p) { p.ReadRegister(0); },
                               [](auto& p) { p.WriteRegisterPair(0, 0); },
                               [](auto& p) { p.ReadRegisterPair(0); },
                               [](auto& p) { p.ReadBlock(0, 4); },
                               [](auto& p) { p.WriteBlock(0, nullptr, 0); },
                               [](auto& p) { p.ReadString(0, 4); },
                               [](auto& p) { p.WriteString(0, "", 0); },
                               [](auto& p) { p.ReadMem(0, nullptr, nullptr); },
                               [](auto& p) { p.WriteMem(0, nullptr, nullptr); }};
    for (const Access access : accesses) {
        EXPECT_EQ(CodeOf([&] { access(port); }), "SDK4_ERR_INVALID_PARAMETER");
    }
}
