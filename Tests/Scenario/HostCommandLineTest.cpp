#include "Tests/Scenario/HostProcess.h"

#include "Host/Channel/GigEConnection.h"
#include "Host/Errors.h"

namespace Scenario {

TEST(HostCommandLine, TellsWhatIsMissing) {
    const std::string no = "qdv12host: CAMERA is required";
    const std::pair<std::string, std::string> cases[] = {
        {"set gain=3 agc=1", no + " before \"gain=3\"; usage: qdv12host set CAMERA NAME=VALUE..."},
        {"get gain", no + " before \"gain\"; usage: qdv12host get CAMERA... NAME..."},
        {"get overlayshow.1 lenscontrol", no + " before \"overlayshow.1\"; usage: qdv12host get CAMERA... NAME..."},
        {"watch gain=3", no + " before \"gain=3\"; usage: qdv12host watch CAMERA [NAME[=VALUE]...]"},
        {"info", no + "; usage: qdv12host info CAMERA..."},
        {"restore bench.json", no + "; usage: qdv12host restore FILE CAMERA..."},
        {"get Orvik-710C", "qdv12host: NAME is required; usage: qdv12host get CAMERA... NAME..."},
        {"save 'Sollux G'", "qdv12host: FILE is required; usage: qdv12host save CAMERA FILE"},
        {"diff a.json", "qdv12host: B is required; usage: qdv12host diff A B"},
        {"set Orvik-710C --no-control gain=3", "qdv12host: unknown option \"--no-control\""},
        {"list --keep-tryin", "qdv12host: unknown option \"--keep-tryin\""},
        {"get --jsn", "qdv12host: unknown option \"--jsn\"; did you mean \"--json\"?"},
        {"info Orvik-710C --state --json", "qdv12host: --state: a value is required"},
        {"info Orvik-710C --state ''", "qdv12host: --state: a value is required"},
        {"info Orvik-710C --fault --trace", "qdv12host: --fault: a value is required"},
        {"watch Orvik-710C --seconds --json", "qdv12host: --seconds: a value is required"},
        {"info Orvik-710C --state", "qdv12host: --state: a value is required"},
        {"info Orvik-710C --seed 1 --seed 2", "qdv12host: --seed is given twice"},
        {"selftest Orvik-710C --outputs=no", "qdv12host: --outputs takes no value"},
    };
    for (const auto& [arguments, said] : cases) {
        const Outcome run = RunHost(arguments);
        EXPECT_EQ(run.code, 2) << arguments;
        EXPECT_EQ(run.err, said + " (see qdv12host help " + arguments.substr(0, arguments.find(' ')) + ")\n")
            << arguments;
    }
    EXPECT_EQ(RunHost("--json").err, "qdv12host: COMMAND is required (see qdv12host --help)\n");
    EXPECT_EQ(RunHost("--no-control get Orvik-710C gain").err,
              "qdv12host: --no-control is an option of get: give it after that word (see qdv12host help get)\n");
    const Outcome log = RunHost("--log --json info Orvik-710C");
    EXPECT_EQ(log.code, 2);
    EXPECT_TRUE(log.err.starts_with("qdv12host: --log: ")) << log.err;
    EXPECT_EQ(RunHost("get orvik-710c gain").err,
              "qdv12host: unknown model \"orvik-710c\"; did you mean \"Orvik-710C\"?\n");
}

TEST(HostCommandLine, KnowsHelpAsACommand) {
    const Outcome all = RunHost("help");
    EXPECT_EQ(all.code, 0);
    EXPECT_EQ(all.out, RunHost("--help").out);
    const Outcome set = RunHost("help set");
    EXPECT_EQ(set.code, 0);
    EXPECT_EQ(set.out, RunHost("set --help").out);
    EXPECT_TRUE(Has(set.out, "Usage: qdv12host set [OPTIONS] CAMERA NAME=VALUE...\n"));
    EXPECT_TRUE(Has(set.out, "\n\nOptions of every command:\n  --json  "));
    EXPECT_TRUE(Has(RunHost("help get").out, "Usage: qdv12host get [OPTIONS] CAMERA... NAME...\n"));
    const Outcome unknown = RunHost("help sett");
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(unknown.err, "qdv12host: unknown command \"sett\"; did you mean \"set\"? (see qdv12host --help)\n");
}

TEST(HostCommandLine, ShellCommandsMayEndInComments) {
    const std::string script = TemporaryFile("script");
    std::ofstream(script) << "# all\n  # more\nset gain=3 # as on line 2\nset username='# 1' #it's\nset username=#2\n"
                          << "get gain#\nhelp get # it\n";
    const Outcome run = RunHost("shell Cerix-MV7", QDV12_HOST, script);
    EXPECT_TRUE(run.out.starts_with("gain=3\nusername=# 1\nusername=#2\nPrint the values of functions\nUsage: get "))
        << run.out;
    EXPECT_EQ(run.err, "qdv12host: unknown function \"gain#\"; did you mean \"gain\"?\n");
    std::filesystem::remove(script);
}

TEST(HostCommandLine, TellsHowACameraIsNamed) {
    for (const std::string camera :
         {"192.168.1.10", "gige:", "gige:192.168.1", "gige:192.168.1.300", "gige:0x7F000001", "gige:[::1]",
          "u3v:192.168.1.10", "serial:", "mac:02:00:12:07:07", "name:", "name:\\x"}) {
        const Outcome run = RunHost("info '" + camera + "'");
        EXPECT_EQ(run.code, 2) << camera;
        EXPECT_EQ(run.err, "qdv12host: invalid camera \"" + camera +
                               "\": give a model, gige:ADDRESS, such as gige:192.168.1.10, gige:HOST, serial:NUMBER, "
                               "mac:ADDRESS, name:NAME, or replay:FILE\n");
    }
    EXPECT_EQ(RunHost("info Orvik-710C --force-model Cerix-MV7").err,
              "qdv12host: --force-model applies to cameras on the network only\n");
    EXPECT_EQ(RunHost("diff Orvik-71 Orvik-710C").err,
              "qdv12host: \"Orvik-71\" is neither a file nor a camera; did you mean \"Orvik-710M\"?\n");
}

TEST(HostCommandLine, GivesEachOfTwoCamerasTheOptionsThatApplyToIt) {
    const std::string recording = TemporaryFile("recording");
    ASSERT_EQ(RunHost("save Orvik-710C - --record " + recording).code, 0);
    const std::string diff = "diff replay:" + recording + " Orvik-710C --loose --only gain ";
    EXPECT_EQ(RunHost(diff + "--no-control --seed 3").err, "");
    EXPECT_EQ(RunHost(diff + "--fault offset:gain=1 --force-model Orvik-710C").err,
              "qdv12host: --force-model applies to cameras on the network only\n");
    EXPECT_EQ(RunHost("diff Orvik-710C Orvik-710C --loose").err,
              "qdv12host: --loose applies to recorded cameras only\n");
}

TEST(HostCommandLine, TakesSeedsOf64Bits) {
    EXPECT_EQ(RunHost("get Orvik-710C gain --seed 18446744073709551615").code, 0);
    for (const char* seed : {"-1", "18446744073709551616", "1.5"}) {
        const Outcome run = RunHost("get Orvik-710C gain --seed " + std::string(seed));
        EXPECT_EQ(run.code, 2) << seed;
        EXPECT_EQ(run.err, "qdv12host: --seed: invalid seed \"" + std::string(seed) +
                               "\": must be a number of 0 or more (see qdv12host help get)\n");
    }
}

// Of the two implementations, this program links the one that is compiled without Aravis.
TEST(HostCommandLine, WithoutAravisItSaysWhatIsMissing) {
    try {
        (void)Host::ConnectGigE("127.0.0.1");
        ADD_FAILURE();
    } catch (const Host::OpenError& error) {
        EXPECT_TRUE(Has(error.what(), "built without Aravis"));
        EXPECT_TRUE(Has(error.what(), "libaravis-dev and libusb-1.0-0-dev"));
    }
}

} // namespace Scenario
