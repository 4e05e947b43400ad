#pragma once

#include "Host/TracingPort.h"

#include <chrono>
#include <cstdint>
#include <fstream>
#include <string>

namespace Host {

/// What a recording says about the run, beside the camera.
struct RecordingOptions {
    std::string file{}; ///< empty for no recording
    std::string program{};
    std::string camera{};  ///< as given, without the name of a file
    std::string command{}; ///< as CommandText describes it
};

constexpr const char* oneCamera = "--record FILE records one camera; give one, or no --record";

/// Writes each port access of a run to a file, as a line of JSON that is complete before the next access. It holds no
/// more than the accesses and the command: no names of files or users.
///
/// If a line cannot be written, this is reported once, the recording ends, and the run continues.
class Recorder {
public:
    /// @throws UsageError for standard output
    explicit Recorder(RecordingOptions given);

    /// Creates the file, and writes its first line. Goes on with the file if the camera was opened again.
    /// @throws UsageError for a file that cannot be written, or another camera
    void Begin(const std::string& model, std::int32_t index);
    /// The next command of a shell.
    void Note(const std::string& command);
    void Write(const Access& access);

    [[nodiscard]] const std::string& File() const { return options.file; }
    [[nodiscard]] bool HasFailed() const { return failed; }

private:
    void WriteLine(const std::string& line);

    RecordingOptions options;
    std::string opened; ///< model and index
    std::chrono::steady_clock::time_point start{};
    std::ofstream stream;
    bool failed = false;
};

} // namespace Host
