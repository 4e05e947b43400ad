#pragma once

#include <SDK4/IControlPort.h>

#include <cstddef>
#include <cstdint>
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
    double microseconds; ///< that the access took
};

/// A port that hands every access on to another one, and then tells an observer of it or remembers it.
class TracingPort final : public SDK4::IControlPort {
public:
    using Observer = void (*)(const Access&);

    explicit TracingPort(SDK4::IControlPort& traced, Observer told = nullptr) : port(traced), observer(told) {}

    /// Without an observer: what was accessed since the last call.
    [[nodiscard]] std::vector<Access> Take() { return std::exchange(accesses, {}); }

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
    /// Makes an access, which is told also if the port throws. What the call returns, null for nothing, is the data;
    /// how long it is is known behind the call.
    template <typename Call> void Make(Access access, const Call& call, const std::uint64_t& length);
    template <typename Call>
    void Read(const char* operation, std::uint32_t address, const std::uint64_t& length, const Call& read);
    template <typename Call>
    void Write(const char* operation, std::uint32_t address, const void* data, std::uint64_t length, const Call& write);

    SDK4::IControlPort& port;
    Observer observer;
    std::vector<Access> accesses;
};

} // namespace Host
