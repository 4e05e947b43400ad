#pragma once

#include <SDK4/IControlPort.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

/// A camera that only stores bytes, zero by default. Prints what is written to it.
class BytePort final : public SDK4::IControlPort {
    using Address = std::uint32_t;
    using Byte = std::uint8_t;

public:
    void WriteRegister(Address at, std::uint32_t value) override { Write(at, &value, 4); }
    std::uint32_t ReadRegister(Address at) override { return *static_cast<std::uint32_t*>(Read(at, &word, 4)); }
    void WriteRegisterPair(Address at, std::uint64_t value) override { Write(at, &value, 8); }
    std::uint64_t ReadRegisterPair(Address at) override { return *static_cast<std::uint64_t*>(Read(at, &pair, 8)); }
    Byte* ReadBlock(Address at, std::uint32_t length) override { // the library frees the block
        return static_cast<Byte*>(Read(at, std::malloc(length), length));
    }
    void WriteBlock(Address at, const Byte* data, std::uint32_t length) override { Write(at, data, length); }
    char* ReadString(Address at, std::uint32_t length) override { // all bytes: the first zero is not always the end
        text.assign(length, '\0');
        return static_cast<char*>(Read(at, text.data(), length));
    }
    void WriteString(Address at, const char* data, std::uint32_t length) override { Write(at, data, length); }
    void ReadMem(Address at, Byte* data, std::uint64_t* length) override { Read(at, data, *length); }
    void WriteMem(Address at, Byte* data, std::uint64_t* length) override { Write(at, data, *length); }

    unsigned int accesses = 0; ///< number of accesses

private:
    void* Read(Address at, void* data, std::uint64_t length) {
        ++accesses;
        for (Address i = 0; data != nullptr && i < length; ++i) {
            static_cast<Byte*>(data)[i] = bytes[at + i];
        }
        return data;
    }

    void Write(Address at, const void* data, std::uint64_t length) {
        ++accesses;
        std::printf("  camera: %08X =", static_cast<unsigned>(at));
        for (Address i = 0; i < length; ++i) {
            std::printf(" %02X", static_cast<unsigned>(bytes[at + i] = static_cast<const Byte*>(data)[i]));
        }
        std::printf("\n");
    }

    std::map<Address, Byte> bytes;
    std::uint32_t word = 0;
    std::uint64_t pair = 0;
    std::string text; ///< last result of ReadString
};
