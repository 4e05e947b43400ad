#include "J40Camera.h"

#include "RegisterAccess.h"

namespace SDK4::Control {

using std::uint32_t;

namespace {

/// Intended: a negative base borrows one from the counter's half, where every other pair is passed on as it is.
std::uint64_t SignedSum(const SDK4_KEXPOSURE& time) {
    return (std::uint64_t{time.counter} << 32) + static_cast<std::uint64_t>(std::int64_t{time.base});
}

} // namespace

// clang-format off
uint32_t       CJ40Camera::GetSoftTrigger()                        { SDK4_LOG_CALL(); return ReadWord(port, Register::SoftTrigger); }
void           CJ40Camera::SetSoftTrigger(uint32_t value)          { SDK4_LOG_CALL(); WriteWord(port, Register::SoftTrigger, value); }
uint32_t       CJ40Camera::GetTriggerTimer()                       { SDK4_LOG_CALL(); return ReadWord(port, Register::TriggerTimer); }
void           CJ40Camera::SetTriggerTimer(uint32_t value)         { SDK4_LOG_CALL(); WriteWord(port, Register::TriggerTimer, value); }
SDK4_KEXPOSURE CJ40Camera::GetTriggerDelay()                       { SDK4_LOG_CALL(); return ReadPair<SDK4_KEXPOSURE>(port, Register::TriggerDelay); }
void           CJ40Camera::SetTriggerDelay(SDK4_KEXPOSURE delay)   { SDK4_LOG_CALL(); port->WriteRegisterPair(Register::TriggerDelay, SignedSum(delay)); }

uint32_t       CJ40Camera::GetPixelClock()                         { SDK4_LOG_CALL(); return ReadWord(port, Register::PixelClock); }
uint32_t       CJ40Camera::GetReadoutTime()                        { SDK4_LOG_CALL(); return ReadWord(port, Register::ReadoutTime); }
void           CJ40Camera::SetReadoutTime(uint32_t microseconds)   { SDK4_LOG_CALL(); WriteWord(port, Register::ReadoutTime, microseconds); }
SDK4_KBINNING  CJ40Camera::GetBinning()                            { SDK4_LOG_CALL(); return ReadPair<SDK4_KBINNING>(port, Register::Binning); }
void           CJ40Camera::SetBinning(SDK4_KBINNING binning)       { SDK4_LOG_CALL(); WritePair(port, Register::Binning, binning); }
uint32_t       CJ40Camera::GetSlowScan()                           { SDK4_LOG_CALL(); return ReadWord(port, Register::SlowScan); }
void           CJ40Camera::SetSlowScan(uint32_t mode)              { SDK4_LOG_CALL(); WriteWord(port, Register::SlowScan, mode); }

SDK4_KRGB      CJ40Camera::GetColorBalance()                       { SDK4_LOG_CALL(); return ReadBlock<SDK4_KRGB>(port, Register::ColorBalance); }
void           CJ40Camera::SetColorBalance(SDK4_KRGB balance)      { SDK4_LOG_CALL(); WriteBlock(port, Register::ColorBalance, balance); }
uint32_t       CJ40Camera::GetLightSource()                        { SDK4_LOG_CALL(); return ReadWord(port, Register::LightSource); }
void           CJ40Camera::SetLightSource(uint32_t source)         { SDK4_LOG_CALL(); WriteWord(port, Register::LightSource, source); }
uint32_t       CJ40Camera::GetColorSaturation()                    { SDK4_LOG_CALL(); return ReadWord(port, Register::ColorSaturation); }
void           CJ40Camera::SetColorSaturation(uint32_t saturation) { SDK4_LOG_CALL(); WriteWord(port, Register::ColorSaturation, saturation); }

SDK4_KAREA     CJ40Camera::GetReadoutArea()                        { SDK4_LOG_CALL(); return ReadBlock<SDK4_KAREA>(port, Register::ReadoutArea); }
void           CJ40Camera::SetReadoutArea(SDK4_KAREA area)         { SDK4_LOG_CALL(); WriteBlock(port, Register::ReadoutArea, area); }
SDK4_KAREA     CJ40Camera::GetFrameMask()                          { SDK4_LOG_CALL(); return ReadBlock<SDK4_KAREA>(port, Register::FrameMask); }
void           CJ40Camera::SetFrameMask(SDK4_KAREA area)           { SDK4_LOG_CALL(); WriteBlock(port, Register::FrameMask, area); }
SDK4_KAREA     CJ40Camera::GetReadoutAreaLimits(uint32_t index)    { SDK4_LOG_CALL(); return ReadIndexedRecord<SDK4_KAREA>(port, Register::ReadoutAreaLimits, index); }

uint32_t       CJ40Camera::GetAET()                                { SDK4_LOG_CALL(); return ReadWord(port, Register::AET); }
void           CJ40Camera::SetAET(uint32_t mode)                   { SDK4_LOG_CALL(); WriteWord(port, Register::AET, mode); }
uint32_t       CJ40Camera::GetAutoWhiteset()                       { SDK4_LOG_CALL(); return ReadWord(port, Register::AutoWhiteset); }
void           CJ40Camera::SetAutoWhiteset(uint32_t mode)          { SDK4_LOG_CALL(); WriteWord(port, Register::AutoWhiteset, mode); }
uint32_t       CJ40Camera::GetTemperature(uint32_t sensor)         { SDK4_LOG_CALL(); return ReadIndexedWord(port, Register::Temperature, sensor); }
// clang-format on

SDK4_KEXPOSURE CJ40Camera::GetExposure() {
    SDK4_LOG_CALL();
    const auto exposure = ReadPair<SDK4_KEXPOSURE>(port, Register::Exposure);
    SDK4_LOG(Debug, "Return(" << exposure.base << "," << exposure.counter << ")");
    return exposure;
}

void CJ40Camera::SetExposure(SDK4_KEXPOSURE exposure) {
    SDK4_LOG(Debug, "Call(" << exposure.base << "," << exposure.counter << ")");
    port->WriteRegisterPair(Register::Exposure, SignedSum(exposure));
}

} // namespace SDK4::Control
