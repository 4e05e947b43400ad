#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Functions of the camera's image memory.
class SDK4_PUBLIC IMemory {
public:
    virtual SDK4_ENUM_SWITCH GetVerticalFlip() = 0;
    virtual void SetVerticalFlip(int flip) = 0;
    virtual SDK4_ENUM_SWITCH GetHorizontalFlip() = 0;
    virtual void SetHorizontalFlip(int flip) = 0;
    virtual SDK4_ENUM_SWITCH GetLastImageHold() = 0;
    virtual void SetLastImageHold(int hold) = 0;
    virtual SDK4_ENUM_SWITCH GetImageSubtraction() = 0;
    virtual void SetImageSubtraction(int subtract) = 0;
    virtual SDK4_ENUM_RECURSIVEFILTER GetRecursiveFilter() = 0;
    virtual void SetRecursiveFilter(int strength) = 0;
    virtual void StoreImage(int store) = 0;
    virtual SDK4_ENUM_SWITCH GetAutoMotionDetection() = 0;
    virtual void SetAutoMotionDetection(int detect) = 0;
};

} // namespace SDK4::Control
