// What an M2VX camera caches, refuses and logs, and its state after failures.

#include "Tests/Boundary/M2VXTest.h"

using namespace SDK4::Control;

namespace Test {

class M2VXControlTest : public M2VXTest {};

TEST_F(M2VXControlTest, RemembersWhatTheCameraMadeOfAValueOutOfRange) {
    const struct {
        const char* set;
        Preset made; ///< what the camera holds after the write
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
        port.FailAt(2, [this, &made = made] { // no failure: simulates how the camera changes the written value
            if (made.index < 0) {
                port.Set(made.address, made.bytes);
            } else {
                port.SetInstance(made.address, static_cast<std::uint32_t>(made.index), made.bytes);
            }
        });
        EXPECT_EQ(OutcomeOf(set, camera), outOfRange);
        EXPECT_EQ(Observe(camera, Row(get).call), (Observation{remembered, ""}));
    }
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
            EXPECT_EQ(Observe(camera, Row(name).call), (Observation{disabled, Row(name).accesses.first})) << name;
            EXPECT_EQ(log.TakeTexts(), Texts{"warn SDK4Exception [SDK4::X4Error(SDK4_ERR_DISABLED)]"}) << name;
        }
    }
    for (const char* sent : {"loadsettings", "savesettings", "motorcontrol"}) { // nothing is cached
        const Camera camera = Open(OnM2VX(Disabling(sent)));
        for (const char* row :
             {"IBasicSettings::LoadSettings", "IBasicSettings::SaveSettings", "IMotorControl::SetMotorControl"}) {
            EXPECT_EQ(OutcomeOf(row, camera), done) << row;
        }
    }
}

TEST_F(M2VXControlTest, ADisabledPropertyIsReadFromTheCameraOnly) {
    const State state = OnM2VX(After(On(&IDigitalEnhancement::SetHistogramEqualization, 1)));
    EXPECT_EQ(OutcomeOf("IDigitalEnhancement::GetBrightness", Open(state, 0)), "1");
    const Camera camera = Open(state, 3);
    LogCapture log(log4cxx::Level::getWarn());
    EXPECT_EQ(OutcomeOf("IDigitalEnhancement::SetBrightness", camera), disabled);
    EXPECT_EQ(Observe(camera, Row("IDigitalEnhancement::GetBrightness").call), (Observation{disabled, ""}));
    EXPECT_EQ(log.TakeTexts(), Texts(2, "warn SDK4Exception [SDK4::X4Error(SDK4_ERR_DISABLED)]"));
    camera.As<IDigitalEnhancement>().SetHistogramEqualization(0);
    EXPECT_EQ(OutcomeOf("IDigitalEnhancement::GetBrightness", camera), "1") << "the refused update kept the old value";
}

TEST_F(M2VXControlTest, OnlyWhatReachedTheCameraStartsAndStopsTheAcquisition) {
    const Camera camera = Open(OnM2VX());
    auto& stream = camera.As<SDK4::IStreamControl>();
    const auto load = [&] { return OutcomeOf("IBasicSettings::LoadSettings", camera); };
    port.FailAt(1, Unplug);
    EXPECT_THROW(stream.Start(), Unplugged);
    EXPECT_EQ(load(), done);
    stream.Start();
    EXPECT_EQ(load(), "SDK4_ERR_ACQUISITIONRUNNING");
    port.FailAt(1, Unplug);
    EXPECT_THROW(stream.Stop(), Unplugged);
    EXPECT_EQ(load(), "SDK4_ERR_ACQUISITIONRUNNING");
    EXPECT_EQ(OutcomeOf("IGigECamera::GetPacketSize", camera), "1") << "reading is not refused";
    stream.Stop();
    EXPECT_EQ(load(), done);
}

TEST_F(M2VXControlTest, BlocksThatThePortDoesNotDeliverAreRefused) {
    const Camera camera = Open(OnM2VX());
    port.refuseBlocks = true;
    for (const char* row :
         {"IOverlay::GetOverlayPosition", "IOverlay::GetOverlayStyle", "IOverlay::GetOverlaySize",
          "IOverlay::SetOverlayPosition x", "ISignalAnalysis::GetMeasureWindow", "ISignalAnalysis::SetMeasureWindow x",
          "IDefectPixel::GetDefectPixel", "IDefectPixel::SetDefectPixel x", "IBasicSettings::GetDevice"}) {
        EXPECT_EQ(OutcomeOf(row, camera), "SDK4_ERR_CANTGETFEATURE") << row;
    }
    EXPECT_THROW(plugin.createObject("Cerix7-MV", &port, 3), SDK4::X4Error);
    EXPECT_EQ(OutcomeOf("IGain::GetGain", camera), "1");
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
         {"info Call(0,65535)", "info Call"}}, // the register map logs the values of motor and lens
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
    EXPECT_EQ(OutcomeOf("IVideoFrame::GetFormat", camera), invalid);
    EXPECT_EQ(log.TakeTexts(), Texts{"warn SDK4Exception [SDK4::X4Error(SDK4_ERR_INVALID_PARAMETER)]"});
}

} // namespace Test
