#include "Simulation/Memory.h"

#include <algorithm>

namespace Simulation {

void Memory::Read(std::uint32_t address, std::span<std::uint8_t> bytes) const {
    while (!bytes.empty()) {
        const std::uint32_t offset = address % pageSize;
        const auto count = std::min<std::size_t>(bytes.size(), pageSize - offset);
        if (const auto page = pages.find(address / pageSize); page != pages.end()) {
            std::copy_n(page->second.begin() + offset, count, bytes.begin());
        } else {
            std::fill_n(bytes.begin(), count, std::uint8_t{0});
        }
        address += static_cast<std::uint32_t>(count);
        bytes = bytes.subspan(count);
    }
}

void Memory::Write(std::uint32_t address, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const std::uint32_t offset = address % pageSize;
        const auto count = std::min<std::size_t>(bytes.size(), pageSize - offset);
        Page& page = pages.try_emplace(address / pageSize, Page{}).first->second;
        std::copy_n(bytes.begin(), count, page.begin() + offset);
        address += static_cast<std::uint32_t>(count);
        bytes = bytes.subspan(count);
    }
}

} // namespace Simulation
