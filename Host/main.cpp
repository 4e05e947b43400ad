#include "Host/CommandLine.h"
#include "Host/ErrorReporting.h"
#include "Host/Logging.h"

#include <clocale>
#include <string_view>

namespace Host {

namespace {

/// The prompt and the columns need the character set: UTF-8 by default. The number format stays "C".
void SetLocale() {
    const char* const locale = std::setlocale(LC_CTYPE, "");
    if (locale == nullptr || std::string_view(locale) == "C") {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
}

int Run(std::vector<std::string> arguments) {
    const ParsedCommandLine line = ParseCommandLine(std::move(arguments));
    if (line.command == nullptr) {
        return Common::FlushResults("qdv12host", Success, Refused);
    }
    ConfigureLogging(line.options.logLevel, line.options.logConfig);
    const int failed = line.command->failed;
    Program program(line.options);
    const int code = RunAndReport([&] { return line.command->run(Invocation(program, line.given)); }, failed);
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
