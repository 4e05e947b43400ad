#pragma once

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <string>
#include <utility>
#include <vector>

namespace Test {

/// A program whose output is read while it runs. The destructor ends it and all processes that it started. If it keeps
/// the test waiting longer than a deadline, it is killed and the test fails.
class Running {
    using Clock = std::chrono::steady_clock;

public:
    static constexpr int both = -1;
#ifdef QDV12_SANITIZED
    static constexpr std::chrono::seconds usualDeadline{180};
#else
    static constexpr std::chrono::seconds usualDeadline{60}; ///< long, since the machine may be busy
#endif

    /// @param stream STDOUT_FILENO, STDERR_FILENO or both; the other is discarded
    /// @param longestWait deadline of ReadUntil and of End
    Running(const std::string& program, std::vector<std::string> arguments, int stream,
            std::chrono::milliseconds longestWait = usualDeadline)
        : deadline(longestWait) {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        fcntl(ends[1], F_SETPIPE_SZ, 4096); // a small pipe, so that the program cannot run far ahead of the reader
        arguments.insert(arguments.begin(), program);
        std::vector<char*> words;
        words.reserve(arguments.size() + 1);
        for (std::string& argument : arguments) {
            command += argument + ' ';
            words.push_back(argument.data());
        }
        words.push_back(nullptr);
        process = fork();
        if (process == 0) {
            setpgid(0, 0);
            for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
                ::signal(signal, SIG_DFL); // undo signal settings of the parent
            }
            prctl(PR_SET_PDEATHSIG, SIGKILL); // if the test dies, the program does too
            const int nowhere = open("/dev/null", O_RDWR);
            dup2(nowhere, STDIN_FILENO);
            dup2(stream == STDERR_FILENO ? nowhere : ends[1], STDOUT_FILENO);
            dup2(stream == STDOUT_FILENO ? nowhere : ends[1], STDERR_FILENO);
            execvp(words[0], words.data());
            _exit(127);
        }
        setpgid(process, process); // in both processes, since either may be first
        close(ends[1]);
        from = ends[0];
    }
    ~Running() {
        if (process > 0) {
            kill(-process, SIGKILL);
            waitpid(process, nullptr, 0);
        }
        close(from);
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    /// Reads until the text appears, after what was already read or from the beginning. Afterwards the program blocks
    /// when the pipe is full.
    bool ReadUntil(const std::string& text, std::size_t after = 0) {
        const auto end = Clock::now() + deadline;
        while (read.find(text, after) == std::string::npos) {
            if (!ReadSome(end)) {
                return false;
            }
        }
        return true;
    }
    /// Closes the output, so that the program's writes fail.
    void StopReading() { close(std::exchange(from, -1)); }
    void Signal(int signal) const { kill(process, signal); }
    /// Reads the rest. @return the exit code, or -1 after a signal
    int End() {
        const auto end = Clock::now() + deadline;
        while (ReadSome(end)) {
        }
        int status = 0;
        while (waitpid(process, &status, WNOHANG) == 0) {
            if (Clock::now() >= end) {
                TimeOut("did not end");
            }
            usleep(1000);
        }
        process = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    /// Whether a deadline has passed.
    [[nodiscard]] bool HasTimedOut() const { return timedOut; }
    [[nodiscard]] const std::string& Read() const { return read; }

private:
    bool ReadSome(Clock::time_point end) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd readable{from, POLLIN, 0};
        if (!timedOut && from >= 0 && poll(&readable, 1, static_cast<int>(std::max<long>(left, 0))) == 0) {
            TimeOut("did not go on");
        }
        if (timedOut || from < 0) {
            return false;
        }
        std::array<char, 4096> some{};
        const ssize_t got = ::read(from, some.data(), some.size());
        read.append(some.data(), got > 0 ? static_cast<std::size_t>(got) : 0);
        return got > 0;
    }
    void TimeOut(const char* what) {
        if (!std::exchange(timedOut, true)) {
            ADD_FAILURE() << command << what << " within " << deadline.count() << " ms; it was killed. It printed:\n"
                          << read;
            kill(-process, SIGKILL);
        }
    }

    std::string command; ///< with a blank after each word
    std::chrono::milliseconds deadline;
    bool timedOut = false;
    pid_t process = -1;
    int from = -1;
    std::string read;
};

} // namespace Test
