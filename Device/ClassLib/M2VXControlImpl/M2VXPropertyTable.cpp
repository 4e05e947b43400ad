#include "M2VXControlImpl/M2VXPropertyTable.h"

namespace SDK4::Control {

namespace {

/// Sets the limits of a part of a compound property, and raises its value to the minimum.
template <typename T> void SetLimits(CPropertyParams& property, T minimum, T maximum, T defaultValue) {
    property.SetMin(minimum);
    property.SetMax(maximum);
    property.SetDefault(defaultValue);
}

} // namespace

// clang-format off
CM2VXPropertyTable::Overlay::Overlay(PropertyList& list)
    : show    (list, "overlayshow", 0, {0, 1}),
      position(list, "overlayposition", "posx", "posy", -500, 499, 0, -500, 499, 0),
      style   (list, "overlaystyle", "color", "style"),
      size    (list, "overlaysize", "width", "length", 0u, 3u, 0u, 1u, 1024u, 10u) {
    Admit(style[0], {0, 1, 2, 3});
    Admit(style[1], {0, 1});
    Admit(size[0],  {0, 1, 2, 3});
}

void CM2VXPropertyTable::Overlay::SetIndex(std::int32_t index) {
    Control::SetIndex(show,     index);
    Control::SetIndex(position, index);
    Control::SetIndex(style,    index);
    Control::SetIndex(size,     index);
}

CM2VXPropertyTable::DefectPixelPair::DefectPixelPair(PropertyList& list)
    : first (list, "defectpixel", "xpos", "ypos", "mode", 0u, 1024u, 0u, 0u, 1024u, 0u, 0u, 0u, 0u),
      second(list, "defectpixel", "xpos", "ypos", "mode", 0u, 1024u, 0u, 0u, 1024u, 0u, 0u, 0u, 0u) {
    Admit(first[2],  {0, 1, 2});
    Admit(second[2], {0, 1, 2});
    SetIndex(first,  0);
    SetIndex(second, 1);
}

CM2VXPropertyTable::CM2VXPropertyTable(PropertyList& propertyList) : list(propertyList) {
    exposure.SetAutoUpdate(true); // the camera adjusts both
    gain    .SetAutoUpdate(true);

    SetLimits(measureWindow[0],    0u, 511u,   0u);
    SetLimits(measureWindow[1],    1u,   3u,   2u);
    SetLimits(measureWindow[2],  -511,  511,    0);
    SetLimits(measureWindow[3],  -511,  511,    0);
    SetLimits(measureWindow[4],    1u, 512u, 128u);

    for (std::uint32_t i = 0; i < overlayCount; ++i) {
        overlays[i].SetIndex(static_cast<std::int32_t>(i));
}
    SetIndices(shadingCorrection);
    SetIndices(abcThreshold);
    SetIndices(testPattern);
}
// clang-format on

void CM2VXPropertyTable::FollowAllModes() {
    FollowHistogramEqualization();
    FollowExposureMode();
    FollowRecursiveFilter();
    FollowShadingCorrectionMode();
    FollowCircularBlankingMode();
    FollowAGC();
    FollowABC();
}

// These use the stored mode, even if a callback has changed or disabled it meanwhile.

void CM2VXPropertyTable::FollowAGC() {
    const std::uint32_t mode = agc.StoredUIntValue();
    if (mode > 2) {
        return; // no setter admits such a mode, but a camera may report it
    }
    gain.SetEnabled(mode == 0);
    automaticLevel.SetEnabled(mode == 2);
    autoGainStopMode.SetEnabled(mode != 0);
}

void CM2VXPropertyTable::FollowABC() {
    const std::uint32_t mode = abc.StoredUIntValue();
    if (mode > 2) {
        return; // as above
    }
    for (CPropertyParams& threshold : abcThreshold) {
        threshold.SetEnabled(mode != 0);
    }
    abcStopMode.SetEnabled(mode == 2);
}

void CM2VXPropertyTable::FollowExposureMode() {
    const std::uint32_t mode = exposureMode.StoredUIntValue();
    if (mode < 1 || mode > 4) {
        return; // as above
    }
    exposure.SetEnabled(mode == 3);
}

void CM2VXPropertyTable::FollowRecursiveFilter() {
    autoMotionDetection.SetEnabled(recursiveFilter.StoredUIntValue() != 0);
}

void CM2VXPropertyTable::FollowHistogramEqualization() {
    const std::uint32_t mode = histogramEqualization.StoredUIntValue();
    const bool manual = mode != 1 && mode != 2;
    brightness.SetEnabled(manual);
    contrast.SetEnabled(manual);
}

void CM2VXPropertyTable::FollowShadingCorrectionMode() {
    const bool on = shadingCorrectionMode.StoredUIntValue() != 0;
    for (CPropertyParams& channel : shadingCorrection) {
        channel.SetEnabled(on);
    }
}

void CM2VXPropertyTable::FollowCircularBlankingMode() {
    const bool on = circularBlankingMode.StoredUIntValue() != 0;
    circularBlankingSize.SetEnabled(on);
    circularBlankingPosition.SetEnabled(on);
}

} // namespace SDK4::Control
