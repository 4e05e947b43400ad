#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// The two overlay lines that the camera draws into its image.
class SDK4_PUBLIC IOverlay {
public:
    virtual SDK4_ENUM_SWITCH GetOverlayShow(int line) = 0;
    virtual void SetOverlayShow(int line, int show) = 0;
    virtual SDK4_KPOSITION GetOverlayPosition(int line) = 0;
    virtual void SetOverlayPosition(int line, SDK4_KPOSITION position) = 0;
    virtual SDK4_KSTYLE GetOverlayStyle(int line) = 0;
    virtual void SetOverlayStyle(int line, SDK4_KSTYLE style) = 0;
    virtual SDK4_KOVERLAYSIZE GetOverlaySize(int line) = 0;
    virtual void SetOverlaySize(int line, SDK4_KOVERLAYSIZE size) = 0;
};

} // namespace SDK4::Control
