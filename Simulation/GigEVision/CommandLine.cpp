#include "Simulation/GigEVision/CommandLine.h"

#include "Common/Ipv4.h"
#include "Common/Number.h"
#include "Common/Text.h"
#include "Simulation/Cameras.h"

#include <CLI/CLI.hpp>

namespace Simulation::GigEVision {

namespace {

/// Whole numbers, without a description of its own.
CLI::Validator Between(std::uint64_t lowest, std::uint64_t highest) {
    return CLI::Range(lowest, highest).description("");
}

/// A share, checked: CLI11's own range lets pass what is not a number.
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
    const std::uint32_t firstMulticast = 0xE0000000; // from there on are groups and broadcasts
    if (!address || *address == 0 || *address >= firstMulticast) {
        throw UsageError("--address: \"" + text + "\" is not the IPv4 address of one device");
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
                   "Speed of the link in megabytes per second (500); 0: as fast as this machine can")
        ->type_name("MB/S")
        ->group(group)
        ->check(Between(0, fastestLink));
    app.add_flag("--unpaced", options.unpaced, "Send frames one after the other, whatever the frame duration")
        ->group(group);
    app.add_flag("--any-destination", options.anyDestination,
                 "Send the stream where the controller says, not only to the controller's own address")
        ->group(group);
}

} // namespace

std::optional<Options> ParseCommandLine(int argc, char** argv) {
    CLI::App app("A simulated camera as a GigE Vision device on UDP port 3956, until it is interrupted.", "qdv12sim");
    app.set_version_flag("--version", "qdv12sim " QDV12_VERSION);
    app.footer("Models: " + Common::Join(ModelNames()) +
               "\nExit codes: 0 ended by SIGINT or SIGTERM; 2 wrong usage; 3 the address, or a file, cannot be used.");
    Options options;
    std::string address = "127.0.0.1";
    const auto add = [&](const char* name, auto& variable, const char* value, const char* about) {
        return app.add_option(name, variable, about)->type_name(value);
    };
    add("MODEL", options.model, "", "The camera's model, such as Orvik-710C")->required();
    add("--address", address, "ADDRESS", "The address of this machine that the camera uses (127.0.0.1)");
    add("--seed", options.seed, "N", "Select the environment of the camera, and when it is disturbed")
        ->check(Common::CheckSeed);
    add("--state", options.state, "FILE", "Keep the camera in a file between runs")->check(Common::CheckValue);
    add("--serial", options.serial, "TEXT", "Its serial number");
    add("--mac", options.mac, "MAC", "Its MAC address, such as 02:00:12:07:07:11");
    add("--fault", options.faults, "TEXT", "Inject a fault into the camera, such as ignore:gain")
        ->check(Common::CheckValue)
        ->allow_extra_args(false); // else it would take the model for a fault too
    add("--record", options.record, "FILE", "Record both directions to a pcap file")->check(Common::CheckValue);
    AddStream(app, options);
    AddDisturbances(app, options.disturbances, options.stream);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0) {
            throw UsageError(error.what() + std::string(" (qdv12sim --help says more)"));
        }
        app.exit(error);
        return std::nullopt;
    }
    options.address = DeviceAddress(address);
    options.stream.seed = options.seed;
    return options;
}

} // namespace Simulation::GigEVision
