#include "Host/Commands/Commands.h"

#include "Common/Suggestion.h"
#include "Common/Words.h"
#include "Host/Channel/ChannelErrors.h"
#include "Host/CommandLine.h"
#include "Host/Completion.h"
#include "Host/ErrorReporting.h"
#include "Host/Interrupts.h"
#include "Host/LineReader.h"
#include "Host/Recording/CommandText.h"
#include "Host/Recording/ReplayPort.h"

#include <algorithm>
#include <iostream>

namespace Host {

namespace {

constexpr const char* help = "help";
constexpr const char* quit = "quit";

std::vector<std::string> WordsOf(const std::string& line) {
    const Common::Words split = Common::SplitWords(line, Common::Special::Hash);
    if (split.openQuote != '\0') {
        throw UsageError(std::string("missing closing quote ") + split.openQuote);
    }
    return split.words;
}

std::vector<std::string> CommandNames() {
    std::vector<std::string> names{help, quit};
    for (const Command& command : Commands()) {
        if (command.IsOffered(true)) {
            names.emplace_back(command.name);
        }
    }
    return names;
}

/// Runs a command. A camera that it has lost is opened again by the next one.
/// @param leaves set if a signal ends the program, or a replay differs from its recording
int RunInShell(Program& program, const ParsedCommandLine& line, bool& leaves) {
    try {
        return line.command->run(Invocation(program, line.given));
    } catch (const Ending&) {
        leaves = true;
        throw;
    } catch (const ReplayDiffers&) {
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
    program.Note(CommandText(*line.command, line.given));
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
    LineReader lines(invocation.Open().Model() + "> ", [&](const std::string& line, const std::string& replaced) {
        return program.IsReady() ? CompleteInShell(line, replaced, program.Open("").Camera()) : Common::Candidates{};
    });
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
    note(RunAndReport([&]() -> int {
        program.StopAcquisition();
        return Success;
    }));
    program.SetJson(json);
    return lines.IsTerminal() ? int{Success} : firstFailure;
}

} // namespace Host
