#include "OrvikControlImpl/KBasicSettings.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KBasicSettings::KBasicSettings(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KBasicSettings");
    // clang-format off
    Register<int>(Name::Restart,         0x51010000, Never);
    Register<int>(Name::LoadSettings,    0x51020000, Never);
    Register<int>(Name::SaveSettings,    0x51030000, Never);
    Register<int>(Name::StartupSettings, 0x51040000, Never);
    Register<int>(Name::OperationMode,   0x52020000, Never);

    Plain<int>(Name::Restart);
    Enum      (Name::LoadSettings,    {0, 1, 2});
    Enum      (Name::SaveSettings,    {1, 2}); // set 0 is the factory set and cannot be overwritten
    Enum      (Name::StartupSettings, {0, 1, 2});
    Plain<int>(Name::OperationMode);
    // clang-format on
}

// clang-format off
void KBasicSettings::Restart()                                      { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
void KBasicSettings::LoadSettings(int set)                          { SDK4_LOG_CALL(); Set<int>(Name::LoadSettings, set); }
void KBasicSettings::SaveSettings(int set)                          { SDK4_LOG_CALL(); Set<int>(Name::SaveSettings, set); }
SDK4_ENUM_SETTINGS KBasicSettings::GetStartupSettings()             { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_SETTINGS>(Name::StartupSettings); }
void KBasicSettings::SetStartupSettings(int set)                    { SDK4_LOG_CALL(); Set<int>(Name::StartupSettings, set); }
SDK4_ENUM_OPERATIONMODE KBasicSettings::GetOperationMode()          { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_OPERATIONMODE>(Name::OperationMode); }
void KBasicSettings::SetUpdateFile(void*, unsigned int)             { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
std::uint64_t KBasicSettings::GetUpdateStatus()                     { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
unsigned int KBasicSettings::GetDevice(SDK4_KDEVICESELECT)          { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
void KBasicSettings::SetDevice(SDK4_KDEVICESELECT, unsigned int)    { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
unsigned int KBasicSettings::GetErrorRegisterStatus()               { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
// clang-format on

} // namespace SDK4::Control
