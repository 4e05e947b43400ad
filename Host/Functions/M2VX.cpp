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
    table.ReadOnly<&ISignalFormat::GetColorCoding> (Name::colorCoding) .Named(Named::colorCodings) .Means("How pixels are coded in the stream");
}

void AddM2VXExposure(FunctionTable& table) {
    using E = M2VX::IExposure;
    using G = M2VX::IGain;
    using A = M2VX::IABC;
    table.Topic(Topics::exposure);
    table.Setting<&E::GetExposureMode, &E::SetExposureMode>                   (Name::exposureMode)      .Named(Named::exposureModes)
        .Means("How exposures are started");
    table.Setting<&E::GetExposure, &E::SetExposure>                           (Name::exposure)          .MovedBy(Name::exposureMode, {Named::resetRestart})
        .Means("Exposure time, in steps of the camera");
    table.Setting<&E::GetTwinModeShutterOffset, &E::SetTwinModeShutterOffset> ("twinmodeshutteroffset") .Range(0, 2000).Keeps()
        .Means("Offset of the shutter in twin mode, in the steps of the exposure time");
    table.ReadOnly<&E::GetFODStatus>                                          ("fodstatus")             .Hexadecimal()
        .Means("Status of the frame-on-demand unit");
    table.Mode<&G::GetAGC, &G::SetAGC>                                        (Name::agc)               .Named(Named::off)
        .Means("Automatic gain, which adjusts the gain");
    table.Setting<&G::GetGain, &G::SetGain>                                   (Name::gain)              .MovedBy(Name::agc)
        .Means("Gain, in steps of the camera");
    table.Setting<&G::GetAutomaticLevel, &G::SetAutomaticLevel>               ("automaticlevel")        .Needs(Name::agc, {2})
        .Means("Target brightness of automatic gain, in steps of the camera");
    table.Setting<&G::GetAutoGainStopMode, &G::SetAutoGainStopMode>           ("autogainstopmode")      .Needs(Name::agc, {1, 2})
        .Means("Stop mode of automatic gain");
    table.Setting<&A::GetABC, &A::SetABC>                                     (Name::abc)               .Named(Named::off)
        .Means("Automatic brightness control; changes no setting");
    table.Setting<&A::GetABCThreshold, &A::SetABCThreshold>                   ("abcthreshold")          .Instances(2).Needs(Name::abc, {1, 2})
        .Means("Threshold of automatic brightness control, in steps of the camera");
    table.Setting<&A::GetABCStopMode, &A::SetABCStopMode>                     ("abcstopmode")           .Needs(Name::abc, {2})
        .Means("Stop mode of automatic brightness control");
    table.ReadOnly<&A::GetABCXRLevel>                                         ("abcxrlevel")
        .Means("Level of automatic brightness control, in steps of the camera");
}

void AddM2VXProcessing(FunctionTable& table) {
    using E = IDigitalEnhancement;
    using C = M2VX::IImageCorrection;
    using L = ILookUpTable;
    table.Topic(Topics::processing);
    table.Mode<&E::GetHistogramEqualization, &E::SetHistogramEqualization>  (Name::histogramEqualization) .Named(Named::off)
        .Means("Histogram equalization; modes 1 and 2 disable brightness and contrast");
    table.Setting<&E::GetBrightness, &E::SetBrightness>                     (Name::brightness)            .MovedBy(Name::histogramEqualization, {0, 3})
        .Means("Brightness, in steps of the camera");
    table.Setting<&E::GetContrast, &E::SetContrast>                         (Name::contrast)              .MovedBy(Name::histogramEqualization, {0, 3})
        .Means("Contrast, in steps of the camera");
    table.Setting<&L::GetLUTInterpolatorIndex, &L::SetLUTInterpolatorIndex> (Name::lutIndex)              .PublishedAs("gammaindex").Keeps()
        .Means("Index of the curve that fills the look-up table");
    table.Topic(Topics::correction);
    table.Setting<&C::GetShadingCorrectionMode, &C::SetShadingCorrectionMode> (Name::shadingCorrectionMode) .Named(Named::onOff)
        .Means("Whether shading is corrected");
    table.Setting<&C::GetShadingCorrection, &C::SetShadingCorrection>         ("shadingcorrection")         .Instances(4).Needs(Name::shadingCorrectionMode)
        .Means("Shading correction of a channel, in steps of the camera");
    table.Setting<&C::GetCircularBlankingMode, &C::SetCircularBlankingMode>   (Name::circularBlankingMode)  .Named(Named::onOff)
        .Means("Whether the image is blanked outside a circle");
    table.Setting<&C::GetCircularBlankingSize, &C::SetCircularBlankingSize>   ("circularblankingsize")      .Unit("px").Needs(Name::circularBlankingMode)
        .Means("Size of the circle that is not blanked");
    table.Setting<&C::GetCircularBlankingPosition, &C::SetCircularBlankingPosition> ("circularblankingposition") .Unit("px").Needs(Name::circularBlankingMode)
        .Means("Centre of that circle, from the upper left corner");
}

void AddM2VXOverlay(FunctionTable& table) {
    using O = M2VX::IOverlay;
    using A = M2VX::ISignalAnalysis;
    table.Topic(Topics::overlay);
    table.Setting<&O::GetOverlayShow, &O::SetOverlayShow>           (Name::overlayShow)      .Instances(3).Named(Named::onOff)
        .Means("Whether the overlay is shown");
    table.Setting<&O::GetOverlayPosition, &O::SetOverlayPosition>   (Name::overlayPosition)  .Fields(Named::centredPosition).Instances(3).Unit("px")
        .Means("Position of the overlay, relative to the image centre");
    table.Setting<&O::GetOverlayStyle, &O::SetOverlayStyle>         (Name::overlayStyle)     .Instances(3)
        .Means("How the overlay is drawn; codes of the camera");
    table.Setting<&O::GetOverlaySize, &O::SetOverlaySize>           (Name::overlaySize)      .Instances(3).Unit("px").Keeps()
        .Means("Stroke width and length of the overlay");
    table.Setting<&A::GetMeasureFrameShow, &A::SetMeasureFrameShow> (Name::measureFrameShow) .Named(Named::onOff)
        .Means("Whether the measure frame is shown");
    table.Setting<&A::GetMeasureWindow, &A::SetMeasureWindow>       (Name::measureWindow)    .Unit("px")
        .Means("Circular measure window; its centre is relative to the image centre, a stretch of 128 is none");
}

void AddM2VXDevice(FunctionTable& table) {
    using D = M2VX::IDefectPixel;
    using L = M2VX::ILensControl;
    using M = M2VX::IMotorControl;
    table.Topic(Topics::tests);
    table.Setting<&IInternalTests::GetTestPattern, &IInternalTests::SetTestPattern> ("testpattern") .Instances(2)
        .Means("Test pattern of one half of the sensor");
    table.WriteOnly<&IBasicSettings::Restart>                                       (Name::restart)
        .Means("Restarts the camera");
    table.Topic(Topics::correction);
    table.Setting<&D::GetDefectPixelShow, &D::SetDefectPixelShow> ("defectpixelshow")             .Named(Named::onOff)
        .Means("Whether defect pixels are shown in the image");
    table.ReadOnly<&D::GetDefectPixelCount>                       ("defectpixelcount")            .Unit("pairs")
        .Means("Pairs of the defect-pixel table in use");
    table.Row<&D::GetDefectPixel, &D::SetDefectPixel>             ("defectpixel")                 .Instances(256) // two of each pair
        .Means("Entry of the defect-pixel table: column, line, and how it is replaced");
    table.WriteOnly<&D::SetDefectPixelAutoCompensation>           ("defectpixelautocompensation")
        .Means("Searches for defect pixels and fills the table");
    table.Topic(Topics::outputs);
    table.Output<&M::GetMotorControl, &M::SetMotorControl> ("motorcontrol") .Instances(256).Keeps()
        .Means("Word of a channel of the motor unit");
    table.Output<&L::GetLensControl, &L::SetLensControl>   ("lenscontrol")  .Instances(4) // takes any; cameras have four
        .Means("Word of a channel of the lens unit");
}

// clang-format on

} // namespace Host
