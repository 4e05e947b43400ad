#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Functions of the camera's image memory. Switches take 0 and 1; any other value throws and writes nothing,
/// SDK4_ERR_INVALID_PARAMETER on Orvik and SDK4_ERR_OUTOFRANGE on M2VX.
///
/// Orvik: on a camera without image memory (bit 17 of the function model) every operation throws
/// SDK4_ERR_NOT_IMPLEMENTED. The first read after a write goes to the camera.
class SDK4_PUBLIC IMemory {
public:
    /// Whether the image is turned upside down. Register 0x16020000.
    virtual SDK4_ENUM_SWITCH GetVerticalFlip() = 0;

    /// Turns the image upside down or not.
    virtual void SetVerticalFlip(int flip) = 0;

    /// Whether the image is mirrored. Register 0x16030000.
    virtual SDK4_ENUM_SWITCH GetHorizontalFlip() = 0;

    /// Mirrors the image or not.
    virtual void SetHorizontalFlip(int flip) = 0;

    /// Whether the last image is held. Register 0x16040000.
    virtual SDK4_ENUM_SWITCH GetLastImageHold() = 0;

    /// Holds the last image or not.
    virtual void SetLastImageHold(int hold) = 0;

    /// Whether the stored image is subtracted. Register 0x16060000.
    virtual SDK4_ENUM_SWITCH GetImageSubtraction() = 0;

    /// Subtracts the stored image from the live one or not.
    virtual void SetImageSubtraction(int subtract) = 0;

    /// Strength of the recursive filter: 0 is off. Register 0x16070000.
    virtual SDK4_ENUM_RECURSIVEFILTER GetRecursiveFilter() = 0;

    /// Sets the strength of the recursive filter, 0 to 4; any other throws as for a switch. M2VX: 0 disables automatic
    /// motion detection, any other enables it.
    virtual void SetRecursiveFilter(int strength) = 0;

    /// Stores the image (1); 0 is written as well. Register 0x16050000.
    virtual void StoreImage(int store) = 0;

    /// Automatic motion detection. Register 0x16080000.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always.
    /// @throws SDK4_ERR_DISABLED (M2VX) from a cached control, while the recursive filter is off.
    virtual SDK4_ENUM_SWITCH GetAutoMotionDetection() = 0;

    /// Switches automatic motion detection.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always.
    /// @throws SDK4_ERR_DISABLED (M2VX) after the recursive filter was switched off; nothing is written.
    virtual void SetAutoMotionDetection(int detect) = 0;
};

} // namespace SDK4::Control
