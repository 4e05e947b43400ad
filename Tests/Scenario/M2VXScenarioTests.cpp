#include "Tests/Scenario/ScenarioFixture.h"

#include <string>
#include <vector>

namespace Scenario {

using namespace SDK4::Control;
using Simulation::Words;

/// What an observer was told, "name attribute" each.
using Told = std::vector<std::string>;

void Listen(const char* name, const char* attribute, void* context) {
    static_cast<Told*>(context)->push_back(std::string(name) + ' ' + attribute);
}

template <typename Interface> Interface& Of(const Host::Control& control) { return dynamic_cast<Interface&>(*control); }

class EveryM2VX : public testing::TestWithParam<const char*> {};

TEST_P(EveryM2VX, IsOpenedWithItsNetworkReadAlone) {
    Host::Session session(LoadedPlugin(), GetParam());
    EXPECT_EQ(session.Port().Take().size(), 10U); // the network's registers
    EXPECT_STREQ(As<SDK4::IControl>(session).GetClassID(), "M2VX");
    EXPECT_STREQ(As<IGufi>(session).GetDeviceName(), GetParam());
    EXPECT_EQ(As<IPropertyList>(session).GetNumberOfProperties(), 1104);
}

INSTANTIATE_TEST_SUITE_P(Models, EveryM2VX, testing::Values("Cerix7-MV", "Cerix-MV7", "Sollux G"));

class M2VXAfternoon : public testing::Test {
protected:
    Host::Session session{LoadedPlugin(), "Cerix-MV7"};
    Simulation::RegisterSpace& camera = Registers(session);
    IPropertyState& state = As<IPropertyState>(session);
    M2VX::IGain& gain = As<M2VX::IGain>(session);
};

TEST_F(M2VXAfternoon, TheAutomaticOwnsTheGainAndTheObserverHearsOfIt) {
    Told told;
    state.AddCallback(Listen, &told);
    gain.SetGain(300);
    gain.SetAGC(2);
    EXPECT_EQ(told, (Told{"gain value", "agc value", "gain enabled"}));
    EXPECT_EQ(gain.GetGain(), 120U); // what the camera made of it, read through
    EXPECT_EQ(CodeOf([&] { gain.SetGain(5); }), SDK4_ERR_DISABLED);
    EXPECT_EQ(camera.Get("gain"), Words{120});

    told.clear();
    gain.SetAGC(0);
    EXPECT_EQ(told, (Told{"agc value", "gain enabled", "automaticlevel enabled", "autogainstopmode enabled"}));
    state.RemoveCallback(Listen);
    gain.SetGain(568);
    EXPECT_EQ(told.size(), 4U);
    EXPECT_EQ(camera.Get("gain"), Words{568});
}

TEST_F(M2VXAfternoon, APropertyHoldsWhatTheCameraMadeOfAValueOutOfRange) {
    EXPECT_EQ(CodeOf([&] { gain.SetGain(600); }), SDK4_ERR_OUTOFRANGE);
    EXPECT_EQ(camera.Get("gain"), Words{568});
    EXPECT_EQ(state.GetUIntValue("gain"), 568U);

    auto& overlay = As<M2VX::IOverlay>(session);
    EXPECT_EQ(CodeOf([&] { overlay.SetOverlayPosition(2, {-501, 500}); }), SDK4_ERR_OUTOFRANGE);
    EXPECT_EQ(camera.Get("overlayposition", 2), (Words{0U - 500U, 499}));
    EXPECT_EQ(camera.Get("overlayposition", 0), (Words{0, 0}));
    EXPECT_EQ(state.GetIntValue(2, "overlayposition.posx"), -500);
    EXPECT_EQ(state.GetIntValue(2, "overlayposition.posy"), 499);

    camera.Set("brightness", {5});
    auto& enhancement = As<IDigitalEnhancement>(session);
    enhancement.SetHistogramEqualization(1);
    EXPECT_EQ(CodeOf([&] { enhancement.SetBrightness(20000); }), SDK4_ERR_DISABLED);
    EXPECT_EQ(camera.Get("brightness"), Words{16383}); // the camera was reached, the property was not
    enhancement.SetHistogramEqualization(0);
    EXPECT_EQ(state.GetUIntValue("brightness"), 0U);
}

TEST_F(M2VXAfternoon, AControlThatRemembersReadsOnceAndFollowsTheModesThatItFinds) {
    camera.Set("agc", {2});
    camera.Set("gain", {111});
    camera.Set("exposuremode", {3});
    camera.Set("histogramequalization", {2});
    camera.Set("shadingcorrectionmode", {1});
    camera.Set("shadingcorrection", {0U - 7U}, 3);
    camera.Set("motorcontrol", {1234}, 255);
    (void)session.Port().Take();
    const Host::Control control = session.OpenAgain(3);
    EXPECT_EQ(session.Port().Take().size(), 604U);

    EXPECT_EQ(CostOf(session,
                     [&] {
                         EXPECT_EQ(Of<M2VX::IGain>(control).GetGain(), 111U);
                         EXPECT_EQ(Of<M2VX::IImageCorrection>(control).GetShadingCorrection(3), -7);
                         EXPECT_EQ(Of<M2VX::IMotorControl>(control).GetMotorControl(255), 1234U);
                         EXPECT_EQ(Of<M2VX::IDefectPixel>(control).GetDefectPixel({1, 0}).ypos, 44U);
                         EXPECT_EQ(Of<M2VX::IABC>(control).GetABCXRLevel(), 301U);
                         EXPECT_EQ(Of<ISignalFormat>(control).GetImageSize().height, 1024U);
                     }),
              0U);
    auto& flags = Of<IPropertyState>(control);
    EXPECT_TRUE(flags.GetEnabled("exposure"));
    EXPECT_TRUE(flags.GetEnabled("automaticlevel"));
    EXPECT_FALSE(flags.GetEnabled("gain"));
    EXPECT_FALSE(flags.GetEnabled("abcthreshold"));
    EXPECT_EQ(CodeOf([&] { (void)Of<IDigitalEnhancement>(control).GetBrightness(); }), SDK4_ERR_DISABLED);
    EXPECT_EQ(CodeOf([&] { (void)As<IDigitalEnhancement>(session).GetBrightness(); }), 0); // reads through

    (void)session.Port().Take();
    const Host::Control nibbleTwo = session.OpenAgain(0x12);
    EXPECT_EQ(session.Port().Take().size(), 10U);
}

TEST_F(M2VXAfternoon, OnlyAControlOpenedAnewSeesWhatTheCameraChangedByItself) {
    auto& settings = As<IBasicSettings>(session);
    gain.SetGain(40);
    settings.SaveSettings(1);
    gain.SetGain(50);
    const Host::Control old = session.OpenAgain(3);
    settings.LoadSettings(1);
    As<M2VX::IDefectPixel>(session).SetDefectPixelAutoCompensation();

    EXPECT_EQ(gain.GetGain(), 40U);
    EXPECT_EQ(Of<M2VX::IGain>(old).GetGain(), 50U);
    EXPECT_EQ(Of<M2VX::IDefectPixel>(old).GetDefectPixelCount(), 2U);
    EXPECT_EQ(Of<M2VX::IDefectPixel>(old).GetDefectPixel({2, 0}).xpos, 0U);

    (void)session.Port().Take();
    const Host::Control anew = session.OpenAgain(3);
    EXPECT_EQ(session.Port().Take().size(), 608U); // one pair of defect pixels more
    EXPECT_EQ(Of<M2VX::IGain>(anew).GetGain(), 40U);
    EXPECT_EQ(Of<M2VX::IDefectPixel>(anew).GetDefectPixel({2, 0}).xpos, 302U);

    settings.SetStartupSettings(1);
    settings.LoadSettings(0);
    EXPECT_EQ(gain.GetGain(), 0U);
    settings.Restart();
    EXPECT_EQ(gain.GetGain(), 40U);
}

TEST_F(M2VXAfternoon, PacketsAndSettingsLoadsAreRefusedWhileImagesAreAcquired) {
    auto& network = As<IGigECamera>(session);
    auto& settings = As<IBasicSettings>(session);
    const Host::Control other = session.OpenAgain(0);
    gain.SetGain(40);
    As<SDK4::IStreamControl>(session).Start();
    EXPECT_EQ(camera.Get("startacquisition"), Words{1});
    EXPECT_EQ(CostOf(session,
                     [&] {
                         EXPECT_EQ(CodeOf([&] { network.SetPacketSize(8000); }), SDK4_ERR_ACQUISITIONRUNNING);
                         EXPECT_EQ(CodeOf([&] { network.SetPacketDelay(1); }), SDK4_ERR_ACQUISITIONRUNNING);
                         EXPECT_EQ(CodeOf([&] { settings.LoadSettings(0); }), SDK4_ERR_ACQUISITIONRUNNING);
                     }),
              0U);
    Of<IGigECamera>(other).SetPacketSize(8000); // each control has its own lock
    EXPECT_EQ(network.GetPacketSize(), 8000U);

    As<SDK4::IStreamControl>(session).Stop();
    settings.LoadSettings(0);
    EXPECT_EQ(camera.Get("gain"), Words{0});
}

} // namespace Scenario
