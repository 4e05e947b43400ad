// Behaviour over several calls: valid values, conditions, automatic modes, failures between calls.

#include "Tests/Boundary/Rows.h"

#include <chrono>

using namespace SDK4;
using namespace SDK4::Control;

namespace Test {

namespace {

Call Row(const std::string& name) { return FindOperation(name).call; }

void Unplug() { throw Unplugged{0}; }

} // namespace

class BehaviourTest : public CameraTest {};

TEST_F(BehaviourTest, EnumerationsAdmitTheseValuesOnly) {
    struct Case {
        const char* name;
        Setter set;
        std::string admitted;
        State state = {};
    };
    // clang-format off
    const Case cases[] = {
        {"SetExposureMode",      Sets(&IExposure::SetExposureMode),          "1 2 3 4 "},
        {"SetAET",               Sets(&IExposure::SetAET),                   "0 1 2 "},
        {"SetAGC",               Sets(&IGain::SetAGC),                       "0 1 2 "},
        {"SetColorCoding",       Sets(&ISignalFormat::SetColorCoding),       "0 6 14 "},
        {"SetColorCoding C",     Sets(&ISignalFormat::SetColorCoding),       "0 6 14 52 110 111 153 ", Colour()},
        {"SetACC",               Sets(&IACC::SetACC),                        "0 1 2 3 4 "},
        {"SetLightSource",       Sets(&IColor::SetLightSource),              "0 1 2 3 "},
        {"SetAutoWhiteset",      Sets(&IColor::SetAutoWhiteset),             "0 1 2 ", Colour()},
        {"SetLUTMode",           Sets(&ILookUpTable::SetLUTMode),            "0 1 "},
        {"SetNegativeImage",     Sets(&ILookUpTable::SetNegativeImage),      "0 1 "},
        {"SetOverlayShow 1",     Sets(&IOverlay::SetOverlayShow, 0),         "0 1 "},
        {"SetOverlayShow 2",     Sets(&IOverlay::SetOverlayShow, 1),         "0 1 "},
        {"SetMeasureFrameShow",  Sets(&ISignalAnalysis::SetMeasureFrameShow), "0 1 "},
        {"SetVerticalFlip",      Sets(&IMemory::SetVerticalFlip),            "0 1 "},
        {"SetHorizontalFlip",    Sets(&IMemory::SetHorizontalFlip),          "0 1 "},
        {"SetLastImageHold",     Sets(&IMemory::SetLastImageHold),           "0 1 "},
        {"SetImageSubtraction",  Sets(&IMemory::SetImageSubtraction),        "0 1 "},
        {"SetRecursiveFilter",   Sets(&IMemory::SetRecursiveFilter),         "0 1 2 3 4 "},
        {"StoreImage",           Sets(&IMemory::StoreImage),                 "0 1 "},
        {"SetIoMode",            Sets(&IGPIO::SetIoMode, 0u),                "0 1 "},
        {"SetIoPort",            Sets(&IGPIO::SetIoPort, 5u),                "0 1 2 3 4 "},
        {"SetIoPolarity",        Sets(&IGPIO::SetIoPolarity, 3u),            "0 1 "},
        {"LoadSettings",         Sets(&IBasicSettings::LoadSettings),        "0 1 2 "},
        {"SaveSettings",         Sets(&IBasicSettings::SaveSettings),        "1 2 "},
        {"SetStartupSettings",   Sets(&IBasicSettings::SetStartupSettings),  "0 1 2 "},
        {"SetPatternGenerator",  Sets(&IInternalTests::SetPatternGenerator), "0 1 2 3 "},
        {"SetPatternGenerator C", Sets(&IInternalTests::SetPatternGenerator), "0 1 ", Colour()},
    };
    // clang-format on
    for (const auto& [name, set, admitted, state] : cases) {
        const Camera camera = Open(state);
        EXPECT_EQ(AdmittedBy(set, camera, invalid), admitted) << name;
    }
}

TEST_F(BehaviourTest, ModelIdentifierBitsDecideWhatExists) {
    const std::pair<std::uint32_t, const char*> cases[] = {
        {0x00000000, "mono"},          {0x00010000, "colour"}, {0x00020000, "mono memory"},
        {0x00030000, "colour memory"}, {0xFFFCFFFF, "mono"},   {0x00040000, "mono"},
    };
    for (const auto& [identifier, expected] : cases) {
        const Camera camera = Open(With(0x64030000, identifier));
        const auto exists = [&](const char* name) { return Outcome(Row(name), *camera.Object()) != notImplemented; };
        std::string found = exists("IBinning::GetBinning") ? "mono" : "";
        found += exists("IColor::GetColorSaturation") ? "colour" : "";
        found += exists("IMemory::GetVerticalFlip") ? " memory" : "";
        EXPECT_EQ(found, expected) << std::hex << identifier;
    }
}

TEST_F(BehaviourTest, RawCodingsAndOtherExposureModesDisable) {
    const Camera camera = Open({}, 2);
    std::string raw, delayed;
    for (std::uint32_t value = 0; value < 160; ++value) {
        port.Set(0x28020000, value);
        port.Set(0x0A020000, value);
        if (Outcome(Row("IColor::GetLightSource"), *camera.Object()) == disabled) {
            raw += std::to_string(value) + " ";
        }
        if (Outcome(Row("ITrigger::GetTriggerDelay"), *camera.Object()) != disabled) {
            delayed += std::to_string(value) + " ";
        }
    }
    EXPECT_EQ(raw, "150 151 153 ");
    EXPECT_EQ(delayed, "3 ");
}

TEST_F(BehaviourTest, VideoFrameNamesThePixelFormat) {
    const std::map<int, std::uint32_t> formats{
        {0, 0x01080001},   {2, 0x01100003},   {4, 0x01100005},   {6, 0x01100025},   {8, 0x01100007},
        {12, 0x010C0004},  {14, 0x010C0006},  {24, 0x81100005},  {26, 0x81100025},  {51, 0x02100032},
        {52, 0x0210001F},  {101, 0x82180014}, {102, 0x82200016}, {110, 0x02180014}, {111, 0x02180015},
        {112, 0x02200016}, {113, 0x02200017}, {150, 0x82080001}, {151, 0x82100005}, {153, 0x82100025},
        {155, 0x82100007},
    };
    const Camera camera = Open({}, 2);
    for (int coding = -1; coding < 300; ++coding) {
        port.Set(0x28020000, static_cast<std::uint32_t>(coding));
        EXPECT_EQ(Outcome(Row("IVideoFrame::GetFormat"), *camera.Object()),
                  formats.contains(coding) ? std::to_string(formats.at(coding)) : invalid)
            << coding;
    }
}

TEST_F(BehaviourTest, AutomaticModesSwitchTheCachesOfWhatTheyMove) {
    const struct {
        const char *off, *on, *getter, *read;
        Setter set;
    } cases[] = {
        {"IGain::SetAGC", "IGain::SetAGC on", "IGain::GetGain", "R 14010000/4", Sets(&IGain::SetAGC)},
        {"IExposure::SetAET", "IExposure::SetAET on", "IExposure::GetExposure", "R 0A030000/8",
         Sets(&IExposure::SetAET)},
        {"IACC::SetACC", "IACC::SetACC on", "IDigitalEnhancement::GetBrightness", "R 18010000/4", Sets(&IACC::SetACC)},
        {"IACC::SetACC", "IACC::SetACC on", "IDigitalEnhancement::GetContrast", "R 18020000/4", Sets(&IACC::SetACC)},
        {"IColor::SetAutoWhiteset", "IColor::SetAutoWhiteset on", "IColor::GetColorBalance", "R 15010000/12",
         Sets(&IColor::SetAutoWhiteset)},
    };
    for (const auto& [off, on, getter, read, set] : cases) {
        for (const int index : {0, 2}) {
            SCOPED_TRACE(std::string(getter) + " at index " + std::to_string(index));
            const Camera camera = Open(Colour(), index);
            Outcome(Row("IColor::GetColorBalance"),
                    *camera.Object()); // reads the model identifier, which is then cached
            const auto costOfGetter = [&, getter = getter] { return Observe(camera, Row(getter)).accesses; };
            const auto refused = [&, set = set] {
                EXPECT_THROW(set(*camera.Object(), 9), X4Error);
                port.FailAt(1, Unplug);
                EXPECT_THROW(set(*camera.Object(), 0), Unplugged);
                port.FailAt(1, Unplug);
                EXPECT_THROW(set(*camera.Object(), 1), Unplugged);
            };

            Outcome(Row(on), *camera.Object());
            EXPECT_EQ(costOfGetter(), read);
            refused();
            EXPECT_EQ(costOfGetter(), read) << "the camera changes the value: it is read every time";

            Outcome(Row(off), *camera.Object());
            EXPECT_EQ(costOfGetter(), read);
            refused();
            EXPECT_EQ(costOfGetter(), "") << "cached again, also by an uncached control";
        }
    }
}

TEST_F(BehaviourTest, ExposureStaysCachedAfterAnAutomaticModeEnded) {
    for (const int index : {0, 2}) {
        const Camera camera = Open({}, index);
        Outcome(Row("IExposure::SetAET"), *camera.Object());
        Outcome(Row("IExposure::SetExposure"), *camera.Object());
        EXPECT_EQ(Observe(camera, Row("IExposure::GetExposure")), (Observation{"3,2097151", ""}));
    }
}

TEST_F(BehaviourTest, AcquisitionLocksTheStreamParameters) {
    const Camera camera = Open();
    auto& stream = camera.As<IStreamControl>();
    const auto areaOutcome = [&] { return Outcome(Row("IRoa::SetReadoutArea"), *camera.Object()); };
    const auto unlocked = areaOutcome();
    ASSERT_NE(unlocked, locked);
    port.FailAt(1, Unplug);
    EXPECT_THROW(stream.Start(), Unplugged);
    EXPECT_EQ(areaOutcome(), unlocked) << "the start did not reach the camera";
    stream.Start();
    stream.Start();
    EXPECT_EQ(areaOutcome(), locked);
    EXPECT_EQ(Outcome(Row("IRoa::GetReadoutArea"), *camera.Object()).find("SDK4_ERR"), std::string::npos);
    port.FailAt(1, Unplug);
    EXPECT_THROW(stream.Stop(), Unplugged);
    EXPECT_EQ(areaOutcome(), locked) << "the stop did not reach the camera";
    stream.Stop();
    EXPECT_EQ(areaOutcome(), unlocked);
}

TEST_F(BehaviourTest, SoftwareTriggerWaitsOneReadoutTime) {
    const Camera camera = Open(With(0x0A0A0000, 20000));
    LogCapture log;
    const auto start = std::chrono::steady_clock::now();
    camera.As<ITrigger>().SetSoftTrigger(1);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(20));
    EXPECT_EQ(port.TakeLog(), "R 0A0A0000/4; W 0A070000=1");
    const auto texts = log.TakeTexts();
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "info Sleep us=20000"), 1);
    EXPECT_EQ(texts.back(), "debug End");
}

TEST_F(BehaviourTest, ThrowsWithoutALineAboveWarn) {
    const Camera camera = Open(With(0x46020000, 1));
    LogCapture log(log4cxx::Level::getError());
    EXPECT_THROW(camera.As<IGain>().SetGain(1), X4Error);
    EXPECT_EQ(log.Lines().size(), 0u);
}

TEST_F(BehaviourTest, InfoLinesTellWhatTurnedStaleAndWhatIsRefused) {
    const Camera camera = Open(With(0x46050000, 1));
    auto& enhancement = camera.As<IDigitalEnhancement>();
    LogCapture log(log4cxx::Level::getInfo());
    enhancement.GetContrast();
    enhancement.GetContrast();
    camera.As<IACC>().SetACC(0);
    camera.As<IACC>().SetACC(1);
    EXPECT_THROW(enhancement.SetContrast(5), X4Error);
    EXPECT_EQ(log.TakeTexts(), (std::vector<std::string>{"info contrast invalid @ Address=0x18020000",
                                                         "info Invalidate: contrast", "info contrast is locked",
                                                         "warn SDK4Exception [X4Error(SDK4_ERR_CANTSETFEATURE)]"}));
}

TEST_F(BehaviourTest, LinesNameTheRegistersTheyTellOf) {
    std::set<std::string> read, written;
    for (const Operation& row : Operations()) {
        if (!row.state.IsM2VX()) {
            port = RecordingPort(); // another row may have set a long readout time
            const Camera camera = Open(row.state);
            LogCapture log;
            Outcome(row.call, *camera.Object());
            for (const std::string& text : log.TakeTexts()) {
                if (const std::size_t at = text.find(" invalid @ Address=0x"); at != std::string::npos) {
                    read.insert(text.substr(5, at - 5) + " " + text.substr(text.rfind('x') + 1));
                } else if (text.starts_with("debug DoInvalidate  ")) {
                    written.insert(text.substr(20));
                }
            }
        }
    }
    const std::string readNames =
        "autoexposurelevel 46030000, binning a0b0000, brightness 18010000, colorbalance 15010000, colorcoding "
        "28020000, contrast 18020000, devicename 64010000, exposure a030000, exposuremode a020000, firmwareversion "
        "65040000, frameduration 28040000, fumoid 64030000, fumoversion 64040000, gain 14010000, hardwareversion "
        "65050000, horizontalflip 16030000, imagesize 28030000, imagesubtraction 16060000, iodelay6 66110000, iomode1 "
        "66020000, iomode6 66020000, iopolarity4 660f0000, iopolarity5 660f0000, ioport2 66030000, lastimagehold "
        "16040000, lightsource 15020000, lutindex 19010000, lutmode 19020000, measureframecolor 1e020000, "
        "measureframeshow 1e010000, measurewindow1 1e030000, measurewindow2 1e030000, negativeimage 19030000, "
        "overlayposition_line1 17020000, overlayposition_line2 17020000, overlayshow_line1 17010000, "
        "overlayshow_line2 17010000, overlaysize_line1 17040000, overlaysize_line2 17040000, overlaystyle_line1 "
        "17030000, overlaystyle_line2 17030000, patterngenerator 5a010000, pixelclock a090000, readoutarea 28050000, "
        "readoutarea_active 28090000, readoutarea_max 28090000, readoutarea_min 28090000, readouttime a0a0000, "
        "recursivefilter 16070000, revision 65010000, saturation 15040000, serialnumber 64020000, sharpness 18030000, "
        "softwarebuildstring 65020000, softwareversion 65030000, verticalflip 16020000";
    const std::string writtenOnly =
        "acc aet agc awb iodelay1 iodelay2 iodelay3 iodelay4 iodelay5 iomode2 iomode3 iomode4 iomode5 iopolarity1 "
        "iopolarity2 iopolarity3 iopolarity6 ioport1 ioport3 ioport4 ioport5 ioport6 loadsettings savesettings "
        "slowscan softtrigger startacquisition startupsettings stopacquisition storeimage triggerdelay triggertimer";
    for (const std::string& name : Split(readNames, ", ")) {
        EXPECT_TRUE(read.contains(name)) << name;
    }
    for (const std::string& name : Split(writtenOnly, " ")) {
        EXPECT_TRUE(written.contains(name)) << name;
    }
}

TEST_F(BehaviourTest, ASettingsLoadReachesEveryRegisterAlongEveryPath) {
    const Camera camera = Open();
    LogCapture log;
    camera.As<IBasicSettings>().LoadSettings(1);
    const std::string line = "debug DoInvalidate  ";
    std::map<std::string, int> paths; // by register: one line for each chain of dependants
    for (const std::string& text : log.TakeTexts()) {
        if (text.starts_with(line)) {
            ++paths[text.substr(line.size())];
        }
    }
    EXPECT_GE(std::erase_if(paths, [](const auto& path) { return path.second == 1; }), 55u) << "itself and others";
    EXPECT_EQ(paths, (std::map<std::string, int>{{"gain", 2},
                                                 {"brightness", 2},
                                                 {"contrast", 2},
                                                 {"colorbalance", 2},
                                                 {"readoutarea", 2},
                                                 {"readoutarea_active", 2},
                                                 {"readoutarea_max", 2},
                                                 {"readoutarea_min", 2},
                                                 {"overlayposition_line1", 3},
                                                 {"overlayposition_line2", 3},
                                                 {"measurewindow1", 3},
                                                 {"measurewindow2", 3},
                                                 {"imagesize", 4},
                                                 {"readouttime", 4},
                                                 {"exposure", 8},
                                                 {"frameduration", 15}}));
}

TEST_F(BehaviourTest, UserDefinedNameIsPaddedWithZeros) {
    const Camera camera = Open();
    camera.As<IGigECamera>().SetUserDefinedName("ABCDEFGHIJKLMNOPQRST");
    camera.As<IGigECamera>().SetUserDefinedName("left");
    Bytes expected{'l', 'e', 'f', 't'};
    expected.resize(16);
    EXPECT_EQ(port.Get(0x00E8), expected);
}

TEST_F(BehaviourTest, RawMemoryReturnsTheCountOfThePort) {
    const Camera camera = Open();
    unsigned char buffer[8] = {};
    for (const auto& [reported, narrowed] : {std::pair<std::uint64_t, unsigned int>{5, 5u}, {0x100000003, 3u}}) {
        port.reportedCount = reported;
        unsigned int length = sizeof buffer;
        camera.As<IGigEVisionPort>().ReadMem(0x1000, buffer, &length);
        EXPECT_EQ(length, narrowed);
        length = sizeof buffer;
        camera.As<IGigEVisionPort>().WriteMem(0x1000, buffer, &length);
        EXPECT_EQ(length, narrowed);
    }
}

TEST_F(BehaviourTest, IdentityTextsLieInOneBufferThatNeverMoves) {
    const std::string longest(20, 'L');
    using Getter = const char* (IGufi::*)();
    for (const auto& [address, size, get] : {std::tuple{0x64010000u, 24u, Getter(&IGufi::GetDeviceName)},
                                             {0x64020000u, 16u, Getter(&IGufi::GetSerialNumber)},
                                             {0x65020000u, 24u, Getter(&IGufi::GetSoftwareBuild)}}) {
        const char* first = nullptr;
        for (const std::string& text : {longest.substr(0, 1), longest, std::string("shorter"), longest}) {
            const std::string held = text.substr(0, size - 4);
            const Camera camera = Open({{{address, TextBlock(size, held)}}});
            const char* const answered = (camera.As<IGufi>().*get)();
            first = first == nullptr ? answered : first;
            EXPECT_EQ(answered, first) << std::hex << address;
            EXPECT_EQ(std::string(first).substr(0, held.size()), held)
                << "a pointer returned earlier shows the new text";
        }
    }
}

TEST_F(BehaviourTest, TextsOutliveTheCamera) {
    const char* name = nullptr;
    {
        const Camera camera = Open({{{0x64010000, TextBlock(24, "a longer name     ")}}});
        name = camera.As<IGufi>().GetDeviceName();
    }
    EXPECT_STREQ(name, "a longer name     ");
}

} // namespace Test
