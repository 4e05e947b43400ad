#include "Simulation/Features.h"

#include <SDK4/Enums.h>

namespace Simulation {

const std::vector<Feature>& Features() {
    const char* const device = "DeviceControl";
    const char* const transport = "TransportLayerControl";
    const char* const image = "ImageFormatControl";
    const char* const analog = "AnalogControl";
    const char* const acquisition = "AcquisitionControl";
    const char* const processing = "ImageProcessingControl";
    const char* const correction = "CorrectionControl"; // M2VX
    const char* const overlay = "OverlayControl";
    const char* const userSets = "UserSetControl";
    const char* const lines = "DigitalIOControl";
    const char* const axes = "AxesControl"; // M2VX
    const char* const tests = "TestControl";

    using enum FeatureKind::Kind;
    const FeatureKind onOff{Switch};
    const FeatureKind command{Command};
    const FeatureKind request{Request};
    const FeatureKind text{Text};
    const FeatureKind modes{Number, {}, {{0, "Off"}, {1, "Mode1"}, {2, "Mode2"}, {3, "Mode3"}, {4, "Mode4"}}};
    const FeatureKind exposureModes{Number,
                                    {},
                                    {{SDK4_EXPOSUREMODE_FREERUNNING, "FreeRunning"},
                                     {SDK4_EXPOSUREMODE_FREERUNNING2, "FreeRunning2"},
                                     {SDK4_EXPOSUREMODE_RESETRESTART, "ResetRestart"},
                                     {SDK4_EXPOSUREMODE_FRAMEONDEMAND, "FrameOnDemand"}}};

    // The fields have the names of those of the library's records.
    const auto fields = [](const std::vector<const char*>& names) { return FeatureKind{Number, names}; };
    const FeatureKind time = fields({"Base", "Counter"});
    const FeatureKind version = fields({"Value1", "Value2"});
    const FeatureKind area = fields({"StartX", "StartY", "EndX", "EndY"});
    const FeatureKind circle = fields({"Radius", "Width", "XPos", "YPos", "VStretch"});

    // clang-format off
    static const std::vector<Feature> features = {
        // register                  node                         category     what it is
        {"devicename",               "DeviceName",                device,      "Model name as the library reports it", text},
        {"serialnumber",             "SerialNumber",              device,      "Serial number as the library reports it", text},
        {"fumoid",                   "FunctionModelID",           device,      "Number and capabilities of the model"},
        {"fumoversion",              "FunctionModelVersion",      device,      "Version of the set of functions", version},
        {"revision",                 "Revision",                  device,      "Revision of the camera", version},
        {"softwarebuild",            "SoftwareBuild",             device,      "Build of the camera's software", text},
        {"softwareversion",          "SoftwareVersion",           device,      "Version of the camera's software", version},
        {"firmwareversion",          "FirmwareVersion",           device,      "Version of the firmware", version},
        {"hardwareversion",          "HardwareVersion",           device,      "Version of the hardware", version},
        {"temperature",              "Temperature",               device,      "Temperature of the board in degrees Celsius"},
        {"operationmode",            "OperationMode",             device,      "Operation mode as the camera reports it"},
        {"errorregister",            "ErrorRegister",             device,      "Errors that the camera has noticed, one in each bit"},
        {"restart",                  "Restart",                   device,      "Restarts the camera with its start-up settings", command},

        {"gigeversion",              "GigEVersion",               transport,   "Version of the standard, major and minor in 16 bits each"},
        {"currentipaddress",         "GevCurrentIPAddress",       transport,   "IP address in use"},
        {"currentsubnetmask",        "GevCurrentSubnetMask",      transport,   "Subnet mask in use"},
        {"currentdefaultgateway",    "GevCurrentDefaultGateway",  transport,   "Default gateway in use"},
        {"currentipconfig",          "GevCurrentIPConfiguration", transport,   "Ways to get an IP address: 1 persistent, 2 DHCP, 4 link-local"},
        {"persistentipaddress",      "GevPersistentIPAddress",    transport,   "IP address from the next start on, if persistent addresses are on"},
        {"persistentsubnetmask",     "GevPersistentSubnetMask",   transport,   "Its subnet mask"},
        {"persistentdefaultgateway", "GevPersistentDefaultGateway", transport, "Its default gateway"},
        {"firsturl",                 "GevFirstURL",               transport,   "Where this description is", text},
        {"secondurl",                "GevSecondURL",              transport,   "Where else this description may be", text},

        {"imagesize",                "ImageSize",                 image,       "Size of the pictures in pixels", fields({"Width", "Height"})},
        {"readoutarealimits",        "ReadoutAreaLimits",         image,       "Readout area: 0 smallest values, 1 largest values, 2 now", area},

        {"agc",                      "AGC",                       analog,      "Automatic gain control", modes},
        {"automaticlevel",           "AutomaticLevel",            analog,      "Level that automatic gain control of mode 2 aims at"},
        {"autogainstopmode",         "AutoGainStopMode",          analog,      "Stop mode of automatic gain control"},
        {"abc",                      "ABC",                       analog,      "Automatic brightness control", modes},
        {"abcstopmode",              "ABCStopMode",               analog,      "Stop mode of automatic brightness control"},
        {"abcthreshold",             "ABCThreshold",              analog,      "Thresholds of automatic brightness control, in steps of the camera"},
        {"abcxrlevel",               "ABCXRLevel",                analog,      "Level of automatic brightness control, in steps of the camera"},

        {"exposuremode",             "ExposureMode",              acquisition, "What begins an exposure", exposureModes},
        {"exposure",                 "Exposure",                  acquisition, "Exposure time: counter times 10 to the base, in microseconds", time},
        {"exposure",                 "Exposure",                  acquisition, "Exposure time in milliseconds; settable in exposure mode ResetRestart"},
        {"aet",                      "AET",                       acquisition, "Automatic exposure time control", modes},
        {"autoexposurelevel",        "AutoExposureLevel",         acquisition, "Level that the automatic modes aim at"},
        {"triggertimer",             "TriggerTimer",              acquisition, "Trigger timer, in units of the camera"},
        {"triggerdelay",             "TriggerDelay",              acquisition, "Delay of the trigger: counter times 10 to the base, in microseconds", time},
        {"pixelclock",               "PixelClock",                acquisition, "Pixel clock in hertz"},
        {"slowscan",                 "SlowScan",                  acquisition, "Whether the sensor is read at half its speed", onOff},
        {"readouttime",              "ReadoutTime",               acquisition, "Time of a sensor readout in microseconds; not below the shortest"},
        {"frameduration",            "FrameDuration",             acquisition, "Time from frame to frame in microseconds"},
        {"twinmodeshutteroffset",    "TwinModeShutterOffset",     acquisition, "Offset of the shutter in twin mode, in steps of the exposure time"},
        {"fodstatus",                "FODStatus",                 acquisition, "Status of the frame-on-demand unit"},

        {"acc",                      "ACC",                       processing,  "Automatic contrast control", modes},
        {"brightness",               "Brightness",                processing,  "Brightness in steps of the camera"},
        {"contrast",                 "Contrast",                  processing,  "Contrast in steps of the camera"},
        {"sharpness",                "Sharpness",                 processing,  "Sharpness in steps of the camera"},
        {"histogramequalization",    "HistogramEqualization",     processing,  "Equalisation of the histogram", modes},
        {"lutindex",                 "LUTIndex",                  processing,  "Index of the curve that fills the look-up table"},
        {"gammaindex",               "LUTIndex",                  processing,  "Index of the curve that fills the look-up table"},
        {"lutmode",                  "LUTMode",                   processing,  "Mode of the look-up table"},
        {"negativeimage",            "NegativeImage",             processing,  "Whether the picture is inverted", onOff},
        {"lightsource",              "LightSource",               processing,  "Preset of the light source"},
        {"awb",                      "AWB",                       processing,  "Automatic white balance", modes},
        {"colorbalance",             "ColorBalance",              processing,  "Gains of the colours, 128 for none", fields({"Red", "Green", "Blue"})},
        {"saturation",               "Saturation",                processing,  "Saturation in steps of the camera"},
        {"lastimagehold",            "LastImageHold",             processing,  "Whether the last picture is held", onOff},
        {"storeimage",               "StoreImage",                processing,  "Stores the picture that is subtracted, when it is set", onOff},
        {"imagesubtraction",         "ImageSubtraction",          processing,  "Whether the stored picture is subtracted", onOff},
        {"recursivefilter",          "RecursiveFilter",           processing,  "Strength of the recursive filter", modes},
        {"automotiondetection",      "AutoMotionDetection",       processing,  "Whether motion is detected", onOff},

        {"shadingcorrectionmode",    "ShadingCorrectionMode",     correction,  "Whether shading is corrected", onOff},
        {"shadingcorrection",        "ShadingCorrection",         correction,  "Correction of a channel, in steps of the camera"},
        {"circularblankingmode",     "CircularBlankingMode",      correction,  "Whether the picture is blanked outside a circle", onOff},
        {"circularblankingsize",     "CircularBlankingSize",      correction,  "Size of the circle in pixels"},
        {"circularblankingposition", "CircularBlankingPosition",  correction,  "Centre of the circle in pixels", fields({"XPos", "YPos"})},
        {"defectpixelshow",          "DefectPixelShow",           correction,  "Whether defect pixels are shown", onOff},
        {"defectpixelcount",         "DefectPixelCount",          correction,  "Pairs of the table of defect pixels in use"},
        {"defectpixel",              "DefectPixel",               correction,  "Pixels that are replaced, two to a pair", fields({"XPos", "YPos", "Mode"})},
        {"autocompensation",         "DefectPixelAutoCompensation", correction, "Detects a pair of defect pixels", command},

        {"overlayshow",              "OverlayShow",               overlay,     "Whether the overlay is shown", onOff},
        {"overlayposition",          "OverlayPosition",           overlay,     "Position of the overlay in pixels", fields({"PosX", "PosY"})},
        {"overlaystyle",             "OverlayStyle",              overlay,     "How the overlay is drawn; codes of the camera", fields({"Color", "Style"})},
        {"overlaysize",              "OverlaySize",               overlay,     "Stroke width and length of the overlay in pixels", fields({"Width", "Length"})},
        {"measureframeshow",         "MeasureFrameShow",          overlay,     "Whether the measure frame is shown", onOff},
        {"measureframecolor",        "MeasureFrameColor",         overlay,     "Colour of the measure frame; a code of the camera"},
        {"measurewindow",            "MeasureWindow",             overlay,     "Where the picture is measured, in pixels", area},
        {"measurewindow",            "MeasureWindow",             overlay,     "Circle in which the picture is measured, in pixels", circle},
        {"measurevalue",             "MeasureValue",              overlay,     "Measured level"},

        {"startupsettings",          "StartupSettings",           userSets,    "Set of settings that is loaded at the start, 0 for the factory's"},
        {"loadsettings",             "LoadSettings",              userSets,    "Loads the set of settings of that number, 0 for the factory's", request},
        {"savesettings",             "SaveSettings",              userSets,    "Saves the settings as the set of that number", request},

        {"iomode",                   "IoMode",                    lines,       "Direction of the line; a code of the camera"},
        {"ioport",                   "IoPort",                    lines,       "What the line carries; a code of the camera"},
        {"iopolarity",               "IoPolarity",                lines,       "Polarity of the line; a code of the camera"},
        {"iodelay",                  "IoDelay",                   lines,       "Delay of the line, in units of the camera"},

        {"motorcontrol",             "MotorControl",              axes,        "Position of the motor, which takes time to move there"},
        {"lenscontrol",              "LensControl",               axes,        "Position of the lens axis, which takes time to move there"},

        {"patterngenerator",         "PatternGenerator",          tests,       "Test pattern instead of the picture", modes},
        {"testpattern",              "TestPattern",               tests,       "Test pattern, 0 for none"},
    };
    // clang-format on
    return features;
}

} // namespace Simulation
