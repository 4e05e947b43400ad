#pragma once

#include <SDK4/Export.h>

#include <cstdint>

namespace SDK4 {

/// The host's register port: every access to a camera goes through it. The host implements and owns it, and keeps it
/// until Release of the control has returned. The library never copies or deletes it.
///
/// Addresses are those of the GigE Vision control channel, 32 bits. The slot order is fixed. The only result that the
/// library checks is a null block. A port reports a failed access by throwing an exception of any type, which passes
/// through the library unchanged.
///
/// On a control channel, the operations map to accesses of the GigE Vision standard:
///
/// | Operations                          | Access            | What is transferred                               |
/// |-------------------------------------|-------------------|---------------------------------------------------|
/// | ReadRegister, WriteRegister         | READREG, WRITEREG | a value, in the host's byte order at this port    |
/// | ReadRegisterPair, WriteRegisterPair | READMEM, WRITEMEM | two little-endian words, the first word first     |
/// | ReadBlock, WriteBlock               | READMEM, WRITEMEM | the bytes as the camera holds them, not swapped   |
/// | ReadMem, WriteMem                   | READMEM, WRITEMEM | the same                                          |
/// | ReadString, WriteString             | READMEM, WRITEMEM | the same                                          |
///
/// Vendor registers hold little-endian words, and the library uses the words of a block as they are. Bootstrap
/// registers hold big-endian words; the library reads them by READREG, or as text.
///
/// Memory accesses transfer whole words at addresses that are multiples of 4, at most 536 bytes per packet; the port
/// splits longer ones. The library's own accesses are aligned in this way, unless the port reported another length for
/// a text. IGigEVisionPort passes addresses and lengths from the host on unchanged.
///
/// A write may select what the next read of the same address returns (an instance of an indexed register). The port
/// must not insert another access to that address between the two.
///
/// The port of the reference host and the simulated cameras follow these rules. They have never been tested with a real
/// camera.
class SDK4_PUBLIC IControlPort {
public:
    /// Writes one word.
    virtual void WriteRegister(std::uint32_t address, std::uint32_t value) = 0;

    /// Reads one word.
    virtual std::uint32_t ReadRegister(std::uint32_t address) = 0;

    /// Writes two words at once: the first in the low half of @p value, the second in the high half.
    virtual void WriteRegisterPair(std::uint32_t address, std::uint64_t value) = 0;

    /// Reads two words at once, packed as in WriteRegisterPair.
    virtual std::uint64_t ReadRegisterPair(std::uint32_t address) = 0;

    /// Reads a block of @p length bytes.
    /// @return a buffer of that many bytes from malloc, which the library releases with free; null on failure, which
    ///         the library reports as SDK4_ERR_CANTGETFEATURE.
    virtual unsigned char* ReadBlock(std::uint32_t address, std::uint32_t length) = 0;

    /// Writes a block of @p length bytes.
    virtual void WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) = 0;

    /// Reads a text register of @p length bytes.
    /// @return a buffer owned by the port, with all @p length bytes followed by a NUL; null if there is no text. A text
    ///         may follow a leading word, so the port must not stop at the first NUL. Some operations return the buffer
    ///         to their caller, so it must stay valid until the next access.
    virtual char* ReadString(std::uint32_t address, std::uint32_t length) = 0;

    /// Writes a text: @p length bytes, padded with zeros.
    virtual void WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) = 0;

    /// Reads memory into the caller's buffer.
    /// @param address where the memory begins
    /// @param buffer the caller's
    /// @param length in: the bytes wanted, the size of @p buffer; out: the bytes read.
    virtual void ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) = 0;

    /// Writes memory from the caller's buffer.
    /// @param address where the memory begins
    /// @param buffer the caller's
    /// @param length in: the bytes to write; out: the bytes written.
    virtual void WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) = 0;
};

} // namespace SDK4
