#pragma once

#include "RegisterMap.h"

#include <SDK4/Enums.h>
#include <SDK4/IControlPort.h>
#include <SDK4/Records.h>

#include <cstdint>

namespace SDK4::Control {

/// The registers that the platforms of the property-based controls share, one method per camera function. No state, no
/// cache, no validation: the control checks ranges and availability. Throws SDK4_ERR_CANTGETFEATURE if the port returns
/// no block; the index has then been written.
class CRT6Camera : private RegisterMap {
public:
    explicit CRT6Camera(IControlPort* controlPort) : RegisterMap(controlPort) {}

    char* GetSerialNumber();
    std::uint32_t GetFunctionModelID();
    SDK4_KVERSION GetFunctionModelVersion();
    SDK4_KREVISION GetRevision();
    char* GetSoftwareBuild();
    SDK4_KVERSION GetSoftwareVersion();
    SDK4_KVERSION GetFirmwareVersion();
    SDK4_KVERSION GetHardwareVersion();

    std::uint32_t GetExposureMode();
    void SetExposureMode(std::uint32_t mode);
    std::uint32_t GetGain();
    void SetGain(std::uint32_t gain);

    std::uint32_t GetVerticalFlip();
    void SetVerticalFlip(std::uint32_t flip);
    std::uint32_t GetHorizontalFlip();
    void SetHorizontalFlip(std::uint32_t flip);
    std::uint32_t GetLastImageHold();
    void SetLastImageHold(std::uint32_t hold);
    void StoreImage(std::uint32_t store);
    std::uint32_t GetImageSubtraction();
    void SetImageSubtraction(std::uint32_t subtract);
    std::uint32_t GetRecursiveFilter();
    void SetRecursiveFilter(std::uint32_t strength);

    std::uint32_t GetOverlayShow(std::uint32_t index);
    void SetOverlayShow(std::uint32_t index, std::uint32_t show);
    SDK4_KPOSITION GetOverlayPosition(std::uint32_t index);
    void SetOverlayPosition(std::uint32_t index, SDK4_KPOSITION position);
    SDK4_KSTYLE GetOverlayStyle(std::uint32_t index);
    void SetOverlayStyle(std::uint32_t index, SDK4_KSTYLE style);
    SDK4_KOVERLAYSIZE GetOverlaySize(std::uint32_t index);
    void SetOverlaySize(std::uint32_t index, SDK4_KOVERLAYSIZE size);

    std::uint32_t GetBrightness();
    void SetBrightness(std::uint32_t brightness);
    std::uint32_t GetContrast();
    void SetContrast(std::uint32_t contrast);
    std::uint32_t GetSharpness();
    void SetSharpness(std::uint32_t sharpness);

    std::int32_t GetLUTInterpolatorIndex();
    void SetLUTInterpolatorIndex(std::int32_t index);
    std::uint32_t GetLUTMode();
    void SetLUTMode(std::uint32_t mode);
    std::uint32_t GetNegativeImage();
    void SetNegativeImage(std::uint32_t negative);

    std::uint32_t GetMeasureFrameShow();
    void SetMeasureFrameShow(std::uint32_t show);
    std::uint32_t GetMeasureFrameColor();
    void SetMeasureFrameColor(std::uint32_t color);
    SDK4_KAREA GetMeasureWindow(std::uint32_t index);
    void SetMeasureWindow(std::uint32_t index, SDK4_KAREA area);
    std::uint32_t GetMeasureValue(std::uint32_t index);

    std::uint32_t GetColorCoding();
    void SetColorCoding(std::uint32_t coding);
    SDK4_KSIZE GetImageSize();
    std::uint32_t GetFrameDuration();

    std::uint32_t GetAGC();
    void SetAGC(std::uint32_t mode);
    std::uint32_t GetAutoExposureLevel();
    void SetAutoExposureLevel(std::uint32_t level);
    std::int32_t GetACC();
    void SetACC(std::int32_t mode);

    std::uint32_t GetDevice(SDK4_KDEVICESELECT select);
    void SetDevice(SDK4_KDEVICESELECT select, std::uint32_t value);
    void Restart();
    void LoadSettings(std::uint32_t set);
    void SaveSettings(std::uint32_t set);
    std::uint32_t GetStartupSettings();
    void SetStartupSettings(std::uint32_t set);
    std::uint32_t GetOperationMode();
    void SetUpdateFile(void* data, std::uint32_t length); ///< the whole image; the port splits it
    std::uint64_t GetUpdateStatus();

    std::uint32_t GetPatternGenerator();
    void SetPatternGenerator(std::uint32_t pattern);
    std::uint32_t GetIoMode(std::uint32_t line);
    void SetIoMode(std::uint32_t line, std::uint32_t mode);
    std::uint32_t GetIoPort(std::uint32_t line);
    void SetIoPort(std::uint32_t line, std::uint32_t signal);
    std::uint32_t GetIoPolarity(std::uint32_t line);
    void SetIoPolarity(std::uint32_t line, std::uint32_t polarity);
    std::uint32_t GetIoDelay(std::uint32_t line);
    void SetIoDelay(std::uint32_t line, std::uint32_t delay);
};

} // namespace SDK4::Control
