#pragma once

// The bootstrap registers of the GigE Vision standard and the rules for using them that both camera families share.
// Logging and warnings are left to the two classes that use this.

#include <SDK4/IControlPort.h>

#include <array>
#include <cstdint>
#include <string>

namespace SDK4::Control {

/// An IPv4 address, first octet first.
struct KIPAddress {
    /// @param word the address as a bootstrap register holds it: first octet in the most significant byte
    explicit KIPAddress(std::uint32_t word) noexcept;

    /// The dotted text, "192.168.0.10".
    operator std::string() const;

    std::array<std::uint8_t, 4> octets;
};

namespace GigEBootstrap {

// clang-format off
/// Register addresses, in bytes. Network addresses have their first octet in the most significant byte.
enum Address : std::uint32_t {
    Version           = 0x0000, ///< major version in the upper half, minor in the lower
    DeviceMacHigh     = 0x0008, ///< octets 1 and 2, in the lower half
    DeviceMacLow      = 0x000C, ///< octets 3 to 6
    SupportedIPConfig = 0x0010, ///< IPMode bits that the device supports
    CurrentIPConfig   = 0x0014, ///< IPMode bits that are enabled
    CurrentAddress    = 0x0024,
    CurrentMask       = 0x0034,
    CurrentGateway    = 0x0044,
    ModelName         = 0x0068,
    UserDefinedName   = 0x00E8,
    FirstUrl          = 0x0200,
    SecondUrl         = 0x0400,
    PersistentAddress = 0x064C,
    PersistentMask    = 0x065C,
    PersistentGateway = 0x066C,
    GvcpCapability    = 0x0934,
    GvcpConfiguration = 0x0954, ///< optional; reading it fails on some devices
    PacketSize        = 0x0D04, ///< stream channel 0
    PacketDelay       = 0x0D08, ///< stream channel 0
};

/// Lengths of the texts, in bytes.
enum TextLength : std::uint32_t {
    ModelNameLength       = 32,
    UserDefinedNameLength = 16,
    UrlLength             = 512,
};

/// How a device gets its address.
enum IPMode : std::uint32_t {
    PersistentIP = 1,
    DHCP         = 2,
};
// clang-format on

/// A configuration that is kept without power.
struct PersistentConfig {
    std::uint32_t address;
    std::uint32_t mask;
    std::uint32_t gateway;
};

/// Room for "0A:1B:2C:3D:4E:5F".
using MacText = char[18];

/// Reads the MAC address, the low word first, and writes its text into @p text.
void ReadMacAddress(IControlPort* port, MacText& text);

/// Writes the packet size, clamped to 1404..65532 and rounded down to a multiple of 4.
/// @return false when @p size was outside these limits; the device then holds the nearest one.
[[nodiscard]] bool WritePacketSize(IControlPort* port, std::uint32_t size);

/// Writes at most the first 15 characters of @p name, padded with zeros.
void WriteUserDefinedName(IControlPort* port, const char* name);

[[nodiscard]] bool Supports(IControlPort* port, IPMode mode);

/// Switches @p mode on or off and leaves the other modes as they are.
void Switch(IControlPort* port, IPMode mode, bool on);

/// Switches @p mode on or off if the device supports it; otherwise does nothing.
void SwitchIfSupported(IControlPort* port, IPMode mode, bool on);

/// Parses dotted text into @p numbers and returns the address made of their low bytes. A number that is missing in the
/// text keeps its value in @p numbers.
[[nodiscard]] std::uint32_t ParseAddress(const char* text, std::array<unsigned int, 4>& numbers);

/// Whether @p wanted is in the subnet that the device uses now. A device is never moved out of it.
[[nodiscard]] bool InCurrentSubnet(IControlPort* port, const PersistentConfig& wanted);

/// Writes the persistent address, mask and gateway, in this order.
void WritePersistentConfig(IControlPort* port, const PersistentConfig& config);

} // namespace GigEBootstrap
} // namespace SDK4::Control
