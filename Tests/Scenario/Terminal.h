#pragma once

#include <gtest/gtest.h>

#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace Scenario {

using Pairs = std::vector<std::pair<std::string, std::string>>;

/// Runs the reference host in a terminal. Types each text when the text that it waits for has appeared, and repeats it
/// if nothing happens.
/// @param environment variables, by name
/// @param columns of the terminal; unknown if 0
/// @param program instead of the reference host
/// @return the complete output, in lines that end with "\r\n"
inline std::string AtTerminal(std::vector<std::string> arguments, const Pairs& environment, const Pairs& typed = {},
                              unsigned short columns = 0, const std::string& program = QDV12_HOST) {
    arguments.insert(arguments.begin(), program);
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) {
        words.push_back(argument.data());
    }
    words.push_back(nullptr);
    int terminal = -1;
    const winsize size{24, columns, 0, 0};
    const pid_t process = forkpty(&terminal, nullptr, nullptr, &size);
    if (process == 0) {
        setenv("HOME", "/nowhere", 1);
        for (const auto& [name, value] : environment) {
            setenv(name.c_str(), value.c_str(), 1);
        }
        execvp(program.c_str(), words.data());
        _exit(127);
    }
    std::string all;
    std::string seen;
    std::string last;
    const auto type = [&] { EXPECT_EQ(write(terminal, last.data(), last.size()), ssize_t(last.size())); };
    auto next = typed.begin();
    int silences = 0;
    while (silences < 10) {
        pollfd waiting{terminal, POLLIN, 0};
        if (poll(&waiting, 1, 1000) == 0) {
            ++silences;
            type();
            continue;
        }
        char character = 0;
        if (read(terminal, &character, 1) != 1) {
            break;
        }
        all += character;
        seen += character;
        if (next != typed.end() && seen.ends_with(next->first)) {
            last = next->second;
            type();
            seen.clear();
            ++next;
        }
    }
    if (silences == 10) {
        kill(process, SIGKILL);
    }
    EXPECT_EQ(next, typed.end()) << all;
    close(terminal);
    int status = -1;
    waitpid(process, &status, 0);
    EXPECT_EQ(status, 0) << all;
    return all;
}

} // namespace Scenario
