#include "HostProcess.h"

#include <Channel/Discovery.h>
#include <Channel/GigEConnection.h>
#include <Errors.h>
#include <Positionals.h>

#include <initializer_list>

namespace Scenario {

namespace {

using Given = Host::Invocation::Given;

/// What each parameter is given when MODEL may be left out, of texts that a parser put into their places in order.
Given GivenTo(std::initializer_list<const char*> parameters, std::vector<std::string> texts) {
    Host::Command command{"", "", {}, nullptr};
    Given given;
    for (const char* name : parameters) {
        command.parameters.push_back({name, ""});
        const bool several = std::string_view(name).find("...") != std::string_view::npos;
        if (*name != '-' && !texts.empty()) {
            const auto end = several ? texts.end() : texts.begin() + 1;
            given[name].assign(texts.begin(), end);
            texts.erase(texts.begin(), end);
        }
    }
    Host::LeaveModelOut(command, given);
    return given;
}

template <typename Call> std::string Refusal(const Call& call) {
    try {
        call();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "none";
}

} // namespace

TEST(HostCommandLine, ModelMayBeLeftOutWhereTheCameraSaysIt) {
    const auto info = {"MODEL", "--all"};
    EXPECT_EQ(GivenTo(info, {}), Given{});
    EXPECT_EQ(GivenTo(info, {"anything"}), (Given{{"MODEL", {"anything"}}}));
    const auto set = {"MODEL", "NAME=VALUE..."};
    const std::vector<std::string> two = {"gain=1", "agc=off"};
    EXPECT_EQ(GivenTo(set, two), (Given{{"NAME=VALUE...", two}}));
    EXPECT_EQ(GivenTo(set, {"Orvik-710C", "gain=1", "agc=off"}),
              (Given{{"MODEL", {"Orvik-710C"}}, {"NAME=VALUE...", two}}));
    EXPECT_EQ(GivenTo(set, {"username=My Camera"}), (Given{{"NAME=VALUE...", {"username=My Camera"}}}));
    const auto get = {"MODEL", "NAME..."};
    EXPECT_EQ(GivenTo(get, {"gain", "iomode.3"}), (Given{{"NAME...", {"gain", "iomode.3"}}}));
    EXPECT_EQ(GivenTo(get, {"sollux g", "gain"}), (Given{{"MODEL", {"sollux g"}}, {"NAME...", {"gain"}}}));
    EXPECT_EQ(GivenTo(get, {"Gain"}), (Given{{"NAME...", {"Gain"}}})); // of which the camera may say what is meant
    EXPECT_EQ(Refusal([&] { GivenTo(get, {}); }), "NAME is required");
    const auto watch = {"MODEL", "[NAME=VALUE...]", "--seconds N"};
    EXPECT_EQ(GivenTo(watch, {"Cerix-MV7"}), (Given{{"MODEL", {"Cerix-MV7"}}}));
    EXPECT_EQ(GivenTo(watch, {"gain=1"}), (Given{{"[NAME=VALUE...]", {"gain=1"}}}));
    const auto save = {"MODEL", "FILE"};
    EXPECT_EQ(GivenTo(save, {"Bench.json"}), (Given{{"FILE", {"Bench.json"}}}));
    EXPECT_EQ(GivenTo(save, {"Cerix-MV7", "a.json"}), (Given{{"MODEL", {"Cerix-MV7"}}, {"FILE", {"a.json"}}}));
    EXPECT_EQ(Refusal([&] { GivenTo(save, {}); }), "FILE is required");
    const auto diff = {"A", "[B]", "--live MODEL"};
    EXPECT_EQ(GivenTo(diff, {"a.json"}), (Given{{"A", {"a.json"}}}));
    EXPECT_EQ(GivenTo(diff, {"a.json", "b.json"}), (Given{{"A", {"a.json"}}, {"[B]", {"b.json"}}}));
}

TEST(HostCommandLine, TellsWhatACameraOnTheNetworkIsGivenAs) {
    for (const char* camera : {"192.168.1.10", "gige:", "gige:door", "gige:192.168.1", "u3v:192.168.1.10"}) {
        const Outcome run = RunHost("info --camera " + std::string(camera));
        EXPECT_EQ(run.code, 2) << camera;
        EXPECT_EQ(run.err, "qdv12host: --camera: \"" + std::string(camera) +
                               "\" is no camera; gige:ADDRESS is wanted, such as gige:192.168.1.10 (qdv12host --help "
                               "says more)\n");
    }
    EXPECT_EQ(RunHost("info Orvik-710C --force-model").err,
              "qdv12host: --force-model requires --camera (qdv12host --help says more)\n");
    EXPECT_EQ(RunHost("models --camera gige:192.0.2.1").code, 0); // needs none
}

TEST(HostCommandLine, TakesSeedsOf64Bits) {
    EXPECT_EQ(RunHost("get Orvik-710C gain --seed 18446744073709551615").code, 0);
    for (const char* seed : {"-1", "18446744073709551616", "1.5"}) {
        const Outcome run = RunHost("get Orvik-710C gain --seed " + std::string(seed));
        EXPECT_EQ(run.code, 2) << seed;
        EXPECT_EQ(run.err, "qdv12host: --seed: \"" + std::string(seed) +
                               "\" is no seed; a number of 0 or more is wanted (qdv12host --help says more)\n");
    }
}

// Of the two, this program was linked with what is compiled where Aravis is missing.
TEST(HostCommandLine, WithoutAravisItSaysWhatIsMissing) {
    for (const std::string& said :
         {Refusal([] { (void)Host::ConnectGigE("127.0.0.1"); }), Refusal([] { (void)Host::DiscoverCameras(); })}) {
        EXPECT_TRUE(Has(said, "built without Aravis"));
        EXPECT_TRUE(Has(said, "libaravis-dev and libusb-1.0-0-dev"));
    }
}

} // namespace Scenario
