#include "Tests/Scenario/HostProcess.h"

#include "Host/Json.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

namespace Scenario {

TEST(HostDescribe, TellsAllOfAFunction) {
    const std::string state = " --state " + TemporaryFile("described");
    EXPECT_EQ(RunHost("set Orvik-710C agc=1" + state).code, 0);
    const Outcome orvik = RunHost("describe Orvik-710C gain exposuremode overlayposition binning --trace" + state);
    EXPECT_EQ(orvik.code, 0);
    EXPECT_EQ(
        orvik.out,
        "gain\n"
        "    meaning   Gain, in steps of the camera\n"
        "    value     0\n"
        "    limits    0..511\n"
        "    lock      locked by agc=1, needs agc=off\n"
        "    register  0x14010000\n"
        "    get       1 access (read 0x14010000); cached 1, then 0\n"
        "    set       2 accesses (read 0x46020000, write 0x14010000)\n"
        "    cache     read once, and again after one of these is set: agc, loadsettings; each time while locked; each "
        "time with index 2\n"
        "    restore   saved, and restored in the order of list\n"
        "exposuremode\n"
        "    meaning   How exposures are started\n"
        "    value     freerunning\n"
        "    limits    freerunning|freerunning2|resetrestart|frameondemand\n"
        "    codes     freerunning=1, freerunning2=2, resetrestart=3, frameondemand=4\n"
        "    register  0x0A020000\n"
        "    get       1 access (read 0x0A020000); cached 1, then 0\n"
        "    set       1 access (write 0x0A020000)\n"
        "    cache     read once, and again after one of these is set: loadsettings; each time with index 2\n"
        "    restore   saved, and restored in the order of list\n"
        "overlayposition.0..1\n"
        "    meaning   Position of the overlay line within the readout area\n"
        "    value     0,0; 0,0\n"
        "    unit      px\n"
        "    limits    posx,posy: 0..3207,0..2207\n"
        "    register  0x17020000\n"
        "    get       2 accesses (write 0x17020000, read 0x17020000); cached 2, then 0\n"
        "    set       2 accesses (read 0x28050000, write 0x17020000); cached 2, then 1\n"
        "    cache     read once, and again after one of these is set: readoutarea, loadsettings; each time with "
        "index 2\n"
        "    restore   saved, and restored in the order of list\n"
        "binning\n"
        "    meaning   Columns and lines that are combined into one\n"
        "    state     not implemented (SDK4_ERR_NOT_IMPLEMENTED)\n"
        "    restore   saved, and restored in the order of list\n");
    EXPECT_FALSE(Has(orvik.err, "write WriteMem          0x14010000")); // costs are those of another camera
    EXPECT_TRUE(Has(RunHost("get Orvik-710C agc" + state).out, "agc=1"));
    std::filesystem::remove(TemporaryFile("described"));

    EXPECT_EQ(RunHost("describe 'Sollux G' autogainstopmode motorcontrol imagesize").out,
              "autogainstopmode\n"
              "    meaning   Stop mode of automatic gain\n"
              "    value     0\n"
              "    limits    0|1\n"
              "    default   0\n"
              "    lock      locked by agc=off, needs agc=1|2\n"
              "    register  0x46090000\n"
              "    get       1 access (read 0x46090000); cached 0\n"
              "    set       1 access (write 0x46090000)\n"
              "    cache     read when the camera is opened; each time with index 2\n"
              "    restore   saved, and restored in the order of list\n"
              "motorcontrol.0..255\n"
              "    meaning   Word of a channel of the motor unit\n"
              "    value     256 values\n"
              "    limits    0..65535\n"
              "    default   0\n"
              "    register  0x6E140000\n"
              "    get       2 accesses (write 0x6E140000, read 0x6E140000); cached 0\n"
              "    set       1 access (write 0x6E140000)\n"
              "    cache     read when the camera is opened; each time with index 2\n"
              "    restore   saved; restored only with --outputs\n"
              "imagesize\n"
              "    meaning   Width and height of the image\n"
              "    value     1024,1024\n"
              "    unit      px\n"
              "    state     read-only\n"
              "    register  0x28030000\n"
              "    get       1 access (read 0x28030000); cached 0\n"
              "    cache     read when the camera is opened; each time with index 2\n"
              "    restore   not a setting: neither saved nor restored\n");
}

TEST(HostDescribe, JsonTellsTheMeaningOfEveryFunctionAndWhatItCosts) {
    for (const std::string model : {"Orvik-390M", "Cerix-MV7"}) {
        std::string names;
        const Host::Json list = Host::Json::Parse(RunHost("list --json " + model).out);
        for (const Host::Json& function : *list.Elements()) {
            const std::string& name = *function["name"].Text();
            EXPECT_FALSE(function["meaning"].Text()->empty()) << name;
            EXPECT_NE(function["restore"].Text(), nullptr) << name;
            const std::string& topic = *function["topic"].Text();
            names += topic == "exposure" || topic == "image" || topic == "memory" ? ' ' + name : "";
        }
        const Host::Json document = Host::Json::Parse(RunHost("describe --json " + model + names).out);
        for (const Host::Json& function : *document.Elements()) {
            const std::string& name = *function["name"].Text();
            const std::string* const error = function["error"].Text();
            const bool isMissing = error != nullptr && *error == "SDK4_ERR_NOT_IMPLEMENTED";
            const bool isWithoutAccess = isMissing || (name == "timeperframe" && model == "Cerix-MV7");
            EXPECT_EQ(function["register"].Text() == nullptr, isWithoutAccess) << name;
            for (const auto& [allowed, costs] : {std::pair("readable", "get"), std::pair("writable", "set")}) {
                const auto* const uncached = function[costs]["uncached"].Elements();
                EXPECT_EQ(uncached != nullptr, *function[allowed].Bool() && !isMissing) << name;
                EXPECT_TRUE(uncached == nullptr || *uncached->front().Number() > 0 || isWithoutAccess) << name;
            }
        }
    }
}

} // namespace Scenario
