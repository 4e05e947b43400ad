#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

#include <cstdint>

namespace SDK4::Control {

/// Settings sets, restart, firmware update, device registers.
class SDK4_PUBLIC IBasicSettings {
public:
    virtual void Restart() = 0;
    virtual void LoadSettings(int set) = 0;
    virtual void SaveSettings(int set) = 0;
    virtual SDK4_ENUM_SETTINGS GetStartupSettings() = 0;
    virtual void SetStartupSettings(int set) = 0;
    virtual SDK4_ENUM_OPERATIONMODE GetOperationMode() = 0;
    virtual void SetUpdateFile(void* data, unsigned int length) = 0;
    virtual std::uint64_t GetUpdateStatus() = 0;
    virtual unsigned int GetDevice(SDK4_KDEVICESELECT select) = 0;
    virtual void SetDevice(SDK4_KDEVICESELECT select, unsigned int value) = 0;
    virtual unsigned int GetErrorRegisterStatus() = 0;
};

} // namespace SDK4::Control
