#pragma once

#include "Simulation/Cameras.h"
#include "Simulation/GigEVision/Device.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace Network {

using namespace std::chrono_literals;
using Simulation::Bytes;
using Simulation::GigEVision::Device;
using Simulation::GigEVision::Endpoint;
using Simulation::GigEVision::Time;

/// Bytes from hexadecimal digits. Blanks are ignored.
inline Bytes FromHex(const std::string& text) {
    std::string digits;
    for (const char character : text) {
        digits += character == ' ' ? "" : std::string(1, character);
    }
    Bytes bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(digits.substr(i, 2), nullptr, 16)));
    }
    return bytes;
}

/// The bytes in hexadecimal, grouped into the words of header and payload.
inline std::string ToHex(const Bytes& bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", bytes[i]);
        const bool begins = i > 0 && (i < 8 ? i % 2 == 0 : i % 4 == 0);
        text += (begins ? " " : "") + std::string(digits);
    }
    return text;
}

constexpr Endpoint one{0x7F000001, 40001};
constexpr Endpoint other{0x7F000001, 40002};

/// An Orvik-710C at 127.0.0.77 and two applications. Only tests advance the time.
struct DeviceOnCamera {
    /// The answer in hexadecimal; empty if there is none.
    std::string Ask(const Endpoint& from, const std::string& request) {
        const auto answer = device.Answer(from, FromHex(request), start + time);
        return answer ? ToHex(*answer) : "";
    }
    std::string Ask(const std::string& request) { return Ask(one, request); }

    /// Takes control for the application: control access or exclusive access.
    std::string TakeControl(const Endpoint& from = one, const std::string& kind = "02") {
        return Ask(from, "4201 0082 0008 0001 00000a00 000000" + kind);
    }

    std::unique_ptr<Simulation::SimulatedCamera> camera = Simulation::MakeCamera("Orvik-710C");
    Time start{1000h};
    std::chrono::milliseconds time{0};
    Device device{*camera, {0x7F00004D, 0xFF000000}, start};
};

class DeviceTest : public testing::Test, public DeviceOnCamera {};

} // namespace Network
