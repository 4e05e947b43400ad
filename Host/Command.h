#pragma once

#include "Host/Errors.h"
#include "Host/Program.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Host {

/// What a command takes. The name says how it is given: "MODEL" in its place, "NAME..." once or more, "[NAME...]" any
/// number of times, "[FILE]" at most once, "--all" as a switch, "--seconds N" as an option with a value.
struct Parameter {
    const char* name;
    const char* about;
};

/// The parameter that names a camera. In a shell, which has one open, no command takes it.
constexpr const char* modelParameter = "MODEL";

/// One run of a command: what was given to it, and the program that it runs in.
class Invocation {
public:
    using Given = std::map<std::string, std::vector<std::string>>;

    Invocation(Host::Program& runningProgram, Given givenParameters)
        : program(runningProgram),
          given(std::move(givenParameters)) {}

    /// What was given for a parameter, by its whole name in the command's list; nothing if it was left out.
    [[nodiscard]] const std::vector<std::string>& Texts(const std::string& parameter) const;
    [[nodiscard]] std::string Text(const std::string& parameter) const;
    [[nodiscard]] bool Has(const std::string& parameter) const { return given.contains(parameter); }

    [[nodiscard]] Host::Program& Program() const { return program; }

    /// The camera that the command is about: that of the shell, or MODEL, opened now.
    [[nodiscard]] Session& Open() const;
    /// Its functions.
    [[nodiscard]] Camera OpenCamera() const { return Open().Camera(); }

private:
    Host::Program& program;
    Given given;
};

/// A command of the program. It writes its result to standard output and returns an ExitCode; what it throws becomes
/// one line on standard error and the exit code that belongs to it.
struct Command {
    const char* name;
    const char* about;
    std::vector<Parameter> parameters;
    int (*run)(const Invocation& invocation);
    bool inShell = true;  ///< whether a shell has it too
    int failed = Refused; ///< the exit code where the camera is lost, something refuses, or results cannot be written
};

/// All commands, in the order of the help: the one place where a command is registered.
[[nodiscard]] const std::vector<Command>& Commands();

/// One line on standard error: "qdv12host: gain: SDK4_ERR_OUTOFRANGE".
void PrintError(const std::string& text);

} // namespace Host
