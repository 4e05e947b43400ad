#pragma once

#include <cstdint>
#include <string>

namespace Host {

/// The program that controls a camera, as the camera reports it.
struct Controller {
    std::uint32_t privilege = 0; ///< 0: none
    std::uint32_t address = 0;
    std::uint32_t port = 0;

    bool operator==(const Controller&) const = default;
};

/// "the camera at 192.168.1.10 is controlled by another program at 192.168.1.2:4711", without the address of the
/// program if the camera does not report it.
[[nodiscard]] std::string DescribeController(const std::string& camera, const Controller& controller);

/// Asks a camera whether it can be opened now, which takes less time than to try, and disturbs no other program.
/// @param camera its IPv4 address
/// @param control whether no other program may have control
/// @throws CameraUnavailable if it does not answer; CameraControlled
void RequireAvailable(const std::string& camera, bool control);

} // namespace Host
