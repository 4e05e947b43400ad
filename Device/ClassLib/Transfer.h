#pragma once

// How register values are transferred: as their bytes in memory, without byte swapping.

#include <SDK4/IControlPort.h>

#include <cstdint>
#include <cstring>
#include <string>

namespace SDK4 {

/// Reads a block of @p Block's size. Bytes that the port does not fill stay zero.
template <typename Block> Block ReadBytes(IControlPort& port, std::uint32_t address) {
    Block block{};
    std::uint64_t count = sizeof block;
    port.ReadMem(address, reinterpret_cast<std::uint8_t*>(&block), &count);
    return block;
}

template <typename Block> void WriteBytes(IControlPort& port, std::uint32_t address, Block block) {
    std::uint64_t count = sizeof block;
    port.WriteMem(address, reinterpret_cast<std::uint8_t*>(&block), &count);
}

/// Transfer<T, void>: a plain register, just the value.
template <typename T, typename I> class Transfer {
public:
    T Read(IControlPort& port, std::uint32_t address) { return ReadBytes<T>(port, address); }
    void Write(IControlPort& port, std::uint32_t address, const T& value) { WriteBytes(port, address, value); }
};

/// Transfer<T, int>: one of several instances at one address. An index word precedes the value. A read selects the
/// instance first and skips the index word that the camera echoes.
template <typename T> class Transfer<T, int> {
public:
    explicit Transfer(int instance) : index(instance) {}

    T Read(IControlPort& port, std::uint32_t address) {
        port.WriteRegister(address, static_cast<std::uint32_t>(index));
        return ReadBytes<Block>(port, address).value;
    }

    void Write(IControlPort& port, std::uint32_t address, const T& value) {
        WriteBytes(port, address, Block{index, value});
    }

private:
    struct Block {
        std::int32_t index;
        T value;
    };
    static_assert(sizeof(Block) == sizeof(std::int32_t) + sizeof(T), "index word and value without padding");

    std::int32_t index;
};

/// Transfer<std::string, void>: a text after a leading word, in a block of fixed length.
template <> class Transfer<std::string, void> {
public:
    explicit Transfer(unsigned int blockLength) : declared(blockLength), length(blockLength) {}

    /// The text after the leading word, with white space trimmed at both ends. NUL bytes are part of the text.
    std::string Read(IControlPort& port, std::uint32_t address);

    /// Writes a zero word and the text, padded with zeros. Throws before the write if the text does not fit.
    void Write(IControlPort& port, std::uint32_t address, const std::string& text) const;

private:
    unsigned int declared; ///< bytes of the block, the leading word included
    unsigned int length;   ///< bytes to request: the length of the last reply that included the leading word
};

} // namespace SDK4
