#include "Tests/Scenario/NetworkCamera.h"
#include "Tests/Scenario/OperationsOn.h"

#include <future>
#include <regex>

namespace Scenario {

namespace {

/// Makes results comparable: removes values that depend on time, and replaces the camera's address by that of cameras
/// in process.
std::string Comparable(std::string text, const std::string& address = "192.168.1.10") {
    text = std::regex_replace(text, std::regex(address), "192.168.1.10");
    text = std::regex_replace(text, std::regex("  \"date\": [^\n]*\n"), "");
    text = std::regex_replace(text, std::regex("(\"name\": \"temperature\",[^}]*\"value\": )[0-9]+"), "$1 moved");
    return std::regex_replace(text, std::regex("(^|\n)temperature[^\n]*"), "");
}

/// The first line that differs, or empty. Whole texts would be too long to print.
std::string Difference(const std::string& one, const std::string& other) {
    std::istringstream lines(one);
    std::istringstream otherLines(other);
    while (lines || otherLines) {
        std::string line;
        std::string otherLine;
        std::getline(lines, line);
        std::getline(otherLines, otherLine);
        if (line != otherLine) {
            return "\"" + line + "\" is not \"" + otherLine + '"';
        }
    }
    return "";
}

/// Runs commands on a camera on the network and on one in process, and expects the same results.
void ExpectSame(const std::string& model, const std::string& address, const std::vector<std::string>& commands,
                const std::vector<std::string>& disturbances = {}) {
    const NetworkCamera camera(model, address, disturbances);
    // No dots: Comparable would replace an address in messages that name the files.
    const std::string unique = std::regex_replace(address, std::regex("[.]"), "");
    const std::string state = TemporaryFile(unique + ".state");
    const std::string settings = TemporaryFile(unique + ".json");
    for (const std::string& command : commands) {
        SCOPED_TRACE(command + " of " + model);
        const std::string filled = std::regex_replace(command, std::regex("FILE"), settings);
        const Outcome here = RunHost(Replaced(filled, "CAMERA", model) + " --state " + state);
        const std::string savedHere = Comparable(Content(settings));
        const Outcome there = camera.Run(filled);
        EXPECT_EQ(there.code, here.code);
        EXPECT_EQ(Difference(Comparable(there.out, address), Comparable(here.out)), "");
        EXPECT_EQ(Difference(Comparable(there.err, address), Comparable(here.err)), "");
        EXPECT_EQ(Difference(Comparable(Content(settings), address), savedHere), "");
    }
    std::filesystem::remove(state);
    std::filesystem::remove(settings);
}

/// Whether the camera changes the value by itself as time passes.
bool IsMoved(const std::string& operation) {
    static const std::regex moved(".*::Get(Exposure|Gain|Brightness|Contrast|ABCXRLevel|Temperature|MotorControl).*");
    return std::regex_match(operation, moved);
}

Host::Control OpenedAnew(Host::Session& session, int index) {
    Host::Control control = session.CreateControl(index);
    dynamic_cast<SDK4::Control::IBasicSettings&>(*control).LoadSettings(0);
    return control;
}

/// Makes every call of the family on a camera on the network and on one in process, each time with factory settings,
/// and expects the same results and error codes.
void ExpectSameCalls(const std::string& model) {
    const std::string address = "192.168.1.10";
    const NetworkCamera camera(model, address);
    const auto operations = OperationsOf(model);
    const int index = operations.front()->state.UncachedIndex();
    Host::Session here(LoadedPlugin(), model, {.index = index});
    Host::Session there(LoadedPlugin(), "gige:" + address, {.index = index});
    for (const ::Test::Operation* row : operations) {
        const std::string outcomeHere = OutcomeOf(*row, *OpenedAnew(here, index));
        const std::string outcomeThere = OutcomeOf(*row, *OpenedAnew(there, index));
        if (!IsMoved(row->name)) {
            EXPECT_EQ(outcomeThere, outcomeHere) << model << ' ' << row->name;
        }
    }
}

const std::vector<std::string> afternoon = {
    "info CAMERA",
    "list CAMERA",
    "set CAMERA gain=31 sharpness=7 username=bench overlayposition.1=20,30",
    "save CAMERA FILE",
    "set CAMERA gain=600 sharpness=9",
    "diff FILE CAMERA",
    "restore FILE CAMERA",
    "diff FILE CAMERA",
    "list CAMERA --json",
    "get CAMERA username overlayposition",
    "poke CAMERA 0x14010000=9 0x0D0C=1 --yes",
    "peek CAMERA 0x0068 4",
};

/// Runs all checks on a camera of each family, in parallel, since most of the time is waiting.
void ExpectSameOfBoth(const std::vector<std::string>& checks, const std::vector<std::string>& disturbances = {}) {
    std::vector<std::future<void>> runs;
    int last = 10;
    for (const std::string model : {"Orvik-710C", "Cerix-MV7"}) {
        for (const auto& commands : {afternoon, checks}) {
            const std::string address = "192.168.1." + std::to_string(last++);
            runs.push_back(std::async(std::launch::async, [=] { ExpectSame(model, address, commands, disturbances); }));
        }
    }
}

} // namespace

TEST(ChannelResult, EveryCommandGivesTheSameAsInProcess) { ExpectSameOfBoth({"list CAMERA --all", "selftest CAMERA"}); }

TEST(ChannelResult, EveryCallGivesTheSameAsInProcess) {
    ExpectSameCalls("Orvik-710C");
    ExpectSameCalls("Cerix-MV7");
}

TEST(ChannelLoss, LosesNoResult) {
    const std::vector<std::string> disturbances{"--drop", "0.05", "--duplicate", "0.05", "--delay", "2"};
#ifdef QDV12_SANITIZED // each lost datagram takes half a second
    ExpectSame("Orvik-710C", "192.168.1.10", {"info CAMERA"}, disturbances);
#else
    ExpectSameOfBoth({"selftest CAMERA"}, disturbances);
#endif
}

} // namespace Scenario
