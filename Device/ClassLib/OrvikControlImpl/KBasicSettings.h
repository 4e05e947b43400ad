#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IBasicSettings.h>

namespace SDK4::Control {

/// Settings sets and operation mode.
class KBasicSettings : public IBasicSettings, protected Capability {
public:
    KBasicSettings(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    void Restart() override;
    void LoadSettings(int set) override;
    void SaveSettings(int set) override;
    SDK4_ENUM_SETTINGS GetStartupSettings() override;
    void SetStartupSettings(int set) override;
    SDK4_ENUM_OPERATIONMODE GetOperationMode() override;
    void SetUpdateFile(void* data, unsigned int length) override;
    std::uint64_t GetUpdateStatus() override;
    unsigned int GetDevice(SDK4_KDEVICESELECT select) override;
    void SetDevice(SDK4_KDEVICESELECT select, unsigned int value) override;
    unsigned int GetErrorRegisterStatus() override;
};

} // namespace SDK4::Control
