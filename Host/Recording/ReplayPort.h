#pragma once

#include "Host/Channel/ChannelErrors.h"
#include "Host/Recording/Recording.h"

#include <SDK4/IControlPort.h>

#include <chrono>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace Host {

/// An access that differs from the recorded one, or comes after the last.
class ReplayDiffers final : public ChannelLost {
public:
    using ChannelLost::ChannelLost;
};

/// A port that answers as a recording does.
///
/// Strict: each access must be the next one of the recording, and has its answer or error. The first one that differs
/// and all later ones throw ReplayDiffers.
///
/// Loose: a read returns what was last read at its address, by the same operation, at that time of the recording. If
/// this run wrote to the address, only reads after the same write count, if there are any, so that an index selects.
/// The time is that of the waits and of the answered accesses. Writes are accepted. An access to an address without
/// recorded accesses throws ChannelError.
class ReplayPort final : public SDK4::IControlPort {
public:
    ReplayPort(Recording replayed, bool answersLoosely);

    [[nodiscard]] const Recording& Source() const { return recording; }
    /// Lets the time of a loose replay pass.
    void Pass(std::chrono::microseconds passed) { time += passed; }
    /// After a strict replay without difference: the accesses that were not made, or empty.
    [[nodiscard]] std::string DescribeRest() const;
    /// What the last access without control said since the last call, or empty.
    [[nodiscard]] std::string TakeDenial() { return std::exchange(denial, ""); }

    void WriteRegister(std::uint32_t address, std::uint32_t value) override;
    std::uint32_t ReadRegister(std::uint32_t address) override;
    void WriteRegisterPair(std::uint32_t address, std::uint64_t value) override;
    std::uint64_t ReadRegisterPair(std::uint32_t address) override;
    unsigned char* ReadBlock(std::uint32_t address, std::uint32_t length) override;
    void WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) override;
    /// The text stays valid until the next call of this operation on this port.
    char* ReadString(std::uint32_t address, std::uint32_t length) override;
    void WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) override;
    void ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;
    void WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;

private:
    using Bytes = std::vector<std::uint8_t>;
    /// Reads that may stand for each other: operation, address, length.
    using Question = std::tuple<std::string, std::uint32_t, std::uint64_t>;
    /// A recorded read, and what had been written to its address before.
    struct Sample {
        const RecordedAccess* access;
        Bytes written;
    };

    void Write(const char* operation, std::uint32_t address, const void* data, std::uint64_t length);
    /// @return the bytes, or null if the recorded port returned nothing
    const Bytes* Read(const char* operation, std::uint32_t address, std::uint64_t length);
    template <typename Word> Word ReadWord(const char* operation, std::uint32_t address);

    const RecordedAccess& Next(const RecordedAccess& made);
    const RecordedAccess& LastBefore(const RecordedAccess& made);
    void AcceptLoosely(const RecordedAccess& made);
    /// @return the data, or null. @throws the recorded error
    const Bytes* Answer(const RecordedAccess& recorded);
    [[noreturn]] void Stop(const RecordedAccess& made, const std::string& reason);

    const Recording recording;
    const bool loose;
    std::size_t next = 0;   ///< of a strict replay
    std::string difference; ///< that ended it
    std::string denial;
    std::chrono::microseconds time{0};
    std::map<Question, std::vector<Sample>> samples; ///< of a loose replay, in the order of time
    std::map<std::uint32_t, Bytes> lastWrites; ///< by address, of the recording while it is loaded, then of the run
    std::vector<char> text;                    ///< last result of ReadString
};

} // namespace Host
