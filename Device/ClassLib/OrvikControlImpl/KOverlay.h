#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IOverlay.h>

namespace SDK4::Control {

/// The two overlay lines.
class KOverlay : public IOverlay, protected Capability {
public:
    KOverlay(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    SDK4_ENUM_SWITCH GetOverlayShow(int line) override;
    void SetOverlayShow(int line, int show) override;
    SDK4_KPOSITION GetOverlayPosition(int line) override;
    void SetOverlayPosition(int line, SDK4_KPOSITION position) override;
    SDK4_KSTYLE GetOverlayStyle(int line) override;
    void SetOverlayStyle(int line, SDK4_KSTYLE style) override;
    SDK4_KOVERLAYSIZE GetOverlaySize(int line) override;
    void SetOverlaySize(int line, SDK4_KOVERLAYSIZE size) override;

    virtual ~KOverlay() = default;
};

} // namespace SDK4::Control
