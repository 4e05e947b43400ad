#include "Tests/Framework/FrameworkTest.h"

using namespace SDK4;

namespace Test {

class RegisterTest : public FrameworkTest {
protected:
    Listener<CRegisterBase> listener;
};

TEST_F(RegisterTest, CacheModesDecideWhatTouchesTheCamera) {
    const struct {
        int mode;
        std::string readAgain, readAfterWrite, eventsOfWrite, eventsOfInvalidate;
    } cases[] = {
        {0, "R 0100/4", "R 0100/4", "", ""}, // never valid, so nothing becomes stale
        {1, "", "", "", "gain"},
        {2, "", "R 0100/4", "gain", "gain"},
    };
    for (const auto& [mode, readAgain, readAfterWrite, eventsOfWrite, eventsOfInvalidate] : cases) {
        SCOPED_TRACE(mode);
        CRegisterList own;
        auto& gain = *new Plain<int>("gain", &own, &port, 0x100, static_cast<EnumCacheMode>(mode));
        gain.Subscribe(&listener);
        const auto read = [&gain = gain] { gain.GetValue(); };
        EXPECT_EQ(Cost(read), "R 0100/4");
        EXPECT_EQ(Cost(read), readAgain);
        EXPECT_EQ(Cost([&] { gain.SetValue(-2); }), "W 0100=4294967294");
        EXPECT_EQ(listener.Take(), eventsOfWrite);
        EXPECT_EQ(Cost([&] { EXPECT_EQ(gain.GetValue(), -2); }), readAfterWrite);
        gain.Invalidate();
        gain.Invalidate();
        EXPECT_EQ(listener.Take(), eventsOfInvalidate);
        EXPECT_EQ(Cost(read), "R 0100/4");
    }
}

TEST_F(RegisterTest, WithoutCachingTheLastValueIsKeptForALaterMode) {
    auto& gain = AddPlain<int>("gain", 0x100, 1);
    gain.GetValue();
    gain.SetCacheMode(CacheNone);
    gain.SetValue(5);
    gain.SetCacheMode(CacheNormal);
    EXPECT_EQ(Cost([&] { EXPECT_EQ(gain.GetValue(), 5); }), "");
    gain.SetCacheMode(CacheNone);
    port.Set(0x100, 6);
    gain.GetValue();
    gain.SetCacheMode(CacheNormal);
    EXPECT_EQ(Cost([&] { EXPECT_EQ(gain.GetValue(), 6); }), "");
}

TEST_F(RegisterTest, AnUnknownCacheModeRefusesAfterTheWrite) {
    auto& gain = AddPlain<int>("gain", 0x100, 3);
    auto& dependant = AddPlain<int>("dependant", 0x200, 1);
    dependant.AddInvalidator("gain");
    dependant.GetValue();
    LogCapture log(log4cxx::Level::getWarn());
    EXPECT_EQ(Cost([&] { EXPECT_EQ(CodeOf([&] { gain.GetValue(); }), "SDK4_ERR_CANTGETFEATURE"); }), "");
    EXPECT_EQ(Cost([&] { EXPECT_EQ(CodeOf([&] { gain.SetValue(5); }), "SDK4_ERR_CANTSETFEATURE"); }), "W 0100=5");
    EXPECT_EQ(Cost([&] { dependant.GetValue(); }), "") << "no cascade";
    EXPECT_EQ(log.TakeTexts(), (Texts{"warn SDK4Exception [X4Error(SDK4_ERR_CANTGETFEATURE)]",
                                      "warn SDK4Exception [X4Error(SDK4_ERR_CANTSETFEATURE)]"}));
}

TEST_F(RegisterTest, BlocksTravelAsTheyLieInMemory) {
    auto& rgb = AddPlain<SDK4_KRGB>("rgb", 0x100, 0);
    EXPECT_EQ(Cost([&] { rgb.SetValue({10, 20, 30}); }), "W 0100=10,20,30");
    EXPECT_EQ(Cost([&] { EXPECT_EQ(rgb.GetValue().blue, 30u); }), "R 0100/12");

    auto& area = AddIndexed<SDK4_KAREA>("area", 3, 0x200, 0);
    EXPECT_EQ(Cost([&] { EXPECT_EQ(area.GetValue().starty, 3u); }), "w 0200=3; R 0200/20");
    EXPECT_EQ(Cost([&] { area.SetValue({6, 7, 8, 9}); }), "W 0200=3,6,7,8,9");
    EXPECT_EQ(area.GetValue().endy, 9u);

    auto& delay = AddIndexed<unsigned int>("delay", -2, 0x300, 0);
    EXPECT_EQ(Cost([&] { delay.SetValue(7); }), "W 0300=4294967294,7");
    EXPECT_EQ(Cost([&] { EXPECT_EQ(delay.GetValue(), 7u); }), "w 0300=4294967294; R 0300/8");
}

TEST_F(RegisterTest, WhatThePortDoesNotDeliverReadsAsZero) {
    auto& size = AddPlain<SDK4_KSIZE>("size", 0x100, 0);
    auto& line = AddIndexed<int>("line", 1, 0x200, 0);
    size.SetValue({0x11223344, 0x55667788});
    port.reportedCount = 2;
    EXPECT_EQ(size.GetValue().width, 0x3344u);
    EXPECT_EQ(size.GetValue().height, 0u);
    EXPECT_EQ(line.GetValue(), 0);
    port.reportedCount = 0xFFFFFFFFFFFF;
    EXPECT_EQ(size.GetValue().height, 0x55667788u);
}

TEST_F(RegisterTest, AFailureLeavesCacheFlagAndDependants) {
    auto& gain = AddPlain<int>("gain", 0x100, 2);
    auto& dependant = AddPlain<int>("dependant", 0x200, 1);
    dependant.AddInvalidator("gain");
    port.FailAt(1, Unplug);
    EXPECT_THROW(gain.GetValue(), std::string);
    EXPECT_EQ(Cost([&] { gain.GetValue(), dependant.GetValue(); }), "R 0100/4; R 0200/4") << "still invalid";
    gain.Subscribe(&listener);
    port.FailAt(1, Unplug);
    EXPECT_THROW(gain.SetValue(9), std::string);
    EXPECT_EQ(listener.Take(), "");
    EXPECT_EQ(Cost([&] { EXPECT_EQ(gain.GetValue() + dependant.GetValue(), 2); }), "") << "still valid";
}

TEST_F(RegisterTest, CascadeFollowsTheRelationInNameOrder) {
    // e names d, d names b and c, and both name a. f names none of them.
    for (const auto& [name, invalidators] : std::map<const char*, std::vector<const char*>>{
             {"e", {"d", "absent"}}, {"d", {"c", "b"}}, {"c", {"a"}}, {"b", {"a"}}, {"f", {}}}) {
        auto& entry = AddPlain<int>(name, 0x100, 1);
        for (const char* invalidator : invalidators) {
            entry.AddInvalidator(invalidator);
        }
        entry.GetValue();
        entry.Subscribe(&listener);
    }
    auto& a = AddPlain<int>("a", 0x200, 2);
    a.Subscribe(&listener);
    LogCapture log;
    a.SetValue(1);
    EXPECT_EQ(listener.Take(), "a b d e c") << "its own event first, then each once";
    EXPECT_EQ(log.TakeTexts(),
              (Texts{"debug Call", "debug DoInvalidate  a", "info Invalidate: b", "debug DoInvalidate  b",
                     "info Invalidate: d", "debug DoInvalidate  d", "info Invalidate: e", "debug DoInvalidate  e",
                     "info Invalidate: c", "debug DoInvalidate  c", "debug DoInvalidate  d", "debug DoInvalidate  e"}));

    dynamic_cast<Plain<int>*>(registers.Find("e"))->GetValue();
    a.SetValue(2);
    EXPECT_EQ(listener.Take(), "a e") << "invalid registers continue the cascade";
    registers.Find("f")->AddInvalidator("b");
    a.SetValue(3);
    EXPECT_EQ(listener.Take(), "a f") << "the relation may grow later";
}

TEST_F(RegisterTest, AHandlerMayUnsubscribeAnyHandlerDuringTheEvent) {
    struct Leaving final : Utility::IEventHandler<unsigned int> {
        explicit Leaving(CRegisterBase& heardRegister) : subject(heardRegister) {}
        void notify(void*, unsigned int) override {
            ++heard;
            for (Utility::IEventHandler<unsigned int>* handler : leaving) {
                subject.Unsubscribe(handler);
            }
        }
        CRegisterBase& subject;
        std::vector<Utility::IEventHandler<unsigned int>*> leaving;
        int heard = 0;
    };
    auto& gain = AddPlain<int>("gain", 0x100, 2);
    Leaving first(gain), second(gain), third(gain), fourth(gain);
    for (Leaving* handler : {&first, &second, &third, &fourth}) {
        gain.Subscribe(handler);
    }
    second.leaving = {&first, &second, &third}; // before it, itself, and the next one
    gain.SetValue(1);
    gain.SetValue(2);
    EXPECT_EQ((std::vector<int>{first.heard, second.heard, third.heard, fourth.heard}), (std::vector<int>{1, 1, 0, 2}));
}

/// A register outside the framework.
struct ForeignRegister final : IRegister {
    void Invalidate() override { ++invalidated; }
    void SetCacheMode(EnumCacheMode) override {}
    EnumCacheMode GetCacheMode() override { return CacheNone; }
    void AddInvalidator(std::string) override {}
    std::set<std::string> GetInvalidatorSet() override { return {"gain"}; }
    std::string GetName() override { return "foreign"; }
    int invalidated = 0;
};

TEST_F(RegisterTest, TheListServesAnyRegisterAndKeepsTheFirstOfAName) {
    auto& gain = AddPlain<int>("gain", 0x100, 1);
    gain.SetValue(1); // before the new entry: the list must update cached relations
    auto* foreign = new ForeignRegister;
    registers.AddEntry(foreign);
    gain.SetValue(1);
    EXPECT_EQ(foreign->invalidated, 1);

    const auto second = std::make_unique<ForeignRegister>();
    registers.AddEntry(second.get());
    EXPECT_EQ(registers.Find("foreign"), foreign);
    gain.SetValue(1);
    EXPECT_EQ(second->invalidated, 0);
    EXPECT_EQ(foreign->invalidated, 2);
}

TEST_F(RegisterTest, TextsLoseOuterBlanksButNoZeros) {
    using std::string_literals::operator""s;
    auto& text = AddText("text", 36, 0);
    for (const auto& [inBlock, expected] : {std::pair{"  CAM 1  "s, "CAM 1  "s + std::string(23, '\0')},
                                            {" \t\n\v\f\rall white" + std::string(17, ' '), "all white"s},
                                            {std::string(32, ' '), ""s},
                                            {std::string(32, 'x'), std::string(32, 'x')},
                                            {"\xE4"s + std::string(31, ' '), "\xE4"s}}) {
        port.Set(0x100, TextBlock(36, inBlock));
        EXPECT_EQ(text.GetValue(), expected);
    }
}

TEST_F(RegisterTest, TheCountOfThePortIsTheLengthOfATextAndOfTheNextRead) {
    auto& text = AddText("text", 36, 0);
    port.Set(0x100, TextBlock(36, "camera of more than a few words"));
    const struct {
        std::uint64_t reported;
        std::string text, nextLength;
    } cases[] = {
        {8, "came", "8"},
        {3, "", "8"},
        {0, "", "8"},
        {0xFFFFFFFFFFFF, "came" + std::string(28, '\0'), "36"}, // eight bytes requested, the others are zero
        {4, "", "4"},
        {100, std::string(32, '\0'), "36"},
    };
    for (const auto& [reported, expected, nextLength] : cases) {
        port.reportedCount = reported;
        EXPECT_EQ(text.GetValue(), expected) << reported;
        port.reportedCount = 0; // no effect
        EXPECT_EQ(Cost([&] { text.GetValue(); }), "R 0100/" + nextLength) << reported;
    }
}

TEST_F(RegisterTest, ATextThatIsShorterThanItsLeadingWordIsEmpty) {
    auto& text = AddText("text", 2, 0);
    for (const unsigned int reported : {2u, 3u, 4u, 100u}) {
        port.reportedCount = reported;
        EXPECT_EQ(text.GetValue(), "") << reported;
    }
}

TEST_F(RegisterTest, TextsAreWrittenAsTheyAreRead) {
    auto& text = AddText("text", 16, 1);
    text.SetValue("left");
    Bytes expected = TextBlock(16, "left");
    std::fill_n(expected.begin(), 4, std::uint8_t{0});
    EXPECT_EQ(port.Get(0x100), expected);
    EXPECT_EQ(Cost([&] { EXPECT_EQ(text.GetValue(), "left"); }), "");
    EXPECT_EQ(Cost([&] { EXPECT_NE(CodeOf([&] { text.SetValue(std::string(13, 'x')); }), ""); }), "");
    text.SetValue(std::string(12, 'x'));
    std::fill_n(expected.begin() + 4, 12, std::uint8_t{'x'});
    EXPECT_EQ(port.Get(0x100), expected) << "the longest that fits";
}

} // namespace Test
