#pragma once

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <string>
#include <utility>
#include <vector>

namespace Test {

/// A program whose output is read while it runs, and which ends with this object at the latest.
class Running {
public:
    static constexpr int both = -1;

    /// @param stream STDOUT_FILENO or STDERR_FILENO, the other one goes nowhere; or both
    Running(const std::string& program, std::vector<std::string> arguments, int stream) {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        fcntl(ends[1], F_SETPIPE_SZ, 4096); // so that the program is never far ahead of who reads
        arguments.insert(arguments.begin(), program);
        std::vector<char*> words;
        words.reserve(arguments.size() + 1);
        for (std::string& argument : arguments) {
            words.push_back(argument.data());
        }
        words.push_back(nullptr);
        process = fork();
        if (process == 0) {
            for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
                ::signal(signal, SIG_DFL); // whatever the tests were started from
            }
            prctl(PR_SET_PDEATHSIG, SIGKILL); // a test that dies leaves no camera behind
            const int nowhere = open("/dev/null", O_RDWR);
            dup2(nowhere, STDIN_FILENO);
            dup2(stream == STDERR_FILENO ? nowhere : ends[1], STDOUT_FILENO);
            dup2(stream == STDOUT_FILENO ? nowhere : ends[1], STDERR_FILENO);
            execvp(words[0], words.data());
            _exit(127);
        }
        close(ends[1]);
        from = ends[0];
    }
    ~Running() {
        if (process > 0) {
            kill(process, SIGKILL);
            waitpid(process, nullptr, 0);
        }
        close(from);
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    /// Reads until the text has come. As long as nobody reads on, the program stands still when the pipe is full.
    bool ReadUntil(const std::string& text) {
        while (read.find(text) == std::string::npos) {
            if (!ReadSome()) {
                return false;
            }
        }
        return true;
    }
    /// Leaves it with output that nobody reads.
    void StopReading() { close(std::exchange(from, -1)); }
    void Signal(int signal) const { kill(process, signal); }
    /// Reads the rest. @return the exit code
    int End() {
        while (ReadSome()) {
        }
        int status = 0;
        waitpid(std::exchange(process, -1), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    [[nodiscard]] const std::string& Read() const { return read; }

private:
    bool ReadSome() {
        std::array<char, 4096> some{};
        const ssize_t got = ::read(from, some.data(), some.size());
        read.append(some.data(), got > 0 ? static_cast<std::size_t>(got) : 0);
        return got > 0;
    }

    pid_t process = -1;
    int from = -1;
    std::string read;
};

} // namespace Test
