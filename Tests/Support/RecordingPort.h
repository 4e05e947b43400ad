#pragma once

#include <SDK4/IControlPort.h>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Test {

using Bytes = std::vector<std::uint8_t>;

/// The words in the host's byte order.
Bytes Words(const std::vector<std::uint32_t>& words);

/// A text block of @p length bytes: a word that is not part of the text, the text, NUL bytes.
Bytes TextBlock(std::size_t length, const std::string& text);

/// A port over plain bytes that records every access as a short text:
///
///     r 0014              ReadRegister             w 0D04=1500         WriteRegister
///     R 14010000/4        ReadMem of 4 bytes       W 14010000=511      WriteMem
///     rp 0100             ReadRegisterPair         wp 0100=1,2         WriteRegisterPair
///     rb 0100/8           ReadBlock                wb 0100=1,2         WriteBlock
///     rs 0200/512         ReadString               ws 00E8/16=name     WriteString
///
/// Addresses are hexadecimal with 4 or 8 digits, values are decimal words joined by ","; bytes after the last whole
/// word follow as x0A. An unset word reads as its position, counted from 1: a block of three words reads 1,2,3.
class RecordingPort final : public SDK4::IControlPort {
public:
    void Set(std::uint32_t address, Bytes bytes) { memory[address] = std::move(bytes); }
    void Set(std::uint32_t address, std::uint32_t word) { Set(address, Words({word})); }

    /// Sets one of several instances at an address: the bytes that a read returns after its index word was written.
    void SetInstance(std::uint32_t address, std::uint32_t index, Bytes bytes) {
        instances[address][index] = std::move(bytes);
    }

    /// The bytes at an address, as set or written.
    Bytes Get(std::uint32_t address) const;

    /// The accesses since the last call, joined by "; ".
    std::string TakeLog();

    /// The @p nth access from now on, counted from 1, is recorded and then fails: it calls @p failure, which throws.
    void FailAt(unsigned int nth, std::function<void()> failure);

    std::optional<std::uint64_t>
        reportedCount;         ///< if set, the count returned by ReadMem and WriteMem; ReadMem fills no more bytes
    bool refuseBlocks = false; ///< ReadBlock and ReadString return null

    void WriteRegister(std::uint32_t address, std::uint32_t value) override;
    std::uint32_t ReadRegister(std::uint32_t address) override;
    void WriteRegisterPair(std::uint32_t address, std::uint64_t value) override;
    std::uint64_t ReadRegisterPair(std::uint32_t address) override;
    unsigned char* ReadBlock(std::uint32_t address, std::uint32_t length) override;
    void WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) override;
    char* ReadString(std::uint32_t address, std::uint32_t length) override;
    void WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) override;
    void ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;
    void WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;

private:
    void Record(const std::string& access);
    void Load(std::uint32_t address, void* buffer, std::size_t length) const;
    void Store(std::uint32_t address, const void* buffer, std::size_t length);

    std::map<std::uint32_t, Bytes> memory;
    std::map<std::uint32_t, std::map<std::uint32_t, Bytes>> instances;
    std::string log;
    std::string text; ///< the last result of ReadString
    unsigned int failIn = 0;
    std::function<void()> fail;
};

} // namespace Test
