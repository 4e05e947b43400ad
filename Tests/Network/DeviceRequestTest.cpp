#include "Tests/Network/DeviceFixture.h"

#include <ostream>

namespace Network {

namespace {

struct Step {
    std::string request;
    std::string answer; ///< empty: no answer
};

struct Dialogue {
    const char* name;
    std::vector<Step> steps; ///< of the controlling application
};

void PrintTo(const Dialogue& dialogue, std::ostream* stream) { *stream << dialogue.name; }

// clang-format off
const std::vector<Dialogue> dialogues = {
    // Single registers: big-endian numbers, whatever the byte order in memory.
    {"ReadsARegister", {{"4201 0080 0004 0011 14010000", "0000 0081 0004 0011 00000000"}}},
    {"ReadsSeveral", {{"4201 0080 000c 0012 00000000 00000024 0a030004", "0000 0081 000c 0012 00010002 7f00004d 00004e20"}}},
    {"StopsReadingAtTheFirstThatFails", {{"4201 0080 000c 0013 00000000 14020000 00000004", "8003 0081 0004 0013 00010002"}}},
    {"RefusesReadingBetweenWords", {{"4201 0080 0004 0014 14010002", "8005 0081 0000 0014"}}},
    {"RefusesReadingNothing", {{"4201 0080 0000 0015", "8002 0081 0000 0015"}}},
    {"RefusesHalfAnAddress", {{"4201 0080 0006 0015 14010000 1401", "8002 0081 0000 0015"}}},
    {"Writes", {{"4201 0082 0010 0016 14010000 00000064 18010000 00000007", "0000 0083 0004 0016 00000002"},
                {"4201 0080 0008 0017 14010000 18010000", "0000 0081 0008 0017 00000064 00000007"}}},
    {"StopsWritingAtTheFirstThatFails",
               {{"4201 0082 0018 0018 14010000 00000065 64030000 00000001 18010000 00000007", "8004 0083 0004 0018 00000001"},
                {"4201 0080 0008 0019 14010000 18010000", "0000 0081 0008 0019 00000065 00000000"}}},
    {"RefusesHalfAPair", {{"4201 0082 0004 001a 14010000", "8002 0083 0004 001a 00000000"}}},
    {"TakesWhatTheCameraMakesOfIt", {{"4201 0082 0008 001b 14010000 000003e8", "0000 0083 0004 001b 00000001"},
                                     {"4201 0080 0004 001c 14010000", "0000 0081 0004 001c 000001ff"}}},
    {"WritesAPartOfAText", {{"4201 0082 0008 001d 000000e8 4c656674", "0000 0083 0004 001d 00000001"},
                            {"4201 0084 0008 001e 000000e8 00000008", "0000 0085 000c 001e 000000e8 4c656674 00000000"}}},

    // Memory: bootstrap words are big-endian, texts are bytes, vendor registers are little-endian.
    {"ReadsAText", {{"4201 0084 0008 0021 00000068 0000000c", "0000 0085 0010 0021 00000068 4f727669 6b2d3731 30430000"}}},
    {"ReadsBootstrapWords", {{"4201 0084 0008 0022 00000934 00000014",
                              "0000 0085 0018 0022 00000934 c0000007 00000bb8 00000000 000f4240 00000000"}}},
    {"ReadsVendorWords", {{"4201 0084 0008 0023 0a030000 00000008", "0000 0085 000c 0023 0a030000 00000000 204e0000"}}},
    {"ReadsZerosBehindAFunctionsRegister",
               {{"4201 0084 0008 0024 64030000 00000008", "0000 0085 000c 0024 64030000 10070700 00000000"},
                {"4201 0084 0008 0025 1401fffc 00000004", "0000 0085 0008 0025 1401fffc 00000000"},
                {"4201 0084 0008 0026 1401fffc 00000008", "8003 0085 0000 0026"}}},
    {"ReadsZerosWhereTheStandardReserves", {{"4201 0084 0008 0027 00000014 00000008", "0000 0085 000c 0027 00000014 00000006 00000000"},
                                            {"4201 0084 0008 0028 000000f8 00000004", "8003 0085 0000 0028"}}},
    {"ReadsTheDescription", {{"4201 0084 0008 0029 00010000 00000004", "0000 0085 0008 0029 00010000 504b0304"}}},
    {"RefusesCounts", {{"4201 0084 0008 002a 00000200 00000000", "8002 0085 0000 002a"},
                       {"4201 0084 0008 002b 00000200 00000006", "8005 0085 0000 002b"},
                       {"4201 0084 0008 002c 00000200 0000021c", "8002 0085 0000 002c"},
                       {"4201 0084 0004 002d 00000200", "8002 0085 0000 002d"}}},
    {"HidesTheCamerasNotes", {{"4201 0084 0008 002e e0010000 00000004", "8003 0085 0000 002e"}}},
    {"WritesVendorWords", {{"4201 0086 000c 0031 0a030000 01000000 40420f00", "0000 0087 0004 0031 00000008"},
                           {"4201 0080 0008 0032 0a030000 0a030004", "0000 0081 0008 0032 00000001 000f4240"}}},
    {"WritesABootstrapWord", {{"4201 0086 0008 0033 0000064c c0a8010b", "0000 0087 0004 0033 00000004"},
                              {"4201 0080 0004 0034 0000064c", "0000 0081 0004 0034 c0a8010b"}}},
    {"ClipsWhatIsLongerThanTheRegister", {{"4201 0086 000c 0035 14010000 05000000 ffffffff", "0000 0087 0004 0035 00000008"},
                                          {"4201 0084 0008 0036 14010000 00000008", "0000 0085 000c 0036 14010000 05000000 00000000"}}},
    {"ProtectsMemory", {{"4201 0086 0008 0037 00000068 41414141", "8004 0087 0004 0037 00000000"},  // identity
                        {"4201 0086 0008 0038 14010004 01000000", "8004 0087 0004 0038 00000000"},  // after a register
                        {"4201 0086 000c 0039 000000f4 00000000 00000000", "8003 0087 0004 0039 00000000"},
                        {"4201 0086 0004 003a 14010000", "8002 0087 0004 003a 00000000"},
                        {"4201 0086 0008 003b 14010001 01000000", "8005 0087 0004 003b 00000000"}}},

    // Indexed registers: the selector of a read-only register is writable; value and selector are adjacent.
    {"SelectsInWhatIsShown", {{"4201 0082 0008 0041 28090000 00000001", "0000 0083 0004 0041 00000001"},
                              {"4201 0084 0008 0042 28090000 00000014", "0000 0085 0018 0042 28090000 01000000 480c0000 60080000 870c0000 9f080000"},
                              {"4201 0080 0008 0043 2809000c 28090010", "0000 0081 0008 0043 00000c87 0000089f"},
                              {"4201 0086 000c 0044 28090000 01000000 05000000", "8004 0087 0004 0044 00000000"}}},
    {"WritesTheSelectedInstance", {{"4201 0082 0010 0045 660f0000 00000002 660f0004 00000001", "0000 0083 0004 0045 00000002"},
                                   {"4201 0084 0008 0046 660f0000 00000008", "0000 0085 000c 0046 660f0000 02000000 01000000"},
                                   {"4201 0086 0008 0047 660f0000 01000000", "0000 0087 0004 0047 00000004"},
                                   {"4201 0080 0004 0048 660f0004", "0000 0081 0004 0048 00000000"}}},

    // The protocol's own registers.
    {"HoldsTheHeartbeatAboveItsLeast", {{"4201 0082 0008 0051 00000938 00000064", "0000 0083 0004 0051 00000001"},
                                        {"4201 0080 0004 0052 00000938", "0000 0081 0004 0052 000001f4"}}},
    {"KeepsTheStreamsDestination", {{"4201 0082 0010 0053 00000d00 0000c000 00000d18 7f000001", "0000 0083 0004 0053 00000002"},
                                    {"4201 0080 0008 0054 00000d00 00000d18", "0000 0081 0008 0054 0000c000 7f000001"}}},
    {"CountsItsChannels", {{"4201 0080 000c 0055 00000600 00000900 00000904", "0000 0081 000c 0055 00000001 00000000 00000001"},
                           {"4201 0082 0008 0056 00000904 00000002", "8004 0083 0004 0056 00000000"}}},
    {"KeepsTheAddressAfterARestart", {{"4201 0082 0008 0057 51010000 00000001", "0000 0083 0004 0057 00000001"},
                                      {"4201 0080 000c 0058 00000024 00000034 00000044", "0000 0081 000c 0058 7f00004d ff000000 00000000"}}},

    // Everything else.
    {"ImplementsNoMore", {{"4201 0060 0000 0061", "8001 0061 0000 0061"}, {"4200 0060 0000 0062", ""}}},
    {"LeavesResendsAndActions", {{"4201 0040 0000 0063", ""}, {"4201 0100 0000 0064", ""}}},
    {"CarriesOutUnanswered", {{"4200 0082 0008 0065 14010000 00000009", ""},
                              {"4201 0080 0004 0066 14010000", "0000 0081 0004 0066 00000009"}}},
    {"DropsWhatIsNoRequest", {{"", ""}, {"4201 0080 0000 00", ""},
                              {"4301 0080 0004 0071 14010000", ""},   // another key
                              {"4201 0080 0004 0000 14010000", ""},   // id 0
                              {"4201 0080 0008 0072 14010000", ""},   // shorter than its header says
                              {"4201 0080 0004 0073 14010000 00", ""}}},
};
// clang-format on

class DialogueTest : public testing::TestWithParam<Dialogue> {};

TEST_P(DialogueTest, IsAsTheStandardHasIt) {
    DeviceOnCamera device;
    ASSERT_EQ(device.TakeControl(), "0000 0083 0004 0001 00000001");
    for (const Step& step : GetParam().steps) {
        EXPECT_EQ(device.Ask(step.request), step.answer) << step.request;
    }
}

INSTANTIATE_TEST_SUITE_P(Device, DialogueTest, testing::ValuesIn(dialogues),
                         [](const auto& dialogue) { return dialogue.param.name; });

TEST_F(DeviceTest, ShowsItselfInADiscovery) {
    const std::string answer = Ask("4201 0002 0000 ffff");
    EXPECT_EQ(FromHex(answer).size(), 256U);
    EXPECT_EQ(answer.substr(0, 80), "0000 0003 00f8 ffff "
                                    "00010002 80000001 00000200 12070710 00000007 00000006 000000");
    const Bytes bytes = FromHex(answer);
    const std::string text(bytes.begin(), bytes.end());
    EXPECT_EQ(ToHex({bytes.begin() + 8 + 0x24, bytes.begin() + 8 + 0x28}), "7f00 004d");
    EXPECT_EQ(text.substr(8 + 0x48).c_str(), std::string("Simulation"));
    EXPECT_EQ(text.substr(8 + 0x68).c_str(), std::string("Orvik-710C"));
    EXPECT_EQ(text.substr(8 + 0xD8).c_str(), std::string("710C-0042"));

    // Discoveries are never answered from the cache, since applications repeat their ids.
    TakeControl();
    Ask("4201 0082 0008 0002 000000e8 4c656674");
    EXPECT_NE(Ask("4201 0002 0000 ffff"), answer);
    EXPECT_EQ(Ask("4200 0002 0000 ffff"), "");
    EXPECT_EQ(Ask("4201 0002 0004 ffff 00000000"), "8002 0003 0000 ffff");
}

TEST_F(DeviceTest, FillsThePacketsThatTheStandardAllows) {
    std::string addresses;
    for (int i = 0; i < 135; ++i) {
        addresses += "00000004";
    }
    EXPECT_EQ(FromHex(Ask("4201 0080 021c 0001" + addresses)).size(), 548U);
    EXPECT_EQ(Ask("4201 0080 0220 0002" + addresses + "00000004"), "");
    EXPECT_EQ(FromHex(Ask("4201 0084 0008 0003 00000200 00000218")).size(), 548U);
}

// A camera has the same addresses in process as over the control channel.
TEST(AddressTest, AreTheSameInProcessAndOverTheChannel) {
    struct Row {
        std::uint32_t address;
        std::uint32_t length;
        bool orvik;
        bool m2vx;
    };
    // clang-format off
    const Row rows[] = {
        {0x00000000, 0xF8,  true,  true},  // the discovery acknowledge, including reserved addresses
        {0x00000018, 4,     true,  true},
        {0x000000F4, 8,     false, false},
        {0x000000F8, 4,     false, false},
        {0x000001FC, 8,     false, false},
        {0x00000200, 536,   true,  true},  // both URLs of the description
        {0x00000600, 4,     true,  true},
        {0x00000604, 4,     false, false},
        {0x0000064C, 8,     false, false},
        {0x00000934, 24,    true,  true},  // capabilities to clock, with registers of the channel
        {0x00000950, 4,     false, false},
        {0x00000954, 4,     true,  true},
        {0x00000A00, 8,     true,  true},
        {0x00000A08, 4,     false, false},
        {0x00000D00, 12,    true,  true},
        {0x00000D10, 16,    false, false},
        {0x00010000, 536,   true,  true},  // the description
        {0x00030000, 4,     false, false},
        {0x00088120, 12,    false, true},
        {0x00088134, 8,     true,  true},
        {0x00FFFFFC, 8,     false, false},
        {0x0A0F0000, 4,     false, false},
        {0x14010000, 536,   true,  true},
        {0x1401FFFC, 4,     true,  true},
        {0x1401FFFC, 8,     false, false},
        {0x14020000, 4,     false, false},
        {0x28090004, 16,    true,  false}, // after a selector
        {0x6E140000, 8,     false, true},
        {0xE0010000, 4,     false, false}, // internal state
        {0xFFFFFFFC, 4,     false, false},
        {0xFFFFFFFC, 8,     false, false},
    };
    // clang-format on
    for (const char* const model : {"Orvik-710C", "Cerix-MV7"}) {
        const auto camera = Simulation::MakeCamera(model);
        Device device(*camera, {0x7F00004D, 0xFF000000}, {});
        std::uint16_t id = 0;
        for (const Row& row : rows) {
            const bool there = model == std::string("Orvik-710C") ? row.orvik : row.m2vx;
            char request[40];
            std::snprintf(request, sizeof request, "4201 0084 0008 %04x %08x %08x", ++id, row.address, row.length);
            const auto answer = device.Answer(one, FromHex(request), {});
            ASSERT_TRUE(answer);
            EXPECT_EQ(ToHex(*answer).substr(0, 4), there ? "0000" : "8003") << model << ' ' << request;
            Bytes bytes(row.length);
            std::uint64_t length = row.length;
            if (there) {
                EXPECT_NO_THROW(camera->ReadMem(row.address, bytes.data(), &length)) << model << ' ' << request;
            } else {
                EXPECT_THROW(camera->ReadMem(row.address, bytes.data(), &length), Simulation::InvalidAddressError)
                    << model << ' ' << request;
                EXPECT_THROW(camera->WriteMem(row.address, bytes.data(), &length), Simulation::InvalidAddressError)
                    << model << ' ' << request;
            }
        }
    }
}

TEST_F(DeviceTest, AnswersAnErrorWhereAFaultWasInjected) {
    TakeControl();
    camera->InjectFault("fail:gain");
    camera->InjectFault("null:measurewindow");
    EXPECT_EQ(Ask("4201 0080 0004 0002 14010000"), "8fff 0081 0000 0002");
    EXPECT_EQ(Ask("4201 0082 0010 0003 18010000 00000001 14010000 00000001"), "8fff 0083 0004 0003 00000001");
    EXPECT_EQ(Ask("4201 0086 0008 0004 14010000 01000000"), "8fff 0087 0004 0004 00000000");
    EXPECT_EQ(Ask("4201 0084 0008 0005 1e030000 00000014"), "8fff 0085 0000 0005");
    EXPECT_EQ(Ask("4201 0080 0004 0006 18010000"), "0000 0081 0004 0006 00000001");
}

} // namespace

} // namespace Network
