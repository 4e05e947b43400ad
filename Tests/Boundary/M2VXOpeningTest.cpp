// Opening an M2VX camera: its accesses, the cached values, and failures.

#include "Tests/Boundary/M2VXTest.h"

using namespace SDK4::Control;

namespace Test {

namespace {

const std::string bootstrap = "r 0010; r 0014; r 0024; r 0034; r 0044; r 064C; r 065C; r 066C; r 0934; r 0954";

std::string Reads(const Texts& addresses) {
    std::string text;
    for (const std::string& address : addresses) {
        text += "; r " + address;
    }
    return text;
}

/// The reads of one instance, @p read being "rp 17010000" or "rb 17020000/12".
std::string Instance(const std::string& read, std::uint32_t i) {
    return "; w " + read.substr(3, 8) + "=" + std::to_string(i) + "; " + read;
}

std::string Pixel(std::uint32_t pair, std::uint32_t position) {
    return "; wp 0B020000=" + std::to_string(position) + "," + std::to_string(pair) + "; rb 0B020000/20";
}

std::size_t CountOf(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

template <typename... Interfaces> int CountOfInterfaces(const Camera& camera) {
    return ((dynamic_cast<Interfaces*>(camera.Object()) != nullptr ? 1 : 0) + ...);
}

} // namespace

class M2VXOpeningTest : public M2VXTest {
protected:
    /// The accesses of opening the camera in a state.
    std::string CostOfOpening(const State& state, int index) {
        Prepare(port, OnM2VX(state));
        const Camera camera(plugin, "Cerix-MV7", &port, index);
        return port.TakeLog();
    }
};

TEST_F(M2VXOpeningTest, ServesItsThreeModelsWithTheInterfacesOfItsFamily) {
    for (const char* model : {"Cerix7-MV", "Cerix-MV7", "Sollux G"}) {
        const Camera camera(plugin, model, &port);
        ASSERT_NE(camera.Object(), nullptr) << model;
        EXPECT_STREQ(camera.As<SDK4::IControl>().GetClassID(), "M2VX");
        EXPECT_EQ(dynamic_cast<void*>(camera.Object()), camera.Object()) << "IDynamicObject is not the first base";
        EXPECT_EQ((CountOfInterfaces<IExposure, IGain, IOverlay, ISignalAnalysis, ITiming, ITrigger, IRoa, IBinning,
                                     IGPIO, IColor, IACC, ISlowScan, IGigEVisionPort>(camera)),
                  0);
    }
    EXPECT_EQ((CountOfInterfaces<IPropertyState, IPropertyList, M2VX::IExposure, M2VX::IGain, M2VX::IOverlay,
                                 M2VX::IImageCorrection, M2VX::ISignalAnalysis, M2VX::IABC, M2VX::IDefectPixel,
                                 M2VX::IMotorControl, M2VX::ILensControl>(Open())),
              0);
}

TEST_F(M2VXOpeningTest, OpeningReadsTheNetworkAndWhatItWillRemember) {
    EXPECT_EQ(CostOfOpening({}, 0), bootstrap);

    std::string settings =
        Reads({"00088120", "00088124", "00088128", "18010000", "18020000", "18030000", "180C0000", "0A020000",
               "0A030000", "14010000", "16020000", "16030000", "16040000", "16060000", "16070000", "16080000"});
    for (std::uint32_t i = 0; i < 3; ++i) {
        settings += Instance("rp 17010000", i) + Instance("rb 17020000/12", i) + Instance("rb 17030000/12", i) +
                    Instance("rb 17040000/12", i);
    }
    settings += "; r 1B010000";
    for (std::uint32_t i = 0; i < 4; ++i) {
        settings += Instance("rp 1B020000", i);
    }
    settings += "; r 1B030000; r 1B040000; rp 1B050000; r 19010000; r 19030000; rp 28030000; r 1E010000; "
                "rb 1E030000/20; r 46020000; r 46030000; r 46090000; r 47040000; r 47050000" +
                Instance("rp 47090000", 0) + Instance("rp 47090000", 1) + "; r 470A0000" + Instance("rp 5A010000", 0) +
                Instance("rp 5A010000", 1) + "; r 0B040000" + Pixel(0, 0) + Pixel(0, 1) + Pixel(1, 0) + Pixel(1, 1) +
                "; r 0B0A0000; r 51040000";
    for (std::uint32_t i = 0; i < 256; ++i) {
        settings += Instance("rp 6E140000", i);
    }
    EXPECT_EQ(CostOfOpening(With(0x0B040000, 2), 3), bootstrap + settings);
}

TEST_F(M2VXOpeningTest, TheLowNibbleOfTheIndexDecides) {
    for (const int index : {0, 1, 2, 0x10, 0x12, 0x7FFFFFF2, -16}) {
        const Camera camera = Open(OnM2VX(), index);
        EXPECT_EQ(Observe(camera, Row("IGain::GetGain").call).accesses, "r 14010000") << index;
        EXPECT_EQ(CostOfOpening({}, index), bootstrap) << index;
    }
    for (const int index : {3, 15, 0x13, 0x102 + 1, -1}) {
        const Camera camera = Open(OnM2VX(), index);
        EXPECT_EQ(Observe(camera, Row("IGain::GetGain").call), (Observation{"1", ""})) << index;
        EXPECT_GT(CostOfOpening({}, index).size(), bootstrap.size()) << index;
    }
}

TEST_F(M2VXOpeningTest, OpeningReadsOnlyTheDefectPixelsInUse) {
    for (const auto& [count, entries] :
         {std::pair{0u, 0u}, {1u, 2u}, {128u, 256u}, {129u, 256u}, {0xFFFFFFFFu, 256u}}) {
        EXPECT_EQ(CountOf(CostOfOpening(With(0x0B040000, count), 3), "; ") + 1, 596 + 2 * entries) << count;
    }
    const Camera camera = Open(OnM2VX(With(0x0B040000, 1)), 3);
    EXPECT_EQ(OutcomeOf("IDefectPixel::GetDefectPixel second", camera), "3,4,5");
    EXPECT_EQ(OutcomeOf("IDefectPixel::GetDefectPixel last", camera), "0,0,0");
}

TEST_F(M2VXOpeningTest, RemembersWhatTheCameraReportsWhateverTheLimits) {
    const Camera camera = Open(OnM2VX({{{0x14010000, Words({9999})},
                                        {0x0A030000, Words({0})},
                                        {0x46020000, Words({7})},
                                        {0x51040000, Words({0xFFFFFFFF})},
                                        {0x19010000, Words({0x80000000})},
                                        {0x1B020000, Words({500}), 2},
                                        {0x17020000, Words({0xFFFFFC18, 1000}), 1},
                                        {0x28020000, Words({151})},
                                        {0x28030000, Words({5000, 6000})},
                                        {0x00088120, Words({5000})},
                                        {0x00088124, Words({6000})},
                                        {0x00088128, Words({0x01100025})}}}),
                               3);
    EXPECT_EQ(OutcomeOf("IGain::GetGain", camera), "9999");
    EXPECT_EQ(OutcomeOf("IExposure::GetExposure", camera), "0");
    EXPECT_EQ(OutcomeOf("IGain::GetAGC", camera), "7");
    EXPECT_EQ(OutcomeOf("IBasicSettings::GetStartupSettings", camera), "-1");
    EXPECT_EQ(OutcomeOf("ILookUpTable::GetLUTInterpolatorIndex", camera), "-2147483648");
    EXPECT_EQ(OutcomeOf("IImageCorrection::GetShadingCorrection 2", camera), "500");
    EXPECT_EQ(camera.As<IPropertyState>().GetIntValue(1, "overlayposition.posx"), -1000);
    EXPECT_EQ(OutcomeOf("ISignalFormat::GetColorCoding", camera), "6") << "the only valid value";
    EXPECT_EQ(OutcomeOf("IVideoFrame::GetHeight", camera), "6000");
    EXPECT_EQ(camera.As<IPropertyState>().GetUIntValue("width"), 5000u);
    EXPECT_EQ(camera.As<IPropertyState>().GetUIntValue("height"), 6000u);
    EXPECT_EQ(camera.As<IPropertyState>().GetUIntValue("pixelformat"), 0x01100025u);
}

TEST_F(M2VXOpeningTest, AModeThatNoSetterAdmitsDisablesNothing) {
    const struct {
        std::uint32_t mode;
        std::vector<std::uint32_t> reported;
        const char* dependant;
        bool enabled;
    } cases[] = {
        {0x0A020000, {0, 5, 7, 0xFFFFFFFF, 3}, "exposure", true},
        {0x0A020000, {1, 2, 4}, "exposure", false},
        {0x46020000, {3, 7}, "automaticlevel", true},
        {0x47040000, {3}, "abcstopmode", true},
        {0x1B010000, {2, 1}, "shadingcorrection", true},
        {0x1B010000, {0}, "shadingcorrection", false},
        {0x1B030000, {2}, "circularblankingsize", true},
        {0x16070000, {5}, "automotiondetection", true},
        {0x180C0000, {3, 4}, "brightness", true},
    };
    for (const auto& [mode, reported, dependant, enabled] : cases) {
        for (const std::uint32_t value : reported) {
            const Camera camera = Open(OnM2VX(With(mode, value)), 3);
            EXPECT_EQ(camera.As<IPropertyState>().GetEnabled(dependant), enabled) << dependant << " under " << value;
        }
    }
}

TEST_F(M2VXOpeningTest, ANullPortIsRefusedWhenOpened) {
    for (const int index : {0, 3}) {
        LogCapture log(log4cxx::Level::getInfo());
        try {
            plugin.createObject("Sollux G", nullptr, index);
            ADD_FAILURE() << "nothing was thrown";
        } catch (const SDK4::X4Error& error) {
            EXPECT_EQ(error.code, -1009);
        }
        EXPECT_EQ(log.TakeTexts(), (Texts{"info QDV12: CreateObject(Sollux G)",
                                          "warn SDK4Exception [SDK4::X4Error(SDK4_ERR_INVALID_PARAMETER)]"}));
    }
}

TEST_F(M2VXOpeningTest, LogsItsNetworkWhenOpenedAndOneLineWhenReleased) {
    LogCapture log;
    {
        const Camera camera(plugin, "Cerix7-MV", &port);
        Texts lines = log.TakeTexts();
        std::erase_if(lines, [](const std::string& text) { return text.starts_with("debug"); });
        ASSERT_EQ(lines.size(), 13u) << "the call, twice the address, ten registers";
        EXPECT_EQ(lines.front(), "info QDV12: CreateObject(Cerix7-MV)");
        EXPECT_EQ(lines.back(), "info GVCP Configuration  : 0x1");
    }
    EXPECT_EQ(log.TakeTexts(), Texts{"debug Call"});
}

} // namespace Test
