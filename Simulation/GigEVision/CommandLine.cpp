#include "Simulation/GigEVision/CommandLine.h"

#include "Common/CommandLine.h"
#include "Common/Ipv4.h"
#include "Common/Number.h"
#include "Common/Suggestion.h"
#include "Common/Text.h"
#include "Simulation/Cameras.h"
#include "Simulation/FaultKinds.h"

#include <CLI/CLI.hpp>

namespace Simulation::GigEVision {

namespace {

/// A range without a description in the help.
CLI::Validator Between(std::uint64_t lowest, std::uint64_t highest) {
    return CLI::Range(lowest, highest).description("");
}

/// CLI::Range would accept NaN.
CLI::Validator Share() {
    return {[](const std::string& text) {
                double share = -1;
                return CLI::detail::lexical_cast(text, share) && share >= 0 && share <= 1
                           ? std::string()
                           : '"' + text + "\" is not a share between 0 and 1";
            },
            ""};
}

std::uint32_t DeviceAddress(const std::string& text) {
    const auto address = Common::ParseAddress(text);
    const std::uint32_t firstMulticast = 0xE0000000;
    if (!address || *address == 0 || *address >= firstMulticast) {
        throw UsageError("--address: \"" + text + "\" is not a unicast IPv4 address");
    }
    return *address;
}

void AddDisturbances(CLI::App& app, Disturbances& disturbances, StreamOptions& stream) {
    const char* const group = "Disturbances";
    const auto add = [&](const char* name, auto& variable, const char* value, const char* about) {
        return app.add_option(name, variable, about)->type_name(value)->group(group);
    };
    const std::uint64_t longestDelay = 60000;
    const std::uint64_t mostRequests = 1000000000;
    add("--drop", disturbances.drop, "P", "Drop this share of the datagrams, in both directions")->check(Share());
    add("--duplicate", disturbances.duplicate, "P", "Send this share of the acknowledges twice")->check(Share());
    add("--nack", disturbances.nack, "P", "Refuse this share of the requests as busy")->check(Share());
    const auto addDelay = [&](const char* name, std::chrono::milliseconds& variable, const char* about) {
        const auto set = [&variable](const std::uint64_t& delay) { variable = std::chrono::milliseconds(delay); };
        app.add_option_function<std::uint64_t>(name, set, about)
            ->type_name("MS")
            ->group(group)
            ->check(Between(0, longestDelay));
    };
    addDelay("--delay", disturbances.delay, "Delay each acknowledge by up to MS milliseconds");
    add("--stream-drop", stream.drop, "P", "Drop this share of the stream's packets")->check(Share());
    addDelay("--stream-delay", stream.delay, "Delay each packet of the stream by up to MS milliseconds");
    add("--reboot-after", disturbances.rebootAfter, "N", "Restart the camera once, after N requests; takes 5 seconds")
        ->check(Between(1, mostRequests));
}

void AddStream(CLI::App& app, Options& options) {
    const char* const group = "Stream";
    const std::uint64_t fastestLink = 1000000;
    app.add_option("--link", options.stream.megabytesPerSecond,
                   "Speed of the link in megabytes per second (125); 0: as fast as this machine can")
        ->type_name("MB/S")
        ->group(group)
        ->check(Between(0, fastestLink));
    app.add_flag("--unpaced", options.unpaced,
                 "Send each frame as soon as the last one is sent, whatever the frame duration")
        ->group(group);
    app.add_flag("--any-destination", options.anyDestination,
                 "Send the stream to any address that the controller sets, not only to its own")
        ->group(group);
}

std::string Describe(const CLI::App& app, const CLI::ParseError& error) {
    std::string text = error.what();
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        return text.substr(0, text.find(':')) +
               (text.ends_with("missing") ? ": a value is required" : " is given twice");
    }
    const auto unknown = app.remaining();
    if (unknown.empty()) {
        return text;
    }
    if (!unknown.front().starts_with('-')) {
        return "unexpected argument \"" + unknown.front() + '"';
    }
    std::vector<std::string> names;
    for (const CLI::Option* option : app.get_options([](const CLI::Option* each) { return each->nonpositional(); })) {
        names.push_back(option->get_name());
    }
    return "unknown option \"" + unknown.front() + '"' + Common::Suggestion(unknown.front(), names);
}

} // namespace

namespace {

/// Prints what may be at the end of the line: options, their values, models.
void PrintCompletions(const CLI::App& app, const std::string& line, const std::string& replaced) {
    auto words = Common::WordsToCursor(line, Common::Special::Backslash);
    words.erase(words.begin()); // the program
    const auto options = Common::OptionsIn(app);
    const auto cursor = Common::FindCursor(words, options);
    const std::string model = cursor.operands.empty() ? "" : cursor.operands.front();
    Common::Candidates candidates;
    if (cursor.option != nullptr) {
        candidates = Common::ValuesOf(*cursor.option, ModelNames());
        if (cursor.option->name == "--fault") {
            candidates.words = FaultsFor(cursor.word, model);
        }
    } else if (cursor.word.starts_with("--")) {
        candidates.words = Common::NamesOf(options);
    } else if (model.empty()) {
        candidates.words = ModelNames();
    }
    Common::PrintCandidates(Common::Matching(candidates, cursor, replaced));
}

} // namespace

std::optional<Options> ParseCommandLine(int argc, char** argv) {
    CLI::App app("Simulates a camera as a GigE Vision device on UDP port 3956 until interrupted.", "qdv12sim");
    app.formatter(std::make_shared<Common::HelpFormatter>());
    app.set_version_flag("--version", "qdv12sim " QDV12_VERSION);
    app.footer(DescribeFaultKinds() + "\nModels: " + Common::Join(ModelNames()) +
               "\n\nExit codes: 0 ended by SIGINT or SIGTERM; 2 wrong usage; 3 the address or a file cannot be used.");
    Options options;
    std::string address = "127.0.0.1";
    const auto add = [&](const char* name, auto& variable, const char* value, const char* about) {
        return app.add_option(name, variable, about)->type_name(value);
    };
    add("MODEL", options.model, "", "The camera's model, such as Orvik-710C")->required();
    add("--address", address, "ADDRESS", "The camera's address, one of this machine (default: 127.0.0.1)");
    add("--seed", options.seed, "N", "Select the camera's environment and the sequence of disturbances")
        ->check(Common::CheckSeed);
    add("--state", options.state, "FILE", "File that keeps the state of the camera between runs")
        ->check(Common::CheckValue);
    add("--serial", options.serial, "TEXT", "The camera's serial number");
    add("--mac", options.mac, "MAC", "The camera's MAC address, such as 02:00:12:07:07:11");
    add("--fault", options.faults, "TEXT", "Inject a fault into the camera, such as ignore:gain")
        ->check(Common::CheckValue)
        ->allow_extra_args(false); // else it would take the model as another fault
    add("--record", options.record, "FILE", "Record the datagrams of both directions to a pcap file")
        ->check(Common::CheckValue);
    AddStream(app, options);
    AddDisturbances(app, options.disturbances, options.stream);
    if (argc == 4 && argv[1] == std::string_view(Common::completionCommand)) {
        PrintCompletions(app, argv[2], argv[3]);
        return std::nullopt;
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0) {
            throw UsageError(Describe(app, error) + " (see qdv12sim --help)");
        }
        app.exit(error);
        return std::nullopt;
    }
    options.address = DeviceAddress(address);
    options.stream.seed = options.seed;
    return options;
}

} // namespace Simulation::GigEVision
