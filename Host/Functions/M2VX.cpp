#include "Host/Functions/Codes.h"
#include "Host/Functions/Names.h"
#include "Host/Functions/Tables.h"

#include <SDK4/SDK4.h>

namespace Host {

using namespace SDK4::Control;
using enum Restore;

// This family publishes its limits, admitted values and defaults; the rows leave them out.

// clang-format off

void AddM2VXFormat(FunctionTable& table) {
    table.Topic(Topic::image);
    table.ReadOnly<&ISignalFormat::GetColorCoding>                             (Name::colorCoding)        .Named(Named::colorCodings);
}

void AddM2VXExposure(FunctionTable& table) {
    using E = M2VX::IExposure;
    using G = M2VX::IGain;
    using A = M2VX::IABC;
    table.Topic(Topic::exposure);
    table.Row<&E::GetExposureMode, &E::SetExposureMode>                        (Name::exposureMode)       .Named(Named::exposureModes)         .Restored(Setting);
    table.Row<&E::GetExposure, &E::SetExposure>                                (Name::exposure)           .MovedBy(Name::exposureMode, {SDK4_EXPOSUREMODE_RESETRESTART}).Restored(Setting);
    table.Row<&E::GetTwinModeShutterOffset, &E::SetTwinModeShutterOffset>      ("twinmodeshutteroffset")  .Range(0, 2000).Keeps(SDK4_ERR_OUTOFRANGE).Restored(Setting);
    table.ReadOnly<&E::GetFODStatus>                                           ("fodstatus")              .Hexadecimal();
    table.Row<&G::GetAGC, &G::SetAGC>                                          (Name::agc)                .Named(Named::off)                   .Restored(Mode);
    table.Row<&G::GetGain, &G::SetGain>                                        (Name::gain)               .MovedBy(Name::agc)                  .Restored(Setting);
    table.Row<&G::GetAutomaticLevel, &G::SetAutomaticLevel>                    ("automaticlevel")         .Needs(Name::agc, {2})               .Restored(Setting);
    table.Row<&G::GetAutoGainStopMode, &G::SetAutoGainStopMode>                ("autogainstopmode")       .Needs(Name::agc, {1, 2})            .Restored(Setting);
    table.Row<&A::GetABC, &A::SetABC>                                          (Name::abc)                .Named(Named::off)                   .Restored(Setting);
    table.Row<&A::GetABCThreshold, &A::SetABCThreshold>                        ("abcthreshold")           .Instances(2).Needs(Name::abc, {1, 2}).Restored(Setting);
    table.Row<&A::GetABCStopMode, &A::SetABCStopMode>                          ("abcstopmode")            .Needs(Name::abc, {2})               .Restored(Setting);
    table.ReadOnly<&A::GetABCXRLevel>                                          ("abcxrlevel");
}

void AddM2VXProcessing(FunctionTable& table) {
    using E = IDigitalEnhancement;
    using C = M2VX::IImageCorrection;
    table.Topic(Topic::processing);
    table.Row<&E::GetHistogramEqualization, &E::SetHistogramEqualization>      (Name::histogramEqualization).Named(Named::off)                 .Restored(Mode);
    table.Row<&E::GetBrightness, &E::SetBrightness>                            (Name::brightness)         .MovedBy(Name::histogramEqualization, {0, 3}).Restored(Setting);
    table.Row<&E::GetContrast, &E::SetContrast>                                (Name::contrast)           .MovedBy(Name::histogramEqualization, {0, 3}).Restored(Setting);
    table.Row<&ILookUpTable::GetLUTInterpolatorIndex, &ILookUpTable::SetLUTInterpolatorIndex> (Name::lutIndex).PublishedAs("gammaindex").Keeps(SDK4_ERR_OUTOFRANGE).Restored(Setting);
    table.Topic(Topic::correction);
    table.Row<&C::GetShadingCorrectionMode, &C::SetShadingCorrectionMode>      (Name::shadingCorrectionMode).Named(Named::onOff)               .Restored(Setting);
    table.Row<&C::GetShadingCorrection, &C::SetShadingCorrection>              ("shadingcorrection")      .Instances(4).Needs(Name::shadingCorrectionMode, {1}).Restored(Setting);
    table.Row<&C::GetCircularBlankingMode, &C::SetCircularBlankingMode>        (Name::circularBlankingMode).Named(Named::onOff)                .Restored(Setting);
    table.Row<&C::GetCircularBlankingSize, &C::SetCircularBlankingSize>        ("circularblankingsize")   .Unit("px").Needs(Name::circularBlankingMode, {1}).Restored(Setting);
    table.Row<&C::GetCircularBlankingPosition, &C::SetCircularBlankingPosition>("circularblankingposition").Unit("px").Needs(Name::circularBlankingMode, {1}).Restored(Setting);
}

void AddM2VXOverlay(FunctionTable& table) {
    using O = M2VX::IOverlay;
    using A = M2VX::ISignalAnalysis;
    table.Topic(Topic::overlay);
    table.Row<&O::GetOverlayShow, &O::SetOverlayShow>                          (Name::overlayShow)        .Instances(3).Named(Named::onOff)    .Restored(Setting);
    table.Row<&O::GetOverlayPosition, &O::SetOverlayPosition>                  (Name::overlayPosition)    .Fields(Named::centredPosition).Instances(3).Unit("px")             .Restored(Setting);
    table.Row<&O::GetOverlayStyle, &O::SetOverlayStyle>                        (Name::overlayStyle)       .Instances(3)                        .Restored(Setting);
    table.Row<&O::GetOverlaySize, &O::SetOverlaySize>                          (Name::overlaySize)        .Instances(3).Unit("px").Keeps(SDK4_ERR_OUTOFRANGE).Restored(Setting);
    table.Row<&A::GetMeasureFrameShow, &A::SetMeasureFrameShow>                (Name::measureFrameShow)   .Named(Named::onOff)                 .Restored(Setting);
    table.Row<&A::GetMeasureWindow, &A::SetMeasureWindow>                      (Name::measureWindow)      .Unit("px")                          .Restored(Setting);
}

void AddM2VXDevice(FunctionTable& table) {
    using D = M2VX::IDefectPixel;
    using L = M2VX::ILensControl;
    using M = M2VX::IMotorControl;
    table.Topic(Topic::tests);
    table.Row<&IInternalTests::GetTestPattern, &IInternalTests::SetTestPattern>("testpattern")            .Instances(2)                        .Restored(Setting);
    table.WriteOnly<&IBasicSettings::Restart>                                  ("restart");
    table.Topic(Topic::correction);
    table.Row<&D::GetDefectPixelShow, &D::SetDefectPixelShow>                  ("defectpixelshow")        .Named(Named::onOff)                 .Restored(Setting);
    table.ReadOnly<&D::GetDefectPixelCount>                                    ("defectpixelcount")       .Unit("pairs");
    table.Row<&D::GetDefectPixel, &D::SetDefectPixel>                          ("defectpixel")            .Instances(256); // two of each pair
    table.WriteOnly<&D::SetDefectPixelAutoCompensation>                        ("defectpixelautocompensation");
    table.Topic(Topic::outputs);
    table.Row<&M::GetMotorControl, &M::SetMotorControl>                        ("motorcontrol")           .Instances(256).Keeps(SDK4_ERR_OUTOFRANGE).Restored(Output);
    table.Row<&L::GetLensControl, &L::SetLensControl>                          ("lenscontrol")            .Instances(4)                        .Restored(Output); // takes any number; a camera drives four
}

// clang-format on

} // namespace Host
