#include "RefusingPort.h"

#include "Log.h"

namespace SDK4 {

using std::uint32_t;
using std::uint64_t;
using std::uint8_t;

IControlPort* RefusingPort::Instance() {
    static RefusingPort port;
    return &port;
}

// clang-format off
void           RefusingPort::WriteRegister(uint32_t, uint32_t)                      { SDK4_THROW(SDK4_ERR_INVALID_PARAMETER); }
uint32_t       RefusingPort::ReadRegister(uint32_t)                                 { SDK4_THROW(SDK4_ERR_INVALID_PARAMETER); }
void           RefusingPort::WriteRegisterPair(uint32_t, uint64_t)                  { SDK4_THROW(SDK4_ERR_INVALID_PARAMETER); }
uint64_t       RefusingPort::ReadRegisterPair(uint32_t)                             { SDK4_THROW(SDK4_ERR_INVALID_PARAMETER); }
unsigned char* RefusingPort::ReadBlock(uint32_t, uint32_t)                          { SDK4_THROW(SDK4_ERR_INVALID_PARAMETER); }
void           RefusingPort::WriteBlock(uint32_t, const unsigned char*, uint32_t)   { SDK4_THROW(SDK4_ERR_INVALID_PARAMETER); }
char*          RefusingPort::ReadString(uint32_t, uint32_t)                         { SDK4_THROW(SDK4_ERR_INVALID_PARAMETER); }
void           RefusingPort::WriteString(uint32_t, const char*, uint32_t)           { SDK4_THROW(SDK4_ERR_INVALID_PARAMETER); }
void           RefusingPort::ReadMem(uint32_t, uint8_t*, uint64_t*)                 { SDK4_THROW(SDK4_ERR_INVALID_PARAMETER); }
void           RefusingPort::WriteMem(uint32_t, uint8_t*, uint64_t*)                { SDK4_THROW(SDK4_ERR_INVALID_PARAMETER); }
// clang-format on

} // namespace SDK4
