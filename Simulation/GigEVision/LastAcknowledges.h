#pragma once

#include "Simulation/GigEVision/ControlChannel.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <optional>
#include <span>

namespace Simulation::GigEVision {

/// The answers to the last request of each recent sender. A sender that missed an acknowledge repeats its request,
/// which must not be executed twice.
class LastAcknowledges {
public:
    using Answer = std::optional<Bytes>; ///< nothing for a request that is not acknowledged

    /// The answer, or null if this was not the sender's last request.
    [[nodiscard]] const Answer* Find(const Endpoint& sender, std::span<const std::uint8_t> request) const {
        const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) {
            return entry.sender == sender &&
                   std::equal(request.begin(), request.end(), entry.request.begin(), entry.request.end());
        });
        return found == entries.end() ? nullptr : &found->answer;
    }

    void Remember(const Endpoint& sender, std::span<const std::uint8_t> request, Answer answer) {
        std::erase_if(entries, [&](const Entry& entry) { return entry.sender == sender; });
        entries.push_front({sender, {request.begin(), request.end()}, std::move(answer)});
        if (entries.size() > mostSenders) {
            entries.pop_back();
        }
    }

    void Forget() { entries.clear(); }

private:
    static constexpr std::size_t mostSenders = 16;

    struct Entry {
        Endpoint sender;
        Bytes request;
        Answer answer;
    };

    std::deque<Entry> entries; ///< the latest first
};

} // namespace Simulation::GigEVision
