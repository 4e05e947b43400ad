// A misbehaving host: numbers out of range, texts of any length, null, calls in any order and reentrant calls. Each is
// refused with the right code before the camera is accessed, or is harmless.

#include "Tests/Boundary/Rows.h"
#include "Tests/Boundary/WildCalls.h"
#include "Tests/Support/Observed.h"

#include <climits>
#include <random>
#include <set>
#include <stdexcept>

using namespace SDK4;
using namespace SDK4::Control;

namespace Test {

namespace {

/// A text in a buffer of exactly its size.
std::vector<char> Exactly(std::size_t length, char character = 'x') {
    std::vector<char> text(length, character);
    text.push_back('\0');
    return text;
}

} // namespace

/// Tests both families, cached and uncached.
class BadHostTest : public CameraTest, public testing::WithParamInterface<std::pair<const char*, int>> {
protected:
    [[nodiscard]] bool IsM2VX() const { return state.IsM2VX(); }

    Camera Opened() {
        port = {};
        return Open(state, GetParam().second);
    }

    /// The outcome is a result or an error code of the library, and a refused value is not written.
    void ExpectDecent(const Observation& observed) {
        EXPECT_NE(observed.outcome, "unknown error");
        for (const std::string& refusal : {invalid, notImplemented, locked, cantRead}) {
            if (observed.outcome == refusal) {
                EXPECT_EQ(observed.accesses.find('='), std::string::npos) << observed;
            }
        }
    }

    void ExpectDecent(const Camera& camera, const Wild& operation, std::uint32_t first, const std::string& refusal);

    /// The caches of an Orvik camera hold the camera's values. Properties of M2VX may differ: a disabled one is not
    /// updated.
    void ExpectCoherent(const Camera& camera) {
        if (IsM2VX()) {
            return;
        }
        const Camera fresh(plugin, state.model, &port, GetParam().second);
        EXPECT_EQ(Outcomes(camera, CachedGetters(false)), Outcomes(fresh, CachedGetters(false)));
    }

    const State state{{}, GetParam().first};
};

/// Calls with every odd word for the arguments after the first.
void BadHostTest::ExpectDecent(const Camera& camera, const Wild& operation, std::uint32_t first,
                               const std::string& refusal) {
    for (const std::uint32_t rest : oddWords) {
        SCOPED_TRACE(std::to_string(first) + ", " + std::to_string(rest));
        const Observation observed = Observe(camera, operation.with(first, rest));
        ExpectDecent(observed);
        if (!refusal.empty()) {
            EXPECT_EQ(observed, (Observation{refusal, ""}));
        }
        if (operation.arguments < 2) {
            return;
        }
    }
}

TEST_P(BadHostTest, NumbersFarOutsideAreRefusedOrHarmless) {
    const Camera camera = Opened();
    for (const Wild& operation : WildCalls(*camera.Object(), IsM2VX())) {
        SCOPED_TRACE(operation.name);
        const auto [instances, refusal] = RefusalOf(operation.name);
        std::set<std::uint32_t> firsts{std::begin(oddWords), std::end(oddWords)};
        firsts.insert({instances, instances - 1});
        for (const std::uint32_t first : firsts) {
            ExpectDecent(camera, operation, first, first >= instances ? refusal : "");
        }
        ExpectCoherent(camera);
    }
}

TEST_P(BadHostTest, CallsInAnyOrderAreHarmless) {
    std::vector<Call> calls;
    for (const Operation& row : Operations()) {
        if (row.state.IsM2VX() != IsM2VX() || IsOf("ITrigger", row)) { // waits for the readout time
            continue;
        }
        calls.push_back(row.call);
        if (row.state.before) {
            calls.push_back(row.state.before);
        }
    }
    const Camera camera = Opened();
    for (unsigned int seed = 1; seed <= 5; ++seed) {
        SCOPED_TRACE(seed);
        std::shuffle(calls.begin(), calls.end(), std::mt19937(seed));
        for (const Call& call : calls) {
            EXPECT_NE(Outcome(call, *camera.Object()), "unknown error");
        }
        ExpectCoherent(camera);
    }
}

TEST_P(BadHostTest, APortMayCallBackIntoTheObject) {
    for (const Operation& row : Operations()) {
        if (row.state.IsM2VX() != IsM2VX() || row.accesses.firstUncached.empty()) {
            continue;
        }
        SCOPED_TRACE(row.name);
        port = {};
        const Camera camera = Open(row.state, GetParam().second);
        port.FailAt(1, [&] { EXPECT_NE(Outcome(row.call, *camera.Object()), "unknown error"); });
        EXPECT_NE(Outcome(row.call, *camera.Object()), "unknown error");
        ExpectCoherent(camera);
    }
}

TEST_P(BadHostTest, TextsOfAnyLengthAreCutOrIgnored) {
    const Camera camera = Opened();
    auto& network = camera.As<IGigECamera>();
    for (const std::size_t length : {0u, 1u, 14u, 15u, 16u, 17u, 100000u}) {
        network.SetUserDefinedName(Exactly(length).data());
        Bytes expected(std::min<std::size_t>(length, 15), 'x');
        expected.resize(16);
        EXPECT_EQ(port.Get(0x00E8), expected) << length;
    }
    port.TakeLog();
    const auto digits = Exactly(100000, '1'), dots = Exactly(100000, '.');
    for (const char* text : {"", ".", "1", "1.2.3", "1.2.3.4.5", "99999999999999999999.1.1.1", "-1.-1.-1.-1", "%n%s",
                             digits.data(), dots.data()}) {
        for (const int position : {0, 1, 2}) {
            const auto at = [&](int i) { return i == position ? text : "255.255.255.0"; };
            const Observation observed = Observe(camera, On(&IGigECamera::EnablePersistentIP, at(0), at(1), at(2)));
            EXPECT_EQ(observed.outcome, done);
            EXPECT_TRUE(observed.accesses.starts_with("r 0010; r 0024; r 0034")) << observed.accesses;
        }
    }
}

TEST_P(BadHostTest, ModelNamesOfAnyLengthAndIndexesOfAnyValueOpenOrDoNot) {
    const std::string name = state.model;
    for (std::size_t length = 0; length < name.size(); ++length) {
        EXPECT_EQ(plugin.createObject(name.substr(0, length).c_str(), &port, GetParam().second), nullptr) << length;
    }
    for (const std::string& longer : {name + " ", name + std::string(100000, 'x'), std::string(100000, 'C')}) {
        EXPECT_EQ(plugin.createObject(longer.c_str(), &port, GetParam().second), nullptr);
    }
    EXPECT_EQ(port.TakeLog(), "");
    for (const int index : {INT_MIN, -1, INT_MAX}) {
        const Camera camera(plugin, state.model, &port, index);
        EXPECT_STREQ(camera.As<IControl>().GetClassID(), IsM2VX() ? "M2VX" : "Orvik") << index;
    }
}

TEST_P(BadHostTest, ObjectsOnOnePortGoInAnyOrder) {
    Prepare(port, state);
    std::vector<Camera> cameras;
    cameras.reserve(8);
    for (int i = 0; i < 8; ++i) {
        cameras.emplace_back(plugin, i % 2 == 0 ? state.model : "Orvik-390M", &port, GetParam().second);
    }
    for (std::mt19937 random(1); !cameras.empty();) {
        for (const Camera& camera : cameras) {
            EXPECT_EQ(camera.As<IGigECamera>().GetPacketSize(), 1u);
        }
        cameras.erase(cameras.begin() + static_cast<std::ptrdiff_t>(random() % cameras.size()));
    }
}

INSTANTIATE_TEST_SUITE_P(, BadHostTest,
                         testing::Values(std::pair{"Orvik-31200M", 0}, std::pair{"Orvik-31200C", 2},
                                         std::pair{State::m2vxModel, 3}, std::pair{State::m2vxModel, 0}),
                         [](const auto& opening) {
                             return std::string(opening.param.first == State::m2vxModel ? "M2VX" : "Orvik") +
                                    std::to_string(opening.param.second);
                         });

class BadPropertyHostTest : public CameraTest {
protected:
    Camera camera = Open(OnM2VX());
    IPropertyState& properties = camera.As<IPropertyState>();
};

TEST_F(BadPropertyHostTest, NumbersThatNoPropertyHasAreRefused) {
    for (const int number : {INT_MIN, -1, 2, INT_MAX}) {
        EXPECT_EQ(CodeOf([&] { properties.GetUIntValue(number, "abcthreshold"); }), "SDK4_ERR_ERROR") << number;
    }
    for (const int number : {INT_MIN, -1, 1104, INT_MAX}) {
        EXPECT_EQ(camera.As<IPropertyList>().GetPropertyName(number), nullptr) << number;
    }
    EXPECT_EQ(port.TakeLog(), "");
}

TEST_F(BadPropertyHostTest, ObserversMayComeAndGoAsTheyLike) {
    auto& gain = camera.As<M2VX::IGain>();
    Observed first, second;
    properties.RemoveCallback(Observed::Notify); // none is registered
    properties.AddCallback(Observed::Notify, &first);
    properties.AddCallback(Observed::Notify, &first);
    gain.SetGain(1);
    EXPECT_EQ(first.Take(), Texts{"gain value"}) << "once";
    properties.AddCallback(Observed::Notify, &second);
    gain.SetGain(2);
    EXPECT_EQ(first.Take(), Texts{});
    EXPECT_EQ(second.Take(), Texts{"gain value"});
    properties.AddCallback(nullptr, &second);
    gain.SetGain(3);
    EXPECT_EQ(second.Take(), Texts{});
    properties.RemoveCallback(nullptr);
    properties.RemoveCallback(nullptr);

    struct Relay { // passes the notification on
        static void Notify(const char* name, const char* attribute, void* context) {
            auto& self = *static_cast<Relay*>(context);
            self.properties.AddCallback(Observed::Notify, &self.next);
            self.properties.SetEnabled(name, false);
            self.told = attribute;
        }
        IPropertyState& properties;
        Observed& next;
        std::string told{};
    } relay{properties, first};
    properties.AddCallback(Relay::Notify, &relay);
    gain.SetGain(4);
    EXPECT_EQ(relay.told, "value");
    EXPECT_EQ(first.Take(), Texts{"gain enabled"});
}

TEST_F(CameraTest, ARegistryThatThrowsIsAskedAgain) {
    struct Full final : IModelRegistry {
        void RegisterModel(const char*, const char*) override {
            if (++models == 5) {
                throw std::length_error("no more room");
            }
        }
        int models = 0;
    } registry;
    EXPECT_THROW(plugin.initLibrary(static_cast<IModelRegistry*>(&registry)), std::length_error);
    EXPECT_EQ(registry.models, 5);
    plugin.initLibrary(static_cast<IModelRegistry*>(&registry));
    EXPECT_EQ(registry.models, 18);
}

} // namespace Test
