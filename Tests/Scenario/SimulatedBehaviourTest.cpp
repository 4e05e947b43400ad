// The behaviour of simulated cameras, controlled through the port and inspected directly.

#include "Tests/Scenario/Simulated.h"

namespace Scenario {

TEST(SimulatedGeometry, FollowsBinningAndAreaAndGoesBackWithThem) {
    const Simulated camera("Orvik-710M");                 // 3208 x 2208
    camera.Write(0x1E030000, {1, 2000, 100, 3000, 2000}); // the second measure window
    camera.Write(0x17020000, {1, 1700, 1200});            // the second overlay line
    camera.Write(0x0A0B0000, {2, 3});
    EXPECT_EQ(camera.Get("readoutarealimits", 0), (Words{0, 0, 63, 63}));
    EXPECT_EQ(camera.Get("readoutarealimits", 1), (Words{1540, 672, 1603, 735}));
    EXPECT_EQ(camera.Get("readoutarealimits", 2), (Words{0, 0, 1603, 735}));
    EXPECT_EQ(camera.Get("readoutarea"), (Words{0, 0, 1603, 735}));
    EXPECT_EQ(camera.Get("imagesize"), (Words{1604, 736}));
    EXPECT_EQ(camera.Get("overlayposition", 1), (Words{1603, 735}));
    EXPECT_EQ(camera.Get("measurewindow", 1), (Words{1603, 100, 1603, 735}));

    camera.Write(0x28050000, {1600, 100, 9999, 110}); // too far to the right, and too low
    EXPECT_EQ(camera.Get("readoutarea"), (Words{1540, 100, 1603, 163}));
    EXPECT_EQ(camera.Get("readoutarealimits", 2), (Words{1540, 100, 1603, 163}));
    camera.Write(0x0A0B0000, {1, 1});
    EXPECT_EQ(camera.Get("readoutarea"), (Words{3080, 300, 3207, 491}));

    camera.Write(0x28050000, {0, 0, 3207, 2207});
    EXPECT_EQ(camera.Get("overlayposition", 1), (Words{1700, 1200}));
    EXPECT_EQ(camera.Get("measurewindow", 1), (Words{2000, 100, 3000, 2000}));
    camera.Write(0x0A0B0000, {9, 0}); // factors 8 and 1
    EXPECT_EQ(camera.Get("imagesize"), (Words{401, 2208}));

    const Simulated color("Orvik-710C"); // cannot bin
    color.Write(0x0A0B0000, {2, 2});
    EXPECT_EQ(color.Get("binning"), (Words{1, 1}));
}

TEST(SimulatedTiming, FollowsWhatIsReadOutExposedAndSent) {
    const Simulated camera("Orvik-710M");
    EXPECT_EQ(camera.Get("readouttime"), Words{22135}); // 3208 x 2208 at 320 pixels per microsecond
    EXPECT_EQ(camera.Get("frameduration"), Words{22235});
    camera.Write(0x28020000, {6}); // two bytes per pixel, at 500 bytes per microsecond
    EXPECT_EQ(camera.Get("frameduration"), Words{28333});
    camera.Write(0x0A030000, {3, 50}); // 50 ms
    EXPECT_EQ(camera.Get("frameduration"), Words{50100});
    camera.Write(0x0A020000, {3}); // triggered: no exposure during readout
    EXPECT_EQ(camera.Get("frameduration"), Words{72235});

    camera.Write(0x0A0A0000, {12000});
    EXPECT_EQ(camera.Get("readouttime"), Words{22135});
    camera.Write(0x28050000, {0, 0, 639, 479});
    EXPECT_EQ(camera.Get("readouttime"), Words{12000});
    camera.Write(0x0A0A0000, {0});
    EXPECT_EQ(camera.Get("readouttime"), Words{960});
    camera.Write(0x0A030000, {7, 0xFFFFFFFF});
    EXPECT_EQ(camera.Get("frameduration"), Words{0xFFFFFFFF});
}

TEST(SimulatedAutomatic, MovesWhatItOwnsStepByStepWhileItIsOn) {
    const Simulated camera("Orvik-520C");
    camera.Write(0x46010000, {1});
    EXPECT_EQ(camera.Get("exposure"), (Words{0, 20000}));
    camera.Advance(32ms);
    EXPECT_EQ(camera.Get("exposure"), (Words{0, 22800})); // halfway to 25600, which gives a level of 128
    for (int i = 0; i < 64; ++i) {
        (void)camera.camera->ReadRegister(0x46010000);
    }
    EXPECT_EQ(camera.Get("exposure"), (Words{0, 24200})); // the accesses take one time step
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("exposure"), (Words{0, 25600}));
    EXPECT_EQ(camera.Get("frameduration"), Words{31228}); // three bytes per pixel, longer than the exposure
    camera.Write(0x0A030000, {3, 1});
    EXPECT_EQ(camera.Get("exposure"), (Words{3, 13})); // written in milliseconds: it continues from there
    camera.Write(0x46010000, {0});
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("exposure"), (Words{3, 13}));

    camera.Write(0x46020000, {2});
    camera.Write(0x46050000, {2});
    camera.Write(0x46040000, {1});
    camera.Write(0x15020000, {1});
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("gain"), Words{124}); // 128 is 1.97 times as bright as 13 ms are
    EXPECT_EQ(camera.Get("brightness"), Words{200});
    EXPECT_EQ(camera.Get("contrast"), Words{96});
    EXPECT_EQ(camera.Get("colorbalance"), (Words{104, 128, 176}));
}

TEST(SimulatedAutomatic, OfTheOtherFamilyFindsItsLevelAndCanBeToldToStop) {
    const Simulated camera("Cerix-MV7");
    camera.Write(0x46020000, {2});
    EXPECT_EQ(camera.Get("gain"), Words{28});
    camera.Write(0x46030000, {50});
    EXPECT_EQ(camera.Get("gain"), Words{68}); // on the way to 108
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("gain"), Words{108});

    camera.Write(0x0A020000, {3}); // the exposure time is settable
    camera.Write(0x0A030000, {66});
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("gain"), Words{8});
    camera.Write(0x46090000, {1}); // holds the converged value, ...
    camera.Write(0x0A030000, {99});
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("gain"), Words{8});
    camera.Write(0x46030000, {90}); // ... until a setting changes
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("gain"), Words{28});
    camera.Write(0x0A020000, {1});
    EXPECT_EQ(camera.Get("exposure"), Words{33});
    camera.Write(0x0A020000, {3});
    EXPECT_EQ(camera.Get("exposure"), Words{99});
    EXPECT_EQ(camera.Get("frameduration"), Words{99000});
    camera.Write(0x51030000, {1}); // dependent values follow also when settings are loaded
    camera.Write(0x51020000, {0});
    EXPECT_EQ(camera.Get("frameduration"), Words{33333});
    camera.Write(0x51020000, {1});
    EXPECT_EQ(camera.Get("frameduration"), Words{99000});

    EXPECT_EQ(camera.Get("abcxrlevel"), Words{912});
    camera.Write(0x47090000, {0, 600});
    camera.Write(0x47090000, {1, 500});
    camera.Write(0x47040000, {1});
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("abcxrlevel"), Words{550});
    camera.Write(0x47040000, {0});
    camera.Advance(1s);
    EXPECT_EQ(camera.Get("abcxrlevel"), Words{912});
}

TEST(SimulatedRegister, IgnoresWhatItDoesNotTake) {
    const Simulated camera("Orvik-390M");
    camera.Write(0x64020000, {1, 2, 3, 4});    // serial number
    camera.Write(0x28030000, {10, 10});        // image size
    camera.Write(0x5A030000, {0, 99});         // temperature
    camera.Write(0x28090000, {1, 0, 0, 9, 9}); // limits of the readout area
    camera.Write(0x46010000, {3});             // there is no mode 3 of automatic exposure
    camera.Write(0x28020000, {110});           // a monochrome camera has no coding RGB8
    camera.Write(0x66020000, {6, 1});          // there is no line 6
    camera.Write(0x51030000, {0});             // set 0 cannot be saved
    EXPECT_EQ(std::string(camera.camera->ReadString(0x64020000, 16) + 4), "390M-0042");
    EXPECT_EQ(camera.Get("imagesize"), (Words{2256, 1728}));
    EXPECT_EQ(camera.Get("temperature"), Words{41});
    EXPECT_EQ(camera.Get("readoutarealimits", 1), (Words{2192, 1664, 2255, 1727}));
    EXPECT_EQ(camera.Get("aet"), Words{0});
    EXPECT_EQ(camera.Get("colorcoding"), Words{0});
    EXPECT_EQ(camera.Get("savesettings"), Words{0});
    camera.Write(0x66020000, {6});
    EXPECT_EQ(camera.camera->ReadRegisterPair(0x66020000), 6U);

    camera.Write(0x19010000, {0xFFFFFFF0}); // look-up table index -16
    EXPECT_EQ(camera.Get("lutindex"), Words{0U - 8U});
    camera.Write(0x0D04, {0x800001F7}); // a test packet of 503 bytes
    EXPECT_EQ(camera.Get("packetsize"), Words{1404});
}

TEST(SimulatedAcquisition, ShowsAndLocksGeometryUntilItStops) {
    const Simulated camera("Orvik-530M");
    camera.Write(0x0A0B0000, {2, 2});
    camera.Write(0x51030000, {1});
    camera.Write(0x0A0B0000, {1, 1});
    camera.Write(0x14010000, {7});
    camera.Write(0x00088134, {1});
    EXPECT_EQ(camera.Get("startacquisition"), Words{1});
    camera.Write(0x28050000, {0, 0, 99, 99});
    camera.Write(0x28020000, {6});
    camera.Write(0x51020000, {1}); // the rest of the set is loaded
    EXPECT_EQ(camera.Get("imagesize"), (Words{2592, 2048}));
    EXPECT_EQ(camera.Get("colorcoding"), Words{0});
    EXPECT_EQ(camera.Get("gain"), Words{0});

    camera.Advance(60s); // the camera warms up
    EXPECT_GE(camera.Get("temperature")[0], 45U);
    camera.Write(0x00088138, {0});
    EXPECT_EQ(camera.Get("startacquisition"), Words{0});
    camera.Write(0x51020000, {1});
    EXPECT_EQ(camera.Get("imagesize"), (Words{1296, 1024}));
    camera.Advance(60s);
    EXPECT_LE(camera.Get("temperature")[0], 42U);

    const Simulated other("Sollux G");
    other.Write(0x14010000, {7});
    other.Write(0x00088134, {1});
    other.Write(0x51020000, {0});
    EXPECT_EQ(other.Get("gain"), Words{7});
}

/// The registers of a camera after some time with its automatic modes on.
Simulation::RegisterSpace::Content Afternoon(const char* model, std::uint64_t seed) {
    const Simulated camera(model, seed);
    for (const std::uint32_t mode : {0x46010000U, 0x46020000U, 0x46040000U, 0x46050000U, 0x47040000U, 0x0B030000U}) {
        if (camera.camera->Registers().At(mode) != nullptr) { // each family has some of them
            camera.Write(mode, {1});
        }
    }
    camera.Advance(100s);
    return camera.camera->Registers().Save(
        {Simulation::Role::Status, Simulation::Role::Setting, Simulation::Role::NonVolatile, Simulation::Role::Fixed});
}

TEST(SimulatedWorld, IsDecidedByItsSeedAlone) {
    for (const char* model : {"Orvik-710C", "Sollux G"}) {
        auto one = Afternoon(model, 1);
        auto two = Afternoon(model, 2);
        EXPECT_EQ(one, Afternoon(model, 1));
        EXPECT_NE(one["gain"], two["gain"]);
        EXPECT_EQ(one["serialnumber"], two["serialnumber"]);
    }
    EXPECT_NE(Afternoon("Sollux G", 1)["defectpixel"], Afternoon("Sollux G", 2)["defectpixel"]);
}

} // namespace Scenario
