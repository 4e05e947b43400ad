#pragma once

#include <cstdint>

/// Bootstrap registers of the GigE Vision standard.
namespace Common::Bootstrap {

constexpr std::uint32_t macAddress = 0x0008; ///< two bytes that are zero, then six
constexpr std::uint32_t supportedIPConfiguration = 0x0010;
constexpr std::uint32_t currentIPConfiguration = 0x0014;
constexpr std::uint32_t currentAddress = 0x0024;
constexpr std::uint32_t currentSubnetMask = 0x0034;
constexpr std::uint32_t currentGateway = 0x0044;
constexpr std::uint32_t modelName = 0x0068;
constexpr std::uint16_t modelNameLength = 32;
constexpr std::uint32_t serialNumber = 0x00D8;
constexpr std::uint16_t serialNumberLength = 16;
constexpr std::uint32_t userDefinedName = 0x00E8;
constexpr std::uint16_t userDefinedNameLength = 16;
constexpr std::uint32_t persistentIP[] = {0x064C, 0x065C, 0x066C}; ///< address, mask, gateway
constexpr std::uint32_t controlChannelPrivilege = 0x0A00;
constexpr std::uint32_t primaryApplicationPort = 0x0A04;
constexpr std::uint32_t primaryApplicationAddress = 0x0A14;
constexpr std::uint32_t streamPort = 0x0D00;
constexpr std::uint32_t streamPacketSize = 0x0D04;

} // namespace Common::Bootstrap
