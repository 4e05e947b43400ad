#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/ISignalFormat.h>

#include <string>

namespace SDK4::Control {

/// Pixel coding and image size.
class KSignalFormat : public ISignalFormat, protected Capability {
public:
    KSignalFormat(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache,
                  std::string model);

    SDK4_ENUM_COLORCODING GetColorCoding() override;
    void SetColorCoding(SDK4_ENUM_COLORCODING coding) override;
    SDK4_KSIZE GetImageSize() override;

    virtual ~KSignalFormat() = default;
};

} // namespace SDK4::Control
