#include "SimulatedCamera.h"

#include <cstdlib>
#include <stdexcept>

namespace Simulation {

namespace {

template <typename T> void RefuseNull(const T* pointer) {
    if (pointer == nullptr) {
        throw std::invalid_argument("simulated camera: null buffer or length");
    }
}

} // namespace

void SimulatedCamera::Write(std::uint32_t address, const void* data, std::uint64_t length) {
    RefuseNull(data);
    space.Write(address, {static_cast<const std::uint8_t*>(data), static_cast<std::size_t>(length)});
    for (const auto& [name, behaviour] : behaviours) {
        if (space.Touches(address, static_cast<std::size_t>(length), name)) {
            behaviour(space);
        }
    }
}

void SimulatedCamera::Read(std::uint32_t address, void* data, std::uint64_t length) const {
    RefuseNull(data);
    space.Read(address, {static_cast<std::uint8_t*>(data), static_cast<std::size_t>(length)});
}

void SimulatedCamera::WriteRegister(std::uint32_t address, std::uint32_t value) {
    Write(address, &value, sizeof value);
}

std::uint32_t SimulatedCamera::ReadRegister(std::uint32_t address) {
    std::uint32_t value = 0;
    Read(address, &value, sizeof value);
    return value;
}

void SimulatedCamera::WriteRegisterPair(std::uint32_t address, std::uint64_t value) {
    const std::uint32_t words[] = {static_cast<std::uint32_t>(value), static_cast<std::uint32_t>(value >> 32)};
    Write(address, words, sizeof words);
}

std::uint64_t SimulatedCamera::ReadRegisterPair(std::uint32_t address) {
    std::uint32_t words[2] = {};
    Read(address, words, sizeof words);
    return std::uint64_t{words[1]} << 32 | words[0];
}

unsigned char* SimulatedCamera::ReadBlock(std::uint32_t address, std::uint32_t length) {
    auto* const block = static_cast<unsigned char*>(std::malloc(length)); // the caller frees it, as the port demands
    if (block != nullptr) {
        Read(address, block, length);
    }
    return block;
}

void SimulatedCamera::WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) {
    Write(address, buffer, length);
}

char* SimulatedCamera::ReadString(std::uint32_t address, std::uint32_t length) {
    text.assign(std::size_t{length} + 1, '\0');
    Read(address, text.data(), length);
    return text.data();
}

void SimulatedCamera::WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) {
    Write(address, buffer, length);
}

void SimulatedCamera::ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    RefuseNull(length);
    Read(address, buffer, *length);
}

void SimulatedCamera::WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    RefuseNull(length);
    Write(address, buffer, *length);
}

} // namespace Simulation
