#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace Fuzz {

/// The bytes of one input, read from front to back. After its end, all bytes are zero.
class Input {
public:
    Input(const std::uint8_t* bytes, std::size_t size) : at(bytes), end(bytes + size) {}

    [[nodiscard]] bool AtEnd() const { return at == end; }

    std::uint8_t Byte() { return AtEnd() ? std::uint8_t{0} : *at++; }

    /// A number below @p count.
    std::size_t Choice(std::size_t count) { return Byte() % count; }

    template <typename T, std::size_t N> const T& One(const std::array<T, N>& candidates) {
        return candidates[Choice(N)];
    }

    /// A number, mostly small or at the edge of a range, so that few bytes reach far.
    std::uint32_t Word() {
        const std::uint8_t kind = Byte();
        if (kind < 0x80) {
            return kind;
        }
        if (kind < 0xC0) {
            return edges[(kind - 0x80u) % edges.size()];
        }
        if (kind < 0xD0) {
            return ~std::uint32_t{kind & 0xFu};
        }
        std::uint32_t word = 0;
        for (unsigned int i = kind < 0xE8 ? 2 : 4; i > 0; --i) {
            word = word << 8 | Byte();
        }
        return word;
    }

private:
    /// Bounds of settings and counts, bits of the function model (0x64030000), letters, extremes.
    static constexpr std::array<std::uint32_t, 32> edges = {
        0x7FFFFFFF, 0x80000000, 0x80000001, 0xFFFFFFFF, 0x00010000, 0x00020000, 0x00040000, 0x00070000,
        0x00060000, 128,        129,        255,        256,        511,        512,        568,
        569,        1023,       1024,       1025,       1404,       2000,       2001,       2047,
        2048,       16383,      16384,      65532,      65535,      65536,      0x41414141, 0x20202020,
    };

    const std::uint8_t* at;
    const std::uint8_t* end;
};

} // namespace Fuzz
