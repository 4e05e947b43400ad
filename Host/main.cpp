#include "CommandLine.h"
#include "Guarded.h"
#include "Logging.h"

int main(int argc, char** argv) {
    using namespace Host;
    return Guarded([&]() -> int {
        const Request request = ParseCommandLine({argv + 1, argv + argc});
        if (request.command == nullptr) {
            return AllWell;
        }
        ConfigureLogging(request.options.logLevel, request.options.logConfig);
        Program program(request.options);
        const int code = Guarded([&] { return request.command->run(Invocation(program, request.given)); });
        program.SaveState();
        return code;
    });
}
