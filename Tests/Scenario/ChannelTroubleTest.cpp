#include "Tests/Scenario/NetworkCamera.h"

#include "Host/Channel/GigEPort.h"

#include <chrono>
#include <functional>
#include <future>
#include <optional>
#include <regex>
#include <thread>

namespace Scenario {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::seconds;

constexpr seconds patience{25}; ///< within which a command has told what is wrong

/// "gain: ReadRegister at 0x14010000 failed: " as a pattern, of whatever function and access.
const std::string failed = "qdv12host: [^\n]+: [A-Za-z]+ at 0x[0-9A-F]{8} failed: the camera at [0-9.]+ ";

void ExpectMatch(const std::string& text, const std::string& pattern) {
    EXPECT_TRUE(std::regex_match(text, std::regex(pattern))) << text;
}

/// Runs what ends with one line about a camera that is gone, and about what was left undone.
void ExpectLost(const std::string& command, const std::function<Outcome()>& run, int code = 1) {
    const auto start = Clock::now();
    const Outcome outcome = run();
    EXPECT_LT(Clock::now() - start, patience) << command;
    EXPECT_EQ(outcome.code, code) << command;
    ExpectMatch(outcome.err, failed + "no longer answers(; [a-z]+ may still be [^;]+)?"
                                      "(; the settings could not be restored; they are saved in \"[^\"]+\""
                                      "|; [0-9]+ of [0-9]+ functions restored, [^;]* not reached)?\n");
    if (const std::size_t at = outcome.err.find("in \""); at != std::string::npos) { // what a selftest has kept
        const std::string file = outcome.err.substr(at + 4, outcome.err.find('"', at + 4) - at - 4);
        EXPECT_EQ(RunHost("diff '" + file + "' '" + file + "'").code, 0);
        std::filesystem::remove(file);
    }
}

/// Watches a camera, and has begun to.
struct Watching : Running {
    explicit Watching(const std::string& address) : Running(QDV12_HOST, {"watch", "gige:" + address, "gain=7"}, both) {
        EXPECT_TRUE(ReadUntil(begun)) << Read();
    }

    /// How it ended, and what it said after it had begun.
    Outcome Ending() {
        const int code = End();
        return {code, "", Read().substr(Read().find(begun) + begun.size())};
    }

private:
    const std::string begun = "0 -> 7\n";
};

} // namespace

TEST(ChannelTrouble, ARebootInTheMiddleEndsInOneLine) {
    const std::string file = TemporaryFile("json");
    ASSERT_EQ(RunHost("save Orvik-710C " + file).code, 0);
    struct Case {
        std::string command;
        const char* model;
        const char* requests; ///< after which the camera starts anew
        int code = 1;
    };
    const Case cases[] = {
        {"list CAMERA", "Orvik-710C", "90"},
        {"list CAMERA", "Cerix-MV7", "90"},
        {"list --all CAMERA", "Cerix-MV7", "800"},
        {"selftest CAMERA", "Orvik-710C", "70"},
        {"selftest CAMERA", "Orvik-710C", "400"},
        {"selftest CAMERA", "Cerix-MV7", "300"},
        {"selftest --outputs CAMERA", "Cerix-MV7", "1500"},
        {"restore " + file + " CAMERA", "Orvik-710C", "100"},
        {"diff " + file + " CAMERA", "Orvik-710C", "100", 2},
    };
    std::vector<std::future<void>> runs;
    int last = 10;
    for (const Case& each : cases) {
        const std::string address = "192.168.1." + std::to_string(last++);
        runs.push_back(std::async(std::launch::async, [each, address] {
            const NetworkCamera camera(each.model, address, {"--reboot-after", each.requests});
            ExpectLost(
                each.command, [&] { return camera.Run(each.command); }, each.code);
        }));
    }
    runs.clear(); // waits for them
    std::filesystem::remove(file);
}

TEST(ChannelTrouble, ABusyCameraIsAskedAgain) {
    const NetworkCamera camera("Orvik-710C", "192.168.1.10", {"--nack", "0.02"});
    const std::string file = TemporaryFile("json");
    for (const std::string& command :
         {"save CAMERA " + file, std::string("selftest CAMERA"), "restore " + file + " CAMERA"}) {
        const Outcome run = camera.Run(command);
        EXPECT_EQ(run.code, 0) << run.out;
        EXPECT_EQ(run.err, "") << command;
    }
    std::filesystem::remove(file);
    const NetworkCamera busy("Orvik-710C", "192.168.1.11", {"--nack", "1"});
    EXPECT_EQ(busy.Run("info CAMERA").err,
              "qdv12host: the camera at 192.168.1.11 could not be opened: the camera is busy (0x8007)\n");
}

TEST(ChannelTrouble, WhoIsEndedGivesControlBack) {
    const NetworkCamera camera("Orvik-710C", "192.168.1.10", {"--delay", "8"});
    Running list(QDV12_HOST, {"list", "--all", "gige:192.168.1.10"}, STDOUT_FILENO);
    ASSERT_TRUE(list.ReadUntil("NAME"));
    list.Signal(SIGTERM);
    EXPECT_EQ(list.End(), -1); // by that signal
    EXPECT_FALSE(Has(list.Read(), "iodelay.5"));
    const Outcome next = camera.Run("set CAMERA gain=5");
    EXPECT_EQ(next.code, 0) << next.err;
}

TEST(ChannelTrouble, AShellThatIsEndedStopsAcquisition) {
    const std::string record = TemporaryFile("pcap");
    const NetworkCamera camera("Cerix-MV7", "192.168.1.10", {"--record", record});
    const auto runs = [&] { return Has(camera.Run("peek CAMERA 0x88134 --no-control").out, "0x00088134  0x00000001"); };
    Running shell("bash", {"-c", "exec " QDV12_HOST " shell gige:192.168.1.10 < <(echo start; sleep 60)"},
                  STDOUT_FILENO);
    for (int looks = 0; looks < 100 && !runs(); ++looks) {
    }
    shell.Signal(SIGTERM);
    EXPECT_EQ(shell.End(), -1) << shell.Read();          // by that signal
    const std::string stop("\0\x08\x81\x38\0\0\0\0", 8); // written, before control is given back
    EXPECT_NE(Content(record).find(stop), std::string::npos);
    std::filesystem::remove(record);
}

TEST(ChannelTrouble, ARecordedSessionFailsAgain) {
    const std::string file = TemporaryFile("jsonl");
    for (const char* model : {"Orvik-710C", "Cerix-MV7"}) {
        const NetworkCamera camera(model, "192.168.1.10",
                                   {"--fault", "failread:sharpness", "--fault", "fail:packetdelay"});
        for (const std::string command : {"list CAMERA", "get CAMERA gain sharpness overlayshow.1 --no-control",
                                          "set CAMERA gain=7 packetdelay=1"}) {
            const Outcome first = camera.Run(command + " --record " + file);
            const Outcome again = RunHost(Replaced(command, "CAMERA", "replay:" + file));
            EXPECT_EQ(again.code, first.code) << command;
            EXPECT_EQ(again.out, first.out) << command;
            EXPECT_EQ(again.err, first.err) << command;
        }
    }
    std::filesystem::remove(file);
}

TEST(ChannelTrouble, ARestoreTellsItsResultsAsTheyArriveAndIsEndedInOrder) {
    const NetworkCamera camera("Orvik-710C", "192.168.1.10", {"--delay", "4"});
    const std::string file = TemporaryFile("json");
    ASSERT_EQ(camera.Run("save CAMERA " + file).code, 0);
    for (const int signal : {SIGTERM, SIGHUP}) {
        ASSERT_EQ(camera.Run("set CAMERA agc=off gain=7 agc=2").code, 0);
        Running restore(QDV12_HOST, {"restore", file, "gige:192.168.1.10"}, Running::both);
        ASSERT_TRUE(restore.ReadUntil("\nexposuremode  ")) << restore.Read();
        restore.Signal(signal);
        EXPECT_EQ(restore.End(), 1);
        EXPECT_FALSE(Has(restore.Read(), "\noverlayshow"));
        EXPECT_TRUE(Has(restore.Read(), "\nagc                       reverted    2, as before\n"
                                        "qdv12host: interrupted; "));
        EXPECT_EQ(camera.Run("get CAMERA agc").out, "agc=2\n");
    }
    std::filesystem::remove(file);
}

TEST(ChannelTrouble, ControlThatTimedOutIsTold) {
    const std::string file = TemporaryFile("json");
    ASSERT_EQ(RunHost("save Orvik-710C " + file).code, 0);
    const NetworkCamera camera("Orvik-710C");
    const NetworkCamera slow("Orvik-710C", "192.168.1.11", {"--delay", "20"});
    ASSERT_EQ(slow.Run("set CAMERA sharpness=9 agc=1").code, 0);
    Watching watch("192.168.1.10");
    Running restore(QDV12_HOST,
                    {"restore", file, "gige:192.168.1.11", "--keep-trying", "--only", "gain,sharpness", "--trace"},
                    Running::both);
    ASSERT_TRUE(restore.ReadUntil("\nwrite WriteMem          0x46020000  0"));
    watch.Signal(SIGSTOP); // and with it the heartbeat; the cameras stay as they are
    restore.Signal(SIGSTOP);
    std::this_thread::sleep_for(seconds(4));
    watch.Signal(SIGCONT);
    restore.Signal(SIGCONT);
    const Outcome outcome = watch.Ending();
    EXPECT_EQ(outcome.code, 1);
    ExpectMatch(outcome.err, "qdv12host: [^\n]+ failed: control of the camera at 192\\.168\\.1\\.10 was lost\n");

    // It begins again, and puts back the mode that it found when it began first.
    EXPECT_EQ(restore.End(), 0);
    const std::string& told = restore.Read();
    EXPECT_TRUE(std::regex_search(
        told,
        std::regex("\nqdv12host: [a-z]+: [^\n]+ failed: control of the camera at 192\\.168\\.1\\.11 was lost; 0 of 2 "
                   "functions restored, 2 not reached; automatic modes left off: agc; waiting for the camera\n"
                   "qdv12host: the camera is back after [0-9.]+ s\n")))
        << told;
    EXPECT_TRUE(Has(told, "\nsharpness                 ok          9 -> 0\n"));
    EXPECT_TRUE(Has(told, "\nagc                       reverted    1, as before\n"));
    EXPECT_EQ(slow.Run("get CAMERA agc sharpness").out, "agc=1\nsharpness=0\n");
    std::filesystem::remove(file);
}

TEST(ChannelTrouble, ACameraThatStandsStillOrIsGoneIsLost) {
    std::vector<std::future<void>> runs;
    for (const int signal : {SIGSTOP, SIGKILL}) {
        runs.push_back(std::async(std::launch::async, [signal] {
            const std::string address = "192.168.1." + std::to_string(signal);
            const NetworkCamera camera("Orvik-390C", address);
            Watching watch(address);
            camera.Signal(signal);
            ExpectLost("watch", [&] { return watch.Ending(); });
        }));
    }
}

TEST(ChannelTrouble, AWatchThatKeepsTryingGoesOnWhenTheCameraIsBack) {
    Running watch(QDV12_HOST, {"watch", "gige:192.168.1.10", "gain", "gain=7", "--keep-trying"}, Running::both);
    ASSERT_TRUE(watch.ReadUntil("no answer\n"));
    std::optional<NetworkCamera> camera(std::in_place, "Orvik-710C");
    ASSERT_TRUE(watch.ReadUntil("0 -> 7\n"));
    camera.reset();
    camera.emplace("Orvik-710C"); // which holds its defaults
    ASSERT_TRUE(watch.ReadUntil(" was lost\n"));
    ASSERT_TRUE(watch.ReadUntil("  back  ", watch.Read().size()));
    camera.reset();
    camera.emplace("Cerix-MV7");
    EXPECT_EQ(watch.End(), 3);
    const std::string time = "[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3}  ";
    const std::string waiting = time + "waiting   gige:192\\.168\\.1\\.10       ";
    const std::string back = time + "back      gige:192\\.168\\.1\\.10       after [0-9]+\\.[0-9] s\n";
    const std::string lost =
        "gain: ReadMem at 0x14010000 failed: control of the camera at 192\\.168\\.1\\.10 was lost\n";
    ExpectMatch(watch.Read(),
                waiting + "the camera at 192\\.168\\.1\\.10 could not be opened: no answer\n" + back + //
                    time + "first     gain                    0\n" +                                   //
                    time + "camera    gain                    0 -> 7\n" +                              //
                    time + "camera    gain                    7 -> 0\n" +                              // not set again
                    waiting + lost + back + waiting + lost +
                    "qdv12host: the camera at 192\\.168\\.1\\.10 is now Cerix-MV7, it was Orvik-710C\n");
}

TEST(ChannelTrouble, AWatchThatKeepsTryingWaitsForControl) {
    const NetworkCamera camera("Cerix-MV7");
    std::optional<Host::GigEPort> other(std::in_place, "192.168.1.10");
    Running watch(QDV12_HOST, {"watch", "gige:192.168.1.10", "gain", "gain=7", "--keep-trying", "--json"},
                  Running::both);
    ASSERT_TRUE(watch.ReadUntil("\"source\":\"waiting\",\"reason\":\"the camera at 192.168.1.10 is controlled by "
                                "another program at 192.168.1.10:"));
    other.reset();
    ASSERT_TRUE(watch.ReadUntil("\"name\":\"gige:192.168.1.10\",\"source\":\"back\",\"goneMilliseconds\":"));
    ASSERT_TRUE(watch.ReadUntil("\"name\":\"gain\",\"source\":\"camera\",\"before\":0,\"value\":7}\n"));
    watch.Signal(SIGINT);
    EXPECT_EQ(watch.End(), 0);
    EXPECT_TRUE(
        std::regex_search(watch.Read(), std::regex("^\\{\"time\":\"[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9:]{8}\\.[0-9]{3}"
                                                   "[+-][0-9]{2}:[0-9]{2}\",\"milliseconds\":[0-9]+,")))
        << watch.Read();
    EXPECT_EQ(camera.Run("watch gige:192.168.1.11 gain --keep-trying --seconds 0.1").code, 3);
    EXPECT_EQ(camera.Run("watch CAMERA gain restart --no-control").code, 2);
}

TEST(ChannelTrouble, ARestoreThatKeepsTryingWaitsForNoRefusal) {
    const std::string file = TemporaryFile("json");
    ASSERT_EQ(RunHost("save Orvik-710C " + file).code, 0);
    const NetworkCamera faulty("Orvik-710C", "192.168.1.10", {"--fault", "ignore:sharpness"});
    const std::string other = Replaced(Content(file), "\"sharpness\": 0", "\"sharpness\": 7");
    std::ofstream(file) << other;
    EXPECT_EQ(faulty.Run("restore " + file + " CAMERA --keep-trying --only sharpness").code, 1);
    Running waiting(QDV12_HOST, {"restore", file, "gige:192.168.1.11", "--keep-trying"}, Running::both);
    ASSERT_TRUE(waiting.ReadUntil("could not be opened: no answer; waiting for the camera\n"));
    waiting.Signal(SIGINT);
    EXPECT_EQ(waiting.End(), 1);
    EXPECT_TRUE(waiting.Read().ends_with("\nqdv12host: interrupted; 0 of 68 functions restored, 68 not reached\n"))
        << waiting.Read();
    std::filesystem::remove(file);
}

TEST(ChannelTrouble, NobodyAnsweringIsToldSoon) {
    const auto start = Clock::now();
    const Outcome run = RunHost("info gige:192.168.1.77");
    EXPECT_LT(Clock::now() - start, patience);
    EXPECT_EQ(run.code, 3);
    EXPECT_EQ(run.err, "qdv12host: the camera at 192.168.1.77 could not be opened: no answer\n");
    EXPECT_EQ(RunHost("info gige:203.0.113.1").err, // there is loopback alone
              "qdv12host: cannot reach 203.0.113.1: Network is unreachable\n");
}

TEST(ChannelTrouble, WhatAnotherProgramControlsCanBeReadAndNotWritten) {
    const NetworkCamera camera("Orvik-710C");
    const std::string file = TemporaryFile("json");
    ASSERT_EQ(camera.Run("save CAMERA " + file).code, 0);
    Watching holder("192.168.1.10");

    const std::string held = "the camera at 192\\.168\\.1\\.10 is controlled by another program at "
                             "192\\.168\\.1\\.10:[0-9]+";
    const std::vector<std::string> writing = {"set CAMERA gain=5", "selftest CAMERA", "watch CAMERA gain=5 --seconds 1",
                                              "restore " + file + " CAMERA", "save CAMERA " + file + ".2"};
    for (const std::string& command : writing) {
        const Outcome run = camera.Run(command);
        EXPECT_EQ(run.code, 3) << command;
        EXPECT_EQ(run.out, "") << command;
        ExpectMatch(run.err, "qdv12host: " + held + "\n");
    }
    EXPECT_FALSE(std::filesystem::exists(file + ".2"));
    const Outcome get = camera.Run("get CAMERA gain overlayshow.1");
    EXPECT_EQ(get.out, "gain=7\n");
    const std::string notRead = "qdv12host: " + held + "; values that need control were not read\n";
    ExpectMatch(get.err, "qdv12host: overlayshow\\.1: needs control\n" + notRead);
    const Outcome list = camera.Run("list CAMERA");
    EXPECT_EQ(list.code, 0);
    ExpectMatch(list.err, notRead);
    EXPECT_TRUE(std::regex_search(list.out, std::regex("\nioport\\.2 +- +needs control\n")));
    EXPECT_TRUE(std::regex_search(list.out, std::regex("\nreadoutarea +0,0,3207,2207 px +limits need control\n")));
    EXPECT_TRUE(Has(camera.Run("list CAMERA --json").out, "\"error\": \"needs control\""));
    EXPECT_EQ(camera.Run("watch CAMERA --seconds 0").code, 0);
    EXPECT_EQ(camera.Run("restore --dry-run " + file + " CAMERA").code, 0);

    const std::string missing = "qdv12host: " + held +
                                "; without control these cannot be read: overlayshow, overlayposition, overlaystyle, "
                                "overlaysize, measurewindow, iomode, "
                                "ioport, iopolarity, iodelay\n";
    const Outcome diff = camera.Run("diff " + file + " CAMERA");
    EXPECT_EQ(diff.code, 3);
    ExpectMatch(diff.out, "gain +0 +7\n");
    ExpectMatch(diff.err, missing);

    holder.Signal(SIGINT); // which gives control back
    EXPECT_EQ(holder.End(), 0);
    EXPECT_EQ(camera.Run("set CAMERA gain=5").code, 0);
    std::filesystem::remove(file);
}

TEST(ChannelTrouble, NoControlOnlyReads) {
    const std::string record = TemporaryFile("pcap");
    const std::string settings = TemporaryFile("json");
    const std::string denied = "qdv12host: the camera at 192.168.1.10 was opened with --no-control; ";
    ASSERT_EQ(RunHost("save Orvik-710C " + settings).code, 0);
    const NetworkCamera disturbed("Orvik-710C", "192.168.1.11",
                                  {"--drop", "0.02", "--duplicate", "0.1", "--nack", "0.05", "--delay", "2"});
    const NetworkCamera camera("Orvik-710C", "192.168.1.10", {"--record", record});
    Host::GigEPort controller("192.168.1.10");
    const std::string listed = camera.Run("list CAMERA --no-control").out;
    EXPECT_TRUE(Has(listed, "limits need control"));
    EXPECT_TRUE(Replaced(disturbed.Run("list CAMERA --no-control").out, "168.1.11", "168.1.10") == listed);
    controller.WriteRegister(0x14010000, 7);
    const Outcome get = camera.Run("get CAMERA gain overlayshow.1 --no-control");
    EXPECT_EQ(get.code, 1);
    EXPECT_EQ(get.out, "gain=7\n");
    EXPECT_EQ(get.err,
              "qdv12host: overlayshow.1: needs control\n" + denied + "values that need control were not read\n");
    const Outcome diff = camera.Run("diff " + settings + " CAMERA --no-control");
    EXPECT_EQ(diff.code, 3);
    ExpectMatch(diff.out, "gain +0 +7\n");
    EXPECT_TRUE(diff.err.starts_with(denied + "without control these cannot be read: overlayshow, ")) << diff.err;
    EXPECT_EQ(camera.Run("info CAMERA --no-control").code, 0);
    EXPECT_EQ(camera.Run("watch CAMERA --no-control --seconds 0").code, 0);
    for (const char* writing :
         {"watch CAMERA gain=5 --no-control", "set CAMERA gain=5 --no-control", "save CAMERA x --no-control"}) {
        EXPECT_EQ(camera.Run(writing).code, 2) << writing;
    }
    controller.RequireUnbrokenControl();
    const std::string sent = Content(record);
    const std::regex writes("B\x01\\0(\x82\\0\x08|\x86\\0)"); // the headers of write requests
    EXPECT_EQ(std::distance(std::sregex_iterator(sent.begin(), sent.end(), writes), {}), 2); // of the controller
    std::filesystem::remove(record);
    std::filesystem::remove(settings);
}

TEST(ChannelTrouble, ControlIsGivenBackToABusyCamera) {
    const std::string file = TemporaryFile("settings.json");
    for (const char* seed : {"4", "5", "6"}) {
        const NetworkCamera camera("Orvik-710C", "127.0.0.5", {"--nack", "0.05", "--seed", seed});
        EXPECT_EQ(camera.Run("save CAMERA " + file).code, 0);
        const Outcome set = camera.Run("set CAMERA gain=5");
        EXPECT_EQ(set.code, 0) << set.err;
    }
    std::filesystem::remove(file);
}

} // namespace Scenario
