#include "Simulation/GigEVision/DeviceMemory.h"

#include "Simulation/Addresses.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <memory>

namespace Simulation::GigEVision {

using namespace Common::Gvcp;

namespace {

// The camera holds words in the host's byte order. Vendor registers are sent unchanged.
static_assert(std::endian::native == std::endian::little, "vendor registers are little-endian on the wire");

std::size_t SelectorSize(const Register& entry) { return entry.powerUp.instances.front().selector.size(); }

/// Whether a write to the function's register is refused. Selectors are always writable.
bool IsProtectedIn(const Register& entry, std::size_t offset, std::size_t length) {
    return offset >= SizeOf(entry) || (IsReadOnly(entry.role) && offset + length > SelectorSize(entry));
}

template <typename Access> Status Try(const Access& access) {
    try {
        access();
        return Status::Success;
    } catch (const PortError&) { // an injected fault
        return Status::Error;
    }
}

} // namespace

Status DeviceMemory::Read(std::uint32_t address, std::span<std::uint8_t> bytes) {
    if (const Status status = CheckAddress(address, bytes.size()); status != Status::Success) {
        return status;
    }
    return Try([&] {
        const std::unique_ptr<unsigned char, decltype(&std::free)> block(
            camera.ReadBlock(address, static_cast<std::uint32_t>(bytes.size())), &std::free);
        if (block == nullptr) {
            throw PortError("ReadBlock", address, "no block from the camera");
        }
        std::copy_n(block.get(), bytes.size(), bytes.begin());
        SwapBytes(address, bytes);
    });
}

template <typename Visit>
void DeviceMemory::ForEachWord(std::uint32_t address, std::span<const std::uint8_t> bytes, const Visit& visit) const {
    for (std::size_t i = 0; i < bytes.size() && address + i < bootstrapEnd; i += wordSize) {
        const Register* const entry = camera.Registers().At(address + static_cast<std::uint32_t>(i));
        if (entry != nullptr) {
            visit(*entry, Get32(bytes.subspan(i)));
        }
    }
}

Status DeviceMemory::Write(std::uint32_t address, std::span<const std::uint8_t> bytes, std::uint32_t writer) {
    if (const Status status = CheckAddress(address, bytes.size()); status != Status::Success) {
        return status;
    }
    if (IsProtected(address, bytes.size())) {
        return Status::WriteProtected;
    }
    bool isAdmitted = true;
    ForEachWord(address, bytes, [&](const Register& entry, std::uint32_t word) {
        isAdmitted = isAdmitted && stream.Admits(entry, word, writer);
    });
    if (!isAdmitted) {
        return Status::InvalidParameter;
    }
    return Try([&] {
        ForEachWord(address, bytes, [&](const auto& entry, auto word) { stream.BeforeWrite(entry, word); });
        Bytes block(bytes.begin(), bytes.end());
        SwapBytes(address, block);
        camera.WriteBlock(address, block.data(), static_cast<std::uint32_t>(block.size()));
        ForEachWord(address, bytes, [&](const Register& entry, std::uint32_t word) {
            if (entry.role == Role::Channel) {
                channel.Write(entry, word, camera.Time());
            }
        });
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

Status DeviceMemory::WriteWord(std::uint32_t address, std::uint32_t value, std::uint32_t writer) {
    Bytes bytes;
    Put32(bytes, value);
    if (address >= bootstrapEnd) {
        std::reverse(bytes.begin(), bytes.end());
    }
    return Write(address, bytes, writer);
}

Status DeviceMemory::CheckAddress(std::uint32_t address, std::size_t length) const {
    if (address % wordSize != 0) {
        return Status::BadAlignment;
    }
    return camera.Registers().HasAddresses(address, length) ? Status::Success : Status::InvalidAddress;
}

bool DeviceMemory::IsProtected(std::uint32_t address, std::size_t length) const {
    if (address >= firstFunction) {
        return IsProtectedIn(*camera.Registers().At(FunctionOf(address)), address % functionSize, length);
    }
    for (std::uint32_t word = address; word < address + length; word += wordSize) {
        const auto touched = camera.Registers().Touched(word, wordSize);
        if (touched.empty()) {
            return true;
        }
        const Register& entry = *touched.front();
        if (entry.role == Role::Channel ? !ChannelRegisters::IsWritable(entry) : IsReadOnly(entry.role)) {
            return true;
        }
    }
    return false;
}

void DeviceMemory::SwapBytes(std::uint32_t address, std::span<std::uint8_t> bytes) const {
    for (std::size_t i = 0; i < bytes.size() && address < bootstrapEnd; i += wordSize) {
        const Register* const entry = camera.Registers().At(address + static_cast<std::uint32_t>(i));
        if (entry != nullptr && SizeOf(*entry) == wordSize) {
            std::reverse(bytes.begin() + static_cast<std::ptrdiff_t>(i),
                         bytes.begin() + static_cast<std::ptrdiff_t>(i + wordSize));
        }
    }
}

} // namespace Simulation::GigEVision
