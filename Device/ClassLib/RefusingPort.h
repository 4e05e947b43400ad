#pragma once

#include <SDK4/IControlPort.h>

namespace SDK4 {

/// Replaces a null port: every access throws SDK4_ERR_INVALID_PARAMETER. A control can be created on it, and its first
/// access fails.
class RefusingPort final : public IControlPort {
public:
    static IControlPort* Instance();

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
};

} // namespace SDK4
