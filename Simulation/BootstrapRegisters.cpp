#include "Simulation/BootstrapRegisters.h"

#include "Common/Bootstrap.h"
#include "Simulation/Addresses.h"
#include "Simulation/Description.h"

#include <algorithm>
#include <cstdio>

namespace Simulation {

namespace {

constexpr std::uint32_t IPAddress(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    return a << 24 | b << 16 | c << 8 | d;
}

/// Rounds the size to a multiple of 4 within the limits. The flag that fires a test packet is a command and reads as 0.
void RoundPacketSize(RegisterSpace& space) {
    const std::uint32_t written = space.Get("packetsize")[0];
    const std::uint32_t settableFlags = 0x60000000; // do not fragment, byte order of pixels
    const std::uint32_t size = std::clamp(written & 0xFFFFU, 1404U, 65532U) & ~3U;
    space.Set("packetsize", {(written & settableFlags) | size});
}

/// At its start a camera uses the persistent address, if enabled and set, or else the assigned one.
void AssignAddress(RegisterSpace& space) {
    const std::uint32_t persistent = 1;
    const bool isPersistent =
        (space.Get("currentipconfig")[0] & persistent) != 0 && space.Get("persistentipaddress")[0] != 0;
    for (const std::string name : {"ipaddress", "subnetmask", "defaultgateway"}) {
        const Words assigned = ToWords(space.Find("current" + name)->powerUp.instances.front().value);
        space.Set("current" + name, isPersistent ? space.Get("persistent" + name) : assigned);
    }
}

std::size_t RoundedToWords(std::size_t bytes) { return (bytes + 3) / 4 * 4; }

/// The URL of the description in the camera's memory. The standard wants hexadecimal numbers without prefix.
std::string LocalUrl(const std::string& file, std::size_t length) {
    char location[32];
    std::snprintf(location, sizeof location, ";%X;%zX", descriptionAddress, length);
    return "Local:" + file + ".zip" + location;
}

} // namespace

std::vector<Register> BootstrapRegisters(const Identity& identity) {
    using enum Role;
    std::string file = identity.model; // a URL has no blanks
    std::replace(file.begin(), file.end(), ' ', '-');
    using namespace Common::Bootstrap;
    // clang-format off
    return {
        // name                        address role         kind and power-up value
        {"gigeversion",                0x0000, Fixed,       Word(0x00010002)},
        {"devicemode",                 0x0004, Fixed,       Word(0x80000001)},
        {"machigh",                    0x0008, Fixed,       Word(0x00000200)},          // locally administered
        {"maclow",                     0x000C, Fixed,       Word(0x12000000 | identity.number)},
        {"supportedipconfig",          0x0010, Fixed,       Word(7)},                   // persistent, DHCP, link-local
        {"currentipconfig",            0x0014, NonVolatile, Word(6)},                   // DHCP, link-local
        {"currentipaddress",           0x0024, Status,      Word(IPAddress(192, 168, 1, 10))},
        {"currentsubnetmask",          0x0034, Status,      Word(IPAddress(255, 255, 255, 0))},
        {"currentdefaultgateway",      0x0044, Status,      Word(IPAddress(192, 168, 1, 1))},
        {"manufacturername",           0x0048, Fixed,       Text(32, "Simulation")},
        {"modelname",                  modelName, Fixed,       Text(modelNameLength, identity.model)},
        {"deviceversion",              0x0088, Fixed,       Text(32, "1.0")},
        {"manufacturerinfo",           0x00A8, Fixed,       Text(48, "A camera that lives in memory")},
        {"bootstrapserialnumber",      0x00D8, Fixed,       Text(16, identity.serial)},
        {"userdefinedname",            userDefinedName, NonVolatile, Text(userDefinedNameLength, "")},
        {"firsturl",                   0x0200, Fixed,       Text(512, LocalUrl(file, identity.description.size()))},
        {"secondurl",                  0x0400, Fixed,       Text(512, "http://192.168.1.10/" + file + ".zip")},
        {"interfaces",                 0x0600, Fixed,       Word(1)},
        {"persistentipaddress",        0x064C, NonVolatile, Word(0)},
        {"persistentsubnetmask",       0x065C, NonVolatile, Word(0)},
        {"persistentdefaultgateway",   0x066C, NonVolatile, Word(0)},
        {"messagechannels",            0x0900, Fixed,       Word(0)},
        {"streamchannels",             0x0904, Fixed,       Word(1)},
        {"gvcpcapability",             0x0934, Fixed,       Word(0xC0000007)},          // name, serial number, packet resend, memory write, concatenation
        {"heartbeat",                  0x0938, Channel,     Word(3000)},                // milliseconds
        {"tickfrequencyhigh",          0x093C, Fixed,       Word(0)},
        {"tickfrequencylow",           0x0940, Fixed,       Word(1000000)},             // microseconds
        {"timestampcontrol",               0x0944, Channel,     Word(0)},
        {"timestamphigh",                  0x0948, Channel,     Word(0)},
        {"timestamplow",                   0x094C, Channel,     Word(0)},
        {"gvcpconfiguration",          0x0954, Volatile,    Word(0)},
        {"privilege",                  controlChannelPrivilege, Channel, Word(0)},
        {"applicationport",            primaryApplicationPort, Channel,     Word(0)},
        {"applicationaddress",         primaryApplicationAddress, Channel,     Word(0)},
        {"streamport",                 0x0D00, Channel,     Word(0)},
        {"packetsize",                 0x0D04, Volatile,    Word(1404)},
        {"packetdelay",                0x0D08, Volatile,    Word(0)},
        {"streamdestination",          0x0D18, Channel,     Word(0)},
        {"streamsourceport",           0x0D1C, Channel,     Word(0)},
        {"description",                descriptionAddress, Fixed, Text(RoundedToWords(identity.description.size()), identity.description)},
    };
    // clang-format on
}

void AddBootstrapBehaviour(SimulatedCamera& camera) {
    camera.AfterWrite("packetsize", RoundPacketSize);
    camera.AfterWrite("currentipconfig", [](RegisterSpace& space) {
        const std::uint32_t linkLocal = 4; // always on, by the standard
        space.Set("currentipconfig",
                  {(space.Get("currentipconfig")[0] & space.Get("supportedipconfig")[0]) | linkLocal});
    });
    camera.AfterWrite("restart", AssignAddress);
}

} // namespace Simulation
