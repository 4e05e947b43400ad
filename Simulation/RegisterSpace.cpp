#include "RegisterSpace.h"

#include <algorithm>
#include <stdexcept>

namespace Simulation {

RegisterSpace::RegisterSpace(const std::vector<Register>& registers) {
    for (const Register& entry : registers) {
        if (!byAddress.emplace(entry.address, entry).second || !addresses.emplace(entry.name, entry.address).second) {
            throw std::logic_error("register " + entry.name + " is declared twice, or shares its address");
        }
        const Value& powerUp = entry.powerUp;
        if (powerUp.selectorBytes != 0) {
            const std::size_t valueBytes = powerUp.instances.empty() ? 0 : powerUp.instances.front().size();
            indexed[entry.address] = {powerUp.selectorBytes, valueBytes, Bytes(powerUp.selectorBytes), {}};
        }
        for (std::uint32_t index = 0; index < powerUp.instances.size(); ++index) {
            SetInstance(entry, index, powerUp.instances[index]);
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
    if (!value.empty()) {
        Bytes& instance = target.instances[target.selected];
        instance.resize(target.valueBytes);
        std::copy_n(value.begin(), std::min(value.size(), instance.size()), instance.begin());
    }
}

Words RegisterSpace::Get(const std::string& name, std::uint32_t index) const {
    return ToWords(Instance(Named(name), index));
}

void RegisterSpace::Set(const std::string& name, const Words& words, std::uint32_t index) {
    SetInstance(Named(name), index, ToBytes(words));
}

const Register* RegisterSpace::At(std::uint32_t address) const {
    const auto found = byAddress.find(address);
    return found == byAddress.end() ? nullptr : &found->second;
}

bool RegisterSpace::Touches(std::uint32_t address, std::size_t length, const std::string& name) const {
    const Register& entry = Named(name);
    if (entry.powerUp.selectorBytes != 0) {
        return address == entry.address;
    }
    const std::uint64_t end = std::uint64_t{entry.address} + entry.powerUp.instances.front().size();
    return address < end && std::uint64_t{address} + length > entry.address;
}

RegisterSpace::Settings RegisterSpace::SaveSettings() const {
    Settings settings;
    for (const auto& [address, entry] : byAddress) {
        if (entry.role == Role::Setting) {
            std::vector<Bytes>& instances = settings[entry.name];
            for (std::uint32_t index = 0; index < entry.powerUp.instances.size(); ++index) {
                instances.push_back(Instance(entry, index));
            }
        }
    }
    return settings;
}

void RegisterSpace::LoadSettings(const Settings& settings) {
    for (const auto& [name, instances] : settings) {
        for (std::uint32_t index = 0; index < instances.size(); ++index) {
            SetInstance(Named(name), index, instances[index]);
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

Bytes RegisterSpace::Instance(const Register& entry, std::uint32_t index) const {
    if (entry.powerUp.selectorBytes == 0) {
        Bytes bytes(entry.powerUp.instances.front().size());
        memory.Read(entry.address, bytes);
        return bytes;
    }
    const IndexedRegister& target = indexed.at(entry.address);
    Bytes selector = ToBytes({index});
    selector.resize(target.selectorBytes);
    const auto found = target.instances.find(selector);
    return found == target.instances.end() ? Bytes(target.valueBytes) : found->second;
}

void RegisterSpace::SetInstance(const Register& entry, std::uint32_t index, const Bytes& bytes) {
    if (entry.powerUp.selectorBytes == 0) {
        memory.Write(entry.address, bytes);
        return;
    }
    IndexedRegister& target = indexed.at(entry.address);
    Bytes selector = ToBytes({index});
    selector.resize(target.selectorBytes);
    target.instances[selector] = bytes;
}

} // namespace Simulation
