#include "Host/Functions/Codes.h"
#include "Host/Functions/Names.h"
#include "Host/Functions/Tables.h"

#include <SDK4/SDK4.h>

namespace Host {

using namespace SDK4::Control;

// This family publishes limits, admitted values and defaults, so the rows omit them.

// clang-format off

void AddM2VXFormat(FunctionTable& table) {
    table.Topic(Topics::image);
    table.ReadOnly<&ISignalFormat::GetColorCoding> (Name::colorCoding) .Named(Named::colorCodings);
}

void AddM2VXExposure(FunctionTable& table) {
    using E = M2VX::IExposure;
    using G = M2VX::IGain;
    using A = M2VX::IABC;
    table.Topic(Topics::exposure);
    table.Setting<&E::GetExposureMode, &E::SetExposureMode>                   (Name::exposureMode)      .Named(Named::exposureModes);
    table.Setting<&E::GetExposure, &E::SetExposure>                           (Name::exposure)          .MovedBy(Name::exposureMode, {Named::resetRestart});
    table.Setting<&E::GetTwinModeShutterOffset, &E::SetTwinModeShutterOffset> ("twinmodeshutteroffset") .Range(0, 2000).Keeps();
    table.ReadOnly<&E::GetFODStatus>                                          ("fodstatus")             .Hexadecimal();
    table.Mode<&G::GetAGC, &G::SetAGC>                                        (Name::agc)               .Named(Named::off);
    table.Setting<&G::GetGain, &G::SetGain>                                   (Name::gain)              .MovedBy(Name::agc);
    table.Setting<&G::GetAutomaticLevel, &G::SetAutomaticLevel>               ("automaticlevel")        .Needs(Name::agc, {2});
    table.Setting<&G::GetAutoGainStopMode, &G::SetAutoGainStopMode>           ("autogainstopmode")      .Needs(Name::agc, {1, 2});
    table.Setting<&A::GetABC, &A::SetABC>                                     (Name::abc)               .Named(Named::off);
    table.Setting<&A::GetABCThreshold, &A::SetABCThreshold>                   ("abcthreshold")          .Instances(2).Needs(Name::abc, {1, 2});
    table.Setting<&A::GetABCStopMode, &A::SetABCStopMode>                     ("abcstopmode")           .Needs(Name::abc, {2});
    table.ReadOnly<&A::GetABCXRLevel>                                         ("abcxrlevel");
}

void AddM2VXProcessing(FunctionTable& table) {
    using E = IDigitalEnhancement;
    using C = M2VX::IImageCorrection;
    using L = ILookUpTable;
    table.Topic(Topics::processing);
    table.Mode<&E::GetHistogramEqualization, &E::SetHistogramEqualization>  (Name::histogramEqualization) .Named(Named::off);
    table.Setting<&E::GetBrightness, &E::SetBrightness>                     (Name::brightness)            .MovedBy(Name::histogramEqualization, {0, 3});
    table.Setting<&E::GetContrast, &E::SetContrast>                         (Name::contrast)              .MovedBy(Name::histogramEqualization, {0, 3});
    table.Setting<&L::GetLUTInterpolatorIndex, &L::SetLUTInterpolatorIndex> (Name::lutIndex)              .PublishedAs("gammaindex").Keeps();
    table.Topic(Topics::correction);
    table.Setting<&C::GetShadingCorrectionMode, &C::SetShadingCorrectionMode> (Name::shadingCorrectionMode) .Named(Named::onOff);
    table.Setting<&C::GetShadingCorrection, &C::SetShadingCorrection>         ("shadingcorrection")         .Instances(4).Needs(Name::shadingCorrectionMode);
    table.Setting<&C::GetCircularBlankingMode, &C::SetCircularBlankingMode>   (Name::circularBlankingMode)  .Named(Named::onOff);
    table.Setting<&C::GetCircularBlankingSize, &C::SetCircularBlankingSize>   ("circularblankingsize")      .Unit("px").Needs(Name::circularBlankingMode);
    table.Setting<&C::GetCircularBlankingPosition, &C::SetCircularBlankingPosition> ("circularblankingposition") .Unit("px").Needs(Name::circularBlankingMode);
}

void AddM2VXOverlay(FunctionTable& table) {
    using O = M2VX::IOverlay;
    using A = M2VX::ISignalAnalysis;
    table.Topic(Topics::overlay);
    table.Setting<&O::GetOverlayShow, &O::SetOverlayShow>           (Name::overlayShow)      .Instances(3).Named(Named::onOff);
    table.Setting<&O::GetOverlayPosition, &O::SetOverlayPosition>   (Name::overlayPosition)  .Fields(Named::centredPosition).Instances(3).Unit("px");
    table.Setting<&O::GetOverlayStyle, &O::SetOverlayStyle>         (Name::overlayStyle)     .Instances(3);
    table.Setting<&O::GetOverlaySize, &O::SetOverlaySize>           (Name::overlaySize)      .Instances(3).Unit("px").Keeps();
    table.Setting<&A::GetMeasureFrameShow, &A::SetMeasureFrameShow> (Name::measureFrameShow) .Named(Named::onOff);
    table.Setting<&A::GetMeasureWindow, &A::SetMeasureWindow>       (Name::measureWindow)    .Unit("px");
}

void AddM2VXDevice(FunctionTable& table) {
    using D = M2VX::IDefectPixel;
    using L = M2VX::ILensControl;
    using M = M2VX::IMotorControl;
    table.Topic(Topics::tests);
    table.Setting<&IInternalTests::GetTestPattern, &IInternalTests::SetTestPattern> ("testpattern") .Instances(2);
    table.WriteOnly<&IBasicSettings::Restart>                                       ("restart");
    table.Topic(Topics::correction);
    table.Setting<&D::GetDefectPixelShow, &D::SetDefectPixelShow> ("defectpixelshow")             .Named(Named::onOff);
    table.ReadOnly<&D::GetDefectPixelCount>                       ("defectpixelcount")            .Unit("pairs");
    table.Row<&D::GetDefectPixel, &D::SetDefectPixel>             ("defectpixel")                 .Instances(256); // two of each pair
    table.WriteOnly<&D::SetDefectPixelAutoCompensation>           ("defectpixelautocompensation");
    table.Topic(Topics::outputs);
    table.Output<&M::GetMotorControl, &M::SetMotorControl> ("motorcontrol") .Instances(256).Keeps();
    table.Output<&L::GetLensControl, &L::SetLensControl>   ("lenscontrol")  .Instances(4); // takes any; cameras have four
}

// clang-format on

} // namespace Host
