// The two exports, the lifetime of a control, and its log lines.

#include "Tests/Boundary/CameraTest.h"

#include <dlfcn.h>

namespace Test {

namespace {

using Texts = std::vector<std::string>;

const auto info = log4cxx::Level::getInfo();

class Foreign {
public:
    virtual void Operation() = 0;
};

} // namespace

class FactoryTest : public CameraTest {};

TEST_F(FactoryTest, RegistersEveryModelInOrderEachTime) {
    const std::string thirteen = "Orvik-31200M=qdv12\nOrvik-31200C=qdv12\nOrvik-710M=qdv12\nOrvik-710C=qdv12\n"
                                 "Orvik-390M=qdv12\nOrvik-390C=qdv12\nOrvik-520M=qdv12\nOrvik-520C=qdv12\n"
                                 "Orvik-530M=qdv12\nOrvik-530C=qdv12\nCerix7-MV=qdv12\nCerix-MV7=qdv12\n"
                                 "Sollux G=qdv12\n";
    Registry registry;
    LogCapture log(info);
    plugin.initLibrary(static_cast<IModelRegistry*>(&registry));
    EXPECT_EQ(registry.models, thirteen);
    plugin.initLibrary(static_cast<IModelRegistry*>(&registry));
    EXPECT_EQ(registry.models, thirteen + thirteen);
    plugin.initLibrary(nullptr);
    EXPECT_EQ(log.TakeTexts(), Texts(3, "info Init QDV12Control"));
}

TEST_F(FactoryTest, ServesTheTenOrvikModels) {
    for (const char* model : {"Orvik-31200M", "Orvik-31200C", "Orvik-710M", "Orvik-710C", "Orvik-390M", "Orvik-390C",
                              "Orvik-520M", "Orvik-520C", "Orvik-530M", "Orvik-530C"}) {
        const Camera camera(plugin, model, &port);
        ASSERT_NE(camera.Object(), nullptr) << model;
        EXPECT_STREQ(camera.As<SDK4::IControl>().GetClassID(), "Orvik");
        EXPECT_EQ(dynamic_cast<void*>(camera.Object()), camera.Object()) << "IDynamicObject is not the first base";
    }
    EXPECT_EQ(port.TakeLog(), "") << "opening makes no access";
}

TEST_F(FactoryTest, AnswersNullForOtherNames) {
    LogCapture log(info);
    for (const char* model : {"Orvik-31200m", "orvik-31200M", "Orvik-31200M ", "Orvik-31200", ""}) {
        EXPECT_EQ(plugin.createObject(model, &port, 0), nullptr) << model;
        EXPECT_EQ(log.TakeTexts(),
                  (Texts{"info QDV12: CreateObject(" + std::string(model) + ")", "info Unknown (Flying) Object "}));
    }
    EXPECT_EQ(plugin.createObject(nullptr, &port, 0), nullptr);
    EXPECT_EQ(log.TakeTexts().back(), "info Unknown (Flying) Object ");
}

TEST_F(FactoryTest, OnlyIndexTwoTurnsTheCachesOff) {
    for (const int index : {0, 1, 3, 0x12, 0x102, -2}) {
        const Camera camera = Open({}, index);
        const Call getGain = FindOperation("IGain::GetGain").call;
        EXPECT_EQ(Observe(camera, getGain).accesses, "R 14010000/4") << index;
        EXPECT_EQ(Observe(camera, getGain).accesses, "") << index;
    }
}

TEST_F(FactoryTest, OpensAndReleasesWithTheseLines) {
    LogCapture log(info);
    { Camera camera(plugin, "Orvik-520C", &port); }
    EXPECT_EQ(log.TakeTexts(),
              (Texts{"info QDV12: CreateObject(Orvik-520C)", "info Call", "info Call", "info Call Orvik-520C",
                     "info dtor COrvik2FeatureCtrl", "info Call", "info Call"}));
    EXPECT_EQ(port.TakeLog(), "");
}

TEST_F(FactoryTest, DebugLinesTellConstructionAndDestruction) {
    LogCapture log;
    {
        Camera camera(plugin, "Orvik-520C", &port);
        const Texts opening = log.TakeTexts();
        ASSERT_GT(opening.size(), 3u);
        EXPECT_EQ(
            Texts(opening.begin(), opening.begin() + 3),
            (Texts{"info QDV12: CreateObject(Orvik-520C)", "debug ctor CFeatureList", "debug ctor CRegisterList"}));
        for (const char* name :
             {"KGain",           "KSignalFormat",  "KSlowScan",      "KTiming",   "KDigitalEnhancement",
              "KColor",          "KOverlay",       "KGufi",          "KExposure", "KRoa",
              "KSignalAnalysis", "KInternalTests", "KBasicSettings", "KBinning",  "KLookupTable",
              "KTrigger",        "KMemory",        "KGPIO",          "gain",      "temperature1",
              "iodelay6"}) { // also the names of registers
            EXPECT_EQ(std::count(opening.begin(), opening.end(), "debug ctor " + std::string(name)), 1) << name;
        }
    }
    EXPECT_EQ(log.TakeTexts(),
              (Texts{"info dtor COrvik2FeatureCtrl", "info Call", "debug delete FeatureList", "debug dtor CFeatureList",
                     "debug delete RegisterList", "debug dtor CRegisterList", "info Call"}));
}

TEST_F(FactoryTest, AConstructorThatFailsReachesTheHost) {
    LogCapture log;
    port.FailAt(3, [] { throw SDK4::X4Error(SDK4_ERR_ERROR); });
    EXPECT_THROW(plugin.createObject("Orvik-520C", &port, 0), SDK4::X4Error);
    const Texts lines = log.TakeTexts();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "debug dtor CFeatureList"), 1);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "debug dtor CRegisterList"), 1);
    const Camera camera(plugin, "Orvik-520C", &port);
    EXPECT_NE(camera.Object(), nullptr);
}

TEST_F(FactoryTest, CastsToWhatTheFamilyLacksGiveNull) {
    const Camera camera = Open();
    EXPECT_EQ(dynamic_cast<Foreign*>(camera.Object()), nullptr);
    EXPECT_EQ(dynamic_cast<SDK4::IControlPort*>(camera.Object()), nullptr);
    EXPECT_EQ(dynamic_cast<SDK4::IVideoFrame*>(camera.Object()), nullptr);
    EXPECT_EQ(dynamic_cast<IModelRegistry*>(camera.Object()), nullptr);
}

TEST_F(FactoryTest, ObjectsShareNoCameraState) {
    RecordingPort otherPort;
    const Camera camera = Open();
    const Camera other(plugin, "Orvik-31200M", &otherPort);
    camera.As<SDK4::IStreamControl>().Start();
    camera.As<SDK4::Control::IGain>().SetGain(5);
    EXPECT_EQ(other.As<SDK4::Control::IGain>().GetGain(), 1u);
    EXPECT_EQ(Outcome(FindOperation("IBinning::SetBinning").call, *other.Object()), done);
}

TEST(UnloadTest, TheLibraryLeavesTheProcess) {
#ifdef QDV12_SANITIZED
    GTEST_SKIP() << "sanitized runs keep the library loaded";
#endif
    const auto isLoaded = [] {
        void* handle = dlopen(Plugin::Path(), RTLD_NOW | RTLD_NOLOAD);
        if (handle != nullptr) {
            dlclose(handle);
        }
        return handle != nullptr;
    };
    ASSERT_FALSE(isLoaded());
    {
        const Plugin plugin;
        LogCapture log;
        for (const Operation& row : Operations()) {
            RecordingPort port;
            Prepare(port, row.state);
            const Camera camera(plugin, row.state.model, &port, row.state.CachedIndex());
            Outcome(row.call, *camera.Object());
        }
        EXPECT_TRUE(isLoaded());
    }
    EXPECT_FALSE(isLoaded());
}

} // namespace Test
