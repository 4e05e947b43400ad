#include "Tests/Network/DeviceFixture.h"

namespace Network {

namespace {

const std::string readGain = "4201 0080 0004 0070 14010000";
const std::string writeGain = "4201 0082 0008 0071 14010000 00000005";
const std::string readPrivilege = "4201 0080 0004 0072 00000a00";
const std::string readApplication = "4201 0080 0008 0073 00000a04 00000a14";
const std::string release = "4201 0082 0008 0074 00000a00 00000000";
const std::string startAcquisition = "4201 0082 0008 0075 00088134 00000001";

TEST_F(DeviceTest, LetsNobodyWriteWithoutControl) {
    EXPECT_EQ(Ask(writeGain), "8006 0083 0004 0071 00000000");
    EXPECT_EQ(Ask("4201 0086 0008 0002 14010000 05000000"), "8006 0087 0004 0002 00000000");
    EXPECT_EQ(Ask(readGain), "0000 0081 0004 0070 00000000");
    EXPECT_EQ(Ask(readApplication), "0000 0081 0008 0073 00000000 00000000");
    // One packet may take control and use it.
    EXPECT_EQ(Ask("4201 0082 0010 0003 00000a00 00000002 14010000 00000005"), "0000 0083 0004 0003 00000002");
}

TEST_F(DeviceTest, LetsOthersReadUnderControl) {
    TakeControl();
    EXPECT_EQ(Ask(readApplication), "0000 0081 0008 0073 00009c41 7f000001");
    EXPECT_EQ(TakeControl(other), "8006 0083 0004 0001 00000000");
    EXPECT_EQ(Ask(other, release), "8006 0083 0004 0074 00000000");
    EXPECT_EQ(Ask(other, writeGain), "8006 0083 0004 0071 00000000");
    EXPECT_EQ(Ask(other, readGain), "0000 0081 0004 0070 00000000");
    EXPECT_EQ(Ask(other, readPrivilege), "0000 0081 0004 0072 00000002");
}

TEST_F(DeviceTest, LetsOthersReadNothingButThePrivilegeUnderExclusiveControl) {
    TakeControl(one, "01");
    EXPECT_EQ(Ask(other, readGain), "8006 0081 0000 0070");
    EXPECT_EQ(Ask(other, "4201 0084 0008 0002 00000a00 00000008"), "8006 0085 0000 0002");
    EXPECT_EQ(Ask(other, readPrivilege), "0000 0081 0004 0072 00000001");
    EXPECT_EQ(Ask(other, "4201 0084 0008 0003 00000a00 00000004"), "0000 0085 0008 0003 00000a00 00000001");
    EXPECT_NE(Ask(other, "4201 0002 0000 0004"), "");
    EXPECT_EQ(Ask(writeGain), "0000 0083 0004 0071 00000001");
}

TEST_F(DeviceTest, EndsAcquisitionAndStreamWithControl) {
    TakeControl();
    Ask(startAcquisition);
    Ask("4201 0082 0008 0002 00000d00 0000c000");
    EXPECT_EQ(Ask(release), "0000 0083 0004 0074 00000001");
    EXPECT_EQ(Ask("4201 0080 000c 0003 00000a00 00088134 00000d00"), "0000 0081 000c 0003 00000000 00000000 00000000");
    EXPECT_EQ(TakeControl(other), "0000 0083 0004 0001 00000001");
}

TEST_F(DeviceTest, ReleasesControlAfterTheHeartbeatTimeout) {
    TakeControl();
    Ask(startAcquisition);
    for (int i = 0; i < 3; ++i) {
        time += 2900ms;
        EXPECT_EQ(
            Ask(i == 2 ? "4200 0060 0000 0009" : readGain), // any request resets the heartbeat, also a repeated one
            i == 2 ? "" : "0000 0081 0004 0070 00000000");
    }
    time += 3000ms;
    EXPECT_EQ(Ask(other, readPrivilege), "0000 0081 0004 0072 00000002"); // requests of others do not
    EXPECT_EQ(Ask("4201 0080 0004 0009 1401"), "");                       // invalid requests do not either
    time += 1ms;
    EXPECT_EQ(Ask(other, "4201 0080 0008 0002 00000a00 00088134"), "0000 0081 0008 0002 00000000 00000000");
    EXPECT_EQ(Ask(writeGain), "8006 0083 0004 0071 00000000");

    TakeControl();
    time += 3001ms; // a late request does not renew control
    EXPECT_EQ(Ask("4201 0082 0008 0002 14010000 00000005"), "8006 0083 0004 0002 00000000");
}

TEST_F(DeviceTest, ReleasesControlWithoutARequest) {
    TakeControl();
    Ask("4201 0082 0010 0002 00000938 000001f4 00088134 00000001");
    device.PassTime(start + 501ms);
    EXPECT_EQ(camera->Registers().Get("startacquisition")[0], 0U);
}

TEST_F(DeviceTest, AnswersARepeatedRequestWithoutExecutingIt) {
    TakeControl();
    const std::string answer = Ask(writeGain);
    camera->Registers().Set("gain", {9});
    Ask(other, readGain);
    EXPECT_EQ(Ask(writeGain), answer);
    EXPECT_EQ(camera->Registers().Get("gain")[0], 9U);

    EXPECT_EQ(Ask("4201 0082 0008 0072 14010000 00000005"), "0000 0083 0004 0072 00000001"); // another id
    EXPECT_EQ(camera->Registers().Get("gain")[0], 5U);
    camera->Registers().Set("gain", {9});
    Ask(writeGain); // ids wrap around: only the last request can be a repetition
    EXPECT_EQ(Ask(other, writeGain), "8006 0083 0004 0071 00000000"); // each sender has its own ids
    EXPECT_EQ(camera->Registers().Get("gain")[0], 5U);

    Ask("4200 0082 0008 0073 14010000 00000006");
    camera->Registers().Set("gain", {9});
    EXPECT_EQ(Ask("4200 0082 0008 0073 14010000 00000006"), "");
    EXPECT_EQ(camera->Registers().Get("gain")[0], 9U);
}

TEST_F(DeviceTest, KeepsOnlyPermanentMemoryOverAReboot) {
    TakeControl();
    const std::string write = "4201 0082 0018 0002 00000938 000007d0 000000e8 4c656674 14010000 00000005";
    EXPECT_EQ(Ask(write), "0000 0083 0004 0002 00000003");
    time = 100ms;
    device.Reboot(start + time);
    time = 5099ms;
    EXPECT_EQ(Ask(readGain), "");
    EXPECT_EQ(Ask("4201 0002 0000 0003"), "");
    time = 5100ms;
    EXPECT_EQ(Ask(write), "8006 0083 0004 0002 00000000"); // answers are reset, too
    EXPECT_EQ(Ask("4201 0080 0014 0004 00000024 00000a00 00000938 000000e8 14010000"),
              "0000 0081 0014 0004 7f00004d 00000000 00000bb8 4c656674 00000000");
    EXPECT_EQ(TakeControl(other), "0000 0083 0004 0001 00000001");
}

TEST_F(DeviceTest, TakesAForcedAddressUntilItsNextStart) {
    const auto force = [&](const std::string& id, const std::string& mac, const std::string& address,
                           const std::string& gateway) {
        const std::string reserved = "000000000000000000000000";
        return Ask(other, "4201 0004 0038 " + id + " 0000" + mac + "00000000 0000000000000000" + address + reserved +
                              "ff000000" + reserved + gateway);
    };
    const std::string mac = "020012070710";
    const std::string readAddresses = "4201 0080 000c 0070 00000024 00000034 00000044";
    TakeControl();
    EXPECT_EQ(force("0001", mac, "7f000055", "00000000"), "8006 0005 0000 0001");
    Ask(release);
    EXPECT_EQ(force("0002", "020012070711", "7f000055", "00000000"), ""); // another camera's
    EXPECT_EQ(Ask("4201 0004 0004 0003 02001207"), "");
    EXPECT_EQ(force("0004", mac, "7fffffff", "00000000"), "8002 0005 0000 0004"); // a broadcast address
    EXPECT_EQ(force("0005", mac, "7f000055", "0a000001"), "8002 0005 0000 0005"); // out of the subnet
    EXPECT_EQ(Ask(readAddresses), "0000 0081 000c 0070 7f00004d ff000000 00000000");
    EXPECT_EQ(force("0006", mac, "7f000055", "7f000001"), "0000 0005 0000 0006");
    EXPECT_EQ(Ask("4201 0080 000c 0071 00000024 00000034 00000044"), "0000 0081 000c 0071 7f000055 ff000000 7f000001");

    device.MoveWith([](const auto& to) { return to.address == 0x7F00004D; });
    EXPECT_EQ(force("0007", mac, "7f000056", "00000000"), "8002 0005 0000 0007"); // not of this machine
    device.Reboot(start + time);
    time += 5s;
    EXPECT_EQ(Ask(readAddresses), "0000 0081 000c 0070 7f00004d ff000000 00000000");
}

TEST_F(DeviceTest, LetsTheCamerasTimeGoOn) {
    TakeControl();
    time = 2000ms;
    // The read of the clock is an access, which takes half a millisecond.
    Ask("4201 0082 0008 0002 00000944 00000002");
    EXPECT_EQ(Ask("4201 0080 000c 0003 00000944 00000948 0000094c"), "0000 0081 000c 0003 00000000 00000000 001e8674");
    device.PassTime(start + 4s);
    EXPECT_EQ(camera->Time(), 4s);
}

} // namespace

} // namespace Network
