#include "Simulation/RegisterSpace.h"

#include "Simulation/Addresses.h"

#include <algorithm>
#include <stdexcept>

namespace Simulation {

RegisterSpace::RegisterSpace(const std::vector<Register>& registers) {
    for (const Register& entry : registers) {
        if (!byAddress.emplace(entry.address, entry).second || !addresses.emplace(entry.name, entry.address).second) {
            throw std::logic_error("register " + entry.name + " is declared twice, or shares its address");
        }
        const Instance& first = entry.powerUp.instances.at(0);
        if (!first.selector.empty()) {
            indexed[entry.address] = {
                first.selector.size(), first.value.size(), entry.powerUp.exchanged, first.selector, {}};
        }
        for (const Instance& instance : entry.powerUp.instances) {
            SetValueOf(entry, instance.selector, instance.value);
            if (entry.powerUp.keepsRequest) {
                requests[entry.name].push_back(ToWords(instance.value));
            }
        }
    }
}

bool RegisterSpace::HasAddresses(std::uint32_t address, std::size_t length) const {
    const std::uint64_t end = std::uint64_t{address} + std::max<std::size_t>(length, 1);
    if (address >= firstFunction) {
        const std::uint32_t function = FunctionOf(address);
        const bool known = function < firstNote && byAddress.contains(function);
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

const Register* RegisterSpace::IndexedAround(std::uint32_t address) const {
    const std::uint32_t function = FunctionOf(address);
    return indexed.contains(function) ? At(function) : nullptr;
}

Bytes RegisterSpace::BlockOf(const Register& entry) const {
    const IndexedRegister& target = indexed.at(entry.address);
    Bytes block = target.selected;
    const Bytes value = ValueOf(entry, target.selected);
    block.insert(block.end(), value.begin(), value.end());
    return block;
}

void RegisterSpace::Read(std::uint32_t address, std::span<std::uint8_t> bytes) const {
    const Register* const entry = IndexedAround(address);
    if (entry == nullptr) {
        memory.Read(address, bytes);
        return;
    }
    const Bytes block = BlockOf(*entry);
    const std::size_t offset = std::min<std::size_t>(address - entry->address, block.size());
    const std::size_t count = std::min(bytes.size(), block.size() - offset);
    std::fill(std::copy_n(block.begin() + static_cast<std::ptrdiff_t>(offset), count, bytes.begin()), bytes.end(),
              std::uint8_t{0}); // what lies behind the register
}

std::vector<RegisterSpace::Change> RegisterSpace::Write(std::uint32_t address, std::span<const std::uint8_t> bytes) {
    if (const Register* const entry = IndexedAround(address)) {
        Bytes block = BlockOf(*entry);
        const std::size_t offset = address - entry->address;
        if (offset >= block.size()) {
            return {};
        }
        block.resize(offset); // a part of the register reaches the instance that is chosen
        block.insert(block.end(), bytes.begin(), bytes.end());
        return WriteIndexed(*entry, block);
    }
    std::vector<Change> changes;
    for (const Register* entry : Touched(address, bytes.size())) {
        changes.push_back({*entry, 0, Get(entry->name)});
        const auto size = static_cast<std::uint32_t>(entry->powerUp.instances.front().value.size());
        const std::uint32_t first = std::max(address, entry->address);
        const auto written = bytes.subspan(first - address);
        memory.Write(first, written.first(std::min<std::size_t>(written.size(), entry->address + size - first)));
    }
    return changes;
}

std::vector<RegisterSpace::Change> RegisterSpace::WriteIndexed(const Register& entry,
                                                               std::span<const std::uint8_t> bytes) {
    IndexedRegister& target = indexed.at(entry.address);
    const auto selector = bytes.first(std::min(bytes.size(), target.selectorBytes));
    target.selected.assign(selector.begin(), selector.end());
    target.selected.resize(target.selectorBytes);
    const auto value = bytes.subspan(selector.size());
    if (value.empty()) {
        if (target.exchanged) {
            std::rotate(target.selected.begin(), target.selected.begin() + sizeof(std::uint32_t),
                        target.selected.end());
        }
        return {};
    }
    const auto& known = entry.powerUp.instances;
    const auto chosen = std::find_if(known.begin(), known.end(),
                                     [&](const Instance& instance) { return instance.selector == target.selected; });
    if (chosen == known.end()) {
        return {};
    }
    Bytes& instance = target.instances.at(target.selected);
    const Words before = ToWords(instance);
    std::copy_n(value.begin(), std::min(value.size(), instance.size()), instance.begin());
    return {{entry, static_cast<std::uint32_t>(chosen - known.begin()), before}};
}

std::uint32_t RegisterSpace::Count(const std::string& name) const {
    return static_cast<std::uint32_t>(Named(name).powerUp.instances.size());
}

Words RegisterSpace::Get(const std::string& name, std::uint32_t index) const {
    const Register& entry = Named(name);
    return ToWords(ValueOf(entry, entry.powerUp.instances.at(index).selector));
}

void RegisterSpace::Set(const std::string& name, const Words& words, std::uint32_t index) {
    const Register& entry = Named(name);
    SetValueOf(entry, entry.powerUp.instances.at(index).selector, ToBytes(words));
}

const Words& RegisterSpace::Requested(const std::string& name, std::uint32_t index) const {
    return requests.at(name).at(index);
}

void RegisterSpace::SetRequested(const std::string& name, const Words& words, std::uint32_t index) {
    requests.at(name).at(index) = words;
}

const Register* RegisterSpace::Find(const std::string& name) const {
    const auto found = addresses.find(name);
    return found == addresses.end() ? nullptr : &byAddress.at(found->second);
}

const Register* RegisterSpace::At(std::uint32_t address) const {
    const auto found = byAddress.find(address);
    return found == byAddress.end() ? nullptr : &found->second;
}

std::vector<const Register*> RegisterSpace::Touched(std::uint32_t address, std::size_t length) const {
    if (indexed.contains(address)) {
        return {At(address)};
    }
    std::vector<const Register*> touched;
    auto next = byAddress.upper_bound(address);
    if (next != byAddress.begin()) {
        --next; // the only one that begins before the access and may reach into it: registers do not overlap
    }
    for (; next != byAddress.end() && next->first < std::uint64_t{address} + length; ++next) {
        const Register& entry = next->second;
        const std::uint64_t end = std::uint64_t{entry.address} + entry.powerUp.instances.front().value.size();
        if (end > address && !indexed.contains(entry.address)) {
            touched.push_back(&entry);
        }
    }
    return touched;
}

RegisterSpace::Content RegisterSpace::Save(const std::vector<Role>& roles) const {
    Content content;
    for (const auto& [address, entry] : byAddress) {
        if (std::find(roles.begin(), roles.end(), entry.role) != roles.end()) {
            Held& held = content[entry.name];
            for (std::uint32_t i = 0; i < entry.powerUp.instances.size(); ++i) {
                held.values.push_back(Get(entry.name, i));
            }
            if (entry.powerUp.keepsRequest) {
                held.requests = requests.at(entry.name);
            }
        }
    }
    return content;
}

void RegisterSpace::Load(const Content& content) {
    for (const auto& [name, held] : content) {
        for (std::uint32_t i = 0; i < held.values.size(); ++i) {
            Set(name, held.values[i], i);
        }
        if (!held.requests.empty()) {
            requests.at(name) = held.requests;
        }
    }
}

const Register& RegisterSpace::Named(const std::string& name) const {
    const Register* const found = Find(name);
    if (found == nullptr) {
        throw std::logic_error("no register is named " + name);
    }
    return *found;
}

Bytes RegisterSpace::ValueOf(const Register& entry, const Bytes& selector) const {
    if (selector.empty()) {
        Bytes bytes(entry.powerUp.instances.front().value.size());
        memory.Read(entry.address, bytes);
        return bytes;
    }
    const IndexedRegister& target = indexed.at(entry.address);
    const auto found = target.instances.find(selector);
    return found == target.instances.end() ? Bytes(target.valueBytes) : found->second;
}

void RegisterSpace::SetValueOf(const Register& entry, const Bytes& selector, const Bytes& value) {
    if (selector.empty()) {
        memory.Write(entry.address, value);
    } else {
        indexed.at(entry.address).instances[selector] = value;
    }
}

} // namespace Simulation
