// The behaviour of simulated cameras at restart, and of their motors, lenses and defect pixels.

#include "Tests/Scenario/Simulated.h"

namespace Scenario {

TEST(SimulatedRestart, TakesTheStartUpSet) {
    for (const char* model : {"Orvik-31200C", "Cerix7-MV"}) {
        const Simulated camera(model);
        camera.Write(0x14010000, {40});
        camera.Write(0x51030000, {2}); // saved,
        camera.Write(0x51040000, {2}); // and selected for the start
        camera.Write(0x14010000, {50});
        camera.Write(0x0D04, {8000, 77});
        camera.Write(0x00088134, {1});
        camera.Write(0x51010000, {0});
        EXPECT_EQ(camera.Get("gain"), Words{40}) << model;
        EXPECT_EQ(camera.Get("packetsize"), Words{1404});
        EXPECT_EQ(camera.Get("packetdelay"), Words{0});
        EXPECT_EQ(camera.Get("startacquisition"), Words{0});
    }
}

TEST(SimulatedRestart, TakesThePersistentAddressWhereThatIsSwitchedOn) {
    struct Row {
        std::uint32_t config;
        std::uint32_t address; ///< the persistent one
        bool taken;
    };
    const Row rows[] = {
        {7, 0xC0A80114, true}, // persistent, DHCP, link-local
        {1, 0xC0A80114, true},
        {6, 0xC0A80114, false}, // disabled
        {7, 0, false},          // not set
    };
    for (const char* model : {"Orvik-31200C", "Cerix7-MV"}) {
        for (const Row& row : rows) {
            SCOPED_TRACE(row.config);
            const Simulated camera(model);
            const auto expectAddress = [&](const Words& address, const Words& mask, const Words& gateway) {
                EXPECT_EQ(camera.Get("currentipaddress"), address);
                EXPECT_EQ(camera.Get("currentsubnetmask"), mask);
                EXPECT_EQ(camera.Get("currentdefaultgateway"), gateway);
            };
            camera.Write(0x0014, {row.config});
            camera.Write(0x064C, {row.address});
            camera.Write(0x065C, {0xFFFF0000});
            camera.Write(0x066C, {0xC0A80101});
            expectAddress({0xC0A8010A}, {0xFFFFFF00}, {0xC0A80101}); // until the restart
            camera.Write(0x066C, {0xC0A801FE});
            camera.Write(0x51010000, {0});
            if (row.taken) {
                expectAddress({row.address}, {0xFFFF0000}, {0xC0A801FE});
                camera.Write(0x0014, {6});
                camera.Write(0x51010000, {0}); // assigned again
            }
            expectAddress({0xC0A8010A}, {0xFFFFFF00}, {0xC0A80101});
            EXPECT_EQ(camera.Get("persistentipaddress"), Words{row.address}); // is kept
        }
    }
}

TEST(SimulatedRegister, KeepsOnlySupportedIpConfigurations) {
    const Simulated camera("Orvik-710M");
    camera.Write(0x0014, {0}); // link-local stays on
    EXPECT_EQ(camera.Get("currentipconfig"), Words{4});
    camera.Write(0x0014, {0xFFFFFFFF});
    EXPECT_EQ(camera.Get("currentipconfig"), Words{7});
}

TEST(SimulatedMotor, TravelsToWhereItIsSent) {
    const Simulated camera("Cerix7-MV");
    camera.Write(0x6E140000, {255, 40000});
    camera.Write(0x6E140000, {3, 5});
    EXPECT_EQ(camera.Get("motorcontrol", 255), Words{8192});
    EXPECT_EQ(camera.Get("motorcontrol", 3), Words{5});
    camera.Advance(64ms);
    EXPECT_EQ(camera.Get("motorcontrol", 255), Words{24576});
    camera.Write(0x6E140000, {255, 100}); // moves back on its way
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("motorcontrol", 255), Words{100});
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("motorcontrol", 255), Words{100});
}

TEST(SimulatedLens, TravelsByItself) {
    const Simulated camera("Sollux G");
    camera.Write(0x0C080000, {0, 1024}); // within one step
    camera.Write(0x0C080000, {1, 3000}); // from 120
    camera.Write(0x0C080000, {3, 1500});
    EXPECT_EQ(camera.Get("lenscontrol", 0), Words{1024});
    EXPECT_EQ(camera.Get("lenscontrol", 1), Words{1144});
    EXPECT_EQ(camera.Get("lenscontrol", 3), Words{1024});
    camera.Advance(31ms); // with the accesses, one step
    EXPECT_EQ(camera.Get("lenscontrol", 1), Words{2168});
    EXPECT_EQ(camera.Get("lenscontrol", 3), Words{1500});
    camera.Write(0x6E140000, {0, 65535}); // a motor moves meanwhile
    camera.Advance(32ms);
    EXPECT_EQ(camera.Get("lenscontrol", 1), Words{3000});
    EXPECT_EQ(camera.Get("lenscontrol", 2), Words{64}); // no target set
    camera.Write(0x0C080000, {1, 0});
    EXPECT_EQ(camera.Get("lenscontrol", 1), Words{1976});
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("lenscontrol", 1), Words{0});
    camera.Write(0x0C080000, {0, 70000});
    camera.Write(0x0C080000, {4, 7}); // there is no lens 4
    camera.Advance(4s);
    EXPECT_EQ(camera.Get("lenscontrol", 0), Words{65535});
    camera.Write(0x51010000, {0});
    EXPECT_EQ(camera.Get("lenscontrol", 0), Words{65535}); // its current position
}

TEST(SimulatedDefectPixels, AreCountedUpToTheLastPairInUse) {
    const Simulated camera("Cerix7-MV");
    camera.Write(0x0B020000, {9, 1, 50, 60, 2});
    EXPECT_EQ(camera.Get("defectpixelcount"), Words{10});
    camera.Write(0x0B020000, {9, 1, 50, 60, 0});
    EXPECT_EQ(camera.Get("defectpixelcount"), Words{2});
    camera.Write(0x0B020000, {9, 1, 50, 60, 3}); // there is no mode 3
    camera.Write(0x0B030000, {0});
    EXPECT_EQ(camera.Get("defectpixelcount"), Words{3});
}

} // namespace Scenario
