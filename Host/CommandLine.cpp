#include "Host/CommandLine.h"

#include "Common/CommandLine.h"
#include "Common/Number.h"
#include "Common/Suggestion.h"
#include "Common/Text.h"
#include "Host/CameraName.h"
#include "Host/Functions/Tables.h"
#include "Host/Recording/CommandText.h"
#include "Host/Trace.h"
#include "Simulation/FaultKinds.h"

#include <CLI/CLI.hpp>

#include <cstring>
#include <iostream>

namespace Host {

namespace {

/// The CLI11 options for the parameters of a command.
struct Filled {
    CLI::App* app;
    const Command* command;
    std::vector<std::pair<Parameter, CLI::Option*>> options;
};

constexpr const char* repeated = "..."; ///< after the name of a parameter that may be repeated

/// @param several whether it may be repeated; an operand then takes all further ones
CLI::Option* AddParameter(CLI::App& app, const Syntax& syntax, bool several, bool inShell) {
    const std::string name = syntax.name;
    if (!syntax.IsOperand()) {
        const std::size_t blank = name.find(' ');
        if (blank == std::string::npos) {
            return app.add_flag(name, syntax.about)->disable_flag_override();
        }
        CLI::Option* const option = app.add_option(name.substr(0, blank), syntax.about)
                                        ->type_name(name.substr(blank + 1))
                                        ->check(Common::CheckValue);
        return several ? option->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args(false) : option;
    }
    const std::string shown = name + (syntax.several && !several ? repeated : "");
    CLI::Option* const option =
        app.add_option(shown, syntax.about)->type_name("")->required(syntax.IsRequired(inShell));
    return several ? option->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args() : option;
}

Filled AddCommand(CLI::App& app, const Command& command, bool inShell) {
    Filled filled{app.add_subcommand(command.name, command.about)->group("Commands"), &command, {}};
    for (const Syntax& syntax : command.syntax) {
        if (syntax.IsTaken(inShell)) {
            // Cameras before names arrive as names: the first of two such operands would take all.
            const bool several =
                syntax.several && (syntax.parameter != Parameter::Camera || command.Find(Parameter::Names) == nullptr);
            filled.options.emplace_back(syntax.parameter, AddParameter(*filled.app, syntax, several, inShell));
        }
    }
    return filled;
}

std::string UsageOf(const Command& command, bool inShell) {
    std::string usage = std::string("; usage: ") + (inShell ? "" : "qdv12host ") + command.name;
    for (const Syntax& syntax : command.syntax) {
        if (syntax.IsOperand() && syntax.IsTaken(inShell)) {
            const std::string form = std::string(syntax.name) + (syntax.several ? repeated : "");
            usage += syntax.IsRequired(inShell) ? ' ' + form : " [" + form + ']';
        }
    }
    return usage;
}

void AddCommonOptions(CLI::App& app, Options& options, bool& trace) {
    const auto add = [&](const char* name, auto& variable, const char* value, const char* about) {
        return app.add_option(name, variable, about)
            ->type_name(value)
            ->group(Common::commonOptions)
            ->check(Common::CheckValue);
    };
    add("--plugin", options.plugin, "PATH", "The plug-in to load (default: the installed one, else the built one)");
    add("--index", options.camera.index, "N", "Camera index; with 2, the default, every value is read from the camera");
    add("--record", options.record.file, "FILE", "Write each port access to a file, as a line of JSON");
    app.add_flag("--loose", options.camera.loose, "Answer from a recording by address, in any order")
        ->group(Common::commonOptions)
        ->disable_flag_override();
    app.add_flag("--trace", trace, "Print each port access on standard error")
        ->group(Common::commonOptions)
        ->disable_flag_override();
    add("--log", options.logLevel, "LEVEL", "What the library logs on standard error (default: off)")
        ->transform(CLI::IsMember({"off", "error", "warn", "info", "debug"}, CLI::ignore_case))
        ->type_name("LEVEL");
    add("--config", options.logConfig, "FILE", "A configuration file for log4cxx");
    add("--force-model", options.camera.forcedModel, "MODEL",
        "Control a camera on the network as this model, whatever model it reports");
    auto& simulation = options.camera.simulation;
    add("--seed", simulation.seed, "N", "Select the environment of a simulated camera: light, noise, defect pixels")
        ->check(Common::CheckSeed);
    add("--state", simulation.state, "FILE", "File that keeps the state of a simulated camera between runs");
    add("--fault", simulation.faults, "TEXT", "Inject a fault into a simulated camera, such as ignore:gain")
        ->allow_extra_args(false); // else it would also take the camera as a fault
}

/// @throws UsageError if CAMERA is missing, so that a function is in its place
void RequireCamera(const ParsedCommandLine& line) {
    const auto camera = line.given.find(Parameter::Camera);
    if (camera == line.given.end()) {
        return;
    }
    const std::string& text = camera->second.front();
    if (IsFunction(text) || text.find('=') != std::string::npos) {
        throw UsageError("CAMERA is required before \"" + text + '"' + UsageOf(*line.command, false));
    }
}

/// Tells the cameras among the operands from the functions.
/// @throws UsageError if an operand is neither, a camera is given twice, or several share a file
void SortCameras(ParsedCommandLine& line) {
    auto& cameras = line.given[Parameter::Camera];
    if (const Syntax* const syntax = line.command->Find(Parameter::Names)) {
        auto& names = line.given[Parameter::Names];
        const auto others = std::stable_partition(names.begin(), names.end(), IsCamera);
        cameras.insert(cameras.end(), names.begin(), others);
        names.erase(names.begin(), others);
        if (names.empty() && syntax->IsRequired(false)) {
            throw UsageError("NAME is required" + UsageOf(*line.command, false));
        }
    }
    if (cameras.size() < 2) {
        return; // opening it reports what is wrong
    }
    std::vector<CameraName> known;
    for (const std::string& camera : cameras) {
        if (!IsCamera(camera) && camera != cameras.front()) {
            throw UsageError("unexpected argument \"" + camera + '"');
        }
        known.push_back(ParseCameraName(camera));
        if (std::count(known.begin(), known.end(), known.back()) > 1) {
            throw UsageError("camera \"" + camera + "\" is given twice");
        }
    }
    if (line.given.contains(Parameter::Network)) {
        throw UsageError("--network would give each camera the same address; give one camera, or no --network");
    }
    if (!line.options.camera.simulation.state.empty()) {
        throw UsageError("--state FILE keeps one camera; give one, or no --state");
    }
    if (!line.options.record.file.empty()) {
        throw UsageError(oneCamera);
    }
}

/// @throws UsageError if another camera is in the place of a function
void RequireOneCamera(const ParsedCommandLine& line) {
    for (const Parameter parameter : {Parameter::Names, Parameter::Assignments}) {
        const auto given = line.given.find(parameter);
        for (const std::string& text : given == line.given.end() ? std::vector<std::string>() : given->second) {
            if (IsCamera(text)) {
                throw UsageError("unexpected argument \"" + text + "\": " + line.command->name + " takes one camera");
            }
        }
    }
}

/// Copies the parameters of the command from the parser.
/// @throws UsageError as above
void TakeGiven(const std::vector<Filled>& commands, ParsedCommandLine& line) {
    for (const Filled& filled : commands) {
        if (!filled.app->parsed()) {
            continue;
        }
        line.command = filled.command;
        for (const auto& [parameter, option] : filled.options) {
            if (option->count() != 0) {
                line.given[parameter] = option->results();
            }
        }
    }
    RequireCamera(line);
}

std::vector<std::string> OptionNames(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::Option* option : app.get_options([](const CLI::Option* each) { return !each->get_positional(); })) {
        names.push_back(option->get_name());
    }
    return names;
}

std::string DescribeUnknownCommand(const CLI::App& app, const std::string& name) {
    const auto isIt = [&](const Command& command) { return command.onlyInShell && command.name == name; };
    if (std::any_of(Commands().begin(), Commands().end(), isIt)) {
        return name + " is a command of the shell, since acquisition ends with it: qdv12host shell CAMERA";
    }
    std::vector<std::string> names;
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        names.push_back(command->get_name());
    }
    return "unknown command \"" + name + '"' + Common::Suggestion(name, names);
}

/// Describes an option with too many or too few values.
/// @param said the message of the parser, which begins with the name of the option, for a flag without dashes
std::string DescribeMismatch(const std::string& said) {
    const std::string name = said.substr(0, said.find_first_of(": "));
    if (said.ends_with("flag override")) {
        return "--" + name + " takes no value";
    }
    return name + (said.ends_with("missing") ? ": a value is required" : " is given twice");
}

std::string DescribeUnknownOption(const CLI::App& app, const std::string& option) {
    auto names = OptionNames(app);
    for (const CLI::App* command : app.get_subcommands()) {
        const auto more = OptionNames(*command);
        if (std::find(more.begin(), more.end(), option) != more.end()) {
            return option + " is an option of " + command->get_name() + ": give it after that word";
        }
        names.insert(names.end(), more.begin(), more.end());
    }
    return "unknown option \"" + option + '"' + Common::Suggestion(option, names);
}

/// Describes a parse error; for unknown arguments the first one, with a suggestion.
/// @param usage of the command, if an operand is missing
std::string Describe(CLI::App& app, const CLI::ParseError& error, const std::string& usage) {
    const auto unknown = app.remaining(true);
    const auto parsed = app.get_subcommands();
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        return DescribeMismatch(error.what());
    }
    if (unknown.empty()) {
        const bool lacks = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
        std::string what = error.what(); // "CAMERA... is required"
        if (const std::size_t at = what.find(repeated); lacks && at != std::string::npos) {
            what.erase(at, std::strlen(repeated));
        }
        return lacks && parsed.empty() ? "COMMAND is required" : what + (lacks ? usage : "");
    }
    if (unknown.front().starts_with('-')) {
        return DescribeUnknownOption(app, unknown.front());
    }
    return parsed.empty() ? DescribeUnknownCommand(app, unknown.front())
                          : "unexpected argument \"" + unknown.front() + '"';
}

/// Prints the help of a command, or of all.
/// @throws UsageError for an unknown command
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

/// The parser, and what it fills.
struct Parser {
    explicit Parser(bool inShell)
        : app("Controls cameras, simulated or on the network, through the plug-in libqdv12ctrl.so.",
              inShell ? "" : "qdv12host") {
        app.require_subcommand(1);
        app.formatter(std::make_shared<Common::HelpFormatter>());
        app.get_formatter()->label("SUBCOMMAND", "COMMAND");
        app.fallthrough(); // common options may follow the command
        app.add_flag("--json", line.options.json, "Print results as JSON")
            ->group(Common::commonOptions)
            ->disable_flag_override();
        if (!inShell) {
            app.set_version_flag("--version", "qdv12host " QDV12_VERSION);
            AddCommonOptions(app, line.options, trace);
            app.footer("Exit codes: 0 success; 1 refused or failed; 2 wrong usage; 3 the library or camera could not "
                       "be opened.");
        }
        for (const Command& command : Commands()) {
            if (command.IsOffered(inShell)) {
                commands.push_back(AddCommand(app, command, inShell));
            }
        }
        if (!inShell) {
            app.footer(Simulation::DescribeFaultKinds() + '\n' + app.get_footer());
        }
        help = app.add_subcommand("help", "Show the help of a command")->group("Commands");
        help->add_option("COMMAND", helped, "A command; without it, all commands are listed")->type_name("");
    }

    CLI::App app;
    ParsedCommandLine line{};
    bool trace = false;
    std::vector<Filled> commands{};
    CLI::App* help = nullptr;
    std::string helped{};
};

ParsedCommandLine Parse(std::vector<std::string> arguments, bool inShell) {
    Parser parser(inShell);
    ParsedCommandLine& line = parser.line;
    try {
        std::reverse(arguments.begin(), arguments.end()); // as the parser expects
        parser.app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) {
            parser.app.exit(error);
            return line;
        }
        TakeGiven(parser.commands, line);
        throw UsageError(Describe(parser.app, error, line.command == nullptr ? "" : UsageOf(*line.command, inShell)));
    }
    TakeGiven(parser.commands, line);
    if (line.command != nullptr && !inShell) {
        line.command->TakesCameras() ? SortCameras(line) : RequireOneCamera(line);
    }
    if (parser.help->parsed()) {
        PrintHelp(parser.app, parser.helped);
    }
    if (line.command != nullptr) {
        line.options.record.program = QDV12_VERSION;
        line.options.record.camera = CameraText(line.given);
        line.options.record.command = CommandText(*line.command, line.given);
    }
    line.options.camera.readOnly = line.given.contains(Parameter::NoControl);
    if (parser.trace) {
        line.options.camera.accesses = PrintAccess;
    }
    return line;
}

} // namespace

ParsedCommandLine ParseCommandLine(std::vector<std::string> arguments) {
    const auto named = std::find_if(arguments.begin(), arguments.end(), [](const std::string& argument) {
        return std::any_of(Commands().begin(), Commands().end(),
                           [&](const Command& each) { return each.IsOffered(false) && each.name == argument; });
    });
    const std::string help = named == arguments.end() ? "--help" : "help " + *named;
    try {
        return Parse(std::move(arguments), false);
    } catch (const UsageError& error) {
        throw UsageError(error.what() + (" (see qdv12host " + help + ')'));
    }
}

std::vector<Common::OptionSyntax> OptionsOf(const std::string& command, bool inShell) {
    const Parser parser(inShell);
    auto options = Common::OptionsIn(parser.app);
    for (const Filled& filled : parser.commands) {
        if (command == anyCommand || command == filled.command->name) {
            const auto own = Common::OptionsIn(*filled.app);
            options.insert(options.end(), own.begin(), own.end());
        }
    }
    return options;
}

ParsedCommandLine ParseShellLine(std::vector<std::string> arguments) { return Parse(std::move(arguments), true); }

} // namespace Host
