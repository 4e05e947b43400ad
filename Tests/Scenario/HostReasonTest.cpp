#include "Tests/Scenario/InProcess.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace Scenario {

TEST(HostReason, OfARefusalIsTheSameEverywhere) {
    const std::string raw = "SDK4_ERR_DISABLED (locked by colorcoding=raw14, needs "
                            "colorcoding=mono8|mono14|mono12packed|yuv422packed|rgb8|bgr8)\n";
    EXPECT_EQ(RunHost("set Orvik-390C colorcoding=raw14 lightsource=1 measureframecolor=1").err,
              "qdv12host: lightsource: " + raw + "qdv12host: measureframecolor: " + raw);

    const std::string delay = "SDK4_ERR_DISABLED (locked by exposuremode=freerunning, needs exposuremode=resetrestart)";
    EXPECT_EQ(RunHost("grab Orvik-390M readoutarea=0,0,63,63 triggerdelay=1:5").err,
              "qdv12host: triggerdelay: " + delay + '\n');
    const std::string stuck = " --fault ignore:exposuremode";
    EXPECT_TRUE(Has(RunHost("selftest Orvik-390M" + stuck).out, "left out (" + delay + ")\n"));

    const std::string settings = TemporaryFile("settings.json");
    const std::string state = " --state " + TemporaryFile("state");
    EXPECT_EQ(RunHost("save Orvik-390M " + settings).code, 0);
    EXPECT_EQ(RunHost("set Orvik-390M gain=7 agc=1" + state).code, 0);
    const Outcome restored = RunHost("restore " + settings + " Orvik-390M --json --fault ignore:agc" + state);
    EXPECT_TRUE(Has(restored.out, "\"reason\": \"SDK4_ERR_CANTSETFEATURE\",\n    \"lockedBy\": \"agc=1\",\n"
                                  "    \"needs\": \"agc=off\"\n"));
    std::filesystem::remove(settings);
    std::filesystem::remove(TemporaryFile("state"));
}

/// Takes a picture, fails to stop, then sets functions and lists them.
int SetAndListAfterGrab(const Host::Invocation& invocation) {
    static_cast<void>(Host::RunAndReport([&] { return Host::Grab(invocation); }));
    const auto sets = [&](const char* assignment) {
        static_cast<void>(
            Host::Set(Host::Invocation(invocation.Program(), {{Host::Parameter::Assignments, {assignment}}})));
    };
    const bool isOrvik = invocation.OpenCamera().Family() == "Orvik";
    sets(isOrvik ? "colorcoding=mono14" : "loadsettings=1");
    sets("packetsize=1500");
    return Host::List(Host::Invocation(invocation.Program(), {}));
}

TEST(HostReason, MayBeThatAcquisitionRuns) {
    const std::pair<const char*, const char*> families[] = {
        {"Orvik-390M", "qdv12host: colorcoding: SDK4_ERR_CANTSETFEATURE (locked while acquisition runs)"},
        {"Cerix-MV7", "qdv12host: loadsettings: SDK4_ERR_ACQUISITIONRUNNING (locked while acquisition runs)\n"
                      "qdv12host: packetsize: SDK4_ERR_ACQUISITIONRUNNING (locked while acquisition runs)"},
    };
    for (const auto& [model, refusal] : families) {
        int stops = 0;
        const Outcome run =
            RunInProcess(SetAndListAfterGrab, {{Host::Parameter::Camera, {model}}}, [&](const Host::Access& access) {
                if (access.address == 0x00088138 && ++stops > 1) { // the first is before the start
                    throw std::runtime_error("no answer");
                }
            });
        EXPECT_TRUE(Has(run.err, refusal));
        const bool isOrvik = model[0] == 'O';
        EXPECT_EQ(Has(run.out, "packetsize=1500\n"), isOrvik);
        EXPECT_TRUE(Has(run.out, isOrvik ? "63..2255,63..1727  locked while acquisition runs\n"
                                         : "0..2                      locked while acquisition runs\n"));
    }
}

} // namespace Scenario
