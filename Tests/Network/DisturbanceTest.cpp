#include "Tests/Network/DeviceFixture.h"

#include "Simulation/GigEVision/Disturbances.h"

#include <algorithm>

namespace Network {

namespace {

using Simulation::GigEVision::DelayedDatagram;
using Simulation::GigEVision::Disturbances;
using Simulation::GigEVision::DisturbedDevice;

const std::string readOfGain = "4201 0080 0004 0002 14010000";

class DisturbanceTest : public DeviceTest {
protected:
    std::vector<DelayedDatagram> Send(DisturbedDevice& disturbed, const std::string& request) {
        return disturbed.Answer(one, FromHex(request), start + time);
    }

    /// The number of acknowledges of each of a hundred requests.
    std::string Counts(const Disturbances& disturbances, std::uint64_t seed) {
        DisturbedDevice disturbed(device, disturbances, seed);
        std::string counts;
        for (int i = 0; i < 100; ++i) {
            counts += std::to_string(Send(disturbed, readOfGain).size());
        }
        return counts;
    }
};

TEST_F(DisturbanceTest, LosesAndRepeatsAsTheSeedSays) {
    const Disturbances some{.drop = 0.3, .duplicate = 0.5};
    const std::string counts = Counts(some, 1);
    EXPECT_EQ(counts, Counts(some, 1));
    EXPECT_NE(counts, Counts(some, 2));
    for (const char count : {'0', '1', '2'}) {
        EXPECT_NE(counts.find(count), std::string::npos) << count;
    }
    // A small share is exact and never affects a request five times in a row. Requests and acknowledges are lost alike.
    const std::string few = Counts({.drop = 0.05}, 1);
    EXPECT_GE(std::count(few.begin(), few.end(), '0'), 9);
    EXPECT_LE(std::count(few.begin(), few.end(), '0'), 11);
    EXPECT_EQ(few.find("000"), std::string::npos);
    EXPECT_EQ(Counts({.drop = 1}, 1), std::string(100, '0'));
    EXPECT_EQ(Counts({.duplicate = 1}, 1), std::string(100, '2'));
    EXPECT_EQ(Counts({}, 1), std::string(100, '1'));
}

TEST_F(DisturbanceTest, ExecutesARequestWhoseAcknowledgeIsLost) {
    TakeControl();
    DisturbedDevice disturbed(device, {.drop = 0.5}, 3);
    int carriedOutUnanswered = 0;
    for (std::uint32_t i = 1; i < 100; ++i) {
        char request[64];
        std::snprintf(request, sizeof request, "4201 0082 0008 %04x 14010000 %08x", i, i);
        const bool answered = !Send(disturbed, request).empty();
        const bool carriedOut = camera->Registers().Get("gain")[0] == i;
        EXPECT_TRUE(carriedOut || !answered);
        carriedOutUnanswered += carriedOut && !answered ? 1 : 0;
    }
    EXPECT_GT(carriedOutUnanswered, 10);
}

TEST_F(DisturbanceTest, RefusesAsBusyWithoutExecuting) {
    TakeControl();
    DisturbedDevice disturbed(device, {.nack = 1}, 1);
    const auto sendings = Send(disturbed, "4201 0082 0008 0002 14010000 00000005");
    ASSERT_EQ(sendings.size(), 1U);
    EXPECT_EQ(ToHex(sendings[0].datagram), "8007 0083 0004 0002 00000000");
    EXPECT_EQ(camera->Registers().Get("gain")[0], 0U);
    EXPECT_TRUE(Send(disturbed, "4200 0082 0008 0002 14010000 00000005").empty());
    EXPECT_TRUE(Send(disturbed, "4201 0040 0000 0003").empty());
    EXPECT_TRUE(Send(disturbed, "4301").empty());
    EXPECT_EQ(Send(disturbed, "4201 0002 0000 0003").at(0).datagram.size(), 256U); // still answers discoveries
    time += 2000ms;
    Send(disturbed, readOfGain); // resets the heartbeat
    time += 2000ms;
    EXPECT_EQ(Ask(other, "4201 0080 0004 0001 00000a00"), "0000 0081 0004 0001 00000002");
    // A repetition of an executed request is not refused.
    const std::string carriedOut = "4201 0082 0008 0004 14010000 00000005";
    Ask(carriedOut);
    EXPECT_EQ(ToHex(Send(disturbed, carriedOut).at(0).datagram), "0000 0083 0004 0004 00000001");
}

TEST_F(DisturbanceTest, HoldsAcknowledgesBack) {
    DisturbedDevice disturbed(device, {.delay = 20ms}, 1);
    std::vector<std::chrono::microseconds> delays(100);
    for (auto& delay : delays) {
        delay = Send(disturbed, readOfGain).at(0).delay;
    }
    const auto [least, most] = std::minmax_element(delays.begin(), delays.end());
    EXPECT_GE(*least, 0us);
    EXPECT_LT(*least, 5ms);
    EXPECT_GT(*most, 15ms);
    EXPECT_LE(*most, 20ms);
}

TEST_F(DisturbanceTest, RebootsOnce) {
    DisturbedDevice disturbed(device, {.rebootAfter = 2}, 1);
    for (const std::size_t answers : {1U, 1U, 0U, 0U}) {
        EXPECT_EQ(Send(disturbed, readOfGain).size(), answers);
    }
    time = Device::bootTime;
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(Send(disturbed, readOfGain).size(), 1U);
    }
}

} // namespace

} // namespace Network
