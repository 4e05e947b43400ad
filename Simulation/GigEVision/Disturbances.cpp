#include "GigEVision/Disturbances.h"

namespace Simulation::GigEVision {

std::vector<Sending> DisturbedDevice::Answer(const Sender& from, std::span<const std::uint8_t> datagram, Time now) {
    std::vector<Sending> sendings;
    if (Happens(disturbances.drop)) {
        return sendings;
    }
    if (const auto answer = AnswerAtDevice(from, datagram, now)) {
        const int copies = Happens(disturbances.duplicate) ? 2 : 1;
        for (int i = 0; i < copies; ++i) {
            if (!Happens(disturbances.drop)) {
                sendings.push_back({*answer, Delay()});
            }
        }
    }
    return sendings;
}

std::optional<Bytes> DisturbedDevice::AnswerAtDevice(const Sender& from, std::span<const std::uint8_t> datagram,
                                                     Time now) {
    const auto request = Parse(datagram);
    if (request && disturbances.rebootAfter && requests++ >= *disturbances.rebootAfter) {
        disturbances.rebootAfter.reset(); // once
        device.Reboot(now);
    }
    if (request && request->command != Command::Discovery && Happens(disturbances.nack)) {
        return request->wantsAcknowledge && !device.IsStarting(now) ? std::optional(Acknowledge(*request, Status::Busy))
                                                                    : std::nullopt;
    }
    return device.Answer(from, datagram, now);
}

bool DisturbedDevice::Happens(double share) { return share > 0 && std::uniform_real_distribution<>()(random) < share; }

std::chrono::microseconds DisturbedDevice::Delay() {
    const std::chrono::microseconds longest = disturbances.delay;
    return std::chrono::microseconds(
        longest.count() == 0 ? 0 : std::uniform_int_distribution<std::int64_t>(0, longest.count())(random));
}

} // namespace Simulation::GigEVision
