#include "OrvikControlImpl/KGufi.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

namespace {

constexpr std::size_t longestText = 20; // in a block of 24 bytes, after the leading word

/// Never reallocates the buffer: a pointer returned for another camera then points to this text, not to freed memory.
const char* CopyText(const std::string& text, std::string& buffer) {
    buffer.reserve(longestText);
    buffer.assign(text);
    return buffer.c_str();
}

} // namespace

KGufi::KGufi(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KGufi");
    // The identity does not change while the camera is open, so it is cached even with caching off. The address of the
    // hardware version is above that of the firmware version.
    // clang-format off
    Text                     (DeviceName,           0x64010000, 24, ReadBackFixed); Plain<std::string>   (DeviceName);
    Text                     (SerialNumber,         0x64020000, 16, ReadBackFixed); Plain<std::string>   (SerialNumber);
    Register<unsigned int>   (FunctionModelId,      0x64030000,     ReadBackFixed); Plain<unsigned int>  (FunctionModelId);
    Register<SDK4_KVERSION>  (FunctionModelVersion, 0x64040000,     ReadBackFixed); Plain<SDK4_KVERSION> (FunctionModelVersion);
    Register<SDK4_KREVISION> (Revision,             0x65010000,     ReadBackFixed); Plain<SDK4_KREVISION>(Revision);
    Text                     (SoftwareBuild,        0x65020000, 24, ReadBackFixed); Plain<std::string>   (SoftwareBuild);
    Register<SDK4_KVERSION>  (SoftwareVersion,      0x65030000,     ReadBackFixed); Plain<SDK4_KVERSION> (SoftwareVersion);
    Register<SDK4_KVERSION>  (HardwareVersion,      0x65050000,     ReadBackFixed); Plain<SDK4_KVERSION> (HardwareVersion);
    Register<SDK4_KVERSION>  (FirmwareVersion,      0x65040000,     ReadBackFixed); Plain<SDK4_KVERSION> (FirmwareVersion);
    // clang-format on
}

// The texts are in one buffer per operation, shared by all controls.

const char* KGufi::GetDeviceName() {
    SDK4_LOG_CALL();
    static std::string buffer;
    return CopyText(Get<std::string>(DeviceName), buffer);
}

const char* KGufi::GetSerialNumber() {
    SDK4_LOG_CALL();
    static std::string buffer;
    return CopyText(Get<std::string>(SerialNumber), buffer);
}

const char* KGufi::GetSoftwareBuild() {
    SDK4_LOG_CALL();
    static std::string buffer;
    return CopyText(Get<std::string>(SoftwareBuild), buffer);
}

// clang-format off
unsigned int KGufi::GetFunctionModelID()          { SDK4_LOG_CALL(); return Get<unsigned int>(FunctionModelId); }
SDK4_KVERSION KGufi::GetFunctionModelVersion()    { SDK4_LOG_CALL(); return Get<SDK4_KVERSION>(FunctionModelVersion); }
SDK4_KREVISION KGufi::GetRevision()               { SDK4_LOG_CALL(); return Get<SDK4_KREVISION>(Revision); }
SDK4_KVERSION KGufi::GetSoftwareVersion()         { SDK4_LOG_CALL(); return Get<SDK4_KVERSION>(SoftwareVersion); }
SDK4_KVERSION KGufi::GetHardwareVersion()         { SDK4_LOG_CALL(); return Get<SDK4_KVERSION>(HardwareVersion); }
SDK4_KVERSION KGufi::GetFirmwareVersion()         { SDK4_LOG_CALL(); return Get<SDK4_KVERSION>(FirmwareVersion); }
// clang-format on

} // namespace SDK4::Control
