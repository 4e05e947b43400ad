#pragma once

#include "Host/Errors.h"
#include "Host/Output.h"
#include "Host/Program.h"

#include <map>
#include <string>
#include <vector>

namespace Host {

/// What can be given to a command.
enum class Parameter { All, Assignments, Camera, DryRun, File, First, Names, Outputs, Plugin, Second, Seconds };

/// Whether an operand has to be given.
enum class Required { Always, OutsideShell, Never };

/// How a command takes a parameter.
struct Syntax {
    Parameter parameter{};
    const char* name = ""; ///< "FILE" of an operand, which stands in its place; "--all", or "--seconds N", of an option
    const char* about = "";
    Required required = Required::Always;
    bool several = false; ///< whether an operand may be given more than once
};

/// One run of a command: what was given to it, and the program that it runs in.
class Invocation {
public:
    using Given = std::map<Parameter, std::vector<std::string>>;

    Invocation(Host::Program& runningProgram, Given givenParameters)
        : program(runningProgram),
          given(std::move(givenParameters)) {}

    /// What was given for a parameter; nothing if it was left out.
    [[nodiscard]] const std::vector<std::string>& Texts(Parameter parameter) const;
    [[nodiscard]] std::string Text(Parameter parameter) const;
    [[nodiscard]] bool Has(Parameter parameter) const { return given.contains(parameter); }

    [[nodiscard]] Host::Program& Program() const { return program; }
    /// For its result.
    [[nodiscard]] Host::Output Output() const { return Host::Output(program.Json()); }

    /// The camera that the command is about: that of the shell, or CAMERA, opened now.
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
    std::vector<Syntax> syntax; ///< in a shell, which has a camera open, no command takes that
    int (*run)(const Invocation& invocation);
    bool inShell = true;  ///< whether a shell has it too
    int failed = Refused; ///< the exit code where the camera is lost, something refuses, or results cannot be written
};

/// All commands, in the order of the help: the one place where a command is registered.
[[nodiscard]] const std::vector<Command>& Commands();

/// One line on standard error: "qdv12host: gain: SDK4_ERR_OUTOFRANGE".
void PrintError(const std::string& text);

} // namespace Host
