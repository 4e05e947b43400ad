#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IMemory.h>

#include <string>

namespace SDK4::Control {

/// Functions of the image memory.
class KMemory : public IMemory, protected Capability {
public:
    KMemory(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache, std::string model);

    SDK4_ENUM_SWITCH GetVerticalFlip() override;
    void SetVerticalFlip(int flip) override;
    SDK4_ENUM_SWITCH GetHorizontalFlip() override;
    void SetHorizontalFlip(int flip) override;
    SDK4_ENUM_SWITCH GetLastImageHold() override;
    void SetLastImageHold(int hold) override;
    SDK4_ENUM_SWITCH GetImageSubtraction() override;
    void SetImageSubtraction(int subtract) override;
    SDK4_ENUM_RECURSIVEFILTER GetRecursiveFilter() override;
    void SetRecursiveFilter(int strength) override;
    void StoreImage(int store) override;
    SDK4_ENUM_SWITCH GetAutoMotionDetection() override;
    void SetAutoMotionDetection(int detect) override;
};

} // namespace SDK4::Control
