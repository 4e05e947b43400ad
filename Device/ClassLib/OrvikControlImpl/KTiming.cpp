#include "OrvikControlImpl/KTiming.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KTiming::KTiming(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KTiming");
    // clang-format off
    Register<unsigned int>(PixelClock,    0x0A090000, ReadBack, {SlowScan});
    Register<unsigned int>(FrameDuration, 0x28040000, ReadBack, {LoadSettings, Exposure, ReadoutTime, ColorCoding, SlowScan});
    Register<unsigned int>(ReadoutTime,   0x0A0A0000, ReadBack, {LoadSettings, FastReadout, ReadoutArea, SlowScan});

    Plain<unsigned int>(PixelClock);
    Plain<unsigned int>(FrameDuration);
    Plain<unsigned int>(ReadoutTime);
    // clang-format on
}

// clang-format off
unsigned int KTiming::GetPixelClock()                    { SDK4_LOG_CALL(); return Get<unsigned int>(PixelClock); }
unsigned int KTiming::GetReadoutTime()                   { SDK4_LOG_CALL(); return Get<unsigned int>(ReadoutTime); }
void KTiming::SetReadoutTime(unsigned int microseconds)  { SDK4_LOG_CALL(); Set<unsigned int>(ReadoutTime, microseconds); }
unsigned int KTiming::GetFrameDuration()                 { SDK4_LOG_CALL(); return Get<unsigned int>(FrameDuration); }
// clang-format on

} // namespace SDK4::Control
