#include "Host/Functions/PersistentIP.h"

#include "Common/Bootstrap.h"
#include "Common/Ipv4.h"
#include "Common/Text.h"

#include <SDK4/X4Error.h>

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>

namespace Host {

namespace {

using Common::IpConfiguration;

constexpr const char* noPersistentIP = "off";
constexpr std::uint32_t persistentBit = 1; ///< of the supported and of the current configuration

/// The texts of address, mask and gateway.
std::optional<std::array<std::string, 3>> SplitAddresses(const std::string& text) {
    const std::size_t mask = text.find(',');
    const std::size_t gateway = text.find(',', mask + 1);
    if (mask == std::string::npos || gateway == std::string::npos) {
        return std::nullopt;
    }
    return {{text.substr(0, mask), text.substr(mask + 1, gateway - mask - 1), text.substr(gateway + 1)}};
}

std::optional<IpConfiguration> ParseAddresses(const std::string& text) {
    const auto parts = SplitAddresses(text);
    return parts ? Common::ParseConfiguration((*parts)[0], (*parts)[1], (*parts)[2]) : std::nullopt;
}

/// Only a subnet that the camera is in now.
void RequirePresentSubnet(SDK4::Control::IGigECamera& camera, const IpConfiguration& wanted) {
    const auto address = Common::ParseAddress(camera.GetCurrentIPAddress());
    const auto mask = Common::ParseAddress(camera.GetCurrentSubnetmask());
    const IpConfiguration present{address.value_or(0), mask.value_or(0)};
    if ((wanted.address & wanted.subnetMask) != (present.address & present.subnetMask)) {
        throw std::runtime_error("the camera is in the subnet " + Common::PrintSubnet(present) +
                                 ", and takes no address of another; force-ip puts it there first");
    }
}

} // namespace

std::string GetPersistentIP(SDK4::IControlPort& port) {
    using namespace Common::Bootstrap;
    if ((port.ReadRegister(supportedIPConfiguration) & persistentBit) == 0) {
        throw SDK4::X4Error(SDK4_ERR_NOT_IMPLEMENTED);
    }
    const bool isOn = (port.ReadRegister(currentIPConfiguration) & persistentBit) != 0;
    std::array<std::string, 3> parts;
    std::transform(std::begin(persistentIP), std::end(persistentIP), parts.begin(),
                   [&](std::uint32_t address) { return Common::PrintAddress(port.ReadRegister(address)); });
    return isOn ? parts[0] + ',' + parts[1] + ',' + parts[2] : noPersistentIP;
}

void SetPersistentIP(SDK4::Control::IGigECamera& camera, const char* text) {
    if (text == std::string(noPersistentIP)) {
        camera.DisablePersistentIP();
        return;
    }
    const auto parts = SplitAddresses(text);
    const auto wanted = ParseAddresses(text);
    if (!parts || !wanted) {
        throw SDK4::X4Error(SDK4_ERR_INVALID_PARAMETER);
    }
    RequirePresentSubnet(camera, *wanted);
    camera.EnablePersistentIP((*parts)[0].c_str(), (*parts)[1].c_str(), (*parts)[2].c_str());
    if ((camera.GetCurrentIPConfig() & persistentBit) == 0) {
        throw SDK4::X4Error(SDK4_ERR_NOT_IMPLEMENTED);
    }
}

std::string WhyInvalidPersistentIP(const Value& value) {
    if (value.text == noPersistentIP) {
        return "";
    }
    const auto wanted = ParseAddresses(value.text);
    return wanted ? Common::WhyUnusable(*wanted)
                  : "off, or address, mask and gateway, such as 192.168.1.20,255.255.255.0,0.0.0.0";
}

std::string CautionAboutPersistentIP(const Value& value) {
    const auto wanted = ParseAddresses(value.text);
    return !wanted || Common::HasNeighbour(*wanted)
               ? ""
               : "no network card of this machine is in the subnet " + Common::PrintSubnet(*wanted) +
                     "; from its next start on, the camera can be reached through a router only";
}

} // namespace Host
