#pragma once

#include <SDK4/IControlPort.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

struct _ArvDevice; // Aravis' own name for what its headers would declare
struct _GError;

namespace Host {

/// A port to a GigE Vision camera, over the control channel of Aravis. Single registers are moved by register access,
/// everything else by memory access, in pieces that fit a packet. What is not aligned to words is read with what
/// surrounds it, and not written. What a busy camera refuses is asked for again, for a tenth of a second.
///
/// Control is taken on opening, if no other program has it, kept by Aravis' heartbeat, and given back at the end.
/// Every operation throws ChannelError; one that the camera has no address for NoSuchAddress; a write without control
/// ControlHeld, before anything is sent; the first access that finds the camera or the control gone, or this program
/// about to end by a signal, and every one after that, ChannelLost.
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
    /// What the camera calls itself.
    [[nodiscard]] std::string ModelName();

    [[nodiscard]] bool HasControl() const { return controls; }
    /// Takes control, if no other program has it now.
    void TryToTakeControl();
    /// While another program has control: "the camera at 192.168.1.10 is controlled by another program at
    /// 192.168.1.2:4711", without its address if the camera does not tell it.
    [[nodiscard]] std::string DescribeController() const;
    /// Whether a write failed for want of control since the last call.
    [[nodiscard]] bool TakeDenied() { return std::exchange(denied, false); }
    /// @throws ChannelLost if control is no longer with this program; once only
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
    /// Who is in control of the camera, as far as it tells.
    struct Controller {
        std::uint32_t privilege = 0;
        std::uint32_t address = 0;
        std::uint32_t port = 0;

        bool operator==(const Controller&) const = default;
    };
    /// An operation of this port while it is carried out.
    struct Operation {
        const char* name;
        std::uint32_t address;
        bool writes;
    };
    struct Release {
        void operator()(_ArvDevice* opened) const;
    };

    /// @throws ChannelError, before anything is sent, if that many bytes reach beyond the last address
    static void RequireAddresses(const Operation& operation, std::uint64_t length);
    void Read(const Operation& operation, std::uint8_t* data, std::uint64_t length);
    void Write(const Operation& operation, const std::uint8_t* data, std::uint64_t length);
    /// Makes one access of Aravis, which says how it failed.
    void Access(const Operation& operation, const std::function<bool(_GError**)>& access);
    [[noreturn]] void Fail(const Operation& operation, const _GError& error);
    /// Ends what runs by an exception, if a signal is to end this program.
    void RequireNotEnding(const Operation& operation);
    [[noreturn]] void FailAsLost(const Operation& operation) const;
    /// Reads a register that a camera need not have: 0 without it.
    [[nodiscard]] std::uint32_t ReadOptional(std::uint32_t address);
    [[nodiscard]] Controller ReadController();
    /// Whether the camera no longer tells of the controller that it told of before, or nothing at all.
    [[nodiscard]] bool IsLost();

    std::string camera;
    std::atomic<bool> controlLost = false; ///< set by the thread of the heartbeat, which goes with the device
    std::unique_ptr<_ArvDevice, Release> device;
    bool controls = false;
    bool denied = false;
    Controller controller; ///< what the camera told when control was taken, or refused
    Lost lost = Lost::No;
    std::vector<char> text; ///< what ReadString handed out last
};

} // namespace Host
