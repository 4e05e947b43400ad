#pragma once

#include <SDK4/IControlPort.h>

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace Host {

/// A port to a GigE Vision camera: makes the operations from accesses of the control channel. Single registers use
/// register accesses, everything else memory accesses that fit a packet. Unaligned reads are widened to whole words,
/// unaligned writes fail. Accesses that a busy camera refuses are retried for a tenth of a second.
///
/// Operations throw ChannelError.
class ChannelPort : public SDK4::IControlPort {
public:
    ChannelPort(const ChannelPort&) = delete;
    ChannelPort& operator=(const ChannelPort&) = delete;

    /// "the camera at 192.168.1.10"
    [[nodiscard]] const std::string& Name() const { return camera; }
    /// The model name that the camera reports.
    [[nodiscard]] std::string ModelName();

    void WriteRegister(std::uint32_t address, std::uint32_t value) final;
    std::uint32_t ReadRegister(std::uint32_t address) final;
    void WriteRegisterPair(std::uint32_t address, std::uint64_t value) final;
    std::uint64_t ReadRegisterPair(std::uint32_t address) final;
    unsigned char* ReadBlock(std::uint32_t address, std::uint32_t length) final;
    void WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) final;
    /// The text stays valid until the next call of this operation on this port.
    char* ReadString(std::uint32_t address, std::uint32_t length) final;
    void WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) final;
    void ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) final;
    void WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) final;

protected:
    /// The operation of this port that is running.
    struct Operation {
        const char* name;
        std::uint32_t address;
        bool writes;
    };

    /// @param largest length of a memory access, a multiple of 4, at most 536
    ChannelPort(const std::string& address, std::uint32_t largest)
        : camera("the camera at " + address),
          largestAccess(largest) {}
    ~ChannelPort() = default;

private:
    // One access each. Addresses and lengths are multiples of 4.
    virtual std::uint32_t ReadWord(const Operation& operation) = 0;
    virtual void WriteWord(const Operation& operation, std::uint32_t value) = 0;
    virtual void ReadMemory(const Operation& operation, std::uint32_t address, std::span<std::uint8_t> data) = 0;
    virtual void WriteMemory(const Operation& operation, std::uint32_t address, std::span<std::uint8_t> data) = 0;

    /// @throws ChannelError, before anything is sent, if the access exceeds the address space
    static void RequireAddresses(const Operation& operation, std::uint64_t length);
    void Read(const Operation& operation, std::uint8_t* data, std::uint64_t length);
    void Write(const Operation& operation, const std::uint8_t* data, std::uint64_t length);

    std::string camera;
    std::uint64_t largestAccess;
    std::vector<char> text; ///< last result of ReadString
};

} // namespace Host
