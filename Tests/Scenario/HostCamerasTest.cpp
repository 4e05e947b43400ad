#include "Tests/Scenario/HostProcess.h"
#include "Tests/Scenario/SettingsFixture.h"

#include "Host/Json.h"

namespace Scenario {

TEST(HostCameras, TellsCamerasFromFunctions) {
    const std::pair<std::string, std::string> cases[] = {
        {"get Orvik-710C Cerix-MV7", "NAME is required; usage: qdv12host get CAMERA... NAME..."},
        {"set Orvik-710C Cerix-MV7 gain=3", "unexpected argument \"Cerix-MV7\": set takes one camera"},
        {"watch Orvik-710C gain name:left", "unexpected argument \"name:left\": watch takes one camera"},
        {"info Orvik-710C gain", "unexpected argument \"gain\""},
        {"restore a.json Orvik-710C b.json", "unexpected argument \"b.json\""},
        {"selftest Orvik-710C gige:1.2", "invalid camera \"gige:1.2\": give a model, gige:ADDRESS, such as "
                                         "gige:192.168.1.10, gige:HOST, serial:NUMBER, mac:ADDRESS, name:NAME, or "
                                         "replay:FILE"},
        {"get mac:02:00:12:07:07:1A gain mac:02-00-12-07-07-1a", "camera \"mac:02-00-12-07-07-1a\" is given twice"},
        {"info Orvik-710C Cerix-MV7 --state cam", "--state FILE keeps one camera; give one, or no --state"},
        {"restore a.json Orvik-710C Cerix-MV7 --network",
         "--network would give each camera the same address; give one camera, or no --network"},
    };
    for (const auto& [arguments, said] : cases) {
        const Outcome run = RunHost(arguments);
        EXPECT_EQ(run.code, 2) << arguments;
        EXPECT_EQ(run.err,
                  "qdv12host: " + said + " (see qdv12host help " + arguments.substr(0, arguments.find(' ')) + ")\n")
            << arguments;
    }
}

TEST(HostCameras, PrintsEachLineWithItsCamera) {
    const std::string refusal = "gain: ReadMem at 0x14010000 failed: no answer from the camera\n";
    const Outcome run = RunHost("get Orvik-710C triggertimer 'Sollux G' gain --one-by-one --fault failread:gain");
    EXPECT_EQ(run.code, 2) << "which is worse than 1";
    EXPECT_EQ(run.out, "Orvik-710C  triggertimer=0\n\n"
                       "CAMERA      EXIT CODE  ERRORS  FIRST ERROR\n"
                       "Orvik-710C  1          1       " +
                           refusal + "Sollux G    2          1       unknown function \"triggertimer\"\n");
    EXPECT_EQ(run.err,
              "qdv12host: Orvik-710C: " + refusal + "qdv12host: Sollux G: unknown function \"triggertimer\"\n");
    const Outcome trace = RunHost("get Orvik-710C 'Sollux G' gain --trace");
    EXPECT_TRUE(Has(trace.err, "\nSollux G    read  ReadRegister      0x14010000  0  ")) << trace.out;

    const Outcome json = RunHost("get Orvik-71 Orvik-710C gain --json");
    EXPECT_EQ(json.code, 3);
    const auto document = Host::Json::Parse(json.out);
    ASSERT_EQ(document.Elements()->size(), 2U);
    EXPECT_EQ(document.Elements()->front().PrintInOneLine(),
              R"({"camera":"Orvik-71","exitCode":3,"errors":[)"
              R"("unknown model \"Orvik-71\"; did you mean \"Orvik-710M\"?"],"result":null})");
    EXPECT_EQ(document.Elements()->back().PrintInOneLine(),
              R"({"camera":"Orvik-710C","exitCode":0,"errors":[],"result":{"gain":0}})");
}

TEST_F(HostSettings, OfStandardInputOrAPipeAreForEachCamera) {
    Write(input, R"({"format": "qdv12host settings", "version": 1, "model": "Orvik-710C", "family": "Orvik",)"
                 R"( "serialnumber": "", "date": "", "values": {"gain": 7}})");
    const std::string two = " Orvik-710C Orvik-710M";
    const Outcome runs[] = {RunHost("restore -" + two, QDV12_HOST, input),
                            RunHost("restore /dev/stdin" + two, QDV12_HOST, input),
                            RunHost("-c 'cat " + input + " | " QDV12_HOST " restore /dev/stdin" + two + "'", "sh")};
    for (const Outcome& run : runs) {
        EXPECT_EQ(run.code, 2);
        EXPECT_TRUE(Has(run.out, "Orvik-710C  gain                      ok          0 -> 7\n"));
        EXPECT_TRUE(Has(run.err, " holds settings of model Orvik-710C, but the camera is Orvik-710M"));
    }
}

/// The processes wait for a plug-in out of a pipe. One of them is killed, the other gets one that is none.
TEST(HostCameras, ReportsAProcessThatDied) {
    const std::string fifo = TemporaryFile("fifo");
    const Outcome run =
        RunHost("-c 'mkfifo " + fifo + "; " QDV12_HOST " get Orvik-710C Cerix-MV7 gain --plugin " + fifo +
                    " & host=$!; for i in $(seq 500); do set -- $(cat /proc/$host/task/$host/children); "
                    "[ $# = 2 ] && break; sleep 0.01; done; kill -KILL $1; "
                    "while [ -e /proc/$1/exe ]; do sleep 0.01; done; echo none >" + // it reads no more
                    fifo +
                    "; wait $host'",
                "sh");
    EXPECT_EQ(run.code, 128 + SIGKILL);
    EXPECT_TRUE(Has(run.err, "qdv12host: Orvik-710C: its process was ended by signal 9 (Killed)\n"));
    EXPECT_TRUE(Has(run.out, "\nCerix-MV7   3          1       ")) << "it was not disturbed";
    std::filesystem::remove(fifo);
}

} // namespace Scenario
