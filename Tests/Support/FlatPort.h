#pragma once

#include <SDK4/IControlPort.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace Test {

/// A minimal port over flat memory: it counts its accesses and copies bytes. Unset bytes read as zero. All instances of
/// an indexed register share one place.
class FlatPort final : public SDK4::IControlPort {
public:
    /// Sets the bytes at an address.
    void Set(std::uint32_t address, const std::vector<std::uint8_t>& bytes) {
        std::memcpy(At(address), bytes.data(), bytes.size());
    }
    template <typename Value> void Set(std::uint32_t address, const Value& value) {
        std::memcpy(At(address), &value, sizeof value);
    }

    [[nodiscard]] std::uint64_t Accesses() const { return accesses; }

    void WriteRegister(std::uint32_t address, std::uint32_t value) override { Write(address, &value, sizeof value); }
    std::uint32_t ReadRegister(std::uint32_t address) override { return Read<std::uint32_t>(address); }
    void WriteRegisterPair(std::uint32_t address, std::uint64_t value) override {
        Write(address, &value, sizeof value);
    }
    std::uint64_t ReadRegisterPair(std::uint32_t address) override { return Read<std::uint64_t>(address); }

    unsigned char* ReadBlock(std::uint32_t address, std::uint32_t length) override {
        ++accesses;
        auto* block = static_cast<unsigned char*>(std::malloc(length));
        std::memcpy(block, At(address), length);
        return block;
    }
    void WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) override {
        Write(address, buffer, length);
    }
    char* ReadString(std::uint32_t address, std::uint32_t /*length*/) override {
        ++accesses;
        return reinterpret_cast<char*>(At(address));
    }
    void WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) override {
        Write(address, buffer, length);
    }
    void ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override {
        ++accesses;
        std::memcpy(buffer, At(address), *length);
    }
    void WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override {
        Write(address, buffer, *length);
    }

private:
    // Vendor registers are 64 kB apart; 64 bytes of each are kept. The bootstrap registers are below them.
    static constexpr std::size_t kept = 64, slots = 0x10000, bootstrap = 0x10000;

    std::uint8_t* At(std::uint32_t address) { return &memory[(address >> 16) * kept + (address & 0xFFFF)]; }

    template <typename Value> Value Read(std::uint32_t address) {
        ++accesses;
        Value value;
        std::memcpy(&value, At(address), sizeof value);
        return value;
    }

    void Write(std::uint32_t address, const void* bytes, std::size_t length) {
        ++accesses;
        std::memcpy(At(address), bytes, length);
    }

    std::vector<std::uint8_t> memory = std::vector<std::uint8_t>(slots * kept + bootstrap);
    std::uint64_t accesses = 0;
};

} // namespace Test
