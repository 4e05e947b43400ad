#include "OrvikControlImpl/KGigEVisionPort.h"

#include "Log.h"

namespace SDK4::Control {

namespace {

void RequireMemory(const unsigned char* buffer, const unsigned int* length) {
    if (buffer == nullptr || length == nullptr) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
}

} // namespace

KGigEVisionPort::KGigEVisionPort(IControlPort* controlPort) : port(controlPort) { SDK4_LOG(Info, "Call"); }

unsigned int KGigEVisionPort::ReadRegister(unsigned int address) {
    SDK4_LOG_CALL();
    return port->ReadRegister(address);
}

void KGigEVisionPort::WriteRegister(unsigned int address, unsigned int value) {
    SDK4_LOG_CALL();
    port->WriteRegister(address, value);
}

void KGigEVisionPort::ReadMem(unsigned int address, unsigned char* buffer, unsigned int* length) {
    SDK4_LOG_CALL();
    RequireMemory(buffer, length);
    std::uint64_t count = *length;
    port->ReadMem(address, buffer, &count);
    *length = static_cast<unsigned int>(count);
}

void KGigEVisionPort::WriteMem(unsigned int address, unsigned char* buffer, unsigned int* length) {
    SDK4_LOG_CALL();
    RequireMemory(buffer, length);
    std::uint64_t count = *length;
    port->WriteMem(address, buffer, &count);
    *length = static_cast<unsigned int>(count);
}

} // namespace SDK4::Control
