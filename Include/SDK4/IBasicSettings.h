#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

#include <cstdint>

namespace SDK4::Control {

/// Settings sets, restart, firmware update, device registers. Nothing is cached (M2VX: except the start-up set).
///
/// An invalid set number throws SDK4_ERR_INVALID_PARAMETER (Orvik) or SDK4_ERR_OUTOFRANGE (M2VX); nothing is written.
class SDK4_PUBLIC IBasicSettings {
public:
    /// Restarts the camera: writes 0 to register 0x51010000. Cached values and the acquisition state of the control do
    /// not change; open the camera again.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always.
    virtual void Restart() = 0;

    /// Makes settings set 0, 1 or 2 current. Register 0x51020000. Orvik: invalidates every setting except the pattern
    /// generator. M2VX: cached values do not change; open the camera again.
    /// @throws SDK4_ERR_ACQUISITIONRUNNING (M2VX) while acquisition runs; nothing is written.
    virtual void LoadSettings(int set) = 0;

    /// Saves the current settings as set 1 or 2. Register 0x51030000.
    virtual void SaveSettings(int set) = 0;

    /// The set that the camera loads when it starts. Register 0x51040000.
    virtual SDK4_ENUM_SETTINGS GetStartupSettings() = 0;

    /// Chooses the set that the camera loads when it starts: 0, 1 or 2.
    virtual void SetStartupSettings(int set) = 0;

    /// Operation mode; a code of the camera. Register 0x52020000.
    virtual SDK4_ENUM_OPERATIONMODE GetOperationMode() = 0;

    /// Hands the camera a new firmware of @p length bytes.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED always: neither family is updated through this library.
    virtual void SetUpdateFile(void* data, unsigned int length) = 0;

    /// Progress of the firmware update.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED always.
    virtual std::uint64_t GetUpdateStatus() = 0;

    /// Value of the device register that @p select names. Register 0x50050000.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always.
    /// @throws SDK4_ERR_CANTGETFEATURE (M2VX) when the camera does not answer.
    virtual unsigned int GetDevice(SDK4_KDEVICESELECT select) = 0;

    /// Writes the device register that @p select names; not checked. Register 0x50050000.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always.
    virtual void SetDevice(SDK4_KDEVICESELECT select, unsigned int value) = 0;

    /// The camera's error bits. Register 0x52030000.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always.
    virtual unsigned int GetErrorRegisterStatus() = 0;
};

} // namespace SDK4::Control
