#pragma once

#include <SDK4/IControlPort.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

struct _ArvDevice; // declared here to keep Aravis headers out
struct _GError;

namespace Host {

/// A port to a GigE Vision camera, over the control channel of Aravis. Single registers use register accesses,
/// everything else memory accesses that fit a packet. Unaligned reads are widened to whole words, unaligned writes
/// fail. Accesses that a busy camera refuses are retried for a tenth of a second.
///
/// Control is taken on opening, if no other program has it, kept by the heartbeat of Aravis, and released at the end.
/// Operations throw ChannelError: NoSuchAddress if the camera lacks the address; ControlHeld for a write without
/// control, before anything is sent; ChannelLost from the first access on that finds the camera or the control lost, or
/// a signal pending.
class GigEPort final : public SDK4::IControlPort {
public:
    /// Opens the channel. Nothing is broadcast.
    /// @param address an IPv4 address
    /// @throws OpenError
    explicit GigEPort(const std::string& address);
    ~GigEPort();
    GigEPort(const GigEPort&) = delete;
    GigEPort& operator=(const GigEPort&) = delete;

    /// "the camera at 192.168.1.10"
    [[nodiscard]] const std::string& Name() const { return camera; }
    /// The model name that the camera reports.
    [[nodiscard]] std::string ModelName();

    /// For the stream of pictures.
    [[nodiscard]] _ArvDevice& Device() { return *device; }

    [[nodiscard]] bool HasControl() const { return controls; }
    /// Takes control, if no other program has it now.
    void TryToTakeControl();
    /// "the camera at 192.168.1.10 is controlled by another program at 192.168.1.2:4711", without the address of the
    /// program if the camera does not report it.
    [[nodiscard]] std::string DescribeController() const;
    /// Whether a write failed for lack of control since the last call.
    [[nodiscard]] bool TakeDenied() { return std::exchange(denied, false); }
    /// @throws ChannelLost if this program has lost control; reported only once
    void RequireUnbrokenControl();

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
    enum class Lost { No, Silent, Control, Ending };
    /// The controlling application, as the camera reports it.
    struct Controller {
        std::uint32_t privilege = 0;
        std::uint32_t address = 0;
        std::uint32_t port = 0;

        bool operator==(const Controller&) const = default;
    };
    /// The operation of this port that is running.
    struct Operation {
        const char* name;
        std::uint32_t address;
        bool writes;
    };
    struct Release {
        void operator()(_ArvDevice* opened) const;
    };

    /// @throws ChannelError, before anything is sent, if the access exceeds the address space
    static void RequireAddresses(const Operation& operation, std::uint64_t length);
    void Read(const Operation& operation, std::uint8_t* data, std::uint64_t length);
    void Write(const Operation& operation, const std::uint8_t* data, std::uint64_t length);
    /// Makes one access through Aravis.
    void Access(const Operation& operation, const std::function<bool(_GError**)>& access);
    [[noreturn]] void Fail(const Operation& operation, const _GError& error);
    /// @throws Ending if a signal is pending
    void RequireNotEnding(const Operation& operation);
    [[noreturn]] void FailAsLost(const Operation& operation) const;
    /// Reads an optional register: 0 if it is missing.
    [[nodiscard]] std::uint32_t ReadOptional(std::uint32_t address);
    [[nodiscard]] Controller ReadController();
    /// Whether the camera reports a different controller, or does not answer.
    [[nodiscard]] bool IsLost();

    std::string camera;
    std::atomic<bool> controlLost = false; ///< set by the heartbeat thread, which ends with the device
    std::unique_ptr<_ArvDevice, Release> device;
    bool controls = false;
    bool denied = false;
    Controller controller; ///< as reported when control was taken or refused
    Lost lost = Lost::No;
    std::vector<char> text; ///< last result of ReadString
};

} // namespace Host
