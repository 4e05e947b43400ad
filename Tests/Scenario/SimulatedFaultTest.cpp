// The faults that can be injected into a simulated camera.

#include "Simulation/Cameras.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace Scenario {

using Simulation::MakeCamera;
using Simulation::Words;

TEST(InjectedFault, ChangesWhatTheCameraHolds) {
    const auto camera = MakeCamera("Orvik-710C");
    const auto& held = camera->Registers();
    camera->WriteRegister(0x51030000, 1);
    for (const char* fault : {"ignore:gain", "clamp:contrast=100", "offset:sharpness=1", "clamp:lutindex=-2",
                              "ignore:0x51020000", "stale:saturation"}) {
        camera->InjectFault(fault);
    }
    camera->WriteRegister(0x14010000, 5);
    camera->WriteRegister(0x18020000, 101);
    camera->WriteRegister(0x18030000, 255);
    camera->WriteRegister(0x19010000, 3);
    camera->WriteRegister(0x18010000, 9);
    EXPECT_EQ(held.Get("gain"), Words{0});
    EXPECT_EQ(held.Get("contrast"), Words{100});
    EXPECT_EQ(held.Get("sharpness"), Words{256});
    EXPECT_EQ(held.Get("lutindex"), Words{0U - 2U});
    camera->WriteRegister(0x51020000, 1); // ignored
    EXPECT_EQ(held.Get("brightness"), Words{9});

    const auto other = MakeCamera("Orvik-710C");
    other->InjectFault("stale:saturation");
    other->WriteRegister(0x15040000, 9);
    other->WriteRegister(0x18010000, 9);
    other->WriteRegister(0x51020000, 0);
    EXPECT_EQ(other->Registers().Get("saturation"), Words{9});
    EXPECT_EQ(other->Registers().Get("brightness"), Words{0});
}

TEST(InjectedFault, ClampsAndShiftsEachWord) {
    const auto camera = MakeCamera("Cerix7-MV");
    const auto held = [&](const char* name, std::uint32_t index = 0) { return camera->Registers().Get(name, index); };
    for (const char* fault : {"clamp:circularblankingposition=700", "offset:measurewindow=-3", "clamp:gain=300",
                              "offset:gain=2", "clamp:shadingcorrection=-5", "ignore:overlaysize"}) {
        camera->InjectFault(fault);
    }
    const auto write = [&](std::uint32_t address, Words words) {
        camera->WriteBlock(address, reinterpret_cast<const unsigned char*>(words.data()),
                           static_cast<std::uint32_t>(words.size() * sizeof words[0]));
    };
    write(0x1B050000, {700, 701});
    EXPECT_EQ(held("circularblankingposition"), (Words{700, 700}));
    write(0x1B050000, {699, 5});
    EXPECT_EQ(held("circularblankingposition"), (Words{699, 5}));
    write(0x1E030000, {0, 1, 9, 0U - 511U, 512}); // even past the limits
    EXPECT_EQ(held("measurewindow"), (Words{0U - 3U, 0U - 2U, 6, 0U - 514U, 509}));
    write(0x14010000, {301});
    EXPECT_EQ(held("gain"), Words{302}); // clamped, then shifted
    write(0x1B020000, {1, 0U - 5U});
    write(0x1B020000, {2, 0U - 6U});
    write(0x1B020000, {3, 4});
    EXPECT_EQ(held("shadingcorrection", 1), Words{0U - 5U});
    EXPECT_EQ(held("shadingcorrection", 2), Words{0U - 6U});
    EXPECT_EQ(held("shadingcorrection", 3), Words{0U - 5U});
    write(0x17040000, {2, 3, 7});
    EXPECT_EQ(held("overlaysize", 2), (Words{1, 10}));
    write(0x17040000, {2}); // a write of the selector is not affected
    EXPECT_EQ(camera->ReadRegister(0x17040000), 2U);
}

TEST(InjectedFault, KeepsAnAutomaticModeFromStopping) {
    for (const char* model : {"Orvik-710M", "Cerix-MV7"}) {
        const auto camera = MakeCamera(model);
        camera->InjectFault("endless:agc");
        camera->WriteRegister(0x14010000, 500);
        EXPECT_EQ(camera->Registers().Get("gain"), Words{500}) << model; // was not on yet
        camera->WriteRegister(0x46020000, 1);
        camera->WriteRegister(0x46020000, 0);
        camera->WriteRegister(0x14010000, 500);
        EXPECT_LT(camera->Registers().Get("gain")[0], 400U) << model;
    }
}

/// Whether the camera answers the call.
template <typename Call> bool Answers(const Call& call) {
    try {
        call();
        return true;
    } catch (const Simulation::PortError& error) {
        EXPECT_EQ(error.reason, "no answer from the camera");
        return false;
    }
}

bool AnswersRead(Simulation::SimulatedCamera& camera, std::uint32_t address, std::uint64_t length) {
    std::vector<std::uint8_t> bytes(length);
    return Answers([&] { camera.ReadMem(address, bytes.data(), &length); });
}

TEST(InjectedFault, FailsAccesses) {
    const auto camera = MakeCamera("Cerix7-MV");
    camera->InjectFault("fail:0x14010000");
    try {
        camera->WriteRegister(0x14010000, 1);
        ADD_FAILURE();
    } catch (const Simulation::PortError& error) {
        EXPECT_EQ(error.operation, "WriteRegister");
        EXPECT_EQ(error.address, 0x14010000U);
        EXPECT_STREQ(error.what(), "WriteRegister at 0x14010000 failed: no answer from the camera");
    }
    EXPECT_EQ(camera->Registers().Get("gain"), Words{0});
    EXPECT_FALSE(Answers([&] { (void)camera->ReadRegister(0x14010000); }));

    camera->InjectFault("failwrite:exposure");
    camera->InjectFault("failread:overlayposition");
    EXPECT_EQ(camera->ReadRegister(0x0A030000), 33U);
    EXPECT_FALSE(Answers([&] { camera->WriteRegister(0x0A030000, 34); }));
    camera->WriteRegister(0x17020000, 1);
    EXPECT_FALSE(AnswersRead(*camera, 0x17020000, 12));
}

TEST(InjectedFault, ReachesFromTheFirstByteToTheLast) {
    struct Row {
        const char* fault;
        std::uint32_t first;
        std::uint32_t last;
    };
    const Row rows[] = {
        {"packetsize", 0x0D04, 0x0D07},         // between others
        {"exposure", 0x0A030000, 0x0A030007},   // two words
        {"ioport", 0x66030000, 0x66030007},     // a selector and a word
        {"manufacturername", 0x0048, 0x0067},   // a text
        {"0x0A030004", 0x0A030004, 0x0A030007}, // the second word alone
        {"167968772", 0x0A030004, 0x0A030007},  // the same in decimal
        {"0x1401FFFC", 0x1401FFFC, 0x1401FFFF}, // the last word of a function
    };
    for (const Row& row : rows) {
        const auto camera = MakeCamera("Orvik-710M");
        camera->InjectFault(std::string("failread:") + row.fault);
        const std::uint32_t size = row.last - row.first + 1;
        EXPECT_FALSE(AnswersRead(*camera, row.first, 1)) << row.fault;
        EXPECT_FALSE(AnswersRead(*camera, row.last, 1)) << row.fault;
        EXPECT_FALSE(AnswersRead(*camera, row.first, size)) << row.fault;
        if (row.first % 0x10000 != 0) {
            EXPECT_TRUE(AnswersRead(*camera, row.first - 1, 1)) << row.fault;
            EXPECT_FALSE(AnswersRead(*camera, row.first - 1, 2)) << row.fault;
        }
        if (row.last % 0x10000 != 0xFFFF) {
            EXPECT_TRUE(AnswersRead(*camera, row.last + 1, 1)) << row.fault;
            EXPECT_FALSE(AnswersRead(*camera, row.last, 2)) << row.fault;
        }
    }
}

TEST(InjectedFault, AnswersWithNothingWhereABlockBeginsAndNowhereElse) {
    const auto camera = MakeCamera("Cerix7-MV");
    camera->InjectFault("null:measurewindow");
    EXPECT_EQ(camera->ReadBlock(0x1E030000, 20), nullptr);
    EXPECT_TRUE(AnswersRead(*camera, 0x1E030000, 20));
    const std::unique_ptr<unsigned char, decltype(&std::free)> next(camera->ReadBlock(0x1E030004, 4), &std::free);
    EXPECT_NE(next, nullptr);
}

TEST(InjectedFault, IsRefusedWithAReasonWhenItIsNotUnderstood) {
    const auto camera = MakeCamera("Orvik-710M");
    const auto reason = [&](const char* fault) -> std::string {
        try {
            camera->InjectFault(fault);
            return "";
        } catch (const Simulation::FaultError& error) {
            return error.what();
        }
    };
    // clang-format off
    EXPECT_EQ(reason("ignore:gian"),       "fault \"ignore:gian\": this camera has no register \"gian\"");
    EXPECT_EQ(reason("ignore"),            "fault \"ignore\": this camera has no register \"\"");
    EXPECT_EQ(reason("ignore:0x14010004"), "fault \"ignore:0x14010004\": no register of this camera begins at 0x14010004");
    EXPECT_EQ(reason("fail:0x114010000"),  "fault \"fail:0x114010000\": this camera has no register \"0x114010000\"");
    EXPECT_EQ(reason("fail:0x12345678"),   "fault \"fail:0x12345678\": this camera has no address 0x12345678");
    EXPECT_EQ(reason("null:0x00000650"),   "fault \"null:0x00000650\": this camera has no address 0x00000650");
    EXPECT_EQ(reason("clamp:gain"),        "fault \"clamp:gain\": clamp needs a number, as in \"clamp:gain=1\"");
    EXPECT_EQ(reason("ignore:gain=1"),     "fault \"ignore:gain=1\": only clamp and offset take a number");
    EXPECT_EQ(reason("clamp:gain=ten"),    "fault \"clamp:gain=ten\": the value after = is not a number");
    EXPECT_EQ(reason("endless:gain"),      "fault \"endless:gain\": gain is not an automatic mode, expected acc, aet, agc, awb");
    EXPECT_EQ(reason("stale:temperature"), "fault \"stale:temperature\": settings sets do not contain temperature");
    EXPECT_EQ(reason("break:gain"),        "fault \"break:gain\": unknown kind \"break\", expected clamp, endless, fail, failread, "
                                           "failwrite, ignore, null, offset, stale");
    // clang-format on
}

} // namespace Scenario
