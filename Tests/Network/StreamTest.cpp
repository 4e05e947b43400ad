// The stream of a simulated camera, without sockets: what is sent when, and what becomes of it when control ends.

#include "Tests/Network/DeviceFixture.h"

#include "Simulation/GigEVision/SentBlocks.h"
#include "Simulation/Picture/Renderer.h"

namespace Network {

namespace {

using namespace Simulation::GigEVision;

const std::string start = "4201 0082 0008 0003 00088134 00000001";
const std::string stop = "4201 0082 0008 0004 00088138 00000000";
const std::string trigger = "4201 0082 0008 0005 0a070000 00000001";
const std::string done = "0000 0083 0004 ";
constexpr std::chrono::milliseconds tick{1};

Bytes BytesOf(const Gvsp::Packet& packet) {
    Bytes bytes(packet.Head().begin(), packet.Head().end());
    bytes.insert(bytes.end(), packet.data.begin(), packet.data.end());
    return bytes;
}

class StreamTest : public DeviceTest {
protected:
    void SetUp() override { TakeControl(); }

    /// Opens the channel to the controller's port 49152.
    void Open() {
        EXPECT_EQ(Ask("4201 0082 0018 0002 00000d18 7f000001 00000d04 00000fa0 00000d00 0000c000"),
                  done + "0002 00000003");
    }

    std::optional<DueBlock> After(std::chrono::milliseconds wait) {
        time += wait;
        device.PassTime(Network::StreamTest::start + time);
        return device.Stream().TakeBlock();
    }

    /// The ids of what is sent within that time.
    std::vector<int> IdsWithin(std::chrono::milliseconds duration) {
        std::vector<int> ids;
        for (; duration.count() > 0; --duration) {
            if (const auto block = After(tick)) {
                ids.push_back(block->id);
            }
        }
        return ids;
    }

    using DeviceOnCamera::start;
};

TEST_F(StreamTest, RunsAtTheFrameDuration) {
    Open();
    EXPECT_EQ(IdsWithin(100ms), std::vector<int>());
    Ask(Network::start);
    const std::uint32_t duration = camera->Registers().Get("frameduration")[0];
    const auto first = camera->Time();
    EXPECT_GT(duration, 20000U);
    for (std::uint64_t i = 1; i < 4; ++i) {
        const auto due = device.StreamDue();
        ASSERT_TRUE(due);
        time = std::chrono::duration_cast<std::chrono::milliseconds>(*due - start) + tick;
        const auto block = After(0ms);
        ASSERT_TRUE(block);
        EXPECT_EQ(block->id, i);
        EXPECT_EQ(block->timestamp, static_cast<std::uint64_t>(first.count()) + i * duration); // not that of sending
    }
    EXPECT_EQ(After(1000ms)->id, 4); // frames that were not sent in time are lost, and take no id
    EXPECT_FALSE(After(tick));
    Ask("4201 0082 0008 0006 00088140 000007d0"); // 2 frames per second
    EXPECT_EQ(IdsWithin(2000ms).size(), 4U);
}

TEST_F(StreamTest, GoesOnCountingUntilTheChannelIsOpenedAnew) {
    Open();
    Ask(Network::start);
    EXPECT_EQ(IdsWithin(100ms), (std::vector<int>{1, 2}));
    Ask(stop);
    EXPECT_EQ(IdsWithin(100ms), std::vector<int>());
    Ask(Network::start);
    EXPECT_EQ(IdsWithin(100ms), (std::vector<int>{3, 4}));
    Ask("4201 0082 0008 0007 00000d00 00000000");
    EXPECT_EQ(IdsWithin(100ms), std::vector<int>());
    Open();
    EXPECT_EQ(IdsWithin(100ms).front(), 1);
    Ask("4201 0082 0008 0008 00088130 00000001"); // single frame
    EXPECT_EQ(IdsWithin(200ms).size(), 1U);
    EXPECT_EQ(camera->Registers().Get("startacquisition")[0], 0U);
    // By memory access too, as a control of this family starts it.
    Ask("4201 0086 0008 0009 00088134 01000000");
    EXPECT_EQ(IdsWithin(200ms).size(), 1U);
}

TEST_F(StreamTest, WaitsForTriggers) {
    Open();
    // Reset-restart, 30 ms of delay.
    Ask("4201 0082 0018 0002 0a020000 00000003 0a100000 00000000 0a100004 00007530");
    Ask(Network::start);
    EXPECT_EQ(IdsWithin(200ms), std::vector<int>());
    const auto before = time;
    Ask(trigger);
    Ask("4201 0082 0008 0006 0a070000 00000001"); // while the frame is on its way
    while (!After(tick)) {
        ASSERT_LT((time - before).count(), 1000);
    }
    EXPECT_EQ(time - before, std::chrono::milliseconds(31 + camera->Registers().Get("frameduration")[0] / 1000));
    EXPECT_EQ(IdsWithin(200ms), std::vector<int>());
    Ask("4201 0082 0010 0009 0a100000 00000007 0a100004 60000000"); // 510 years
    Ask("4201 0082 0008 000a 0a070000 00000001");
    EXPECT_GT(device.StreamDue(), start + time + std::chrono::hours(24));
    Ask("4201 0082 0008 0007 0a020000 00000004"); // on demand
    EXPECT_FALSE(After(100ms));
    Ask("4201 0082 0008 0008 0a070000 00000001");
    EXPECT_TRUE(After(tick));
    EXPECT_FALSE(After(100ms));
}

TEST_F(StreamTest, EndsWithControl) {
    const auto streams = [&] { return IdsWithin(100ms).size() == 2; };
    for (const std::string end : {"privilege", "silence", "restart", "reboot"}) {
        TakeControl();
        Open();
        Ask(Network::start);
        EXPECT_TRUE(streams());
        if (end == "privilege") {
            Ask("4201 0082 0008 0009 00000a00 00000000");
        } else if (end == "silence") {
            time += 4s;
        } else if (end == "restart") {
            Ask("4201 0082 0008 000a 51010000 00000001");
        } else {
            device.Reboot(start + time);
        }
        EXPECT_EQ(IdsWithin(100ms).size(), 0U) << end;
        time += 6s;
    }
}

TEST_F(StreamTest, GoesToTheControllerAlone) {
    EXPECT_EQ(Ask("4201 0082 0008 0002 00000d18 7f000009"), "8002 0083 0004 0002 00000000");
    EXPECT_EQ(Ask("4201 0086 0008 0002 00000d18 7f000009"), "8002 0087 0004 0002 00000000");
    EXPECT_EQ(Ask("4201 0080 0004 0003 00000d18"), "0000 0081 0004 0003 00000000");
    device.Stream().AllowAnyDestination();
    EXPECT_EQ(Ask("4201 0082 0008 0004 00000d18 7f000009"), done + "0004 00000001");
}

TEST_F(StreamTest, TakesRequestsOfTheReceiver) {
    const std::string resend = "4200 0040 000c 0007 0000 0001 00000002 ff000004";
    StreamChannel& stream = device.Stream();
    EXPECT_EQ(Ask({0x7F000001, 7}, resend), "");
    EXPECT_TRUE(stream.TakeResends().empty()); // the channel is closed
    Open();
    Ask({0x7F000002, 7}, resend);
    EXPECT_TRUE(stream.TakeResends().empty()); // of somebody else
    for (int i = 0; i < 2; ++i) {              // the same id again is no repetition here
        Ask({0x7F000001, 7}, resend);
        const auto resends = stream.TakeResends();
        ASSERT_EQ(resends.size(), 1U);
        EXPECT_EQ(resends[0].block, 1);
        EXPECT_EQ(resends[0].first, 2U);
        EXPECT_EQ(resends[0].last, 4U);
    }
    for (const std::string broken :
         {"4200 0040 0008 0007 0000 0001 00000002", "4200 0040 000c 0007 0001 0001 00000002 00000004",
          "4200 0040 000c 0007 0000 0001 00000004 00000002"}) {
        Ask({0x7F000001, 7}, broken);
        EXPECT_TRUE(stream.TakeResends().empty()) << broken;
    }
    for (const std::string fire : {"4201 0082 0008 0008 00000d04 80000fa0", "4201 0086 0008 0009 00000d04 80000fa0"}) {
        Ask(fire);
        EXPECT_TRUE(stream.TakeTestPacket()) << fire;
        EXPECT_FALSE(stream.TakeTestPacket());
        EXPECT_EQ(Ask("4201 0080 0004 000a 00000d04"), "0000 0081 0004 000a 00000fa0");
    }
}

TEST(BlockTest, IsCutIntoPackets) {
    const Simulation::Picture::Frame frame{0x01080001, 50, 41, 3, 5, Bytes(2050, 7)};
    const Gvsp::Block block(0x1234, 0x123456789AULL, 1036, frame);
    ASSERT_EQ(block.PacketCount(), 5U); // 1000 bytes of data in each
    EXPECT_EQ(ToHex(BytesOf(block.At(0))), "0000 1234 0100 0000 00000001 00000012 3456789a 01080001 00000032 00000029 "
                                           "00000003 00000005 00000000");
    EXPECT_EQ(ToHex(BytesOf(block.At(1))).substr(0, 28), "0000 1234 0300 0001 07070707");
    EXPECT_EQ(block.At(1).Size(), 1008U);
    EXPECT_EQ(ToHex(BytesOf(block.At(3))).substr(0, 28), "0000 1234 0300 0003 07070707");
    EXPECT_EQ(block.At(3).Size(), 58U);
    EXPECT_EQ(ToHex(BytesOf(block.At(4))), "0000 1234 0200 0004 00000001 00000029");
}

TEST(SentBlocksTest, AnswerWithinABudget) {
    SentBlocks sent;
    for (std::uint16_t id = 1; id <= 20; ++id) {
        Simulation::Picture::Frame frame = sent.TakeFrame();
        EXPECT_EQ(frame.bytes.capacity() != 0, id > SentBlocks::mostBlocks); // the memory of old ones is used again
        frame.bytes.assign(2000, static_cast<std::uint8_t>(id));
        sent.Add(Gvsp::Block(id, 0, 1036, std::move(frame)));
    }
    const auto answers = [&](std::uint16_t id, std::uint32_t first, std::uint32_t last) {
        std::string text;
        sent.Resend({id, first, last}, [&](const Gvsp::Packet& packet) {
            text += ToHex(BytesOf(packet)).substr(0, 19) + (packet.data.empty() ? "" : " data") + ", ";
        });
        return text;
    };
    EXPECT_EQ(answers(20, 1, 1), "0000 0014 0300 0001 data, ");
    EXPECT_EQ(answers(20, 2, 0xFFFFFF), "0000 0014 0300 0002 data, 0000 0014 0200 0003, ");
    EXPECT_EQ(answers(20, 0, 9), "0000 0014 0100 0000, 800c 0014 0300 0001, "); // four packets, four resent
    EXPECT_EQ(answers(20, 1, 1), "800c 0014 0300 0001, ");
    EXPECT_EQ(answers(19, 1, 1), "0000 0013 0300 0001 data, ");
    EXPECT_EQ(answers(3, 1, 2), "800c 0003 0300 0001, ");
}

} // namespace

} // namespace Network
