#include "Simulation/Identity.h"

#include "Common/Number.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace Simulation {

namespace {

constexpr std::size_t prefixSize = sizeof(std::uint32_t); ///< of the vendor register

std::size_t SizeOf(const RegisterSpace& space, const char* name) {
    return space.Find(name)->powerUp.instances.front().value.size();
}

Words WordsOf(const Value& value) { return ToWords(value.instances.front().value); }

} // namespace

std::string SerialNumberOf(const RegisterSpace& space) { return space.GetText("bootstrapserialnumber"); }

RegisterSpace::Content SerialNumberRegisters(const RegisterSpace& space, const std::string& serial) {
    const std::size_t standard = SizeOf(space, "bootstrapserialnumber");
    const std::size_t own = SizeOf(space, "serialnumber");
    const std::size_t longest = std::min(standard - 1, own - prefixSize); // the standard requires a trailing zero
    const bool isVisible = std::all_of(serial.begin(), serial.end(), [](unsigned char c) { return std::isgraph(c); });
    if (serial.empty() || serial.size() > longest || !isVisible) {
        throw IdentityError("invalid serial number \"" + serial + "\", expected 1 to " + std::to_string(longest) +
                            " ASCII characters without blanks");
    }
    return {{"bootstrapserialnumber", {{WordsOf(Text(standard, serial))}}},
            {"serialnumber", {{WordsOf(PrefixedText(own, serial))}}}};
}

std::uint64_t MacNumberOf(const RegisterSpace& space) {
    return std::uint64_t{space.Get("machigh")[0]} << 32 | space.Get("maclow")[0];
}

std::string MacAddressOf(const RegisterSpace& space) {
    const std::uint32_t high = space.Get("machigh")[0];
    const std::uint32_t low = space.Get("maclow")[0];
    char text[18];
    std::snprintf(text, sizeof text, "%02X:%02X:%02X:%02X:%02X:%02X", high >> 8 & 0xFF, high & 0xFF, low >> 24,
                  low >> 16 & 0xFF, low >> 8 & 0xFF, low & 0xFF);
    return text;
}

RegisterSpace::Content MacAddressRegisters(const std::string& mac) {
    const std::size_t octets = 6;
    std::uint64_t number = 0;
    bool isAddress = mac.size() == 3 * octets - 1;
    for (std::size_t i = 0; isAddress && i < mac.size(); i += 3) {
        const auto octet = Common::ParseWhole<std::uint8_t>(mac.substr(i, 2), 16);
        isAddress = octet && (i + 2 == mac.size() || mac[i + 2] == ':');
        number = number << 8 | octet.value_or(0);
    }
    const std::uint64_t groupBit = std::uint64_t{1} << 40;
    if (!isAddress || number == 0 || (number & groupBit) != 0) {
        throw IdentityError("invalid MAC address \"" + mac + "\", expected a unicast address such as " +
                            "02:00:12:07:07:10");
    }
    return {{"machigh", {{{static_cast<std::uint32_t>(number >> 32)}}}},
            {"maclow", {{{static_cast<std::uint32_t>(number)}}}}};
}

} // namespace Simulation
