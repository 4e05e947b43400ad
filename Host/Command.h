#pragma once

#include "Host/Errors.h"
#include "Host/Output.h"
#include "Host/Program.h"

#include <map>
#include <string>
#include <vector>

namespace Host {

/// The parameters of commands.
enum class Parameter {
    Address,
    All,
    Assignments,
    Camera,
    Changed,
    Count,
    DryRun,
    Every,
    Except,
    File,
    First,
    Gateway,
    Interval,
    KeepTrying,
    Mac,
    Mask,
    Names,
    Network,
    NoControl,
    OneByOne,
    Only,
    Outputs,
    Plugin,
    Port,
    Raw,
    Register,
    Registers,
    Second,
    Seconds,
    Topic,
    Words,
    Yes,
};

/// Whether an operand is required.
enum class Required { Always, OutsideShell, Never };

/// How a command takes a parameter.
struct Syntax {
    Parameter parameter{};
    const char* name = ""; ///< "FILE" for an operand; "--all" or "--seconds N" for an option
    const char* about = "";
    Required required = Required::Always;
    bool several = false; ///< whether it may be repeated; each CAMERA then gets a process (EachCamera)

    [[nodiscard]] bool IsOperand() const { return *name != '-'; }
    [[nodiscard]] bool IsRequired(bool inShell) const {
        return required == Required::Always || (required == Required::OutsideShell && !inShell);
    }
    /// Whether a command takes it: in a shell the camera is open already.
    [[nodiscard]] bool IsTaken(bool inShell) const {
        return !inShell || (parameter != Parameter::Camera && parameter != Parameter::NoControl &&
                            parameter != Parameter::OneByOne);
    }
};

/// One run of a command: its parameters, and the program that it runs in.
class Invocation {
public:
    using Given = std::map<Parameter, std::vector<std::string>>;

    Invocation(Host::Program& runningProgram, Given givenParameters)
        : program(runningProgram),
          given(std::move(givenParameters)) {}

    /// The values of a parameter; none if it was omitted.
    [[nodiscard]] const std::vector<std::string>& Texts(Parameter parameter) const;
    [[nodiscard]] std::string Text(Parameter parameter) const;
    [[nodiscard]] bool Has(Parameter parameter) const { return given.contains(parameter); }

    [[nodiscard]] Host::Program& Program() const { return program; }
    [[nodiscard]] Host::Output Output() const { return Host::Output(program.Json()); }

    /// The camera of the command: that of the shell, or CAMERA, which is opened on the first call.
    [[nodiscard]] Session& Open() const;
    [[nodiscard]] Camera OpenCamera() const { return Open().Camera(); }

private:
    Host::Program& program;
    Given given;
};

/// A command of the program. It writes its result to standard output and returns an ExitCode. An exception becomes one
/// line on standard error and the matching exit code.
struct Command {
    const char* name;
    const char* about;
    std::vector<Syntax> syntax; ///< in a shell, without what a shell has once: CAMERA, how it is opened
    int (*run)(const Invocation& invocation);
    bool inShell = true;      ///< whether it is available in a shell
    int failed = Refused;     ///< the exit code if the camera is lost, a call is refused, or results cannot be written
    bool onlyInShell = false; ///< whether it needs a camera that stays open

    [[nodiscard]] bool IsOffered(bool toShell) const { return toShell ? inShell : !onlyInShell; }

    /// The syntax of the parameter, or null.
    [[nodiscard]] const Syntax* Find(Parameter parameter) const;
    /// Whether it takes several cameras.
    [[nodiscard]] bool TakesCameras() const;
};

/// All commands, in the order of the help.
[[nodiscard]] const std::vector<Command>& Commands();

/// One line on standard error: "qdv12host: gain: SDK4_ERR_OUTOFRANGE".
void PrintError(const std::string& text);

} // namespace Host
