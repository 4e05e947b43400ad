#include "Host/Recording/Recorder.h"

#include "Common/Number.h"
#include "Host/Command.h"
#include "Host/CurrentCall.h"
#include "Host/Json.h"
#include "Host/OutputFile.h"
#include "Host/Recording/AccessFailure.h"
#include "Host/Recording/Recording.h"

#include <cerrno>
#include <cmath>
#include <cstring>

namespace Host {

Recorder::Recorder(RecordingOptions given) : options(std::move(given)) {
    if (options.file == standardStream) {
        throw UsageError("--record takes a file, since results go to standard output");
    }
}

void Recorder::Begin(const std::string& model, std::int32_t index) {
    const std::string camera = model + ", " + std::to_string(index);
    if (stream.is_open() && camera == opened) {
        return;
    }
    if (stream.is_open()) {
        throw UsageError(oneCamera);
    }
    errno = 0;
    stream.open(options.file, std::ios::binary | std::ios::trunc);
    if (!stream) {
        throw UsageError(DescribeFile(options.file) + ": cannot be written: " + std::strerror(errno));
    }
    opened = camera;
    start = std::chrono::steady_clock::now();
    WriteLine(Json{{"format", RecordingFormat::name},
                   {"version", RecordingFormat::version},
                   {"program", options.program},
                   {"model", model},
                   {"index", index},
                   {"camera", options.camera},
                   {"command", options.command}}
                  .PrintInOneLine());
}

void Recorder::Note(const std::string& command) {
    if (stream.is_open()) {
        WriteLine(Json{{"command", command}}.PrintInOneLine());
    }
}

void Recorder::Write(const Access& access) {
    using std::chrono::microseconds;
    const auto now = std::chrono::duration_cast<microseconds>(std::chrono::steady_clock::now() - start);
    const auto duration = static_cast<std::int64_t>(std::llround(access.microseconds));
    Json line{{"microseconds", std::int64_t{now.count()} - duration},
              {"duration", duration},
              {"call", CurrentCall::Name()},
              {"operation", access.operation},
              {"address", Common::Hex(access.address)}};
    if (access.write || !access.failed) {
        line.Add("data", ToHex(access.data));
    }
    if (!access.write && access.data.size() != access.length) {
        line.Add("length", static_cast<std::int64_t>(access.length));
    }
    if (access.failed) {
        const AccessFailure failure = FailureOf(access.error, access.operation, access.address);
        line.Add("failed", failure.kind);
        line.Add("reason", failure.reason);
    }
    WriteLine(line.PrintInOneLine());
}

void Recorder::WriteLine(const std::string& line) {
    if (!failed && !(stream << line + '\n' << std::flush)) {
        failed = true;
        PrintError(DescribeFile(options.file) + ": cannot be written: " + std::strerror(errno) +
                   "; the recording ends here");
    }
}

} // namespace Host
