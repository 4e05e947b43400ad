#pragma once

#include "Host/Channel/ChannelPort.h"
#include "Host/Channel/Requests.h"

#include <optional>
#include <string>
#include <utility>

namespace Host {

/// A port that only reads. It never takes control, so it disturbs no program that has it.
///
/// Operations throw ChannelError: NoSuchAddress if the camera lacks the address; ControlHeld for every write, before
/// anything is sent; ChannelLost from the first access on that is not answered.
class ReadOnlyPort final : public ChannelPort {
public:
    /// Reads one register, to find out whether the camera answers.
    /// @param address an IPv4 address
    /// @throws CameraUnavailable
    explicit ReadOnlyPort(const std::string& address);

    /// Why a write fails.
    [[nodiscard]] std::string DescribeDenial() const { return Name() + " was opened with --no-control"; }
    /// Whether a write failed since the last call.
    [[nodiscard]] bool TakeDenied() { return std::exchange(denied, false); }

private:
    std::uint32_t ReadWord(const Operation& operation) override;
    void WriteWord(const Operation& operation, std::uint32_t value) override;
    void ReadMemory(const Operation& operation, std::uint32_t address, std::span<std::uint8_t> data) override;
    void WriteMemory(const Operation& operation, std::uint32_t address, std::span<std::uint8_t> data) override;

    /// Makes a request, and requires data of that length.
    template <typename Request>
    Common::Gvcp::Bytes Read(const Operation& operation, std::size_t length, const Request& request);
    [[noreturn]] void Deny(const Operation& operation);

    Requests requests;
    bool lost = false;
    bool denied = false;
};

} // namespace Host
