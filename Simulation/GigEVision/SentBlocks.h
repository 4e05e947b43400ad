#pragma once

#include "Simulation/GigEVision/Gvsp.h"
#include "Simulation/GigEVision/StreamChannel.h"

#include <cstdint>
#include <deque>

namespace Simulation::GigEVision {

/// The blocks that were sent last, for receivers that missed packets of them.
///
/// Of each block as many packets are sent again as it has, since receivers without memory of their requests would
/// otherwise fill the link with them. Beyond that, or for a block that is gone, they are told that there is no more.
class SentBlocks {
public:
    static constexpr std::size_t mostBlocks = 16;
    static constexpr std::size_t mostBytes = 128U << 20; ///< of pictures; three blocks are kept in any case

    /// A frame to be filled, with the memory of one that is no longer needed.
    [[nodiscard]] Picture::Frame TakeFrame();
    const Gvsp::Block& Add(Gvsp::Block block);

    /// Calls @p send with each packet that is the answer.
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
        std::uint32_t budget; ///< packets that may be sent again
    };

    [[nodiscard]] Sent* Find(std::uint16_t id);

    std::deque<Sent> blocks; ///< the oldest comes first
    std::size_t bytes = 0;
    Picture::Frame spare;
};

} // namespace Simulation::GigEVision
