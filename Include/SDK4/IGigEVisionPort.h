#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control {

/// Raw access to the camera's registers and memory, straight through the host's port. Orvik only.
///
/// The caches do not notice these accesses: after a write to a register of another interface, that interface may still
/// return the cached value.
class SDK4_PUBLIC IGigEVisionPort {
public:
    /// Reads one 32-bit word.
    virtual unsigned int ReadRegister(unsigned int address) = 0;

    /// Writes one 32-bit word.
    virtual void WriteRegister(unsigned int address, unsigned int value) = 0;

    /// Reads memory into @p buffer.
    /// @param address where the memory begins
    /// @param buffer the caller's
    /// @param length in: bytes wanted, the size of @p buffer; out: bytes read
    /// @throws SDK4_ERR_INVALID_PARAMETER for a null @p buffer or @p length, before any access.
    virtual void ReadMem(unsigned int address, unsigned char* buffer, unsigned int* length) = 0;

    /// Writes memory from @p buffer.
    /// @param address where the memory begins
    /// @param buffer the caller's
    /// @param length in: bytes to write; out: bytes written
    /// @throws SDK4_ERR_INVALID_PARAMETER for a null @p buffer or @p length, before any access.
    virtual void WriteMem(unsigned int address, unsigned char* buffer, unsigned int* length) = 0;
};

} // namespace SDK4::Control
