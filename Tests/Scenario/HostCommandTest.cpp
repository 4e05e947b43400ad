#include "Tests/Scenario/HostProcess.h"

#include "Host/Channel/ChannelErrors.h"
#include "Host/Commands/Commands.h"
#include "Host/Json.h"
#include "Host/Logging.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <set>
#include <string>
#include <vector>

namespace Scenario {

struct Run {
    const char* arguments;
    int code;
    const char* out; ///< all of it
    const char* err;
};

void ExpectRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        const Outcome outcome = RunHost(run.arguments);
        EXPECT_EQ(outcome.code, run.code) << run.arguments;
        EXPECT_EQ(outcome.out, run.out) << run.arguments;
        EXPECT_EQ(outcome.err, run.err) << run.arguments;
    }
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

TEST(HostCommand, GetPrintsWhatFunctionsHold) {
    ExpectRuns({
        {"get Orvik-710C gain exposure exposuremode readoutarea functionmodelid", 0,
         "gain=0\nexposure=0:20000\nexposuremode=freerunning\nreadoutarea=0,0,3207,2207\nfunctionmodelid=0x00070710\n",
         ""},
        {"get Orvik-390M overlaysize iomode.3", 0, "overlaysize.0=1,10\noverlaysize.1=1,10\niomode.3=1\n", ""},
        {"get 'Sollux G' defectpixel.2 colorcoding --json", 0,
         "{\n  \"defectpixel.2\": {\n    \"xpos\": 512,\n    \"ypos\": 44,\n    \"mode\": 2\n  },\n"
         "  \"colorcoding\": \"mono14\"\n}\n",
         ""},
        {"get Orvik-710C gain triggerdelay lutmode", 1, "gain=0\nlutmode=0\n",
         "qdv12host: triggerdelay: SDK4_ERR_DISABLED (locked by exposuremode=freerunning, needs "
         "exposuremode=resetrestart)\n"},
        {"get Orvik-31200M verticalflip", 1, "", "qdv12host: verticalflip: SDK4_ERR_NOT_IMPLEMENTED\n"},
    });
}

TEST(HostCommand, SetTellsWhatTheCameraNowHolds) {
    ExpectRuns({
        {"set Orvik-710C gain=100 exposure=1:2000 readoutarea=0,0,1279,1023 exposuremode=resetrestart iomode.0=0x1", 0,
         "gain=100\nexposure=1:2000\nreadoutarea=0,0,1279,1023\nexposuremode=resetrestart\niomode.0=1\n", ""},
        {"set Orvik-710C gain=600", 1, "gain=511\n",
         "qdv12host: gain: SDK4_ERR_OUTOFRANGE: 600 was clamped, the camera now holds 511\n"},
        {"set Orvik-710C agc=off gain=100 --fault ignore:gain", 1,
         "agc=off\ngain=0\n", // the camera's value, not the control's cached one
         "qdv12host: gain: 100 was accepted, but the camera now holds 0\n"},
        {"set Cerix-MV7 overlayposition.1=-501,7", 1, "overlayposition.1=-500,7\n",
         "qdv12host: overlayposition.1: SDK4_ERR_OUTOFRANGE: -501,7 was clamped, the camera now holds -500,7\n"},
        {"set Orvik-710C agc=7", 1, "agc=off\n",
         "qdv12host: agc: SDK4_ERR_INVALID_PARAMETER: 7 was refused, the camera still holds off\n"},
        {"set Cerix-MV7 agc=7", 1, "agc=off\n",
         "qdv12host: agc: SDK4_ERR_OUTOFRANGE: 7 was refused, the camera still holds off\n"},
        {"set Orvik-710C gain=5 lutmode=1 --fault failwrite:gain", 1, "gain=0\nlutmode=1\n",
         "qdv12host: gain: WriteMem at 0x14010000 failed: no answer from the camera: 5 was refused, the camera still "
         "holds 0\n"},
        {"set Orvik-710C gain=5 --fault ignore:gain", 1, "gain=0\n",
         "qdv12host: gain: 5 was accepted, but the camera now holds 0\n"},
        {"set Cerix-MV7 storeimage=on restart --json", 0,
         "[\n  {\n    \"name\": \"storeimage\",\n    \"asked\": \"on\",\n    \"value\": null,\n    \"error\": null,\n"
         "    \"lockedBy\": null,\n    \"needs\": null\n  },\n"
         "  {\n    \"name\": \"restart\",\n    \"asked\": null,\n    \"value\": null,\n    \"error\": null,\n"
         "    \"lockedBy\": null,\n    \"needs\": null\n  }\n]\n",
         ""},
    });
}

TEST(HostCommand, RegistersAreReadAndWrittenByAddress) {
    ExpectRuns({
        {"peek Orvik-710C 0x0068 4", 0,
         "0x00000068  0x4F727669  1332901481  \"Orvi\"\n0x0000006C  0x6B2D3731  1798125361  \"k-71\"\n"
         "0x00000070  0x30430000  809697280   \"0C\"\n0x00000074  0x00000000  0\n",
         ""},
        {"peek Cerix-MV7 0x64010004", 0, "0x64010004  0x69726543  1769104707  \"Ceri\"\n", ""},
        {"peek Cerix-MV7 0xD08 2", 1, "0x00000D08  0x00000000  0           packetdelay\n",
         "qdv12host: ReadRegister at 0x00000D0C failed: the camera has no such address (0x8003)\n"},
        {"peek Orvik-710C 0x46020000 --json", 0,
         "[\n  {\n    \"address\": \"0x46020000\",\n    \"value\": 0,\n    \"text\": null,\n    \"function\": "
         "\"agc\"\n  }\n]\n",
         ""},
        {"poke Orvik-710C 0x14010000=9 0x14010000=0x300", 1,
         "0x14010000  0x00000009  9           gain\n0x14010000  0x000001FF  511         gain\n",
         "qdv12host: 0x14010000: 0x00000300 was written, but the camera now holds 0x000001FF\n"},
        {"poke Cerix-MV7 0x14010000=1 0x13=1", 2, "",
         "qdv12host: invalid address \"0x13\": registers are at multiples of 4\n"},
        {"poke Cerix-MV7 0x14010000=0x100000000", 2, "",
         "qdv12host: invalid value \"0x100000000\": registers hold 32 bits\n"},
        {"peek Cerix-MV7 device:1,0,0", 0, "device:1,0,0  0x000004B7  1207\n", ""},
        {"poke Cerix-MV7 device:1,1,0=5", 0, "device:1,1,0  0x00000005  5\n", ""},
        {"peek Orvik-710C device:1,0,0", 1, "", "qdv12host: device:1,0,0: SDK4_ERR_NOT_IMPLEMENTED\n"},
        {"peek Cerix-MV7 device:1,0", 2, "",
         "qdv12host: invalid device register \"device:1,0\": three words select one, as in device:1,0,0\n"},
        {"peek Cerix-MV7 device:1,0,0 2", 2, "",
         "qdv12host: 2 words from device:1,0,0 on: a device register has one\n"},
        {"peek Cerix-MV7 0xFFFFFFFC 2", 2, "", "qdv12host: 2 words from 0xFFFFFFFC on exceed the address space\n"},
        {"start Orvik-710C", 2, "",
         "qdv12host: start is a command of the shell, since acquisition ends with it: qdv12host shell CAMERA (see "
         "qdv12host --help)\n"},
    });
}

/// Announced rounding is success. Any other difference is not.
TEST(HostCommand, SetTellsRoundingFromOtherDifferences) {
    ExpectRuns({
        {"set Orvik-710C packetsize=1503", 0, "packetsize=1500\n", "qdv12host: packetsize: 1503 was rounded to 1500\n"},
        {"set Cerix-MV7 packetsize=1503 --fault offset:packetsize=4", 1, "packetsize=1504\n",
         "qdv12host: packetsize: 1503 was accepted, but the camera now holds 1504\n"},
        {"set Orvik-710C readouttime=5", 0, "readouttime=22135\n", "qdv12host: readouttime: 5 was rounded to 22135\n"},
        {"set Orvik-710C readouttime=30000 --fault clamp:readouttime=25000", 1, "readouttime=25000\n",
         "qdv12host: readouttime: 30000 was accepted, but the camera now holds 25000\n"},
        {"set Orvik-710C exposure=2:5000 --fault clamp:exposure=4992", 0, "exposure=2:4992\n",
         "qdv12host: exposure: 2:5000 was rounded to 2:4992\n"},
        {"set Orvik-710C exposure=-1:10", 1, "exposure=7:10\n",
         "qdv12host: exposure: -1:10 was accepted, but the camera now holds 7:10\n"},
        {"set Orvik-710C readoutarea=0,0,99,199 measurewindow.1=50,9999,9999,9999", 0,
         "readoutarea=0,0,99,199\nmeasurewindow.1=50,199,99,199\n",
         "qdv12host: measurewindow.1: 50,9999,9999,9999 was rounded to 50,199,99,199\n"},
        {"set Orvik-710C measurewindow.0=100,9,50,50", 0, "measurewindow.0=100,9,100,50\n",
         "qdv12host: measurewindow.0: 100,9,50,50 was rounded to 100,9,100,50\n"},
        {"set Orvik-710C measurewindow.0=0,0,63,99 --fault clamp:measurewindow=63", 1, "measurewindow.0=0,0,63,63\n",
         "qdv12host: measurewindow.0: 0,0,63,99 was accepted, but the camera now holds 0,0,63,63\n"},
        {"set 'Sollux G' persistentip=10.0.0.5,255.255.255.0,0.0.0.0", 1, "persistentip=off\n",
         "qdv12host: persistentip: the camera is in the subnet 192.168.1.0, mask 255.255.255.0, and takes no address "
         "of "
         "another; force-ip puts it there first: 10.0.0.5,255.255.255.0,0.0.0.0 was refused, the camera still holds "
         "off\n"},
        {"set Orvik-710C username=1234567890123456", 1, "username=123456789012345\n",
         "qdv12host: username: 1234567890123456 was accepted, but the camera now holds 123456789012345\n"},
    });
}

TEST(HostCommand, SetTellsWhatLocksAFunction) {
    for (const char* model : {"Orvik-710C", "'Sollux G'"}) {
        const Outcome run = RunHost(std::string("set ") + model + " agc=1 gain=5 exposuremode=freerunning");
        EXPECT_EQ(run.code, 1);
        EXPECT_TRUE(Has(run.err, model[0] == 'O' ? "gain: SDK4_ERR_CANTSETFEATURE (locked by agc=1, needs agc=off)"
                                                 : "gain: SDK4_ERR_DISABLED (locked by agc=1, needs agc=off)"));
        EXPECT_TRUE(Has(run.out, "exposuremode=freerunning\n")); // continues with the rest
    }
    // A mode set by an earlier run locks, too.
    const std::string state = " --state " + TemporaryFile("state");
    EXPECT_EQ(RunHost("set 'Sollux G' circularblankingsize=80" + state).code, 1);
    EXPECT_EQ(RunHost("set 'Sollux G' agc=1" + state).code, 0);
    EXPECT_TRUE(Has(RunHost("set 'Sollux G' gain=5" + state).err, "SDK4_ERR_DISABLED (locked by agc=1, needs"));
    EXPECT_EQ(RunHost("set 'Sollux G' gain=5 --index 3" + state).code, 1);
    std::filesystem::remove(TemporaryFile("state"));
}

TEST(HostCommand, WrongUsageIsToldInALineAndTouchesNoCamera) {
    ExpectRuns({
        {"get Orvik-710C gian", 2, "", "qdv12host: unknown function \"gian\"; did you mean \"gain\"?\n"},
        {"get Orvik-710C overlayshow.2", 2, "",
         "qdv12host: unknown function \"overlayshow.2\": overlayshow has indices 0 to 1\n"},
        {"get Orvik-710C gain.0", 2, "", "qdv12host: unknown function \"gain.0\": gain takes no index\n"},
        {"get Orvik-710C loadsettings", 2, "", "qdv12host: \"loadsettings\" is write-only\n"},
        {"set Orvik-710C serialnumber=1", 2, "", "qdv12host: \"serialnumber\" is read-only\n"},
        {"set Orvik-710C gain", 2, "", "qdv12host: no value for \"gain\": NAME=VALUE is required\n"},
        {"set Cerix-MV7 restart=1", 2, "", "qdv12host: \"restart\" takes no value: give the name only\n"},
        {"lst Orvik-710C", 2, "",
         "qdv12host: unknown command \"lst\"; did you mean \"list\"? (see qdv12host --help)\n"},
        {"selftest Orvik-710C --output --jsn", 2, "",
         "qdv12host: unknown option \"--output\"; did you mean \"--outputs\"? (see qdv12host help selftest)\n"},
        {"info a b c", 2, "", "qdv12host: unexpected argument \"b\" (see qdv12host help info)\n"},
        {"set Orvik-710C overlayshow=on", 2, "",
         "qdv12host: \"overlayshow\" requires an index: overlayshow.0 to overlayshow.1\n"},
        {"set Orvik-710C gain=5 gain=abc --trace", 2, "", "qdv12host: invalid value \"abc\" for gain (0..511)\n"},
        {"set Orvik-710C gain=-1", 2, "", "qdv12host: invalid value \"-1\" for gain (0..511)\n"},
        {"set Orvik-710C exposure=5", 2, "", "qdv12host: invalid value \"5\" for exposure (base:counter)\n"},
        {"set Orvik-710C exposure=1:2:3", 2, "", "qdv12host: invalid value \"1:2:3\" for exposure (base:counter)\n"},
        {"get Orvik-710C gain --fault nonsense:gain", 2, "",
         "qdv12host: fault \"nonsense:gain\": unknown kind \"nonsense\", expected clamp, endless, fail, failread, "
         "failwrite, ignore, null, offset, stale\n"},
        {"get Orvik-710 gain", 3, "", "qdv12host: unknown model \"Orvik-710\"; did you mean \"Orvik-710M\"?\n"},
        {"get Orvik-710C gain --fault fail:gain", 1, "",
         "qdv12host: gain: ReadMem at 0x14010000 failed: no answer from the camera\n"},
        {"get Cerix-MV7 gain --fault fail:0x934", 3, "",
         "qdv12host: opening \"Cerix-MV7\" failed: ReadRegister at 0x00000934 failed: no answer from the camera\n"},
    });
    for (const char* arguments :
         {"", "list", "frobnicate", "--log loud models", "models --plugin", "get", "models --config /nowhere",
          "models --config /etc/passwd", "models --plugin ''", "models --index x", "get Orvik-710C '1\n2'", "'1\n2'",
          "models --index '1\n2'", "get Orvik-710C gain --fault '1\n2'"}) {
        const Outcome run = RunHost(arguments);
        EXPECT_EQ(run.code, 2) << arguments;
        EXPECT_EQ(Lines(run.err).size(), 1) << run.err;
        EXPECT_TRUE(run.err.starts_with("qdv12host: ")) << run.err;
    }
}

TEST(HostCommand, ResultsThatCannotBeWrittenAreNoSuccess) {
    for (const char* arguments : {"models", "get Orvik-710C gain --json", "--help"}) {
        const Outcome run = RunHost("-c '" QDV12_HOST " " + std::string(arguments) + " >/dev/full'", "sh");
        EXPECT_EQ(run.code, 1) << arguments;
        EXPECT_EQ(run.err, "qdv12host: the results could not be written\n") << arguments;
    }
}

TEST(HostCommand, ListShowsLimitsDefaultsAndWhyAFunctionCannotBeSet) {
    const Outcome orvik = RunHost("list Orvik-530M");
    EXPECT_EQ(orvik.code, 0);
    EXPECT_EQ(orvik.err, "");
    EXPECT_FALSE(Has(orvik.out, "\033"));
    for (const char* line :
         {"NAME                      VALUE                   DEFAULT         LIMITS                    STATE\n",
          "\nserialnumber              530M-0042                                                         read-only\n",
          "\nreadoutarea               0,0,2591,2047 px                        0..2528,0..1984,63..2591,63..2047\n",
          "\ncontrast                  64                                      32..255\n",
          "\ntriggerdelay              -                                                                 "
          "locked by exposuremode=freerunning, needs exposuremode=resetrestart\n",
          "\ncolorbalance              -                                                                 "
          "not implemented (SDK4_ERR_NOT_IMPLEMENTED)\n",
          "\nloadsettings              -                                       0..2                      "
          "write-only\n"}) {
        EXPECT_TRUE(Has(orvik.out, line));
    }
    const Outcome m2vx = RunHost("list Cerix7-MV");
    EXPECT_EQ(m2vx.code, 0);
    for (const char* line :
         {"\nautomaticlevel            30                      30              0..100                    "
          "locked by agc=off, needs agc=2\n",
          "\nmeasurewindow             100,2,0,0,128 px        0,2,0,0,128     "
          "0..511,1..3,-511..511,-511..511,1..512\n",
          "\nmotorcontrol.0..255       256 values              0               0..65535\n"}) {
        EXPECT_TRUE(Has(m2vx.out, line));
    }
    const Outcome all = RunHost("list Cerix7-MV --all");
    EXPECT_TRUE(Has(all.out, "\ndefectpixel.2             512,44,2 "));
    EXPECT_TRUE(Has(all.out, "\nmotorcontrol.255          0 "));
}

TEST(HostCommand, ListIsLimitedToFunctionsAndTopics) {
    const std::string heading = "NAME                      VALUE                   DEFAULT         LIMITS"
                                "                    STATE\n";
    const std::string named = heading + "overlayshow.1             off                                     off|on\n"
                                        "gain                      0                       0               0..568\n";
    const std::string outputs = "motorcontrol.0..255       256 values              0               0..65535\n"
                                "lenscontrol.0             0\n";
    EXPECT_EQ(RunHost("list Cerix-MV7 overlayshow.1 gain").out, named);
    EXPECT_TRUE(RunHost("list Cerix-MV7 overlayshow.1 gain --topic outputs").out.starts_with(named + outputs));
    EXPECT_TRUE(RunHost("list Cerix-MV7 --topic outputs --topic image").out.starts_with(heading + "colorcoding "));
    EXPECT_EQ(Lines(RunHost("list Cerix-MV7 motorcontrol").out).size(), 257U);
    ExpectRuns({{"list Cerix-MV7 gain --topic color", 2, "",
                 "qdv12host: unknown topic \"color\"; the topics of Cerix-MV7 are identity, network, image, exposure, "
                 "processing, correction, overlay, memory, settings, tests, outputs\n"},
                {"list Orvik-710C gian", 2, "", "qdv12host: unknown function \"gian\"; did you mean \"gain\"?\n"}});
    EXPECT_TRUE(Has(RunHost("list Orvik-710C --topic exposur").err, "outputs; did you mean \"exposure\"?\n"));
}

TEST(HostCommand, ListOfACameraThatIsLostAtOnceHasNoHeading) {
    Host::ConfigureLogging("off");
    Host::Options options;
    options.plugin = QDV12_PLUGIN;
    options.camera.accesses = [](const Host::Access& access) {
        throw Host::ChannelLost(access.operation, access.address, "it is gone");
    };
    Host::Program program(options);
    std::ostringstream out;
    std::streambuf* const usual = std::cout.rdbuf(out.rdbuf());
    EXPECT_THROW(Host::List(Host::Invocation(program, {{Host::Parameter::Camera, {"Orvik-710C"}}})), Host::ChannelLost);
    std::cout.rdbuf(usual);
    EXPECT_EQ(out.str(), "");
}

/// The only writes of a read-only command are index selections.
TEST(HostCommand, ListNeverTriesAWrite) {
    std::set<std::string> written;
    for (const std::string& line : Lines(RunHost("list Orvik-710C --trace").err)) {
        if (line.starts_with("write")) {
            written.insert(line.substr(line.find("0x"), 10));
        }
    }
    const std::set<std::string> indexed = {"0x17010000", "0x17020000", "0x17030000", "0x17040000",
                                           "0x1E030000", "0x28090000", "0x5A030000", "0x66020000",
                                           "0x66030000", "0x660F0000", "0x66110000"};
    EXPECT_EQ(written, indexed);
}

TEST(HostCommand, EveryModelListsAllItsFunctions) {
    std::size_t models = 0;
    for (const std::string& line : Lines(RunHost("models").out)) {
        const std::string model = line.substr(0, line.find("  "));
        const Outcome run = RunHost("list '" + model + "' --json");
        EXPECT_EQ(run.code, 0) << model;
        const Host::Json document = Host::Json::Parse(run.out);
        std::set<std::string> names;
        for (const Host::Json& function : *document.Elements()) {
            EXPECT_TRUE(names.insert(*function["name"].Text()).second) << *function["name"].Text() << " twice";
            const std::string* const error = function["error"].Text();
            EXPECT_TRUE(error == nullptr || *error == "SDK4_ERR_NOT_IMPLEMENTED" || *error == "SDK4_ERR_DISABLED")
                << model << ' ' << *function["name"].Text() << ' ' << *error;
        }
        EXPECT_GT(names.size(), 80U) << model;
        ++models;
    }
    EXPECT_EQ(models, 13U);
}

TEST(HostCommand, ListAsJsonTellsTopicsAndHowManyThereAreOfAKind) {
    const std::pair<const char*, const char*> families[] = {
        {"Orvik-710C",
         "identity network image exposure processing color processing overlay memory settings tests outputs"},
        {"Cerix-MV7", "identity network image exposure processing correction processing overlay memory settings tests "
                      "correction outputs"},
    };
    for (const auto& [model, expected] : families) {
        const Host::Json document = Host::Json::Parse(RunHost("list --json " + std::string(model)).out);
        std::vector<std::string> topics;
        std::map<std::string, std::int64_t> counts;
        for (const Host::Json& function : *document.Elements()) {
            if (topics.empty() || topics.back() != *function["topic"].Text()) {
                topics.push_back(*function["topic"].Text());
            }
            if (const auto* const count = function["count"].Number()) {
                counts[*function["name"].Text()] = *count;
            }
        }
        std::string joined;
        for (const std::string& topic : topics) {
            joined += (joined.empty() ? "" : " ") + topic;
        }
        EXPECT_EQ(joined, expected);
        const std::map<std::string, std::int64_t> many{{"defectpixel", 256}, {"motorcontrol", 256}};
        EXPECT_EQ(counts, model[0] == 'C' ? many : decltype(many)());
    }
}

TEST(HostCommand, ModelsAndInfoTellWhoACameraIs) {
    const Outcome models = RunHost("models");
    EXPECT_TRUE(models.out.starts_with("Orvik-31200M    qdv12   Orvik\nOrvik-31200C    qdv12   Orvik\n"));
    EXPECT_TRUE(models.out.ends_with("Cerix-MV7       qdv12   M2VX\nSollux G        qdv12   M2VX\n"));

    const Outcome info = RunHost("info Orvik-390C");
    EXPECT_EQ(info.code, 0);
    for (const char* line : {"model                 Orvik-390C\n", "family                Orvik\n",
                             "softwarebuild         build 1207\n", "macaddress            02:00:12:03:03:90\n",
                             "imagesize             2256,1728 px\n", "pixelformat           0x02180014\n"}) {
        EXPECT_TRUE(Has(info.out, line));
    }
    EXPECT_TRUE(Has(RunHost("info 'Sollux G' --json").out, "\"hardwareversion\": null"));
}

TEST(HostCommand, CheckSaysWhyAPluginCannotBeUsed) {
    const Outcome good = RunHost("check " QDV12_PLUGIN);
    EXPECT_EQ(good.code, 0);
    EXPECT_EQ(good.err, "");
    EXPECT_TRUE(Has(good.out, "path    " QDV12_PLUGIN "\nloader  loaded\nexport  InitLibrary   found\n"
                              "export  CreateObject  found\nmodel   Orvik-31200M  qdv12\n"));

    const Outcome other = RunHost("check libm.so.6");
    EXPECT_EQ(other.code, 3);
    EXPECT_TRUE(Has(other.out, "export  InitLibrary   missing\nexport  CreateObject  missing\n"));
    EXPECT_EQ(other.err, "qdv12host: libm.so.6 is not a camera plug-in: it does not export InitLibrary\n");

    for (const char* arguments : {"check /nowhere/p.so", "models --plugin /nowhere/p.so"}) {
        const Outcome absent = RunHost(arguments);
        EXPECT_EQ(absent.code, 3);
        EXPECT_EQ(absent.err, "qdv12host: cannot load /nowhere/p.so: cannot open shared object file: No such file "
                              "or directory\n");
    }
    const Outcome without = RunHost("check " QDV12_PLUGIN_WITHOUT_LOG4CXX);
    EXPECT_EQ(without.code, 3);
    EXPECT_TRUE(Has(without.err, "cannot load " QDV12_PLUGIN_WITHOUT_LOG4CXX
                                 ": undefined symbol: log4cxx_of_another_version; link the program with the "
                                 "shared log4cxx that the plug-in was built with"));
}

TEST(HostCommand, TheInstalledProgramLoadsTheInstalledPlugin) {
    namespace fs = std::filesystem;
    const fs::path prefix = TemporaryFile("prefix");
    fs::create_directories(prefix / "bin");
    fs::create_directories(prefix / "lib/qdv12");
    fs::copy_file(QDV12_HOST, prefix / "bin/qdv12host");
    fs::create_symlink(QDV12_PLUGIN, prefix / "lib/qdv12/libqdv12ctrl.so");
    const Outcome run = RunHost("check", prefix / "bin/qdv12host");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_TRUE(run.out.starts_with("path    " + (prefix / "lib/qdv12/libqdv12ctrl.so").string() + "\n")) << run.out;
    fs::remove_all(prefix);
}

TEST(HostCommand, AStateFileKeepsTheCameraBetweenRuns) {
    const std::string file = TemporaryFile("state");
    const std::string state = " --state " + file;
    EXPECT_EQ(RunHost("set Orvik-710C gain=600 saturation=9" + state).code, 1); // the first assignment is kept
    EXPECT_EQ(RunHost("get Orvik-710C gain saturation" + state).out, "gain=511\nsaturation=9\n");

    const Outcome other = RunHost("get Orvik-710M gain" + state);
    EXPECT_EQ(other.code, 3);
    EXPECT_TRUE(Has(other.err, "wrong model \"Orvik-710C\""));
    std::ofstream(file) << "{";
    EXPECT_EQ(RunHost("get Orvik-710C gain" + state).code, 3);
    const Outcome unreadable = RunHost("get Orvik-710C gain --state /");
    EXPECT_EQ(unreadable.code, 3);
    EXPECT_EQ(unreadable.err, "qdv12host: camera state /: cannot be read: Is a directory\n");
    const Outcome unwritable = RunHost("get Orvik-710C gain --state /nowhere/state");
    EXPECT_EQ(unwritable.code, 1);
    EXPECT_EQ(unwritable.err, "qdv12host: camera state /nowhere/state: cannot be written: No such file or directory\n");
    std::filesystem::remove(file);
}

TEST(HostCommand, TraceAndLogGoToStandardError) {
    const Outcome trace = RunHost("get Orvik-710C gain --trace");
    EXPECT_EQ(trace.out, "gain=0\n");
    EXPECT_TRUE(trace.err.starts_with("read  ReadMem           0x14010000  0  ")) << trace.err;
    EXPECT_TRUE(trace.err.ends_with(" us\n")) << trace.err;
    const Outcome failed = RunHost("get Orvik-710C gain --trace --fault fail:0x14010000");
    EXPECT_TRUE(failed.err.starts_with("read  ReadMem           0x14010000   (failed)  ")) << failed.err;

    const std::string config = TemporaryFile("log.properties");
    const std::string log = TemporaryFile("log");
    std::ofstream(config) << "log4j.rootLogger=INFO, file\nlog4j.appender.file=org.apache.log4j.FileAppender\n"
                          << "log4j.appender.file.File=" << log
                          << "\nlog4j.appender.file.layout=org.apache.log4j.PatternLayout\n"
                          << "log4j.appender.file.layout.ConversionPattern=%p %m%n\n";
    EXPECT_EQ(RunHost("get Orvik-710C gain --config " + config).err, "");
    EXPECT_TRUE(Has(Content(log), "INFO QDV12: CreateObject(Orvik-710C)\n"));
    std::ofstream(config) << "log4j.rootLogger=INFO, file\nlog4j.appender.file=Nonsense\n";
    const Outcome wrong = RunHost("get Orvik-710C gain --config " + config);
    EXPECT_EQ(wrong.code, 2);
    EXPECT_EQ(wrong.err, "qdv12host: log4cxx configuration " + config + ": no usable appender\n");
    std::filesystem::remove(config);
    std::filesystem::remove(log);

    const Outcome logged = RunHost("set Orvik-390C agc=1 gain=5 --log INFO");
    EXPECT_TRUE(Has(logged.err, "QDV12: CreateObject(Orvik-390C)"));
    EXPECT_TRUE(Has(logged.err, "SDK4Exception [X4Error(SDK4_ERR_CANTSETFEATURE)]"));
    EXPECT_FALSE(Has(logged.err, "DEBUG"));
}

} // namespace Scenario
