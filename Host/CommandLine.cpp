#include "Host/CommandLine.h"

#include "Host/Channel/Datagrams.h"
#include "Host/Positionals.h"
#include "Host/Trace.h"
#include "Simulation/Suggestion.h"

#include "Simulation/Seed.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace Host {

namespace {

/// What CLI11 filled in for the parameters of a command.
struct Filled {
    CLI::App* app;
    const Command* command;
    std::vector<std::pair<std::string, CLI::Option*>> options; ///< by the parameter's name
};

CLI::Option* AddParameter(CLI::App& app, const Parameter& parameter, CameraFrom camera) {
    const std::string name = parameter.name;
    if (!IsPositional(parameter)) {
        const std::size_t blank = name.find(' ');
        return blank == std::string::npos
                   ? app.add_flag(name, parameter.about)
                   : app.add_option(name.substr(0, blank), parameter.about)->type_name(name.substr(blank + 1));
    }
    const bool required = !name.starts_with('[') && camera != CameraFrom::Network;
    const bool several = name.find("...") != std::string::npos;
    CLI::Option* const option = app.add_option(BareName(parameter), parameter.about)->type_name("")->required(required);
    return several ? option->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args() : option;
}

Filled AddCommand(CLI::App& app, const Command& command, CameraFrom camera) {
    Filled filled{app.add_subcommand(command.name, command.about), &command, {}};
    for (const Parameter& parameter : command.parameters) {
        if (camera != CameraFrom::Shell || parameter.name != std::string_view(modelParameter)) {
            filled.options.emplace_back(parameter.name, AddParameter(*filled.app, parameter, camera));
        }
    }
    return filled;
}

constexpr const char* cameraOption = "--camera";

/// Whether a camera on the network is asked for, which changes what else has to be given.
bool NamesCamera(const std::vector<std::string>& arguments) {
    return std::any_of(arguments.begin(), arguments.end(), [](const std::string& argument) {
        return argument == cameraOption || argument.starts_with(std::string(cameraOption) + "=");
    });
}

std::string AddressOf(const std::string& text) {
    const std::string form = "gige:";
    std::string address = text.starts_with(form) ? text.substr(form.size()) : "";
    if (!IsAddress(address)) {
        throw CLI::ValidationError(cameraOption, '"' + text +
                                                     "\" is no camera; gige:ADDRESS is wanted, such as "
                                                     "gige:192.168.1.10");
    }
    return address;
}

void AddCommonOptions(CLI::App& app, Options& options, bool& trace) {
    app.add_option("--plugin", options.plugin, "The plug-in to load (default: the installed one, else the built one)")
        ->check([](const std::string& path) { return path.empty() ? "a path is required" : ""; })
        ->type_name("PATH");
    app.add_option("--index", options.camera.index,
                   "Camera index; with 2, the default, every value is read from the camera each time")
        ->type_name("N");
    app.add_flag("--trace", trace, "Show each port access on standard error");
    app.add_option("--log", options.logLevel, "What log4cxx writes to standard error")
        ->transform(CLI::IsMember({"off", "error", "warn", "info", "debug"}, CLI::ignore_case))
        ->type_name("LEVEL");
    app.add_option("--config", options.logConfig, "A configuration file for log4cxx")->type_name("FILE");
    auto* const camera =
        app.add_option_function<std::string>(
               cameraOption, [&](const std::string& text) { options.camera.address = AddressOf(text); },
               "Drives a camera on the network, instead of a simulated one; MODEL may then be left "
               "out (not for check and models, which need no camera)")
            ->type_name("gige:ADDRESS");
    app.add_flag("--force-model", options.camera.forceModel,
                 "Drives the camera on the network as a MODEL, whatever it calls itself")
        ->needs(camera);
    auto& simulation = options.camera.simulation;
    app.add_option("--seed", simulation.seed, "Chooses the world around the simulated camera")
        ->check(Simulation::SeedFault)
        ->type_name("N")
        ->excludes(camera);
    app.add_option("--state", simulation.state, "Keeps the simulated camera in a file between two runs")
        ->type_name("FILE")
        ->excludes(camera);
    app.add_option("--fault", simulation.faults, "Plants a fault in the simulated camera, such as ignore:gain")
        ->type_name("TEXT")
        ->allow_extra_args(false) // else it would take the model for a fault too
        ->excludes(camera);
}

/// Takes over what was given for the one command that was named.
void TakeGiven(const std::vector<Filled>& commands, Request& request) {
    for (const Filled& filled : commands) {
        if (!filled.app->parsed()) {
            continue;
        }
        request.command = filled.command;
        for (const auto& [name, option] : filled.options) {
            if (option->count() != 0) {
                request.given[name] = option->results();
            }
        }
    }
}

std::vector<std::string> OptionNames(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::Option* option : app.get_options()) {
        names.push_back(option->get_name());
    }
    return names;
}

std::string DescribeUnknownCommand(const CLI::App& app, const std::string& name) {
    std::vector<std::string> names;
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        names.push_back(command->get_name());
    }
    return "unknown command \"" + name + '"' + Simulation::Suggestion(name, names);
}

/// What is wrong, in words; of what nobody knows, the first, and what may have been meant.
std::string Describe(CLI::App& app, const CLI::ParseError& error) {
    const auto unknown = app.remaining(true);
    const auto parsed = app.get_subcommands();
    if (unknown.empty()) {
        const bool noCommand = parsed.empty() && dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
        return noCommand ? "COMMAND is required" : error.what();
    }
    const std::string quoted = " \"" + unknown.front() + '"';
    if (unknown.front().starts_with('-')) {
        auto names = OptionNames(app);
        const auto more = parsed.empty() ? std::vector<std::string>() : OptionNames(*parsed.front());
        names.insert(names.end(), more.begin(), more.end());
        return "unknown option" + quoted + Simulation::Suggestion(unknown.front(), names);
    }
    return parsed.empty() ? DescribeUnknownCommand(app, unknown.front()) : quoted.substr(1) + " was not expected";
}

/// Whether the parser found too few texts for the parameters of a command, but nothing else.
bool LacksPositionals(const CLI::App& app, const CLI::ParseError& error) {
    return dynamic_cast<const CLI::RequiredError*>(&error) != nullptr && app.remaining(true).empty() &&
           !app.get_subcommands().empty();
}

/// Prints what --help prints, of a command or of them all.
/// @throws UsageError for what is no command
void PrintHelp(const CLI::App& app, const std::string& name) {
    if (name.empty()) {
        std::cout << app.get_formatter()->make_help(&app, app.get_name(), CLI::AppFormatMode::Normal);
        return;
    }
    const auto found = app.get_subcommands([&](const CLI::App* command) { return command->get_name() == name; });
    if (found.empty()) {
        throw UsageError(DescribeUnknownCommand(app, name));
    }
    std::cout << found.front()->help(app.get_name());
}

CameraFrom SourceOf(const std::vector<std::string>& arguments, bool inShell) {
    return inShell ? CameraFrom::Shell : NamesCamera(arguments) ? CameraFrom::Network : CameraFrom::Model;
}

/// See Positionals.h.
void Assign(Request& request, CameraFrom camera) {
    AssignPositionals(*request.command, camera, request.given);
    if (request.options.camera.forceModel && !request.given.contains(modelParameter)) {
        throw UsageError("MODEL is required with --force-model");
    }
}

Request Parse(std::vector<std::string> arguments, bool inShell) {
    CLI::App app("Drives cameras through the plug-in libqdv12ctrl.so, simulated ones or on the network.",
                 inShell ? "" : "qdv12host");
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app.fallthrough(); // common options may stand behind the command
    Request request;
    bool trace = false;
    app.add_flag("--json", request.options.json, "Print results as JSON");
    if (!inShell) {
        app.set_version_flag("--version", "qdv12host " QDV12_VERSION);
        AddCommonOptions(app, request.options, trace);
        app.footer("Exit codes: 0 all well; 1 the camera or the library refused; 2 wrong usage; 3 not opened.");
    }
    const CameraFrom camera = SourceOf(arguments, inShell);
    std::vector<Filled> commands;
    for (const Command& command : Commands()) {
        if (command.inShell || !inShell) {
            commands.push_back(AddCommand(app, command, camera));
        }
    }
    std::string helped;
    CLI::App* const help = app.add_subcommand("help", "Say more about a command");
    help->add_option("COMMAND", helped, "A command; without it, all are listed")->type_name("");
    try {
        std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) {
            app.exit(error);
            return request;
        }
        if (!LacksPositionals(app, error)) {
            throw UsageError(Describe(app, error));
        }
    }
    if (help->parsed()) {
        PrintHelp(app, helped);
        return request;
    }
    if (trace) {
        request.options.camera.accesses = PrintAccess;
    }
    TakeGiven(commands, request);
    Assign(request, camera);
    return request;
}

} // namespace

Request ParseCommandLine(std::vector<std::string> arguments) {
    try {
        return Parse(std::move(arguments), false);
    } catch (const UsageError& error) {
        throw UsageError(error.what() + std::string(" (qdv12host --help says more)"));
    }
}

Request ParseShellLine(std::vector<std::string> arguments) { return Parse(std::move(arguments), true); }

} // namespace Host
