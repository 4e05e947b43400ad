#include "Tests/Fuzz/HostilePort.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace Fuzz {

namespace {

constexpr std::uint32_t gvcpConfiguration = 0x0954;
constexpr std::uint64_t largestBlock = 512; ///< no register is longer, and raw access reads no more

/// Codes of the library and unknown ones.
constexpr std::array<std::int32_t, 6> codes = {SDK4_ERR_ERROR, SDK4_ERR_CANTGETFEATURE, SDK4_ERR_OUTOFRANGE, 0, 1, -1};

} // namespace

/// Begins every access: the input may change the manner, and may have the access fail.
void HostilePort::Begin(std::uint32_t address) {
    ++accesses;
    text.reset();
    if (left > 0) {
        --left;
    } else {
        const std::uint8_t next = input.Byte();
        manner = static_cast<Manner>((next & 0xFu) % static_cast<unsigned int>(Manner::Count));
        left = (1u << (next >> 4)) - 1; // up to 32767 more: practically forever
    }
    const bool unseen = opening && address == gvcpConfiguration;
    if (manner == Manner::Error && !unseen) {
        failures.ThrowError(input.One(codes));
    }
    if (manner == Manner::Foreign && !unseen) {
        failures.ThrowForeign();
    }
    if (manner == Manner::Error || manner == Manner::Foreign) {
        Failures::ThrowUnseen();
    }
}

void HostilePort::Fill(std::uint32_t address, void* buffer, std::size_t length) {
    auto* bytes = static_cast<std::uint8_t*>(buffer);
    if (manner == Manner::Bytes) {
        std::generate_n(bytes, length, [this] { return input.Byte(); });
        return;
    }
    for (std::size_t at = 0; at < length; at += sizeof filling) {
        const std::uint32_t word = manner == Manner::Words ? input.Word() : filling;
        std::memcpy(bytes + at, &word, std::min(length - at, sizeof word));
    }
    if (const auto known = memory.find(address); manner != Manner::Words && known != memory.end()) {
        std::copy_n(known->second.begin(), std::min(known->second.size(), length), bytes);
    }
}

/// Reads every byte that the library passes.
void HostilePort::Store(std::uint32_t address, const void* buffer, std::size_t length) {
    const auto* bytes = static_cast<const std::uint8_t*>(buffer);
    memory[address].assign(bytes, bytes + length);
}

template <typename T> T HostilePort::Read(std::uint32_t address) {
    Begin(address);
    T value;
    Fill(address, &value, sizeof value);
    return value;
}

std::uint32_t HostilePort::ReadRegister(std::uint32_t address) { return Read<std::uint32_t>(address); }
std::uint64_t HostilePort::ReadRegisterPair(std::uint32_t address) { return Read<std::uint64_t>(address); }

void HostilePort::WriteRegister(std::uint32_t address, std::uint32_t value) {
    Begin(address);
    Store(address, &value, sizeof value);
}

void HostilePort::WriteRegisterPair(std::uint32_t address, std::uint64_t value) {
    Begin(address);
    Store(address, &value, sizeof value);
}

unsigned char* HostilePort::ReadBlock(std::uint32_t address, std::uint32_t length) {
    Begin(address);
    Require(length > 0 && length <= largestBlock, "a block of a register's size is asked for");
    if (manner == Manner::Nothing) {
        return nullptr;
    }
    std::unique_ptr<unsigned char, Free> block(static_cast<unsigned char*>(std::malloc(length)));
    Fill(address, block.get(), length);
    return block.release();
}

void HostilePort::WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) {
    Begin(address);
    Store(address, buffer, length);
}

char* HostilePort::ReadString(std::uint32_t address, std::uint32_t length) {
    Begin(address);
    Require(length > 0 && length <= largestBlock, "a text of a register's size is asked for");
    if (manner == Manner::Nothing) {
        return nullptr;
    }
    std::vector<char> bytes(length);
    Fill(address, bytes.data(), length);
    if (bytes.back() != 0) {
        bytes.push_back(0); // terminates the text at the end of its buffer
    }
    text.reset(static_cast<char*>(std::malloc(bytes.size())));
    std::memcpy(text.get(), bytes.data(), bytes.size());
    return text.get();
}

void HostilePort::WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) {
    Begin(address);
    Store(address, buffer, length);
}

void HostilePort::ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Begin(address);
    Require(*length <= largestBlock, "memory of a register's size is asked for");
    const std::uint64_t asked = *length;
    if (manner == Manner::Short && asked > 0) {
        *length = input.Choice(asked);
    } else if (manner == Manner::Nothing) {
        *length = 0;
    }
    if (manner != Manner::Silent) {
        Fill(address, buffer, *length);
    }
    if (manner == Manner::Overlong) {
        *length = asked + (std::uint64_t{input.Word()} << input.Choice(33));
    }
}

void HostilePort::WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Begin(address);
    Store(address, buffer, *length);
    if (manner == Manner::Short || manner == Manner::Overlong) {
        *length = std::uint64_t{input.Word()} << input.Choice(33);
    } else if (manner == Manner::Nothing) {
        *length = 0;
    }
}

} // namespace Fuzz
