#include "Simulation/GigEVision/Disturbances.h"

#include <algorithm>

namespace Simulation::GigEVision {

bool RandomOccurrence::Occurs(std::mt19937_64& random) {
    if (share <= 0) {
        return false;
    }
    if (cases == 0 || next < cases) {
        const double place = static_cast<double>(occurrences++) + std::uniform_real_distribution<>()(random);
        const double never = 1e18;
        next = std::max(cases, static_cast<std::uint64_t>(std::min(place / share, never)));
    }
    return cases++ == next;
}

std::vector<DelayedDatagram> DisturbedDevice::Answer(const Endpoint& from, std::span<const std::uint8_t> datagram,
                                                     Time now) {
    std::vector<DelayedDatagram> sendings;
    if (drop.Occurs(random)) {
        return sendings;
    }
    if (const auto answer = AnswerAtDevice(from, datagram, now)) {
        const int copies = duplicate.Occurs(random) ? 2 : 1;
        for (int i = 0; i < copies; ++i) {
            if (!drop.Occurs(random)) {
                sendings.push_back({*answer, Delay()});
            }
        }
    }
    return sendings;
}

std::optional<Bytes> DisturbedDevice::AnswerAtDevice(const Endpoint& from, std::span<const std::uint8_t> datagram,
                                                     Time now) {
    const auto request = Common::Gvcp::Parse(datagram);
    if (request && disturbances.rebootAfter && requests++ >= *disturbances.rebootAfter) {
        disturbances.rebootAfter.reset(); // once
        device.Reboot(now);
    }
    const bool isBusy = request && request->command != Common::Gvcp::Command::Discovery && nack.Occurs(random);
    return device.Answer(from, datagram, now, isBusy);
}

std::chrono::microseconds DisturbedDevice::Delay() {
    const std::chrono::microseconds longest = disturbances.delay;
    return std::chrono::microseconds(
        longest.count() == 0 ? 0 : std::uniform_int_distribution<std::int64_t>(0, longest.count())(random));
}

} // namespace Simulation::GigEVision
