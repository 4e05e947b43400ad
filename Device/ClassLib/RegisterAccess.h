#pragma once

// The ways in which values travel between the library and the cameras' own registers.

#include "Log.h"
#include "RegisterMap.h"

#include <SDK4/IControlPort.h>

#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace SDK4::Control {

static_assert(std::endian::native == std::endian::little, "records travel in memory order as words and register pairs");

// Plain words.

template <typename T = std::uint32_t> [[nodiscard]] T ReadWord(IControlPort* port, Register::Address address) {
    return static_cast<T>(port->ReadRegister(address));
}

template <typename T> void WriteWord(IControlPort* port, Register::Address address, T value) {
    port->WriteRegister(address, static_cast<std::uint32_t>(value));
}

// Records of two words in one register pair, first field in the lower half.

template <typename Record> [[nodiscard]] Record ReadPair(IControlPort* port, Register::Address address) {
    return std::bit_cast<Record>(port->ReadRegisterPair(address));
}

template <typename Record> void WritePair(IControlPort* port, Register::Address address, const Record& record) {
    port->WriteRegisterPair(address, std::bit_cast<std::uint64_t>(record));
}

// Indexed words: one register stands for several values. Index and value are the halves of a pair, and a read is
// preceded by a write of the index alone.

template <typename T = std::uint32_t>
[[nodiscard]] T ReadIndexedWord(IControlPort* port, Register::Address address, std::uint32_t index) {
    port->WriteRegister(address, index);
    return static_cast<T>(static_cast<std::uint32_t>(port->ReadRegisterPair(address) >> 32));
}

template <typename T>
void WriteIndexedWord(IControlPort* port, Register::Address address, std::uint32_t index, T value) {
    port->WriteRegisterPair(address, std::uint64_t{static_cast<std::uint32_t>(value)} << 32 | index);
}

// Blocks: a record of more than two words, or one behind the key that selects it.

struct FreeBlock {
    void operator()(unsigned char* block) const { std::free(block); }
};

/// Reads a block that holds a record behind @p skip bytes. Throws SDK4_ERR_CANTGETFEATURE when the port has none.
template <typename Record>
[[nodiscard]] Record ReadBlock(IControlPort* port, Register::Address address, std::size_t skip = 0) {
    const auto length = static_cast<std::uint32_t>(skip + sizeof(Record));
    const std::unique_ptr<unsigned char, FreeBlock> block(port->ReadBlock(address, length));
    if (!block) {
        SDK4_THROW(SDK4_ERR_CANTGETFEATURE);
    }
    Record record{};
    std::memcpy(&record, block.get() + skip, sizeof record);
    return record;
}

template <typename Record> void WriteBlock(IControlPort* port, Register::Address address, const Record& record) {
    port->WriteBlock(address, reinterpret_cast<const unsigned char*>(&record), sizeof record);
}

/// Writes one block: the key in memory order, then the record.
template <typename Key, typename Record>
void WriteKeyedBlock(IControlPort* port, Register::Address address, const Key& key, const Record& record) {
    std::array<unsigned char, sizeof key + sizeof record> block{};
    std::memcpy(block.data(), &key, sizeof key);
    std::memcpy(block.data() + sizeof key, &record, sizeof record);
    WriteBlock(port, address, block);
}

/// Reads the record of an index, written ahead as a plain word. Writing is WriteKeyedBlock.
template <typename Record>
[[nodiscard]] Record ReadIndexedRecord(IControlPort* port, Register::Address address, std::uint32_t index) {
    port->WriteRegister(address, index);
    return ReadBlock<Record>(port, address, sizeof index);
}

/// Reads the record of a selection of two words, written ahead as a pair. Writing is WriteKeyedBlock.
template <typename Record, typename Select>
[[nodiscard]] Record ReadSelectedRecord(IControlPort* port, Register::Address address, const Select& select) {
    // Intended: the camera takes the first word in the upper half here, exchanged against its place in memory and
    // against its place in the block that is written.
    port->WriteRegisterPair(address, std::rotl(std::bit_cast<std::uint64_t>(select), 32));
    return ReadBlock<Record>(port, address, sizeof select);
}

/// Reads an identity text: a word, then the text. Null if the port has none.
[[nodiscard]] inline char* ReadIdentityText(IControlPort* port, Register::Address address) {
    char* text = port->ReadString(address, 24);
    return text == nullptr ? nullptr : text + sizeof(std::uint32_t);
}

} // namespace SDK4::Control
