#pragma once

#include "Simulation/GigEVision/Device.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <random>
#include <span>
#include <vector>

namespace Simulation::GigEVision {

/// How badly a network and a device behave; shares lie between 0 and 1.
struct Disturbances {
    double drop = 0;                            ///< share of the datagrams, in either direction, that get lost
    double duplicate = 0;                       ///< share of the acknowledges that arrive twice
    double nack = 0;                            ///< share of the requests that the device refuses as busy
    std::chrono::milliseconds delay{0};         ///< the longest time for which an acknowledge is held back
    std::optional<std::uint64_t> rebootAfter{}; ///< requests; the next one finds the device starting anew
};

/// A datagram that is to be sent some time later.
struct DelayedDatagram {
    Bytes datagram;
    std::chrono::microseconds delay;
};

/// Something that occurs in a share of all cases: with a share of 0.1 once in the first ten, once in the next ten, in
/// which of them is random. So the share is kept exactly, and a small one never affects all repetitions of a request.
class RandomOccurrence {
public:
    explicit RandomOccurrence(double shareOfCases) : share(shareOfCases) {}

    /// Whether it occurs in this case.
    [[nodiscard]] bool Occurs(std::mt19937_64& random);

private:
    double share;
    std::uint64_t cases = 0;
    std::uint64_t occurrences = 0;
    std::uint64_t next = 0; ///< the case in which it occurs next
};

/// A device behind all that can go wrong before it. The same seed and the same requests meet the same disturbances.
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
