#pragma once

#include <SDK4/IControlPort.h>

#include <arv.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

inline void ThrowIf(GError* error) {
    if (error != nullptr) {
        const std::string text = error->message;
        g_error_free(error);
        throw std::runtime_error(text);
    }
}

/// A camera on the network: each operation becomes READREG, WRITEREG, READMEM or WRITEMEM. What fails is thrown; it
/// passes through the library unchanged. Addresses and lengths are multiples of 4, as those of the library are.
class ArvPort final : public SDK4::IControlPort {
    using Address = std::uint32_t;
    using Byte = std::uint8_t;

public:
    explicit ArvPort(ArvDevice* opened) : device(opened) {}

    void WriteRegister(Address at, std::uint32_t value) override {
        GError* error = nullptr;
        arv_device_write_register(device, at, value, &error);
        ThrowIf(error);
    }
    std::uint32_t ReadRegister(Address at) override {
        GError* error = nullptr;
        std::uint32_t value = 0;
        arv_device_read_register(device, at, &value, &error);
        ThrowIf(error);
        return value;
    }
    // The words of a pair lie in the camera as in the memory of a little-endian machine.
    void WriteRegisterPair(Address at, std::uint64_t value) override { Write(at, &value, sizeof value); }
    std::uint64_t ReadRegisterPair(Address at) override {
        std::uint64_t value = 0;
        Read(at, &value, sizeof value);
        return value;
    }
    Byte* ReadBlock(Address at, std::uint32_t length) override { // the library frees the block
        std::unique_ptr<void, decltype(&std::free)> block(std::malloc(length), &std::free);
        Read(at, block.get(), length);
        return static_cast<Byte*>(block.release());
    }
    void WriteBlock(Address at, const Byte* data, std::uint32_t length) override { Write(at, data, length); }
    char* ReadString(Address at, std::uint32_t length) override { // all bytes: the first zero is not always the end
        text.assign(length, '\0');
        Read(at, text.data(), length);
        return text.data();
    }
    void WriteString(Address at, const char* data, std::uint32_t length) override { Write(at, data, length); }
    void ReadMem(Address at, Byte* data, std::uint64_t* length) override { Read(at, data, *length); }
    void WriteMem(Address at, Byte* data, std::uint64_t* length) override { Write(at, data, *length); }

private:
    static constexpr std::uint64_t piece = 512; ///< bytes that fit into a packet

    void Read(Address at, void* data, std::uint64_t length) {
        GError* error = nullptr;
        for (std::uint64_t done = 0; done < length && error == nullptr; done += piece) {
            arv_device_read_memory(device, at + done, static_cast<guint32>(std::min(length - done, piece)),
                                   static_cast<Byte*>(data) + done, &error);
        }
        ThrowIf(error);
    }

    void Write(Address at, const void* data, std::uint64_t length) {
        GError* error = nullptr;
        std::array<Byte, piece> copy{}; // Aravis takes no constant data
        for (std::uint64_t done = 0; done < length && error == nullptr; done += piece) {
            const std::uint64_t size = std::min(length - done, piece);
            std::copy_n(static_cast<const Byte*>(data) + done, size, copy.begin());
            arv_device_write_memory(device, at + done, static_cast<guint32>(size), copy.data(), &error);
        }
        ThrowIf(error);
    }

    ArvDevice* device;
    std::string text; ///< what ReadString handed out last
};
