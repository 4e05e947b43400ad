#include "Simulation/GigEVision/CommandLine.h"

#include "Common/Ipv4.h"
#include "Common/Number.h"
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

std::string Listed(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        list += (list.empty() ? "" : ", ") + name;
    }
    return list;
}

std::uint32_t DeviceAddress(const std::string& text) {
    const auto address = Common::ParseAddress(text);
    const std::uint32_t firstMulticast = 0xE0000000; // from there on are groups and broadcasts
    if (!address || *address == 0 || *address >= firstMulticast) {
        throw UsageError("--address: \"" + text + "\" is not the IPv4 address of one device");
    }
    return *address;
}

void AddDisturbances(CLI::App& app, Disturbances& disturbances, std::uint64_t& delay, std::uint64_t& reboot) {
    const char* const group = "What goes wrong";
    const std::uint64_t longestDelay = 60000;
    const std::uint64_t mostRequests = 1000000000;
    app.add_option("--drop", disturbances.drop, "Loses this share of the datagrams, in either direction")
        ->check(Share())
        ->type_name("P")
        ->group(group);
    app.add_option("--duplicate", disturbances.duplicate, "Sends this share of the acknowledges twice")
        ->check(Share())
        ->type_name("P")
        ->group(group);
    app.add_option("--nack", disturbances.nack, "Refuses this share of the requests as busy")
        ->check(Share())
        ->type_name("P")
        ->group(group);
    app.add_option("--delay", delay, "Holds each acknowledge back for up to so many milliseconds")
        ->check(Between(0, longestDelay))
        ->type_name("MS")
        ->group(group);
    app.add_option("--reboot-after", reboot, "Starts the camera anew, once, after so many requests; takes 5 seconds")
        ->check(Between(1, mostRequests))
        ->type_name("N")
        ->group(group);
}

} // namespace

std::optional<Options> ParseCommandLine(int argc, char** argv) {
    CLI::App app("A simulated camera as a GigE Vision device on UDP port 3956, until it is interrupted.", "qdv12sim");
    app.set_version_flag("--version", "qdv12sim " QDV12_VERSION);
    app.footer("Models: " + Listed(ModelNames()) +
               "\nExit codes: 0 ended by SIGINT or SIGTERM; 2 wrong usage; 3 the address, or a file, cannot be used.");
    Options options;
    std::string address = "127.0.0.1";
    std::uint64_t delay = 0;
    std::uint64_t reboot = 0;
    app.add_option("MODEL", options.model, "The camera's model, such as Orvik-710C")->type_name("")->required();
    app.add_option("--address", address, "The address of this machine that the camera takes (127.0.0.1)")
        ->type_name("ADDRESS");
    app.add_option("--seed", options.seed, "Chooses the world around the camera, and what goes wrong when")
        ->check(Common::SeedFault)
        ->type_name("N");
    app.add_option("--state", options.state, "Keeps the camera in a file between two runs")->type_name("FILE");
    app.add_option("--serial", options.serial, "Its serial number, to tell it from others of its model")
        ->type_name("TEXT");
    app.add_option("--mac", options.mac, "Its MAC address, such as 02:00:12:07:07:11")->type_name("MAC");
    app.add_option("--fault", options.faults, "Plants a fault in the camera, such as ignore:gain")
        ->type_name("TEXT")
        ->allow_extra_args(false); // else it would take the model for a fault too
    app.add_option("--record", options.record, "Writes what is received and sent to a pcap file")->type_name("FILE");
    AddDisturbances(app, options.disturbances, delay, reboot);
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
    options.disturbances.delay = std::chrono::milliseconds(delay);
    if (reboot != 0) {
        options.disturbances.rebootAfter = reboot;
    }
    return options;
}

} // namespace Simulation::GigEVision
