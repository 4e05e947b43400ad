#include "GigEVision/DeviceMemory.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <memory>

namespace Simulation::GigEVision {

namespace {

// The camera holds words in the order of the machine that simulates it; those beyond the bootstrap registers go to the
// wire as they are.
static_assert(std::endian::native == std::endian::little, "vendor registers travel with little-endian words");

constexpr std::uint32_t wordSize = 4;
constexpr std::uint32_t firstFunction = 0x01000000;
constexpr std::uint32_t functionSize = 0x00010000;
constexpr std::uint32_t firstNote = 0xE0000000;

std::uint32_t FunctionOf(std::uint32_t address) { return address & ~(functionSize - 1); }

std::size_t SelectorSize(const Register& entry) { return entry.powerUp.instances.front().selector.size(); }

std::size_t Size(const Register& entry) { return SelectorSize(entry) + entry.powerUp.instances.front().value.size(); }

/// Whether a write of the function's own register is refused. A selector may be written whatever it selects.
bool IsProtectedIn(const Register& entry, std::size_t offset, std::size_t length) {
    return offset >= Size(entry) || (IsReadOnly(entry.role) && offset + length > SelectorSize(entry));
}

template <typename Access> Status Try(const Access& access) {
    try {
        access();
        return Status::Success;
    } catch (const PortError&) { // a planted fault
        return Status::Error;
    }
}

} // namespace

Status DeviceMemory::Read(std::uint32_t address, std::span<std::uint8_t> bytes) {
    if (const Status status = CheckAddress(address, bytes.size()); status != Status::Success) {
        return status;
    }
    return Try([&] {
        const Bytes block = FromCamera(address, bytes.size());
        std::copy(block.begin(), block.end(), bytes.begin());
        ExchangeWords(address, bytes);
        for (std::size_t i = 0; i < bytes.size(); i += wordSize) {
            if (const auto own = address + static_cast<std::uint32_t>(i); channel.Has(own)) {
                Bytes word;
                Put32(word, channel.Get(own));
                std::copy(word.begin(), word.end(), bytes.begin() + static_cast<std::ptrdiff_t>(i));
            }
        }
    });
}

Status DeviceMemory::Write(std::uint32_t address, std::span<const std::uint8_t> bytes) {
    if (const Status status = CheckAddress(address, bytes.size()); status != Status::Success) {
        return status;
    }
    if (IsProtected(address, bytes.size())) {
        return Status::WriteProtected;
    }
    return Try([&] {
        Bytes block(bytes.begin(), bytes.end());
        ExchangeWords(address, block);
        ToCamera(address, block);
        for (std::size_t i = 0; i < bytes.size(); i += wordSize) {
            if (const auto own = address + static_cast<std::uint32_t>(i); channel.Has(own)) {
                channel.Write(own, Get32(bytes.subspan(i)), camera.Time());
            }
        }
    });
}

Status DeviceMemory::ReadWord(std::uint32_t address, std::uint32_t& value) {
    Bytes bytes(wordSize);
    const Status status = Read(address, bytes);
    if (address >= bootstrapEnd) {
        std::reverse(bytes.begin(), bytes.end());
    }
    value = Get32(bytes);
    return status;
}

Status DeviceMemory::WriteWord(std::uint32_t address, std::uint32_t value) {
    Bytes bytes;
    Put32(bytes, value);
    if (address >= bootstrapEnd) {
        std::reverse(bytes.begin(), bytes.end());
    }
    return Write(address, bytes);
}

Status DeviceMemory::CheckAddress(std::uint32_t address, std::size_t length) const {
    if (address % wordSize != 0) {
        return Status::BadAlignment;
    }
    const std::uint64_t end = std::uint64_t{address} + length;
    if (address >= firstFunction) {
        const std::uint32_t function = FunctionOf(address);
        const bool known = function < firstNote && camera.Registers().At(function) != nullptr;
        return known && end <= std::uint64_t{function} + functionSize ? Status::Success : Status::InvalidAddress;
    }
    for (std::uint64_t word = address; word < end; word += wordSize) {
        // What the standard reserves among the registers of a discovery reads as zeros.
        if (word >= discoverySize && !IsClaimed(static_cast<std::uint32_t>(word))) {
            return Status::InvalidAddress;
        }
    }
    return Status::Success;
}

bool DeviceMemory::IsClaimed(std::uint32_t address) const {
    return channel.Has(address) || !camera.Registers().Touched(address, wordSize).empty();
}

bool DeviceMemory::IsProtected(std::uint32_t address, std::size_t length) const {
    if (address >= firstFunction) {
        return IsProtectedIn(*camera.Registers().At(FunctionOf(address)), address % functionSize, length);
    }
    for (std::uint32_t word = address; word < address + length; word += wordSize) {
        const auto touched = camera.Registers().Touched(word, wordSize);
        const bool open =
            channel.Has(word) ? channel.IsWritable(word) : !touched.empty() && !IsReadOnly(touched.front()->role);
        if (!open) {
            return true;
        }
    }
    return false;
}

void DeviceMemory::ExchangeWords(std::uint32_t address, std::span<std::uint8_t> bytes) const {
    for (std::size_t i = 0; i < bytes.size() && address < bootstrapEnd; i += wordSize) {
        const Register* const entry = camera.Registers().At(address + static_cast<std::uint32_t>(i));
        if (entry != nullptr && Size(*entry) == wordSize) {
            std::reverse(bytes.begin() + static_cast<std::ptrdiff_t>(i),
                         bytes.begin() + static_cast<std::ptrdiff_t>(i + wordSize));
        }
    }
}

const Register* DeviceMemory::IndexedAround(std::uint32_t address) const {
    const Register* const entry = address < firstFunction ? nullptr : camera.Registers().At(FunctionOf(address));
    return entry != nullptr && SelectorSize(*entry) != 0 ? entry : nullptr;
}

Bytes DeviceMemory::FromCamera(std::uint32_t address, std::size_t length) {
    // The camera gives the value of an indexed register out behind its selector alone.
    const std::uint32_t from = IndexedAround(address) == nullptr ? address : FunctionOf(address);
    const std::size_t before = address - from;
    const std::unique_ptr<unsigned char, decltype(&std::free)> block(
        camera.ReadBlock(from, static_cast<std::uint32_t>(before + length)), &std::free);
    if (block == nullptr) {
        throw PortError("ReadBlock", from, "no block from the camera");
    }
    return {block.get() + before, block.get() + before + length};
}

void DeviceMemory::ToCamera(std::uint32_t address, std::span<const std::uint8_t> bytes) {
    if (address < firstFunction) {
        camera.WriteBlock(address, bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        return;
    }
    const std::uint32_t function = FunctionOf(address);
    const std::size_t before = address - function;
    const std::size_t length = std::min(bytes.size(), Size(*camera.Registers().At(function)) - before);
    // A part of an indexed register reaches the instance that is selected, which the camera wants named.
    Bytes block = IndexedAround(address) != nullptr && before != 0 ? FromCamera(function, before) : Bytes();
    const auto from = block.empty() ? address : function;
    block.insert(block.end(), bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
    camera.WriteBlock(from, block.data(), static_cast<std::uint32_t>(block.size()));
}

} // namespace Simulation::GigEVision
