#include "Tests/Scenario/HostProcess.h"
#include "Tests/Scenario/SettingsFixture.h"
#include "Tests/Scenario/Terminal.h"

#include <algorithm>
#include <sstream>

namespace Scenario {

TEST(HostShell, CompletesNamesAndOutlivesCtrlC) {
    const std::string prompt = "Orvik-390M> ";
    const std::string all = AtTerminal({"shell", "Orvik-390M"}, {},
                                       {{prompt, "set ga\t"},
                                        {"in=", "7"}, // the completion shows that the editor is active
                                        {"7", "\x03"},
                                        {prompt, "watch agc=1\r"},
                                        {"off -> 1", "\x03"},
                                        {prompt, "set agc=off gain=3\r"},
                                        {prompt, "quit\r"}});
    EXPECT_TRUE(Has(all, "\ngain=3"));
    EXPECT_FALSE(Has(all, "\ngain=7")) << "it was not entered";
}

TEST(HostShell, CompletesOptionsAndValuesAsBashDoes) {
    const std::string prompt = "Orvik-390M> ";
    const std::string all = AtTerminal({"shell", "Orvik-390M"}, {},
                                       {{prompt, "watch --sec\t"},
                                        {"onds ", "0.3 \t\x03"},
                                        {prompt, "list --topic ide\t"},
                                        {"ntity ", "\x03"},
                                        {prompt, "set negativeimage=o\t"},
                                        {"=o", "n\r"},
                                        {prompt, "quit\r"}});
    EXPECT_TRUE(Has(all, "\nnegativeimage=on\r"));
}

// The function for bash, at a prompt of bash. Ctrl-U discards a line.
TEST(HostCompletion, CompletesWhatTheProgramsTakeInBash) {
    const std::string prompt = "$ ";
    const std::string folder = std::filesystem::path(QDV12_HOST).parent_path();
    const std::string all =
        AtTerminal({"--norc", "--noprofile", "-i"}, {{"PS1", prompt}, {"TERM", "dumb"}, {"INPUTRC", "/dev/null"}},
                   {{prompt, "PATH=" + folder + ":$PATH; . " QDV12_COMPLETION "\r"},
                    {prompt, "qdv12host sel\t"},
                    {"ftest ", "Sol\t"},
                    {"lux\\ G ", "--outp\t"},
                    {"uts ", "--log=de\t"},
                    {"bug ", "--fault endl\t"},
                    {"ess:", "ag\t"},
                    {"agc ", "\x15"},
                    {prompt, "qdv12host get gige:192.0.2.1 histogrameq\t"}, // of one family
                    {"ualization ", "nam\t"},
                    {"e:", "\x15"},
                    {prompt, "qdv12host set gige:192.0.2.1 --force-model Cerix-M\t"},
                    {"V7 ", "exposuremode=reset\t"},
                    {"restart ", "\x15"},
                    {prompt, "cd $(dirname " QDV12_COMPLETION ")\r"},
                    {prompt, "qdv12host diff compl\t"},
                    {"etion.bash ", "\x15"},
                    {prompt, "qdv12sim Sol\t"},
                    {"lux\\ G ", "--stream-de\t"},
                    {"lay ", "\x15"},
                    {prompt, "qdv12host set Orvik-390M ag\t"},
                    {"c=", "of\t"},
                    {"off ", "\r"},
                    {prompt, "exit\r"}},
                   200, "bash");
    EXPECT_TRUE(Has(all, "\nagc=off\r"));
}

TEST(HostShell, TakesWhatIsNoAscii) {
    const std::string prompt = "Orvik-390M> ";
    for (const char* locale : {"C.UTF-8", "C"}) {
        const std::string all = AtTerminal({"shell", "Orvik-390M"}, {{"LC_ALL", locale}},
                                           {{prompt, "set username=K\u00FChl\r"}, {prompt, "quit\r"}});
        EXPECT_TRUE(Has(all, "\nusername=K\u00FChl\r")) << locale;
    }
}

TEST(HostTerminal, ShowsColourAndProgressWhereTheyAreWelcome) {
    const std::vector<std::string> selftest{"selftest", "Orvik-390M"};
    const std::string styled = AtTerminal(selftest, {{"TERM", "xterm"}, {"NO_COLOR", ""}});
    EXPECT_TRUE(Has(styled, "\033[32mpassed\033[0m"));
    EXPECT_TRUE(Has(styled, "\r[#### "));
    const Pairs refusals[] = {
        {{"TERM", "dumb"}, {"NO_COLOR", ""}}, {{"TERM", ""}, {"NO_COLOR", ""}}, {{"TERM", "xterm"}, {"NO_COLOR", "1"}}};
    for (const Pairs& environment : refusals) {
        const std::string plain = AtTerminal(selftest, environment);
        EXPECT_TRUE(Has(plain, "  passed\r\n")) << environment.front().second;
        EXPECT_EQ(plain.find('\033'), std::string::npos) << environment.front().second;
        EXPECT_EQ(plain.find("\r["), std::string::npos) << environment.front().second;
    }
}

// Long cells are wrapped, and nothing is lost.
TEST(HostTerminal, ListFitsTheTerminal) {
    const Outcome piped = RunHost("list Cerix-MV7");
    const auto sorted = [](std::string text) {
        std::erase_if(text, [](char character) { return character == ' ' || character == '\r' || character == '\n'; });
        std::sort(text.begin(), text.end());
        return text;
    };
    const unsigned short widths[] = {80, 100};
    for (const unsigned short columns : widths) {
        const std::string all =
            AtTerminal({"list", "Cerix-MV7"}, {{"NO_COLOR", "1"}, {"LC_ALL", "C.UTF-8"}}, {}, columns);
        std::istringstream lines(all);
        for (std::string line; std::getline(lines, line);) {
            EXPECT_LE(line.size(), columns + 1U) << line; // with the carriage return
        }
        EXPECT_EQ(sorted(all), sorted(piped.out)) << "something is lost";
    }
    const std::string wide = AtTerminal({"list", "Cerix-MV7"}, {{"NO_COLOR", "1"}}, {}, 200);
    EXPECT_EQ(std::count(wide.begin(), wide.end(), '\n'), std::count(piped.out.begin(), piped.out.end(), '\n'));
}

/// Scripts that are interrupted.
class HostShellEnds : public HostSettings {
protected:
    [[nodiscard]] std::vector<std::string> Shell(const std::string& lines) const {
        return {"-c", "(printf '" + lines + "'; sleep 60) | exec " QDV12_HOST " shell Orvik-390M --state " + state};
    }
};

TEST_F(HostShellEnds, WithWhatWasSetInTheStateFile) {
    {
        const Running shell("sh", Shell("set gain=9\\n"), STDOUT_FILENO);
        for (int looks = 0; looks < 200 && !Has(Content(state), "\"gain\": [[9]]"); ++looks) {
            usleep(50000);
        }
    } // killed
    EXPECT_EQ(Run("get Orvik-390M gain").out, "gain=9\n");
}

TEST_F(HostShellEnds, WithAcquisitionStopped) {
    Write(input, "start\nset readoutarea=0,0,99,99\nselftest\nstop\nset readoutarea=0,0,99,99\nstart\npeek 0x88134\n");
    const Outcome run = RunHost("shell Orvik-390M --state " + state, QDV12_HOST, input);
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(Has(run.err, "readoutarea: SDK4_ERR_CANTSETFEATURE"));
    EXPECT_TRUE(Has(run.err, "acquisition runs, and locks functions that selftest sets; stop it first\n"));
    EXPECT_TRUE(
        Has(run.out, "acquisition is stopped\nreadoutarea=0,0,99,99\nacquisition runs\n0x00088134  0x00000001"));
    EXPECT_TRUE(Has(Run("peek Orvik-390M 0x88134").out, "0x00088134  0x00000000"));
}

TEST_F(HostShellEnds, AsRefusedWhenItIsInterrupted) {
    Write(input, "watch agc=1 --seconds 60\nset gain=8\n");
    Running shell("sh", {"-c", "exec " QDV12_HOST " shell Orvik-390M <" + input}, STDOUT_FILENO);
    ASSERT_TRUE(shell.ReadUntil("agc"));
    shell.Signal(SIGINT);
    EXPECT_EQ(shell.End(), 1);
}

} // namespace Scenario
