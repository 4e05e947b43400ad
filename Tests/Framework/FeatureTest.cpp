#include "Tests/Framework/FrameworkTest.h"

using namespace SDK4;

namespace Test {

/// A condition that counts its evaluations.
struct Condition final : IFeature, IGetter<bool> {
    Condition(std::string conditionName, bool conditionHolds) : name(std::move(conditionName)), holds(conditionHolds) {}
    std::string GetName() override { return name; }
    bool GetValue() override { return ++asked, holds; }
    std::string name;
    bool holds;
    int asked = 0;
};

class FeatureTest : public FrameworkTest {
protected:
    template <typename F> F& Add(F* feature) {
        features.AddEntry(feature);
        feature->changedEvent.Subscribe(&listener);
        return *feature;
    }
    Condition& AddCondition(const char* name, bool holds) {
        auto* condition = new Condition(name, holds);
        features.AddEntry(condition);
        return *condition;
    }
    /// "error (accesses) events" of a write.
    template <typename T> std::string Write(ISetter<T>& feature, T value) {
        std::string error;
        const std::string accesses = Cost([&] { error = CodeOf([&] { feature.SetValue(value); }); });
        return error + " (" + accesses + ") " + listener.Take();
    }

    Listener<IFeature> listener;
};

TEST_F(FeatureTest, ConditionsAreCheckedInThisOrder) {
    auto& feature = Add(new CEnumFeature<int>("mode", &features, &AddPlain<int>("mode", 0x100, 0)));
    Condition& exists = AddCondition("exists", false);
    Condition& usable = AddCondition("usable", false);
    Condition& lock = AddCondition("lock", true);
    feature.implementedConditions = {"exists"};
    feature.availableConditions = {"usable"};
    feature.lockConditions = {"lock"};
    const auto lines = [](const std::string& reason, const std::string& code) {
        return Texts{"info mode " + reason, "warn SDK4Exception [X4Error(" + code + ")]"};
    };
    LogCapture log(log4cxx::Level::getInfo());

    EXPECT_EQ(Write<int>(feature, 9), "SDK4_ERR_NOT_IMPLEMENTED () ");
    EXPECT_EQ(log.TakeTexts(), lines("is not implemented", "SDK4_ERR_NOT_IMPLEMENTED"));
    EXPECT_EQ(CodeOf([&] { feature.GetValue(); }), "SDK4_ERR_NOT_IMPLEMENTED");
    EXPECT_EQ(log.TakeTexts(), lines("is not implemented", "SDK4_ERR_NOT_IMPLEMENTED"));
    EXPECT_EQ(usable.asked + lock.asked, 0);
    exists.holds = true;
    EXPECT_EQ(Write<int>(feature, 9), "SDK4_ERR_DISABLED () ");
    EXPECT_EQ(CodeOf([&] { feature.GetValue(); }), "SDK4_ERR_DISABLED");
    EXPECT_EQ(log.TakeTexts().front(), "info mode is not available");
    EXPECT_EQ(lock.asked, 0);
    usable.holds = true;
    EXPECT_EQ(Write<int>(feature, 9), "SDK4_ERR_CANTSETFEATURE () ");
    EXPECT_EQ(log.TakeTexts(), lines("is locked", "SDK4_ERR_CANTSETFEATURE"));
    EXPECT_EQ(feature.GetValue(), 1) << "a locked feature can be read";
    lock.holds = false;
    EXPECT_EQ(Write<int>(feature, 9), "SDK4_ERR_INVALID_PARAMETER () ");
    EXPECT_EQ(log.TakeTexts(), Texts{"warn SDK4Exception [X4Error(SDK4_ERR_INVALID_PARAMETER)]"});
    feature.allowed = {9};
    EXPECT_EQ(Write<int>(feature, 9), " (W 0100=9) mode");
}

TEST_F(FeatureTest, ConditionsAreAskedUntilTheAnswerIsKnown) {
    auto& feature = Add(new CFeature<int>("mode", &features, &AddPlain<int>("mode", 0x100, 0)));
    Condition& yes = AddCondition("yes", true);
    Condition& no = AddCondition("no", false);
    Condition& last = AddCondition("last", true);
    feature.implementedConditions = {"absent", "mode", "yes", "no",
                                     "last"}; // "absent" is no feature, "mode" no condition
    EXPECT_FALSE(feature.IsImplemented());
    EXPECT_EQ(yes.asked * 100 + no.asked * 10 + last.asked, 110);
    feature.implementedConditions = {"absent", "mode"};
    EXPECT_TRUE(feature.IsImplemented());
    feature.lockConditions = {"mode", "no", "yes", "last"};
    EXPECT_EQ(Write<int>(feature, 9), "SDK4_ERR_CANTSETFEATURE () ");
    EXPECT_EQ(yes.asked * 100 + no.asked * 10 + last.asked, 220);
    feature.lockConditions = {"absent", "no"};
    EXPECT_EQ(Write<int>(feature, 9), " (W 0100=9) mode");
}

TEST_F(FeatureTest, RangesClampWriteAndThenComplain) {
    auto& level = Add(
        new CIntegerFeature<unsigned int>("level", &features, &AddPlain<unsigned int>("level", 0x100, 1), 10u, 255u));
    EXPECT_EQ(Write(level, 10u), " (W 0100=10) level");
    EXPECT_EQ(Write(level, 255u), " (W 0100=255) level");
    EXPECT_EQ(Write(level, 300u), "SDK4_ERR_OUTOFRANGE (W 0100=255) level");
    EXPECT_EQ(level.GetValue(), 255u);
    EXPECT_EQ(Write(level, 9u), "SDK4_ERR_OUTOFRANGE (W 0100=10) level");
    EXPECT_EQ(Write(level, 0x80000000u), "SDK4_ERR_OUTOFRANGE (W 0100=255) level");

    auto& index = Add(new CIntegerFeature<int>("index", &features, &AddPlain<int>("index", 0x200, 1), -8, 12));
    EXPECT_EQ(Write(index, -8), " (W 0200=4294967288) index");
    EXPECT_EQ(Write(index, -9), "SDK4_ERR_OUTOFRANGE (W 0200=4294967288) index");
    EXPECT_EQ(Write(index, 13), "SDK4_ERR_OUTOFRANGE (W 0200=12) index");

    port.FailAt(1, Unplug);
    EXPECT_THROW(level.SetValue(300), std::string) << "the port's failure, not the range's";
    EXPECT_EQ(listener.Take(), "");
}

TEST_F(FeatureTest, RecordsAreClampedFieldByField) {
    const SDK4_KPOSITION none{0, 0}, most{1000, 800};
    auto& position = Add(new CIntegerFeature<SDK4_KPOSITION>(
        "position", &features, &AddIndexed<SDK4_KPOSITION>("position", 1, 0x100, 1), none, most));
    LogCapture log(log4cxx::Level::getInfo());
    EXPECT_EQ(Write(position, {1000, 0}), " (W 0100=1,1000,0) position");
    EXPECT_EQ(log.TakeTexts(), Texts{"info Check  (Pos)=1000,0"});
    EXPECT_EQ(Write(position, {0xFFFFFFFF, 7}), "SDK4_ERR_OUTOFRANGE (W 0100=1,1000,7) position");
    EXPECT_EQ(log.TakeTexts(), (Texts{"info Check  (Pos)=4294967295,7", "info Checked(Pos)=1000,7",
                                      "warn SDK4Exception [X4Error(SDK4_ERR_OUTOFRANGE)]"}));

    auto& area = Add(new CIntegerFeature<SDK4_KAREA>("area", &features, &AddPlain<SDK4_KAREA>("area", 0x200, 1),
                                                     {1, 2, 3, 4}, {10, 20, 30, 40}));
    EXPECT_EQ(Write(area, {10, 2, 30, 4}), " (W 0200=10,2,30,4) area");
    EXPECT_EQ(log.TakeTexts(), Texts{"info Check  (Roa)=10,2,30,4"});
    EXPECT_EQ(Write(area, {0, 21, 2, 41}), "SDK4_ERR_OUTOFRANGE (W 0200=1,20,3,40) area");
    EXPECT_EQ(log.TakeTexts()[1], "info Checked(Roa)=1,20,3,40");
    EXPECT_EQ(Write(area, {11, 1, 31, 3}), "SDK4_ERR_OUTOFRANGE (W 0200=10,2,30,4) area");

    auto& rgb = Add(new CIntegerFeature<SDK4_KRGB>("rgb", &features, &AddPlain<SDK4_KRGB>("rgb", 0x300, 1), {5, 5, 5},
                                                   {255, 255, 255}));
    EXPECT_EQ(Write(rgb, {300, 0, 256}), "SDK4_ERR_OUTOFRANGE (W 0300=255,5,255) rgb");
}

TEST_F(FeatureTest, UnderAMinimumAboveTheMaximumOnlyAChangedRecordIsRefused) {
    auto& position = Add(new CIntegerFeature<SDK4_KPOSITION>(
        "position", &features, &AddIndexed<SDK4_KPOSITION>("position", 1, 0x100, 1), {70, 70}, {60, 60}));
    auto& area = Add(new CIntegerFeature<SDK4_KAREA>("area", &features, &AddPlain<SDK4_KAREA>("area", 0x200, 1),
                                                     {70, 70, 70, 70}, {60, 60, 60, 60}));
    auto& rgb = Add(new CIntegerFeature<SDK4_KRGB>("rgb", &features, &AddPlain<SDK4_KRGB>("rgb", 0x300, 1),
                                                   {70, 70, 70}, {60, 60, 60}));
    LogCapture log(log4cxx::Level::getInfo());
    EXPECT_EQ(Write(position, {60, 60}), " (W 0100=1,60,60) position");
    EXPECT_EQ(log.TakeTexts(), Texts{"info Check  (Pos)=60,60"});
    EXPECT_EQ(Write(area, {60, 60, 60, 60}), " (W 0200=60,60,60,60) area");
    EXPECT_EQ(Write(rgb, {60, 60, 60}), " (W 0300=60,60,60) rgb");
    EXPECT_EQ(Write(position, {60, 61}), "SDK4_ERR_OUTOFRANGE (W 0100=1,60,60) position");
    EXPECT_EQ(Write(area, {60, 60, 60, 75}), "SDK4_ERR_OUTOFRANGE (W 0200=60,60,60,60) area");
    EXPECT_EQ(Write(rgb, {59, 60, 60}), "SDK4_ERR_OUTOFRANGE (W 0300=60,60,60) rgb");

    auto& level = Add(new CIntegerFeature<int>("level", &features, &AddPlain<int>("level", 0x400, 1), 70, 60));
    EXPECT_EQ(Write(level, 60), "SDK4_ERR_OUTOFRANGE (W 0400=60) level") << "a number is still out of range";
}

TEST_F(FeatureTest, BoundsAreAskedForOnEveryWriteAfterTheLock) {
    auto& level = Add(new CIntegerFeature<int>("level", &features, &AddPlain<int>("level", 0x100, 1), 0, 100));
    Add(new CFeature<int>("min", &features, &AddPlain<int>("min", 0x200, 0)));
    Add(new CFeature<int>("max", &features, &AddPlain<int>("max", 0x300, 0)));
    Add(new CFeature<unsigned int>("unsigned", &features, &AddPlain<unsigned int>("unsigned", 0x400, 0)));
    Condition& lock = AddCondition("lock", true);
    level.minFeature = "min";
    level.maxFeature = "max";
    level.lockConditions = {"lock"};
    port.Set(0x200, 10);
    port.Set(0x300, 20);
    EXPECT_EQ(Write(level, 50), "SDK4_ERR_CANTSETFEATURE () ");
    lock.holds = false;
    EXPECT_EQ(Write(level, 50), "SDK4_ERR_OUTOFRANGE (R 0200/4; R 0300/4; W 0100=20) level");
    port.Set(0x300, 60);
    EXPECT_EQ(Write(level, 50), " (R 0200/4; R 0300/4; W 0100=50) level");
    port.Set(0x200, 70);
    EXPECT_EQ(Write(level, 50), "SDK4_ERR_OUTOFRANGE (R 0200/4; R 0300/4; W 0100=60) level") << "minimum above maximum";
    level.minFeature = "absent";
    level.maxFeature = "unsigned";
    EXPECT_EQ(Write(level, 1), "SDK4_ERR_OUTOFRANGE (W 0100=60) level") << "the last bounds still apply";
}

TEST_F(FeatureTest, StaleRegistersAreHeardOf) {
    auto& area = Add(new CFeature<int>("area", &features, &AddPlain<int>("area", 0x100, 2)));
    auto& sizeRegister = AddPlain<int>("size register", 0x200, 1);
    auto& size = Add(new CFeature<int>("size", &features, &sizeRegister));
    sizeRegister.AddInvalidator("area");
    size.GetValue();
    LogCapture log;
    EXPECT_EQ(Write<int>(area, 5), " (W 0100=5) area size area") << "stale by its own write, its dependant, written";
    const Texts texts = log.TakeTexts();
    const auto isName = [](const std::string& text) { return text.substr(text.find(' ') + 1) == "size register"; };
    EXPECT_EQ(std::count_if(texts.begin(), texts.end(), isName), 1) << "the log line names the register";
}

TEST_F(FeatureTest, TheListMatchesNameAndTypeExactly) {
    Add(new CFeature<unsigned int>("gain", &features, &AddPlain<unsigned int>("gain", 0x100, 0)));
    AddCondition("condition", true);
    features.SetValue("gain", 5u);
    EXPECT_EQ(features.GetValue<unsigned int>("gain"), 5u);
    LogCapture log(log4cxx::Level::getInfo());
    const std::string refused = "SDK4_ERR_INVALID_INTERFACE", warning = "warn SDK4Exception [X4Error(" + refused + ")]";
    EXPECT_EQ(CodeOf([&] { features.GetValue<int>("gain"); }), refused);
    EXPECT_EQ(log.TakeTexts(), (Texts{"info gain has no IGetter Interface", warning}));
    EXPECT_EQ(CodeOf([&] { features.SetValue("gain", 5); }), refused);
    EXPECT_EQ(log.TakeTexts(), (Texts{"info gain has no ISetter Interface", warning}));
    EXPECT_EQ(CodeOf([&] { features.SetValue("condition", true); }), refused);
    EXPECT_EQ(CodeOf([&] { features.GetValue<int>("absent"); }), refused);

    log.TakeTexts();
    const auto second = std::make_unique<Condition>("gain", true);
    features.AddEntry(second.get());
    EXPECT_EQ(log.TakeTexts(), Texts{"info gain Entry already present"});
    EXPECT_EQ(features.GetValue<unsigned int>("gain"), 5u);
}

} // namespace Test
