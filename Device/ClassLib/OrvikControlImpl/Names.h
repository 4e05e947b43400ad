#pragma once

#include <string_view>

/// The names of registers, features and conditions. A register and the feature bound to it share a name; the condition
/// lists of features contain names of conditions.
namespace SDK4::Control::Name {

// clang-format off
// NOLINTBEGIN(readability-identifier-naming): capitals, as the operations have them: GetGain, Gain

// Acquisition (KStreamControl)
inline constexpr std::string_view StartAcquisition   = "startacquisition";
inline constexpr std::string_view StopAcquisition    = "stopacquisition";

// Identity (KGufi)
inline constexpr std::string_view DeviceName          = "devicename";
inline constexpr std::string_view SerialNumber        = "serialnumber";
inline constexpr std::string_view FunctionModelId     = "fumoid";
inline constexpr std::string_view FunctionModelVersion = "fumoversion";
inline constexpr std::string_view Revision            = "revision";
inline constexpr std::string_view SoftwareBuild       = "softwarebuildstring";
inline constexpr std::string_view SoftwareVersion     = "softwareversion";
inline constexpr std::string_view HardwareVersion     = "hardwareversion";
inline constexpr std::string_view FirmwareVersion     = "firmwareversion";

// Exposure, gain, timing, trigger (KExposure, KGain, KTiming, KTrigger, KSlowScan)
inline constexpr std::string_view ExposureMode        = "exposuremode";
inline constexpr std::string_view Exposure            = "exposure";
inline constexpr std::string_view AutoExposureLevel   = "autoexposurelevel";
inline constexpr std::string_view Aet                 = "aet";
inline constexpr std::string_view Gain                = "gain";
inline constexpr std::string_view Agc                 = "agc";
inline constexpr std::string_view PixelClock          = "pixelclock";
inline constexpr std::string_view FrameDuration       = "frameduration";
inline constexpr std::string_view ReadoutTime         = "readouttime";
inline constexpr std::string_view FastReadout         = "fastreadout"; // no register has this name yet
inline constexpr std::string_view SoftTrigger         = "softtrigger";
inline constexpr std::string_view TriggerTimer        = "triggertimer";
inline constexpr std::string_view TriggerDelay        = "triggerdelay";
inline constexpr std::string_view SlowScan            = "slowscan";

// Image format (KSignalFormat, KRoa, KBinning)
inline constexpr std::string_view ColorCoding         = "colorcoding";
inline constexpr std::string_view ImageSize           = "imagesize";
inline constexpr std::string_view ReadoutArea         = "readoutarea";
inline constexpr std::string_view ReadoutAreaActive   = "readoutarea_active";
inline constexpr std::string_view ReadoutAreaMax      = "readoutarea_max";
inline constexpr std::string_view ReadoutAreaMin      = "readoutarea_min";
inline constexpr std::string_view Binning             = "binning";

// Enhancement, colour, look-up table (KDigitalEnhancement, KColor, KLookupTable)
inline constexpr std::string_view Brightness          = "brightness";
inline constexpr std::string_view Contrast            = "contrast";
inline constexpr std::string_view Sharpness           = "sharpness";
inline constexpr std::string_view Acc                 = "acc";
inline constexpr std::string_view ColorBalance        = "colorbalance";
inline constexpr std::string_view LightSource         = "lightsource";
inline constexpr std::string_view Saturation          = "saturation";
inline constexpr std::string_view Awb                 = "awb";
inline constexpr std::string_view LutIndex            = "lutindex";
inline constexpr std::string_view LutMode             = "lutmode";
inline constexpr std::string_view NegativeImage       = "negativeimage";

// Overlay, signal analysis (KOverlay, KSignalAnalysis)
inline constexpr std::string_view OverlayShowLine1     = "overlayshow_line1";
inline constexpr std::string_view OverlayShowLine2     = "overlayshow_line2";
inline constexpr std::string_view OverlayPositionLine1 = "overlayposition_line1";
inline constexpr std::string_view OverlayPositionLine2 = "overlayposition_line2";
inline constexpr std::string_view OverlayStyleLine1    = "overlaystyle_line1";
inline constexpr std::string_view OverlayStyleLine2    = "overlaystyle_line2";
inline constexpr std::string_view OverlaySizeLine1     = "overlaysize_line1";
inline constexpr std::string_view OverlaySizeLine2     = "overlaysize_line2";
inline constexpr std::string_view MeasureFrameShow     = "measureframeshow";
inline constexpr std::string_view MeasureFrameColor    = "measureframecolor";
inline constexpr std::string_view MeasureWindow1       = "measurewindow1";
inline constexpr std::string_view MeasureWindow2       = "measurewindow2";

// Memory, I/O lines, settings, tests (KMemory, KGPIO, KBasicSettings, KInternalTests)
inline constexpr std::string_view VerticalFlip        = "verticalflip";
inline constexpr std::string_view HorizontalFlip      = "horizontalflip";
inline constexpr std::string_view LastImageHold       = "lastimagehold";
inline constexpr std::string_view StoreImage          = "storeimage";
inline constexpr std::string_view ImageSubtraction    = "imagesubtraction";
inline constexpr std::string_view RecursiveFilter     = "recursivefilter";
inline constexpr std::string_view IoMode              = "iomode";      // with a number from 1: iomode1
inline constexpr std::string_view IoPort              = "ioport";      // with a number from 1
inline constexpr std::string_view IoPolarity          = "iopolarity";  // with a number from 1
inline constexpr std::string_view IoDelay             = "iodelay";     // with a number from 1
inline constexpr std::string_view Restart             = "restart";
inline constexpr std::string_view LoadSettings        = "loadsettings";
inline constexpr std::string_view SaveSettings        = "savesettings";
inline constexpr std::string_view StartupSettings     = "startupsettings";
inline constexpr std::string_view OperationMode       = "operationmode";
inline constexpr std::string_view PatternGenerator    = "patterngenerator";
inline constexpr std::string_view Temperature1        = "temperature1";

// Conditions and computed bounds (Predicates.h)
inline constexpr std::string_view TLParamsLocked      = "tlparamslocked";
inline constexpr std::string_view OverlayPositionMax  = "overlayposition_max";
inline constexpr std::string_view IsNotColorCodingRaw = "is_not_colorcoding_raw";
inline constexpr std::string_view IsNotExposureModeFrameOnDemand = "is_not_exposuremode_frameondemand";
inline constexpr std::string_view IsAetOn             = "is_aet_on";
inline constexpr std::string_view IsAgcOn             = "is_agc_on";
inline constexpr std::string_view IsAccOn             = "is_acc_on";
inline constexpr std::string_view IsAwbOn             = "is_awb_on";
inline constexpr std::string_view IsColorCamera       = "is_color_camera";
inline constexpr std::string_view IsMemoryCamera      = "is_memory_camera";
inline constexpr std::string_view IsHistogramCamera   = "is_histogram_camera";
inline constexpr std::string_view IsMonoCamera        = "is_mono_camera";
inline constexpr std::string_view IsExposureModeFreeRunning  = "is_exposuremode_freerunning";
inline constexpr std::string_view IsExposureModeResetRestart = "is_exposuremode_resetrestart";

// NOLINTEND(readability-identifier-naming)
// clang-format on

} // namespace SDK4::Control::Name
