#pragma once

#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Identity of the camera. The two words of a version or revision are passed on unchanged.
///
/// Whatever the camera index, the Orvik family reads each value once and caches it, and the M2VX family reads it on
/// every call. A text begins after the first four bytes of its register. Orvik trims white space at both ends of the
/// field, so blanks before padding zeros stay. With M2VX the text is the port's, and null if the port has none.
class SDK4_PUBLIC IGufi {
public:
    /// Name of the device, at most 20 characters. Register 0x64010000.
    virtual const char* GetDeviceName() = 0;

    /// Serial number, at most 12 characters (M2VX: 20). Register 0x64020000.
    virtual const char* GetSerialNumber() = 0;

    /// What the camera can do. Bit 16: colour, bit 17: image memory, bit 18: histogram. Register 0x64030000.
    virtual unsigned int GetFunctionModelID() = 0;

    /// Version of the function model. Register 0x64040000.
    virtual SDK4_KVERSION GetFunctionModelVersion() = 0;

    /// Revision of the camera. Register 0x65010000.
    virtual SDK4_KREVISION GetRevision() = 0;

    /// Build of the camera's software, at most 20 characters. Register 0x65020000.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (M2VX) always.
    virtual const char* GetSoftwareBuild() = 0;

    /// Version of the camera's software. Register 0x65030000.
    virtual SDK4_KVERSION GetSoftwareVersion() = 0;

    /// Version of the hardware. Register 0x65050000, above that of the firmware.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (M2VX) always.
    virtual SDK4_KVERSION GetHardwareVersion() = 0;

    /// Version of the firmware. Register 0x65040000.
    virtual SDK4_KVERSION GetFirmwareVersion() = 0;
};

} // namespace SDK4::Control
