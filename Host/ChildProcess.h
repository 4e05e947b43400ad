#pragma once

#include <sys/types.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace Host {

/// A file descriptor, closed at the end.
class Descriptor {
public:
    explicit Descriptor(int opened) : number(opened) {}
    Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
    ~Descriptor() { Close(); }
    Descriptor& operator=(Descriptor&&) = delete;

    [[nodiscard]] int Number() const { return number; }
    void Close() {
        if (number >= 0) {
            close(std::exchange(number, -1));
        }
    }

private:
    int number;
};

/// A copy of this program that runs an action. It is a fork, not a new start: it needs no command line, and does not
/// mind if an upgrade replaces the file of the program. It is not in the foreground, so the terminal sends it no
/// signals; if this program dies, it gets SIGTERM.
class ChildProcess {
public:
    /// This program must have only one thread.
    /// @param action runs in the copy, and returns its exit code
    /// @param input the content of its standard input, if not that of this program
    /// @param blocked its blocked signals
    /// @throws std::system_error
    ChildProcess(const std::function<int()>& action, const std::optional<std::string>& input, const sigset_t& blocked);

    // Pipes from its standard output and standard error; they are at their end when it ends.
    [[nodiscard]] Descriptor& Output() { return output; }
    [[nodiscard]] Descriptor& Errors() { return errors; }

    void Signal(int signal) const;
    /// Waits for its end. @return the wait status
    [[nodiscard]] int Wait() const;

private:
    struct Pipe;
    ChildProcess(const std::function<int()>& action, const Descriptor& input, Pipe out, Pipe err,
                 const sigset_t& blocked);

    Descriptor output;
    Descriptor errors;
    pid_t process;
};

} // namespace Host
