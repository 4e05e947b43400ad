#include "Host/Recording/Recording.h"

#include "Common/File.h"
#include "Common/Number.h"
#include "Host/Errors.h"
#include "Host/Json.h"
#include "Host/OutputFile.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <system_error>

namespace Host {

namespace {

/// An operation of the port.
struct PortOperation {
    std::string_view name;
    bool writes;
    std::uint64_t length; ///< in bytes; 0 if the caller chooses it
    bool mayBeShort;      ///< whether a read may return less
};

constexpr PortOperation portOperations[] = {
    {"ReadRegister", false, 4, false},     {"WriteRegister", true, 4, false}, {"ReadRegisterPair", false, 8, false},
    {"WriteRegisterPair", true, 8, false}, {"ReadBlock", false, 0, false},    {"WriteBlock", true, 0, false},
    {"ReadString", false, 0, false},       {"WriteString", true, 0, false},   {"ReadMem", false, 0, true},
    {"WriteMem", true, 0, false},
};

void Require(bool valid, const std::string& what) {
    if (!valid) {
        throw std::runtime_error(what);
    }
}

std::vector<std::uint8_t> FromHex(std::string_view text) {
    Require(text.size() % 2 == 0, "\"data\" must have two digits for each byte");
    std::vector<std::uint8_t> bytes;
    for (; !text.empty(); text.remove_prefix(2)) {
        const auto byte = Common::ParseWhole<std::uint8_t>(text.substr(0, 2), 16);
        Require(byte.has_value(), "\"data\" must be hexadecimal");
        bytes.push_back(*byte);
    }
    return bytes;
}

/// A member of a line.
/// @throws std::runtime_error if it is missing
std::string TextOf(const Json& line, const char* name) {
    const std::string* const text = line[name].Text();
    Require(text != nullptr, std::string("no text \"") + name + '"');
    return *text;
}

std::int64_t NumberOf(const Json& line, const char* name) {
    const std::int64_t* const number = line[name].Number();
    Require(number != nullptr && *number >= 0, std::string("no number \"") + name + '"');
    return *number;
}

void ReadData(const Json& line, const PortOperation& operation, RecordedAccess& access) {
    const bool isRead = !operation.writes;
    const bool hasData = operation.writes || access.failure.kind.empty();
    access.data = hasData ? FromHex(TextOf(line, "data")) : std::vector<std::uint8_t>();
    const bool hasLength = isRead && line["length"].Number() != nullptr;
    access.length = hasLength ? static_cast<std::uint64_t>(NumberOf(line, "length")) : access.data.size();
    Require(!hasData || access.data.size() == access.length ||
                (operation.mayBeShort && access.data.size() < access.length),
            "\"data\" has another length than was asked for");
    Require(operation.length == 0 || access.length == operation.length,
            TextOf(line, "operation") + " takes " + std::to_string(operation.length) + " bytes");
}

RecordedAccess ParseAccess(const Json& line) {
    RecordedAccess access;
    access.microseconds = NumberOf(line, "microseconds");
    access.duration = NumberOf(line, "duration");
    access.call = TextOf(line, "call");
    access.operation = TextOf(line, "operation");
    const auto* const operation =
        std::find_if(std::begin(portOperations), std::end(portOperations),
                     [&](const PortOperation& each) { return each.name == access.operation; });
    Require(operation != std::end(portOperations), "unknown operation \"" + access.operation + '"');
    access.write = operation->writes;
    const std::string address = TextOf(line, "address");
    const auto parsed = Common::ParseNumber(address);
    Require(parsed && *parsed >= 0, "invalid address \"" + address + '"');
    access.address = static_cast<std::uint32_t>(*parsed);
    if (line["failed"].Text() != nullptr) {
        access.failure = {TextOf(line, "failed"), TextOf(line, "reason")};
        Require(IsFailureKind(access.failure.kind), "unknown failure \"" + access.failure.kind + '"');
    }
    ReadData(line, *operation, access);
    return access;
}

/// Reads line by line.
class RecordingReader {
public:
    void Take(std::size_t number, const Json& line) {
        recording.lastLine = number;
        if (number == 1) {
            TakeHeader(line);
        } else if (line["operation"].Text() == nullptr) {
            recording.lastCommand = TextOf(line, "command");
        } else {
            recording.accesses.push_back(ParseAccess(line));
            recording.accesses.back().line = number;
            recording.accesses.back().command = recording.lastCommand;
        }
    }

    Recording recording;

private:
    void TakeHeader(const Json& line) {
        const auto* const format = line["format"].Text();
        Require(format != nullptr && *format == RecordingFormat::name, "this is no recording of qdv12host");
        const std::int64_t version = NumberOf(line, "version");
        Require(version == RecordingFormat::version,
                "format version " + std::to_string(version) + " is unknown; use a newer qdv12host");
        recording.model = TextOf(line, "model");
        const auto* const index = line["index"].Number();
        using Limits = std::numeric_limits<std::int32_t>;
        Require(index != nullptr && *index >= Limits::min() && *index <= Limits::max(), "no valid \"index\"");
        recording.index = static_cast<std::int32_t>(*index);
        recording.lastCommand = TextOf(line, "command");
    }
};

std::string ContentOf(const std::string& file) {
    try {
        return Common::ReadFile(file);
    } catch (const std::system_error& error) {
        throw OpenError(DescribeFile(file) + ": cannot be read: " + error.code().message());
    }
}

/// @return what is wrong with the line that is read, or empty
template <typename Read> std::string FaultOf(const Read& read) {
    try {
        read();
        return "";
    } catch (const std::runtime_error& error) {
        return error.what();
    } catch (const std::exception&) {
        return "this is no line of JSON";
    }
}

} // namespace

std::string ToHex(std::span<const std::uint8_t> bytes) {
    constexpr const char* digits = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += {digits[byte >> 4], digits[byte & 0xFU]};
    }
    return text;
}

Recording ReadRecording(const std::string& file) {
    const std::string content = ContentOf(file);
    RecordingReader reader;
    std::size_t at = 0;
    for (std::size_t number = 1; at < content.size() || number == 1; ++number) {
        const std::size_t end = std::min(content.find('\n', at), content.size());
        const std::string fault = FaultOf([&] { reader.Take(number, Json::Parse(content.substr(at, end - at))); });
        if (!fault.empty() && end == content.size() && number > 1) { // the program was killed, or the disk was full
            reader.recording.isTruncated = true;
            break;
        }
        if (!fault.empty()) {
            throw OpenError(DescribeFile(file) + ", line " + std::to_string(number) + ": " + fault);
        }
        at = end + 1;
    }
    return std::move(reader.recording);
}

} // namespace Host
