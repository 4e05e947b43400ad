#pragma once

#include <SDK4/IControlPort.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <utility>
#include <vector>

namespace Host {

/// One access to the camera.
struct Access {
    const char* operation;
    std::uint32_t address;
    bool write;
    bool failed; ///< the port threw or returned null
    std::vector<std::uint8_t> data;
    double microseconds;        ///< duration
    std::uint64_t length = 0;   ///< in bytes, as the caller asked for
    std::exception_ptr error{}; ///< what the port threw
};

/// A port that forwards every access to another one, and passes it to an observer or records it.
class TracingPort final : public SDK4::IControlPort {
public:
    using Observer = std::function<void(const Access&)>;

    explicit TracingPort(SDK4::IControlPort& traced, Observer told = nullptr)
        : port(traced),
          observer(std::move(told)) {}

    /// The recorded accesses since the last call. None with an observer.
    [[nodiscard]] std::vector<Access> Take() { return std::exchange(accesses, {}); }

    void WriteRegister(std::uint32_t address, std::uint32_t value) override;
    std::uint32_t ReadRegister(std::uint32_t address) override;
    void WriteRegisterPair(std::uint32_t address, std::uint64_t value) override;
    std::uint64_t ReadRegisterPair(std::uint32_t address) override;
    unsigned char* ReadBlock(std::uint32_t address, std::uint32_t length) override;
    void WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) override;
    /// Records all @p length bytes: a text may follow a word with zeros.
    char* ReadString(std::uint32_t address, std::uint32_t length) override;
    void WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) override;
    void ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;
    void WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;

private:
    /// Makes an access and records it, even if the port throws. The call returns the data, or null; @p length is read
    /// after the call.
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
