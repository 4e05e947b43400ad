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

Limits SingleValues(std::vector<std::int64_t> admitted) {
    return {{.min = admitted.front(), .max = admitted.back(), .admitted = admitted}};
}

Limits ColorCodings(IDynamicObject&, std::string_view model) {
    if (IsColor(model)) {
        return SingleValues({SDK4_COLORCODING_MONO8, SDK4_COLORCODING_MONO14, SDK4_COLORCODING_MONO12PACKED,
                             SDK4_COLORCODING_YUV422PACKED, SDK4_COLORCODING_RGB8, SDK4_COLORCODING_BGR8,
                             SDK4_COLORCODING_RAW14});
    }
    return SingleValues({SDK4_COLORCODING_MONO8, SDK4_COLORCODING_MONO14, SDK4_COLORCODING_MONO12PACKED});
}

Limits Patterns(IDynamicObject&, std::string_view model) {
    return IsColor(model) ? SingleValues({0, 1}) : SingleValues({0, 1, 2, 3});
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
    table.Topic(Topics::image);
    table.Setting<&ISignalFormat::GetColorCoding, &ISignalFormat::SetColorCoding> (Name::colorCoding)   .Named(Named::colorCodings).LimitsFrom(ColorCodings);
    table.Setting<&IBinning::GetBinning, &IBinning::SetBinning>                   ("binning")           .Range(1, 8).Keeps(SDK4_ERR_INVALID_PARAMETER);
    table.Setting<&IRoa::GetReadoutArea, &IRoa::SetReadoutArea>                   ("readoutarea")       .Unit("px").LimitsFrom(ReadoutAreas);
    table.ReadOnly<&SmallestArea>                                                 ("readoutareamin")    .Unit("px");
    table.ReadOnly<&LargestArea>                                                  ("readoutareamax")    .Unit("px");
    table.ReadOnly<&ActiveArea>                                                   ("readoutareaactive") .Unit("px");
    table.Setting<&IRoa::GetFrameMask, &IRoa::SetFrameMask>                       ("framemask")         .Unit("px");
}

void AddOrvikExposure(FunctionTable& table) {
    using E = IExposure;
    using T = ITrigger;
    table.Topic(Topics::exposure);
    table.Setting<&E::GetExposureMode, &E::SetExposureMode>           (Name::exposureMode)  .OneOf(Named::exposureModes);
    table.ReadOnly<&ITiming::GetPixelClock>                           ("pixelclock")        .Unit("Hz");
    table.Setting<&ISlowScan::GetSlowScan, &ISlowScan::SetSlowScan>   ("slowscan")          .OnOff();
    table.Setting<&ITiming::GetReadoutTime, &ITiming::SetReadoutTime> ("readouttime")       .Unit("us").Rounds(Rounding::UpToTheFastest);
    table.ReadOnly<&ITiming::GetFrameDuration>                        ("frameduration")     .Unit("us");
    table.Mode<&E::GetAET, &E::SetAET>                                (Name::aet)           .OneOf(0, 2).Named(Named::off);
    table.Setting<&E::GetAutoExposureLevel, &E::SetAutoExposureLevel> ("autoexposurelevel") .Range(0, 255);
    table.Setting<&E::GetExposure, &E::SetExposure>                   (Name::exposure)      .Rounds(Rounding::ToACount).MovedBy(Name::aet);
    table.Mode<&IGain::GetAGC, &IGain::SetAGC>                        (Name::agc)           .OneOf(0, 2).Named(Named::off);
    table.Setting<&IGain::GetGain, &IGain::SetGain>                   (Name::gain)          .Range(0, 511).MovedBy(Name::agc);
    table.Setting<&T::GetTriggerTimer, &T::SetTriggerTimer>           ("triggertimer");
    table.Setting<&T::GetTriggerDelay, &T::SetTriggerDelay>           ("triggerdelay")      .Needs(Name::exposureMode, {Named::resetRestart});
    table.Row<&T::GetSoftTrigger, &T::SetSoftTrigger>                 ("softtrigger");
}

void AddOrvikProcessing(FunctionTable& table) {
    using E = IDigitalEnhancement;
    using C = IColor;
    using L = ILookUpTable;
    table.Topic(Topics::processing);
    table.Mode<&IACC::GetACC, &IACC::SetACC>                                  (Name::acc)                   .OneOf(0, 4).Named(Named::off);
    table.Setting<&E::GetBrightness, &E::SetBrightness>                       (Name::brightness)            .Range(0, 2047).MovedBy(Name::acc);
    table.Setting<&E::GetContrast, &E::SetContrast>                           (Name::contrast)              .Range(32, 255).MovedBy(Name::acc);
    table.Setting<&E::GetHistogramEqualization, &E::SetHistogramEqualization> (Name::histogramEqualization) .OneOf(0, 3).Named(Named::off);
    table.Setting<&L::GetLUTInterpolatorIndex, &L::SetLUTInterpolatorIndex>   (Name::lutIndex)              .Range(-8, 12);
    table.Topic(Topics::color);
    table.Mode<&C::GetAutoWhiteset, &C::SetAutoWhiteset>          (Name::awb)      .OneOf(0, 2).Named(Named::off);
    table.Setting<&C::GetLightSource, &C::SetLightSource>         ("lightsource")  .OneOf(0, 3);
    table.Setting<&C::GetColorBalance, &C::SetColorBalance>       ("colorbalance") .Range(0, 255).MovedBy(Name::awb);
    table.Setting<&C::GetColorSaturation, &C::SetColorSaturation> ("saturation")   .Range(0, 255);
}

void AddOrvikOverlay(FunctionTable& table) {
    using O = IOverlay;
    using A = ISignalAnalysis;
    table.Topic(Topics::overlay);
    table.Setting<&O::GetOverlayShow, &O::SetOverlayShow>             (Name::overlayShow)      .Instances(2).OnOff();
    table.Setting<&O::GetOverlayPosition, &O::SetOverlayPosition>     (Name::overlayPosition)  .Instances(2).Unit("px").LimitsFrom(OverlayPositions);
    table.Setting<&O::GetOverlayStyle, &O::SetOverlayStyle>           (Name::overlayStyle)     .Instances(2);
    table.Setting<&O::GetOverlaySize, &O::SetOverlaySize>             (Name::overlaySize)      .Instances(2).Unit("px");
    table.Setting<&A::GetMeasureFrameShow, &A::SetMeasureFrameShow>   (Name::measureFrameShow) .OnOff();
    table.Setting<&A::GetMeasureFrameColor, &A::SetMeasureFrameColor> ("measureframecolor");
    table.Setting<&A::GetMeasureWindow, &A::SetMeasureWindow>         (Name::measureWindow)    .Instances(2).Unit("px").Rounds(Rounding::IntoTheImage);
    table.ReadOnly<&A::GetMeasureValue>                               ("measurevalue")         .Instances(2);
}

void AddOrvikDevice(FunctionTable& table) {
    using G = IGPIO;
    table.Topic(Topics::tests);
    table.Setting<&IInternalTests::GetPatternGenerator, &IInternalTests::SetPatternGenerator> ("patterngenerator") .Named(Named::off).LimitsFrom(Patterns);
    table.Topic(Topics::outputs);
    table.Output<&G::GetIoMode, &G::SetIoMode>         ("iomode")     .Instances(6).OneOf(0, 1);
    table.Output<&G::GetIoPort, &G::SetIoPort>         ("ioport")     .Instances(6).OneOf(0, 4);
    table.Output<&G::GetIoPolarity, &G::SetIoPolarity> ("iopolarity") .Instances(6).OneOf(0, 1);
    table.Output<&G::GetIoDelay, &G::SetIoDelay>       ("iodelay")    .Instances(6);
}

// clang-format on

} // namespace Host
