#include "Host/LineReader.h"

#include <editline/readline.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <memory>

namespace Host {

namespace {

constexpr int longestHistory = 500;

// readline calls plain functions.
LineReader::Completer complete;
std::vector<std::string> candidates;

/// Whether Ctrl-C was pressed since the prompt appeared.
volatile std::sig_atomic_t givenUp = 0;

char* NextMatch(const char* /*text*/, int state) {
    static std::size_t next = 0;
    next = state == 0 ? 0 : next;
    return next < candidates.size() ? strdup(candidates[next++].c_str()) : nullptr; // the caller frees it
}

char** Complete(const char* text, int /*start*/, int end) {
    bool files = false;
    try {
        auto found = complete(std::string(rl_line_buffer, static_cast<std::size_t>(end)), text);
        candidates = std::move(found.words);
        files = found.files;
    } catch (const std::exception&) { // must not pass through readline; the next command reports it
        candidates.clear();
    }
    const bool goesOn = !candidates.empty() && (candidates.front().ends_with('=') || candidates.front().ends_with(':'));
    rl_completion_append_character = static_cast<unsigned char>(goesOn ? '\0' : ' ');
    rl_attempted_completion_over = candidates.empty() && files ? 0 : 1; // else readline completes file names
    return candidates.empty() ? nullptr : rl_completion_matches(text, NextMatch);
}

std::string HistoryFile() {
    const char* const home = std::getenv("HOME");
    return home == nullptr ? "" : std::string(home) + "/.qdv12host_history";
}

} // namespace

LineReader::LineReader(std::string promptText, Completer completer)
    : prompt(std::move(promptText)),
      terminal(isatty(STDIN_FILENO) == 1) {
    complete = std::move(completer);
    if (terminal) {
        struct sigaction action {};
        action.sa_handler = [](int) { givenUp = 1; }; // no SA_RESTART: interrupts the wait for a key
        sigaction(SIGINT, &action, nullptr);
        rl_readline_name = "qdv12host";
        rl_attempted_completion_function = Complete;
        using_history();
        stifle_history(longestHistory);
        read_history(HistoryFile().c_str()); // missing on the first run
    }
}

LineReader::~LineReader() {
    if (terminal) {
        write_history(HistoryFile().c_str());
    }
    complete = nullptr;
}

std::optional<std::string> LineReader::Next() {
    if (!terminal) {
        std::string line;
        return std::getline(std::cin, line) ? std::optional(line) : std::nullopt;
    }
    std::unique_ptr<char, decltype(&std::free)> line(nullptr, &std::free);
    do {
        givenUp = 0;
        std::cout.flush();
        line.reset(readline(prompt.c_str()));
        if (!line) {
            std::cout << '\n'; // ends the line of the prompt
        }
    } while (!line && givenUp != 0);
    if (!line) {
        return std::nullopt;
    }
    if (*line != '\0') {
        add_history(line.get());
    }
    return std::string(line.get());
}

} // namespace Host
