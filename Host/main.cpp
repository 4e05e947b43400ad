#include "Host/CommandLine.h"
#include "Host/ErrorReporting.h"
#include "Host/Logging.h"

#include <clocale>
#include <string_view>

namespace Host {

namespace {

/// The prompt and the columns go by characters, which are UTF-8 where nobody says otherwise. Numbers stay as they are.
void SetLocale() {
    const char* const locale = std::setlocale(LC_CTYPE, "");
    if (locale == nullptr || std::string_view(locale) == "C") {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
}

int Run(std::vector<std::string> arguments) {
    const ParsedCommandLine request = ParseCommandLine(std::move(arguments));
    if (request.command == nullptr) {
        return Common::FlushResults("qdv12host", Success, Refused);
    }
    ConfigureLogging(request.options.logLevel, request.options.logConfig);
    const int failed = request.command->failed;
    Program program(request.options);
    const int code = RunAndReport([&] { return request.command->run(Invocation(program, request.given)); }, failed);
    program.ReportController();
    const auto finish = [&]() -> int {
        program.Finish();
        return Success;
    };
    const int end = RunAndReport(finish, failed);
    return Common::FlushResults("qdv12host", end == Success ? code : end, failed);
}

} // namespace

} // namespace Host

int main(int argc, char** argv) {
    Host::SetLocale();
    return Host::RunAndReport([&] { return Host::Run({argv + 1, argv + argc}); });
}
