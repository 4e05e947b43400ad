#include "Host/Functions/Codes.h"
#include "Host/Functions/Names.h"
#include "Host/Functions/Rounding.h"
#include "Host/Functions/Tables.h"

#include <SDK4/SDK4.h>

namespace Host {

using namespace SDK4::Control;

namespace {

/// A model with a "C" in its name is a colour model.
bool IsColor(std::string_view model) { return model.find('C') != std::string_view::npos; }

Limits ColorCodings(IDynamicObject&, std::string_view model) {
    if (IsColor(model)) {
        return {SingleValues({SDK4_COLORCODING_MONO8, SDK4_COLORCODING_MONO14, SDK4_COLORCODING_MONO12PACKED,
                              SDK4_COLORCODING_YUV422PACKED, SDK4_COLORCODING_RGB8, SDK4_COLORCODING_BGR8,
                              SDK4_COLORCODING_RAW14})};
    }
    return {SingleValues({SDK4_COLORCODING_MONO8, SDK4_COLORCODING_MONO14, SDK4_COLORCODING_MONO12PACKED})};
}

/// The codings in which the camera makes a picture of what the sensor delivers.
std::vector<std::int64_t> CodingsButRaw() {
    std::vector<std::int64_t> codings;
    for (const Code& code : Named::colorCodings) {
        if (code.value < SDK4_COLORCODING_RAW8) {
            codings.push_back(code.value);
        }
    }
    return codings;
}

Limits Patterns(IDynamicObject&, std::string_view model) {
    return {IsColor(model) ? SingleValues({0, 1}) : SingleValues({0, 1, 2, 3})};
}

Limits ReadoutAreas(IDynamicObject& control, std::string_view) {
    auto& roa = InterfaceOf<IRoa>(control);
    const SDK4_KAREA min = roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MIN);
    const SDK4_KAREA max = roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MAX);
    return {{.min = min.startx, .max = max.startx},
            {.min = min.starty, .max = max.starty},
            {.min = min.endx, .max = max.endx},
            {.min = min.endy, .max = max.endy}};
}

/// Overlay positions are limited by the readout area.
Limits OverlayPositions(IDynamicObject& control, std::string_view) {
    const SDK4_KAREA area = InterfaceOf<IRoa>(control).GetReadoutArea();
    return {{.min = 0, .max = area.endx - area.startx}, {.min = 0, .max = area.endy - area.starty}};
}

SDK4_KAREA SmallestArea(IRoa& roa) { return roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MIN); }
SDK4_KAREA LargestArea(IRoa& roa) { return roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MAX); }
SDK4_KAREA ActiveArea(IRoa& roa) { return roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_ACTIVE); }

} // namespace

// clang-format off

void AddOrvikFormat(FunctionTable& table) {
    using S = ISignalFormat;
    using B = IBinning;
    using R = IRoa;
    table.Topic(Topics::image);
    table.Setting<&S::GetColorCoding, &S::SetColorCoding> (Name::colorCoding)   .Named(Named::colorCodings).LimitsFrom(ColorCodings).LockedInAcquisition()
        .Means("How pixels are coded in the stream");
    table.Setting<&B::GetBinning, &B::SetBinning>         ("binning")           .Range(1, 8).Keeps(SDK4_ERR_INVALID_PARAMETER).LockedInAcquisition()
        .Means("Columns and lines that are combined into one");
    table.Setting<&R::GetReadoutArea, &R::SetReadoutArea> ("readoutarea")       .Unit("px").LimitsFrom(ReadoutAreas).LockedInAcquisition()
        .Means("Part of the sensor that is read out; both corners belong to it");
    table.ReadOnly<&SmallestArea>                         ("readoutareamin")    .Unit("px")
        .Means("Smallest admitted corners of the readout area");
    table.ReadOnly<&LargestArea>                          ("readoutareamax")    .Unit("px")
        .Means("Largest admitted corners of the readout area");
    table.ReadOnly<&ActiveArea>                           ("readoutareaactive") .Unit("px")
        .Means("Area that is active in the sensor");
    table.Setting<&R::GetFrameMask, &R::SetFrameMask>     ("framemask")         .Unit("px")
        .Means("Part of the frame that is masked");
}

void AddOrvikExposure(FunctionTable& table) {
    using E = IExposure;
    using T = ITrigger;
    table.Topic(Topics::exposure);
    table.Setting<&E::GetExposureMode, &E::SetExposureMode>           (Name::exposureMode)  .OneOf(Named::exposureModes)
        .Means("How exposures are started");
    table.ReadOnly<&ITiming::GetPixelClock>                           ("pixelclock")        .Unit("Hz")
        .Means("Pixel clock");
    table.Setting<&ISlowScan::GetSlowScan, &ISlowScan::SetSlowScan>   ("slowscan")          .OnOff().LockedInAcquisition()
        .Means("Whether the sensor is read out slowly");
    table.Setting<&ITiming::GetReadoutTime, &ITiming::SetReadoutTime> ("readouttime")       .Unit("us").Rounds(Rounding::UpToTheFastest)
        .Means("Time of one sensor readout; not below the shortest possible");
    table.ReadOnly<&ITiming::GetFrameDuration>                        ("frameduration")     .Unit("us")
        .Means("Time from frame to frame");
    table.Mode<&E::GetAET, &E::SetAET>                                (Name::aet)           .OneOf(0, 2).Named(Named::off)
        .Means("Automatic exposure, which adjusts the exposure time");
    table.Setting<&E::GetAutoExposureLevel, &E::SetAutoExposureLevel> ("autoexposurelevel") .Range(0, 255)
        .Means("Target brightness of automatic exposure, in steps of the camera");
    table.Setting<&E::GetExposure, &E::SetExposure>                   (Name::exposure)      .Rounds(Rounding::ToACount).MovedBy(Name::aet)
        .Means("Exposure time: time base and count of it");
    table.Mode<&IGain::GetAGC, &IGain::SetAGC>                        (Name::agc)           .OneOf(0, 2).Named(Named::off)
        .Means("Automatic gain, which adjusts the gain");
    table.Setting<&IGain::GetGain, &IGain::SetGain>                   (Name::gain)          .Range(0, 511).MovedBy(Name::agc)
        .Means("Gain, in steps of the camera");
    table.Setting<&T::GetTriggerTimer, &T::SetTriggerTimer>           ("triggertimer")
        .Means("Trigger timer, in units of the camera");
    table.Setting<&T::GetTriggerDelay, &T::SetTriggerDelay>           ("triggerdelay")      .Needs(Name::exposureMode, {Named::resetRestart})
        .Means("Delay from trigger to exposure: time base and count of it");
    table.Row<&T::GetSoftTrigger, &T::SetSoftTrigger>                 ("softtrigger")
        .Means("Triggers, after waiting for one readout time");
}

void AddOrvikProcessing(FunctionTable& table) {
    using E = IDigitalEnhancement;
    using C = IColor;
    using L = ILookUpTable;
    table.Topic(Topics::processing);
    table.Mode<&IACC::GetACC, &IACC::SetACC>                                  (Name::acc)                   .OneOf(0, 4).Named(Named::off)
        .Means("Automatic contrast control, which adjusts brightness and contrast");
    table.Setting<&E::GetBrightness, &E::SetBrightness>                       (Name::brightness)            .Range(0, 2047).MovedBy(Name::acc)
        .Means("Brightness, in steps of the camera");
    table.Setting<&E::GetContrast, &E::SetContrast>                           (Name::contrast)              .Range(32, 255).MovedBy(Name::acc)
        .Means("Contrast, in steps of the camera");
    table.Setting<&E::GetHistogramEqualization, &E::SetHistogramEqualization> (Name::histogramEqualization) .OneOf(0, 3).Named(Named::off)
        .Means("Histogram equalization; a code of the camera");
    table.Setting<&L::GetLUTInterpolatorIndex, &L::SetLUTInterpolatorIndex>   (Name::lutIndex)              .Range(-8, 12)
        .Means("Index of the curve that fills the look-up table");
    table.Topic(Topics::color);
    table.Mode<&C::GetAutoWhiteset, &C::SetAutoWhiteset>          (Name::awb)      .OneOf(0, 2).Named(Named::off)
        .Means("Automatic white set, which adjusts the colour balance");
    table.Setting<&C::GetLightSource, &C::SetLightSource>         ("lightsource")  .OneOf(0, 3).Needs(Name::colorCoding, CodingsButRaw())
        .Means("Preset of the light source; a code of the camera");
    table.Setting<&C::GetColorBalance, &C::SetColorBalance>       ("colorbalance") .Range(0, 255).MovedBy(Name::awb)
        .Means("Gains of the colour channels, in steps of the camera");
    table.Setting<&C::GetColorSaturation, &C::SetColorSaturation> ("saturation")   .Range(0, 255)
        .Means("Saturation, in steps of the camera");
}

void AddOrvikOverlay(FunctionTable& table) {
    using O = IOverlay;
    using A = ISignalAnalysis;
    table.Topic(Topics::overlay);
    table.Setting<&O::GetOverlayShow, &O::SetOverlayShow>             (Name::overlayShow)      .Instances(2).OnOff()
        .Means("Whether the overlay line is shown");
    table.Setting<&O::GetOverlayPosition, &O::SetOverlayPosition>     (Name::overlayPosition)  .Instances(2).Unit("px").LimitsFrom(OverlayPositions)
        .Means("Position of the overlay line within the readout area");
    table.Setting<&O::GetOverlayStyle, &O::SetOverlayStyle>           (Name::overlayStyle)     .Instances(2)
        .Means("How the overlay line is drawn; codes of the camera");
    table.Setting<&O::GetOverlaySize, &O::SetOverlaySize>             (Name::overlaySize)      .Instances(2).Unit("px")
        .Means("Stroke width and length of the overlay line");
    table.Setting<&A::GetMeasureFrameShow, &A::SetMeasureFrameShow>   (Name::measureFrameShow) .OnOff()
        .Means("Whether the measure frame is shown");
    table.Setting<&A::GetMeasureFrameColor, &A::SetMeasureFrameColor> ("measureframecolor")    .Needs(Name::colorCoding, CodingsButRaw())
        .Means("Colour of the measure frame; a code of the camera");
    table.Setting<&A::GetMeasureWindow, &A::SetMeasureWindow>         (Name::measureWindow)    .Instances(2).Unit("px").Rounds(Rounding::IntoTheImage)
        .Means("Measure window, clamped to the image");
    table.ReadOnly<&A::GetMeasureValue>                               ("measurevalue")         .Instances(2)
        .Means("What the camera measures in a window");
}

void AddOrvikDevice(FunctionTable& table) {
    using G = IGPIO;
    table.Topic(Topics::tests);
    table.Setting<&IInternalTests::GetPatternGenerator, &IInternalTests::SetPatternGenerator> ("patterngenerator") .Named(Named::off).LimitsFrom(Patterns)
        .Means("Test picture that replaces the image");
    table.Topic(Topics::outputs);
    table.Output<&G::GetIoMode, &G::SetIoMode>         ("iomode")     .Instances(6).OneOf(0, 1) .Means("Direction of an I/O line; a code of the camera");
    table.Output<&G::GetIoPort, &G::SetIoPort>         ("ioport")     .Instances(6).OneOf(0, 4) .Means("What an I/O line carries; a code of the camera");
    table.Output<&G::GetIoPolarity, &G::SetIoPolarity> ("iopolarity") .Instances(6).OneOf(0, 1) .Means("Polarity of an I/O line; a code of the camera");
    table.Output<&G::GetIoDelay, &G::SetIoDelay>       ("iodelay")    .Instances(6)             .Means("Delay of an I/O line, in units of the camera");
}

// clang-format on

} // namespace Host
