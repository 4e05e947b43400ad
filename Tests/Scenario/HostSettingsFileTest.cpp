#include "Tests/Scenario/InProcess.h"
#include "Tests/Scenario/SettingsFixture.h"

#include "Host/Channel/ChannelErrors.h"

#include "Simulation/PortError.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <future>

namespace Scenario {

namespace {

using Given = Host::Invocation::Given;
using Host::Parameter;

/// A camera of another firmware, without the registers of sharpness, as on the network, and of the levels of the I/O
/// lines, as in process.
void Lack(const Host::Access& access) {
    if (access.address == 0x18030000) {
        throw Host::NoSuchAddress(access.operation, access.address, "the camera has no such address (0x8003)");
    }
    if (access.address == 0x66030000) {
        throw Simulation::InvalidAddressError(access.operation, access.address);
    }
}

mode_t ModeOf(const std::string& file) {
    struct stat status {};
    stat(file.c_str(), &status);
    return status.st_mode & 0777U;
}

} // namespace

TEST_F(HostSettings, OfACameraThatLacksRegistersAreSavedWithoutThem) {
    const std::string lacking = "a simulated camera lacks the registers of these, which are left out: ";
    const Given save{{Parameter::Camera, {"Orvik-390M"}}, {Parameter::File, {saved}}};
    const Outcome run = RunInProcess(Host::Save, save, Lack);
    EXPECT_EQ(run.code, 0);
    EXPECT_TRUE(run.err.starts_with("qdv12host: " + lacking)) << run.err;
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    const std::string text = Content(saved);
    EXPECT_FALSE(Has(text, "\"sharpness\": "));
    EXPECT_TRUE(Has(text, "\n  \"missing\": [\n"));
    EXPECT_TRUE(Has(text, "\n    \"sharpness\""));
    EXPECT_TRUE(Has(RunInProcess(Host::Save, save, Lack, "", true).out, "\"missing\": [\n"));

    const auto diff = [&](const Observer& observer) {
        return RunInProcess(Host::Diff, {{Parameter::First, {saved}}, {Parameter::Second, {"Orvik-390M"}}}, observer);
    };
    EXPECT_EQ(diff(Lack).code, 0);
    const Outcome whole = diff([](const Host::Access&) {});
    EXPECT_EQ(whole.code, 2);
    EXPECT_EQ(whole.out, "");
    EXPECT_TRUE(whole.err.starts_with("qdv12host: \"" + saved + "\" has no values of these, which are not compared: "))
        << whole.err;
    EXPECT_EQ(Run("restore " + saved + " Orvik-390M").code, 0);
    const std::string unknown = Replaced(text, "    \"persistentip\": \"off\",\n", ""); // to the version that saved it
    ASSERT_NE(unknown, text);
    Write(other, unknown);
    const Outcome newer = Run("diff " + other + " " + saved);
    EXPECT_EQ(newer.code, 2);
    EXPECT_EQ(newer.out, "");
    EXPECT_EQ(newer.err, "qdv12host: \"" + other + "\" has no values of these, which are not compared: persistentip\n");
    Write(other, Replaced(text, "\"sharpness\"", "\"sharpnes\""));
    EXPECT_TRUE(Has(Run("diff " + other + " " + saved).err, "unknown function \"sharpnes\"; did you mean"));
}

TEST_F(HostSettings, ThatCannotBeComparedDoNotCountAsDifferent) {
    ASSERT_EQ(Run("save Orvik-390M " + saved).code, 0);
    ASSERT_EQ(RunHost("save Orvik-710M " + other).code, 0);
    Write(input, "{");
    const std::string live = "diff " + saved + " Orvik-390M ";
    const std::pair<std::string, int> cases[] = {
        {live, 0},
        {live + "--fault failread:sharpness", 2},
        {live + "--fault fail:0x18030000 --json", 2},
        {"diff " + saved + " " + other, 2},
        {"diff " + saved + " " + input, 2},
        {"diff " + saved + " - <" + other, 2},
        {"diff - - <" + saved, 2},
        {live + "--only gain --except gain", 2},
        {live + "--only temperature", 2},
        {"diff " + saved + " Orvik-390", 2},
        {live + "--plugin /nowhere/p.so", 3},
        {live + "--json >/dev/full", 2},
    };
    for (const auto& [command, code] : cases) {
        const Outcome run = RunHost("-c '" QDV12_HOST " " + command + "'", "sh");
        EXPECT_EQ(run.code, code) << command;
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), code == 0 ? 0 : 1) << run.err;
    }
    ASSERT_EQ(Run("set Orvik-390M gain=7").code, 0);
    const Outcome both = Run(live + "--fault failread:sharpness");
    EXPECT_EQ(both.code, 2);
    EXPECT_EQ(both.out, "gain                      0                       7\n");
}

TEST_F(HostSettings, KeepATextThatIsNoUtf8) {
    struct Case {
        const char* model;
        const char* name;
        const char* json;
    };
    const Case cases[] = {
        {"Orvik-390M", "caf\xE9", "{\n      \"hex\": \"636166e9\"\n    }"},          // Latin-1
        {"Cerix-MV7", "caf\xC3", "{\n      \"hex\": \"636166c3\"\n    }"},           // truncated
        {"Orvik-390M", "\xED\xA0\x80", "{\n      \"hex\": \"eda080\"\n    }"},       // a surrogate
        {"Orvik-390M", "\xC0\xAF", "{\n      \"hex\": \"c0af\"\n    }"},             // overlong
        {"Orvik-390M", "\xF4\x90\x80\x80", "{\n      \"hex\": \"f4908080\"\n    }"}, // above U+10FFFF
        {"Cerix-MV7", "caf\xC3\xA9", "\"caf\xC3\xA9\""},
        {"Orvik-390M", "\xF0\x9F\x93\xB7", "\"\xF0\x9F\x93\xB7\""},
    };
    for (const auto& [model, name, json] : cases) {
        std::filesystem::remove(state);
        ASSERT_EQ(Run("set " + std::string(model) + " username='" + name + "'").code, 0);
        ASSERT_EQ(Run("save " + std::string(model) + " " + saved).code, 0);
        EXPECT_TRUE(Has(Content(saved), "\"username\": " + std::string(json)));
        const Outcome diff = Run("diff " + saved + " " + model);
        EXPECT_EQ(diff.code, 0) << diff.out << diff.err;
    }
    for (const char* hex : {"6", "6z", "00", "+1"}) {
        Write(other, Replaced(Content(saved), "\"\xF0\x9F\x93\xB7\"", "{\"hex\": \"" + std::string(hex) + "\"}"));
        EXPECT_EQ(Run("diff " + saved + " " + other).code, 2) << hex;
    }
}

TEST_F(HostSettings, NestedWithoutEndAreDamaged) {
    for (const std::string& text : {std::string(30000, '[') + std::string(30000, ']'), std::string(30000, '[')}) {
        Write(saved, text);
        const Outcome diff = Run("diff " + saved + " " + saved);
        EXPECT_EQ(diff.code, 2);
        EXPECT_TRUE(Has(diff.err, "damaged, or not a settings file: nested too deeply\n")) << diff.err;
    }
}

TEST_F(HostSettings, ThatAreWriteProtectedStay) {
    Write(saved, "precious");
    std::filesystem::permissions(saved, std::filesystem::perms::owner_read);
    if (access(saved.c_str(), W_OK) == 0) {
        GTEST_SKIP() << "this user may write any file";
    }
    EXPECT_EQ(Run("save Orvik-390M " + saved).code, 2);
    EXPECT_EQ(Content(saved), "precious");
}

TEST_F(HostSettings, HoldAUserNameThatIsCutAtACharacter) {
    const std::pair<const char*, const char*> cases[] = {
        {"15 characters..", "15 characters.."},
        {"16 characters...", "16 characters.."},
        {"fourteen bytes\xC3\xA9", "fourteen bytes"},
        {"twelve bytes\xF0\x9F\x93\xB7", "twelve bytes"},
        {"thirteen byte\xC3\xA9\xC3\xA9", "thirteen byte\xC3\xA9"},
        {"Latin-1 \xE9\xE9\xE9\xE9\xE9\xE9\xE9\xE9", R"(Latin-1 \xE9\xE9\xE9\xE9\xE9\xE9\xE9)"},
        {"no UTF-8 \xA9\xA9\xA9\xA9\xA9\xA9\xA9\xA9", R"(no UTF-8 \xA9\xA9\xA9\xA9\xA9\xA9)"},
    };
    for (const char* model : {"Orvik-390M", "Cerix-MV7"}) {
        for (const auto& [name, held] : cases) {
            const Outcome run = RunHost("set " + std::string(model) + " username='" + name + "'");
            EXPECT_EQ(run.out, "username=" + std::string(held) + "\n");
        }
    }
}

TEST_F(HostSettings, GoThroughStandardOutputAndInput) {
    ASSERT_EQ(Run("set Orvik-390M gain=7").code, 0);
    const Outcome save = Run("save Orvik-390M -");
    EXPECT_EQ(save.code, 0);
    EXPECT_TRUE(Has(save.err, " functions of Orvik-390M saved to standard output\n")) << save.err;
    Write(saved, save.out);
    ASSERT_EQ(Run("set Orvik-390M gain=9").code, 0);
    const auto piped = [&](const std::string& arguments) {
        return RunHost(arguments + " --state " + state, QDV12_HOST, saved);
    };
    EXPECT_EQ(piped("diff - Orvik-390M").out, "gain                      7                       9\n");
    EXPECT_EQ(piped("diff " + saved + " -").code, 0);
    EXPECT_TRUE(Has(piped("restore - Orvik-390M").out, "\ngain                      ok          9 -> 7\n"));
    EXPECT_EQ(piped("diff Orvik-390M -").code, 0);
    EXPECT_EQ(Run("diff - Orvik-390M").err, "qdv12host: standard input: empty file\n");

    Write(input, "save -\nrestore -\ndiff -\n");
    const Outcome shell = RunHost("shell Orvik-390M", QDV12_HOST, input);
    EXPECT_TRUE(shell.out.starts_with("{\n  \"format\": "));
    const std::string refusal = "qdv12host: standard input is taken by the shell; give a file\n";
    EXPECT_TRUE(shell.err.ends_with("\n" + refusal + refusal)) << shell.err;
}

TEST_F(HostSettings, ThatCannotBeWrittenAreToldAndReplaceNothing) {
    Write(saved, "precious");
    const Outcome full = RunHost("-c '" QDV12_HOST " save Orvik-390M - >/dev/full'", "sh");
    EXPECT_EQ(full.code, 1);
    EXPECT_EQ(full.err, "qdv12host: the results could not be written\n");
    const Outcome large =
        RunHost("-c 'trap \"\" XFSZ; ulimit -f 1; exec " QDV12_HOST " save Orvik-390M " + saved + "'", "sh");
    EXPECT_EQ(large.code, 1);
    EXPECT_EQ(large.err, "qdv12host: \"" + saved + "\": cannot be written: File too large\n");
    EXPECT_EQ(Content(saved), "precious");
    const Outcome nowhere = Run("save Orvik-390M " + other + "/file");
    EXPECT_EQ(nowhere.code, 2);
    EXPECT_EQ(nowhere.err, "qdv12host: \"" + other + "/file\": cannot be written: No such file or directory\n");
    EXPECT_EQ(Run("restore /dev/zero Orvik-390M").err, "qdv12host: \"/dev/zero\": File too large\n");
    EXPECT_TRUE(Has(Run("save Orvik-390M /dev/null").err, "not a regular file; use - for standard output\n"));
}

TEST_F(HostSettings, MayBeSavedToOneFileAtTheSameTime) {
    const std::filesystem::path folder = TemporaryFile("folder");
    std::filesystem::create_directories(folder / "a.json.part"); // a name that another program may use
    const std::string file = folder / "a.json";
    std::array<std::future<int>, 6> saves;
    for (auto& save : saves) {
        save = std::async(std::launch::async, [&] { return RunHost("save Orvik-390M " + file).code; });
    }
    for (auto& save : saves) {
        EXPECT_EQ(save.get(), 0);
    }
    EXPECT_EQ(RunHost("diff " + file + " Orvik-390M").code, 0);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 2); // nothing is left behind

    const mode_t mask = umask(027);
    std::filesystem::remove(file);
    EXPECT_EQ(RunHost("save Orvik-390M " + file).code, 0);
    EXPECT_EQ(ModeOf(file), 0640U);
    chmod(file.c_str(), 0604);
    EXPECT_EQ(RunHost("save Orvik-390M " + file).code, 0);
    EXPECT_EQ(ModeOf(file), 0604U);
    umask(mask);
    std::filesystem::create_symlink("a.json", folder / "link.json");
    EXPECT_EQ(RunHost("save Orvik-390C " + (folder / "link.json").string()).code, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.json"));
    EXPECT_TRUE(Has(Content(file), "Orvik-390C"));
    std::filesystem::remove_all(folder);
}

TEST_F(HostSettings, HoldTheFieldsOfRecordsByTheirNames) {
    const auto values = [](const std::string& arguments) {
        std::string text = RunHost("get --json " + arguments).out;
        std::erase_if(text, [](char character) { return character == ' ' || character == '\n'; });
        return text;
    };
    EXPECT_EQ(values("Orvik-390M imagesize readoutarea overlaysize.1 exposure revision"),
              "{\"imagesize\":{\"width\":2256,\"height\":1728},"
              "\"readoutarea\":{\"startx\":0,\"starty\":0,\"endx\":2255,\"endy\":1727},"
              "\"overlaysize.1\":{\"width\":1,\"length\":10},\"exposure\":{\"base\":0,\"counter\":20000},"
              "\"revision\":{\"value1\":2,\"value2\":1}}");
    EXPECT_EQ(values("'Sollux G' measurewindow overlaystyle.1 defectpixel.2"),
              "{\"measurewindow\":{\"radius\":100,\"width\":2,\"xpos\":0,\"ypos\":0,\"vstretch\":128},"
              "\"overlaystyle.1\":{\"color\":1,\"style\":0},"
              "\"defectpixel.2\":{\"xpos\":512,\"ypos\":44,\"mode\":2}}");
    // The order of fields does not matter.
    ASSERT_EQ(Run("set Orvik-390C binning=1,1 colorbalance=1,2,3 overlayposition.1=20,30").code, 1); // no binning
    ASSERT_EQ(Run("save Orvik-390C " + saved).code, 0);
    const std::string text = Content(saved);
    EXPECT_TRUE(Has(text, "\"red\": 1,\n      \"green\": 2,\n      \"blue\": 3\n"));
    Write(other, Replaced(text, "\"posx\": 20,\n      \"posy\": 30\n", "\"posy\": 30,\n      \"posx\": 20\n"));
    EXPECT_EQ(Run("diff " + saved + " " + other).code, 0);
}

} // namespace Scenario
