#pragma once

#include <SDK4/IControlPort.h>
#include <SDK4/IGigEVisionPort.h>

namespace SDK4::Control {

/// Exposes the host's port as an interface of the control.
class KGigEVisionPort : public IGigEVisionPort {
public:
    explicit KGigEVisionPort(IControlPort* controlPort);

    unsigned int ReadRegister(unsigned int address) override;
    void WriteRegister(unsigned int address, unsigned int value) override;
    void ReadMem(unsigned int address, unsigned char* buffer, unsigned int* length) override;
    void WriteMem(unsigned int address, unsigned char* buffer, unsigned int* length) override;

private:
    IControlPort* port;
};

} // namespace SDK4::Control
