#pragma once

#include "RegisterMap.h"

#include <SDK4/Enums.h>
#include <SDK4/IControlPort.h>
#include <SDK4/Records.h>

#include <cstdint>

namespace SDK4::Control {

/// The registers that only M2VX cameras have, or that need a different access than in CRT6Camera. No state, no cache,
/// no validation. Throws SDK4_ERR_CANTGETFEATURE if the port returns no block.
class CM2VXCamera : private RegisterMap {
public:
    explicit CM2VXCamera(IControlPort* controlPort) : RegisterMap(controlPort) {}

    std::uint32_t GetExposure();
    void SetExposure(std::uint32_t exposure);
    std::uint32_t GetFODStatus();
    std::uint32_t GetTwinModeShutterOffset();
    void SetTwinModeShutterOffset(std::uint32_t offset);

    SDK4_KDEFECTPIXEL GetDefectPixel(SDK4_KDEFECTPIXELSELECT select);
    void SetDefectPixel(SDK4_KDEFECTPIXELSELECT select, SDK4_KDEFECTPIXEL pixel);
    void SetDefectPixelAutoCompensation();
    std::uint32_t GetDefectPixelCount();
    std::uint32_t GetDefectPixelShow();
    void SetDefectPixelShow(std::uint32_t show);

    std::uint32_t GetLensControl(std::uint32_t channel);
    void SetLensControl(std::uint32_t channel, std::uint32_t value);
    std::uint32_t GetMotorControl(std::uint32_t channel);
    void SetMotorControl(std::uint32_t channel, std::uint32_t value);

    std::uint32_t GetAutoMotionDetection();
    void SetAutoMotionDetection(std::uint32_t detect);
    SDK4_KCIRCULARPOSITION GetOverlayPosition(std::uint32_t index);
    void SetOverlayPosition(std::uint32_t index, SDK4_KCIRCULARPOSITION position);
    SDK4_ENUM_HISTOEQUAL GetHistogramEqualization();
    void SetHistogramEqualization(SDK4_ENUM_HISTOEQUAL mode);

    std::uint32_t GetShadingCorrectionMode();
    void SetShadingCorrectionMode(std::uint32_t mode);
    std::int32_t GetShadingCorrection(std::uint32_t channel);
    void SetShadingCorrection(std::uint32_t channel, std::int32_t value);
    std::uint32_t GetCircularBlankingMode();
    void SetCircularBlankingMode(std::uint32_t mode);
    std::uint32_t GetCircularBlankingSize();
    void SetCircularBlankingSize(std::uint32_t size);
    SDK4_KCIRCULARPOSITION GetCircularBlankingPosition();
    void SetCircularBlankingPosition(SDK4_KCIRCULARPOSITION position);
    SDK4_KMWCIRCLE GetMeasureWindow();
    void SetMeasureWindow(SDK4_KMWCIRCLE circle);

    std::uint32_t GetAutoGainStopMode();
    void SetAutoGainStopMode(std::uint32_t mode);
    std::uint32_t GetABC();
    void SetABC(std::uint32_t mode);
    std::uint32_t GetABCStopMode();
    void SetABCStopMode(std::uint32_t mode);
    std::uint32_t GetABCThreshold(std::uint32_t index);
    void SetABCThreshold(std::uint32_t index, std::uint32_t threshold);
    std::uint32_t GetABCXRLevel();

    std::uint32_t GetErrorRegisterStatus();
    std::uint32_t GetTestPattern(std::uint32_t index);
    void SetTestPattern(std::uint32_t index, std::uint32_t pattern);
    std::int32_t GetTemperaturePCB();
};

} // namespace SDK4::Control
