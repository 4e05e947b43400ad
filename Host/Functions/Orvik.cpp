#include "Host/Functions/Codes.h"
#include "Host/Functions/Names.h"
#include "Host/Functions/Rounding.h"
#include "Host/Functions/Tables.h"

#include <SDK4/SDK4.h>

namespace Host {

using namespace SDK4::Control;
using enum Restore;

namespace {

/// A model with a "C" in its name is a colour model.
bool IsColor(std::string_view model) { return model.find('C') != std::string_view::npos; }

Limits SingleValues(std::vector<std::int64_t> admitted) {
    return {{.min = admitted.front(), .max = admitted.back(), .admitted = admitted, .defaultValue = {}}};
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
    return {{.min = min.startx, .max = max.startx, .admitted = {}, .defaultValue = {}},
            {.min = min.starty, .max = max.starty, .admitted = {}, .defaultValue = {}},
            {.min = min.endx, .max = max.endx, .admitted = {}, .defaultValue = {}},
            {.min = min.endy, .max = max.endy, .admitted = {}, .defaultValue = {}}};
}

/// An overlay may stand as far right and down as the readout area reaches.
Limits OverlayPositions(IDynamicObject& control, std::string_view) {
    const SDK4_KAREA area = InterfaceOf<IRoa>(control).GetReadoutArea();
    return {{.min = 0, .max = area.endx - area.startx, .admitted = {}, .defaultValue = {}},
            {.min = 0, .max = area.endy - area.starty, .admitted = {}, .defaultValue = {}}};
}

SDK4_KAREA SmallestArea(IRoa& roa) { return roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MIN); }
SDK4_KAREA LargestArea(IRoa& roa) { return roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MAX); }
SDK4_KAREA ActiveArea(IRoa& roa) { return roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_ACTIVE); }

} // namespace

// clang-format off

void AddOrvikFormat(FunctionTable& table) {
    table.Topic(Topic::image);
    table.Row<&ISignalFormat::GetColorCoding, &ISignalFormat::SetColorCoding> (Name::colorCoding) .Named(Named::colorCodings).LimitsFrom(ColorCodings).Restored(Setting);
    table.Row<&IBinning::GetBinning, &IBinning::SetBinning>                   ("binning")         .Range(1, 8).Keeps(SDK4_ERR_INVALID_PARAMETER).Restored(Setting);
    table.Row<&IRoa::GetReadoutArea, &IRoa::SetReadoutArea>                   ("readoutarea")     .Unit("px").LimitsFrom(ReadoutAreas).Restored(Setting);
    table.ReadOnly<&SmallestArea>                                             ("readoutareamin")  .Unit("px");
    table.ReadOnly<&LargestArea>                                              ("readoutareamax")  .Unit("px");
    table.ReadOnly<&ActiveArea>                                               ("readoutareaactive").Unit("px");
    table.Row<&IRoa::GetFrameMask, &IRoa::SetFrameMask>                       ("framemask")       .Unit("px").Restored(Setting);
}

void AddOrvikExposure(FunctionTable& table) {
    using E = IExposure;
    using T = ITrigger;
    table.Topic(Topic::exposure);
    table.Row<&E::GetExposureMode, &E::SetExposureMode>             (Name::exposureMode)  .OneOf(Named::exposureModes)    .Restored(Setting);
    table.ReadOnly<&ITiming::GetPixelClock>                         ("pixelclock")        .Unit("Hz");
    table.Row<&ISlowScan::GetSlowScan, &ISlowScan::SetSlowScan>     ("slowscan")          .OneOf(Named::onOff)            .Restored(Setting);
    table.Row<&ITiming::GetReadoutTime, &ITiming::SetReadoutTime>   ("readouttime")       .Unit("us").Rounds(Rounding::UpToTheFastest).Restored(Setting);
    table.ReadOnly<&ITiming::GetFrameDuration>                      ("frameduration")     .Unit("us");
    table.Row<&E::GetAET, &E::SetAET>                               (Name::aet)           .OneOf(0, 2).Named(Named::off)  .Restored(Mode);
    table.Row<&E::GetAutoExposureLevel, &E::SetAutoExposureLevel>   ("autoexposurelevel") .Range(0, 255)                  .Restored(Setting);
    table.Row<&E::GetExposure, &E::SetExposure>                     (Name::exposure)      .Rounds(Rounding::ToACount).MovedBy(Name::aet).Restored(Setting);
    table.Row<&IGain::GetAGC, &IGain::SetAGC>                       (Name::agc)           .OneOf(0, 2).Named(Named::off)  .Restored(Mode);
    table.Row<&IGain::GetGain, &IGain::SetGain>                     (Name::gain)          .Range(0, 511).MovedBy(Name::agc).Restored(Setting);
    table.Row<&T::GetTriggerTimer, &T::SetTriggerTimer>             ("triggertimer")                                      .Restored(Setting);
    table.Row<&T::GetTriggerDelay, &T::SetTriggerDelay>             ("triggerdelay")      .Needs(Name::exposureMode, {SDK4_EXPOSUREMODE_RESETRESTART}).Restored(Setting);
    table.Row<&T::GetSoftTrigger, &T::SetSoftTrigger>               ("softtrigger");
}

void AddOrvikProcessing(FunctionTable& table) {
    using E = IDigitalEnhancement;
    using C = IColor;
    table.Topic(Topic::processing);
    table.Row<&IACC::GetACC, &IACC::SetACC>                                       (Name::acc)                   .OneOf(0, 4).Named(Named::off)      .Restored(Mode);
    table.Row<&E::GetBrightness, &E::SetBrightness>                               (Name::brightness)            .Range(0, 2047).MovedBy(Name::acc)  .Restored(Setting);
    table.Row<&E::GetContrast, &E::SetContrast>                                   (Name::contrast)              .Range(32, 255).MovedBy(Name::acc)  .Restored(Setting);
    table.Row<&E::GetHistogramEqualization, &E::SetHistogramEqualization>         (Name::histogramEqualization) .OneOf(0, 3).Named(Named::off)      .Restored(Setting);
    table.Row<&ILookUpTable::GetLUTInterpolatorIndex, &ILookUpTable::SetLUTInterpolatorIndex> (Name::lutIndex)  .Range(-8, 12)                      .Restored(Setting);
    table.Topic(Topic::color);
    table.Row<&C::GetAutoWhiteset, &C::SetAutoWhiteset>                           (Name::awb)                   .OneOf(0, 2).Named(Named::off)      .Restored(Mode);
    table.Row<&C::GetLightSource, &C::SetLightSource>                             ("lightsource")               .OneOf(0, 3)                        .Restored(Setting);
    table.Row<&C::GetColorBalance, &C::SetColorBalance>                           ("colorbalance")              .Range(0, 255).MovedBy(Name::awb)   .Restored(Setting);
    table.Row<&C::GetColorSaturation, &C::SetColorSaturation>                     ("saturation")                .Range(0, 255)                      .Restored(Setting);
}

void AddOrvikOverlay(FunctionTable& table) {
    using O = IOverlay;
    using A = ISignalAnalysis;
    table.Topic(Topic::overlay);
    table.Row<&O::GetOverlayShow, &O::SetOverlayShow>               (Name::overlayShow)      .Instances(2).OneOf(Named::onOff)                       .Restored(Setting);
    table.Row<&O::GetOverlayPosition, &O::SetOverlayPosition>       (Name::overlayPosition)  .Instances(2).Unit("px").LimitsFrom(OverlayPositions)   .Restored(Setting);
    table.Row<&O::GetOverlayStyle, &O::SetOverlayStyle>             (Name::overlayStyle)     .Instances(2)                                           .Restored(Setting);
    table.Row<&O::GetOverlaySize, &O::SetOverlaySize>               (Name::overlaySize)      .Instances(2).Unit("px")                                .Restored(Setting);
    table.Row<&A::GetMeasureFrameShow, &A::SetMeasureFrameShow>     (Name::measureFrameShow) .OneOf(Named::onOff)                                    .Restored(Setting);
    table.Row<&A::GetMeasureFrameColor, &A::SetMeasureFrameColor>   ("measureframecolor")                                                            .Restored(Setting);
    table.Row<&A::GetMeasureWindow, &A::SetMeasureWindow>           (Name::measureWindow)    .Instances(2).Unit("px").Rounds(Rounding::IntoTheImage) .Restored(Setting);
    table.ReadOnly<&A::GetMeasureValue>                             ("measurevalue")         .Instances(2);
}

void AddOrvikDevice(FunctionTable& table) {
    using G = IGPIO;
    table.Topic(Topic::tests);
    table.Row<&IInternalTests::GetPatternGenerator, &IInternalTests::SetPatternGenerator> ("patterngenerator") .Named(Named::off).LimitsFrom(Patterns).Restored(Setting);
    table.Topic(Topic::outputs);
    table.Row<&G::GetIoMode, &G::SetIoMode>                         ("iomode")               .Instances(6).OneOf(0, 1)                               .Restored(Output);
    table.Row<&G::GetIoPort, &G::SetIoPort>                         ("ioport")               .Instances(6).OneOf(0, 4)                               .Restored(Output);
    table.Row<&G::GetIoPolarity, &G::SetIoPolarity>                 ("iopolarity")           .Instances(6).OneOf(0, 1)                               .Restored(Output);
    table.Row<&G::GetIoDelay, &G::SetIoDelay>                       ("iodelay")              .Instances(6)                                           .Restored(Output);
}

// clang-format on

} // namespace Host
