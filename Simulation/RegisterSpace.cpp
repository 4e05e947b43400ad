#include "RegisterSpace.h"

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
        }
    }
}

void RegisterSpace::Read(std::uint32_t address, std::span<std::uint8_t> bytes) const {
    const auto found = indexed.find(address);
    if (found == indexed.end()) {
        memory.Read(address, bytes);
        return;
    }
    const IndexedRegister& target = found->second;
    Bytes block = target.selected;
    if (const auto instance = target.instances.find(target.selected); instance != target.instances.end()) {
        block.insert(block.end(), instance->second.begin(), instance->second.end());
    }
    block.resize(bytes.size()); // what lies behind the register reads as zeros
    std::copy(block.begin(), block.end(), bytes.begin());
}

void RegisterSpace::Write(std::uint32_t address, std::span<const std::uint8_t> bytes) {
    const auto found = indexed.find(address);
    if (found == indexed.end()) {
        memory.Write(address, bytes);
        return;
    }
    IndexedRegister& target = found->second;
    const auto selector = bytes.first(std::min(bytes.size(), target.selectorBytes));
    target.selected.assign(selector.begin(), selector.end());
    target.selected.resize(target.selectorBytes);
    const auto value = bytes.subspan(selector.size());
    if (value.empty()) {
        if (target.exchanged) {
            std::rotate(target.selected.begin(), target.selected.begin() + sizeof(std::uint32_t),
                        target.selected.end());
        }
    } else {
        Bytes& instance = target.instances[target.selected];
        instance.resize(target.valueBytes);
        std::copy_n(value.begin(), std::min(value.size(), instance.size()), instance.begin());
    }
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

const Register* RegisterSpace::At(std::uint32_t address) const {
    const auto found = byAddress.find(address);
    return found == byAddress.end() ? nullptr : &found->second;
}

bool RegisterSpace::Touches(std::uint32_t address, std::size_t length, const std::string& name) const {
    const Register& entry = Named(name);
    const Instance& first = entry.powerUp.instances.front();
    if (!first.selector.empty()) {
        return address == entry.address;
    }
    const std::uint64_t end = std::uint64_t{entry.address} + first.value.size();
    return address < end && std::uint64_t{address} + length > entry.address;
}

RegisterSpace::Settings RegisterSpace::SaveSettings() const {
    Settings settings;
    for (const auto& [address, entry] : byAddress) {
        if (entry.role == Role::Setting) {
            std::vector<Instance>& instances = settings[entry.name];
            for (const Instance& instance : entry.powerUp.instances) {
                instances.push_back({instance.selector, ValueOf(entry, instance.selector)});
            }
        }
    }
    return settings;
}

void RegisterSpace::LoadSettings(const Settings& settings) {
    for (const auto& [name, instances] : settings) {
        for (const Instance& instance : instances) {
            SetValueOf(Named(name), instance.selector, instance.value);
        }
    }
}

const Register& RegisterSpace::Named(const std::string& name) const {
    const auto found = addresses.find(name);
    if (found == addresses.end()) {
        throw std::logic_error("no register is named " + name);
    }
    return byAddress.at(found->second);
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
