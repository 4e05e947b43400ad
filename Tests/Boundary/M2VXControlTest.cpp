// The control of an M2VX camera: its two ways of being opened, its life, its log lines, and what takes more than one
// call to see.

#include "CameraTest.h"

#include <algorithm>

using namespace SDK4::Control;

namespace Test {

namespace {

using Texts = std::vector<std::string>;

const std::string bootstrap = "r 0010; r 0014; r 0024; r 0034; r 0044; r 064C; r 065C; r 066C; r 0934; r 0954";
const char* const cantGet = "SDK4_ERR_CANTGETFEATURE";

const Operation& Row(const std::string& name) { return FindOperation("M2VX::" + name); }

void Unplug() { throw Unplugged{0}; }

std::string Reads(const Texts& addresses) {
    std::string text;
    for (const std::string& address : addresses)
        text += "; r " + address;
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
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

template <class... Interfaces> int CountOfInterfaces(const Camera& camera) {
    return ((dynamic_cast<Interfaces*>(camera.Object()) != nullptr ? 1 : 0) + ...);
}

} // namespace

class M2VXControlTest : public CameraTest {
protected:
    /// The accesses of opening the camera in a state.
    std::string CostOfOpening(const State& state, int index) {
        Prepare(port, OnM2VX(state));
        const Camera camera(plugin, "Cerix-MV7", &port, index);
        return port.TakeLog();
    }
    std::string OutcomeOf(const std::string& row, const Camera& camera) {
        return Outcome(Row(row).call, *camera.Object());
    }
};

TEST_F(M2VXControlTest, ServesItsThreeModelsWithTheInterfacesOfItsFamily) {
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

TEST_F(M2VXControlTest, OpeningReadsTheNetworkAndWhatItWillRemember) {
    EXPECT_EQ(CostOfOpening({}, 0), bootstrap);

    std::string settings =
        Reads({"00088120", "00088124", "00088128", "18010000", "18020000", "18030000", "180C0000", "0A020000",
               "0A030000", "14010000", "16020000", "16030000", "16040000", "16060000", "16070000", "16080000"});
    for (std::uint32_t i = 0; i < 3; ++i)
        settings += Instance("rp 17010000", i) + Instance("rb 17020000/12", i) + Instance("rb 17030000/12", i) +
                    Instance("rb 17040000/12", i);
    settings += "; r 1B010000";
    for (std::uint32_t i = 0; i < 4; ++i)
        settings += Instance("rp 1B020000", i);
    settings += "; r 1B030000; r 1B040000; rp 1B050000; r 19010000; r 19030000; rp 28030000; r 1E010000; "
                "rb 1E030000/20; r 46020000; r 46030000; r 46090000; r 47040000; r 47050000" +
                Instance("rp 47090000", 0) + Instance("rp 47090000", 1) + "; r 470A0000" + Instance("rp 5A010000", 0) +
                Instance("rp 5A010000", 1) + "; r 0B040000" + Pixel(0, 0) + Pixel(0, 1) + Pixel(1, 0) + Pixel(1, 1) +
                "; r 0B0A0000; r 51040000";
    for (std::uint32_t i = 0; i < 256; ++i)
        settings += Instance("rp 6E140000", i);
    EXPECT_EQ(CostOfOpening(With(0x0B040000, 2), 3), bootstrap + settings);
}

TEST_F(M2VXControlTest, TheLowNibbleOfTheIndexDecides) {
    for (const int index : {0, 1, 2, 0x10, 0x12, 0x7FFFFFF2, -16}) {
        const Camera camera = Open(OnM2VX(), index);
        EXPECT_EQ(Observe(camera, Row("IGain::GetGain").call).accesses, "r 14010000") << index;
        EXPECT_EQ(CostOfOpening({}, index), bootstrap) << index;
    }
    for (const int index : {3, 15, 0x13, 0x102 + 1, -1}) {
        const Camera camera = Open(OnM2VX(), index);
        EXPECT_EQ(Observe(camera, Row("IGain::GetGain").call), (Observed{"1", ""})) << index;
        EXPECT_GT(CostOfOpening({}, index).size(), bootstrap.size()) << index;
    }
}

TEST_F(M2VXControlTest, OpeningReadsOnlyTheDefectPixelsInUse) {
    for (const auto& [count, entries] : {std::pair{0u, 0u}, {1u, 2u}, {128u, 256u}, {129u, 256u}, {0xFFFFFFFFu, 256u}})
        EXPECT_EQ(CountOf(CostOfOpening(With(0x0B040000, count), 3), "rb 0B020000/20"), entries) << count;
    const Camera camera = Open(OnM2VX(With(0x0B040000, 1)), 3);
    EXPECT_EQ(OutcomeOf("IDefectPixel::GetDefectPixel second", camera), "3,4,5");
    EXPECT_EQ(OutcomeOf("IDefectPixel::GetDefectPixel last", camera), "0,0,0");
}

TEST_F(M2VXControlTest, RemembersWhatTheCameraReportsWhateverTheLimits) {
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
    EXPECT_EQ(OutcomeOf("ISignalFormat::GetColorCoding", camera), "6") << "the only one that it admits";
    EXPECT_EQ(OutcomeOf("IVideoFrame::GetHeight", camera), "6000");
    EXPECT_EQ(camera.As<IPropertyState>().GetUIntValue("width"), 5000u);
    EXPECT_EQ(camera.As<IPropertyState>().GetUIntValue("height"), 6000u);
    EXPECT_EQ(camera.As<IPropertyState>().GetUIntValue("pixelformat"), 0x01100025u);
}

TEST_F(M2VXControlTest, RemembersWhatTheCameraMadeOfAValueOutOfRange) {
    const struct {
        const char* set;
        Preset made; ///< what the camera holds once it was given the value
        const char *get, *remembered;
    } cases[] = {
        {"IGain::SetGain above", {0x14010000, Words({568})}, "IGain::GetGain", "568"},
        {"IGain::SetAutomaticLevel above", {0x46030000, Words({100})}, "IGain::GetAutomaticLevel", "100"},
        {"IExposure::SetExposure 0", {0x0A030000, Words({12})}, "IExposure::GetExposure", "12"},
        {"IABC::SetABCThreshold above", {0x47090000, Words({1023}), 1}, "IABC::GetABCThreshold 1", "1023"},
        {"IOverlay::SetOverlayPosition x", {0x17020000, Words({499, 8}), 0}, "IOverlay::GetOverlayPosition", "499,8"},
        {"IImageCorrection::SetShadingCorrection below",
         {0x1B020000, Words({0xFFFFFF80}), 2},
         "IImageCorrection::GetShadingCorrection 2",
         "-128"},
        {"IImageCorrection::SetCircularBlankingSize 0",
         {0x1B040000, Words({70})},
         "IImageCorrection::GetCircularBlankingSize",
         "70"},
        {"IImageCorrection::SetCircularBlankingPosition y",
         {0x1B050000, Words({8, 1023})},
         "IImageCorrection::GetCircularBlankingPosition",
         "8,1023"},
        {"ISignalAnalysis::SetMeasureWindow width",
         {0x1E030000, Words({9, 2, 9, 9, 128})},
         "ISignalAnalysis::GetMeasureWindow",
         "9,2,9,9,128"},
        {"IDefectPixel::SetDefectPixel y",
         {0x0B020000, Words({0, 0, 9, 1024, 1})},
         "IDefectPixel::GetDefectPixel second",
         "9,1024,1"},
        {"IDigitalEnhancement::SetBrightness above",
         {0x18010000, Words({16383})},
         "IDigitalEnhancement::GetBrightness",
         "16383"},
        {"IDigitalEnhancement::SetContrast above", {0x18020000, Words({99})}, "IDigitalEnhancement::GetContrast", "99"},
        {"IDigitalEnhancement::SetSharpness above",
         {0x18030000, Words({99})},
         "IDigitalEnhancement::GetSharpness",
         "99"},
    };
    for (const auto& [set, made, get, remembered] : cases) {
        SCOPED_TRACE(set);
        port = {};
        const Camera camera = Open(Row(set).state, 3);
        port.FailAt(2, [this, &made = made] { // no failure: the access after the write finds this
            if (made.index < 0)
                port.Set(made.address, made.bytes);
            else
                port.SetInstance(made.address, static_cast<std::uint32_t>(made.index), made.bytes);
        });
        EXPECT_EQ(OutcomeOf(set, camera), OutOfRange);
        EXPECT_EQ(Observe(camera, Row(get).call), (Observed{remembered, ""}));
    }
}

TEST_F(M2VXControlTest, AFailedAccessLeavesWhatIsRemembered) {
    const Camera camera = Open(OnM2VX(), 3);
    for (const auto& [set, nth] : {std::pair{"IGain::SetGain", 1u},
                                   {"IGain::SetGain above", 1u},
                                   {"IGain::SetGain above", 2u},
                                   {"IGain::SetAGC 1", 1u}}) {
        port.FailAt(nth, Unplug);
        EXPECT_THROW(OutcomeOf(set, camera), Unplugged) << set;
        EXPECT_EQ(Observe(camera, Row("IGain::GetGain").call), (Observed{"1", ""})) << set;
        EXPECT_EQ(OutcomeOf("IGain::GetAGC", camera), "0") << set;
    }
    EXPECT_EQ(OutcomeOf("IGain::SetGain", camera), Done) << "still manual";
}

TEST_F(M2VXControlTest, SettersThatDoNotAskReachTheCameraOfADisabledProperty) {
    const Call equalize = On(&IDigitalEnhancement::SetHistogramEqualization, 2);
    const State equalized = OnM2VX(After(equalize)), off = OnM2VX(After(On(&M2VX::IABC::SetABC, 0)));
    const struct {
        const char* row;
        State state;
    } cases[] = {
        {"IDigitalEnhancement::SetBrightness", equalized},
        {"IDigitalEnhancement::SetContrast above", equalized},
        {"IABC::SetABCThreshold 1", off},
        {"IABC::SetABCThreshold above", off},
        {"IABC::SetABCStopMode", off},
        {"IMemory::SetVerticalFlip", OnM2VX(Disabling("verticalflip"))},
        {"IOverlay::SetOverlayShow", OnM2VX(Disabling("overlayshow"))},
        {"ISignalAnalysis::SetMeasureWindow", OnM2VX(Disabling("measurewindow.radius"))},
        {"IBasicSettings::SetStartupSettings", OnM2VX(Disabling("startupsettings"))},
    };
    for (const auto& [name, state] : cases) {
        for (const int index : {0, 3}) {
            const Camera camera = Open(state, index);
            LogCapture log(log4cxx::Level::getWarn());
            EXPECT_EQ(Observe(camera, Row(name).call), (Observed{Disabled, Row(name).accesses.first})) << name;
            EXPECT_EQ(log.TakeTexts(), Texts{"warn SDK4Exception [SDK4::X4Error(SDK4_ERR_DISABLED)]"}) << name;
        }
    }
    for (const char* sent : {"loadsettings", "savesettings", "motorcontrol"}) { // nothing to store
        const Camera camera = Open(OnM2VX(Disabling(sent)));
        for (const char* row :
             {"IBasicSettings::LoadSettings", "IBasicSettings::SaveSettings", "IMotorControl::SetMotorControl"})
            EXPECT_EQ(OutcomeOf(row, camera), Done) << row;
    }
}

TEST_F(M2VXControlTest, ADisabledPropertyIsReadFromTheCameraOnly) {
    const State state = OnM2VX(After(On(&IDigitalEnhancement::SetHistogramEqualization, 1)));
    EXPECT_EQ(OutcomeOf("IDigitalEnhancement::GetBrightness", Open(state, 0)), "1");
    const Camera camera = Open(state, 3);
    LogCapture log(log4cxx::Level::getWarn());
    EXPECT_EQ(OutcomeOf("IDigitalEnhancement::SetBrightness", camera), Disabled);
    EXPECT_EQ(Observe(camera, Row("IDigitalEnhancement::GetBrightness").call), (Observed{Disabled, ""}));
    EXPECT_EQ(log.TakeTexts(), Texts(2, "warn SDK4Exception [SDK4::X4Error(SDK4_ERR_DISABLED)]"));
    camera.As<IDigitalEnhancement>().SetHistogramEqualization(0);
    EXPECT_EQ(OutcomeOf("IDigitalEnhancement::GetBrightness", camera), "1") << "the refused store kept the old value";
}

TEST_F(M2VXControlTest, OnlyWhatReachedTheCameraStartsAndStopsTheAcquisition) {
    const Camera camera = Open(OnM2VX());
    auto& stream = camera.As<SDK4::IStreamControl>();
    const auto load = [&] { return OutcomeOf("IBasicSettings::LoadSettings", camera); };
    port.FailAt(1, Unplug);
    EXPECT_THROW(stream.Start(), Unplugged);
    EXPECT_EQ(load(), Done);
    stream.Start();
    EXPECT_EQ(load(), "SDK4_ERR_ACQUISITIONRUNNING");
    port.FailAt(1, Unplug);
    EXPECT_THROW(stream.Stop(), Unplugged);
    EXPECT_EQ(load(), "SDK4_ERR_ACQUISITIONRUNNING");
    EXPECT_EQ(OutcomeOf("IGigECamera::GetPacketSize", camera), "1") << "reading is not refused";
    stream.Stop();
    EXPECT_EQ(load(), Done);
}

TEST_F(M2VXControlTest, BlocksThatThePortDoesNotDeliverAreRefused) {
    const Camera camera = Open(OnM2VX());
    port.refuseBlocks = true;
    for (const char* row :
         {"IOverlay::GetOverlayPosition", "IOverlay::GetOverlayStyle", "IOverlay::GetOverlaySize",
          "IOverlay::SetOverlayPosition x", "ISignalAnalysis::GetMeasureWindow", "ISignalAnalysis::SetMeasureWindow x",
          "IDefectPixel::GetDefectPixel", "IDefectPixel::SetDefectPixel x", "IBasicSettings::GetDevice"})
        EXPECT_EQ(OutcomeOf(row, camera), cantGet) << row;
    EXPECT_THROW(plugin.CreateObject("Cerix7-MV", &port, 3), SDK4::X4Error);
    EXPECT_EQ(OutcomeOf("IGain::GetGain", camera), "1");
}

TEST_F(M2VXControlTest, FailuresWhileOpeningReachTheHostButForTheLastNetworkRegister) {
    Prepare(port, OnM2VX());
    for (const unsigned int nth : {1u, 9u, 11u, 30u, 100u, 600u}) {
        port.FailAt(nth, Unplug);
        EXPECT_THROW(plugin.CreateObject("Cerix7-MV", &port, 3), Unplugged) << nth;
    }
    for (const auto& failure : {std::function<void()>(Unplug), std::function<void()>([] { throw 42; }),
                                std::function<void()>([] { throw SDK4::X4Error(SDK4_ERR_ERROR); })}) {
        LogCapture log(log4cxx::Level::getWarn());
        port.FailAt(10, failure);
        const Camera camera(plugin, "Cerix7-MV", &port);
        EXPECT_NE(camera.Object(), nullptr);
        EXPECT_EQ(log.TakeTexts(), Texts{"warn GVCP Configuration  : Invalid Address"});
    }
}

TEST_F(M2VXControlTest, ANullPortIsRefusedWhenOpened) {
    for (const int index : {0, 3}) {
        LogCapture log(log4cxx::Level::getInfo());
        try {
            plugin.CreateObject("Sollux G", nullptr, index);
            ADD_FAILURE() << "nothing was thrown";
        } catch (const SDK4::X4Error& error) {
            EXPECT_EQ(error.code, -1009);
        }
        EXPECT_EQ(log.TakeTexts(), (Texts{"info QDV12: CreateObject(Sollux G)",
                                          "warn SDK4Exception [SDK4::X4Error(SDK4_ERR_INVALID_PARAMETER)]"}));
    }
}

TEST_F(M2VXControlTest, SettersLogTheirValues) {
    const struct {
        const char* row;
        Texts lines; ///< at info level and above
    } cases[] = {
        {"IGain::SetGain", {"info Call(568)"}},
        {"IGain::SetGain greatest", {"info Call(4294967295)", "warn SDK4Exception [X4Error(SDK4_ERR_OUTOFRANGE)]"}},
        {"IGain::SetAGC -1", {"info Call(-1)", "warn SDK4Exception [X4Error(SDK4_ERR_OUTOFRANGE)]"}},
        {"IGain::GetGain", {}},
        {"IOverlay::SetOverlayShow 2", {"info Call(2,1)"}},
        {"IOverlay::SetOverlayPosition", {"info Call(2,-500,499)"}},
        {"IABC::SetABCThreshold 2", {"info Call(2,1024)", "warn SDK4Exception [X4Error(SDK4_ERR_INVALID_PARAMETER)]"}},
        {"IImageCorrection::SetShadingCorrection", {"info Call(3,-128)"}},
        {"ISignalAnalysis::SetMeasureWindow", {"info Call(511,3,-511,511,512)"}},
        {"IDefectPixel::SetDefectPixel", {"info Call(0,1,1024,0,2)"}},
        {"IBasicSettings::SetDevice", {"info Call(1,2,3,9)"}},
        {"IGigECamera::SetPacketSize running",
         {"info Call(1)", "warn SDK4Exception [X4Error(SDK4_ERR_ACQUISITIONRUNNING)]"}},
        {"IGigECamera::EnablePersistentIP other subnet", {"warn Unreachable Subnet :0xffffff05"}},
        {"IMotorControl::SetMotorControl",
         {"info Call(0,65535)", "info Call"}}, // the register map tells of motor, lens
        {"ILensControl::GetLensControl", {"info Call"}},
        {"IStreamControl::Start", {"info Call"}},
        {"IBasicSettings::SetUpdateFile", {"warn SDK4Exception [X4Error(SDK4_ERR_NOT_IMPLEMENTED)]"}},
    };
    for (const auto& [name, lines] : cases) {
        const Camera camera = Open(Row(name).state);
        LogCapture log(log4cxx::Level::getInfo());
        OutcomeOf(name, camera);
        EXPECT_EQ(log.TakeTexts(), lines) << name;
    }
}

TEST_F(M2VXControlTest, AVideoFrameOfAnotherCodingIsRefused) {
    const Camera camera = Open(OnM2VX(With(0x28020000, 1)));
    LogCapture log(log4cxx::Level::getWarn());
    EXPECT_EQ(OutcomeOf("IVideoFrame::GetFormat", camera), Invalid);
    EXPECT_EQ(log.TakeTexts(), Texts{"warn SDK4Exception [SDK4::X4Error(SDK4_ERR_INVALID_PARAMETER)]"});
}

TEST_F(M2VXControlTest, LogsItsNetworkWhenOpenedAndOneLineWhenReleased) {
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
