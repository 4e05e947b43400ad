#include "Tests/Boundary/WildCalls.h"

using namespace SDK4::Control;

namespace Test {

std::vector<Group> OrvikGroups() {
    using S = ISignalAnalysis;
    using D = IDigitalEnhancement;
    using M = IMemory;
    using L = ILookUpTable;
    // clang-format off
    return {
        {2, Invalid, {&IOverlay::GetOverlayShow, &IOverlay::SetOverlayShow, &IOverlay::GetOverlayPosition, &IOverlay::SetOverlayPosition,
                      &IOverlay::GetOverlayStyle, &IOverlay::SetOverlayStyle, &IOverlay::GetOverlaySize, &IOverlay::SetOverlaySize,
                      &S::GetMeasureWindow, &S::SetMeasureWindow}},
        {6, Invalid, {&IGPIO::GetIoMode, &IGPIO::SetIoMode, &IGPIO::GetIoPort, &IGPIO::SetIoPort, &IGPIO::GetIoPolarity, &IGPIO::SetIoPolarity,
                      &IGPIO::GetIoDelay, &IGPIO::SetIoDelay}},
        {3, Invalid, {&IRoa::GetReadoutAreaLimits}},
        {1, Invalid, {&IInternalTests::GetTemperature}},
        {0, NotImplemented, {&IInternalTests::GetTestPattern, &IInternalTests::SetTestPattern, &S::GetMeasureValue, &IRoa::SetFrameMask, &ISlowScan::SetSlowScan,
                             &IBasicSettings::GetDevice, &IBasicSettings::SetDevice, &D::SetHistogramEqualization, &M::SetAutoMotionDetection}},
        {0, "", {&IACC::SetACC, &IBasicSettings::LoadSettings, &IBasicSettings::SaveSettings, &IBasicSettings::SetStartupSettings, &IBinning::SetBinning,
                 &IColor::SetColorBalance, &IColor::SetLightSource, &IColor::SetColorSaturation, &IColor::SetAutoWhiteset,
                 &D::SetBrightness, &D::SetContrast, &D::SetSharpness,
                 &IExposure::SetExposureMode, &IExposure::SetExposure, &IExposure::SetAutoExposureLevel, &IExposure::SetAET, &IGain::SetGain, &IGain::SetAGC,
                 &IGigECamera::SetPacketSize, &IGigECamera::SetPacketDelay, &IInternalTests::SetPatternGenerator,
                 &L::SetLUTMode, &L::SetLUTInterpolatorIndex, &L::SetNegativeImage,
                 &M::SetVerticalFlip, &M::SetHorizontalFlip, &M::SetLastImageHold, &M::SetImageSubtraction, &M::SetRecursiveFilter, &M::StoreImage,
                 &IRoa::SetReadoutArea, &S::SetMeasureFrameShow, &S::SetMeasureFrameColor, &ISignalFormat::SetColorCoding, &ITiming::SetReadoutTime,
                 &ITrigger::SetTriggerTimer, &ITrigger::SetTriggerDelay}},
    };
    // clang-format on
}

std::vector<Group> M2VXGroups() {
    using O = M2VX::IOverlay;
    using C = M2VX::IImageCorrection;
    using P = M2VX::IDefectPixel;
    using T = IInternalTests;
    using G = M2VX::IGain;
    using E = M2VX::IExposure;
    using B = M2VX::IABC;
    using S = M2VX::ISignalAnalysis;
    using M = IMemory;
    // clang-format off
    return {
        {4, Invalid, {&O::GetOverlayShow, &O::SetOverlayShow, &O::GetOverlayPosition, &O::SetOverlayPosition, &O::GetOverlayStyle, &O::SetOverlayStyle,
                      &O::GetOverlaySize, &O::SetOverlaySize, &C::GetShadingCorrection, &C::SetShadingCorrection}},
        {2, Invalid, {&B::GetABCThreshold, &B::SetABCThreshold, &T::GetTestPattern, &T::SetTestPattern}},
        {2, CantRead, {&P::GetDefectPixel, &P::SetDefectPixel}}, // either position of a pair; the pair is the same number here
        {256, Invalid, {&M2VX::IMotorControl::GetMotorControl, &M2VX::IMotorControl::SetMotorControl}},
        {0, NotImplemented, {&ISignalFormat::SetColorCoding, &ILookUpTable::SetLUTMode, &T::SetPatternGenerator}},
        {0, "", {&B::SetABC, &B::SetABCStopMode, &P::SetDefectPixelShow, &E::SetExposureMode, &E::SetExposure, &E::SetTwinModeShutterOffset,
                 &G::SetGain, &G::SetAGC, &G::SetAutoGainStopMode, &G::SetAutomaticLevel,
                 &C::SetShadingCorrectionMode, &C::SetCircularBlankingMode, &C::SetCircularBlankingSize, &C::SetCircularBlankingPosition,
                 &M2VX::ILensControl::GetLensControl, &M2VX::ILensControl::SetLensControl, &S::SetMeasureFrameShow, &S::SetMeasureWindow,
                 &IBasicSettings::LoadSettings, &IBasicSettings::SaveSettings, &IBasicSettings::SetStartupSettings, &IBasicSettings::GetDevice, &IBasicSettings::SetDevice,
                 &IDigitalEnhancement::SetBrightness, &IDigitalEnhancement::SetContrast, &IDigitalEnhancement::SetSharpness, &IDigitalEnhancement::SetHistogramEqualization,
                 &IGigECamera::SetPacketSize, &IGigECamera::SetPacketDelay, &T::GetTemperature, &ILookUpTable::SetLUTInterpolatorIndex, &ILookUpTable::SetNegativeImage,
                 &M::SetVerticalFlip, &M::SetHorizontalFlip, &M::SetLastImageHold, &M::SetImageSubtraction, &M::SetRecursiveFilter, &M::StoreImage, &M::SetAutoMotionDetection}},
    };
    // clang-format on
}

} // namespace Test
