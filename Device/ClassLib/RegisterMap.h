#pragma once

#include <SDK4/IControlPort.h>

#include <cstdint>

namespace SDK4 {
struct Location;
}

namespace SDK4::Control {

class RegisterAccess;

/// Base of the register maps: the host's port, and the addresses of the vendor registers of all platforms with
/// property-based controls. Some registers have the same function on every platform but a different access; the derived
/// classes define it.
///
/// The addresses are in the class so that its methods need no qualifier. A register with the name of a method needs
/// one: Address::Restart.
class RegisterMap {
public:
    // clang-format off
    enum class Address : std::uint32_t {
        // image geometry and acquisition
        Width                       = 0x00088120,
        Height                      = 0x00088124,
        PixelFormat                 = 0x00088128,
        AcquisitionMode             = 0x00088130,
        AcquisitionStart            = 0x00088134,
        AcquisitionStop             = 0x00088138,

        // exposure, trigger, timing, analogue front end
        ExposureMode                = 0x0A020000,
        Exposure                    = 0x0A030000,
        SoftTrigger                 = 0x0A070000,
        TriggerTimer                = 0x0A080000,
        PixelClock                  = 0x0A090000,
        ReadoutTime                 = 0x0A0A0000,
        Binning                     = 0x0A0B0000,
        AFE                         = 0x0A0C0000,
        FODStatus                   = 0x0A0D0000,
        SlowScan                    = 0x0A0E0000,
        TriggerDelay                = 0x0A100000,
        TwinModeShutterOffset       = 0x0A130000,

        // defect pixels, lens
        DefectPixel                 = 0x0B020000,
        DefectPixelAutoCompensation = 0x0B030000,
        DefectPixelCount            = 0x0B040000,
        DefectPixelShow             = 0x0B0A0000,
        LensControl                 = 0x0C080000,

        // gain, colour
        Gain                        = 0x14010000,
        ColorBalance                = 0x15010000,
        LightSource                 = 0x15020000,
        ColorSaturation             = 0x15040000,

        // image memory
        VerticalFlip                = 0x16020000,
        HorizontalFlip              = 0x16030000,
        LastImageHold               = 0x16040000,
        StoreImage                  = 0x16050000,
        ImageSubtraction            = 0x16060000,
        RecursiveFilter             = 0x16070000,
        AutoMotionDetection         = 0x16080000,

        // overlays
        OverlayShow                 = 0x17010000,
        OverlayPosition             = 0x17020000,
        OverlayStyle                = 0x17030000,
        OverlaySize                 = 0x17040000,

        // digital enhancement, look-up table, image correction
        Brightness                  = 0x18010000,
        Contrast                    = 0x18020000,
        Sharpness                   = 0x18030000,
        HistogramEqualization       = 0x180C0000,
        LUTInterpolatorIndex        = 0x19010000,
        LUTMode                     = 0x19020000,
        NegativeImage               = 0x19030000,
        ShadingCorrectionMode       = 0x1B010000,
        ShadingCorrection           = 0x1B020000,
        CircularBlankingMode        = 0x1B030000,
        CircularBlankingSize        = 0x1B040000,
        CircularBlankingPosition    = 0x1B050000,

        // measure frame
        MeasureFrameShow            = 0x1E010000,
        MeasureFrameColor           = 0x1E020000,
        MeasureWindow               = 0x1E030000,
        MeasureValue                = 0x1E040000,

        // image format
        ColorCoding                 = 0x28020000,
        ImageSize                   = 0x28030000,
        FrameDuration               = 0x28040000,
        ReadoutArea                 = 0x28050000,
        FrameMask                   = 0x28060000,
        ReadoutAreaLimits           = 0x28090000,

        // automatic modes
        AET                         = 0x46010000,
        AGC                         = 0x46020000,
        AutoExposureLevel           = 0x46030000,
        AutoWhiteset                = 0x46040000,
        ACC                         = 0x46050000,
        AutoGainStopMode            = 0x46090000,
        ABC                         = 0x47040000,
        ABCStopMode                 = 0x47050000,
        ABCThreshold                = 0x47090000,
        ABCXRLevel                  = 0x470A0000,

        // settings, status, firmware
        Device                      = 0x50050000,
        Restart                     = 0x51010000,
        LoadSettings                = 0x51020000,
        SaveSettings                = 0x51030000,
        StartupSettings             = 0x51040000,
        OperationMode               = 0x52020000,
        ErrorRegisterStatus         = 0x52030000,
        UpdateFile                  = 0x53020000,
        UpdateStatus                = 0x53030000,

        // internal tests
        PatternGenerator            = 0x5A010000,
        Temperature                 = 0x5A030000,

        // identity
        DeviceName                  = 0x64010000,
        SerialNumber                = 0x64020000,
        FunctionModelID             = 0x64030000,
        FunctionModelVersion        = 0x64040000,
        Revision                    = 0x65010000,
        SoftwareBuild               = 0x65020000,
        SoftwareVersion             = 0x65030000,
        FirmwareVersion             = 0x65040000,
        HardwareVersion             = 0x65050000,

        // I/O lines
        IoMode                      = 0x66020000,
        IoPort                      = 0x66030000,
        IoPolarity                  = 0x660F0000,
        IoDelay                     = 0x66110000,

        // motor, sensor control
        MotorControl                = 0x6E140000,
        CCDControl                  = 0x6F010000,
        COM                         = 0x6F020000,
    };
    // clang-format on
    using enum Address;

protected:
    explicit RegisterMap(IControlPort* controlPort) : port(controlPort) {}

    // Defined in RegisterAccess.h.

    [[nodiscard]] RegisterAccess Access() const;

    /// Access to the registers, after logging the entry of an operation.
    /// @param location SDK4_HERE in the operation itself
    [[nodiscard]] RegisterAccess Call(const Location& location) const;

    IControlPort* port; ///< not owned
};

} // namespace SDK4::Control
