#include "Host/CommandLine.h"
#include "Host/Completion.h"
#include "Host/EachCamera.h"
#include "Host/ErrorReporting.h"
#include "Host/Logging.h"
#include "Host/Settings/SettingsFile.h"

#include <clocale>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace Host {

namespace {

/// The prompt and the columns need the character set: UTF-8 by default. The number format stays "C".
void SetLocale() {
    const char* const locale = std::setlocale(LC_CTYPE, "");
    if (locale == nullptr || std::string_view(locale) == "C") {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
}

int RunCommand(const ParsedCommandLine& line) {
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
    const int ended = end == Success ? code : end;
    const bool isWhole = program.CheckRecordings();
    return Common::FlushResults("qdv12host", isWhole ? ended : Common::Worse(ended, failed), failed);
}

/// Whether it is a pipe or the like, and not a file.
bool CanBeReadOnce(const std::string& file) {
    std::error_code ignored; // reading it reports the error
    return file == standardStream ||
           (std::filesystem::exists(file, ignored) && !std::filesystem::is_regular_file(file, ignored));
}

int RunOnEach(ParsedCommandLine line) {
    EachCamera each{.cameras = line.given[Parameter::Camera],
                    .oneByOne = line.given.contains(Parameter::OneByOne),
                    .json = line.options.json};
    if (const auto file = line.given.find(Parameter::File);
        file != line.given.end() && CanBeReadOnce(file->second.front())) {
        each.input = ReadSettingsText(file->second.front());
        file->second = {standardStream};
    }
    const auto run = [&](const std::string& camera) {
        line.given[Parameter::Camera] = {camera};
        return RunAndReport([&] { return RunCommand(line); });
    };
    return Common::FlushResults("qdv12host", each.Run(run), line.command->failed);
}

int Run(std::vector<std::string> arguments) {
    if (arguments.size() == 3 && arguments[0] == Common::completionCommand) {
        Common::PrintCandidates(Complete(arguments[1], arguments[2]));
        return Success;
    }
    const ParsedCommandLine line = ParseCommandLine(std::move(arguments));
    if (line.command == nullptr) {
        return Common::FlushResults("qdv12host", Success, Refused);
    }
    const auto cameras = line.given.find(Parameter::Camera);
    return cameras != line.given.end() && cameras->second.size() > 1 ? RunOnEach(line) : RunCommand(line);
}

} // namespace

} // namespace Host

int main(int argc, char** argv) {
    Host::SetLocale();
    return Host::RunAndReport([&] { return Host::Run({argv + 1, argv + argc}); });
}
