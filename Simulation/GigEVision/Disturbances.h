#pragma once

#include "Simulation/GigEVision/Device.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <random>
#include <span>
#include <vector>

namespace Simulation::GigEVision {

/// Disturbances of network and device. Shares are between 0 and 1.
struct Disturbances {
    double drop = 0;                            ///< share of the datagrams lost, in either direction
    double duplicate = 0;                       ///< share of the acknowledges sent twice
    double nack = 0;                            ///< share of the requests that the device refuses as busy
    std::chrono::milliseconds delay{0};         ///< the longest delay of an acknowledge
    std::optional<std::uint64_t> rebootAfter{}; ///< requests; the next request restarts the device
};

/// A datagram to be sent after a delay.
struct DelayedDatagram {
    Bytes datagram;
    std::chrono::microseconds delay;
};

/// An event that occurs in a share of all cases. With a share of 0.1, it occurs once in each ten cases, at random. So
/// the share is exact, and a small share never affects all repetitions of a request.
class RandomOccurrence {
public:
    explicit RandomOccurrence(double shareOfCases) : share(shareOfCases) {}

    /// Whether the event occurs in this case.
    [[nodiscard]] bool Occurs(std::mt19937_64& random);

private:
    double share;
    std::uint64_t cases = 0;
    std::uint64_t occurrences = 0;
    std::uint64_t next = 0; ///< the next case in which it occurs
};

/// A device with disturbances. The same seed and the same requests give the same disturbances.
class DisturbedDevice {
public:
    DisturbedDevice(Device& reached, const Disturbances& onTheWay, std::uint64_t seed)
        : device(reached),
          disturbances(onTheWay),
          drop(onTheWay.drop),
          duplicate(onTheWay.duplicate),
          nack(onTheWay.nack),
          random(seed) {}

    [[nodiscard]] std::vector<DelayedDatagram> Answer(const Endpoint& from, std::span<const std::uint8_t> datagram,
                                                      Time now);
    void PassTime(Time now) { device.PassTime(now); }
    [[nodiscard]] Device& Undisturbed() { return device; }

private:
    [[nodiscard]] std::chrono::microseconds Delay();
    [[nodiscard]] std::optional<Bytes> AnswerAtDevice(const Endpoint& from, std::span<const std::uint8_t> datagram,
                                                      Time now);

    Device& device;
    Disturbances disturbances;
    RandomOccurrence drop;
    RandomOccurrence duplicate;
    RandomOccurrence nack;
    std::mt19937_64 random;
    std::uint64_t requests = 0;
};

} // namespace Simulation::GigEVision
