#include "Simulation/GigEVision/SentBlocks.h"

#include <algorithm>
#include <utility>

namespace Simulation::GigEVision {

Picture::Frame SentBlocks::TakeFrame() {
    const std::size_t fewestBlocks = 3;
    while (blocks.size() >= mostBlocks || (blocks.size() > fewestBlocks && bytes > mostBytes)) {
        bytes -= blocks.front().block.Frame().bytes.size();
        spare = blocks.front().block.TakeFrame();
        blocks.pop_front();
    }
    return std::exchange(spare, {});
}

const Gvsp::Block& SentBlocks::Add(Gvsp::Block block) {
    bytes += block.Frame().bytes.size();
    const std::uint32_t budget = block.PacketCount();
    return blocks.emplace_back(Sent{std::move(block), budget}).block;
}

SentBlocks::Sent* SentBlocks::Find(std::uint16_t id) {
    const auto found =
        std::find_if(blocks.rbegin(), blocks.rend(), [&](const Sent& sent) { return sent.block.Id() == id; });
    return found == blocks.rend() ? nullptr : &*found;
}

} // namespace Simulation::GigEVision
