#pragma once

// How values are transferred to and from the vendor registers.

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

static_assert(std::endian::native == std::endian::little, "records are transferred in memory order");

/// Reads and writes registers through the host's port. T is the type in the interface: a number, an enumeration or a
/// record.
class RegisterAccess {
public:
    using Address = RegisterMap::Address;

    explicit RegisterAccess(IControlPort* controlPort) : port(controlPort) {}

    // Plain words.

    template <typename T = std::uint32_t> [[nodiscard]] T Word(Address address) const {
        return static_cast<T>(port->ReadRegister(Number(address)));
    }

    template <typename T> void SetWord(Address address, T value) const {
        port->WriteRegister(Number(address), static_cast<std::uint32_t>(value));
    }

    // Records of two words in one register pair, first field in the lower half. T may also be a 64-bit number.

    template <typename T> [[nodiscard]] T Pair(Address address) const {
        return std::bit_cast<T>(port->ReadRegisterPair(Number(address)));
    }

    template <typename T> void SetPair(Address address, const T& record) const {
        port->WriteRegisterPair(Number(address), std::bit_cast<std::uint64_t>(record));
    }

    // Indexed words: one register for several values. Index and value are the halves of a pair. A read first writes the
    // index.

    template <typename T = std::uint32_t> [[nodiscard]] T Indexed(Address address, std::uint32_t index) const {
        port->WriteRegister(Number(address), index);
        return static_cast<T>(static_cast<std::uint32_t>(port->ReadRegisterPair(Number(address)) >> 32));
    }

    template <typename T> void SetIndexed(Address address, std::uint32_t index, T value) const {
        port->WriteRegisterPair(Number(address), std::uint64_t{static_cast<std::uint32_t>(value)} << 32 | index);
    }

    // Blocks: a record of more than two words, or one after the key that selects it.

    /// Reads a block that holds a record after @p skip bytes. Throws SDK4_ERR_CANTGETFEATURE if the port returns null.
    template <typename T> [[nodiscard]] T Block(Address address, std::size_t skip = 0) const {
        const auto length = static_cast<std::uint32_t>(skip + sizeof(T));
        const std::unique_ptr<unsigned char, Free> block(port->ReadBlock(Number(address), length));
        if (!block) {
            SDK4_THROW(SDK4_ERR_CANTGETFEATURE);
        }
        T record{};
        std::memcpy(&record, block.get() + skip, sizeof record);
        return record;
    }

    template <typename T> void SetBlock(Address address, const T& record) const {
        port->WriteBlock(Number(address), reinterpret_cast<const unsigned char*>(&record), sizeof record);
    }

    /// Writes the index as a plain word, then reads its record.
    template <typename T> [[nodiscard]] T Record(Address address, std::uint32_t index) const {
        port->WriteRegister(Number(address), index);
        return Block<T>(address, sizeof index);
    }

    /// Writes a selection of two words as a pair, then reads its record.
    template <typename T, typename Select> [[nodiscard]] T Selected(Address address, const Select& select) const {
        // Intended: here the camera takes the first word in the upper half, unlike in memory and in the block of
        // SetRecord.
        port->WriteRegisterPair(Number(address), std::rotl(std::bit_cast<std::uint64_t>(select), 32));
        return Block<T>(address, sizeof select);
    }

    /// Writes the record of an index or of a selection as one block: the key in memory order, then the record.
    template <typename Key, typename T> void SetRecord(Address address, const Key& key, const T& record) const {
        std::array<unsigned char, sizeof key + sizeof record> block{};
        std::memcpy(block.data(), &key, sizeof key);
        std::memcpy(block.data() + sizeof key, &record, sizeof record);
        SetBlock(address, block);
    }

    /// Reads an identity text: a word, then the text. Null if the port has none.
    [[nodiscard]] char* Text(Address address) const {
        char* text = port->ReadString(Number(address), 24);
        return text == nullptr ? nullptr : text + sizeof(std::uint32_t);
    }

    /// Writes any number of bytes; the port splits them.
    void SetBytes(Address address, void* data, std::uint64_t count) const {
        port->WriteMem(Number(address), static_cast<std::uint8_t*>(data), &count);
    }

private:
    static std::uint32_t Number(Address address) { return static_cast<std::uint32_t>(address); }

    struct Free {
        void operator()(unsigned char* block) const { std::free(block); }
    };

    IControlPort* port; ///< not owned
};

inline RegisterAccess RegisterMap::Access() const { return RegisterAccess(port); }

inline RegisterAccess RegisterMap::Call(const Location& location) const {
    LogCall(location);
    return Access();
}

} // namespace SDK4::Control
