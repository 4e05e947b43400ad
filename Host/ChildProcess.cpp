#include "Host/ChildProcess.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <system_error>

namespace Host {

namespace {

int Succeeded(long result, const char* what) {
    if (result < 0) {
        throw std::system_error(errno, std::generic_category(), what);
    }
    return static_cast<int>(result);
}

/// A file in memory, at its beginning.
Descriptor MemoryFile(const std::string& content) {
    Descriptor file(Succeeded(memfd_create("input", MFD_CLOEXEC), "no standard input for a process"));
    Succeeded(write(file.Number(), content.data(), content.size()), "no standard input for a process");
    lseek(file.Number(), 0, SEEK_SET);
    return file;
}

} // namespace

struct ChildProcess::Pipe {
    Descriptor from{-1};
    Descriptor to{-1};

    static Pipe Make() {
        int ends[2];
        Succeeded(pipe2(ends, O_CLOEXEC), "no pipe to a process");
        return {Descriptor(ends[0]), Descriptor(ends[1])};
    }
};

ChildProcess::ChildProcess(const std::function<int()>& action, const std::optional<std::string>& input,
                           const sigset_t& blocked)
    : ChildProcess(action, input ? MemoryFile(*input) : Descriptor(dup(STDIN_FILENO)), Pipe::Make(), Pipe::Make(),
                   blocked) {}

ChildProcess::ChildProcess(const std::function<int()>& action, const Descriptor& input, Pipe out, Pipe err,
                           const sigset_t& blocked)
    : output(std::move(out.from)),
      errors(std::move(err.from)) {
    std::cout.flush(); // else both would print what is pending
    const pid_t parent = getpid();
    process = Succeeded(fork(), "no process");
    if (process != 0) {
        return;
    }
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) { // it died before the line above
        _exit(EXIT_FAILURE);
    }
    dup2(input.Number(), STDIN_FILENO);
    dup2(out.to.Number(), STDOUT_FILENO);
    dup2(err.to.Number(), STDERR_FILENO);
    out.to.Close(); // else the pipes would not end with these streams
    err.to.Close();
    std::clearerr(stdin); // this program may have read its own to the end
    std::cin.clear();
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    sigprocmask(SIG_SETMASK, &blocked, nullptr);
    std::exit(action());
}

void ChildProcess::Signal(int signal) const { kill(process, signal); }

int ChildProcess::Wait() const {
    int status = 0;
    waitpid(process, &status, 0);
    return status;
}

} // namespace Host
