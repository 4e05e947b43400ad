#include "CommandLine.h"
#include "Guarded.h"
#include "Logging.h"

#include <iostream>

namespace Host {

namespace {

int Run(std::vector<std::string> arguments) {
    const Request request = ParseCommandLine(std::move(arguments));
    if (request.command == nullptr) {
        return AllWell;
    }
    ConfigureLogging(request.options.logLevel, request.options.logConfig);
    Program program(request.options);
    const int code = Guarded([&] { return request.command->run(Invocation(program, request.given)); });
    program.TellWhoControls();
    program.Finish();
    return code;
}

/// What nobody gets to see is no success: a disk is full, for one.
int AsSeen(int code) {
    if (std::cout.flush()) {
        return code;
    }
    Complain("the results could not be written");
    return code == AllWell ? Refused : code;
}

} // namespace

} // namespace Host

int main(int argc, char** argv) {
    return Host::AsSeen(Host::Guarded([&] { return Host::Run({argv + 1, argv + argc}); }));
}
