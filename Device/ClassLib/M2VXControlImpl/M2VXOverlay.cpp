// Overlays and the measure window.

#include "M2VXCameraBaseCtrl.h"
#include "M2VXControlImpl/Bounds.h"
#include "M2VXControlImpl/SetterLog.h"

namespace SDK4::Control {

/// The highest valid number has no overlay, so it is out of range rather than invalid.
CM2VXPropertyTable::Overlay& CM2VXBaseControl::OverlayAt(int overlay) {
    const std::uint32_t number = UpTo(CM2VXPropertyTable::overlayCount, static_cast<std::uint32_t>(overlay));
    if (number == CM2VXPropertyTable::overlayCount) {
        SDK4_THROW(SDK4_ERR_OUTOFRANGE);
    }
    return table.overlays[number];
}

SDK4_ENUM_SWITCH CM2VXBaseControl::GetOverlayShow(int overlay) {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_SWITCH>(OverlayAt(overlay).show, &CRT6Camera::GetOverlayShow, overlay);
}

void CM2VXBaseControl::SetOverlayShow(int overlay, int show) {
    SDK4_LOG_SETTER(overlay, show);
    access.Set(OverlayAt(overlay).show, show, &CRT6Camera::SetOverlayShow, overlay);
}

SDK4_KCIRCULARPOSITION CM2VXBaseControl::GetOverlayPosition(int overlay) {
    SDK4_LOG_CALL();
    return access.Get(OverlayAt(overlay).position, &CM2VXCamera::GetOverlayPosition, overlay);
}

void CM2VXBaseControl::SetOverlayPosition(int overlay, SDK4_KCIRCULARPOSITION position) {
    SDK4_LOG_SETTER(overlay, position);
    access.SetThenReport(OverlayAt(overlay).position, position, &CM2VXCamera::SetOverlayPosition,
                         &CM2VXCamera::GetOverlayPosition, overlay);
}

SDK4_KSTYLE CM2VXBaseControl::GetOverlayStyle(int overlay) {
    SDK4_LOG_CALL();
    return access.Get(OverlayAt(overlay).style, &CRT6Camera::GetOverlayStyle, overlay);
}

void CM2VXBaseControl::SetOverlayStyle(int overlay, SDK4_KSTYLE style) {
    SDK4_LOG_SETTER(overlay, style);
    access.Set(OverlayAt(overlay).style, style, &CRT6Camera::SetOverlayStyle, overlay);
}

SDK4_KOVERLAYSIZE CM2VXBaseControl::GetOverlaySize(int overlay) {
    SDK4_LOG_CALL();
    return access.Get(OverlayAt(overlay).size, &CRT6Camera::GetOverlaySize, overlay);
}

void CM2VXBaseControl::SetOverlaySize(int overlay, SDK4_KOVERLAYSIZE size) {
    SDK4_LOG_SETTER(overlay, size);
    access.Set(OverlayAt(overlay).size, size, &CRT6Camera::SetOverlaySize, overlay);
}

unsigned int CM2VXBaseControl::GetMeasureFrameShow() {
    SDK4_LOG_CALL();
    return access.Get(table.measureFrameShow, &CRT6Camera::GetMeasureFrameShow);
}

void CM2VXBaseControl::SetMeasureFrameShow(unsigned int show) {
    SDK4_LOG_SETTER(show);
    access.Set(table.measureFrameShow, show, &CRT6Camera::SetMeasureFrameShow);
}

SDK4_KMWCIRCLE CM2VXBaseControl::GetMeasureWindow() {
    SDK4_LOG_CALL();
    return access.Get(table.measureWindow, &CM2VXCamera::GetMeasureWindow);
}

void CM2VXBaseControl::SetMeasureWindow(SDK4_KMWCIRCLE window) {
    SDK4_LOG_SETTER(window);
    access.SetThenReport(table.measureWindow, window, &CM2VXCamera::SetMeasureWindow, &CM2VXCamera::GetMeasureWindow);
}

} // namespace SDK4::Control
