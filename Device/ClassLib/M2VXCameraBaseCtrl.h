#pragma once

#include "BaseControlHelper.h"
#include "M2VXCamera.h"
#include "M2VXControlImpl/M2VXPropertyTable.h"
#include "M2VXControlImpl/PropertyAccess.h"
#include "RT6Camera.h"
#include "SDK4Private.h"
#include "VideoFrame.h"

#include <SDK4/IBasicSettings.h>
#include <SDK4/IControl.h>
#include <SDK4/IControlPort.h>
#include <SDK4/IDSMediaType.h>
#include <SDK4/IDigitalEnhancement.h>
#include <SDK4/IDynamicObject.h>
#include <SDK4/IGigECamera.h>
#include <SDK4/IGufi.h>
#include <SDK4/IInternalTests.h>
#include <SDK4/ILookUpTable.h>
#include <SDK4/IMemory.h>
#include <SDK4/IPropertyList.h>
#include <SDK4/ISignalFormat.h>
#include <SDK4/IStreamControl.h>
#include <SDK4/M2VX/IABC.h>
#include <SDK4/M2VX/IDefectPixel.h>
#include <SDK4/M2VX/IExposure.h>
#include <SDK4/M2VX/IGain.h>
#include <SDK4/M2VX/IImageCorrection.h>
#include <SDK4/M2VX/ILensControl.h>
#include <SDK4/M2VX/IMotorControl.h>
#include <SDK4/M2VX/IOverlay.h>
#include <SDK4/M2VX/ISignalAnalysis.h>

#include <cstdint>
#include <memory>

namespace SDK4::Control {

/// The control of an M2VX camera: one object with every interface and one table of properties. An operation checks its
/// property, calls the register maps and stores the result in the property, which notifies the host's observer. The
/// order of the bases determines the layout of the object.
class CM2VXBaseControl final : public IDynamicObject,
                               public IControl,
                               public IStreamControl,
                               public IDSMediaType,
                               public CBaseControlHelper,
                               public IGigECamera,
                               public IGufi,
                               public ISignalFormat,
                               public IBasicSettings,
                               public IInternalTests,
                               public ILookUpTable,
                               public IMemory,
                               public IDigitalEnhancement,
                               public M2VX::IExposure,
                               public M2VX::IGain,
                               public M2VX::IOverlay,
                               public M2VX::IImageCorrection,
                               public M2VX::ISignalAnalysis,
                               public M2VX::IABC,
                               public M2VX::IDefectPixel,
                               public M2VX::IMotorControl,
                               public M2VX::ILensControl,
                               public IPropertyList {
public:
    /// @param port the host's; it outlives the control
    /// @param index with a low nibble of 0 to 2, every getter reads the camera; above, the constructor reads the
    ///        settings once, and getters return the values of the properties
    /// @param id the caller's text that GetClassID returns
    /// @throws X4Error SDK4_ERR_INVALID_PARAMETER for a null port; passes on what the port throws
    CM2VXBaseControl(IControlPort* port, std::int32_t index, const char* id);
    ~CM2VXBaseControl();

    // clang-format off
    // IDynamicObject, IControl, IStreamControl, IDSMediaType, IPropertyList
    void         Release() override;
    const char*  GetClassID() override;
    void         Start() override;
    void         Stop() override;
    IMediaType*  GetMediaType() override;
    int          GetNumberOfProperties() override;
    const char*  GetPropertyName(int i) override;

    // IGigECamera
    unsigned int GetGigEVersion() override;
    const char*  GetMacAddress() override;
    const char*  GetCurrentIPAddress() override;
    const char*  GetCurrentSubnetmask() override;
    const char*  GetCurrentDefaultGateway() override;
    void         SetPacketSize(unsigned int size) override;
    unsigned int GetPacketSize() override;
    void         SetPacketDelay(unsigned int delay) override;
    unsigned int GetPacketDelay() override;
    unsigned int GetCurrentIPConfig() override;
    void         EnablePersistentIP(const char* ip, const char* mask, const char* gateway) override;
    void         DisablePersistentIP() override;
    void         EnableDHCP() override;
    void         DisableDHCP() override;
    const char*  GetFirstUrl() override;
    const char*  GetSecondUrl() override;
    const char*  GetUserDefinedName() override;
    void         SetUserDefinedName(const char* name) override;

    // IGufi
    const char*    GetDeviceName() override;
    const char*    GetSerialNumber() override;
    unsigned int   GetFunctionModelID() override;
    SDK4_KVERSION  GetFunctionModelVersion() override;
    SDK4_KREVISION GetRevision() override;
    const char*    GetSoftwareBuild() override;
    SDK4_KVERSION  GetSoftwareVersion() override;
    SDK4_KVERSION  GetHardwareVersion() override;
    SDK4_KVERSION  GetFirmwareVersion() override;

    // ISignalFormat
    SDK4_ENUM_COLORCODING GetColorCoding() override;
    void                  SetColorCoding(SDK4_ENUM_COLORCODING coding) override;
    SDK4_KSIZE            GetImageSize() override;

    // IBasicSettings
    void                    Restart() override;
    void                    LoadSettings(int set) override;
    void                    SaveSettings(int set) override;
    SDK4_ENUM_SETTINGS      GetStartupSettings() override;
    void                    SetStartupSettings(int set) override;
    SDK4_ENUM_OPERATIONMODE GetOperationMode() override;
    void                    SetUpdateFile(void* data, unsigned int length) override;
    std::uint64_t           GetUpdateStatus() override;
    unsigned int            GetDevice(SDK4_KDEVICESELECT select) override;
    void                    SetDevice(SDK4_KDEVICESELECT select, unsigned int value) override;
    unsigned int            GetErrorRegisterStatus() override;

    // IInternalTests
    SDK4_ENUM_PATTERN GetPatternGenerator() override;
    void              SetPatternGenerator(int pattern) override;
    unsigned int      GetTestPattern(unsigned int index) override;
    void              SetTestPattern(unsigned int index, unsigned int pattern) override;
    int               GetTemperaturePCB() override;
    int               GetTemperature(int sensor) override;

    // ILookUpTable
    SDK4_ENUM_LUTMODE GetLUTMode() override;
    void              SetLUTMode(int mode) override;
    int               GetLUTInterpolatorIndex() override;
    void              SetLUTInterpolatorIndex(int index) override;
    SDK4_ENUM_SWITCH  GetNegativeImage() override;
    void              SetNegativeImage(int negative) override;

    // IMemory
    SDK4_ENUM_SWITCH GetVerticalFlip() override;
    void             SetVerticalFlip(int flip) override;
    SDK4_ENUM_SWITCH GetHorizontalFlip() override;
    void             SetHorizontalFlip(int flip) override;
    SDK4_ENUM_SWITCH GetLastImageHold() override;
    void             SetLastImageHold(int hold) override;
    SDK4_ENUM_SWITCH GetImageSubtraction() override;
    void             SetImageSubtraction(int subtract) override;
    SDK4_ENUM_RECURSIVEFILTER GetRecursiveFilter() override;
    void             SetRecursiveFilter(int strength) override;
    void             StoreImage(int store) override;
    SDK4_ENUM_SWITCH GetAutoMotionDetection() override;
    void             SetAutoMotionDetection(int detect) override;

    // IDigitalEnhancement
    unsigned int GetBrightness() override;
    void         SetBrightness(unsigned int brightness) override;
    unsigned int GetContrast() override;
    void         SetContrast(unsigned int contrast) override;
    unsigned int GetSharpness() override;
    void         SetSharpness(unsigned int sharpness) override;
    SDK4_ENUM_HISTOEQUAL GetHistogramEqualization() override;
    void         SetHistogramEqualization(int mode) override;

    // M2VX::IExposure
    unsigned int GetExposureMode() override;
    void         SetExposureMode(unsigned int mode) override;
    unsigned int GetExposure() override;
    void         SetExposure(unsigned int exposure) override;
    unsigned int GetFODStatus() override;
    unsigned int GetTwinModeShutterOffset() override;
    void         SetTwinModeShutterOffset(unsigned int offset) override;

    // M2VX::IGain
    unsigned int  GetGain() override;
    void          SetGain(unsigned int gain) override;
    SDK4_ENUM_AGC GetAGC() override;
    void          SetAGC(int mode) override;
    unsigned int  GetAutoGainStopMode() override;
    void          SetAutoGainStopMode(unsigned int mode) override;
    unsigned int  GetAutomaticLevel() override;
    void          SetAutomaticLevel(unsigned int level) override;

    // M2VX::IOverlay
    SDK4_ENUM_SWITCH       GetOverlayShow(int overlay) override;
    void                   SetOverlayShow(int overlay, int show) override;
    SDK4_KCIRCULARPOSITION GetOverlayPosition(int overlay) override;
    void                   SetOverlayPosition(int overlay, SDK4_KCIRCULARPOSITION position) override;
    SDK4_KSTYLE            GetOverlayStyle(int overlay) override;
    void                   SetOverlayStyle(int overlay, SDK4_KSTYLE style) override;
    SDK4_KOVERLAYSIZE      GetOverlaySize(int overlay) override;
    void                   SetOverlaySize(int overlay, SDK4_KOVERLAYSIZE size) override;

    // M2VX::IImageCorrection
    unsigned int           GetShadingCorrectionMode() override;
    void                   SetShadingCorrectionMode(unsigned int mode) override;
    int                    GetShadingCorrection(unsigned int channel) override;
    void                   SetShadingCorrection(unsigned int channel, int correction) override;
    unsigned int           GetCircularBlankingMode() override;
    void                   SetCircularBlankingMode(unsigned int mode) override;
    unsigned int           GetCircularBlankingSize() override;
    void                   SetCircularBlankingSize(unsigned int size) override;
    SDK4_KCIRCULARPOSITION GetCircularBlankingPosition() override;
    void                   SetCircularBlankingPosition(SDK4_KCIRCULARPOSITION position) override;

    // M2VX::ISignalAnalysis
    unsigned int   GetMeasureFrameShow() override;
    void           SetMeasureFrameShow(unsigned int show) override;
    SDK4_KMWCIRCLE GetMeasureWindow() override;
    void           SetMeasureWindow(SDK4_KMWCIRCLE window) override;

    // M2VX::IABC
    unsigned int GetABC() override;
    void         SetABC(unsigned int mode) override;
    unsigned int GetABCStopMode() override;
    void         SetABCStopMode(unsigned int mode) override;
    unsigned int GetABCThreshold(unsigned int index) override;
    void         SetABCThreshold(unsigned int index, unsigned int threshold) override;
    unsigned int GetABCXRLevel() override;

    // M2VX::IDefectPixel
    SDK4_KDEFECTPIXEL GetDefectPixel(SDK4_KDEFECTPIXELSELECT select) override;
    void              SetDefectPixel(SDK4_KDEFECTPIXELSELECT select, SDK4_KDEFECTPIXEL pixel) override;
    void              SetDefectPixelAutoCompensation() override;
    unsigned int      GetDefectPixelCount() override;
    unsigned int      GetDefectPixelShow() override;
    void              SetDefectPixelShow(unsigned int show) override;

    // M2VX::IMotorControl, M2VX::ILensControl
    unsigned int GetMotorControl(unsigned int channel) override;
    void         SetMotorControl(unsigned int channel, unsigned int value) override;
    unsigned int GetLensControl(unsigned int channel) override;
    void         SetLensControl(unsigned int channel, unsigned int value) override;
    // clang-format on

private:
    struct StorageRelease {
        void operator()(CQDV12VideoFrame* frame) const;
    };

    void GetInitialValues();
    void GetInitialFormat();
    void GetInitialEnhancement();
    void GetInitialOverlays();
    void GetInitialCorrection();
    void GetInitialAutomatics();
    void GetInitialDefectPixels();
    void RefuseWhileRunning() const;
    CM2VXPropertyTable::Overlay& OverlayAt(int overlay);
    CompoundProperty<3>& DefectPixelAt(SDK4_KDEFECTPIXELSELECT select);

    const char* classId;
    std::unique_ptr<CBootstrap> bootstrap;
    std::unique_ptr<CGigEAcqControl> acquisition;
    std::unique_ptr<CGigEGufi> identity;
    std::unique_ptr<CRT6Camera> common;  ///< registers shared with other platforms
    std::unique_ptr<CM2VXCamera> family; ///< registers of this family
    CM2VXPropertyTable table;
    const CPropertyAccess access;
    std::unique_ptr<CQDV12VideoFrame, StorageRelease> mediaType;
    bool running = false; ///< whether this control has started acquisition
};

} // namespace SDK4::Control
