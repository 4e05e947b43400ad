#pragma once

// How a register's value travels to and from the camera: as it lies in memory, without byte swapping.

#include <SDK4/IControlPort.h>

#include <cstdint>
#include <cstring>
#include <string>

namespace SDK4 {

/// Reads a block of @p Block's size. What the port does not fill stays zero.
template <typename Block> Block ReadBytes(IControlPort& port, std::uint32_t address) {
    Block block{};
    std::uint64_t count = sizeof block;
    port.ReadMem(address, reinterpret_cast<std::uint8_t*>(&block), &count);
    return block;
}

/// Writes a block as its bytes.
template <typename Block> void WriteBytes(IControlPort& port, std::uint32_t address, Block block) {
    std::uint64_t count = sizeof block;
    port.WriteMem(address, reinterpret_cast<std::uint8_t*>(&block), &count);
}

/// Transfer<T, void>: a plain register, the value alone.
template <typename T, typename I> class Transfer {
public:
    T Read(IControlPort& port, std::uint32_t address) { return ReadBytes<T>(port, address); }
    void Write(IControlPort& port, std::uint32_t address, const T& value) { WriteBytes(port, address, value); }
};

/// Transfer<T, int>: one of several instances at one address. An index word leads the value; a read selects the
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
    static_assert(sizeof(Block) == sizeof(std::int32_t) + sizeof(T), "index word and value, nothing between them");

    std::int32_t index;
};

/// Transfer<std::string, void>: a text behind a leading word, in a block of fixed length.
template <> class Transfer<std::string, void> {
public:
    explicit Transfer(unsigned int blockLength) : declared(blockLength), length(blockLength) {}

    /// The text behind the leading word, without the white space at its ends. NUL bytes belong to the text.
    std::string Read(IControlPort& port, std::uint32_t address);

    /// Writes a zero word and the text, padded with zeros. A text that does not fit is refused before the write.
    void Write(IControlPort& port, std::uint32_t address, const std::string& text) const;

private:
    unsigned int declared; ///< bytes of the block, the leading word included
    unsigned int length;   ///< bytes to ask for: what was delivered last, if that held the leading word
};

} // namespace SDK4
