#include "Tests/Scenario/SettingsFixture.h"

#include <algorithm>
#include <regex>
#include <set>
#include <utility>

namespace Scenario {

namespace {

/// The writes in a trace, without durations.
std::set<std::string> WritesIn(const std::string& trace) {
    std::set<std::string> writes;
    std::istringstream lines(trace);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("write ")) {
            writes.insert(line.substr(0, line.rfind("  ")));
        }
    }
    return writes;
}

} // namespace

TEST_F(HostSettings, ComeBackAsTheyWereSaved) {
    struct Case {
        const char* model;
        const char* first;   ///< settings, saved to the file
        const char* changes; ///< changes of settings
        const char* outputs; ///< changes of outputs
        const char* found;   ///< a line of the comparison
    };
    const Case cases[] = {
        {"Orvik-390C", "gain=7", "gain=100 agc=1 readoutarea=100,100,400,400 overlayposition.1=50,50 colorcoding=raw14",
         "iomode.2=1", "overlayposition.1         0,0 px                  50,50 px\n"},
        {"'Sollux G'", "abc=1 abcthreshold.0=400 abc=0 agc=2 automaticlevel=55",
         "agc=1 exposuremode=resetrestart exposure=100 abc=1 abcthreshold.0=500 shadingcorrectionmode=on "
         "shadingcorrection.2=-7 histogramequalization=2",
         "lenscontrol.1=65000", "shadingcorrection.2       0                       -7\n"},
    };
    for (const Case& each : cases) {
        const std::string model = each.model;
        std::filesystem::remove(state);
        ASSERT_EQ(Run("set " + model + " " + each.first).code, 0);
        ASSERT_EQ(Run("save " + model + " " + saved).code, 0);
        const Outcome same = Run("diff " + saved + " " + model);
        EXPECT_EQ(same.code, 0) << same.err;
        EXPECT_EQ(same.out, "");

        ASSERT_EQ(Run("set " + model + " username=bench " + each.changes + " " + each.outputs).code, 0);
        const Outcome changed = Run("diff " + saved + " " + model);
        EXPECT_EQ(changed.code, 1);
        EXPECT_TRUE(Has(changed.out, each.found));

        const Outcome restored = Run("restore " + saved + " " + model);
        EXPECT_EQ(restored.code, 0) << restored.out << restored.err;
        EXPECT_TRUE(Has(restored.out, "username                  skipped     a network setting; use --network to "
                                      "include it\n"));
        const Outcome left = Run("diff " + saved + " " + model);
        EXPECT_EQ(std::count(left.out.begin(), left.out.end(), '\n'), 2) << left.out; // user name and output

        EXPECT_EQ(Run("set " + model + " username=''").code, 0);
        EXPECT_EQ(Run("restore --outputs " + saved + " " + model).code, 0);
        const Outcome none = Run("diff " + saved + " " + model + " --json");
        EXPECT_EQ(none.code, 0);
        EXPECT_EQ(none.out, "[]\n");
    }
}

TEST_F(HostSettings, AreReadableText) {
    ASSERT_EQ(Run("save Orvik-390C " + saved).code, 0);
    const std::string text = Content(saved);
    EXPECT_TRUE(text.starts_with("{\n"
                                 "  \"format\": \"qdv12host settings\",\n"
                                 "  \"version\": 1,\n"
                                 "  \"model\": \"Orvik-390C\",\n"
                                 "  \"family\": \"Orvik\",\n"
                                 "  \"serialnumber\": \"390C-0042\",\n"
                                 "  \"date\": \"20"));
    EXPECT_TRUE(Has(text, "    \"exposuremode\": \"freerunning\",\n"));
    EXPECT_TRUE(Has(text, "    \"exposure\": {\n      \"base\": 0,\n      \"counter\": 20000\n    },\n"));
    EXPECT_FALSE(Has(text, "binning")); // a colour model does not have it
}

TEST_F(HostSettings, AreNotWrittenByADryRun) {
    const Outcome reading = Run("save --trace Orvik-390M " + saved);
    ASSERT_EQ(Run("set Orvik-390M gain=100 agc=1 binning=2,2").code, 0);
    const Outcome dry = Run("restore --dry-run --trace " + saved + " Orvik-390M");
    EXPECT_EQ(dry.code, 0);
    EXPECT_TRUE(Has(dry.out, "binning                   would set   2,2 -> 1,1\n"));
    const auto selectors = WritesIn(reading.err); // reading an indexed value writes its index
    EXPECT_FALSE(selectors.empty());
    for (const std::string& write : WritesIn(dry.err)) {
        EXPECT_TRUE(selectors.contains(write)) << write;
    }
    EXPECT_TRUE(Has(Run("get Orvik-390M binning agc").out, "binning=2,2\nagc=1\n"));
}

TEST_F(HostSettings, OfAnAutomaticModeThatIsOnAreNotCompared) {
    ASSERT_EQ(Run("set Orvik-390M agc=1").code, 0);
    ASSERT_EQ(Run("save Orvik-390M " + saved).code, 0);
    Write(other, Replaced(Content(saved), "\"gain\": ", "\"gain\": 4"));
    EXPECT_EQ(Run("diff " + saved + " " + other).code, 0);

    // They are restored nevertheless, with the mode off meanwhile.
    const Outcome restored = Run("restore --trace " + other + " Orvik-390M");
    EXPECT_EQ(restored.code, 0) << restored.out;
    const std::size_t off = restored.err.find("write WriteMem          0x46020000  0  ");
    const std::size_t gain = restored.err.find("write WriteMem          0x14010000  ");
    const std::size_t on = restored.err.find("write WriteMem          0x46020000  1  ");
    EXPECT_LT(off, gain);
    EXPECT_LT(gain, on);
    EXPECT_NE(on, std::string::npos) << restored.err;

    Write(other, Replaced(Content(other), "\"agc\": 1", "\"agc\": \"off\""));
    const Outcome run = Run("diff " + saved + " " + other);
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "agc                       1                       off\n");
}

TEST_F(HostSettings, ThatAreRefusedDoNotStopTheOthers) {
    ASSERT_EQ(Run("save Orvik-390M " + saved).code, 0);
    Write(other,
          Replaced(Replaced(Content(saved), "\"gain\": 0", "\"gain\": 600"), "\"sharpness\": 0", "\"sharpness\": 9"));
    const Outcome clamped = Run("restore " + other + " Orvik-390M");
    EXPECT_EQ(clamped.code, 1);
    EXPECT_TRUE(Has(clamped.out, "gain                      clamped     SDK4_ERR_OUTOFRANGE; asked for 600, the camera "
                                 "now holds 511\n"));
    EXPECT_TRUE(Has(clamped.out, "sharpness                 ok          0 -> 9\n"));
    EXPECT_TRUE(std::regex_search(clamped.err, std::regex("1 of [0-9]+ functions not restored\n"))) << clamped.err;

    const Outcome faulty = Run("restore --fault ignore:gain " + saved + " Orvik-390M");
    EXPECT_EQ(faulty.code, 1);
    EXPECT_TRUE(Has(faulty.out, "gain                      refused     the camera ignored it; asked for 0, the "
                                "camera now holds 511\n"));
    EXPECT_TRUE(Has(faulty.out, "sharpness                 ok          9 -> 0\n"));
}

TEST_F(HostSettings, AreRoundedAsTheCameraMay) {
    ASSERT_EQ(Run("save Orvik-390M " + saved).code, 0);
    Write(other, std::regex_replace(Content(saved), std::regex("(\"readouttime\": )[0-9]+"), "$015"));
    const Outcome up = Run("restore " + other + " Orvik-390M");
    EXPECT_EQ(up.code, 0);
    EXPECT_TRUE(Has(up.out, "readouttime               rounded     asked for 5, the camera now holds 12182\n"));
    Write(other, std::regex_replace(Content(saved), std::regex("(\"readouttime\": )[0-9]+"), "$0130000"));
    const Outcome down = Run("restore --fault clamp:readouttime=20000 " + other + " Orvik-390M");
    EXPECT_EQ(down.code, 1);
    EXPECT_TRUE(Has(down.out, "readouttime               clamped     asked for 30000, the camera now holds 20000\n"));
}

TEST_F(HostSettings, AreRefusedFromAFileThatIsNotTheirs) {
    ASSERT_EQ(Run("save Orvik-390M " + saved).code, 0);
    const std::string good = Content(saved);
    const std::pair<std::string, std::string> cases[] = {
        {"", "empty file"},
        {good.substr(0, good.size() / 2), "damaged, or not a settings file: "},
        {"[1, 2]", "not a settings file"},
        {Replaced(good, "\"version\": 1", "\"version\": 2"),
         "unsupported format version 2; this program reads version 1"},
        {Replaced(good, "\"gain\"", "\"gian\""), "unknown function \"gian\"; did you mean \"gain\"?"},
        {Replaced(good, "\"gain\": 0", "\"gain\": \"high\""), "invalid value for gain: \"high\""},
        {Replaced(good, "\"base\": 0,", ""), "invalid value for exposure: {\"counter\":20000}\n"},
        {Replaced(good, "\"gain\": 0", "\"gain\": 0, \"gain\": 1"), "duplicate name \"gain\""},
        {good.substr(0, good.find("\"values\"")) + "\"values\": {}}", "holds no values to restore"},
        {Replaced(good, "Orvik-390M", "Orvik-710M"), "settings of model Orvik-710M, but the camera is Orvik-390M"},
    };
    for (const auto& [content, complaint] : cases) {
        Write(other, content);
        const Outcome run = Run("restore " + other + " Orvik-390M");
        EXPECT_EQ(run.code, 2) << complaint;
        EXPECT_EQ(run.out, "");
        EXPECT_TRUE(Has(run.err, complaint));
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    }
    EXPECT_TRUE(Has(Run("diff " + saved + " " + other).err, "settings of different models: Orvik-390M and Orvik-710M"));
    EXPECT_EQ(Run("diff " + saved + " " + saved + ".none").code, 2);
    EXPECT_EQ(Run("diff " + saved).code, 2);
}

TEST_F(HostSettings, ReplaceAFileAsAWholeOrNotAtAll) {
    Write(saved, "precious");
    const Outcome failed = Run("save --fault failread:sharpness Orvik-390M " + saved);
    EXPECT_EQ(failed.code, 1);
    EXPECT_TRUE(Has(failed.err, "sharpness: "));
    EXPECT_EQ(Content(saved), "precious");
    EXPECT_EQ(Run("save Orvik-390M " + saved).code, 0);
    EXPECT_TRUE(Content(saved).starts_with("{"));
}

TEST_F(HostSettings, AreWatchedAsTheyChange) {
    const Outcome ours = Run("watch 'Sollux G' gain=600 agc=1 --seconds 0.3");
    EXPECT_EQ(ours.code, 1);
    EXPECT_TRUE(Has(ours.err, "gain: SDK4_ERR_OUTOFRANGE\n"));
    EXPECT_TRUE(Has(ours.out, "callback  gain                    value = 568\n"));
    EXPECT_TRUE(Has(ours.out, "camera    agc                     off -> 1\n"));

    // The camera changes the gain.
    Running theirs(QDV12_HOST, {"watch", "--json", "Orvik-390M", "agc=1"}, Running::both);
    EXPECT_TRUE(theirs.ReadUntil("\"name\":\"gain\",\"source\":\"camera\",\"before\":0,\"value\":"));
    theirs.Signal(SIGINT);
    EXPECT_EQ(theirs.End(), 0) << theirs.Read();

    const Outcome named = Run("watch 'Sollux G' gain overlayshow.1 gain --seconds 0");
    const std::string time = "[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3}  ";
    EXPECT_TRUE(std::regex_match(
        named.out, std::regex(time + "first     gain                    [0-9]+ \\(locked by agc=1, needs agc=off\\)\n" +
                              time + "first     overlayshow.1           off\n")))
        << named.out;
    const Outcome two = RunHost("watch Orvik-390M gain agc=1 --seconds 0.3 --interval 0.1 --trace");
    EXPECT_TRUE(Has(two.out, "first     gain                    0\n"));
    EXPECT_TRUE(Has(two.out, "camera    gain                    0 -> "));
    const std::regex another("0x(?!14010000|46020000)"); // of a function that is neither shown nor locks it
    EXPECT_FALSE(std::regex_search(two.err, another)) << two.err;
    for (const char* wrong : {"--seconds soon", "--interval 0", "loadsettings", "gian", "gain --keep-trying"}) {
        EXPECT_EQ(RunHost("watch Orvik-390M --seconds 0 " + std::string(wrong)).code, 2) << wrong;
    }
}

TEST_F(HostSettings, AreDrivenFromAShell) {
    Write(input, "set gain=5\nsave " + saved + "\nset gain=9 agc=1 agc=off gain=9\ndiff " + saved +
                     "\n# a comment\nget gian\nrestre\n'\nrestore --dry-run " + saved + "\nrestore \"" + saved +
                     "\"\nget gain --json\nget agc\nquit\nset gain=11\n");
    const Outcome run = RunHost("shell Orvik-390M --state " + state, QDV12_HOST, input);
    EXPECT_EQ(run.code, 1); // of the comparison, the first failed command
    EXPECT_TRUE(Has(run.out, "gain                      5                       9\n"));
    EXPECT_TRUE(Has(run.out, "gain                      would set   9 -> 5\n"));
    EXPECT_TRUE(Has(run.out, "gain                      ok          9 -> 5\n"));
    EXPECT_TRUE(run.out.ends_with("{\n  \"gain\": 5\n}\nagc=off\n"));
    EXPECT_EQ(run.err, "qdv12host: unknown function \"gian\"; did you mean \"gain\"?\n"
                       "qdv12host: unknown command \"restre\"; did you mean \"restore\"?\n"
                       "qdv12host: missing closing quote '\n");
    EXPECT_EQ(Run("get Orvik-390M gain").out, "gain=5\n");
    EXPECT_EQ(RunHost("shell Orvik-39M").code, 3);
}

} // namespace Scenario
