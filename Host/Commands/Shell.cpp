#include "Host/Commands/Commands.h"

#include "Common/Suggestion.h"
#include "Host/Channel/ChannelErrors.h"
#include "Host/CommandLine.h"
#include "Host/ErrorReporting.h"
#include "Host/Interrupts.h"
#include "Host/LineReader.h"

#include <algorithm>
#include <iostream>

namespace Host {

namespace {

constexpr const char* help = "help";
constexpr const char* quit = "quit";

bool IsBlank(char character) { return character == ' ' || character == '\t' || character == '\r'; }

bool IsQuote(char character) { return character == '"' || character == '\''; }

/// Splits a line at blanks. Quotes group characters; a # at the start of a word begins a comment.
std::vector<std::string> WordsOf(const std::string& line) {
    std::vector<std::string> words;
    bool inWord = false;
    char quote = '\0';
    for (const char character : line) {
        if (quote == '\0' && IsBlank(character)) {
            inWord = false;
            continue;
        }
        if (!inWord && character == '#') {
            break;
        }
        if (!inWord) {
            words.emplace_back();
            inWord = true;
        }
        if (character == quote) {
            quote = '\0';
        } else if (quote == '\0' && IsQuote(character)) {
            quote = character;
        } else {
            words.back() += character;
        }
    }
    if (quote != '\0') {
        throw UsageError(std::string("missing closing quote ") + quote);
    }
    return words;
}

std::vector<std::string> CommandNames() {
    std::vector<std::string> names{help, quit};
    for (const Command& command : Commands()) {
        if (command.inShell) {
            names.emplace_back(command.name);
        }
    }
    return names;
}

/// The functions that the command takes: names, or names with "=" for assignments.
std::vector<std::string> FunctionsFor(const Command& command, const Camera& camera) {
    std::vector<std::string> found;
    for (const Syntax& syntax : command.syntax) {
        const bool assigns = syntax.parameter == Parameter::Assignments;
        if (!assigns && syntax.parameter != Parameter::Names) {
            continue;
        }
        for (const Instance& instance : camera.All(false)) {
            if (!assigns || instance->set != nullptr) {
                found.push_back(instance.Name() + (assigns ? "=" : ""));
            }
        }
    }
    return found;
}

/// Completes commands, then the functions that they take.
std::vector<std::string> Completions(const Camera& camera, const std::string& before) {
    const std::size_t first = before.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return CommandNames();
    }
    const std::string name = before.substr(first, before.find_first_of(" \t", first) - first);
    const auto& commands = Commands();
    const auto command =
        std::find_if(commands.begin(), commands.end(), [&](const Command& each) { return each.name == name; });
    if (command == commands.end() || before.ends_with('=')) {
        return {};
    }
    return FunctionsFor(*command, camera);
}

/// Runs a command. A camera that it has lost is opened again by the next one.
/// @param leaves set if a signal ends the program
int RunInShell(Program& program, const ParsedCommandLine& line, bool& leaves) {
    try {
        return line.command->run(Invocation(program, line.given));
    } catch (const Ending&) {
        leaves = true;
        throw;
    } catch (const ChannelLost&) {
        program.CloseLost();
        throw;
    }
}

int RunLine(Program& program, const std::vector<std::string>& words, bool json, bool& leaves) {
    if (const auto names = CommandNames();
        std::find(names.begin(), names.end(), words.front()) == names.end() && !words.front().starts_with('-')) {
        throw UsageError("unknown command \"" + words.front() + '"' + Common::Suggestion(words.front(), names));
    }
    const ParsedCommandLine line = ParseShellLine(words);
    if (line.command == nullptr) {
        if (words.size() == 1) {
            std::cout << "\nhelp COMMAND shows the help of a command; quit leaves the shell.\n";
        }
        return Success;
    }
    program.SetJson(json || line.options.json);
    const int code = RunAndReport([&] { return RunInShell(program, line, leaves); }, line.command->failed);
    program.ReportController();
    program.SaveState(); // after each command, in case the shell is killed
    return code;
}

/// @param leaves set if the line ends the shell
int RunText(Program& program, const std::string& line, bool json, bool& leaves) {
    const auto words = WordsOf(line);
    leaves = !words.empty() && words.front() == quit;
    return words.empty() || leaves ? int{Success} : RunLine(program, words, json, leaves);
}

/// At a terminal, Ctrl-C ends only the command.
bool IsInterrupted(const LineReader& lines) {
    return Interrupts::ReceivedTermination() || (Interrupts::Received() && !lines.IsTerminal());
}

} // namespace

int Shell(const Invocation& invocation) {
    Program& program = invocation.Program();
    const bool json = program.Json();
    const Camera camera = invocation.OpenCamera();
    LineReader lines(camera.Model() + "> ", [&](const std::string& before) { return Completions(camera, before); });
    int firstFailure = Success;
    const auto note = [&](int code) { firstFailure = firstFailure == Success ? code : firstFailure; };
    bool leaves = false;
    while (!leaves) {
        const auto line = lines.Next();
        if (!line) {
            break;
        }
        note(RunAndReport([&] { return RunText(program, *line, json, leaves); }));
        if (IsInterrupted(lines)) {
            note(Refused); // the remaining lines are ignored
            leaves = true;
        }
    }
    program.SetJson(json);
    return lines.IsTerminal() ? int{Success} : firstFailure;
}

} // namespace Host
