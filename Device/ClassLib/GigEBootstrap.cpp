#include "GigEBootstrap.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace SDK4::Control {

namespace {

constexpr std::uint32_t minPacketSize = 1404;
constexpr std::uint32_t maxPacketSize = 65532;

/// Octet @p i of a word, the most significant byte being octet 0.
constexpr std::uint8_t Octet(std::uint32_t word, int i) { return static_cast<std::uint8_t>(word >> (24 - 8 * i)); }

} // namespace

KIPAddress::KIPAddress(std::uint32_t word) noexcept
    : octets{Octet(word, 0), Octet(word, 1), Octet(word, 2), Octet(word, 3)} {}

KIPAddress::operator std::string() const {
    char text[16] = {};
    std::snprintf(text, sizeof text, "%u.%u.%u.%u", octets[0], octets[1], octets[2], octets[3]);
    return text;
}

namespace GigEBootstrap {

void ReadMacAddress(IControlPort* port, MacText& text) {
    const std::uint32_t low = port->ReadRegister(DeviceMacLow);
    const std::uint32_t high = port->ReadRegister(DeviceMacHigh);
    std::snprintf(text, sizeof text, "%02X:%02X:%02X:%02X:%02X:%02X", Octet(high, 2), Octet(high, 3), Octet(low, 0),
                  Octet(low, 1), Octet(low, 2), Octet(low, 3));
}

bool WritePacketSize(IControlPort* port, std::uint32_t size) {
    const std::uint32_t admitted = std::clamp(size, minPacketSize, maxPacketSize);
    port->WriteRegister(PacketSize, admitted & ~std::uint32_t{3});
    return admitted == size;
}

void WriteUserDefinedName(IControlPort* port, const char* name) {
    char text[UserDefinedNameLength] = {};
    std::memcpy(text, name, strnlen(name, sizeof text - 1));
    port->WriteString(UserDefinedName, text, sizeof text);
}

bool Supports(IControlPort* port, IPMode mode) { return (port->ReadRegister(SupportedIPConfig) & mode) != 0; }

void Switch(IControlPort* port, IPMode mode, bool on) {
    const std::uint32_t config = port->ReadRegister(CurrentIPConfig);
    port->WriteRegister(CurrentIPConfig, on ? config | mode : config & ~std::uint32_t{mode});
}

void SwitchIfSupported(IControlPort* port, IPMode mode, bool on) {
    if (Supports(port, mode)) {
        Switch(port, mode, on);
    }
}

std::uint32_t ParseAddress(const char* text, std::array<unsigned int, 4>& numbers) {
    std::sscanf(text, "%u.%u.%u.%u", &numbers[0], &numbers[1], &numbers[2], &numbers[3]);
    std::uint32_t address = 0;
    for (const unsigned int number : numbers) {
        address = address << 8 | (number & 0xFF);
    }
    return address;
}

bool InCurrentSubnet(IControlPort* port, const PersistentConfig& wanted) {
    const std::uint32_t address = port->ReadRegister(CurrentAddress);
    const std::uint32_t mask = port->ReadRegister(CurrentMask);
    return (address & mask) == (wanted.address & wanted.mask);
}

void WritePersistentConfig(IControlPort* port, const PersistentConfig& config) {
    port->WriteRegister(PersistentAddress, config.address);
    port->WriteRegister(PersistentMask, config.mask);
    port->WriteRegister(PersistentGateway, config.gateway);
}

} // namespace GigEBootstrap
} // namespace SDK4::Control
