#include "PropertyParams.h"

#include "Tests/Support/LogCapture.h"
#include "Tests/Support/Observed.h"

#include <gtest/gtest.h>

#include <memory>

using namespace SDK4::Control;
using namespace Test;

namespace {

/// Which side is valid, then minimum, maximum, default and value of the unsigned and the signed side.
std::string State(const CPropertyParams& property) {
    std::string text = property.GetName() + (property.IsUnsigned() ? " U" : " S");
    for (const std::uint32_t number :
         {property.GetUIntMin(), property.GetUIntMax(), property.GetUIntDefault(), property.GetUIntValue()}) {
        text += " " + std::to_string(number);
    }
    text += " |";
    for (const std::int32_t number :
         {property.GetIntMin(), property.GetIntMax(), property.GetIntDefault(), property.GetIntValue()}) {
        text += " " + std::to_string(number);
    }
    return text;
}

template <typename Compound> Texts States(Compound& compound) {
    Texts texts;
    for (std::size_t i = 0; i < Compound::count; ++i) {
        texts.push_back(State(*compound.GetSubProperty(i)));
    }
    return texts;
}

} // namespace

TEST(PropertyParams, StartsAtZeroWhateverItsDefault) {
    EXPECT_EQ(State(CPropertyParams("p")), "p U 0 0 0 0 | 0 0 0 0");
    EXPECT_EQ(State(CPropertyParams("p", 5u)), "p U 0 0 5 0 | 0 0 0 0");
    EXPECT_EQ(State(CPropertyParams("p", 5)), "p S 0 0 0 0 | 0 0 5 0");
    EXPECT_EQ(State(CPropertyParams("p", 1u, 4000000000u, 5u)), "p U 1 4000000000 5 0 | 0 0 0 0");
    EXPECT_EQ(State(CPropertyParams("p", -9, 9, -5)), "p S 0 0 0 0 | -9 9 -5 0");
    const CPropertyParams property("p");
    EXPECT_TRUE(property.GetEnabled() && property.GetImplemented());
    EXPECT_FALSE(property.GetAutoUpdate() || property.IsEnumerated() || property.IsIndexed());
}

TEST(PropertyParams, ALimitMovesTheValueAndReportsOnlyItself) {
    CPropertyParams property("p", 0u, 100u, 0u);
    Observed observed;
    property.SetValue(3u);
    property.AddCallback(Observed::Notify, &observed);
    property.SetMin(10u);
    EXPECT_EQ(State(property), "p U 10 100 0 10 | 0 0 0 0");
    EXPECT_EQ(observed.Take(), Texts{"p minimum"});
    property.SetMax(50u);
    EXPECT_EQ(observed.Take(), Texts{"p maximum"});
    property.SetValue(150u); // the caller checks the range
    EXPECT_EQ(observed.Take(), Texts{"p value"});
    property.SetMax(50u);
    EXPECT_EQ(State(property), "p U 10 50 0 50 | 0 0 0 0") << "an unchanged limit moves the value, too";
    EXPECT_EQ(observed.Take(), Texts{});
}

TEST(PropertyParams, TheLastLimitOrDefaultDecidesTheSideAndLeavesTheOther) {
    CPropertyParams property("p", 1u, 9u, 5u);
    property.SetMin(-20);
    EXPECT_EQ(State(property), "p S 1 9 5 0 | -20 0 0 0");
    property.SetMax(-3);
    EXPECT_EQ(State(property), "p S 1 9 5 0 | -20 -3 0 -3");
    property.SetDefault(6u);
    EXPECT_EQ(State(property), "p U 1 9 6 0 | -20 -3 0 -3");
    property.SetDefault(-4);
    EXPECT_EQ(State(property), "p S 1 9 6 0 | -20 -3 -4 -3");
    EXPECT_TRUE(property.IsValueInRange(9u) && property.IsValueInRange(1u) && property.IsValueInRange(-20));
    EXPECT_FALSE(property.IsValueInRange(0u) || property.IsValueInRange(10u) || property.IsValueInRange(-21) ||
                 property.IsValueInRange(-2));
}

TEST(PropertyParams, SetValueTellsWhetherAnObserverWasTold) {
    CPropertyParams property("p", 0u, 9u, 0u);
    EXPECT_FALSE(property.SetValue(6u)) << "changed, but no observer notified";
    Observed observed;
    property.AddCallback(Observed::Notify, &observed);
    EXPECT_TRUE(property.SetValue(7u));
    EXPECT_FALSE(property.SetValue(7u));
    EXPECT_TRUE(property.SetValue(-7));
    EXPECT_EQ(observed.Take(), (Texts{"p value", "p value"}));
    Observed second;
    property.AddCallback(Observed::Notify, &second);
    property.RemoveCallback([](const char*, const char*, void*) {});
    EXPECT_FALSE(property.SetValue(8u)) << "there is only one observer, removed by any argument";
    EXPECT_EQ(second.Take(), Texts{});
}

TEST(PropertyParams, FlagsReportOnlyTheirChanges) {
    CPropertyParams property("p");
    Observed observed;
    property.AddCallback(Observed::Notify, &observed);
    for (const bool on : {true, false, false, true}) {
        property.SetEnabled(on);
        property.SetImplemented(on);
    }
    EXPECT_EQ(observed.Take(), (Texts{"p enabled", "p implemented", "p enabled", "p implemented"}));
    property.SetIndex(3);
    EXPECT_TRUE(property.IsIndexed() && property.GetIndex() == 3);
}

TEST(PropertyParams, FlagsDecideWhoMayReadStoreAndAdmit) {
    struct Row {
        bool implemented, enabled, autoUpdate;
        std::string access, admit;
    };
    const std::string missing = "SDK4_ERR_NOT_IMPLEMENTED", disabled = "SDK4_ERR_DISABLED";
    for (const Row& row : {Row{true, true, false, "", ""}, Row{true, false, true, "", disabled},
                           Row{true, false, false, disabled, disabled}, Row{false, true, true, missing, missing},
                           Row{false, false, false, missing, missing}}) {
        SCOPED_TRACE(testing::Message() << row.implemented << row.enabled << row.autoUpdate);
        CPropertyParams property("p", 0u, 9u, 0u);
        property.SetImplemented(row.implemented);
        property.SetEnabled(row.enabled);
        property.SetAutoUpdate(row.autoUpdate);
        LogCapture capture;
        EXPECT_EQ(CodeOf([&] { property.SetValue(1u); }), row.access);
        EXPECT_EQ(CodeOf([&] { property.SetValue(-1); }), row.access);
        EXPECT_EQ(CodeOf([&] { (void)property.GetUIntValue(); }), row.access);
        EXPECT_EQ(CodeOf([&] { (void)property.GetIntValue(); }), row.access);
        EXPECT_EQ(CodeOf([&] { property.SetEnumValue(1u); }), row.admit);
        const std::size_t refused = (row.access.empty() ? 0u : 4u) + (row.admit.empty() ? 0u : 1u);
        EXPECT_EQ(capture.TakeTexts(), Texts(refused, "warn SDK4Exception [SDK4::X4Error(" + row.admit + ")]"));
        property.SetImplemented(true);
        property.SetEnabled(true);
        EXPECT_EQ(property.GetUIntValue(), row.access.empty() ? 1u : 0u);
        EXPECT_EQ(property.IsEnumerated(), row.admit.empty());
    }
}

TEST(PropertyParams, AdmittedValuesReplaceTheLimits) {
    CPropertyParams property("p", 3u, 5u, 0u);
    for (const std::uint32_t value : {4u, 1u, 9u}) {
        property.SetEnumValue(value);
    }
    EXPECT_EQ(State(property), "p U 1 9 0 0 | 0 0 0 0");
    EXPECT_TRUE(property.IsValueInRange(9u));
    EXPECT_FALSE(property.IsValueInRange(2u) || property.IsValueInRange(3u));
    for (int i = 3; i < 20; ++i) {
        property.SetEnumValue(9u); // setting the same again notifies, too
    }
    EXPECT_EQ(CodeOf([&] { property.SetEnumValue(0u); }), "SDK4_ERR_OUTOFRANGE");
    EXPECT_EQ(property.GetUIntMin(), 1u);

    CPropertyParams negative("n", 0);
    negative.SetEnumValue(-3);
    negative.SetEnumValue(-8);
    EXPECT_EQ(State(negative), "n S 0 0 0 0 | -8 -3 0 0");
}

TEST(CompoundParams, BuildsNamedSubPropertiesFromEveryKindOfArguments) {
    C2PropertyParams named("c", "a", "b");
    EXPECT_EQ(States(named), (Texts{"c.a U 0 0 0 0 | 0 0 0 0", "c.b U 0 0 0 0 | 0 0 0 0"}));
    C3PropertyParams defaults("c", "a", "b", "d", 1u, 2u, 3u);
    EXPECT_EQ(States(defaults),
              (Texts{"c.a U 0 0 1 0 | 0 0 0 0", "c.b U 0 0 2 0 | 0 0 0 0", "c.d U 0 0 3 0 | 0 0 0 0"}));
    C4PropertyParams records("c", "a", "b", "d", "e", _Sdk4_4UInts{1, 2, 3, 4}, _Sdk4_4UInts{5, 6, 7, 8},
                             _Sdk4_4UInts{2, 3, 4, 5});
    EXPECT_EQ(States(records), (Texts{"c.a U 1 5 2 0 | 0 0 0 0", "c.b U 2 6 3 0 | 0 0 0 0", "c.d U 3 7 4 0 | 0 0 0 0",
                                      "c.e U 4 8 5 0 | 0 0 0 0"}));
    // Literals of either sign give unsigned defaults, braces give records.
    for (C2PropertyParams* const literal :
         {new C2PropertyParams("c", "a", "b", 1, 2), new C2PropertyParams("c", "a", "b", 1u, 2)}) {
        const std::unique_ptr<C2PropertyParams> owned(literal);
        EXPECT_EQ(States(*literal), (Texts{"c.a U 0 0 1 0 | 0 0 0 0", "c.b U 0 0 2 0 | 0 0 0 0"}));
    }
    C3PropertyParams braces("c", "a", "b", "d", {1, 2, 3}, {5, 6, 7}, {2, 3, 4});
    EXPECT_EQ(States(braces), (Texts{"c.a U 1 5 2 0 | 0 0 0 0", "c.b U 2 6 3 0 | 0 0 0 0", "c.d U 3 7 4 0 | 0 0 0 0"}));
    C2PropertyParams numbers("c", "a", "b", 1u, 9u, 5u, 2u, 8u, 4u);
    EXPECT_EQ(States(numbers), (Texts{"c.a U 1 9 5 0 | 0 0 0 0", "c.b U 2 8 4 0 | 0 0 0 0"}));
    C5PropertyParams negative("c", "a", "b", "d", "e", "f", -1, 1, 0, -2, 2, 0, -3, 3, 0, -4, 4, 0, -5, 5, 1);
    EXPECT_EQ(States(negative),
              (Texts{"c.a S 0 0 0 0 | -1 1 0 0", "c.b S 0 0 0 0 | -2 2 0 0", "c.d S 0 0 0 0 | -3 3 0 0",
                     "c.e S 0 0 0 0 | -4 4 0 0", "c.f S 0 0 0 0 | -5 5 1 0"}));
    numbers.SetMin(3u, 1u);
    numbers.SetMax(7u, 6u);
    EXPECT_EQ(States(numbers), (Texts{"c.a U 3 7 5 3 | 0 0 0 0", "c.b U 1 6 4 1 | 0 0 0 0"}));
}

TEST(CompoundParams, MovesARecordWordByWordOnEachWordsOwnSide) {
    C2PropertyParams mixed("c", "a", "b", 0u, 9u, 0u, 0u, 9u, 0u);
    mixed.GetSubProperty(1)->SetMin(-9);
    mixed.GetSubProperty(1)->SetMax(9);
    struct Record {
        std::uint32_t a;
        std::int32_t b;
    } record = {4, -5};
    EXPECT_TRUE(mixed.IsValueInRange(&record));
    EXPECT_FALSE(mixed.SetValue(&record)) << "no observer was notified";
    EXPECT_EQ(States(mixed), (Texts{"c.a U 0 9 0 4 | 0 0 0 0", "c.b S 0 9 0 0 | -9 9 0 -5"}));

    Observed compound, sub;
    mixed.AddCallback(Observed::Notify, &compound);
    mixed.GetSubProperty(0)->AddCallback(Observed::Notify, &sub);
    record = {5, -6};
    EXPECT_TRUE(mixed.SetValue(&record)) << "the first word notified, the second did not";
    EXPECT_EQ(sub.Take(), Texts{"c.a value"});
    EXPECT_EQ(compound.Take(), Texts{}) << "only sub-properties report";
    Record read{};
    mixed.GetValue(&read);
    EXPECT_TRUE(read.a == 5 && read.b == -6);
    for (const Record& outside : {Record{10, 0}, Record{0, -10}, Record{0, 10}}) {
        EXPECT_FALSE(mixed.IsValueInRange(&outside));
    }
}

TEST(CompoundParams, PassesFlagsOnAndChecksOnlyImplementedItself) {
    C2PropertyParams compound("c", "a", "b", 0u, 9u, 0u, 0u, 9u, 0u);
    Observed observed;
    for (std::size_t i = 0; i < 2; ++i) {
        compound.GetSubProperty(i)->AddCallback(Observed::Notify, &observed);
    }
    compound.SetEnabled(false);
    EXPECT_EQ(observed.Take(), (Texts{"c.a enabled", "c.b enabled"}));
    const _Sdk4_2UInts record = {4, 5};
    _Sdk4_2UInts read = {8, 9};
    compound.GetSubProperty(0)->SetEnabled(true);
    EXPECT_EQ(CodeOf([&] { compound.SetValue(&record); }), "SDK4_ERR_DISABLED");
    EXPECT_EQ(compound.GetSubProperty(0)->GetUIntValue(), 4u) << "the words before the refused one are stored";
    EXPECT_EQ(CodeOf([&] { compound.GetValue(&read); }), "SDK4_ERR_DISABLED");
    EXPECT_EQ(read.values[0], 8u) << "nothing is read unless all words can be read";
    compound.GetSubProperty(1)->SetEnabled(true);
    EXPECT_FALSE(compound.GetEnabled());
    compound.SetValue(&record);
    EXPECT_EQ(compound.GetSubProperty(1)->GetUIntValue(), 5u) << "the compound's own flag does not count";

    EXPECT_FALSE(compound.GetAutoUpdate());
    compound.SetAutoUpdate(true);
    EXPECT_TRUE(compound.GetAutoUpdate());
    compound.GetSubProperty(1)->SetAutoUpdate(false);
    EXPECT_FALSE(compound.GetAutoUpdate());

    observed.Take();
    compound.SetImplemented(false);
    EXPECT_EQ(observed.Take(), (Texts{"c.a implemented", "c.b implemented"}));
    compound.GetSubProperty(0)->SetImplemented(true);
    LogCapture capture;
    EXPECT_EQ(CodeOf([&] { compound.SetValue(&record); }), "SDK4_ERR_NOT_IMPLEMENTED");
    EXPECT_EQ(CodeOf([&] { compound.GetValue(&read); }), "SDK4_ERR_NOT_IMPLEMENTED");
    EXPECT_EQ(capture.TakeTexts(), Texts(2, "warn SDK4Exception [SDK4::X4Error(SDK4_ERR_NOT_IMPLEMENTED)]"));
}
