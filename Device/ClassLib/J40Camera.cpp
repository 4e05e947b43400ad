#include "J40Camera.h"

#include "RegisterAccess.h"

namespace SDK4::Control {

using std::uint32_t;

namespace {

/// Intended: a negative base borrows one from the counter. Every other pair is passed on unchanged.
std::uint64_t SignedSum(const SDK4_KEXPOSURE& time) {
    return (std::uint64_t{time.counter} << 32) + static_cast<std::uint64_t>(std::int64_t{time.base});
}

} // namespace

// clang-format off
uint32_t CJ40Camera::GetSoftTrigger()                { return Call(SDK4_HERE).Word(SoftTrigger); }
void     CJ40Camera::SetSoftTrigger(uint32_t value)  { Call(SDK4_HERE).SetWord(SoftTrigger, value); }
uint32_t CJ40Camera::GetTriggerTimer()               { return Call(SDK4_HERE).Word(TriggerTimer); }
void     CJ40Camera::SetTriggerTimer(uint32_t value) { Call(SDK4_HERE).SetWord(TriggerTimer, value); }

SDK4_KEXPOSURE CJ40Camera::GetTriggerDelay()                     { return Call(SDK4_HERE).Pair<SDK4_KEXPOSURE>(TriggerDelay); }
void           CJ40Camera::SetTriggerDelay(SDK4_KEXPOSURE delay) { Call(SDK4_HERE).SetPair(TriggerDelay, SignedSum(delay)); }

uint32_t      CJ40Camera::GetPixelClock()                       { return Call(SDK4_HERE).Word(PixelClock); }
uint32_t      CJ40Camera::GetReadoutTime()                      { return Call(SDK4_HERE).Word(ReadoutTime); }
void          CJ40Camera::SetReadoutTime(uint32_t microseconds) { Call(SDK4_HERE).SetWord(ReadoutTime, microseconds); }
SDK4_KBINNING CJ40Camera::GetBinning()                          { return Call(SDK4_HERE).Pair<SDK4_KBINNING>(Binning); }
void          CJ40Camera::SetBinning(SDK4_KBINNING binning)     { Call(SDK4_HERE).SetPair(Binning, binning); }
uint32_t      CJ40Camera::GetSlowScan()                         { return Call(SDK4_HERE).Word(SlowScan); }
void          CJ40Camera::SetSlowScan(uint32_t mode)            { Call(SDK4_HERE).SetWord(SlowScan, mode); }

SDK4_KRGB CJ40Camera::GetColorBalance()                       { return Call(SDK4_HERE).Block<SDK4_KRGB>(ColorBalance); }
void      CJ40Camera::SetColorBalance(SDK4_KRGB balance)      { Call(SDK4_HERE).SetBlock(ColorBalance, balance); }
uint32_t  CJ40Camera::GetLightSource()                        { return Call(SDK4_HERE).Word(LightSource); }
void      CJ40Camera::SetLightSource(uint32_t source)         { Call(SDK4_HERE).SetWord(LightSource, source); }
uint32_t  CJ40Camera::GetColorSaturation()                    { return Call(SDK4_HERE).Word(ColorSaturation); }
void      CJ40Camera::SetColorSaturation(uint32_t saturation) { Call(SDK4_HERE).SetWord(ColorSaturation, saturation); }

SDK4_KAREA CJ40Camera::GetReadoutArea()                { return Call(SDK4_HERE).Block<SDK4_KAREA>(ReadoutArea); }
void       CJ40Camera::SetReadoutArea(SDK4_KAREA area) { Call(SDK4_HERE).SetBlock(ReadoutArea, area); }
SDK4_KAREA CJ40Camera::GetFrameMask()                  { return Call(SDK4_HERE).Block<SDK4_KAREA>(FrameMask); }
void       CJ40Camera::SetFrameMask(SDK4_KAREA area)   { Call(SDK4_HERE).SetBlock(FrameMask, area); }

SDK4_KAREA CJ40Camera::GetReadoutAreaLimits(uint32_t index) { return Call(SDK4_HERE).Record<SDK4_KAREA>(ReadoutAreaLimits, index); }

uint32_t CJ40Camera::GetAET()                        { return Call(SDK4_HERE).Word(AET); }
void     CJ40Camera::SetAET(uint32_t mode)           { Call(SDK4_HERE).SetWord(AET, mode); }
uint32_t CJ40Camera::GetAutoWhiteset()               { return Call(SDK4_HERE).Word(AutoWhiteset); }
void     CJ40Camera::SetAutoWhiteset(uint32_t mode)  { Call(SDK4_HERE).SetWord(AutoWhiteset, mode); }
uint32_t CJ40Camera::GetTemperature(uint32_t sensor) { return Call(SDK4_HERE).Indexed(Temperature, sensor); }
// clang-format on

SDK4_KEXPOSURE CJ40Camera::GetExposure() {
    const auto exposure = Call(SDK4_HERE).Pair<SDK4_KEXPOSURE>(Exposure);
    SDK4_LOG(Debug, "Return(" << exposure.base << "," << exposure.counter << ")");
    return exposure;
}

void CJ40Camera::SetExposure(SDK4_KEXPOSURE exposure) {
    SDK4_LOG(Debug, "Call(" << exposure.base << "," << exposure.counter << ")");
    Access().SetPair(Exposure, SignedSum(exposure));
}

} // namespace SDK4::Control
