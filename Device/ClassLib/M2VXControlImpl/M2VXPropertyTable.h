#pragma once

#include "M2VXControlImpl/PropertyRows.h"

#include <SDK4/Enums.h>

namespace SDK4::Control {

/// The properties of an M2VX camera: limits and current values. The rows add themselves to the list of the control,
/// through which the host sees them; the table owns them.
///
/// Members are constructed in the order of declaration, which is the order of the list and part of the contract.
class CM2VXPropertyTable {
public:
    explicit CM2VXPropertyTable(PropertyList& propertyList);
    CM2VXPropertyTable(const CM2VXPropertyTable&) = delete;
    CM2VXPropertyTable& operator=(const CM2VXPropertyTable&) = delete;

    // Enable and disable the properties that depend on a mode, according to its property.
    void FollowAllModes();
    void FollowAGC();
    void FollowABC();
    void FollowExposureMode();
    void FollowRecursiveFilter();
    void FollowHistogramEqualization();
    void FollowShadingCorrectionMode();
    void FollowCircularBlankingMode();

    static constexpr std::uint32_t overlayCount = 3;
    static constexpr std::uint32_t defectPixelPairCount = 129;
    static constexpr std::uint32_t defectPixelPairsOfCamera = 128; ///< the last row of the table is never used
    static constexpr std::uint32_t motorChannelCount = 256;

    // clang-format off
    struct Overlay {
        explicit Overlay(PropertyList& list);
        void SetIndex(std::int32_t index);

        EnumProperty        show;
        CompoundProperty<2> position;
        CompoundProperty<2> style;
        CompoundProperty<2> size;
    };

    /// The index of an entry is its position within the pair, so a look-up by name and index finds the first pair only.
    struct DefectPixelPair {
        explicit DefectPixelPair(PropertyList& list);

        CompoundProperty<3> first;
        CompoundProperty<3> second;
    };

private:
    PropertyList& list; // before the rows, which add themselves

public:
    // name, minimum, maximum, default; or name, default, admitted values
    UnsignedProperty width                      {list, "width",                 0,   1024, 1024};
    UnsignedProperty height                     {list, "height",                0,   1024, 1024};
    UnsignedProperty pixelFormat                {list, "pixelformat",           0, 0xFFFFFFFF, 0};
    EnumProperty     colorCoding                {list, "colorcoding",           SDK4_COLORCODING_MONO14, {SDK4_COLORCODING_MONO14}};
    UnsignedProperty brightness                 {list, "brightness",            0,  16383,    0};
    UnsignedProperty contrast                   {list, "contrast",              0,    255,    0};
    UnsignedProperty sharpness                  {list, "sharpness",             0,    255,    0};
    EnumProperty     histogramEqualization      {list, "histogramequalization", 0, {0, 1, 2, 3}};
    EnumProperty     exposureMode               {list, "exposuremode",          1, {1, 2, 3, 4}};
    UnsignedProperty exposure                   {list, "exposure",              1,   2000,   33};
    UnsignedProperty gain                       {list, "gain",                  0,    568,    0};
    EnumProperty     verticalFlip               {list, "verticalflip",          0, {0, 1}};
    EnumProperty     horizontalFlip             {list, "horizontalflip",        0, {0, 1}};
    EnumProperty     lastImageHold              {list, "lastimagehold",         0, {0, 1}};
    EnumProperty     imageStore                 {list, "imagestore",            0, {0, 1}};
    EnumProperty     imageSubtraction           {list, "imagesubtraction",      0, {0, 1}};
    EnumProperty     recursiveFilter            {list, "recursivefilter",       0, {0, 1, 2, 3, 4}};
    EnumProperty     autoMotionDetection        {list, "automotiondetection",   0, {0, 1}};
    Repeated<Overlay> overlays                  {overlayCount, list};
    EnumProperty     shadingCorrectionMode      {list, "shadingcorrectionmode", 0, {0, 1}};
    Repeated<SignedProperty> shadingCorrection  {4, list, "shadingcorrection", -128,  127,    0};
    EnumProperty     circularBlankingMode       {list, "circularblankingmode",  0, {0, 1}};
    UnsignedProperty circularBlankingSize       {list, "circularblankingsize",  1,    512,   70};
    CompoundProperty<2> circularBlankingPosition{list, "circularblankingposition", "xpos", "ypos",
                                                 0u, 1023u, 512u,  0u, 1023u, 512u};
    SignedProperty   gammaIndex                 {list, "gammaindex",            0,     12,    0};
    EnumProperty     negativeImage              {list, "negativeimage",         0, {0, 1}};
    CompoundProperty<2> imageSize               {list, "imagesize", "width", "height",
                                                 0u, 1024u, 1024u,  0u, 1024u, 1024u};
    EnumProperty     measureFrameShow           {list, "measureframeshow",      0, {0, 1}};
    CompoundProperty<5> measureWindow           {list, "measurewindow", "radius", "width", "xpos", "ypos", "vstretch"};
    EnumProperty     agc                        {list, "agc",                   0, {0, 1, 2}};
    UnsignedProperty automaticLevel             {list, "automaticlevel",        0,    100,   30};
    EnumProperty     autoGainStopMode           {list, "autogainstopmode",      0, {0, 1}};
    EnumProperty     abc                        {list, "abc",                   0, {0, 1, 2}};
    EnumProperty     abcStopMode                {list, "abcstopmode",           0, {0, 1}};
    UnsignedProperty abcThreshold[2]           {{list, "abcthreshold",          0,   1023,  358},
                                                {list, "abcthreshold",          0,   1023,  255}};
    UnsignedProperty abcXRLevel                 {list, "abcxrlevel",            0,   1023,    0};
    EnumProperty     testPattern[2]            {{list, "testpattern",           0, {0, 1, 2, 3, 4, 5, 6}},
                                                {list, "testpattern",           0, {0, 1, 2, 3, 4, 5, 6}}};
    Repeated<DefectPixelPair> defectPixels      {defectPixelPairCount, list};
    UnsignedProperty defectPixelAutoCompensation{list, "defectpixelautocompensation", 0, 0, 0}; // no value
    UnsignedProperty defectPixelCount           {list, "defectpixelcount",      0,    128,    0};
    EnumProperty     defectPixelShow            {list, "defectpixelshow",       0, {0, 1}};
    EnumProperty     startupSettings            {list, "startupsettings",       0, {0, 1, 2}};
    EnumProperty     loadSettings               {list, "loadsettings",          0, {0, 1, 2}};
    EnumProperty     saveSettings               {list, "savesettings",          1, {1, 2}};
    Repeated<UnsignedProperty> motorControl     {motorChannelCount, list, "motorcontrol", 0u, 65535u, 0u};
    // clang-format on
};

} // namespace SDK4::Control
