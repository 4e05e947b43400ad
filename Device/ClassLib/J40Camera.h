#pragma once

#include "RegisterMap.h"

#include <SDK4/Enums.h>
#include <SDK4/IControlPort.h>
#include <SDK4/Records.h>

#include <cstdint>

namespace SDK4::Control {

/// The registers that only J40 cameras have, or that need a different access than in CRT6Camera. No state, no cache, no
/// validation. Throws SDK4_ERR_CANTGETFEATURE if the port returns no block.
class CJ40Camera : private RegisterMap {
public:
    explicit CJ40Camera(IControlPort* controlPort) : RegisterMap(controlPort) {}

    SDK4_KEXPOSURE GetExposure();
    void SetExposure(SDK4_KEXPOSURE exposure);

    std::uint32_t GetSoftTrigger();
    void SetSoftTrigger(std::uint32_t value);
    std::uint32_t GetTriggerTimer();
    void SetTriggerTimer(std::uint32_t value);
    SDK4_KEXPOSURE GetTriggerDelay();
    void SetTriggerDelay(SDK4_KEXPOSURE delay);

    std::uint32_t GetPixelClock();
    std::uint32_t GetReadoutTime();
    void SetReadoutTime(std::uint32_t microseconds);
    SDK4_KBINNING GetBinning();
    void SetBinning(SDK4_KBINNING binning);
    std::uint32_t GetSlowScan();
    void SetSlowScan(std::uint32_t mode);

    SDK4_KRGB GetColorBalance();
    void SetColorBalance(SDK4_KRGB balance);
    std::uint32_t GetLightSource();
    void SetLightSource(std::uint32_t source);
    std::uint32_t GetColorSaturation();
    void SetColorSaturation(std::uint32_t saturation);

    SDK4_KAREA GetReadoutArea();
    void SetReadoutArea(SDK4_KAREA area);
    SDK4_KAREA GetFrameMask();
    void SetFrameMask(SDK4_KAREA area);
    SDK4_KAREA GetReadoutAreaLimits(std::uint32_t index);

    std::uint32_t GetAET();
    void SetAET(std::uint32_t mode);
    std::uint32_t GetAutoWhiteset();
    void SetAutoWhiteset(std::uint32_t mode);
    std::uint32_t GetTemperature(std::uint32_t sensor);
};

} // namespace SDK4::Control
