#include "BaseControlHelper.h"

#include "Tests/Support/LogCapture.h"
#include "Tests/Support/Observed.h"

#include <gtest/gtest.h>

#include <functional>

using namespace SDK4::Control;
using namespace Test;

namespace {

const std::string longName(200, 'x');
const std::string endless(100000, 'x');

/// A control with a few properties, accessed through the host's interfaces.
class TestControl : public CBaseControlHelper {
public:
    TestControl() {
        first.SetIndex(0);
        second.SetIndex(1);
        second.SetValue(-7);
        both.SetMin(-9);
        both.SetMax(-3);
        both.SetDefault(-5);
        both.SetValue(-6);
        both.SetValue(6u);
        both.SetEnumValue(2);
        disabled.SetEnabled(false);
        missing.SetImplemented(false);
        properties = {&gain, &first, &second, &both, &longest, &disabled, &missing};
    }

    IPropertyState& State() { return *this; }

    CPropertyParams gain{"gain", 1u, 9u, 5u};
    CPropertyParams first{"position.x", -500, 499, 0};
    CPropertyParams second{"position.x", -400, 399, 0};
    CPropertyParams both{"both", 2u, 8u, 4u};
    CPropertyParams longest{longName};
    CPropertyParams disabled{"disabled"};
    CPropertyParams missing{"missing"};
};

using Call = std::function<std::string(IPropertyState&, const char*)>;

template <typename Operation> Call Of(Operation operation) {
    return [operation](IPropertyState& state, const char* name) { return std::to_string((state.*operation)(name)); };
}

template <typename Number> Call OfIndex(Number (IPropertyState::*operation)(int, const char*), int index) {
    return [=](IPropertyState& state, const char* name) { return std::to_string((state.*operation)(index, name)); };
}

struct Question {
    const char* operation;
    Call call;
    const char* name;
    std::string result;
    bool query = false; // returns false for an unknown name, where the others throw
};

using UIntOf = std::uint32_t (IPropertyState::*)(const char*);
using IntOf = std::int32_t (IPropertyState::*)(const char*);

// clang-format off
const Question rows[] = {
    {"GetUIntMin",          Of(&IPropertyState::GetUIntMin),                     "gain",       "1"},
    {"GetUIntMax",          Of(&IPropertyState::GetUIntMax),                     "gain",       "9"},
    {"GetUIntDefault",      Of(&IPropertyState::GetUIntDefault),                 "both",       "4"},
    {"GetUIntValue",        Of(UIntOf(&IPropertyState::GetUIntValue)),           "both",       "6"},
    {"GetUIntValue index",  OfIndex<std::uint32_t>(&IPropertyState::GetUIntValue, 0), "both",  "6"},
    {"GetIntMin",           Of(&IPropertyState::GetIntMin),                      "position.x", "-500"},
    {"GetIntMax",           Of(&IPropertyState::GetIntMax),                      "position.x", "499"},
    {"GetIntDefault",       Of(&IPropertyState::GetIntDefault),                  "both",       "-5"},
    {"GetIntValue",         Of(IntOf(&IPropertyState::GetIntValue)),             "position.x", "0"},
    {"GetIntValue index",   OfIndex<std::int32_t>(&IPropertyState::GetIntValue, 1), "position.x", "-7"},
    {"GetEnabled",          Of(&IPropertyState::GetEnabled),                     "gain",       "1", true},
    {"GetEnabled disabled", Of(&IPropertyState::GetEnabled),                     "disabled",   "0", true},
    {"GetEnabled missing",  Of(&IPropertyState::GetEnabled),                     "missing",    "1", true},
    {"GetImplemented",      Of(&IPropertyState::GetImplemented),                 "disabled",   "1", true},
    {"GetImplemented missing", Of(&IPropertyState::GetImplemented),              "missing",    "0", true},
    {"IsUnsigned",          Of(&IPropertyState::IsUnsigned),                     "gain",       "1", true},
    {"IsUnsigned signed",   Of(&IPropertyState::IsUnsigned),                     "position.x", "0", true},
    {"IsIndexed",           Of(&IPropertyState::IsIndexed),                      "position.x", "1", true},
    {"IsIndexed single",    Of(&IPropertyState::IsIndexed),                      "gain",       "0", true},
    {"IsEnumerated",        Of(&IPropertyState::IsEnumerated),                   "both",       "1", true},
    {"IsEnumerated ranged", Of(&IPropertyState::IsEnumerated),                   "gain",       "0", true},
    {"SetEnabled", [](IPropertyState& state, const char* name) {
         state.SetEnabled(name, false);
         return std::to_string(state.GetEnabled(name));
     }, "gain", "0"},
};
// clang-format on

} // namespace

TEST(PropertyState, AnswersFromTheNamedPropertyAndRefusesUnknownNames) {
    for (const Question& row : rows) {
        SCOPED_TRACE(row.operation);
        TestControl control;
        EXPECT_EQ(row.call(control.State(), row.name), row.result);
        for (const char* const unknown :
             {"gai", "Gain", "gain ", "position.xx", "", "\xFF", endless.c_str(), static_cast<const char*>(nullptr)}) {
            LogCapture capture(log4cxx::Level::getWarn());
            std::string answer;
            const std::string code = CodeOf([&] { answer = row.call(control.State(), unknown); });
            EXPECT_EQ(code, row.query ? "" : "SDK4_ERR_ERROR");
            EXPECT_EQ(answer, row.query ? "0" : "");
            EXPECT_EQ(capture.TakeTexts(), row.query ? Texts{} : Texts{"warn SDK4Exception [X4Error(SDK4_ERR_ERROR)]"});
        }
    }
}

TEST(PropertyState, TheFirstOfANameWinsAndAnIndexChooses) {
    TestControl control;
    EXPECT_EQ(control.GetPropertyParamsByName("position.x"), &control.first);
    EXPECT_EQ(control.GetPropertyParamsByName(1, "position.x"), &control.second);
    EXPECT_EQ(control.GetPropertyParamsByName(2, "position.x"), nullptr);
    EXPECT_EQ(control.GetPropertyParamsByName(0, "gain"), &control.gain) << "not indexed, but found";
    EXPECT_EQ(control.GetPropertyParamsByName(1, "gain"), nullptr);
    EXPECT_EQ(CodeOf([&] { (void)control.State().GetUIntValue(1, "gain"); }), "SDK4_ERR_ERROR");
}

TEST(PropertyState, PassesOnWhatThePropertyRefuses) {
    TestControl control;
    control.State().SetEnabled("gain", false);
    EXPECT_EQ(CodeOf([&] { (void)control.State().GetUIntValue("gain"); }), "SDK4_ERR_DISABLED");
    EXPECT_EQ(control.State().GetUIntMax("gain"), 9u) << "limits need no access";
    control.gain.SetImplemented(false);
    EXPECT_EQ(CodeOf([&] { (void)control.State().GetUIntValue(0, "gain"); }), "SDK4_ERR_NOT_IMPLEMENTED");
}

TEST(PropertyState, LogsEveryEntryOnTheWayOfALookupByNameAlone) {
    TestControl control;
    LogCapture capture;
    (void)control.State().GetIntMin("position.x");
    EXPECT_EQ(capture.TakeTexts(), (Texts{"debug Call", "debug Call", "debug gain", "debug position.x"}));
    (void)control.State().GetIntValue(1, "position.x");
    EXPECT_EQ(capture.TakeTexts(), (Texts{"debug Call", "debug Call"}));
    (void)control.State().IsIndexed(nullptr);
    EXPECT_EQ(capture.TakeTexts(),
              (Texts{"debug Call", "debug Call", "debug gain", "debug position.x", "debug position.x", "debug both",
                     "debug " + longName, "debug disabled", "debug missing"}));
}

TEST(PropertyState, NamesByPositionShareOneBuffer) {
    TestControl control;
    const char* const name = control.GetPropertyNameByIndex(4);
    EXPECT_EQ(name, longName);
    EXPECT_EQ(control.GetPropertyNameByIndex(0), name);
    EXPECT_STREQ(name, "gain");
    EXPECT_EQ(std::string(name, longName.size()), "gain" + std::string(longName.size() - 4, '\0')) << "no trace";
    for (const int outside : {-1, 7, 1000}) {
        EXPECT_EQ(control.GetPropertyNameByIndex(outside), nullptr);
    }
    EXPECT_EQ(CBaseControlHelper().GetPropertyNameByIndex(0), nullptr);
}
