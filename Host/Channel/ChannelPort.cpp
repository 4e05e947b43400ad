#include "Host/Channel/ChannelPort.h"

#include "Common/Bootstrap.h"
#include "Common/Gvcp.h"
#include "Host/Channel/ChannelErrors.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <memory>

namespace Host {

using namespace Common::Bootstrap;
using Common::Gvcp::largestMemory;
using Common::Gvcp::wordSize;

// Words of register pairs, blocks and texts stay in the byte order of the camera.
static_assert(std::endian::native == std::endian::little, "cameras are little-endian");

std::string ChannelPort::ModelName() {
    const char* const name = ReadString(modelName, modelNameLength);
    return {name, std::find(name, name + modelNameLength, '\0')};
}

void ChannelPort::RequireAddresses(const Operation& operation, std::uint64_t length) {
    constexpr std::uint64_t addresses = std::uint64_t{1} << 32;
    if (length > addresses - operation.address) {
        throw ChannelError(operation.name, operation.address, "the access exceeds the address space");
    }
}

void ChannelPort::Read(const Operation& operation, std::uint8_t* data, std::uint64_t length) {
    RequireAddresses(operation, length);
    const std::uint64_t end = operation.address + length;
    std::array<std::uint8_t, largestMemory> piece{};
    for (std::uint64_t wanted = operation.address; wanted < end;) {
        const std::uint64_t first = wanted / wordSize * wordSize;
        const std::uint64_t size = std::min((end - first + wordSize - 1) / wordSize * wordSize, largestAccess);
        ReadMemory(operation, static_cast<std::uint32_t>(first), std::span(piece).first(size));
        const std::uint64_t last = std::min(first + size, end);
        data = std::copy(piece.begin() + (wanted - first), piece.begin() + (last - first), data);
        wanted = last;
    }
}

void ChannelPort::Write(const Operation& operation, const std::uint8_t* data, std::uint64_t length) {
    if (operation.address % wordSize != 0 || length % wordSize != 0) {
        throw ChannelError(operation.name, operation.address,
                           std::to_string(length) + " bytes: writes must be whole words at multiples of 4");
    }
    RequireAddresses(operation, length);
    std::array<std::uint8_t, largestMemory> piece{}; // Aravis takes no const buffer
    for (std::uint64_t done = 0; done < length;) {
        const std::uint64_t size = std::min(length - done, largestAccess);
        std::copy_n(data + done, size, piece.begin());
        WriteMemory(operation, static_cast<std::uint32_t>(operation.address + done), std::span(piece).first(size));
        done += size;
    }
}

void ChannelPort::WriteRegister(std::uint32_t address, std::uint32_t value) {
    const Operation operation{"WriteRegister", address, true};
    if (address % wordSize != 0) {
        throw ChannelError(operation.name, address, "the address is not a multiple of 4");
    }
    WriteWord(operation, value);
}

std::uint32_t ChannelPort::ReadRegister(std::uint32_t address) {
    const Operation operation{"ReadRegister", address, false};
    if (address % wordSize == 0) {
        return ReadWord(operation);
    }
    std::uint32_t value = 0;
    Read(operation, reinterpret_cast<std::uint8_t*>(&value), sizeof value);
    return value;
}

void ChannelPort::WriteRegisterPair(std::uint32_t address, std::uint64_t value) {
    Write({"WriteRegisterPair", address, true}, reinterpret_cast<const std::uint8_t*>(&value), sizeof value);
}

std::uint64_t ChannelPort::ReadRegisterPair(std::uint32_t address) {
    std::uint64_t value = 0;
    Read({"ReadRegisterPair", address, false}, reinterpret_cast<std::uint8_t*>(&value), sizeof value);
    return value;
}

unsigned char* ChannelPort::ReadBlock(std::uint32_t address, std::uint32_t length) {
    // From malloc: the caller frees it, as IControlPort requires.
    std::unique_ptr<unsigned char, decltype(&std::free)> block(static_cast<unsigned char*>(std::malloc(length)),
                                                               &std::free);
    if (block != nullptr) {
        Read({"ReadBlock", address, false}, block.get(), length);
    }
    return block.release();
}

void ChannelPort::WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) {
    Write({"WriteBlock", address, true}, buffer, length);
}

char* ChannelPort::ReadString(std::uint32_t address, std::uint32_t length) {
    std::vector<std::uint8_t> bytes(length);
    Read({"ReadString", address, false}, bytes.data(), length);
    text.assign(bytes.begin(), bytes.end());
    text.push_back('\0');
    return text.data();
}

void ChannelPort::WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) {
    const std::vector<std::uint8_t> bytes(buffer, buffer + length);
    Write({"WriteString", address, true}, bytes.data(), length);
}

void ChannelPort::ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Read({"ReadMem", address, false}, buffer, *length);
}

void ChannelPort::WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Write({"WriteMem", address, true}, buffer, *length);
}

} // namespace Host
