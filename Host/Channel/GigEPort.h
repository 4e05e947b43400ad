#pragma once

#include "Host/Channel/Availability.h"
#include "Host/Channel/ChannelPort.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>

struct _ArvDevice; // declared here to keep Aravis headers out
struct _GError;

namespace Host {

/// A port that controls a camera, over the control channel of Aravis.
///
/// Control is taken on opening, if no other program has it, kept by the heartbeat of Aravis, and released at the end.
/// Operations throw ChannelError: NoSuchAddress if the camera lacks the address; ControlHeld for a write without
/// control, before anything is sent; ChannelLost from the first access on that finds the camera or the control lost, or
/// a signal pending.
class GigEPort final : public ChannelPort {
public:
    /// Opens the channel. Nothing is broadcast.
    /// @param address an IPv4 address
    /// @throws OpenError
    explicit GigEPort(const std::string& address);
    ~GigEPort();
    GigEPort(const GigEPort&) = delete;
    GigEPort& operator=(const GigEPort&) = delete;

    /// For the stream of pictures.
    [[nodiscard]] _ArvDevice& Device() { return *device; }

    [[nodiscard]] bool HasControl() const { return controls; }
    /// Takes control, if no other program has it now.
    void TryToTakeControl();
    [[nodiscard]] std::string DescribeController() const { return Host::DescribeController(Name(), controller); }
    /// Whether a write failed for lack of control since the last call.
    [[nodiscard]] bool TakeDenied() { return std::exchange(denied, false); }
    /// @throws ChannelLost if this program has lost control; reported only once
    void RequireUnbrokenControl();

private:
    enum class Lost { No, Silent, Control };
    struct Release {
        void operator()(_ArvDevice* opened) const;
    };

    std::uint32_t ReadWord(const Operation& operation) override;
    void WriteWord(const Operation& operation, std::uint32_t value) override;
    void ReadMemory(const Operation& operation, std::uint32_t address, std::span<std::uint8_t> data) override;
    void WriteMemory(const Operation& operation, std::uint32_t address, std::span<std::uint8_t> data) override;
    /// Makes one access through Aravis.
    void Access(const Operation& operation, const std::function<bool(_GError**)>& access);
    [[noreturn]] void Fail(const Operation& operation, const _GError& error);
    /// @throws Ending if a signal is pending
    static void RequireNotEnding(const Operation& operation);
    [[noreturn]] void FailAsLost(const Operation& operation) const;
    /// Reads an optional register: 0 if it is missing.
    [[nodiscard]] std::uint32_t ReadOptional(std::uint32_t address);
    [[nodiscard]] Controller ReadController();
    /// Whether the camera reports a different controller, or does not answer.
    [[nodiscard]] bool IsLost();

    using Flag = std::shared_ptr<std::atomic<bool>>;

    Flag controlLost = std::make_shared<std::atomic<bool>>(false); ///< set by the heartbeat thread of the device
    std::unique_ptr<_ArvDevice, Release> device;
    bool controls = false;
    bool denied = false;
    Controller controller; ///< as reported when control was taken or refused
    Lost lost = Lost::No;
};

} // namespace Host
