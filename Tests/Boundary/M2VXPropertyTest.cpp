// The properties of an M2VX camera as a host sees them: list, limits, notifications, and what modes enable and disable.

#include "Tests/Boundary/M2VXTest.h"

#include <iterator>
#include <set>
#include <sstream>

using namespace SDK4::Control;

namespace Test {

namespace {

std::string Times(int count, const std::string& text) {
    std::string all;
    while (count-- > 0) {
        all += text;
    }
    return all;
}

Texts Names(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// "U 0 568 0 = 3": unsigned (or S), "e" when enumerated, "i" when indexed, minimum, maximum, default, and the value
/// unless it is 0.
std::string Shape(IPropertyState& state, const char* name) {
    const bool isUnsigned = state.IsUnsigned(name);
    const auto text = [&](std::uint32_t u, std::int32_t s) { return " " + (isUnsigned ? Text(u) : Text(s)); };
    const std::string value = text(state.GetUIntValue(name), state.GetIntValue(name));
    return (isUnsigned ? "U" : "S") + std::string(state.IsEnumerated(name) ? "e" : "") +
           (state.IsIndexed(name) ? "i" : "") + text(state.GetUIntMin(name), state.GetIntMin(name)) +
           text(state.GetUIntMax(name), state.GetIntMax(name)) +
           text(state.GetUIntDefault(name), state.GetIntDefault(name)) + (value == " 0" ? "" : " =" + value);
}

} // namespace

class M2VXPropertyTest : public M2VXTest {
protected:
    Camera camera = Open(OnM2VX());
    IPropertyState& properties = camera.As<IPropertyState>();
};

TEST_F(M2VXPropertyTest, TheListNamesEveryScalarInOrder) {
    const std::string overlay = "overlayshow overlayposition.posx overlayposition.posy overlaystyle.color "
                                "overlaystyle.style overlaysize.width overlaysize.length ";
    const std::string names =
        "width height pixelformat colorcoding brightness contrast sharpness histogramequalization exposuremode "
        "exposure gain verticalflip horizontalflip lastimagehold imagestore imagesubtraction recursivefilter "
        "automotiondetection " +
        Times(3, overlay) + "shadingcorrectionmode " + Times(4, "shadingcorrection ") +
        "circularblankingmode circularblankingsize circularblankingposition.xpos circularblankingposition.ypos "
        "gammaindex negativeimage imagesize.width imagesize.height measureframeshow measurewindow.radius "
        "measurewindow.width measurewindow.xpos measurewindow.ypos measurewindow.vstretch agc automaticlevel "
        "autogainstopmode abc abcstopmode abcthreshold abcthreshold abcxrlevel testpattern testpattern " +
        Times(258, "defectpixel.xpos defectpixel.ypos defectpixel.mode ") +
        "defectpixelautocompensation defectpixelcount defectpixelshow startupsettings loadsettings savesettings " +
        Times(256, "motorcontrol ");
    auto& list = camera.As<IPropertyList>();
    Texts listed;
    for (int i = 0; i < list.GetNumberOfProperties(); ++i) {
        listed.push_back(list.GetPropertyName(i));
    }
    EXPECT_EQ(listed.size(), 1104u);
    EXPECT_EQ(listed, Names(names));
}

TEST_F(M2VXPropertyTest, EveryPropertyHasTheseLimitsAndDefaults) {
    const struct {
        const char *names, *shape;
    } kinds[] = {
        {"width height imagesize.width imagesize.height", "U 0 1024 1024"},
        {"pixelformat", "U 0 4294967295 0"},
        {"colorcoding", "Ue 6 6 6"},
        {"brightness", "U 0 16383 0"},
        {"contrast sharpness", "U 0 255 0"},
        {"histogramequalization", "Ue 0 3 0"},
        {"exposuremode", "Ue 1 4 1"},
        {"exposure", "U 1 2000 33"},
        {"gain", "U 0 568 0"},
        {"verticalflip horizontalflip lastimagehold imagestore imagesubtraction automotiondetection negativeimage "
         "shadingcorrectionmode circularblankingmode measureframeshow autogainstopmode abcstopmode defectpixelshow",
         "Ue 0 1 0"},
        {"recursivefilter", "Ue 0 4 0"},
        {"overlayshow overlaystyle.style", "Uei 0 1 0"},
        {"overlayposition.posx overlayposition.posy", "Si -500 499 0"},
        {"overlaystyle.color overlaysize.width", "Uei 0 3 0"},
        {"overlaysize.length", "Ui 1 1024 10"},
        {"shadingcorrection", "Si -128 127 0"},
        {"circularblankingsize", "U 1 512 70"},
        {"circularblankingposition.xpos circularblankingposition.ypos", "U 0 1023 512"},
        {"gammaindex", "S 0 12 0"},
        {"measurewindow.radius", "U 0 511 0"},
        {"measurewindow.width", "U 1 3 2 = 1"}, // setting the minimum afterwards raises the value
        {"measurewindow.xpos measurewindow.ypos", "S -511 511 0"},
        {"measurewindow.vstretch", "U 1 512 128 = 1"},
        {"agc abc startupsettings loadsettings", "Ue 0 2 0"},
        {"automaticlevel", "U 0 100 30"},
        {"abcthreshold", "Ui 0 1023 358"},
        {"abcxrlevel", "U 0 1023 0"},
        {"testpattern", "Uei 0 6 0"},
        {"defectpixel.xpos defectpixel.ypos", "Ui 0 1024 0"},
        {"defectpixel.mode", "Uei 0 2 0"},
        {"defectpixelautocompensation", "U 0 0 0"},
        {"defectpixelcount", "U 0 128 0"},
        {"savesettings", "Ue 1 2 1"},
        {"motorcontrol", "U 0 65535 0"},
    };
    std::set<std::string> covered, listed;
    for (const auto& [names, shape] : kinds) {
        for (const std::string& name : Names(names)) {
            EXPECT_EQ(Shape(properties, name.c_str()), shape) << name;
            EXPECT_TRUE(properties.GetEnabled(name.c_str()) && properties.GetImplemented(name.c_str())) << name;
            covered.insert(name);
        }
    }
    for (int i = 0; i < 1104; ++i) {
        listed.insert(camera.As<IPropertyList>().GetPropertyName(i));
    }
    EXPECT_EQ(covered, listed);
}

TEST_F(M2VXPropertyTest, EnumerationsAdmitTheseValuesOnly) {
    using Style = void (*)(IDynamicObject&, int);
    const Style color = [](IDynamicObject& object, int value) {
        Part<M2VX::IOverlay>(object).SetOverlayStyle(1, {static_cast<std::uint32_t>(value), 1});
    };
    const Style width = [](IDynamicObject& object, int value) {
        Part<M2VX::IOverlay>(object).SetOverlaySize(1, {static_cast<std::uint32_t>(value), 1});
    };
    // clang-format off
    const struct {
        const char* name;
        Setter set;
        std::string admitted;
    } cases[] = {
        {"SetExposureMode",          Sets(&M2VX::IExposure::SetExposureMode),         "1 2 3 4 "},
        {"SetAGC",                   Sets(&M2VX::IGain::SetAGC),                      "0 1 2 "},
        {"SetAutoGainStopMode",      Sets(&M2VX::IGain::SetAutoGainStopMode),         "0 1 "},
        {"SetABC",                   Sets(&M2VX::IABC::SetABC),                       "0 1 2 "},
        {"SetABCStopMode",           Sets(&M2VX::IABC::SetABCStopMode),               "0 1 "},
        {"SetOverlayShow",           Sets(&M2VX::IOverlay::SetOverlayShow, 2),        "0 1 "},
        {"SetOverlayStyle",          color,                                           "0 1 2 3 "},
        {"SetOverlaySize",           width,                                           "0 1 2 3 "},
        {"SetShadingCorrectionMode", Sets(&M2VX::IImageCorrection::SetShadingCorrectionMode), "0 1 "},
        {"SetCircularBlankingMode",  Sets(&M2VX::IImageCorrection::SetCircularBlankingMode), "0 1 "},
        {"SetMeasureFrameShow",      Sets(&M2VX::ISignalAnalysis::SetMeasureFrameShow), "0 1 "},
        {"SetDefectPixelShow",       Sets(&M2VX::IDefectPixel::SetDefectPixelShow),   "0 1 "},
        {"SetHistogramEqualization", Sets(&IDigitalEnhancement::SetHistogramEqualization), "0 1 2 3 "},
        {"SetNegativeImage",         Sets(&ILookUpTable::SetNegativeImage),           "0 1 "},
        {"SetVerticalFlip",          Sets(&IMemory::SetVerticalFlip),                 "0 1 "},
        {"SetHorizontalFlip",        Sets(&IMemory::SetHorizontalFlip),               "0 1 "},
        {"SetLastImageHold",         Sets(&IMemory::SetLastImageHold),                "0 1 "},
        {"SetImageSubtraction",      Sets(&IMemory::SetImageSubtraction),             "0 1 "},
        {"StoreImage",               Sets(&IMemory::StoreImage),                      "0 1 "},
        {"SetAutoMotionDetection",   Sets(&IMemory::SetAutoMotionDetection),          "0 1 "},
        {"SetRecursiveFilter",       Sets(&IMemory::SetRecursiveFilter),              "0 1 2 3 4 "},
        {"SetTestPattern",           Sets(&IInternalTests::SetTestPattern, 1u),       "0 1 2 3 4 5 6 "},
        {"SetStartupSettings",       Sets(&IBasicSettings::SetStartupSettings),       "0 1 2 "},
        {"LoadSettings",             Sets(&IBasicSettings::LoadSettings),             "0 1 2 "},
        {"SaveSettings",             Sets(&IBasicSettings::SaveSettings),             "1 2 "},
        {"SetLUTInterpolatorIndex",  Sets(&ILookUpTable::SetLUTInterpolatorIndex),    "0 1 2 3 4 5 6 7 8 9 10 11 12 "},
    };
    // clang-format on
    for (const auto& [name, set, admitted] : cases) {
        EXPECT_EQ(AdmittedBy(set, camera, outOfRange), admitted) << name;
    }
}

TEST_F(M2VXPropertyTest, TheObserverHearsOfEveryChangeInThisOrder) {
    using C = M2VX::IImageCorrection;
    const Texts thresholds{"abcthreshold enabled", "abcthreshold enabled"};
    const Texts window{"measurewindow.radius value", "measurewindow.width value", "measurewindow.xpos value",
                       "measurewindow.ypos value", "measurewindow.vstretch value"};
    const std::string blanking = "circularblankingposition";
    // clang-format off
    const struct {
        Call call;
        Texts told;
    } steps[] = {
        {On(&M2VX::IGain::SetGain, 7),   {"gain value"}},
        {On(&M2VX::IGain::SetGain, 7),   {}},
        {On(&M2VX::IGain::SetGain, 600), {"gain value"}},
        {On(&M2VX::IGain::SetAGC, 3),    {}},
        {On(&M2VX::IGain::SetAGC, 1),    {"agc value", "gain enabled", "automaticlevel enabled"}},
        {On(&M2VX::IGain::SetAGC, 1),    {}},
        {On(&M2VX::IGain::SetGain, 8),   {}},
        {On(&M2VX::IGain::SetAGC, 2),    {"agc value", "automaticlevel enabled"}},
        {On(&M2VX::IGain::SetAGC, 0),    {"agc value", "gain enabled", "automaticlevel enabled", "autogainstopmode enabled"}},
        {On(&M2VX::IExposure::SetExposureMode, 3), {"exposuremode value"}},
        {On(&M2VX::IExposure::SetExposureMode, 1), {"exposuremode value", "exposure enabled"}},
        {On(&M2VX::IExposure::SetTwinModeShutterOffset, 9), {}},
        {On(&M2VX::IABC::SetABC, 1),     {"abc value", "abcstopmode enabled"}},
        {On(&M2VX::IABC::SetABC, 0),     {"abc value", thresholds[0], thresholds[1]}},
        {On(&M2VX::IABC::SetABC, 2),     {"abc value", thresholds[0], thresholds[1], "abcstopmode enabled"}},
        {On(&IMemory::SetRecursiveFilter, 0), {"automotiondetection enabled"}},
        {On(&IMemory::SetRecursiveFilter, 2), {"recursivefilter value", "automotiondetection enabled"}},
        {On(&IDigitalEnhancement::SetHistogramEqualization, 1), {"histogramequalization value", "brightness enabled", "contrast enabled"}},
        {On(&IDigitalEnhancement::SetHistogramEqualization, 2), {"histogramequalization value"}},
        {On(&IDigitalEnhancement::SetBrightness, 5),            {}},
        {On(&IDigitalEnhancement::SetHistogramEqualization, 3), {"histogramequalization value", "brightness enabled", "contrast enabled"}},
        {On(&C::SetShadingCorrectionMode, 0), Texts(4, "shadingcorrection enabled")},
        {On(&C::SetCircularBlankingMode, 0),  {"circularblankingsize enabled", blanking + ".xpos enabled", blanking + ".ypos enabled"}},
        {Row("IOverlay::SetOverlayPosition").call, {"overlayposition.posx value", "overlayposition.posy value"}},
        {On(&M2VX::IOverlay::SetOverlaySize, 0, SDK4_KOVERLAYSIZE{0, 5}), {"overlaysize.length value"}},
        {On(&M2VX::IOverlay::SetOverlayShow, 3, 1), {}},
        {Row("ISignalAnalysis::SetMeasureWindow").call, window},
        {Row("IDefectPixel::SetDefectPixel last").call, {"defectpixel.xpos value", "defectpixel.ypos value", "defectpixel.mode value"}},
        {Row("IDefectPixel::SetDefectPixelAutoCompensation").call, {}},
        {Row("IMotorControl::SetMotorControl").call,    {}},
        {Row("IBasicSettings::SetStartupSettings").call, {"startupsettings value"}},
        {Row("IBasicSettings::LoadSettings").call,      {}},
        {Row("IBasicSettings::SaveSettings").call,      {}},
        {On(&IPropertyState::SetEnabled, "agc", false), {"agc enabled"}},
        {On(&IPropertyState::SetEnabled, "agc", false), {}},
        {On(&IPropertyState::RemoveCallback, nullptr), {}},
        {On(&M2VX::IExposure::SetExposureMode, 4), {}},
    };
    // clang-format on
    Observed observed;
    properties.AddCallback(Observed::Notify, &observed);
    int number = 0;
    for (const auto& [call, told] : steps) {
        Outcome(call, *camera.Object());
        EXPECT_EQ(observed.Take(), told) << "step " << number++;
    }
}

TEST_F(M2VXPropertyTest, AnObserverMayCallBackAndRemoveItself) {
    struct Curious {
        static void Notify(const char* name, const char* /*attribute*/, void* context) {
            auto& self = *static_cast<Curious*>(context);
            self.seen.push_back(std::string(name) + Row("IPropertyState::GetUIntValue").call(self.object) + " " +
                                Row("IGain::GetGain").call(self.object));
            Row("IDigitalEnhancement::SetSharpness").call(self.object); // a nested notification
            if (self.seen.size() == 3) {
                Part<IPropertyState>(self.object).RemoveCallback(Notify);
            }
        }
        IDynamicObject& object;
        Texts seen{};
    } curious{*camera.Object()};
    properties.AddCallback(Curious::Notify, &curious);
    camera.As<M2VX::IGain>().SetGain(7);
    EXPECT_EQ(curious.seen, (Texts{"gain7 7", "sharpness7 7"}));
    OutcomeOf("ISignalAnalysis::SetMeasureWindow", camera);
    EXPECT_EQ(curious.seen.size(), 3u) << "removed by the first of five";
    EXPECT_EQ(properties.GetUIntValue("measurewindow.vstretch"), 512u);
    OutcomeOf("IImageCorrection::SetShadingCorrectionMode", camera);
    EXPECT_EQ(curious.seen.size(), 3u);
}

TEST_F(M2VXPropertyTest, AnObserverMayOverruleAMode) {
    struct Overruling {
        static void Notify(const char* name, const char* attribute, void* context) {
            auto& self = *static_cast<Overruling*>(context);
            if (std::string(name) + attribute == "agcvalue") {
                std::exchange(self.overrule, [](IDynamicObject&) { return done; })(self.object);
            }
        }
        IDynamicObject& object;
        Call overrule;
    };
    Overruling disabling{*camera.Object(), On(&IPropertyState::SetEnabled, "agc", false)};
    properties.AddCallback(Overruling::Notify, &disabling);
    EXPECT_EQ(OutcomeOf("IGain::SetAGC 1", camera), done);
    EXPECT_FALSE(properties.GetEnabled("agc") || properties.GetEnabled("gain"));

    properties.SetEnabled("agc", true);
    Overruling setting{*camera.Object(), Row("IGain::SetAGC").call};
    properties.AddCallback(Overruling::Notify, &setting);
    EXPECT_EQ(Observe(camera, Row("IGain::SetAGC 2").call), (Observation{done, "w 46020000=2; w 46020000=0"}));
    EXPECT_EQ(properties.GetUIntValue("agc"), 0u);
    EXPECT_TRUE(properties.GetEnabled("gain"));
    EXPECT_FALSE(properties.GetEnabled("automaticlevel"));
}

TEST_F(M2VXPropertyTest, WhatAnObserverThrowsLeavesTheNewValue) {
    properties.AddCallback([](const char*, const char*, void*) { throw Unplugged{7}; }, nullptr);
    EXPECT_THROW(camera.As<M2VX::IGain>().SetGain(7), Unplugged);
    EXPECT_EQ(properties.GetUIntValue("gain"), 7u);
    EXPECT_THROW(camera.As<M2VX::IGain>().SetGain(600), Unplugged) << "instead of the refusal";
    EXPECT_EQ(properties.GetUIntValue("gain"), 600u);
    EXPECT_THROW(properties.SetEnabled("gain", false), Unplugged);
    EXPECT_EQ(OutcomeOf("IGain::SetGain", camera), disabled);
}

TEST_F(M2VXPropertyTest, ModesSwitchWhatDependsOnThemWhenSetAndWhenReadAtOpening) {
    // Per mode, which of the properties are enabled.
    const struct {
        Setter set;
        std::uint32_t address;
        int firstMode;
        const char* properties;
        Texts enabled;
    } cases[] = {
        {Sets(&M2VX::IGain::SetAGC), 0x46020000, 0, "gain automaticlevel autogainstopmode", {"100", "001", "011"}},
        {Sets(&M2VX::IExposure::SetExposureMode), 0x0A020000, 1, "exposure", {"0", "0", "1", "0"}},
        {Sets(&M2VX::IABC::SetABC), 0x47040000, 0, "abcthreshold abcstopmode", {"00", "10", "11"}},
        {Sets(&IMemory::SetRecursiveFilter), 0x16070000, 0, "automotiondetection", {"0", "1", "1", "1", "1"}},
        {Sets(&IDigitalEnhancement::SetHistogramEqualization),
         0x180C0000,
         0,
         "brightness contrast sharpness",
         {"111", "001", "001", "111"}},
        {Sets(&M2VX::IImageCorrection::SetShadingCorrectionMode), 0x1B010000, 0, "shadingcorrection", {"0", "1"}},
        {Sets(&M2VX::IImageCorrection::SetCircularBlankingMode),
         0x1B030000,
         0,
         "circularblankingsize circularblankingposition.xpos circularblankingposition.ypos",
         {"000", "111"}},
    };
    for (const auto& [set, address, firstMode, names, enabled] : cases) {
        const auto enabledOn = [&, list = Names(names)](const Camera& of) {
            std::string flags;
            for (const std::string& name : list) {
                flags += of.As<IPropertyState>().GetEnabled(name.c_str()) ? "1" : "0";
            }
            return flags;
        };
        for (std::size_t i = 0; i < enabled.size(); ++i) {
            const int mode = firstMode + static_cast<int>(i);
            SCOPED_TRACE(names + (" in mode " + std::to_string(mode)));
            const State state = OnM2VX(With(address, static_cast<std::uint32_t>(mode)));
            EXPECT_EQ(enabledOn(Open(state, 3)), enabled[i]) << "cached";
            const Camera reading = Open(state, 0);
            EXPECT_EQ(enabledOn(reading).find('0'), std::string::npos) << "uncached: the mode is not known";
            set(*reading.Object(), mode);
            EXPECT_EQ(enabledOn(reading), enabled[i]) << "set";
        }
    }
}

} // namespace Test
