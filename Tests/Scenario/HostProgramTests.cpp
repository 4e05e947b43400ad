#include "HostProcess.h"

#include <string>

namespace Scenario {

/// How a tour begins the line of a call.
std::string Call(std::string text) {
    text.resize(64, ' ');
    return "  " + text + "  ";
}

TEST(HostProgram, ToursACameraAndShowsWhatEachCallCosts) {
    const Outcome run = RunHost("tour Orvik-390M");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_TRUE(Has(run.out, Call("gain.SetGain(512)") +
                                 "! SDK4_ERR_OUTOFRANGE\n"
                                 "      ReadMem            0x46020000  agc                      -> 0\n"
                                 "      WriteMem           0x14010000  gain                     <- 511\n" +
                                 Call("gain.GetGain()") + "= 511\n      (no port access)\n"));
    EXPECT_TRUE(Has(run.out, Call("enhancement.GetContrast()") +
                                 "= 200\n"
                                 "      ReadMem            0x18020000  contrast                 -> 200\n"));
    EXPECT_TRUE(Has(run.out,
                    Call("roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MIN)") + "= startx 0, starty 0, endx 63, endy 63\n"));
    EXPECT_TRUE(run.out.ends_with(" refusals, 0 surprises.\n"));
}

TEST(HostProgram, ToursTheOtherFamilyWithItsPropertiesAndCallbacks) {
    const Outcome run = RunHost("tour 'Sollux G'");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_TRUE(Has(run.out, "behind the control \"M2VX\".\n"));
    EXPECT_TRUE(
        Has(run.out, "  defectpixel.xpos              258      0        1024        0        unsigned, indexed\n"));
    EXPECT_TRUE(Has(run.out, Call("gain.SetGain(600)") +
                                 "! SDK4_ERR_OUTOFRANGE\n"
                                 "      WriteRegister      0x14010000  gain                     <- 600\n"
                                 "      ReadRegister       0x14010000  gain                     -> 568\n"
                                 "      callback           gain                                 value = 568\n"));
    EXPECT_TRUE(Has(run.out, "  Opening it with index 3 cost 608 port accesses, 512 of them on motorcontrol.\n"));
    EXPECT_TRUE(run.out.ends_with(" refusals, 0 surprises.\n"));
}

TEST(HostProgram, LogsWhenAskedTo) {
    const Outcome run = RunHost("tour Orvik-390C --log INFO");
    EXPECT_EQ(run.code, 0);
    EXPECT_TRUE(Has(run.err, "QDV12: CreateObject(Orvik-390C)"));
    EXPECT_TRUE(Has(run.err, "SDK4Exception [X4Error(SDK4_ERR_CANTSETFEATURE)]"));
    EXPECT_FALSE(Has(run.err, "DEBUG"));
}

} // namespace Scenario
