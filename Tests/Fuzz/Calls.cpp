// Everything that a host can call, on either family. A new interface goes to the end of the last list: then the inputs
// that there are keep their meaning.

#include "Tests/Fuzz/Session.h"

#include <array>

namespace Fuzz {

using namespace SDK4;
using namespace SDK4::Control;

// clang-format off
template <> constexpr std::size_t longestText<&IGigECamera::GetMacAddress>            = 17;
template <> constexpr std::size_t longestText<&IGigECamera::GetCurrentIPAddress>      = 15;
template <> constexpr std::size_t longestText<&IGigECamera::GetCurrentSubnetmask>     = 15;
template <> constexpr std::size_t longestText<&IGigECamera::GetCurrentDefaultGateway> = 15;
template <> constexpr std::size_t longestText<&IGigECamera::GetUserDefinedName>       = 16;
template <> constexpr std::size_t longestText<&IGufi::GetDeviceName>                  = 20;
template <> constexpr std::size_t longestText<&IGufi::GetSerialNumber>                = 20;
template <> constexpr std::size_t longestText<&IGufi::GetSoftwareBuild>               = 20;
template <> constexpr std::size_t longestText<&IPropertyList::GetPropertyName>        = 255;
// clang-format on

namespace {

void AddShared(std::vector<Call>& calls) {
    Add<&IControl::GetClassID, &IStreamControl::Start, &IStreamControl::Stop, &IDSMediaType::GetMediaType,
        &IVideoFrame::GetType, &IVideoFrame::GetWidth, &IVideoFrame::GetHeight, &IVideoFrame::GetFormat,
        &IVideoFrame::GetTimePerFrame>(calls);
    Add<&IGigECamera::GetGigEVersion, &IGigECamera::GetMacAddress, &IGigECamera::GetCurrentIPAddress,
        &IGigECamera::GetCurrentSubnetmask, &IGigECamera::GetCurrentDefaultGateway, &IGigECamera::SetPacketSize,
        &IGigECamera::GetPacketSize, &IGigECamera::SetPacketDelay, &IGigECamera::GetPacketDelay,
        &IGigECamera::GetCurrentIPConfig, &IGigECamera::EnablePersistentIP, &IGigECamera::DisablePersistentIP,
        &IGigECamera::EnableDHCP, &IGigECamera::DisableDHCP, &IGigECamera::GetFirstUrl, &IGigECamera::GetSecondUrl,
        &IGigECamera::GetUserDefinedName, &IGigECamera::SetUserDefinedName>(calls);
    Add<&IGufi::GetDeviceName, &IGufi::GetSerialNumber, &IGufi::GetFunctionModelID, &IGufi::GetFunctionModelVersion,
        &IGufi::GetRevision, &IGufi::GetSoftwareBuild, &IGufi::GetSoftwareVersion, &IGufi::GetHardwareVersion,
        &IGufi::GetFirmwareVersion>(calls);
    Add<&ISignalFormat::GetColorCoding, &ISignalFormat::SetColorCoding, &ISignalFormat::GetImageSize>(calls);
    Add<&IDigitalEnhancement::GetBrightness, &IDigitalEnhancement::SetBrightness, &IDigitalEnhancement::GetContrast,
        &IDigitalEnhancement::SetContrast, &IDigitalEnhancement::GetSharpness, &IDigitalEnhancement::SetSharpness,
        &IDigitalEnhancement::GetHistogramEqualization, &IDigitalEnhancement::SetHistogramEqualization>(calls);
    Add<&ILookUpTable::GetLUTMode, &ILookUpTable::SetLUTMode, &ILookUpTable::GetLUTInterpolatorIndex,
        &ILookUpTable::SetLUTInterpolatorIndex, &ILookUpTable::GetNegativeImage, &ILookUpTable::SetNegativeImage>(
        calls);
    Add<&IMemory::GetVerticalFlip, &IMemory::SetVerticalFlip, &IMemory::GetHorizontalFlip, &IMemory::SetHorizontalFlip,
        &IMemory::GetLastImageHold, &IMemory::SetLastImageHold, &IMemory::GetImageSubtraction,
        &IMemory::SetImageSubtraction, &IMemory::GetRecursiveFilter, &IMemory::SetRecursiveFilter, &IMemory::StoreImage,
        &IMemory::GetAutoMotionDetection, &IMemory::SetAutoMotionDetection>(calls);
    Add<&IInternalTests::GetPatternGenerator, &IInternalTests::SetPatternGenerator, &IInternalTests::GetTestPattern,
        &IInternalTests::SetTestPattern, &IInternalTests::GetTemperaturePCB, &IInternalTests::GetTemperature>(calls);
    Add<&IBasicSettings::Restart, &IBasicSettings::LoadSettings, &IBasicSettings::SaveSettings,
        &IBasicSettings::GetStartupSettings, &IBasicSettings::SetStartupSettings, &IBasicSettings::GetOperationMode,
        &IBasicSettings::SetUpdateFile, &IBasicSettings::GetUpdateStatus, &IBasicSettings::GetDevice,
        &IBasicSettings::SetDevice, &IBasicSettings::GetErrorRegisterStatus>(calls);
}

void AddOrvik(std::vector<Call>& calls) {
    Add<&IGigEVisionPort::ReadRegister, &IGigEVisionPort::WriteRegister, &IGigEVisionPort::ReadMem,
        &IGigEVisionPort::WriteMem>(calls);
    Add<&IGain::GetGain, &IGain::SetGain, &IGain::GetAGC, &IGain::SetAGC>(calls);
    Add<&ISlowScan::GetSlowScan, &ISlowScan::SetSlowScan>(calls);
    Add<&ITiming::GetPixelClock, &ITiming::GetReadoutTime, &ITiming::SetReadoutTime, &ITiming::GetFrameDuration>(calls);
    Add<&IACC::GetACC, &IACC::SetACC>(calls);
    Add<&IColor::GetColorBalance, &IColor::SetColorBalance, &IColor::GetLightSource, &IColor::SetLightSource,
        &IColor::GetColorSaturation, &IColor::SetColorSaturation, &IColor::GetAutoWhiteset, &IColor::SetAutoWhiteset>(
        calls);
    Add<&IOverlay::GetOverlayShow, &IOverlay::SetOverlayShow, &IOverlay::GetOverlayPosition,
        &IOverlay::SetOverlayPosition, &IOverlay::GetOverlayStyle, &IOverlay::SetOverlayStyle,
        &IOverlay::GetOverlaySize, &IOverlay::SetOverlaySize>(calls);
    Add<&IExposure::GetExposureMode, &IExposure::SetExposureMode, &IExposure::GetExposure, &IExposure::SetExposure,
        &IExposure::GetAutoExposureLevel, &IExposure::SetAutoExposureLevel, &IExposure::GetAET, &IExposure::SetAET>(
        calls);
    Add<&IRoa::GetReadoutArea, &IRoa::SetReadoutArea, &IRoa::GetFrameMask, &IRoa::SetFrameMask,
        &IRoa::GetReadoutAreaLimits>(calls);
    Add<&ISignalAnalysis::GetMeasureFrameShow, &ISignalAnalysis::SetMeasureFrameShow,
        &ISignalAnalysis::GetMeasureFrameColor, &ISignalAnalysis::SetMeasureFrameColor,
        &ISignalAnalysis::GetMeasureWindow, &ISignalAnalysis::SetMeasureWindow, &ISignalAnalysis::GetMeasureValue>(
        calls);
    Add<&IBinning::GetBinning, &IBinning::SetBinning>(calls);
    Add<&ITrigger::GetSoftTrigger, &ITrigger::SetSoftTrigger, &ITrigger::GetTriggerTimer, &ITrigger::SetTriggerTimer,
        &ITrigger::GetTriggerDelay, &ITrigger::SetTriggerDelay>(calls);
    Add<&IGPIO::GetIoMode, &IGPIO::SetIoMode, &IGPIO::GetIoPort, &IGPIO::SetIoPort, &IGPIO::GetIoPolarity,
        &IGPIO::SetIoPolarity, &IGPIO::GetIoDelay, &IGPIO::SetIoDelay>(calls);
}

template <typename Value> using ByName = Value (IPropertyState::*)(const char*);
template <typename Value> using ByIndex = Value (IPropertyState::*)(int, const char*);

void AddM2VX(std::vector<Call>& calls) {
    Add<&IPropertyState::GetUIntMin, &IPropertyState::GetUIntMax, &IPropertyState::GetUIntDefault,
        ByName<std::uint32_t>(&IPropertyState::GetUIntValue), ByIndex<std::uint32_t>(&IPropertyState::GetUIntValue),
        &IPropertyState::GetIntMin, &IPropertyState::GetIntMax, &IPropertyState::GetIntDefault,
        ByName<std::int32_t>(&IPropertyState::GetIntValue), ByIndex<std::int32_t>(&IPropertyState::GetIntValue),
        &IPropertyState::GetEnabled, &IPropertyState::SetEnabled, &IPropertyState::GetImplemented,
        &IPropertyState::IsUnsigned, &IPropertyState::IsIndexed, &IPropertyState::IsEnumerated,
        &IPropertyState::AddCallback, &IPropertyState::RemoveCallback>(calls);
    Add<&IPropertyList::GetNumberOfProperties, &IPropertyList::GetPropertyName>(calls);
    Add<&M2VX::IExposure::GetExposureMode, &M2VX::IExposure::SetExposureMode, &M2VX::IExposure::GetExposure,
        &M2VX::IExposure::SetExposure, &M2VX::IExposure::GetFODStatus, &M2VX::IExposure::GetTwinModeShutterOffset,
        &M2VX::IExposure::SetTwinModeShutterOffset>(calls);
    Add<&M2VX::IGain::GetGain, &M2VX::IGain::SetGain, &M2VX::IGain::GetAGC, &M2VX::IGain::SetAGC,
        &M2VX::IGain::GetAutoGainStopMode, &M2VX::IGain::SetAutoGainStopMode, &M2VX::IGain::GetAutomaticLevel,
        &M2VX::IGain::SetAutomaticLevel>(calls);
    Add<&M2VX::IOverlay::GetOverlayShow, &M2VX::IOverlay::SetOverlayShow, &M2VX::IOverlay::GetOverlayPosition,
        &M2VX::IOverlay::SetOverlayPosition, &M2VX::IOverlay::GetOverlayStyle, &M2VX::IOverlay::SetOverlayStyle,
        &M2VX::IOverlay::GetOverlaySize, &M2VX::IOverlay::SetOverlaySize>(calls);
    Add<&M2VX::IImageCorrection::GetShadingCorrectionMode, &M2VX::IImageCorrection::SetShadingCorrectionMode,
        &M2VX::IImageCorrection::GetShadingCorrection, &M2VX::IImageCorrection::SetShadingCorrection,
        &M2VX::IImageCorrection::GetCircularBlankingMode, &M2VX::IImageCorrection::SetCircularBlankingMode,
        &M2VX::IImageCorrection::GetCircularBlankingSize, &M2VX::IImageCorrection::SetCircularBlankingSize,
        &M2VX::IImageCorrection::GetCircularBlankingPosition, &M2VX::IImageCorrection::SetCircularBlankingPosition>(
        calls);
    Add<&M2VX::ISignalAnalysis::GetMeasureFrameShow, &M2VX::ISignalAnalysis::SetMeasureFrameShow,
        &M2VX::ISignalAnalysis::GetMeasureWindow, &M2VX::ISignalAnalysis::SetMeasureWindow>(calls);
    Add<&M2VX::IABC::GetABC, &M2VX::IABC::SetABC, &M2VX::IABC::GetABCStopMode, &M2VX::IABC::SetABCStopMode,
        &M2VX::IABC::GetABCThreshold, &M2VX::IABC::SetABCThreshold, &M2VX::IABC::GetABCXRLevel>(calls);
    Add<&M2VX::IDefectPixel::GetDefectPixel, &M2VX::IDefectPixel::SetDefectPixel,
        &M2VX::IDefectPixel::SetDefectPixelAutoCompensation, &M2VX::IDefectPixel::GetDefectPixelCount,
        &M2VX::IDefectPixel::GetDefectPixelShow, &M2VX::IDefectPixel::SetDefectPixelShow>(calls);
    Add<&M2VX::IMotorControl::GetMotorControl, &M2VX::IMotorControl::SetMotorControl,
        &M2VX::ILensControl::GetLensControl, &M2VX::ILensControl::SetLensControl>(calls);
}

} // namespace

const std::vector<Call>& Calls() {
    static const std::vector<Call> all = [] {
        std::vector<Call> calls;
        AddShared(calls);
        AddOrvik(calls);
        AddM2VX(calls);
        return calls;
    }();
    return all;
}

} // namespace Fuzz
