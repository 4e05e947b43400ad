#include "Tests/Scenario/SettingsFixture.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sstream>
#include <string>
#include <vector>

namespace Scenario {

/// The sessions in Tests/recordings. Its script `renew` makes them anew.
TEST(Recording, GivesTheRecordedResultsWhenItIsReplayed) {
    const std::string folder = QDV12_RECORDINGS;
    int sessions = 0;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        if (file.path().extension() != ".txt") {
            continue;
        }
        ++sessions;
        const std::string session = file.path().stem();
        const std::string printed = "shell replay:" + session + ".jsonl <" + session + ".txt 2>&1 | grep -v date)";
        const Outcome run = RunHost(printed, "(cd " + folder + "; " QDV12_HOST);
        EXPECT_EQ(run.out, Content(folder + "/" + session + ".out")) << session;
    }
    EXPECT_GE(sessions, 2);
}

class Recorded : public HostSettings {
protected:
    Recorded() { Write(input, ""); }

    /// Replays what was recorded to `saved`.
    [[nodiscard]] Outcome Replay(const std::string& command, const std::string& file = "") const {
        return RunHost(Replaced(command, "CAMERA", "replay:" + (file.empty() ? saved : file)), QDV12_HOST, input);
    }
    [[nodiscard]] Outcome Record(const std::string& command, const std::string& camera) const {
        return RunHost(Replaced(command, "CAMERA", camera) + " --record " + saved);
    }
};

TEST_F(Recorded, SessionsFailAsTheyDid) {
    const std::string commands[] = {
        "set CAMERA gain=5 lutmode=1 sharpness=9 packetsize=1501",
        "get CAMERA gain sharpness measurewindow", // nothing returned
        "save CAMERA -",                           // ends at the first failure
        "info CAMERA --json",
    };
    for (const std::string model : {"Orvik-710C", "Cerix-MV7"}) {
        for (const std::string& command : commands) {
            const Outcome first = Record(
                command, model + " --fault failwrite:gain --fault failread:sharpness --fault null:measurewindow");
            const Outcome again = Replay(command);
            EXPECT_EQ(again.code, first.code) << command;
            EXPECT_EQ(again.out, first.out) << command;
            EXPECT_EQ(again.err, first.err) << command;
        }
    }
    ASSERT_EQ(Record("set CAMERA gain=9 lutmode=1", "Orvik-710C").code, 0);
    Write(other, Replaced(Content(saved), "\"data\":\"00000000\"",
                          "\"length\":4,\"failed\":\"lost\",\"reason\":\"it is gone\""));
    const Outcome lost = Replay("set CAMERA gain=9 lutmode=1", other);
    EXPECT_TRUE(lost.err.starts_with("qdv12host: gain: ReadMem at 0x46020000 failed: it is gone\n")) << lost.err;
    EXPECT_EQ(lost.out, "");
}

TEST_F(Recorded, SessionsShowTheFirstDifference) {
    ASSERT_EQ(Record("set CAMERA gain=9 lutmode=1", "Orvik-710C").code, 0);
    struct Case {
        const char* command;
        int code;
        std::string out;
        std::string err;
    };
    const std::string recordedWith = "; recorded with: set Orvik-710C gain=9 lutmode=1\n";
    const Case cases[] = {
        {"set CAMERA gain=9 lutmode=1", 0, "gain=9\nlutmode=1\n", ""},
        {"set CAMERA gain=8 lutmode=1", 1, "",
         "qdv12host: gain: WriteMem at 0x14010000 failed: line 3 of the recording has WriteMem at 0x14010000 of 9 (set "
         "gain), this run WriteMem at 0x14010000 of 8 (set gain)" +
             recordedWith},
        {"get CAMERA gain", 1, "",
         "qdv12host: gain: ReadMem at 0x14010000 failed: line 2 of the recording has ReadMem at 0x46020000 of 4 bytes "
         "(set gain), this run ReadMem at 0x14010000 of 4 bytes (get gain)" +
             recordedWith},
        {"set CAMERA gain=9", 1, "gain=9\n",
         "qdv12host: 2 accesses of the recording were not made, the first in line 5: WriteMem at 0x19020000 of 1 (set "
         "lutmode)" +
             recordedWith},
        {"set CAMERA gain=9 lutmode=1 gain=9", 1, "gain=9\nlutmode=1\n",
         "qdv12host: gain: ReadMem at 0x46020000 failed: the recording ends after line 6" + recordedWith},
        {"get CAMERA gain --index 3", 2, "", "qdv12host: the camera was recorded with --index 2\n"},
    };
    for (const Case& each : cases) {
        const Outcome run = Replay(each.command);
        EXPECT_EQ(run.code, each.code) << each.command;
        EXPECT_EQ(run.out, each.out) << each.command;
        EXPECT_EQ(run.err, each.err) << each.command;
    }
}

TEST_F(Recorded, FilesThatAreDamagedAreRefusedByLine) {
    ASSERT_EQ(Record("get CAMERA gain overlayshow.1", "Cerix-MV7").code, 0);
    const std::string whole = Content(saved);
    const std::pair<std::string, std::string> damages[] = {
        {whole.substr(whole.find('\n') + 1), "line 1: this is no recording of qdv12host"},
        {whole.substr(0, 40), "line 1: this is no line of JSON"},
        {Replaced(whole, "\"version\":1", "\"version\":2"), "line 1: format version 2 is unknown"},
        {Replaced(whole, "\"data\":\"", "\"data\":\"0"), "line 2: \"data\" must have two digits"},
        {Replaced(whole, "\"data\":\"", "\"data\":\"00"), "line 2: ReadRegister takes 4 bytes"},
        {Replaced(whole, "ReadRegister", "Read"), "line 2: unknown operation \"Read\""},
        {Replaced(whole, "0x00000010", "here"), "line 2: invalid address \"here\""},
    };
    for (const auto& [content, message] : damages) {
        Write(other, content);
        const Outcome run = Replay("get CAMERA gain", other);
        EXPECT_EQ(run.code, 3) << message;
        EXPECT_TRUE(Has(run.err, message));
    }
    EXPECT_EQ(Replay("get CAMERA gain", "nowhere").code, 3);
}

TEST_F(Recorded, SessionsOfAKilledProgramAreWholeUpToThen) {
    {
        const Running shell("bash",
                            {"-c", "exec " QDV12_HOST " shell Orvik-710C --record " + saved +
                                       " < <(echo set gain=5 lutmode=1; sleep 60)"},
                            STDOUT_FILENO);
        for (int looks = 0; looks < 200 && !Has(Content(saved), "\"get lutmode\""); ++looks) {
            usleep(20000);
        }
    } // killed
    const std::string whole = Content(saved);
    EXPECT_EQ(Replay("set CAMERA gain=5 lutmode=1").code, 0);
    Write(other, whole.substr(0, whole.size() - 20));
    const Outcome cut = Replay("set CAMERA gain=5 lutmode=1", other);
    EXPECT_EQ(cut.code, 1);
    EXPECT_EQ(cut.out, "gain=5\n");
    EXPECT_TRUE(Has(cut.err, "the recording ends after line 6, truncated; recorded with: set gain=5 lutmode=1\n"));
}

TEST_F(Recorded, RunsContinueWhenTheDiskIsFull) {
    const Outcome run = RunHost("get Orvik-710C gain --record /dev/full");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "gain=0\n");
    EXPECT_EQ(run.err,
              "qdv12host: \"/dev/full\": cannot be written: No space left on device; the recording ends here\n");
    EXPECT_EQ(RunHost("get Orvik-710C gain --record nowhere/file").code, 2);
    EXPECT_EQ(RunHost("diff Orvik-710C Orvik-710M --record " + saved).code, 2);
}

TEST_F(Recorded, SessionsNameNoFiles) {
    Write(input, "restore " + state + "\nset username='a b'\n");
    ASSERT_EQ(RunHost("shell Orvik-710C --record " + saved, QDV12_HOST, input).code, 2);
    ASSERT_EQ(Replay("shell CAMERA --record " + other).code, 2);
    for (const std::string& file : {saved, other}) {
        const std::string content = Content(file);
        EXPECT_TRUE(Has(content, "{\"command\":\"restore FILE\"}\n{\"command\":\"set \\\"username=a b\\\"\"}\n"));
        EXPECT_EQ(content.find(testing::TempDir()), std::string::npos);
    }
    const Outcome itself = Replay("shell CAMERA --record " + saved);
    EXPECT_EQ(itself.code, 2);
    EXPECT_NE(Content(saved), "") << "it is still there";
}

TEST_F(Recorded, SessionsAnswerByAddressIfAsked) {
    Write(input, "get gain\nset overlayposition.1=20,30 gain=9\nget overlayposition gain\n");
    ASSERT_EQ(RunHost("shell Orvik-710C --record " + saved, QDV12_HOST, input).code, 0);
    const Outcome run = Replay("get CAMERA overlayposition gain sharpness --loose");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "overlayposition.0=0,0\noverlayposition.1=20,30\ngain=0\n");
    EXPECT_EQ(run.err, "qdv12host: sharpness: ReadMem at 0x18030000 failed: the recording has no ReadMem at 0x18030000 "
                       "of 4 bytes (get sharpness)\n");
    // The recording waits for 0.3 s before its last value.
    const std::string content = Content(saved);
    const std::size_t last = content.rfind("{\"microseconds\":");
    Write(other, content.substr(0, last) + "{\"microseconds\":300000" + content.substr(content.find(',', last)));
    EXPECT_TRUE(Has(Replay("watch CAMERA gain --seconds 0.5 --loose", other).out, "gain                    0 -> 9\n"));
}

} // namespace Scenario
