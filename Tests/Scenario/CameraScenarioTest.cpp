#include "Tests/Scenario/ScenarioFixture.h"

#include <ostream>

namespace Scenario {

using namespace SDK4::Control;
using Simulation::Words;

struct ModelRow {
    const char* name;
    bool color;
    bool memory;
    SDK4_KSIZE sensor;
};

void PrintTo(const ModelRow& row, std::ostream* out) { *out << row.name; }

class EveryOrvik : public testing::TestWithParam<ModelRow> {};

TEST_P(EveryOrvik, IsOpenedWithoutAnAccessAndServesWhatItsModelHas) {
    const ModelRow& row = GetParam();
    Host::Session session(LoadedPlugin(), row.name);
    EXPECT_EQ(session.Port().Take().size(), 0U);

    EXPECT_STREQ(As<SDK4::IControl>(session).GetClassID(), "Orvik");
    EXPECT_STREQ(As<IGufi>(session).GetDeviceName(), row.name);
    EXPECT_EQ(As<ISignalFormat>(session).GetImageSize().width, row.sensor.width);
    EXPECT_EQ(As<ISignalFormat>(session).GetImageSize().height, row.sensor.height);

    const std::int32_t onColor = row.color ? 0 : SDK4_ERR_NOT_IMPLEMENTED;
    const std::int32_t onMono = row.color ? SDK4_ERR_NOT_IMPLEMENTED : 0;
    const std::int32_t onMemory = row.memory ? 0 : SDK4_ERR_NOT_IMPLEMENTED;
    EXPECT_EQ(CodeOf([&] { (void)As<IColor>(session).GetColorBalance(); }), onColor);
    EXPECT_EQ(CodeOf([&] { (void)As<IBinning>(session).GetBinning(); }), onMono);
    EXPECT_EQ(CodeOf([&] { (void)As<IMemory>(session).GetVerticalFlip(); }), onMemory);
    EXPECT_EQ(CodeOf([&] { As<ISignalFormat>(session).SetColorCoding(SDK4_COLORCODING_RGB8); }),
              row.color ? 0 : SDK4_ERR_INVALID_PARAMETER);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Models, EveryOrvik, testing::Values(
    ModelRow{"Orvik-31200M", false, false, {6480, 4816}}, ModelRow{"Orvik-31200C", true, false, {6480, 4816}},
    ModelRow{"Orvik-710M",   false, true,  {3208, 2208}}, ModelRow{"Orvik-710C",   true, true,  {3208, 2208}},
    ModelRow{"Orvik-390M",   false, true,  {2256, 1728}}, ModelRow{"Orvik-390C",   true, true,  {2256, 1728}},
    ModelRow{"Orvik-520M",   false, false, {2592, 2008}}, ModelRow{"Orvik-520C",   true, false, {2592, 2008}},
    ModelRow{"Orvik-530M",   false, true,  {2592, 2048}}, ModelRow{"Orvik-530C",   true, true,  {2592, 2048}}));
// clang-format on

TEST(Afternoon, SettingsAreSavedChangedAndLoaded) {
    Host::Session session(LoadedPlugin(), "Orvik-390M");
    auto& settings = As<IBasicSettings>(session);
    auto& enhancement = As<IDigitalEnhancement>(session);
    auto& gpio = As<IGPIO>(session);
    auto& tests = As<IInternalTests>(session);
    enhancement.SetContrast(200);
    gpio.SetIoDelay(3, 1500);
    settings.SaveSettings(2);

    enhancement.SetContrast(50);
    gpio.SetIoDelay(3, 9);
    tests.SetPatternGenerator(2);
    settings.LoadSettings(2);
    EXPECT_EQ(enhancement.GetContrast(), 200U);
    EXPECT_EQ(gpio.GetIoDelay(3), 1500U);
    EXPECT_EQ(CostOf(session, [&] { EXPECT_EQ(tests.GetPatternGenerator(), 2); }), 0U); // survives the load
    EXPECT_EQ(Registers(session).Get("patterngenerator"), Words{2});

    settings.LoadSettings(0);
    EXPECT_EQ(enhancement.GetContrast(), 64U);
    EXPECT_EQ(gpio.GetIoDelay(3), 0U);
}

TEST(Afternoon, RawAccessGoesPastTheCaches) {
    Host::Session session(LoadedPlugin(), "Orvik-390M");
    auto& raw = As<IGigEVisionPort>(session);
    auto& gain = As<IGain>(session);
    gain.SetGain(30);
    raw.WriteRegister(0x14010000, 77);
    EXPECT_EQ(raw.ReadRegister(0x14010000), 77U);
    EXPECT_EQ(gain.GetGain(), 30U);
    unsigned char buffer[24] = {};
    unsigned int length = sizeof buffer;
    raw.ReadMem(0x64010000, buffer, &length);
    EXPECT_STREQ(reinterpret_cast<const char*>(buffer + 4), "Orvik-390M"); // after its length word
    length = 4;
    raw.WriteMem(0x14010000, buffer + 20, &length); // zeros
    EXPECT_EQ(Registers(session).Get("gain"), Words{0});
}

TEST(Afternoon, ASecondControlAtIndexTwoSeesWhatTheFirstHasCached) {
    Host::Session session(LoadedPlugin(), "Orvik-520C");
    const Host::Control second = session.CreateControl(2);
    auto& cached = As<IGain>(session);
    auto& uncached = dynamic_cast<IGain&>(*second);

    cached.SetGain(100);
    EXPECT_EQ(uncached.GetGain(), 100U);
    uncached.SetGain(200);
    EXPECT_EQ(CostOf(session, [&] { EXPECT_EQ(cached.GetGain(), 100U); }), 0U);
    EXPECT_EQ(CostOf(session, [&] { EXPECT_EQ(uncached.GetGain(), 200U); }), 1U);

    // Each control has its own lock: only the one that started the stream is locked.
    As<SDK4::IStreamControl>(session).Start();
    auto& format = dynamic_cast<ISignalFormat&>(*second);
    EXPECT_EQ(CodeOf([&] { format.SetColorCoding(SDK4_COLORCODING_MONO8); }), 0);
}

template <typename Interface> Interface& Of(const Host::Control& control) { return dynamic_cast<Interface&>(*control); }

TEST(M2VXAfternoon, OnlyANewControlSeesChangesByTheCamera) {
    Host::Session session(LoadedPlugin(), "Cerix-MV7");
    auto& gain = As<M2VX::IGain>(session);
    auto& settings = As<IBasicSettings>(session);
    gain.SetGain(40);
    settings.SaveSettings(1);
    gain.SetGain(50);
    const Host::Control old = session.CreateControl(3);
    settings.LoadSettings(1);
    As<M2VX::IDefectPixel>(session).SetDefectPixelAutoCompensation();

    EXPECT_EQ(gain.GetGain(), 40U);
    EXPECT_EQ(Of<M2VX::IGain>(old).GetGain(), 50U);
    EXPECT_EQ(Of<M2VX::IDefectPixel>(old).GetDefectPixelCount(), 2U);
    EXPECT_EQ(Of<M2VX::IDefectPixel>(old).GetDefectPixel({2, 0}).xpos, 0U);

    (void)session.Port().Take();
    const Host::Control anew = session.CreateControl(3);
    EXPECT_EQ(session.Port().Take().size(), 608U); // one more pair of defect pixels
    EXPECT_EQ(Of<M2VX::IGain>(anew).GetGain(), 40U);
    EXPECT_EQ(Of<M2VX::IDefectPixel>(anew).GetDefectPixel({2, 0}).xpos, 926U);

    settings.SetStartupSettings(1);
    settings.LoadSettings(0);
    EXPECT_EQ(gain.GetGain(), 0U);
    settings.Restart();
    EXPECT_EQ(gain.GetGain(), 40U);
}

} // namespace Scenario
