#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control {

/// Raw access to the camera's registers and memory.
class SDK4_PUBLIC IGigEVisionPort {
public:
    virtual unsigned int ReadRegister(unsigned int address) = 0;
    virtual void WriteRegister(unsigned int address, unsigned int value) = 0;
    virtual void ReadMem(unsigned int address, unsigned char* buffer, unsigned int* length) = 0;
    virtual void WriteMem(unsigned int address, unsigned char* buffer, unsigned int* length) = 0;
};

} // namespace SDK4::Control
