#pragma once

#include <SDK4/IControlPort.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace Host {

/// One access to the camera.
struct Access {
    const char* operation;
    std::uint32_t address;
    bool write;
    bool failed; ///< the port threw, or had no block to give
    std::vector<std::uint8_t> data;
};

/// A port that hands every access on to another one and remembers it.
class TracingPort final : public SDK4::IControlPort {
public:
    explicit TracingPort(SDK4::IControlPort& traced) : port(traced) {}

    /// What was accessed since the last call.
    [[nodiscard]] std::vector<Access> Take() { return std::exchange(accesses, {}); }

    /// How many accesses Take would give back.
    [[nodiscard]] std::size_t Count() const { return accesses.size(); }

    void WriteRegister(std::uint32_t address, std::uint32_t value) override;
    std::uint32_t ReadRegister(std::uint32_t address) override;
    void WriteRegisterPair(std::uint32_t address, std::uint64_t value) override;
    std::uint64_t ReadRegisterPair(std::uint32_t address) override;
    unsigned char* ReadBlock(std::uint32_t address, std::uint32_t length) override;
    void WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) override;
    /// What the traced port hands out is as long as asked for: a text may lie behind a word with zeros in it.
    char* ReadString(std::uint32_t address, std::uint32_t length) override;
    void WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) override;
    void ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;
    void WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;

private:
    /// Enters a read as failed; Complete makes it good.
    void Reading(const char* operation, std::uint32_t address);
    void Complete(const void* data, std::uint64_t length);
    /// Enters a write, and it as failed if the port throws.
    void Write(const char* operation, std::uint32_t address, const void* data, std::uint64_t length,
               const std::function<void()>& write);

    SDK4::IControlPort& port;
    std::vector<Access> accesses;
};

} // namespace Host
