#include "Simulation/RegisterSpace.h"

#include "Simulation/Addresses.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace Simulation {

RegisterSpace::RegisterSpace(Registers registers) : shared(std::move(registers)) {
    for (const Register& entry : *shared) {
        Cell cell{&entry, entry.powerUp.instances.at(0).selector, 0, {}, {}};
        for (const Instance& instance : entry.powerUp.instances) {
            cell.values.push_back(instance.value);
            if (entry.powerUp.keepsRequest) {
                cell.requests.push_back(ToWords(instance.value));
            }
        }
        const auto [place, isFree] = cells.emplace(entry.address, std::move(cell));
        if (!isFree || !byName.emplace(entry.name, &place->second).second) {
            throw std::logic_error("register " + entry.name + " is declared twice, or shares its address");
        }
    }
}

bool RegisterSpace::HasAddresses(std::uint32_t address, std::size_t length) const {
    const std::uint64_t end = std::uint64_t{address} + std::max<std::size_t>(length, 1);
    if (address >= firstFunction) {
        const std::uint32_t function = FunctionOf(address);
        const bool known = function < firstInternal && cells.contains(function);
        return known && end <= std::uint64_t{function} + functionSize;
    }
    const std::uint64_t wordSize = sizeof(std::uint32_t);
    for (std::uint64_t word = address / wordSize * wordSize; word < end; word += wordSize) {
        if (word >= discoverySize && Touched(static_cast<std::uint32_t>(word), wordSize).empty()) {
            return false;
        }
    }
    return true;
}

void RegisterSpace::Choose(Cell& cell) {
    const auto& instances = cell.entry->powerUp.instances;
    const auto isSelected = [&](const Instance& instance) { return instance.selector == cell.selector; };
    // Hosts select one instance after the other, so the search begins where the last one ended.
    const auto last = instances.begin() + static_cast<std::ptrdiff_t>(cell.chosen);
    auto found = std::find_if(last, instances.end(), isSelected);
    if (found == instances.end()) {
        found = std::find_if(instances.begin(), last, isSelected);
        found = found == last ? instances.end() : found;
    }
    cell.chosen = static_cast<std::size_t>(found - instances.begin());
}

Bytes RegisterSpace::BlockOf(const Cell& cell) {
    Bytes block = cell.selector;
    if (cell.chosen < cell.values.size()) {
        block.insert(block.end(), cell.values[cell.chosen].begin(), cell.values[cell.chosen].end());
    }
    block.resize(SizeOf(*cell.entry));
    return block;
}

void RegisterSpace::Read(std::uint32_t address, std::span<std::uint8_t> bytes) const {
    std::fill(bytes.begin(), bytes.end(), std::uint8_t{0});
    for (const Register* entry : Touched(address, bytes.size())) {
        const std::uint32_t first = std::max(address, entry->address);
        const Bytes block = BlockOf(cells.at(entry->address));
        const auto part = std::span(block).subspan(first - entry->address);
        const auto target = bytes.subspan(first - address);
        std::copy_n(part.begin(), std::min(part.size(), target.size()), target.begin());
    }
}

std::vector<RegisterSpace::Change> RegisterSpace::Write(std::uint32_t address, std::span<const std::uint8_t> bytes) {
    std::vector<Change> changes;
    for (const Register* entry : Touched(address, bytes.size())) {
        const std::uint32_t first = std::max(address, entry->address);
        Write(cells.at(entry->address), first - entry->address, bytes.subspan(first - address), changes);
    }
    return changes;
}

void RegisterSpace::Write(Cell& cell, std::size_t offset, std::span<const std::uint8_t> bytes,
                          std::vector<Change>& changes) {
    Bytes& selector = cell.selector;
    const std::size_t selectorSize = selector.size();
    if (offset < selectorSize) {
        const auto written = bytes.first(std::min(bytes.size(), selectorSize - offset));
        selector.resize(offset);
        selector.insert(selector.end(), written.begin(), written.end());
        selector.resize(selectorSize);
        bytes = bytes.subspan(written.size());
        offset = selectorSize;
        if (bytes.empty() && cell.entry->powerUp.swapped) {
            std::rotate(selector.begin(), selector.begin() + sizeof(std::uint32_t), selector.end());
        }
        Choose(cell);
    }
    if (bytes.empty() || cell.chosen == cell.values.size()) {
        return;
    }
    Bytes& value = cell.values[cell.chosen];
    changes.push_back({*cell.entry, static_cast<std::uint32_t>(cell.chosen), ToWords(value)});
    const auto target = std::span(value).subspan(offset - selectorSize);
    std::copy_n(bytes.begin(), std::min(bytes.size(), target.size()), target.begin());
}

std::uint32_t RegisterSpace::Count(const std::string& name) const {
    return static_cast<std::uint32_t>(Named(name).values.size());
}

Words RegisterSpace::Get(const std::string& name, std::uint32_t index) const {
    return ToWords(Named(name).values.at(index));
}

std::string RegisterSpace::GetText(const std::string& name) const {
    const Bytes& bytes = Named(name).values.front();
    return {bytes.begin(), std::find(bytes.begin(), bytes.end(), 0)};
}

void RegisterSpace::Set(const std::string& name, const Words& words, std::uint32_t index) {
    Named(name).values.at(index) = ToBytes(words);
}

const Words& RegisterSpace::Requested(const std::string& name, std::uint32_t index) const {
    return Named(name).requests.at(index);
}

void RegisterSpace::SetRequested(const std::string& name, const Words& words, std::uint32_t index) {
    Named(name).requests.at(index) = words;
}

std::vector<std::string> RegisterSpace::Names() const {
    std::vector<std::string> names;
    for (const auto& [address, cell] : cells) {
        names.push_back(cell.entry->name);
    }
    return names;
}

const Register* RegisterSpace::Find(const std::string& name) const {
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second->entry;
}

const Register* RegisterSpace::At(std::uint32_t address) const {
    const auto found = cells.find(address);
    return found == cells.end() ? nullptr : found->second.entry;
}

std::vector<const Register*> RegisterSpace::Touched(std::uint32_t address, std::size_t length) const {
    std::vector<const Register*> touched;
    auto next = cells.upper_bound(address);
    if (next != cells.begin()) {
        --next; // it begins before the access and may overlap it
    }
    for (; next != cells.end() && next->first < std::uint64_t{address} + length; ++next) {
        const Register& entry = *next->second.entry;
        if (std::uint64_t{entry.address} + SizeOf(entry) > address) {
            touched.push_back(&entry);
        }
    }
    return touched;
}

RegisterSpace::Content RegisterSpace::Save(const std::vector<Role>& roles) const {
    Content content;
    for (const auto& [address, cell] : cells) {
        if (std::find(roles.begin(), roles.end(), cell.entry->role) != roles.end()) {
            State& state = content[cell.entry->name];
            std::transform(cell.values.begin(), cell.values.end(), std::back_inserter(state.values), ToWords);
            state.requests = cell.requests;
        }
    }
    return content;
}

void RegisterSpace::Load(const Content& content) {
    for (const auto& [name, state] : content) {
        Cell& cell = Named(name);
        std::transform(state.values.begin(), state.values.end(), cell.values.begin(), ToBytes);
        if (!state.requests.empty()) {
            cell.requests = state.requests;
        }
    }
}

RegisterSpace::Cell& RegisterSpace::Named(const std::string& name) const {
    const auto found = byName.find(name);
    if (found == byName.end()) {
        throw std::logic_error("no register named " + name);
    }
    return *found->second;
}

} // namespace Simulation
