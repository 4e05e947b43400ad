#include "NetworkCamera.h"

#include <future>
#include <regex>

namespace Scenario {

namespace {

std::string Replaced(std::string text, const std::string& part, const std::string& by) {
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size())) {
        text.replace(at, part.size(), by);
    }
    return text;
}

/// What a result says whichever way the camera was reached: without the names of registers, which a tour of a camera on
/// the network does not know, without what goes by the clock, and as if every camera stood where those in a process do.
std::string Comparable(std::string text, const std::string& address = "192.168.1.10") {
    text = Replaced(std::move(text), "the camera at " + address + " behind", "a simulated camera behind");
    text = Replaced(std::move(text), address, "192.168.1.10");
    text = std::regex_replace(text, std::regex("(0x00000024 .*)0xC0A801[0-9A-F]{2}"), "$010xC0A8010A");
    text = std::regex_replace(text, std::regex("(0x[0-9A-F]{8})  .{25}(<-|->)"), "$1 $2");
    text = std::regex_replace(text, std::regex("of them on [0-9A-Za-z]+"), "of them on one");
    text = std::regex_replace(text, std::regex("  \"date\": [^\n]*\n"), "");
    const std::regex moved("(Get(Exposure|Gain|Brightness|Contrast|ABCXRLevel|Temperature[A-Z]*|MotorControl)"
                           "\\([0-9]*\\) += |"
                           "0x(0A030000|14010000|18010000|18020000|470A0000|5A030000|6E140000) -> )[^\n]*");
    text = std::regex_replace(text, moved, "$1 moved");
    text = std::regex_replace(text, std::regex("(\"name\": \"temperature\",[^}]*\"value\": )[0-9]+"), "$1 moved");
    return std::regex_replace(text, std::regex("(^|\n)temperature[^\n]*"), "");
}

/// The first line in which two texts differ, or nothing: whole ones would fill screens.
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

/// Runs commands one after the other on a camera on the network and on one in the host's process, and expects the same
/// of both. MODEL and "--live MODEL" are left out on the network.
void ExpectSame(const std::string& model, const std::string& address, const std::vector<std::string>& commands,
                const std::vector<std::string>& disturbances = {}) {
    const NetworkCamera camera(model, address, disturbances);
    const std::string unique = Replaced(address, ".", "-");
    const std::string state = TemporaryFile(unique + ".state");
    const std::string settings = TemporaryFile(unique + ".json");
    for (const std::string& command : commands) {
        SCOPED_TRACE(command + " of " + model);
        const std::string filled = Replaced(command, "FILE", settings);
        const Outcome here = RunHost(Replaced(filled, "MODEL", model) + " --state " + state);
        const std::string savedHere = Comparable(Content(settings));
        const Outcome there = camera.Run(Replaced(Replaced(filled, "--live MODEL", ""), "MODEL", ""));
        EXPECT_EQ(there.code, here.code);
        EXPECT_EQ(Difference(Comparable(there.out, address), Comparable(here.out)), "");
        EXPECT_EQ(Difference(Comparable(there.err, address), Comparable(here.err)), "");
        EXPECT_EQ(Difference(Comparable(Content(settings), address), savedHere), "");
    }
    std::filesystem::remove(state);
    std::filesystem::remove(settings);
}

const std::vector<std::string> afternoon = {
    "info MODEL",
    "list MODEL",
    "set MODEL gain=31 sharpness=7 username=bench overlayposition.1=20,30",
    "save MODEL FILE",
    "set MODEL gain=600 sharpness=9",
    "diff FILE --live MODEL",
    "restore MODEL FILE",
    "diff FILE --live MODEL",
    "list MODEL --json",
    "get MODEL username overlayposition",
};

/// All of it on a camera of each family at once, since most of the time is waited.
void ExpectSameOfBoth(const std::vector<std::string>& disturbances = {}) {
    std::vector<std::future<void>> runs;
    int last = 10;
    for (const std::string model : {"Orvik-710C", "Cerix-MV7"}) {
        for (const auto& commands : {afternoon, {"tour MODEL"}, {"selftest MODEL"}}) {
            const std::string address = "192.168.1." + std::to_string(last++);
            runs.push_back(std::async(std::launch::async, [=] { ExpectSame(model, address, commands, disturbances); }));
        }
    }
}

} // namespace

TEST(ChannelResult, EveryCommandGivesTheSameAsInProcess) { ExpectSameOfBoth(); }

TEST(ChannelLoss, LosesNoResult) {
    const std::vector<std::string> disturbances{"--drop", "0.05", "--duplicate", "0.05", "--delay", "2"};
#ifdef QDV12_SANITIZED // of which each lost datagram costs half a second
    ExpectSame("Orvik-710C", "192.168.1.10", {"info MODEL"}, disturbances);
#else
    ExpectSameOfBoth(disturbances);
#endif
}

} // namespace Scenario
