// The state files of simulated cameras.

#include "Tests/Support/Files.h"

#include "Simulation/CameraState.h"
#include "Simulation/Cameras.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace Scenario {

using Simulation::MakeCamera;
using Simulation::Role;
using Simulation::Words;
using Test::Content;
using Test::Replaced;

class CameraState : public testing::Test {
protected:
    CameraState() {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directory(folder);
    }
    ~CameraState() override { std::filesystem::remove_all(folder); }

    /// Why the file is refused, or empty. A refusal must leave the camera unchanged.
    [[nodiscard]] std::string Refusal(const std::string& content, const char* model = "Orvik-710M") const {
        std::ofstream(file) << content;
        const auto camera = MakeCamera(model);
        const auto before = camera->Registers().Save({Role::Status, Role::Setting, Role::NonVolatile, Role::Volatile});
        try {
            Simulation::LoadState(*camera, file);
            return "";
        } catch (const Simulation::StateError& error) {
            EXPECT_EQ(camera->Registers().Save({Role::Status, Role::Setting, Role::NonVolatile, Role::Volatile}),
                      before);
            EXPECT_TRUE(camera->Sets().All().empty());
            return error.what();
        }
    }

    const std::filesystem::path folder = testing::TempDir() + "qdv12_camera_state_" + std::to_string(getpid());
    const std::filesystem::path file = folder / "camera.json";
};

TEST_F(CameraState, IsKeptWholeForEveryModel) {
    for (const std::string& model : Simulation::ModelNames()) {
        const auto camera = MakeCamera(model);
        camera->WriteRegister(0x14010000, 11);
        camera->WriteRegister(0x51030000, 2);
        camera->WriteRegister(0x51040000, 2);
        camera->WriteRegister(0x14010000, 12);
        camera->WriteRegister(0x00088134, 1);
        camera->WriteString(0x00E8, "door\xFF\0\0\0\0\0\0\0\0\0\0\0", 16);
        camera->Advance(std::chrono::seconds(10));
        Simulation::SaveState(*camera, file);
        const std::string saved = Content(file);

        const auto next = MakeCamera(model);
        Simulation::LoadState(*next, file);
        EXPECT_STREQ(next->ReadString(0x00E8, 16), "door\xFF");
        EXPECT_EQ(next->Registers().Get("gain"), Words{12}) << model;
        EXPECT_EQ(next->Registers().Get("startacquisition"), Words{0}); // acquisition does not continue
        next->WriteRegister(0x51010000, 0);
        EXPECT_EQ(next->Registers().Get("gain"), Words{11});

        Simulation::LoadState(*next, file);
        next->Registers().Set("startacquisition", {1});
        Simulation::SaveState(*next, file);
        EXPECT_EQ(Content(file), saved);
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1); // no other files are left
}

TEST_F(CameraState, TellsWhichCameraOfItsModelItIs) {
    const auto camera = MakeCamera("Orvik-710M");
    Simulation::SaveState(*camera, file);
    const std::string saved = Content(file);
    std::ofstream(file) << Replaced(Replaced(saved, "710M-0042", "710M-0043"), "02:00:12:06:07:10",
                                    "02:00:12:06:07:11");
    Simulation::LoadState(*camera, file);
    EXPECT_STREQ(camera->ReadString(0x00D8, 16), "710M-0043");
    EXPECT_STREQ(camera->ReadString(0x64020000, 16) + 4, "710M-0043");
    EXPECT_EQ(camera->ReadRegister(0x000C), 0x12060711U);

    std::ofstream(file) << Replaced(saved, "  \"MAC address\": \"02:00:12:06:07:10\",\n",
                                    ""); // as older versions wrote it
    const auto next = MakeCamera("Orvik-710M");
    Simulation::LoadState(*next, file);
    EXPECT_EQ(next->ReadRegister(0x000C), 0x12060710U);
}

TEST_F(CameraState, IsRefusedWholeWhenItIsDamagedOrAnothers) {
    const auto camera = MakeCamera("Orvik-710M");
    camera->WriteRegister(0x51030000, 1);
    Simulation::SaveState(*camera, file);
    const std::string good = Content(file);
    EXPECT_EQ(Refusal(good), "");

    const auto has = [](const std::string& text, const char* part) {
        return text.find(part) != std::string::npos ? testing::AssertionSuccess() : testing::AssertionFailure() << text;
    };
    EXPECT_TRUE(has(Refusal(good, "Orvik-710C"), "model \"Orvik-710M\", expected \"Orvik-710C\""));
    EXPECT_TRUE(has(Refusal(Replaced(good, "710M-0042", "")), "damaged: invalid serial number \"\""));
    EXPECT_TRUE(has(Refusal(Replaced(good, "\"710M-0042\"", "[1]")), "damaged: \"serial number\" is not a string"));
    EXPECT_TRUE(has(Refusal(Replaced(good, "02:00", "03:00")), "damaged: invalid MAC address \"03:00"));
    EXPECT_TRUE(has(Refusal(Replaced(good, "\"version\": 1", "\"version\": 2")), "format version 2, expected 1"));
    EXPECT_TRUE(has(Refusal("{}"), "not a camera state file"));
    EXPECT_TRUE(has(Refusal("[1]"), "not a camera state file"));
    EXPECT_TRUE(has(Refusal(""), "damaged"));
    EXPECT_TRUE(has(Refusal(good.substr(0, good.size() / 2)), "damaged"));
    for (const char* gain :
         {"[[512]]", "[[-1]]", "[[1.5]]", "[[4294967296]]", "[[\"0\"]]", "[[0,0]]", "[[0],[0]]", "0", "[]"}) {
        EXPECT_TRUE(has(Refusal(Replaced(good, "\"gain\": [[0]]", "\"gain\": " + std::string(gain))), "register gain"))
            << gain;
    }
    EXPECT_TRUE(has(Refusal(Replaced(good, "\"agc\": [[0]]", "\"agc\": [[3]]")), "invalid value [3] of register agc"));
    EXPECT_TRUE(has(Refusal(Replaced(good, "\"gain\"", "\"gian\"")), "\"gain\" is missing"));
    EXPECT_TRUE(has(Refusal(Replaced(good, "\"gain\"", "\"gian\": 1, \"gain\"")), "damaged: unknown registers"));
    EXPECT_TRUE(has(Refusal(Replaced(good, "\"microseconds\": ", "\"microseconds\": -")), "of the time"));
    EXPECT_TRUE(has(Refusal(Replaced(good, "\"1\": {", "\"3\": {")), "unknown settings set \"3\""));
}

TEST_F(CameraState, ThatCannotBeReadOrWrittenSaysWhy) {
    const auto camera = MakeCamera("Sollux G");
    const auto why = [&](const auto& access, const std::filesystem::path& path) -> std::string {
        try {
            access(*camera, path);
            return "";
        } catch (const Simulation::StateError& error) {
            const std::string about = "camera state " + path.string() + ": cannot be ";
            return std::string(error.what()).substr(about.size());
        }
    };
    const auto loop = folder / "loop";
    std::filesystem::create_symlink(loop, loop);
    EXPECT_FALSE(Simulation::HasState(file));
    EXPECT_FALSE(Simulation::HasState(""));
    EXPECT_TRUE(Simulation::HasState(loop));
    EXPECT_EQ(why(Simulation::LoadState, file), "read: No such file or directory");
    EXPECT_EQ(why(Simulation::LoadState, folder), "read: Is a directory");
    EXPECT_EQ(why(Simulation::LoadState, loop), "read: Too many levels of symbolic links");
    EXPECT_EQ(why(Simulation::SaveState, folder / "none" / "camera"), "written: No such file or directory");
}

TEST_F(CameraState, StaysAsItWasWhenItCannotBeWritten) {
    const auto camera = MakeCamera("Sollux G");
    std::filesystem::create_directories(file / "in the way");
    EXPECT_THROW(Simulation::SaveState(*camera, file), Simulation::StateError);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
}

} // namespace Scenario
