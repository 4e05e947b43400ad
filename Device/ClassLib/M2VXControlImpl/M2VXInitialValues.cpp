// What a cached control reads when it is opened: every property that a getter returns.

#include "M2VXCameraBaseCtrl.h"

#include <algorithm>

namespace SDK4::Control {

/// Reads in the order of the table. The enabled flags come last, because a disabled property cannot be filled.
void CM2VXBaseControl::GetInitialValues() {
    GetInitialFormat();
    GetInitialEnhancement();
    GetInitialOverlays();
    GetInitialCorrection();
    GetInitialAutomatics();
    GetInitialDefectPixels();
    access.Fill(table.startupSettings, &CRT6Camera::GetStartupSettings);
    for (std::uint32_t channel = 0; channel < CM2VXPropertyTable::motorChannelCount; ++channel) {
        access.Fill(table.motorControl[channel], &CM2VXCamera::GetMotorControl, channel);
    }
    table.FollowAllModes();
}

void CM2VXBaseControl::GetInitialFormat() {
    table.width.SetValue(acquisition->GetWidth());
    table.height.SetValue(acquisition->GetHeight());
    table.pixelFormat.SetValue(acquisition->GetPixelFormat());
    table.colorCoding.SetValue(table.colorCoding.GetUIntMin()); // the only one
}

void CM2VXBaseControl::GetInitialEnhancement() {
    access.Fill(table.brightness, &CRT6Camera::GetBrightness);
    access.Fill(table.contrast, &CRT6Camera::GetContrast);
    access.Fill(table.sharpness, &CRT6Camera::GetSharpness);
    access.Fill(table.histogramEqualization, &CM2VXCamera::GetHistogramEqualization);
    access.Fill(table.exposureMode, &CRT6Camera::GetExposureMode);
    access.Fill(table.exposure, &CM2VXCamera::GetExposure);
    access.Fill(table.gain, &CRT6Camera::GetGain);
    access.Fill(table.verticalFlip, &CRT6Camera::GetVerticalFlip);
    access.Fill(table.horizontalFlip, &CRT6Camera::GetHorizontalFlip);
    access.Fill(table.lastImageHold, &CRT6Camera::GetLastImageHold);
    access.Fill(table.imageSubtraction, &CRT6Camera::GetImageSubtraction);
    access.Fill(table.recursiveFilter, &CRT6Camera::GetRecursiveFilter);
    access.Fill(table.autoMotionDetection, &CM2VXCamera::GetAutoMotionDetection);
}

void CM2VXBaseControl::GetInitialOverlays() {
    for (std::uint32_t i = 0; i < CM2VXPropertyTable::overlayCount; ++i) {
        auto& overlay = table.overlays[i];
        access.Fill(overlay.show, &CRT6Camera::GetOverlayShow, i);
        access.Fill(overlay.position, &CM2VXCamera::GetOverlayPosition, i);
        access.Fill(overlay.style, &CRT6Camera::GetOverlayStyle, i);
        access.Fill(overlay.size, &CRT6Camera::GetOverlaySize, i);
    }
}

void CM2VXBaseControl::GetInitialCorrection() {
    access.Fill(table.shadingCorrectionMode, &CM2VXCamera::GetShadingCorrectionMode);
    for (std::uint32_t channel = 0; channel < table.shadingCorrection.size(); ++channel) {
        access.Fill(table.shadingCorrection[channel], &CM2VXCamera::GetShadingCorrection, channel);
    }
    access.Fill(table.circularBlankingMode, &CM2VXCamera::GetCircularBlankingMode);
    access.Fill(table.circularBlankingSize, &CM2VXCamera::GetCircularBlankingSize);
    access.Fill(table.circularBlankingPosition, &CM2VXCamera::GetCircularBlankingPosition);
    access.Fill(table.gammaIndex, &CRT6Camera::GetLUTInterpolatorIndex);
    access.Fill(table.negativeImage, &CRT6Camera::GetNegativeImage);
    access.Fill(table.imageSize, &CRT6Camera::GetImageSize);
    access.Fill(table.measureFrameShow, &CRT6Camera::GetMeasureFrameShow);
    access.Fill(table.measureWindow, &CM2VXCamera::GetMeasureWindow);
}

void CM2VXBaseControl::GetInitialAutomatics() {
    access.Fill(table.agc, &CRT6Camera::GetAGC);
    access.Fill(table.automaticLevel, &CRT6Camera::GetAutoExposureLevel);
    access.Fill(table.autoGainStopMode, &CM2VXCamera::GetAutoGainStopMode);
    access.Fill(table.abc, &CM2VXCamera::GetABC);
    access.Fill(table.abcStopMode, &CM2VXCamera::GetABCStopMode);
    for (std::uint32_t i = 0; i < 2; ++i) {
        access.Fill(table.abcThreshold[i], &CM2VXCamera::GetABCThreshold, i);
    }
    access.Fill(table.abcXRLevel, &CM2VXCamera::GetABCXRLevel);
    for (std::uint32_t i = 0; i < 2; ++i) {
        access.Fill(table.testPattern[i], &CM2VXCamera::GetTestPattern, i);
    }
}

/// Only the entries in use: the whole table would take several hundred accesses.
void CM2VXBaseControl::GetInitialDefectPixels() {
    access.Fill(table.defectPixelCount, &CM2VXCamera::GetDefectPixelCount);
    const std::uint32_t used =
        std::min(table.defectPixelCount.GetUIntValue(), CM2VXPropertyTable::defectPixelPairsOfCamera);
    for (std::uint32_t pair = 0; pair < used; ++pair) {
        for (std::uint32_t position = 0; position < 2; ++position) {
            const SDK4_KDEFECTPIXELSELECT select = {pair, position};
            access.Fill(DefectPixelAt(select), &CM2VXCamera::GetDefectPixel, select);
        }
    }
    access.Fill(table.defectPixelShow, &CM2VXCamera::GetDefectPixelShow);
}

} // namespace SDK4::Control
