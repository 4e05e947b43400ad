#include "Tests/Scenario/HostProcess.h"

#include "Host/Channel/Discovery.h"
#include "Host/Channel/GigEConnection.h"
#include "Host/Errors.h"
#include "Host/Positionals.h"

#include <initializer_list>

namespace Scenario {

namespace {

using Given = Host::Invocation::Given;

/// What each parameter of a command is given, of texts that a parser put into their places in order.
Given GivenTo(std::initializer_list<const char*> parameters, std::vector<std::string> texts,
              Host::CameraFrom from = Host::CameraFrom::Network) {
    Host::Command command{"do", "", {}, nullptr};
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
    Host::AssignPositionals(command, from, given);
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
    EXPECT_EQ(GivenTo(info, {}, Host::CameraFrom::Shell), Given{});
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
    EXPECT_EQ(Refusal([&] { GivenTo(get, {}); }), "NAME is required; usage: qdv12host do [MODEL] NAME...");
    EXPECT_EQ(Refusal([&] { GivenTo(get, {}, Host::CameraFrom::Shell); }), "NAME is required; usage: do NAME...");
    const auto watch = {"MODEL", "[NAME=VALUE...]", "--seconds N"};
    EXPECT_EQ(GivenTo(watch, {"Cerix-MV7"}), (Given{{"MODEL", {"Cerix-MV7"}}}));
    EXPECT_EQ(GivenTo(watch, {"gain=1"}), (Given{{"[NAME=VALUE...]", {"gain=1"}}}));
    const auto save = {"MODEL", "FILE"};
    EXPECT_EQ(GivenTo(save, {"Bench.json"}), (Given{{"FILE", {"Bench.json"}}}));
    EXPECT_EQ(GivenTo(save, {"Cerix-MV7", "a.json"}), (Given{{"MODEL", {"Cerix-MV7"}}, {"FILE", {"a.json"}}}));
    EXPECT_TRUE(Refusal([&] { GivenTo(save, {}); }).starts_with("FILE is required"));
    const auto diff = {"A", "[B]", "--live MODEL"};
    EXPECT_EQ(GivenTo(diff, {"a.json"}), (Given{{"A", {"a.json"}}}));
    EXPECT_EQ(GivenTo(diff, {"a.json", "b.json"}), (Given{{"A", {"a.json"}}, {"[B]", {"b.json"}}}));
}

TEST(HostCommandLine, TellsWhatIsMissing) {
    const std::string more = " (qdv12host --help says more)\n";
    const auto noCamera = [&](const std::string& usage) {
        return "qdv12host: no camera: MODEL or --camera gige:ADDRESS is required; usage: qdv12host " + usage + more;
    };
    const std::pair<std::string, std::string> cases[] = {
        {"set gain=3", noCamera("set MODEL NAME=VALUE...")},
        {"set gain=3 agc=1", noCamera("set MODEL NAME=VALUE...")},
        {"get gain", noCamera("get MODEL NAME...")},
        {"get overlayshow.1 lenscontrol", noCamera("get MODEL NAME...")},
        {"watch gain=3", noCamera("watch MODEL [NAME=VALUE...]")},
        {"save bench.json", noCamera("save MODEL FILE")},
        {"info", noCamera("info MODEL")},
        {"get Orvik-710C", "qdv12host: NAME is required; usage: qdv12host get MODEL NAME..." + more},
        {"save 'Sollux G'", "qdv12host: FILE is required; usage: qdv12host save MODEL FILE" + more},
        {"diff", "qdv12host: A is required; usage: qdv12host diff A [B]" + more},
        {"--json", "qdv12host: COMMAND is required" + more},
        {"get --jsn", "qdv12host: unknown option \"--jsn\"; did you mean \"--json\"?" + more},
    };
    for (const auto& [arguments, said] : cases) {
        const Outcome run = RunHost(arguments);
        EXPECT_EQ(run.code, 2) << arguments;
        EXPECT_EQ(run.err, said) << arguments;
    }
    EXPECT_EQ(RunHost("get orvik-710c gain").err,
              "qdv12host: unknown model \"orvik-710c\"; did you mean \"Orvik-710C\"?\n");
}

TEST(HostCommandLine, KnowsHelpAsACommand) {
    const Outcome all = RunHost("help");
    EXPECT_EQ(all.code, 0);
    EXPECT_EQ(all.out, RunHost("--help").out);
    const Outcome set = RunHost("help set");
    EXPECT_EQ(set.code, 0);
    EXPECT_EQ(set.out, RunHost("set --help").out);
    EXPECT_TRUE(Has(set.out, "Usage: qdv12host set [OPTIONS] MODEL NAME=VALUE...\n"));
    const Outcome unknown = RunHost("help sett");
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(unknown.err, "qdv12host: unknown command \"sett\"; did you mean \"set\"? (qdv12host --help says more)\n");
}

TEST(HostCommandLine, RemarksStandBehindCommandsOfAShell) {
    const std::string script = TemporaryFile("script");
    std::ofstream(script) << "# all\n  # more\nset gain=3 # as on line 2\nset username='# 1' #it's\nset username=#2\n"
                          << "get gain#\nhelp get # it\n";
    const Outcome run = RunHost("shell Cerix-MV7", QDV12_HOST, script);
    EXPECT_TRUE(run.out.starts_with("gain=3\nusername=# 1\nusername=#2\nPrint what functions hold\nUsage: get "))
        << run.out;
    EXPECT_EQ(run.err, "qdv12host: unknown function \"gain#\"; did you mean \"gain\"?\n");
    std::filesystem::remove(script);
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
