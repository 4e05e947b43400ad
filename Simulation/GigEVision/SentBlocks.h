#pragma once

#include "Simulation/GigEVision/Gvsp.h"
#include "Simulation/GigEVision/StreamChannel.h"

#include <cstdint>
#include <deque>

namespace Simulation::GigEVision {

/// Keeps the last blocks, for receivers that missed packets.
///
/// For each block, at most as many packets are sent again as it has. Otherwise receivers that repeat their requests
/// would fill the link. After that, or for a block that is no longer kept, the answer is that the packet is
/// unavailable.
class SentBlocks {
public:
    static constexpr std::size_t mostBlocks = 16;
    static constexpr std::size_t mostBytes = 128U << 20; ///< of pictures; three blocks are always kept

    /// An unused frame, with the memory of a block that is no longer kept.
    [[nodiscard]] Picture::Frame TakeFrame();
    const Gvsp::Block& Add(Gvsp::Block block);

    /// Calls @p send with each packet of the answer.
    template <typename Send> void Resend(const ResendRequest& request, const Send& send) {
        Sent* const sent = Find(request.block);
        for (std::uint32_t packet = request.first; packet <= request.last; ++packet) {
            if (sent == nullptr || sent->budget == 0) {
                send(Gvsp::Unavailable(request.block, packet));
                return;
            }
            if (packet >= sent->block.PacketCount()) {
                return;
            }
            --sent->budget;
            send(sent->block.At(packet));
        }
    }

private:
    struct Sent {
        Gvsp::Block block;
        std::uint32_t budget = 0; ///< packets that may be sent again
    };

    [[nodiscard]] Sent* Find(std::uint16_t id);

    std::deque<Sent> blocks; ///< the oldest first
    std::size_t bytes = 0;
    Picture::Frame spare;
};

} // namespace Simulation::GigEVision
