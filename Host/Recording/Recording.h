#pragma once

#include "Host/Recording/AccessFailure.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace Host {

namespace RecordingFormat {
constexpr const char* name = "qdv12host recording";
constexpr int version = 1;
} // namespace RecordingFormat

/// Two hexadecimal digits for each byte.
[[nodiscard]] std::string ToHex(std::span<const std::uint8_t> bytes);

/// One line of a recording.
struct RecordedAccess {
    std::size_t line = 0;
    std::int64_t microseconds = 0; ///< from the start of the run to that of the access
    std::int64_t duration = 0;     ///< in microseconds
    std::string command{};         ///< that made it
    std::string call{};            ///< "set gain", or empty
    std::string operation{};
    std::uint32_t address = 0;
    bool write = false;
    std::vector<std::uint8_t> data{}; ///< written, or read
    std::uint64_t length = 0;         ///< in bytes, as the caller asked for
    AccessFailure failure{};
};

/// A recorded session, as Recorder wrote it.
struct Recording {
    std::string model;
    std::int32_t index = 0;
    std::vector<RecordedAccess> accesses{};
    std::size_t lastLine = 0;
    std::string lastCommand{};
    bool isTruncated = false; ///< whether the last line is incomplete, which is then left out
};

/// @throws OpenError with the number of the line that is invalid
[[nodiscard]] Recording ReadRecording(const std::string& file);

} // namespace Host
