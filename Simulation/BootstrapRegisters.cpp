#include "Simulation/BootstrapRegisters.h"

#include "Simulation/Addresses.h"
#include "Simulation/Description.h"

#include <algorithm>
#include <cstdio>

namespace Simulation {

namespace {

constexpr std::uint32_t Address(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    return a << 24 | b << 16 | c << 8 | d;
}

/// The size is a multiple of 4 within the camera's limits; of the flags above it, the test packet's is a command.
void RoundPacketSize(RegisterSpace& space) {
    const std::uint32_t written = space.Get("packetsize")[0];
    const std::uint32_t keptFlags = 0x60000000; // do not fragment, byte order of pixels
    const std::uint32_t size = std::clamp(written & 0xFFFFU, 1404U, 65532U) & ~3U;
    space.Set("packetsize", {(written & keptFlags) | size});
}

/// A camera that starts takes the persistent address if it has one that it is to use, and is given one otherwise.
void TakeAddress(RegisterSpace& space) {
    const std::uint32_t persistent = 1;
    const bool own = (space.Get("currentipconfig")[0] & persistent) != 0 && space.Get("persistentipaddress")[0] != 0;
    for (const std::string name : {"ipaddress", "subnetmask", "defaultgateway"}) {
        const Words given = ToWords(space.Find("current" + name)->powerUp.instances.front().value);
        space.Set("current" + name, own ? space.Get("persistent" + name) : given);
    }
}

/// The size that as many whole words have.
std::size_t InWords(std::size_t bytes) { return (bytes + 3) / 4 * 4; }

/// Where in the camera's memory the description is found, as the standard has it: in hexadecimal without prefix.
std::string LocalUrl(const std::string& file, std::size_t length) {
    char place[32];
    std::snprintf(place, sizeof place, ";%X;%zX", descriptionAddress, length);
    return "Local:" + file + ".xml" + place;
}

} // namespace

std::vector<Register> BootstrapRegisters(const Identity& identity) {
    const auto fixed = Role::Fixed;
    const auto shown = Role::Shown;
    const auto flash = Role::NonVolatile;
    const auto dynamic = Role::Volatile;
    const auto channel = Role::Channel;
    std::string file = identity.model; // an address has no blanks
    std::replace(file.begin(), file.end(), ' ', '-');
    // clang-format off
    return {
        // name                        address role     kind and power-up value
        {"gigeversion",                0x0000, fixed,   Word(0x00010002)},
        {"devicemode",                 0x0004, fixed,   Word(0x80000001)},
        {"machigh",                    0x0008, fixed,   Word(0x00000200)},          // locally administered
        {"maclow",                     0x000C, fixed,   Word(0x12000000 | identity.number)},
        {"supportedipconfig",          0x0010, fixed,   Word(7)},                   // persistent, DHCP, link-local
        {"currentipconfig",            0x0014, flash,   Word(6)},                   // DHCP, link-local
        {"currentipaddress",           0x0024, shown,   Word(Address(192, 168, 1, 10))},
        {"currentsubnetmask",          0x0034, shown,   Word(Address(255, 255, 255, 0))},
        {"currentdefaultgateway",      0x0044, shown,   Word(Address(192, 168, 1, 1))},
        {"manufacturername",           0x0048, fixed,   Text(32, "Simulation")},
        {"modelname",                  0x0068, fixed,   Text(32, identity.model)},
        {"deviceversion",              0x0088, fixed,   Text(32, "1.0")},
        {"manufacturerinfo",           0x00A8, fixed,   Text(48, "A camera that lives in memory")},
        {"bootstrapserialnumber",      0x00D8, fixed,   Text(16, identity.serial)},
        {"userdefinedname",            0x00E8, flash,   Text(16, "")},
        {"firsturl",                   0x0200, fixed,   Text(512, LocalUrl(file, identity.description.size()))},
        {"secondurl",                  0x0400, fixed,   Text(512, "http://192.168.1.10/" + file + ".xml")},
        {"interfaces",                 0x0600, fixed,   Word(1)},
        {"persistentipaddress",        0x064C, flash,   Word(0)},
        {"persistentsubnetmask",       0x065C, flash,   Word(0)},
        {"persistentdefaultgateway",   0x066C, flash,   Word(0)},
        {"messagechannels",            0x0900, fixed,   Word(0)},
        {"streamchannels",             0x0904, fixed,   Word(1)},
        {"gvcpcapability",             0x0934, fixed,   Word(0xC0000003)},          // names, memory writes, several at once
        {"heartbeat",                  0x0938, channel, Word(3000)},                // milliseconds
        {"tickfrequencyhigh",          0x093C, fixed,   Word(0)},
        {"tickfrequencylow",           0x0940, fixed,   Word(1000000)},             // the camera counts microseconds
        {"clockcontrol",               0x0944, channel, Word(0)},
        {"clockhigh",                  0x0948, channel, Word(0)},
        {"clocklow",                   0x094C, channel, Word(0)},
        {"gvcpconfiguration",          0x0954, dynamic, Word(0)},
        {"privilege",                  privilegeAddress, channel, Word(0)},
        {"applicationport",            0x0A04, channel, Word(0)},
        {"applicationaddress",         0x0A14, channel, Word(0)},
        {"streamport",                 0x0D00, channel, Word(0)},
        {"packetsize",                 0x0D04, dynamic, Word(1404)},
        {"packetdelay",                0x0D08, dynamic, Word(0)},
        {"streamdestination",          0x0D18, channel, Word(0)},
        {"streamsourceport",           0x0D1C, channel, Word(0)},
        {"description",                descriptionAddress, fixed, Text(InWords(identity.description.size()), identity.description)},
    };
    // clang-format on
}

void AddBootstrapBehaviour(SimulatedCamera& camera) {
    camera.AfterWrite("packetsize", [](RegisterSpace& space, const auto&) { RoundPacketSize(space); });
    camera.AfterWrite("currentipconfig", [](RegisterSpace& space, const auto&) {
        const std::uint32_t linkLocal = 4; // the standard has it always on
        space.Set("currentipconfig",
                  {(space.Get("currentipconfig")[0] & space.Get("supportedipconfig")[0]) | linkLocal});
    });
    camera.AfterWrite("restart", [](RegisterSpace& space, const auto&) { TakeAddress(space); });
}

} // namespace Simulation
